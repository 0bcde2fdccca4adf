// Scenario files: every shipped file loads, and a bad file gets one clear
// sentence naming the file and the member.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <system_error>

#include "device-model.h"
#include "json-access.h"
#include "sim-test-util.h"

#include "scenario.h"
#include "support/temp-dir.h"

namespace {

std::string scenario_dir() {
  // Test discovery runs the executable without the test environment, so the
  // source folder known at build time is the fallback.
  const char* src = std::getenv("NIMBRA_SOURCE_DIR");
  return std::string(src != nullptr && *src != '\0' ? src : NIMBRA_SOURCE_DIR_AT_BUILD) +
         "/service-sim/scenarios";
}

TEST(SimScenarios, EveryShippedFileLoads) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(scenario_dir())) {
    if (entry.path().extension() != ".json") continue;
    ++count;
    sim::Scenario s;
    std::string error;
    EXPECT_TRUE(sim::load_scenario(entry.path().string(), s, error)) << error;
    EXPECT_FALSE(s.description.empty()) << entry.path();
    EXPECT_GT(s.sites.size(), 0u) << entry.path();
  }
  EXPECT_GE(count, 10);
}

TEST(SimScenarios, FirstRunWalksTheWholeStoryWithinThirtySeconds) {
  sim::Scenario s;
  std::string error;
  ASSERT_TRUE(sim::load_scenario(scenario_dir() + "/first-run.json", s, error)) << error;
  EXPECT_FALSE(s.linked);
  EXPECT_GE(s.sites.size(), 3u);
  EXPECT_EQ(s.backup.outcome, sim::BackupOutcome::kSuccess);
  const double seconds =
      s.backup.prepare_seconds + static_cast<double>(s.backup.total_bytes) / s.backup.rate_bytes_per_second;
  EXPECT_LT(seconds, 30.0);
  // Built-in region codes and at least one that is not.
  std::set<std::string> codes;
  for (const auto& site : s.sites)
    codes.insert(jsonx::get_string(jsonx::get_object(jsonx::get_object(site, "billing"), "region"), "code"));
  EXPECT_TRUE(codes.count("US") && codes.count("EU") && codes.count("TW"));
  EXPECT_GT(codes.size(), 3u);
}

// Plays a shipped scenario with a hand-driven clock: signs in and links on
// `site` when the device starts unlinked, runs one backup to its end, and
// returns the last get_status answer.
Json::Value play(const std::string& file, Json::ArrayIndex site, double* seconds_to_result,
                 std::vector<Json::Value>* notifications) {
  sim::Scenario s;
  std::string error;
  EXPECT_TRUE(sim::load_scenario(scenario_dir() + "/" + file, s, error)) << error;
  simtest::ManualClock clock;
  nimbra_test::TempDir dir;
  sim::DeviceModel m(s, std::string(), dir.path(), [&clock] { return clock.now.load(); });
  m.load_state();
  if (!m.linked()) {
    // A scenario may fail the first tries (signin-errors.json): the agent's
    // user would try again, and so does this.
    bool signed_in = false;
    for (int attempt = 0; attempt < 3 && !signed_in; ++attempt) {
      Json::Value token = simtest::request("get_token");
      token["token"] = m.issue_token();
      signed_in = jsonx::get_bool(m.handle(token), "success");
    }
    EXPECT_TRUE(signed_in) << file;
    const Json::Value sites = m.handle(simtest::request("get_site_info"));
    const Json::Value& chosen = jsonx::get_array(sites, "data")[site];
    const Json::Value& billing = jsonx::get_object(chosen, "billing");
    Json::Value create = simtest::request("create_device");
    create["zid"] = jsonx::get_string(jsonx::get_object(billing, "region"), "code");
    create["subscription_id"] = jsonx::get_string(billing, "subscription_id");
    create["account_type"] = jsonx::get_string(jsonx::get_object(chosen, "backup_policy"), "account_type");
    bool created = false;
    for (int attempt = 0; attempt < 3 && !created; ++attempt)
      created = jsonx::get_bool(m.handle(create), "success");
    EXPECT_TRUE(created) << file;
  }
  m.handle(simtest::request("backup_now"));
  int ticks = 0;
  while (m.backup_running() && ticks < 36000) {
    clock.advance_ms(100);
    m.advance();
    ++ticks;
  }
  if (seconds_to_result != nullptr) *seconds_to_result = ticks / 10.0;
  if (notifications != nullptr) *notifications = m.take_notifications();
  return m.handle(simtest::request("get_status"));
}

TEST(SimScenarios, FirstRunLinksOnAChosenSiteAndBacksUpWithinThirtySeconds) {
  double seconds = 0;
  std::vector<Json::Value> pushed;
  const Json::Value status = play("first-run.json", 2, &seconds, &pushed);
  EXPECT_LT(seconds, 30.0);
  EXPECT_EQ(jsonx::get_int32(status, "status"), 0x2001);
  const Json::Value& content = jsonx::get_object(status, "content");
  EXPECT_EQ(jsonx::get_int32(jsonx::get_object(content, "last_backup_result"), "last_backup_status"), 2);
  EXPECT_GT(jsonx::get_uint64(jsonx::get_object(content, "billing"), "used_bytes"), 0u);
  ASSERT_FALSE(pushed.empty());
  EXPECT_EQ(jsonx::get_string(pushed[0], "site_path"), "https://tw.console.nimbrabackup.example");
}

class SimEveryScenarioTest : public ::testing::TestWithParam<std::string> {};

