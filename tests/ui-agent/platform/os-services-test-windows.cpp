// Windows (under Wine in CI): the version checks, the taskbar value in the
// registry, Winsock, the mouse hook and the machine-wide mutex.
// Winsock 2 before anything that may bring in the old Winsock.
#include <winsock2.h>

#include <windows.h>

#include <gtest/gtest.h>

#include "ui-agent/platform/os-services.h"
#include "widgets/machine-lock.h"

namespace {

const wchar_t* kPersonalize = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";

// Puts the user's own value back after the test.
class ThemeValue : public ::testing::Test {
 protected:
  void SetUp() override { had_ = os_services::read_system_uses_light_theme(old_); }
  void TearDown() override {
    if (had_)
      set(old_);
    else
      ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kPersonalize, L"SystemUsesLightTheme");
  }
  static void set(DWORD v) {
    ASSERT_EQ(
        ::RegSetKeyValueW(HKEY_CURRENT_USER, kPersonalize, L"SystemUsesLightTheme", REG_DWORD, &v, sizeof(v)),
        ERROR_SUCCESS);
  }
  bool had_ = false;
  unsigned long old_ = 0;
};

TEST(AgentPlatformWindows, VersionChecksAgree) {
  const os_services::WindowsVersion v = os_services::running_windows_version();
  ASSERT_GE(v.major, 6u);
  EXPECT_TRUE(os_services::windows_at_least(v.major));
  EXPECT_TRUE(os_services::windows_at_least(6));
  EXPECT_FALSE(os_services::windows_at_least(v.major + 1));
}

TEST_F(ThemeValue, ReadBackAsWrittenAndAbsentWhenDeleted) {
  unsigned long value = 9;
  set(1);
  ASSERT_TRUE(os_services::read_system_uses_light_theme(value));
  EXPECT_EQ(value, 1u);
  set(0);
  ASSERT_TRUE(os_services::read_system_uses_light_theme(value));
  EXPECT_EQ(value, 0u);
  ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kPersonalize, L"SystemUsesLightTheme");
  value = 9;
  EXPECT_FALSE(os_services::read_system_uses_light_theme(value));
  EXPECT_EQ(value, 9u);
  // A string where a number belongs reads as absent.
  ::RegSetKeyValueW(HKEY_CURRENT_USER, kPersonalize, L"SystemUsesLightTheme", REG_SZ, L"1", 4);
  EXPECT_FALSE(os_services::read_system_uses_light_theme(value));
}

TEST(AgentPlatformWindows, SocketLibraryStartsAndStops) {
  ASSERT_TRUE(os_services::start_process_services());
  const SOCKET s = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  EXPECT_NE(s, INVALID_SOCKET);
  if (s != INVALID_SOCKET) ::closesocket(s);
  EXPECT_EQ(::SetErrorMode(SEM_FAILCRITICALERRORS) & SEM_FAILCRITICALERRORS,
            static_cast<UINT>(SEM_FAILCRITICALERRORS));
  os_services::stop_process_services();
}

TEST(AgentPlatformWindows, MouseHookInstallsAndRemoves) {
  os_services::MouseHook hook;
  ASSERT_TRUE(hook.install([](int, int) {}));
  EXPECT_TRUE(hook.installed());
  EXPECT_TRUE(hook.install([](int, int) {}));  // again: still the one hook
  hook.remove();
  EXPECT_FALSE(hook.installed());
  hook.remove();  // harmless
}

TEST(AgentPlatformWindows, MachineMutexOwnedOnceThenFree) {
  MachineLock first("nimbra-platform-test-lock");
  ASSERT_EQ(first.acquire(), MachineLock::Acquired);
  EXPECT_EQ(MachineLock("nimbra-platform-test-lock").acquire(), MachineLock::HeldBySameUser);
  first.release();
  MachineLock again("nimbra-platform-test-lock");
  EXPECT_EQ(again.acquire(), MachineLock::Acquired);
}

}  // namespace
