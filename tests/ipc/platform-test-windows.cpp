// What only the Windows transport has: the Everyone DACL, the one-instance
// rule against a squatter, the error codes in the lines. Under Wine only the
// documented deviations are tolerated.

#include <windows.h>
// after windows.h
#include <aclapi.h>

#include <gtest/gtest.h>

#include <string>

#include "log-capture.h"
#include "win-ipc.h"

namespace {

using WinIpc::IpcClient;
using WinIpc::IpcServer;

bool under_wine() {
  const HMODULE ntdll = ::GetModuleHandleA("ntdll.dll");
  return ntdll != nullptr && ::GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

TEST(WindowsTransport, PipeGrantsEveryoneReadAndWrite) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("dacl");
  IpcServer server;
  ASSERT_EQ(server.create(name), 0) << log.text();

  PACL dacl = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  const DWORD rc = ::GetNamedSecurityInfoA(name.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                           nullptr, &dacl, nullptr, &descriptor);
  ASSERT_EQ(rc, static_cast<DWORD>(ERROR_SUCCESS));
  ASSERT_NE(dacl, nullptr);
  EXPECT_EQ(dacl->AceCount, 1);

  BYTE everyone[SECURITY_MAX_SID_SIZE];
  DWORD size = sizeof everyone;
  ASSERT_TRUE(::CreateWellKnownSid(WinWorldSid, nullptr, everyone, &size));
  void* ace = nullptr;
  ASSERT_TRUE(::GetAce(dacl, 0, &ace));
  const auto* allowed = static_cast<const ACCESS_ALLOWED_ACE*>(ace);
  EXPECT_EQ(allowed->Header.AceType, ACCESS_ALLOWED_ACE_TYPE);
  // The access mask reads back differently under Wine: compare the SID.
  EXPECT_TRUE(::EqualSid(const_cast<DWORD*>(&allowed->SidStart), everyone));
  ::LocalFree(descriptor);
}

TEST(WindowsTransport, SecondServerFailsWithBusyOrAccessDenied) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("second");
  IpcServer first;
  ASSERT_EQ(first.create(name), 0);
  IpcServer second;
  EXPECT_EQ(second.create(name), -1);
  const std::string line = "Failed to create named pipe '" + name + "', ";
  EXPECT_EQ(log.count(line + std::to_string(ERROR_PIPE_BUSY)) +
                log.count(line + std::to_string(ERROR_ACCESS_DENIED)),
            1)
      << log.text();
}

TEST(WindowsTransport, SquatterWithFreeInstancesStillBlocksCreate) {
  if (under_wine()) GTEST_SKIP() << "Wine ignores FILE_FLAG_FIRST_PIPE_INSTANCE";
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("squat");
  const HANDLE squatter =
      ::CreateNamedPipeA(name.c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_NOWAIT,
                         PIPE_UNLIMITED_INSTANCES, 4096, 4096, 1000, nullptr);
  ASSERT_NE(squatter, INVALID_HANDLE_VALUE);
  IpcServer server;
  EXPECT_EQ(server.create(name), -1);
  EXPECT_EQ(log.count("Failed to create named pipe '" + name + "', "), 1) << log.text();
  ::CloseHandle(squatter);
}

TEST(WindowsTransport, ClientOfAMissingPipeLogsTheName) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("missing");
  IpcClient client;
  EXPECT_EQ(client.connect(name, 3000), -1);
  EXPECT_EQ(log.count("[ERROR][win-ipc.cpp:"), 1) << log.text();
  EXPECT_EQ(log.count("Failed to connect named pipe '" + name + "'"), 1) << log.text();
}

TEST(WindowsTransport, ReadOnAGoneClientLogsBrokenPipe) {
  ipc_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("broken");
  IpcServer server;
  ASSERT_EQ(server.create(name), 0);
  {
    IpcClient client;
    ASSERT_EQ(client.connect(name, 3000), 0);
    ASSERT_TRUE(server.accept());
  }
  std::string m;
  EXPECT_EQ(server.read(m), -1);
  EXPECT_EQ(log.count("read pipe failed, " + std::to_string(ERROR_BROKEN_PIPE)), 1) << log.text();
  EXPECT_TRUE(server.disconnect());
}

}  // namespace
