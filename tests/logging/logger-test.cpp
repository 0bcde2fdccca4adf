// The logger's line format, thresholds, trace tag and outputs.
#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "logging/logger-platform.h"
#include "logging/logger.h"
#include "logging/per-thread.h"
#include "tests/logging/log-test-util.h"

using logtest::kStamp;
using logtest::split_lines;
using logtest::wide;
using nimbra_test::ScopedEnv;
using ::testing::EndsWith;
using ::testing::HasSubstr;

namespace {

class LoggerTest : public ::testing::Test {
 protected:
  void TearDown() override { vlog::shutdown(); }
  // Output 4 into "ui.txt", with `settings` as agent.debug (nullptr: no file).
  void start(const char* settings = nullptr, const char* prefix = "") {
    std::wstring settings_path;
    if (settings) {
      nimbra_test::write_file(dir.file("agent.debug"), settings);
      settings_path = wide(dir.file("agent.debug"));
    }
    ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(log_file()), settings_path, prefix, 50, 1));
  }
  std::string log_file() const { return dir.file("ui.txt"); }
  std::string text() const { return logtest::read_log(log_file()); }
  nimbra_test::TempDir dir;
};

// The header, the prefix, the trace tag read afresh for every line, the
// milliseconds of level 7 and the line feed added only when missing.
TEST_F(LoggerTest, LinesHaveTheFixedForm) {
  start("default_component = 7\n", "svc| ");
  int line = 0;
  {
    ScopedEnv trace("VANTOR_LOG_TRACE", nullptr);
    line = __LINE__ + 1;
    LOG_ERROR(vlog::kDefaultComponent, "value %d and %s", 42, "text");
  }
  {
    ScopedEnv trace("VANTOR_LOG_TRACE", "abc");
    LOG_WARN(vlog::kWinIpc, "careful");
  }
  {
    ScopedEnv trace("VANTOR_LOG_TRACE", "run-7");
    LOG_DEBUG(vlog::kDefaultComponent, "fine detail");
  }
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kWinIpc, "no newline %d", 1);
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kWinIpc, "one newline %d\n", 2);
  // Line breaks in outside data never start a line of their own.
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kWinIpc, "peer said %s", "a\r\n[ERROR] forged\n");
  const auto lines = split_lines(text());
  ASSERT_EQ(6u, lines.size()) << text();
  EXPECT_THAT(lines[5], EndsWith(" svc| peer said a\\r\\n[ERROR] forged\\n"));
  EXPECT_THAT(lines[3], EndsWith(" svc| no newline 1"));
  EXPECT_THAT(lines[4], EndsWith(" svc| one newline 2"));
  std::smatch m;
  ASSERT_TRUE(std::regex_match(lines[0], m, std::regex("(" + kStamp + ")(.*)"))) << lines[0];
  EXPECT_EQ("svc| [ERROR][logger-test.cpp:" + std::to_string(line) + "](" +
                std::to_string(vlog::current_pid()) + "," + std::to_string(vlog::current_tid()) +
                "){} value 42 and text",
            m[2].str());
  EXPECT_TRUE(std::regex_match(
      lines[1], std::regex(kStamp + R"(svc\| \[WARNIN\]\[logger-test\.cpp:\d+\]\(\d+,\d+\)\{abc\} careful)")))
      << lines[1];
  ASSERT_TRUE(std::regex_match(
      lines[2], m, std::regex("(" + kStamp + R"():(\d{1,3}) svc\| \[DEBUG\]\[.*\{run-7\} fine detail)")))
      << lines[2];
  EXPECT_LT(std::stoi(m[2].str()), 1000);
  // The offset from UTC, east positive, whole and part hours.
  const std::vector<std::pair<int, const char*>> offsets{{0, "+0000"},    {-300, "-0500"}, {330, "+0530"},
                                                         {-570, "-0930"}, {840, "+1400"},  {-1, "-0001"}};
  for (const auto& [minutes, text] : offsets) EXPECT_EQ(text, vlog::utc_offset_text(minutes)) << minutes;
  // Windows paths in __FILE__ use backslashes.
  EXPECT_STREQ("win-ipc.cpp", vlog::base_name("C:\\src\\ipc/win-ipc.cpp"));
  EXPECT_STREQ("", vlog::base_name("folder/"));
}

TEST_F(LoggerTest, NothingIsWrittenBeforeInitOrAfterAFailedInit) {
  vlog::log("NEVER-INITIALISED", vlog::kError, vlog::kDefaultComponent, "dropped %d", 1);
  const std::string missing = dir.file("no/such/folder/ui.txt");
  EXPECT_EQ(-1, vlog::init(vlog::kRotatingFile, wide(missing), L"", "", 50, 1));
  EXPECT_FALSE(vlog::enabled());
  LOG_ERROR(vlog::kDefaultComponent, "dropped");
  EXPECT_FALSE(nimbra_test::file_exists(missing));
  EXPECT_EQ(-1, vlog::init(9, wide(log_file()), L"", "", 50, 1));
  EXPECT_FALSE(vlog::enabled());
}

// ---- thresholds from agent.debug ----

