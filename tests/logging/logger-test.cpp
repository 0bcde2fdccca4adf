// The logger's line format, thresholds, trace tag and outputs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <string>

#include "log-test-util.h"
#include "logger.h"
#include "support/temp-dir.h"

using logtest::read_log;
using logtest::wide;
using nimbra_test::ScopedEnv;
using nimbra_test::TempDir;

namespace {

class LoggerTest : public ::testing::Test {
 protected:
  void TearDown() override { vlog::shutdown(); }

  // Output 4 into "ui.txt" of the scratch folder, with `settings` as the
  // content of agent.debug (nullptr: no settings file at all).
  void start(const char* settings = nullptr) {
    std::wstring settings_path;
    if (settings) {
      nimbra_test::write_file(dir.file("agent.debug"), settings);
      settings_path = wide(dir.file("agent.debug"));
    }
    ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(log_file()), settings_path, "", 50, 1));
  }
  std::string log_file() const { return dir.file("ui.txt"); }
  std::string text() const { return read_log(log_file()); }

  TempDir dir;
};

TEST_F(LoggerTest, HeaderCarriesBaseNameLineProcessThreadAndEmptyTrace) {
  ScopedEnv trace("VANTOR_LOG_TRACE", nullptr);
  start();
  const int line = __LINE__ + 1;
  LOG_ERROR(vlog::kDefaultComponent, "value %d and %s", 42, "text");
  const std::string expected = "[ERROR][logger-test.cpp:" + std::to_string(line) + "](" +
                               std::to_string(vlog::current_pid()) + "," +
                               std::to_string(vlog::current_tid()) + "){} value 42 and text\n";
  const std::string got = text();
  EXPECT_TRUE(std::regex_match(got, std::regex(std::string(logtest::kStampPattern) + R"(\[ERROR\][^\n]*\n)")))
      << got;
  ASSERT_GE(got.size(), expected.size());
  EXPECT_EQ(expected, got.substr(got.size() - expected.size()));
}

TEST_F(LoggerTest, WarningTagHasSevenLetters) {
  start();
  LOG_WARN(vlog::kWinIpc, "careful");
  EXPECT_THAT(text(), ::testing::HasSubstr("[WARNIN][logger-test.cpp:"));
}

TEST_F(LoggerTest, TraceTagIsReadAfreshForEveryLine) {
  start();
  {
    ScopedEnv trace("VANTOR_LOG_TRACE", "abc");
    LOG_ERROR(vlog::kDefaultComponent, "first");
  }
  {
    ScopedEnv trace("VANTOR_LOG_TRACE", nullptr);
    LOG_ERROR(vlog::kDefaultComponent, "second");
  }
  {
    ScopedEnv trace("VANTOR_LOG_TRACE", "run-7");
    LOG_ERROR(vlog::kDefaultComponent, "third");
  }
  const auto lines = logtest::split_lines(text());
  ASSERT_EQ(3u, lines.size());
  EXPECT_THAT(lines[0], ::testing::EndsWith("){abc} first"));
  EXPECT_THAT(lines[1], ::testing::EndsWith("){} second"));
  EXPECT_THAT(lines[2], ::testing::EndsWith("){run-7} third"));
}

TEST_F(LoggerTest, DebugLinesCarryMillisecondsAfterTheStamp) {
  start("default_component = 7\n");
  LOG_DEBUG(vlog::kDefaultComponent, "fine detail");
  LOG_INFO(vlog::kDefaultComponent, "plain detail");
  const auto lines = logtest::split_lines(text());
  ASSERT_EQ(2u, lines.size());
  std::smatch m;
  ASSERT_TRUE(std::regex_match(
      lines[0], m,
      std::regex(std::string("(") + logtest::kStampPattern + R"():(\d{1,3}) \[DEBUG\]\[.*\} fine detail)")))
      << lines[0];
  EXPECT_LT(std::stoi(m[2].str()), 1000);
  // Below level 7 the message follows the stamp directly.
  EXPECT_TRUE(std::regex_match(
      lines[1], std::regex(std::string(logtest::kStampPattern) + R"(\[INFO\]\[.*\} plain detail)")))
      << lines[1];
}

TEST_F(LoggerTest, LineFeedIsAddedOnlyWhenMissing) {
  start();
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "no newline %d", 1);
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "one newline %d\n", 2);
  const std::string got = text();
  EXPECT_THAT(got, ::testing::HasSubstr("no newline 1\n"));
  EXPECT_THAT(got, ::testing::HasSubstr("one newline 2\n"));
  EXPECT_THAT(got, ::testing::Not(::testing::HasSubstr("\n\n")));
  EXPECT_EQ(2u, logtest::split_lines(got).size());
}

