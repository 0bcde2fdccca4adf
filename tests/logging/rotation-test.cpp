// Size rotation, the numbered files, shared files and many threads at once.
#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "logging/logger.h"
#include "tests/logging/log-test-util.h"

using logtest::read_log;
using logtest::wide;
using nimbra_test::file_exists;
using nimbra_test::TempDir;

namespace {

constexpr std::uint32_t kRotateAt = 1048577;

class RotationTest : public ::testing::Test {
 protected:
  void TearDown() override {
    vlog::shutdown();
    vlog::shutdown("SECOND");
  }
  std::string path() const { return dir.file("ui.txt"); }
  std::string numbered(int i) const { return path() + "_" + std::to_string(i); }
  void start(int keep) { ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(path()), L"", "", keep, 1)); }
  static void say(const char* text, const char* logger = vlog::kDefaultLogger) {
    vlog::log(logger, vlog::kError, vlog::kDefaultComponent, "%s", text);
  }
  // Enough text to rotate once, in lines of the longest length a line may
  // have: the first tagged with `id`, the others untagged, the last one
  // making the rotation.
  static void huge_line(int id) {
    say(("line " + std::to_string(id) + " " + std::string(4000, 'p')).c_str());
    const std::string filler(vlog::kMaxLineBytes - 64, 'p');
    for (int i = 0; i < 1000; ++i) {
      const std::uint32_t before = vlog::written();
      say(filler.c_str());
      if (vlog::written() < before) return;  // rotated (or tried to)
    }
    ADD_FAILURE() << "no rotation";
  }
  // The id of the only line in the file, or -1.
  static int id_in(const std::string& file) {
    const std::string text = read_log(file);
    const auto at = text.find("line ");
    if (at == std::string::npos || text.find("line ", at + 1) != std::string::npos) return -1;
    return std::atoi(text.c_str() + at + 5);
  }

  TempDir dir;
};

// ---- the boundary ----

// Ten characters with the line feed, in UTF-16 units: "ten c", then three
// characters of 2, 3 and 4 UTF-8 bytes (1, 1 and 2 units).
constexpr const char* kText = "ten c\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";

// The file is primed so that `written` starts at kRotateAt - line + delta:
// one short of the limit, exactly at it and one past it.
class BoundaryTest : public RotationTest, public ::testing::WithParamInterface<long> {};

TEST_P(BoundaryTest, RotatesOnceWrittenReachesTheLimit) {
  const long delta = GetParam();
  const bool rotates = delta >= 0;
  // Measure one line in a file of its own (a new Windows text file may start
  // with a byte-order mark); `written` counts UTF-16 units, not bytes.
  TempDir probe_dir;
  ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(probe_dir.file("probe.txt")), L"", "", 50, 1));
  const std::uint32_t empty = vlog::written();
  say(kText);
  const std::uint32_t line = vlog::written() - empty;
  vlog::shutdown();
  const std::string probe = read_log(probe_dir.file("probe.txt"));
  ASSERT_GE(line, 10u);
  EXPECT_EQ(probe.size() - 9 + 4, line);
  EXPECT_EQ(line, vlog::utf16_length(probe));

  const auto primed = static_cast<std::uint32_t>(static_cast<long>(kRotateAt - line) + delta);
  nimbra_test::write_file(path(), std::string(primed, 'o'));
  start(50);
  ASSERT_EQ(primed, vlog::written());
  say(kText);

  EXPECT_EQ(rotates ? 0u : primed + line, vlog::written());
  ASSERT_EQ(rotates, file_exists(numbered(0)));
  if (!rotates) return;
  const std::string rotated = read_log(numbered(0));
  EXPECT_EQ(primed + line, vlog::utf16_length(rotated));
  EXPECT_THAT(rotated, ::testing::EndsWith(std::string(kText) + "\n"));
  say("after");  // goes to the fresh file
  EXPECT_THAT(read_log(path()), ::testing::EndsWith("after\n"));
  EXPECT_FALSE(file_exists(numbered(1)));
}

INSTANTIATE_TEST_SUITE_P(Limit, BoundaryTest, ::testing::Values(-1, 0, 1));

// ---- numbered files ----

// Files to keep, lines that each make a rotation, numbered files kept.
using KeepCase = std::tuple<int, int, int>;
class KeepTest : public RotationTest, public ::testing::WithParamInterface<KeepCase> {};

