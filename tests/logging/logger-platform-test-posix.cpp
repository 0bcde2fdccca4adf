// The log file's descriptor must not leak into child processes.
#include <fcntl.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "log-test-util.h"
#include "logger-platform.h"

TEST(LoggerPlatform, LogFileIsNotInheritedByChildren) {
  nimbra_test::TempDir dir;
  FILE* f = vlog::platform::open_append(logtest::wide(dir.file("ui.txt")));
  ASSERT_NE(nullptr, f);
  const int flags = ::fcntl(::fileno(f), F_GETFD);
  std::fclose(f);
  ASSERT_NE(-1, flags);
  EXPECT_TRUE(flags & FD_CLOEXEC);
}
