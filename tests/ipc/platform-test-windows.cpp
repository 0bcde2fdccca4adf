// What only the Windows transport has: the Everyone DACL and the
// one-instance rule against a squatter. Under Wine only the documented
// deviations are tolerated (a second server on a taken name is the agent's
// IpcServerTest case, on every platform).

#include <windows.h>
// after windows.h
#include <aclapi.h>

#include <gtest/gtest.h>

#include <string>

#include "ipc/win-ipc.h"
#include "tests/ipc/pipes.h"

namespace {

TEST(WindowsTransport, PipeGrantsEveryoneReadAndWrite) {
  nimbra_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("dacl");
  WinIpc::IpcServer server;
  ASSERT_EQ(server.create(name), 0) << log.text();
  PACL dacl = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  ASSERT_EQ(::GetNamedSecurityInfoA(name.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                    &dacl, nullptr, &descriptor),
            static_cast<DWORD>(ERROR_SUCCESS));
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

TEST(WindowsTransport, SquatterWithFreeInstancesStillBlocksCreate) {
  const HMODULE ntdll = ::GetModuleHandleA("ntdll.dll");
  if (ntdll != nullptr && ::GetProcAddress(ntdll, "wine_get_version") != nullptr)
    GTEST_SKIP() << "Wine ignores FILE_FLAG_FIRST_PIPE_INSTANCE";
  nimbra_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("squat");
  const HANDLE squatter =
      ::CreateNamedPipeA(name.c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_NOWAIT,
                         PIPE_UNLIMITED_INSTANCES, 4096, 4096, 1000, nullptr);
  ASSERT_NE(squatter, INVALID_HANDLE_VALUE);
  WinIpc::IpcServer server;
  EXPECT_EQ(server.create(name), -1);
  EXPECT_EQ(log.count("Failed to create named pipe '" + name + "', "), 1) << log.text();
  ::CloseHandle(squatter);
}

// Before a request is written the client knows who serves the pipe: here
// this process, so this user (a squatter of another user would not be).
TEST(WindowsTransport, ClientNamesTheServersUser) {
  nimbra_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("owner");
  WinIpc::IpcServer server;
  ASSERT_EQ(server.create(name), 0) << log.text();
  WinIpc::IpcClient client;
  ASSERT_EQ(client.connect(name, 3000), 0) << log.text();
  const WinIpc::Peer peer = client.peer();
  EXPECT_TRUE(peer.known);
  EXPECT_EQ(peer.pid, static_cast<long>(::GetCurrentProcessId()));
  EXPECT_EQ(peer.uid, WinIpc::current_user());
  EXPECT_TRUE(WinIpc::trusted_peer(peer));
  WinIpc::Peer stranger = peer;
  stranger.uid = WinIpc::current_user() + 1;
  EXPECT_FALSE(WinIpc::trusted_peer(stranger));
}

}  // namespace
