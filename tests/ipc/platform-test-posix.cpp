// What only the POSIX transport has: socket names and namespaces, errno
// values in the lines, close-on-exec descriptors that are all given back.

#include <fcntl.h>
#include <sys/resource.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <set>
#include <string>

#include "ipc/win-ipc.h"
#include "tests/ipc/pipes.h"
#include "tests/support/temp-dir.h"

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
  nimbra_test::ScopedEnv env("NIMBRA_PIPE_NAMESPACE", GetParam().ns);
  EXPECT_EQ(WinIpc::platform_pipe_name(GetParam().pipe), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PipeName,
    ::testing::Values(NameCase{"ServicePipe", nullptr, WinIpc::kServicePipe, "nimbrabackup-service"},
                      NameCase{"Namespaced", "run7-", WinIpc::kAgentPipe, "run7-nimbrabackup-ui"},
                      NameCase{"EmptyNamespace", "", WinIpc::kAgentPipe, "nimbrabackup-ui"},
                      NameCase{"BareName", "ns.", "plain", "ns.plain"},
                      NameCase{"PrefixOnlyAtTheStart", nullptr, "x\\\\.\\pipe\\y", "x\\\\.\\pipe\\y"},
                      NameCase{"PrefixWithoutName", nullptr, "\\\\.\\pipe\\", ""}),
    [](const ::testing::TestParamInfo<NameCase>& i) { return std::string(i.param.name); });

TEST(PosixTransport, NamespaceSeparatesServersOfTheSameName) {
  nimbra_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("ns");
  IpcServer mine;
  ASSERT_EQ(mine.create(name), 0);
  nimbra_test::ScopedEnv other("NIMBRA_PIPE_NAMESPACE", "side-b-");
  EXPECT_EQ(IpcClient().connect(name, 3000), -1) << "another namespace does not reach this server";
  IpcServer theirs;
  EXPECT_EQ(theirs.create(name), 0) << log.text();
  IpcClient client;
  ASSERT_EQ(client.connect(name, 3000), 0);
  EXPECT_TRUE(theirs.accept());
}

TEST(PosixTransport, OverlongNamesFailWithTheirLines) {
  nimbra_test::LogCapture log;
  const std::string overlong = "\\\\.\\pipe\\" + std::string(200, 'n');
  EXPECT_EQ(IpcServer().create(overlong), -1);
  EXPECT_EQ(IpcClient().connect(overlong, 3000), -1);
  EXPECT_EQ(log.count("Failed to create named pipe '" + overlong + "', " + std::to_string(ENAMETOOLONG)), 1)
      << log.text();
  EXPECT_EQ(log.count("Failed to connect named pipe '" + overlong + "'"), 1) << log.text();
}

// Every descriptor this process holds (without the listing's own one).
std::set<int> open_fds() {
  std::set<int> fds;
  for (const auto& e : std::filesystem::directory_iterator("/proc/self/fd"))
    fds.insert(std::stoi(e.path().filename()));
  for (auto it = fds.begin(); it != fds.end();)
    it = ::fcntl(*it, F_GETFD) == -1 ? fds.erase(it) : std::next(it);
  return fds;
}

TEST(PosixTransport, DescriptorsAreClosedOnExecAndGivenBack) {
  nimbra_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("fds");
  const std::set<int> before = open_fds();
  {
    IpcServer server;
    ASSERT_EQ(server.create(name), 0);
    IpcClient client;
    ASSERT_EQ(client.connect(name, 3000), 0);
    ASSERT_TRUE(server.accept());
    const std::set<int> now = open_fds();
    EXPECT_EQ(now.size(), before.size() + 3) << "listener, client end, accepted end";
    for (int fd : now) EXPECT_TRUE(before.count(fd) != 0 || (::fcntl(fd, F_GETFD) & FD_CLOEXEC) != 0) << fd;
    EXPECT_TRUE(server.disconnect());
    EXPECT_EQ(open_fds().size(), before.size() + 2);
  }
  EXPECT_EQ(open_fds(), before);
}

// With file handles exhausted accept fails at once, again and again: each
// round waits before it returns (50 ms, doubling) and one line is written,
// so a server loop never spins and never floods the log.
TEST(PosixTransport, FailingAcceptBacksOffAndLogsOnce) {
  nimbra_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("emfile");
  IpcServer server;
  ASSERT_EQ(server.create(name), 0);
  IpcClient client;
  ASSERT_EQ(client.connect(name, 3000), 0);  // waits in the backlog
  rlimit old{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &old), 0);
  const int lowest_free = ::dup(0);  // the number the next descriptor gets
  ::close(lowest_free);
  rlimit low = old;
  low.rlim_cur = static_cast<rlim_t>(lowest_free);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &low), 0);
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(server.accept());
  const auto waited = std::chrono::steady_clock::now() - start;
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &old), 0);
  EXPECT_GE(waited, std::chrono::milliseconds(50 + 100 + 200 + 400));
  EXPECT_EQ(log.count("connect pipe failed"), 1) << log.text();
  EXPECT_TRUE(server.accept()) << "accepts again once handles are free";
}

}  // namespace
