// The log file's descriptor must not leak into child processes.
#include <fcntl.h>

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
  const int flags = ::fcntl(::fileno(f), F_GETFD);
  std::fclose(f);
  ASSERT_NE(-1, flags);
  EXPECT_TRUE(flags & FD_CLOEXEC);
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
