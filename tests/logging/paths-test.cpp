// The Qt-free folder helpers.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "logging/paths.h"
#include "tests/support/temp-dir.h"

using nimbra_test::ScopedEnv;

namespace {

class CleanPathTest : public ::testing::TestWithParam<std::pair<const wchar_t*, const wchar_t*>> {};

TEST_P(CleanPathTest, ResolvesDotsAndSeparatorsTextually) {
  EXPECT_EQ(std::wstring(GetParam().second), vlog::clean_path(GetParam().first));
}

INSTANTIATE_TEST_SUITE_P(Table, CleanPathTest,
                         ::testing::Values(std::make_pair(L"", L""), std::make_pair(L"/a//b/./c/", L"/a/b/c"),
                                           std::make_pair(L"/opt/agent/bin/../../data", L"/opt/data"),
                                           std::make_pair(L"/..", L"/"), std::make_pair(L"a/../..", L".."),

                                           std::make_pair(L"C:\\ProgramData\\NimbraBackupAgent\\log\\..\\",
                                                          L"C:/ProgramData/NimbraBackupAgent"),
                                           std::make_pair(L"C:/..", L"C:/"),
                                           std::make_pair(L"\\\\server\\share\\x\\..", L"//server/share")));

#ifndef _WIN32
TEST(LogPath, FollowsTheUsersStateFolder) {
  {
    ScopedEnv state("XDG_STATE_HOME", "/tmp/state-here/");
    EXPECT_EQ(L"/tmp/state-here/NimbraBackupAgent/log", vlog::log_path());
  }
  for (const char* unset : {"", static_cast<const char*>(nullptr)}) {
    ScopedEnv state("XDG_STATE_HOME", unset);
    ScopedEnv home("HOME", "/home/s\xC3\xB6\xE6\xBC\xA2\xF0\x9F\x98\x80");  // two, three and four UTF-8 bytes
    EXPECT_EQ(L"/home/s\u00F6\u6F22\U0001F600/.local/state/NimbraBackupAgent/log", vlog::log_path());
  }
}
#else
TEST(LogPath, IsUnderTheCommonApplicationDataFolder) {
  std::wstring base;
  ASSERT_EQ(0, vlog::common_appdata_folder(base));
  EXPECT_EQ(L':', base.size() > 1 ? base[1] : L'\0');
  EXPECT_EQ(vlog::clean_path(base + L"/NimbraBackupAgent/log"), vlog::log_path());
}
#endif

}  // namespace