TEST_F(LoggerTest, PrefixGoesBetweenStampAndMessage) {
  ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(log_file()), L"", "svc| ", 50, 1));
  LOG_ERROR(vlog::kDefaultComponent, "hello");
  EXPECT_TRUE(
      std::regex_search(text(), std::regex(std::string("^") + logtest::kStampPattern + R"(svc\| \[ERROR\])")))
      << text();
}

TEST_F(LoggerTest, WrittenCountsCharactersNotBytesAndStartsFromTheFileSize) {
  nimbra_test::write_file(log_file(), std::string(1234, 'x'));
  start();
  EXPECT_EQ(1234u, vlog::written());
  // Three characters of two, three and four UTF-8 bytes; the last one takes
  // two UTF-16 code units.
  LOG_ERROR(vlog::kDefaultComponent, "%s", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
  const std::string got = text();
  const std::string line = got.substr(1234);
  EXPECT_EQ(1234u + vlog::utf16_length(line), vlog::written());
  EXPECT_EQ(line.size() - 9 + 4, vlog::utf16_length(line));  // 9 bytes, 4 units
}

TEST_F(LoggerTest, NothingIsWrittenBeforeInitOrAfterAFailedInit) {
  vlog::log("NEVER-INITIALISED", vlog::kError, vlog::kDefaultComponent, "dropped %d", 1);
  const std::string missing = dir.file("no/such/folder/ui.txt");
  EXPECT_EQ(-1, vlog::init(vlog::kRotatingFile, wide(missing), L"", "", 50, 1));
  EXPECT_FALSE(vlog::enabled());
  LOG_ERROR(vlog::kDefaultComponent, "dropped");
  EXPECT_FALSE(nimbra_test::file_exists(missing));
}

TEST_F(LoggerTest, UnknownOutputKindFailsInit) {
  EXPECT_EQ(-1, vlog::init(9, wide(log_file()), L"", "", 50, 1));
  EXPECT_FALSE(vlog::enabled());
}

// ---- thresholds from agent.debug ----

struct ThresholdCase {
  const char* name;
  bool with_settings;
  const char* component;
  int level;
  bool written;
};

void PrintTo(const ThresholdCase& c, std::ostream* os) {
  *os << c.name;
}

const char kSettings[] =
    "# thresholds per component\n"
    "default_component = 7\n"
    "win_ipc: 3\n"
    "client_manager_debug 6\n"
    "   spaced_component   =   5   \r\n"
    "; another comment style\n"
    "bogus = abc\n"
    "\n";

class ThresholdTest : public LoggerTest, public ::testing::WithParamInterface<ThresholdCase> {};

TEST_P(ThresholdTest, LineIsWrittenExactlyWhenWithinTheComponentsThreshold) {
  const ThresholdCase& c = GetParam();
  start(c.with_settings ? kSettings : nullptr);
  vlog::log(vlog::kDefaultLogger, c.level, c.component, "marker %s %d\n", c.component, c.level);
  const std::string marker = std::string("marker ") + c.component + " " + std::to_string(c.level) + "\n";
  if (c.written)
    EXPECT_THAT(text(), ::testing::HasSubstr(marker));
  else
    EXPECT_EQ("", text());
}

INSTANTIATE_TEST_SUITE_P(
    Levels, ThresholdTest,
    ::testing::Values(ThresholdCase{"named_seven_writes_debug", true, "default_component", 7, true},
                      ThresholdCase{"colon_three_writes_error", true, "win_ipc", 3, true},
                      ThresholdCase{"colon_three_drops_warning", true, "win_ipc", 4, false},
                      ThresholdCase{"blank_six_writes_info", true, "client_manager_debug", 6, true},
                      ThresholdCase{"blank_six_drops_debug", true, "client_manager_debug", 7, false},
                      ThresholdCase{"spaces_five_writes_notice", true, "spaced_component", 5, true},
                      ThresholdCase{"spaces_five_drops_info", true, "spaced_component", 6, false},
                      ThresholdCase{"bad_number_keeps_four_warning", true, "bogus", 4, true},
                      ThresholdCase{"bad_number_keeps_four_info", true, "bogus", 6, false},
                      ThresholdCase{"missing_component_writes_error", true, "not_listed", 3, true},
                      ThresholdCase{"missing_component_drops_info", true, "not_listed", 6, false},
                      ThresholdCase{"no_file_writes_error", false, "default_component", 3, true},
                      ThresholdCase{"no_file_writes_warning", false, "default_component", 4, true},
                      ThresholdCase{"no_file_drops_info", false, "default_component", 6, false},
                      ThresholdCase{"no_file_drops_debug", false, "win_ipc", 7, false}),
    [](const ::testing::TestParamInfo<ThresholdCase>& p) { return std::string(p.param.name); });

TEST_F(LoggerTest, ThresholdsAreResetByTheNextInit) {
  start("win_ipc = 7\n");
  EXPECT_EQ(7, vlog::threshold("win_ipc"));
  vlog::shutdown();
  start();
  EXPECT_EQ(4, vlog::threshold("win_ipc"));
  EXPECT_EQ(4, vlog::threshold("default_component"));
}

TEST_F(LoggerTest, ShippedSettingsFileParsesAndRaisesNothingAboveTheDefaults) {
  // CTest names the source folder; run by hand, this file's path tells it.
  const char* source = std::getenv("NIMBRA_SOURCE_DIR");
  const std::string here = __FILE__;
  const std::string root = source ? std::string(source) : here.substr(0, here.rfind("tests/logging/"));
  const std::string shipped = root + "/resource/agent.debug";
  ASSERT_TRUE(nimbra_test::file_exists(shipped)) << shipped;
  ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(log_file()), wide(shipped), "", 50, 1));
  for (const char* component : {vlog::kDefaultComponent, vlog::kWinIpc, vlog::kClientManager})
    EXPECT_EQ(vlog::kDefaultThreshold, vlog::threshold(component)) << component;
}