// P_0 is the newest; with the renames before the removal, P_(keep-1) is made
// and removed again on every rotation (keep 1 renames P to P_0 only).
TEST_P(KeepTest, RotationsLeaveTheNewestFilesInOrder) {
  const auto [keep, lines, kept] = GetParam();
  start(keep);
  for (int id = 1; id <= lines; ++id) huge_line(id);
  for (int i = 0; i < kept; ++i) EXPECT_EQ(lines - i, id_in(numbered(i))) << "file _" << i;
  EXPECT_FALSE(file_exists(numbered(kept)));
  EXPECT_FALSE(file_exists(numbered(kept + 1)));
  EXPECT_EQ("", read_log(path()));
}

INSTANTIATE_TEST_SUITE_P(Counts, KeepTest, ::testing::Values(KeepCase{3, 5, 2}, KeepCase{1, 3, 1}));

TEST_F(RotationTest, RenamesNeverReplaceAndAFailedRotationDropsLaterLines) {
  nimbra_test::write_file(numbered(0), "old zero\n");
  nimbra_test::write_file(numbered(1), "old one\n");
  nimbra_test::write_file(numbered(2), "stray\n");
  start(3);
  huge_line(1);  // every rename meets an existing name; P -> P_0 fails too
  EXPECT_EQ("old zero\n", read_log(numbered(0)));
  EXPECT_EQ("old one\n", read_log(numbered(1)));
  EXPECT_FALSE(file_exists(numbered(2)));  // the removal still ran
  EXPECT_EQ(1, id_in(path()));
  // The stream stays closed: later lines are dropped, quietly.
  say("dropped");
  EXPECT_THAT(read_log(path()), ::testing::Not(::testing::HasSubstr("dropped")));
  // A new init opens the file again; it is still over the limit, so the
  // next line rotates, and this time the names are free.
  vlog::shutdown();
  start(3);
  say("back");
  EXPECT_THAT(read_log(numbered(0)), ::testing::EndsWith("back\n"));
  EXPECT_EQ("old zero\n", read_log(numbered(1)));
  EXPECT_FALSE(file_exists(numbered(2)));
  EXPECT_EQ("", read_log(path()));
}

// ---- two logger states on one file ----

class SharersTest : public RotationTest, public ::testing::WithParamInterface<int> {};

TEST_P(SharersTest, AStateThatShareTheFileFollowsTheRotationOnlyFromTwoSharers) {
#ifdef _WIN32
  GTEST_SKIP() << "a C runtime stream does not let another handle rename its file";
#endif
  const int sharers = GetParam();
  ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(path()), L"", "", 50, sharers));
  ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(path()), L"", "", 50, sharers, "SECOND"));
  huge_line(1);  // the first state rotates
  ASSERT_TRUE(file_exists(numbered(0)));
  say("from second", "SECOND");
  // From two sharers the second state reopens the fresh file; with one it
  // keeps writing the renamed file through its old stream.
  EXPECT_EQ(sharers < 2, read_log(path()).empty());
  EXPECT_THAT(read_log(sharers >= 2 ? path() : numbered(0)), ::testing::EndsWith("from second\n"));
}

INSTANTIATE_TEST_SUITE_P(Counts, SharersTest, ::testing::Values(1, 2));

// ---- threads ----

TEST_F(RotationTest, FourThreadsLoseAndInterleaveNoLine) {
  constexpr int kThreads = 4, kLines = 50000;
  start(50);
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t)
    threads.emplace_back([t] {
      for (int n = 0; n < kLines; ++n) LOG_ERROR(vlog::kDefaultComponent, "thread %d line %06d end", t, n);
    });
  for (auto& th : threads) th.join();
  vlog::shutdown();
  ASSERT_TRUE(file_exists(numbered(0))) << "200,000 lines should have rotated at least once";
  // Oldest file first, so that every thread's lines come in order.
  std::string all;
  for (int i = 49; i >= 0; --i) all += read_log(numbered(i));
  std::array<int, kThreads> next{};
  long total = 0;
  for (const std::string& line : logtest::split_lines(all + read_log(path()))) {
    int t = -1, n = -1;
    char end[8] = {};
    const auto brace = line.find("} thread ");
    ASSERT_NE(std::string::npos, brace) << line;
    ASSERT_EQ(3, std::sscanf(line.c_str() + brace, "} thread %d line %d %7s", &t, &n, end)) << line;
    ASSERT_TRUE(t >= 0 && t < kThreads) << line;
    ASSERT_EQ(next[static_cast<std::size_t>(t)]++, n) << "thread " << t << ": " << line;
    ASSERT_STREQ("end", end) << line;
    // Exactly one header per line: a second one means two lines ran together.
    ASSERT_EQ(line.find("[ERROR]"), line.rfind("[ERROR]")) << line;
    ++total;
  }
  EXPECT_EQ(long{kThreads} * kLines, total);
}

}  // namespace
