// The log file's handle must not leak into child processes.
#include <windows.h>

#include <io.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "logging/logger-platform.h"
#include "tests/logging/log-test-util.h"

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
