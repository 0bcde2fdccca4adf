// The working space.
#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "logging/paths.h"
#include "tests/support/temp-dir.h"
#include "vantor-core/lib/env.h"
#include "vantor-core/lib/exception.h"

using nimbra_test::ScopedEnv;

namespace {

// A folder query that fails the way the system call does.
std::uint32_t g_fail_error = 0;
long failing_query(std::wstring& folder) {
  folder.clear();
  vantor::detail::set_last_os_error(g_fail_error);
  return -2147024891L;  // E_ACCESSDENIED as a signed 32-bit value
}

TEST(WorkingSpace, VariableSetWinsEvenOverAFailingFolderQuery) {
  ScopedEnv ws("NIMBRA_WORKING_SPACE", "/tmp/nimbra-ws");
  EXPECT_EQ(L"/tmp/nimbra-ws", vantor::get_working_space());
  EXPECT_EQ(L"/tmp/nimbra-ws", vantor::detail::get_working_space_with(&failing_query));
#ifndef _WIN32  // (Windows' narrow environment is in the ANSI code page, not UTF-8.)
  ScopedEnv utf8("NIMBRA_WORKING_SPACE", "/tmp/caf\xC3\xA9\xF0\x9F\x98\x80");
  EXPECT_EQ(L"/tmp/caf\u00E9\U0001F600", vantor::get_working_space());
  EXPECT_EQ("/tmp/caf\xC3\xA9\xF0\x9F\x98\x80", vantor::get_working_space_utf8());
#endif
}

TEST(WorkingSpace, EmptyOrUnsetVariableFallsBackToTheApplicationDataFolder) {
  std::wstring base;
  ASSERT_EQ(0, vlog::common_appdata_folder(base));
#ifdef _WIN32
  const std::wstring expected = base + L"\\NimbraBackupAgent";
#else
  const std::wstring expected = L"/var/lib/NimbraBackupAgent";
#endif
  for (const char* value : {"", static_cast<const char*>(nullptr)}) {
    ScopedEnv ws("NIMBRA_WORKING_SPACE", value);
    EXPECT_EQ(expected, vantor::get_working_space());
    // No doubled separator after a folder that ends in one.
    EXPECT_EQ(L"/srv/appdata/NimbraBackupAgent",
              vantor::detail::get_working_space_with([](std::wstring& folder) {
                folder = L"/srv/appdata/";
                return 0L;
              }));
  }
}

TEST(WorkingSpace, FailedFolderQueryRaisesWithTheTranslatedError) {
  ScopedEnv ws("NIMBRA_WORKING_SPACE", nullptr);
#ifdef _WIN32
  g_fail_error = 5;  // ERROR_ACCESS_DENIED -> 13
#else
  g_fail_error = 13;  // EACCES
#endif
  try {
    vantor::detail::get_working_space_with(&failing_query);
    FAIL() << "no raise";
  } catch (const ravel::exception::NoPerm& e) {
    EXPECT_EQ(13, e.code);
    const std::regex form(
        R"(.*env\.cpp:\d+\((\d+)\) \[win_last_err: (\d+)\] SHGetFolderPathW, error\[(-?\d+)\])");
    std::smatch m;
    ASSERT_TRUE(std::regex_match(e.message, m, form)) << e.message;
    EXPECT_EQ(std::to_string(g_fail_error), m[2].str());
    EXPECT_EQ("-2147024891", m[3].str());
    EXPECT_FALSE(e.stack.empty());
  }
}

}  // namespace
