// The Qt-free folder helpers.
#include <gtest/gtest.h>

#include <string>

#include "paths.h"
#include "support/temp-dir.h"

using nimbra_test::ScopedEnv;

namespace {

struct CleanCase {
  const wchar_t* in;
  const wchar_t* out;
};

class CleanPathTest : public ::testing::TestWithParam<CleanCase> {};

TEST_P(CleanPathTest, ResolvesDotsAndSeparatorsTextually) {
  EXPECT_EQ(std::wstring(GetParam().out), vlog::clean_path(GetParam().in));
}

INSTANTIATE_TEST_SUITE_P(
    Table, CleanPathTest,
    ::testing::Values(CleanCase{L"", L""}, CleanCase{L"/a/b/../c", L"/a/c"},
                      CleanCase{L"/a//b/./c/", L"/a/b/c"},
                      CleanCase{L"/opt/agent/bin/../resource", L"/opt/agent/resource"},
                      CleanCase{L"/opt/agent/bin/../../data", L"/opt/data"}, CleanCase{L"/..", L"/"},
                      CleanCase{L"a/../..", L".."}, CleanCase{L".", L"."}, CleanCase{L"./", L"."},
                      CleanCase{L"C:\\ProgramData\\NimbraBackupAgent\\log\\..\\",
                                L"C:/ProgramData/NimbraBackupAgent"},
                      CleanCase{L"C:/..", L"C:/"}, CleanCase{L"\\\\server\\share\\x\\..", L"//server/share"},
                      CleanCase{L"/var/lib/NimbraBackupAgent/log/../", L"/var/lib/NimbraBackupAgent"}));

TEST(CommonAppData, GivesAnAbsoluteFolder) {
  std::wstring folder;
  ASSERT_EQ(0, vlog::common_appdata_folder(folder));
  ASSERT_FALSE(folder.empty());
#ifdef _WIN32
  EXPECT_EQ(L':', folder.size() > 1 ? folder[1] : L'\0');
#else
  EXPECT_EQ(L"/var/lib", folder);
#endif
}

#ifndef _WIN32
TEST(LogPath, FollowsTheUsersStateFolder) {
  {
    ScopedEnv state("XDG_STATE_HOME", "/tmp/state-here/");
    EXPECT_EQ(L"/tmp/state-here/NimbraBackupAgent/log", vlog::log_path());
  }
  {
    ScopedEnv state("XDG_STATE_HOME", "");
    ScopedEnv home("HOME", "/home/someone");
    EXPECT_EQ(L"/home/someone/.local/state/NimbraBackupAgent/log", vlog::log_path());
  }
  {
    ScopedEnv state("XDG_STATE_HOME", nullptr);
    ScopedEnv home("HOME", "/home/other");
    EXPECT_EQ(L"/home/other/.local/state/NimbraBackupAgent/log", vlog::log_path());
  }
}
#else
TEST(LogPath, IsUnderTheCommonApplicationDataFolder) {
  std::wstring base;
  ASSERT_EQ(0, vlog::common_appdata_folder(base));
  EXPECT_EQ(vlog::clean_path(base + L"/NimbraBackupAgent/log"), vlog::log_path());
}
#endif

}  // namespace
