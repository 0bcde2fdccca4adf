// Scenario files: every shipped file loads and plays a backup to its end, and
// a bad file gets one clear sentence naming the file and the member.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "service-sim/device-model.h"
#include "tests/service-sim/sim-test-util.h"
#include "tests/support/temp-dir.h"

using namespace simtest;

namespace {

std::string scenario_dir() {
  // Test discovery runs the executable without the test environment, so the
  // source folder known at build time is the fallback.
  const char* src = std::getenv("NIMBRA_SOURCE_DIR");
  return std::string(src != nullptr && *src != '\0' ? src : NIMBRA_SOURCE_DIR_AT_BUILD) +
         "/service-sim/scenarios";
}

std::vector<std::string> shipped_files() {
  std::vector<std::string> files;
  std::error_code ec;
  for (const auto& entry : std::filesystem::directory_iterator(scenario_dir(), ec))
    if (entry.path().extension() == ".json") files.push_back(entry.path().filename().string());
  std::sort(files.begin(), files.end());
  return files;
}

// Plays a shipped scenario with a hand-driven clock: signs in and links on
// its last site when the device starts unlinked, then runs one backup to its
// end. A scenario may fail the first tries (signin-errors.json): the agent's
// user would try again, and so does this.
class SimEveryScenarioTest : public ::testing::TestWithParam<std::string> {};

TEST_P(SimEveryScenarioTest, LoadsAndPlaysABackupToAResult) {
  sim::Scenario scenario;
  std::string error;
  ASSERT_TRUE(sim::load_scenario(scenario_dir() + "/" + GetParam(), scenario, &error)) << error;
  EXPECT_FALSE(scenario.description.empty());
  ASSERT_GT(scenario.sites.size(), 0u);
  ManualClock clock;
  nimbra_test::TempDir dir;
  sim::DeviceModel m(scenario, std::string(), dir.path(), [&clock] { return clock.now.load(); });
  m.load_state();
  const auto ok = [&m](const Json::Value& r) { return jsonx::get_bool(m.handle(r), "success"); };
  std::string site_path;
  if (!m.linked()) {
    const auto signed_in = [&] { return ok(request("get_token", {{"token", m.issue_token()}})); };
    EXPECT_TRUE(signed_in() || signed_in() || signed_in());
    const Json::Value sites = jsonx::get_array(m.handle(request("get_site_info")), "data");
    const Json::Value chosen = sites[sites.size() - 1];
    site_path = str(chosen, "web_console_url");
    const Json::Value create =
        request("create_device", {{"zid", str(chosen, "billing/region/code")},
                                  {"subscription_id", str(chosen, "billing/subscription_id")},
                                  {"account_type", str(chosen, "backup_policy/account_type")}});
    EXPECT_TRUE(ok(create) || ok(create) || ok(create));
  }
  m.handle(request("backup_now"));
  int ticks = 0;
  for (; m.backup_running() && ticks < 36000; ++ticks) {
    clock.advance_ms(100);
    m.advance();
  }
  EXPECT_LT(ticks, 36000) << "the backup never ended";
  const Json::Value status = m.handle(request("get_status"));
  const std::int64_t code = num(status, "content/last_backup_result/last_backup_status");
  EXPECT_GE(code, 2);
  EXPECT_LE(code, 5);
  const std::int64_t state = num(status, "status");
  EXPECT_EQ(state & 0xF000, state >= 0xF000 ? 0xF000 : 0x2000);
  const auto pushed = m.take_notifications();
  if (!site_path.empty() && !pushed.empty()) {
    EXPECT_EQ(str(pushed[0], "site_path"), site_path);
  }
}

INSTANTIATE_TEST_SUITE_P(Shipped, SimEveryScenarioTest, ::testing::ValuesIn(shipped_files()),
                         [](const auto& test_case) {
                           std::string name = test_case.param.substr(0, test_case.param.size() - 5);
                           for (char& c : name)
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           return name;
                         });

TEST(SimScenarios, EveryShippedFileIsFound) {
  EXPECT_GE(shipped_files().size(), 10u);
}

// A scenario file's text and what the error sentence says of it.
using BadScenario = std::pair<std::string, std::string>;
class SimBadScenarioTest : public ::testing::TestWithParam<BadScenario> {};

TEST_P(SimBadScenarioTest, RefusedWithAClearError) {
  sim::Scenario s;
  s.name = "untouched";
  std::string error;
  EXPECT_FALSE(sim::parse_scenario(GetParam().first, "bad.json", s, &error));
  EXPECT_THAT(error, ::testing::HasSubstr("bad.json"));
  EXPECT_THAT(error, ::testing::HasSubstr(GetParam().second));
  EXPECT_EQ(s.name, "untouched");  // nothing half-loaded
}

INSTANTIATE_TEST_SUITE_P(
    Files, SimBadScenarioTest,
    ::testing::ValuesIn(std::vector<BadScenario>{
        {R"({"name": )", "not valid JSON"},
        {"[]", "top level must be an object"},
        {R"({"sceanrio": 1})", "'sceanrio' is not a known member"},
        {R"({"device": {"linked": "yes"}})", "'device.linked' must be true or false"},
        {R"({"backup": {"total_bytes": "2GB"}})", "'backup.total_bytes' must be a whole number"},
        {R"({"faults": {"drop_every": 2.5}})", "'faults.drop_every' must be a whole number"},
        {R"({"backup": {"delta_ratio": 1.5}})", "'backup.delta_ratio' must lie between 0 and 1"},
        {R"({"backup": {"outcome": "exploded"}})", "'backup.outcome' must be one of"},
        {R"({"sites": []})", "'sites' must list at least one site"},
        {R"({"sites": [{"billing": {"region": {}}}]})", "'sites[0].billing.region.code'"},
        {R"({"device": {"site_index": 9}})", "'device.site_index' points past"},
        {R"({"errors": {"get_token": {"times": 1}}})", "'errors.get_token.code' is missing"},
        {R"({"errors": {"reboot": {"code": 4}}})", "'errors.reboot' is not a known"},
        {R"({"backup": {"volumes": [1]}})", "'backup.volumes' must hold strings"},
        {R"({"initial_logs": [{"body": {}}]})", "'initial_logs[0].type' is missing"}}));

TEST(SimScenarios, MembersOverrideTheDefaults) {
  sim::Scenario s;
  std::string error;
  ASSERT_TRUE(sim::parse_scenario(
      R"({"device":{"linked":true,"quota":5000,"used_bytes":10},"backup":{"outcome":"partial","volumes":["X:"]},
          "faults":{"garbage_every":3},"hostile":true,"errors":{"get_auth":{"code":5,"times":2}}})",
      "ok.json", s, &error))
      << error;
  EXPECT_TRUE(s.linked && s.hostile);
  EXPECT_EQ(s.quota, 5000u);
  EXPECT_EQ(s.used_bytes, 10u);
  EXPECT_EQ(s.backup.outcome, sim::BackupOutcome::kPartial);
  EXPECT_EQ(s.backup.volumes, std::vector<std::string>{"X:"});
  EXPECT_EQ(s.faults.garbage_every, 3);
  EXPECT_EQ(s.errors["get_auth"].code, 5);
  EXPECT_EQ(s.errors["get_auth"].times, 2);
}

}  // namespace
