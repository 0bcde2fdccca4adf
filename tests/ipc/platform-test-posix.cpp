// What only the POSIX transport has: socket names and namespaces, errno
// values in the lines, close-on-exec descriptors.

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <future>
#include <string>
#include <vector>

#include "log-capture.h"
#include "support/temp-dir.h"
#include "win-ipc.h"

namespace {

using WinIpc::IpcClient;
using WinIpc::IpcServer;

struct NameCase {
  const char* name;
  const char* ns;  // nullptr: unset
  const char* pipe;
  const char* expected;
};

void PrintTo(const NameCase& c, std::ostream* os) {
  *os << c.name;
}

class PipeName : public ::testing::TestWithParam<NameCase> {};

TEST_P(PipeName, MapsToTheSocketName) {
  const NameCase& c = GetParam();
  nimbra_test::ScopedEnv env("NIMBRA_PIPE_NAMESPACE", c.ns);
  EXPECT_EQ(WinIpc::platform_pipe_name(c.pipe), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PipeName,
    ::testing::Values(NameCase{"ServicePipe", nullptr, WinIpc::kServicePipe, "nimbrabackup-service"},
                      NameCase{"AgentPipe", nullptr, WinIpc::kAgentPipe, "nimbrabackup-ui"},
                      NameCase{"Namespaced", "run7-", WinIpc::kServicePipe, "run7-nimbrabackup-service"},
                      NameCase{"EmptyNamespace", "", WinIpc::kAgentPipe, "nimbrabackup-ui"},
                      NameCase{"BareName", "ns.", "plain", "ns.plain"},
                      NameCase{"PrefixOnlyAtTheStart", nullptr, "x\\\\.\\pipe\\y", "x\\\\.\\pipe\\y"},
                      NameCase{"PrefixWithoutName", nullptr, "\\\\.\\pipe\\", ""}),
    [](const ::testing::TestParamInfo<NameCase>& i) { return std::string(i.param.name); });

TEST(PosixTransport, NamespaceSeparatesServersOfTheSameName) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("ns");
  IpcServer a;
  IpcServer b;
  {
    nimbra_test::ScopedEnv env("NIMBRA_PIPE_NAMESPACE", "side-a-");
    ASSERT_EQ(a.create(name), 0);
  }
  {
    nimbra_test::ScopedEnv env("NIMBRA_PIPE_NAMESPACE", "side-b-");
    ASSERT_EQ(b.create(name), 0) << log.text();
    // A client in namespace b reaches b, not a.
    auto served = std::async(std::launch::async, [&b] {
      std::string m;
      if (!b.accept() || b.read(m) != 0) return std::string("<failed>");
      b.write("from b");
      b.disconnect();
      return m;
    });
    IpcClient client;
    ASSERT_EQ(client.connect(name, 3000), 0);
    ASSERT_EQ(client.write("hi"), 0);
    std::string got;
    ASSERT_EQ(client.read(got), 0);
    EXPECT_EQ(got, "from b");
    EXPECT_EQ(served.get(), "hi");
  }
  {
    nimbra_test::ScopedEnv env("NIMBRA_PIPE_NAMESPACE", "side-c-");
    IpcClient client;
    EXPECT_EQ(client.connect(name, 3000), -1);
  }
}

TEST(PosixTransport, SecondServerReportsAddressInUse) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("dup");
  IpcServer first;
  ASSERT_EQ(first.create(name), 0);
  IpcServer second;
  EXPECT_EQ(second.create(name), -1);
  EXPECT_EQ(log.count("Failed to create named pipe '" + name + "', " + std::to_string(EADDRINUSE)), 1)
      << log.text();
}

TEST(PosixTransport, OverlongNamesFailWithTheirLines) {
  ipc_test::LogCapture log;
  const std::string name = "\\\\.\\pipe\\" + std::string(200, 'n');
  IpcServer server;
  EXPECT_EQ(server.create(name), -1);
  EXPECT_FALSE(server.is_open());
  IpcClient client;
  EXPECT_EQ(client.connect(name, 3000), -1);
  EXPECT_EQ(log.count("Failed to create named pipe '" + name + "', " + std::to_string(ENAMETOOLONG)), 1)
      << log.text();
  EXPECT_EQ(log.count("Failed to connect named pipe '" + name + "'"), 1) << log.text();
}

// Every socket this process holds, by descriptor.
std::vector<int> open_sockets() {
  std::vector<int> fds;
  DIR* dir = ::opendir("/proc/self/fd");
  if (dir == nullptr) return fds;
  const int own = ::dirfd(dir);
  while (dirent* e = ::readdir(dir)) {
    if (e->d_name[0] == '.') continue;
    const int fd = std::stoi(e->d_name);
    if (fd == own) continue;
    char target[256] = {};
    const std::string link = std::string("/proc/self/fd/") + e->d_name;
    const ssize_t n = ::readlink(link.c_str(), target, sizeof target - 1);
    if (n > 0 && std::string(target, static_cast<std::size_t>(n)).rfind("socket:", 0) == 0) fds.push_back(fd);
  }
  ::closedir(dir);
  return fds;
}

TEST(PosixTransport, DescriptorsAreClosedOnExec) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("cloexec");
  const std::vector<int> before = open_sockets();
  IpcServer server;
  ASSERT_EQ(server.create(name), 0);
  IpcClient client;
  ASSERT_EQ(client.connect(name, 3000), 0);
  ASSERT_TRUE(server.accept());
  const std::vector<int> now = open_sockets();
  int ours = 0;
  for (int fd : now) {
    bool old = false;
    for (int b : before) old = old || b == fd;
    if (old) continue;
    ++ours;
    EXPECT_TRUE(::fcntl(fd, F_GETFD) & FD_CLOEXEC) << "descriptor " << fd;
  }
  EXPECT_EQ(ours, 3) << "listener, client end, accepted end";
}

TEST(PosixTransport, ServerReleasesItsDescriptors) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("release");
  const std::size_t before = open_sockets().size();
  {
    IpcServer server;
    ASSERT_EQ(server.create(name), 0);
    IpcClient client;
    ASSERT_EQ(client.connect(name, 3000), 0);
    ASSERT_TRUE(server.accept());
    EXPECT_TRUE(server.disconnect());
    EXPECT_EQ(open_sockets().size(), before + 2);
  }
  EXPECT_EQ(open_sockets().size(), before);
}

}  // namespace