struct ThresholdCase {
  const char* name;
  bool with_settings;
  const char* component;
  int threshold;
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

TEST_P(ThresholdTest, LinesUpToTheComponentsThresholdAreWrittenAndNoneAbove) {
  const ThresholdCase& c = GetParam();
  // The thresholds of an earlier init must not linger.
  start("default_component = 1\nwin_ipc = 7\nnot_listed = 7\nbogus = 7\n");
  vlog::shutdown();
  start(c.with_settings ? kSettings : nullptr);
  EXPECT_EQ(c.threshold, vlog::threshold(c.component));
  for (const int level : {c.threshold, c.threshold + 1})
    vlog::log(vlog::kDefaultLogger, level, c.component, "marker %d\n", level);
  EXPECT_THAT(text(), EndsWith("marker " + std::to_string(c.threshold) + "\n"));
  EXPECT_EQ(1u, split_lines(text()).size());
}

INSTANTIATE_TEST_SUITE_P(
    Settings, ThresholdTest,
    ::testing::Values(ThresholdCase{"named_seven", true, "default_component", 7},
                      ThresholdCase{"colon_three", true, "win_ipc", 3},
                      ThresholdCase{"blank_six", true, "client_manager_debug", 6},
                      ThresholdCase{"spaces_five", true, "spaced_component", 5},
                      ThresholdCase{"bad_number_keeps_four", true, "bogus", 4},
                      ThresholdCase{"missing_component_gets_four", true, "not_listed", 4},
                      ThresholdCase{"no_file_gets_four", false, "default_component", 4}),
    [](const ::testing::TestParamInfo<ThresholdCase>& p) { return std::string(p.param.name); });

TEST_F(LoggerTest, ShippedSettingsFileParsesAndRaisesNothingAboveTheDefaults) {
  // CTest names the source folder; run by hand, this file's path tells it.
  const char* source = std::getenv("NIMBRA_SOURCE_DIR");
  const std::string here = __FILE__;
  const std::string shipped =
      (source ? std::string(source) : here.substr(0, here.rfind("tests/logging/"))) + "/resource/agent.debug";
  ASSERT_TRUE(nimbra_test::file_exists(shipped)) << shipped;
  ASSERT_EQ(0, vlog::init(vlog::kRotatingFile, wide(log_file()), wide(shipped), "", 50, 1));
  for (const char* component : {vlog::kDefaultComponent, vlog::kWinIpc, vlog::kClientManager})
    EXPECT_EQ(vlog::kDefaultThreshold, vlog::threshold(component)) << component;
}

// ---- outputs 1, 2 and 3 ----

TEST_F(LoggerTest, StandardStreamOutputs) {
  ASSERT_EQ(0, vlog::init(vlog::kRawStderr, L"", L"", "ignored ", 50, 1));
  ::testing::internal::CaptureStderr();
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "raw %d|", 1);
  std::fflush(stderr);
  EXPECT_EQ("raw 1|", ::testing::internal::GetCapturedStderr());  // as it is: no stamp, no line feed
  for (const int output : {vlog::kStdout, vlog::kStderr}) {
    ASSERT_EQ(0, vlog::init(output, L"", L"", "", 50, 1));
    const bool out = output == vlog::kStdout;
    out ? ::testing::internal::CaptureStdout() : ::testing::internal::CaptureStderr();
    vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "stamped %d", output);
    std::fflush(out ? stdout : stderr);
    std::string got =
        out ? ::testing::internal::GetCapturedStdout() : ::testing::internal::GetCapturedStderr();
    got.erase(std::remove(got.begin(), got.end(), '\r'), got.end());
    EXPECT_TRUE(std::regex_match(got, std::regex(kStamp + "stamped " + std::to_string(output) + "\n")))
        << got;
  }
}

// A line longer than 4 KB keeps its first 4096 bytes (never half a
// character) and says how many were cut; its line feed stays.
TEST_F(LoggerTest, LongLinesAreCutAt4KBWithTheCountOfBytesCut) {
  start();
  const std::string big(200 * 1000, 'b');
  LOG_ERROR(vlog::kDefaultComponent, "big %s end", big.c_str());
  // Two-byte characters straddling the cut.
  const std::string accents(3000, 'a');
  std::string wide_text;
  for (int i = 0; i < 3000; ++i) wide_text += "\xC3\xA9";
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "%s\n", wide_text.c_str());
  vlog::log(vlog::kDefaultLogger, vlog::kError, vlog::kDefaultComponent, "%s\n",
            std::string(4096, 'e').c_str());
  const auto lines = split_lines(text());
  ASSERT_EQ(lines.size(), 3u) << text().substr(0, 300);
  std::smatch m;
  ASSERT_TRUE(std::regex_match(lines[0], m, std::regex("(" + kStamp + ")(.*)")));
  const std::string first = m[2].str();
  const std::string suffix =
      "... [" + std::to_string(first.find("big ") + 4 + big.size() + 4 - 4096) + " bytes cut]";
  EXPECT_THAT(first, EndsWith(suffix));
  EXPECT_EQ(first.size(), 4096 + suffix.size());
  ASSERT_TRUE(std::regex_match(lines[1], m, std::regex("(" + kStamp + ")(.*)")));
  EXPECT_THAT(m[2].str(), EndsWith("\xC3\xA9... [1904 bytes cut]")) << "4096 bytes end inside no character";
  EXPECT_THAT(lines[2], EndsWith(std::string(4096, 'e'))) << "exactly 4096 bytes are not cut";
}

std::atomic<int> intact_probes{0};
struct Probe {
  unsigned magic = 0x5EED;
  std::vector<int> data = std::vector<int>(1024, 7);
  ~Probe() {
    if (magic == 0x5EED && data.size() == 1024 && data[1023] == 7) ++intact_probes;
  }
};
}  // namespace

// Each thread's object is made on its first use and deleted, whole, when the
// thread ends.
TEST(PerThread, EachThreadsObjectIsDeletedWholeAtTheThreadsEnd) {
  static vlog::PerThread<Probe> probes(+[]() { return new Probe; });
  for (int i = 0; i < 3; ++i) std::thread([] { probes.with([](Probe& p) { return p.data[0] = 1; }); }).join();
  EXPECT_EQ(intact_probes.load(), 3);
}
