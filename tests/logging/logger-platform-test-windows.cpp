// The log file's handle must not leak into child processes.
#include <windows.h>

#include <io.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "log-test-util.h"
#include "logger-platform.h"
#include "support/temp-dir.h"

namespace {

TEST(LoggerPlatform, LogFileIsNotInheritedByChildren) {
  nimbra_test::TempDir dir;
  FILE* f = vlog::platform::open_append(logtest::wide(dir.file("ui.txt")));
  ASSERT_NE(nullptr, f);
  DWORD flags = 0;
  const BOOL ok = ::GetHandleInformation(reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(f))), &flags);
  std::fclose(f);
  ASSERT_TRUE(ok);
  EXPECT_EQ(0u, flags & HANDLE_FLAG_INHERIT);
}

TEST(LoggerPlatform, RenameRefusesAnExistingTarget) {
  nimbra_test::TempDir dir;
  nimbra_test::write_file(dir.file("a"), "A");
  nimbra_test::write_file(dir.file("b"), "B");
  EXPECT_FALSE(vlog::platform::rename_no_replace(logtest::wide(dir.file("a")), logtest::wide(dir.file("b"))));
  EXPECT_EQ("B", nimbra_test::read_file(dir.file("b")));
  EXPECT_TRUE(vlog::platform::rename_no_replace(logtest::wide(dir.file("a")), logtest::wide(dir.file("c"))));
  EXPECT_EQ("A", nimbra_test::read_file(dir.file("c")));
  EXPECT_FALSE(nimbra_test::file_exists(dir.file("a")));
}

}  // namespace