TEST_P(SimEveryScenarioTest, PlaysABackupToAResult) {
  double seconds = 0;
  const Json::Value status = play(GetParam(), 0, &seconds, nullptr);
  EXPECT_LT(seconds, 3600.0) << "the backup never ended";
  const int code = jsonx::get_int32(
      jsonx::get_object(jsonx::get_object(status, "content"), "last_backup_result"), "last_backup_status");
  EXPECT_GE(code, 2);
  EXPECT_LE(code, 5);
  EXPECT_EQ(jsonx::get_int32(status, "status") & 0xF000,
            jsonx::get_int32(status, "status") >= 0xF000 ? 0xF000 : 0x2000);
}

std::vector<std::string> shipped_files() {
  std::vector<std::string> files;
  std::error_code ec;
  for (const auto& entry : std::filesystem::directory_iterator(scenario_dir(), ec))
    if (entry.path().extension() == ".json") files.push_back(entry.path().filename().string());
  std::sort(files.begin(), files.end());
  return files;
}

INSTANTIATE_TEST_SUITE_P(Shipped, SimEveryScenarioTest, ::testing::ValuesIn(shipped_files()),
                         [](const auto& test_case) {
                           std::string name = test_case.param.substr(0, test_case.param.size() - 5);
                           for (char& c : name)
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           return name;
                         });

TEST(SimScenarios, MissingFileIsNamed) {
  sim::Scenario s;
  std::string error;
  EXPECT_FALSE(sim::load_scenario("/nonexistent/x.json", s, error));
  EXPECT_THAT(error, ::testing::HasSubstr("/nonexistent/x.json"));
  EXPECT_THAT(error, ::testing::HasSubstr("cannot be opened"));
}

struct BadScenario {
  const char* label;
  const char* text;
  const char* expected;  // in the error sentence
};

class SimBadScenarioTest : public ::testing::TestWithParam<BadScenario> {};

TEST_P(SimBadScenarioTest, RefusedWithAClearError) {
  sim::Scenario s;
  s.name = "untouched";
  std::string error;
  EXPECT_FALSE(sim::parse_scenario(GetParam().text, "bad.json", s, error));
  EXPECT_THAT(error, ::testing::HasSubstr("bad.json"));
  EXPECT_THAT(error, ::testing::HasSubstr(GetParam().expected));
  EXPECT_EQ(s.name, "untouched");  // nothing half-loaded
}

INSTANTIATE_TEST_SUITE_P(
    Files, SimBadScenarioTest,
    ::testing::Values(
        BadScenario{"NotJson", "{\"name\": ", "not valid JSON"},
        BadScenario{"TopLevelArray", "[]", "top level must be an object"},
        BadScenario{"UnknownTopMember", "{\"sceanrio\": 1}", "'sceanrio' is not a known member"},
        BadScenario{"UnknownNested", "{\"backup\": {\"rate\": 5}}", "'backup.rate' is not a known member"},
        BadScenario{"BoolAsString", "{\"device\": {\"linked\": \"yes\"}}",
                    "'device.linked' must be true or false"},
        BadScenario{"NumberAsString", "{\"backup\": {\"total_bytes\": \"2GB\"}}",
                    "'backup.total_bytes' must be a whole number"},
        BadScenario{"Fraction", "{\"faults\": {\"drop_every\": 2.5}}",
                    "'faults.drop_every' must be a whole number"},
        BadScenario{"OutOfRange", "{\"backup\": {\"delta_ratio\": 1.5}}",
                    "'backup.delta_ratio' must lie between 0 and 1"},
        BadScenario{"BadOutcome", "{\"backup\": {\"outcome\": \"exploded\"}}",
                    "'backup.outcome' must be one of"},
        BadScenario{"NoSites", "{\"sites\": []}", "'sites' must list at least one site"},
        BadScenario{"SiteWithoutCode", "{\"sites\": [{\"billing\": {\"region\": {}}}]}",
                    "'sites[0].billing.region.code'"},
        BadScenario{"SiteIndexPastEnd", "{\"device\": {\"site_index\": 9}}",
                    "'device.site_index' points past"},
        BadScenario{"ErrorWithoutCode", "{\"errors\": {\"get_token\": {\"times\": 1}}}",
                    "'errors.get_token.code' is missing"},
        BadScenario{"ErrorForUnknownAction", "{\"errors\": {\"reboot\": {\"code\": 4}}}",
                    "'errors.reboot' is not a known"},
        BadScenario{"VolumesNotStrings", "{\"backup\": {\"volumes\": [1]}}",
                    "'backup.volumes' must hold strings"},
        BadScenario{"UpgradeOutcome", "{\"upgrade\": {\"outcome\": \"maybe\"}}",
                    "'upgrade.outcome' must be success or error"},
        BadScenario{"LogWithoutType", "{\"initial_logs\": [{\"body\": {}}]}",
                    "'initial_logs[0].type' is missing"}),
    [](const auto& test_case) { return std::string(test_case.param.label); });

TEST(SimScenarios, MembersOverrideTheDefaults) {
  sim::Scenario s;
  std::string error;
  ASSERT_TRUE(sim::parse_scenario(
      R"({"device":{"linked":true,"quota":5000,"used_bytes":10},"backup":{"outcome":"partial","volumes":["X:"]},
          "faults":{"garbage_every":3},"hostile":true,"errors":{"get_auth":{"code":5,"times":2}}})",
      "ok.json", s, error))
      << error;
  EXPECT_TRUE(s.linked);
  EXPECT_EQ(s.quota, 5000u);
  EXPECT_EQ(s.used_bytes, 10u);
  EXPECT_EQ(s.backup.outcome, sim::BackupOutcome::kPartial);
  EXPECT_EQ(s.backup.volumes, std::vector<std::string>{"X:"});
  EXPECT_EQ(s.faults.garbage_every, 3);
  EXPECT_TRUE(s.hostile);
  EXPECT_EQ(s.errors["get_auth"].code, 5);
  EXPECT_EQ(s.errors["get_auth"].times, 2);
}

}  // namespace
