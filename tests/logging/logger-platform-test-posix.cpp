// The log file's descriptor must not leak into child processes.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "logging/logger-platform.h"
#include "logging/logger.h"
#include "tests/logging/log-test-util.h"

TEST(LoggerPlatform, LogFileIsNotInheritedByChildren) {
  nimbra_test::TempDir dir;
  // Its name in UTF-8 on disk, whatever the characters (two, three and four bytes).
  FILE* f = vlog::platform::open_append(logtest::wide(dir.path()) + L"/\u00F6\u6F22\U0001F600.txt");
  ASSERT_NE(nullptr, f);
  EXPECT_TRUE(nimbra_test::file_exists(dir.file("\xC3\xB6\xE6\xBC\xA2\xF0\x9F\x98\x80.txt")));
  const int flags = ::fcntl(::fileno(f), F_GETFD);
  std::fclose(f);
  ASSERT_NE(-1, flags);
  EXPECT_TRUE(flags & FD_CLOEXEC);
}

namespace {

mode_t mode_of(const std::string& path) {
  struct stat st {};
  return ::lstat(path.c_str(), &st) == 0 ? (st.st_mode & 07777) : 0;
}

TEST(LoggerPlatform, LogFileIsCreatedForTheUserOnlyAndAnOldOneTightened) {
  nimbra_test::TempDir dir;
  const std::string path = dir.file("ui.txt");
  const mode_t old_mask = ::umask(0);  // the mode must not depend on the umask
  FILE* f = vlog::platform::open_append(logtest::wide(path));
  ::umask(old_mask);
  ASSERT_NE(nullptr, f);
  std::fclose(f);
  EXPECT_EQ(mode_of(path), 0600u);
  ASSERT_EQ(::chmod(path.c_str(), 0644), 0);
  f = vlog::platform::open_append(logtest::wide(path));
  ASSERT_NE(nullptr, f);
  std::fclose(f);
  EXPECT_EQ(mode_of(path), 0600u);
}

TEST(LoggerPlatform, SymbolicLinkOrFifoInThePlaceOfTheLogIsRefused) {
  nimbra_test::TempDir dir;
  const std::string target = dir.file("elsewhere.txt");
  nimbra_test::write_file(target, "precious\n");
  const std::string link = dir.file("ui.txt");
  ASSERT_EQ(::symlink(target.c_str(), link.c_str()), 0);
  EXPECT_EQ(vlog::init(vlog::kRotatingFile, logtest::wide(link), L"", "", 50, 1), -1);
  LOG_ERROR(vlog::kDefaultComponent, "must not land in the link's target");
  vlog::shutdown();
  EXPECT_EQ(nimbra_test::read_file(target), "precious\n");
  // A FIFO would block a plain open for ever.
  const std::string fifo = dir.file("fifo.txt");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EQ(vlog::platform::open_append(logtest::wide(fifo)), nullptr);
}

// Another user made the log folder or the file first (0666): nothing is
// written there, and standard error says so once.
TEST(LoggerPlatform, AFolderOrFileOfAnotherUserIsRefused) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to give a file to another user";
  nimbra_test::TempDir dir;
  const std::string theirs = dir.file("theirs");
  ASSERT_EQ(::mkdir(theirs.c_str(), 0777), 0);
  ASSERT_EQ(::chown(theirs.c_str(), 65534, 65534), 0);
  const std::string planted = dir.file("ui.txt");
  nimbra_test::write_file(planted, "");
  ASSERT_EQ(::chmod(planted.c_str(), 0666), 0);
  ASSERT_EQ(::chown(planted.c_str(), 65534, 65534), 0);
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(vlog::platform::open_append(logtest::wide(theirs + "/ui.txt")), nullptr);
  EXPECT_EQ(vlog::platform::open_append(logtest::wide(planted)), nullptr);
  const std::string said = ::testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("belongs to uid 65534"), std::string::npos) << said;
  EXPECT_EQ(said.find('\n'), said.size() - 1) << "one line: " << said;
  EXPECT_EQ(nimbra_test::read_file(planted), "");
}

}  // namespace