// ---- outputs 1, 2 and 3 ----

TEST_F(LoggerTest, OutputOneWritesTheMessageToStandardErrorAsItIs) {
  ASSERT_EQ(0, vlog::init(vlog::kRawStderr, L"", L"", "ignored ", 50, 1));
  ::testing::internal::CaptureStderr();
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "raw %d|", 5);
  std::fflush(stderr);
  EXPECT_EQ("raw 5|", ::testing::internal::GetCapturedStderr());
}

TEST_F(LoggerTest, OutputTwoWritesStampedLinesToStandardOutput) {
  ASSERT_EQ(0, vlog::init(vlog::kStdout, L"", L"", "", 50, 1));
  ::testing::internal::CaptureStdout();
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "to stdout %d", 2);
  std::string out = ::testing::internal::GetCapturedStdout();
  out.erase(std::remove(out.begin(), out.end(), '\r'), out.end());
  EXPECT_TRUE(std::regex_match(out, std::regex(std::string(logtest::kStampPattern) + "to stdout 2\n")))
      << out;
}

TEST_F(LoggerTest, OutputThreeWritesStampedLinesToStandardError) {
  ASSERT_EQ(0, vlog::init(vlog::kStderr, L"", L"", "", 50, 1));
  ::testing::internal::CaptureStderr();
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "to stderr %d", 3);
  std::fflush(stderr);
  std::string out = ::testing::internal::GetCapturedStderr();
  out.erase(std::remove(out.begin(), out.end(), '\r'), out.end());
  EXPECT_TRUE(std::regex_match(out, std::regex(std::string(logtest::kStampPattern) + "to stderr 3\n")))
      << out;
}

// ---- small helpers ----

TEST(LoggerHelpers, BaseNameIsThePartAfterTheLastSeparator) {
  EXPECT_STREQ("win-ipc.cpp", vlog::base_name("C:\\src\\ipc\\win-ipc.cpp"));
  EXPECT_STREQ("client-manager.cpp", vlog::base_name("/src/ui-agent/client-manager.cpp"));
  EXPECT_STREQ("mixed.cpp", vlog::base_name("a/b\\mixed.cpp"));
  EXPECT_STREQ("plain.cpp", vlog::base_name("plain.cpp"));
  EXPECT_STREQ("", vlog::base_name("folder/"));
}

TEST(LoggerHelpers, Utf16LengthCountsSurrogatePairsAsTwo) {
  EXPECT_EQ(0u, vlog::utf16_length(""));
  EXPECT_EQ(3u, vlog::utf16_length("abc"));
  EXPECT_EQ(1u, vlog::utf16_length("\xC3\xA9"));          // U+00E9
  EXPECT_EQ(1u, vlog::utf16_length("\xE2\x82\xAC"));      // U+20AC
  EXPECT_EQ(2u, vlog::utf16_length("\xF0\x9F\x98\x80"));  // U+1F600
}

}  // namespace
