// The device model: sign-in, linking, backups and their results, quota
// notifications, the state file across restarts. (Hostile requests go
// through the pipe in pipe-service-test.cpp.)
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>

#include "device-model.h"
#include "sim-test-util.h"
#include "support/temp-dir.h"

using sim::DeviceModel;
using simtest::at;
using simtest::num;
using simtest::request;
using simtest::str;
using ::testing::ElementsAre;
namespace st = sim::status;

namespace {

class SimModelTest : public ::testing::Test {
 protected:
  std::unique_ptr<DeviceModel> make(const sim::Scenario& s, const std::string& state = std::string()) {
    auto m = std::make_unique<DeviceModel>(s, state, dir_.file("ws"), [this] { return clock_.now.load(); });
    m->load_state();
    return m;
  }
  // Runs the model's clock forward in 100 ms steps.
  void run_for(DeviceModel& m, std::int64_t ms) {
    for (std::int64_t t = 0; t < ms; t += 100) {
      clock_.advance_ms(100);
      m.advance();
    }
  }
  static Json::Value create(const char* zid, const char* subscription) {
    return request("create_device",
                   {{"zid", zid}, {"subscription_id", subscription}, {"account_type", "vell"}});
  }
  void link(DeviceModel& m) {
    ASSERT_TRUE(ok(m.handle(request("get_token", {{"token", m.issue_token()}}))));
    ASSERT_TRUE(ok(m.handle(create("EU", "sub-eu-0001"))));
  }
  static bool ok(const Json::Value& answer) { return jsonx::get_bool(answer, "success"); }
  static Json::Value get_status(DeviceModel& m, Json::Value log_id = 0) {
    return m.handle(request("get_status", {{"log_id", log_id}}));
  }
  static const Json::Value& logs(const Json::Value& status) {
    return jsonx::get_array(at(status, "content"), "logs");
  }
  static std::vector<int> log_types(const Json::Value& status) {
    std::vector<int> types;
    for (const auto& e : logs(status)) types.push_back(jsonx::get_int32(e, "type"));
    return types;
  }
  static std::int64_t last_result(const Json::Value& status) {
    return num(status, "content/last_backup_result/last_backup_status");
  }
  // The type of each pushed notification request, and its data.
  static std::vector<int> pushed_types(DeviceModel& m, std::vector<Json::Value>& data) {
    std::vector<int> types;
    for (const auto& pushed : m.take_notifications()) {
      EXPECT_EQ(jsonx::get_string(pushed, "action"), "notifications");
      const Json::Value& n = jsonx::get_array(pushed, "notifications")[0];
      types.push_back(jsonx::get_int32(n, "type"));
      data.push_back(at(n, "data"));
    }
    return types;
  }

  simtest::ManualClock clock_;
  nimbra_test::TempDir dir_;
};

TEST_F(SimModelTest, WholeStoryFromSignInToLogout) {
  auto m = make(simtest::quick_scenario(false));
  EXPECT_EQ(num(get_status(*m), "status"), st::kNotLinked);
  EXPECT_FALSE(jsonx::has(m->handle(request("get_connection_info")), "connection"));
  // No site list and no device before a token was accepted.
  EXPECT_EQ(num(m->handle(request("get_site_info")), "error/code"), 15);
  m->set_signin_url("http://127.0.0.1:1/signin");
  EXPECT_EQ(str(m->handle(request("get_auth")), "redirect_to"), "http://127.0.0.1:1/signin");

  link(*m);
  EXPECT_TRUE(m->linked());
  const Json::Value info = m->handle(request("get_connection_info"));
  EXPECT_EQ(str(info, "connection/account_type"), "vell");
  EXPECT_TRUE(jsonx::is_object(at(info, "proxy")));
  const Json::Value idle = get_status(*m);
  EXPECT_EQ(num(idle, "status"), st::kIdle);
  EXPECT_THAT(log_types(idle), ElementsAre(5001));
  EXPECT_TRUE(jsonx::get_bool(at(idle, "content"), "connected"));
  EXPECT_EQ(num(idle, "content/billing/quota"), 100000);
  EXPECT_FALSE(jsonx::has(at(idle, "content"), "transfer"));
  EXPECT_EQ(num(m->handle(request("update_tray_menu")), "billing/quota"), 100000);
  for (const char* sub : {"help", "restore_portal", "web_console"})
    EXPECT_EQ(str(m->handle(request("get_portal_link", {{"subaction", sub}})), "url").rfind("https://", 0),
              0u);

  EXPECT_TRUE(ok(m->handle(request("backup_now"))));
  EXPECT_EQ(num(get_status(*m), "status"), st::kPreparingDevice);
  run_for(*m, 600);
  EXPECT_EQ(num(get_status(*m), "status"), st::kPreparingSnapshot);
  run_for(*m, 1400);  // 1 s into the transfer: 250 of 1000 bytes
  const Json::Value running = get_status(*m);
  EXPECT_EQ(num(running, "status"), st::kBackingUp);
  EXPECT_EQ(jsonx::compact(at(running, "content/transfer")),
            R"({"delta_upload":125,"speed":250,"total":1000,"transfer":250})");
  // A second backup_now while one runs is refused with event 1137.
  const Json::UInt64 seen = m->last_log_id();
  m->handle(request("backup_now"));
  EXPECT_THAT(log_types(get_status(*m, seen)), ElementsAre(1137));

  run_for(*m, 3500);
  const Json::Value done = get_status(*m);
  EXPECT_EQ(num(done, "status"), st::kIdle);
  EXPECT_EQ(last_result(done), 2);
  EXPECT_TRUE(jsonx::get_bool(at(done, "content/last_backup_result"), "backed_up"));
  EXPECT_GT(num(done, "content/last_backup_result/last_backup_time"), 0);
  EXPECT_EQ(m->used_bytes(), 500u);
  const auto pushed = m->take_notifications();
  ASSERT_EQ(pushed.size(), 1u);
  EXPECT_EQ(str(pushed[0], "site_path"), "https://eu.console.nimbrabackup.example");
  const Json::Value& n = jsonx::get_array(pushed[0], "notifications")[0];
  EXPECT_EQ(num(n, "type"), 7);
  EXPECT_EQ(num(n, "data/status"), 2);

  EXPECT_TRUE(ok(m->handle(request("logout"))));
  EXPECT_EQ(num(get_status(*m), "status"), st::kNotLinked);
  EXPECT_FALSE(jsonx::has(m->handle(request("get_connection_info")), "connection"));
}

TEST_F(SimModelTest, TokensAreAcceptedOnlyWhenIssuedAndOnlyOnce) {
  auto m = make(simtest::quick_scenario(false));
  EXPECT_EQ(num(m->handle(request("get_token", {{"token", "made-up"}})), "error/code"), 15);
  EXPECT_EQ(num(m->handle(request("get_token", {{"token", 12345}})), "error/code"), 15);
  const std::string a = m->issue_token();
  const Json::Value b = request("get_token", {{"token", m->issue_token()}});
  EXPECT_NE(a, str(b, "token"));
  EXPECT_TRUE(ok(m->handle(b)));
  EXPECT_EQ(num(m->handle(b), "error/code"), 15);
  EXPECT_TRUE(m->token_pending(a));
  EXPECT_FALSE(m->token_pending(str(b, "token")));
  EXPECT_EQ(num(get_status(*m), "status"), st::kSignedIn);

  // create_device needs a site of the account, named with the right types.
  EXPECT_EQ(num(m->handle(create("EU", "sub-us-0001")), "error/code"), 4);
  Json::Value hostile = create("US", "sub-us-0001");
  hostile["zid"] = Json::Value(Json::arrayValue);
  EXPECT_TRUE(jsonx::has(m->handle(hostile), "error"));
  EXPECT_FALSE(m->linked());
  EXPECT_TRUE(ok(m->handle(create("US", "sub-us-0001"))));
  EXPECT_TRUE(m->linked());
}

struct BackupCase {
  const char* label;
  sim::BackupOutcome outcome;  // stopping at 40% when it fails or is cancelled
  std::uint64_t used_before;   // of a 10,000-byte quota; a whole backup uploads 500
  int result;
  int result_event;
  std::uint64_t used_after;
  std::vector<int> pushed_types;
};
void PrintTo(const BackupCase& c, std::ostream* os) { *os << c.label; }

class SimBackupTest : public SimModelTest, public ::testing::WithParamInterface<BackupCase> {};

TEST_P(SimBackupTest, ResultEventsUsageAndNotifications) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.backup.outcome = GetParam().outcome;
  s.backup.stop_at = 0.4;
  s.quota = 10000;
  s.used_bytes = GetParam().used_before;
  auto m = make(s);
  m->handle(request("backup_now"));
  run_for(*m, 10000);
  const Json::Value status = get_status(*m);
  EXPECT_EQ(last_result(status), GetParam().result);
  EXPECT_EQ(m->used_bytes(), GetParam().used_after);
  const std::vector<int> types = log_types(status);
  ASSERT_FALSE(types.empty());
  EXPECT_EQ(types.front(), 1101);
  EXPECT_EQ(types.back(), GetParam().result_event);
  // Every event is one the agent can render (no unknown types); 8014 when the quota is full.
  const std::set<int> known{1101, 1102, 1103, 1104, 1108, 7001, 7002, 7003, 7004,
                            7009, 7010, 7012, 7013, 7014, 7096, 7097, 8014};
  for (int type : types) EXPECT_TRUE(known.count(type)) << type;
  EXPECT_EQ(std::count(types.begin(), types.end(), 8014) > 0,
            GetParam().used_after == 10000 && GetParam().result == 4);
  std::vector<Json::Value> data;
  EXPECT_EQ(pushed_types(*m, data), GetParam().pushed_types);
  EXPECT_EQ(num(data.at(0), "status"), GetParam().result);
  for (std::size_t i = 1; i < data.size(); ++i) EXPECT_EQ(num(data[i], "total_size"), 10000);
}

using sim::BackupOutcome;
INSTANTIATE_TEST_SUITE_P(Cases, SimBackupTest,
                         ::testing::ValuesIn(std::vector<BackupCase>{
                             {"Success", BackupOutcome::kSuccess, 0, 2, 1102, 500, {7}},
                             {"Partial", BackupOutcome::kPartial, 0, 3, 1108, 500, {7}},
                             {"Failed", BackupOutcome::kFailed, 0, 4, 1104, 200, {7}},
                             {"Cancelled", BackupOutcome::kCancelled, 0, 5, 1103, 200, {7}},
                             {"Used70To75", BackupOutcome::kSuccess, 7000, 2, 1102, 7500, {7}},
                             {"Used80To85Exactly", BackupOutcome::kSuccess, 8000, 2, 1102, 8500, {7, 8}},
                             {"Used84_99To89_99", BackupOutcome::kSuccess, 8499, 2, 1102, 8999, {7, 8}},
                             {"AlreadyPast85", BackupOutcome::kSuccess, 8500, 2, 1102, 9000, {7}},
                             {"Used91To96", BackupOutcome::kSuccess, 9100, 2, 1102, 9600, {7, 9}},
                             {"AlreadyPast95", BackupOutcome::kSuccess, 9500, 2, 1102, 10000, {7}},
                             {"QuotaFull", BackupOutcome::kSuccess, 9900, 4, 1104, 10000, {7}}}),
                         [](const auto& test_case) { return std::string(test_case.param.label); });

TEST_F(SimModelTest, LogsAreOnlyThoseAboveLogIdAndAtMostHundred) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.initial_logs = Json::Value(Json::arrayValue);
  for (int i = 0; i < 150; ++i)
    s.initial_logs.append(simtest::parse(R"({"type":7002,"body":{"volume_name":"C:"},"age_seconds":)" +
                                         std::to_string(1000 - i) + "}"));
  auto m = make(s);
  const Json::Value all = logs(get_status(*m, 0));
  ASSERT_EQ(all.size(), 100u);
  EXPECT_EQ(num(all[0], "id"), 51);
  EXPECT_EQ(num(all[99], "id"), 150);
  const Json::Value tail = logs(get_status(*m, 147));
  ASSERT_EQ(tail.size(), 3u);
  EXPECT_EQ(num(tail[0], "id"), 148);
  EXPECT_TRUE(logs(get_status(*m, 150)).empty());
  EXPECT_EQ(logs(get_status(*m, "147")).size(), 100u);  // a log_id of the wrong type reads as 0
}

TEST_F(SimModelTest, StateSurvivesARestartAndARestartCancelsARunningBackup) {
  const std::string state = dir_.file("state");
  std::uint64_t log_id = 0;
  {
    auto m = make(simtest::quick_scenario(false), state);
    link(*m);
    EXPECT_TRUE(ok(m->handle(request(
        "set_bandwidth_control",
        {{"bandwidth", simtest::parse(R"({"bandwidth_type":1,"bandwidth_rate":40,"bandwidth_limit_range":true,
                                          "bandwidth_start_time":"22:00","bandwidth_end_time":"05:00"})")}}))));
    m->handle(request("backup_now"));
    run_for(*m, 6000);
    log_id = m->last_log_id();
  }
  {
    auto m = make(simtest::quick_scenario(false), state);
    EXPECT_TRUE(m->linked());
    EXPECT_EQ(m->last_log_id(), log_id);
    EXPECT_EQ(m->used_bytes(), 500u);
    const Json::Value bw = m->handle(request("get_bandwidth_control"));
    EXPECT_EQ(num(bw, "client_config/bandwidth_rate"), 40);
    EXPECT_EQ(str(bw, "client_config/bandwidth_end_time"), "05:00");
    EXPECT_TRUE(jsonx::has(bw, "server_config"));
    EXPECT_EQ(last_result(get_status(*m)), 2);
    // The log id counter goes on from where it was.
    m->handle(request("backup_now"));
    run_for(*m, 1500);
    ASSERT_TRUE(m->backup_running());
    EXPECT_EQ(num(logs(get_status(*m, static_cast<Json::UInt64>(log_id)))[0], "id"),
              static_cast<std::int64_t>(log_id + 1));
  }
  auto m = make(simtest::quick_scenario(false), state);
  EXPECT_FALSE(m->backup_running());
  const Json::Value status = get_status(*m);
  EXPECT_EQ(log_types(status).back(), 7086);
  EXPECT_EQ(last_result(status), 5);
}

TEST_F(SimModelTest, UnreadableStateFileIsSetAsideNotLost) {
  const std::string state = dir_.file("state");
  std::filesystem::create_directories(state);
  nimbra_test::write_file(state + "/sim-state.json", "{ broken");
  auto m = make(simtest::quick_scenario(true), state);
  EXPECT_TRUE(m->linked());  // the scenario's start
  EXPECT_EQ(nimbra_test::read_file(state + "/sim-state.json.bad"), "{ broken");
  EXPECT_TRUE(nimbra_test::file_exists(state + "/sim-state.json"));
}

TEST_F(SimModelTest, ScenarioErrorsApplyTheGivenNumberOfTimes) {
  sim::Scenario s = simtest::quick_scenario(false);
  s.errors["get_auth"] = sim::ErrorRule{17, "https://console.example/key", 1};  // code, base_url, times
  auto m = make(s);
  m->set_signin_url("http://127.0.0.1:9/signin");
  const Json::Value first = m->handle(request("get_auth"));
  EXPECT_EQ(num(first, "error/code"), 17);
  EXPECT_EQ(str(first, "error/base_url"), "https://console.example/key");
  EXPECT_EQ(str(m->handle(request("get_auth")), "redirect_to"), "http://127.0.0.1:9/signin");
}

TEST_F(SimModelTest, UpgradeWritesServiceStatus) {
  for (bool fails : {false, true}) {
    nimbra_test::TempDir ws;
    sim::Scenario s = simtest::quick_scenario(true);
    s.upgrade.enabled = true;
    s.upgrade.start_after_seconds = 1;
    s.upgrade.duration_seconds = 2;
    s.upgrade.fails = fails;
    DeviceModel m(s, std::string(), ws.path(), [this] { return clock_.now.load(); });
    m.advance();
    EXPECT_FALSE(nimbra_test::file_exists(ws.file("service-status")));
    run_for(m, 1000);
    EXPECT_EQ(nimbra_test::read_file(ws.file("service-status")), "updating\n");
    run_for(m, 2000);
    EXPECT_EQ(nimbra_test::read_file(ws.file("service-status")), fails ? "update_error\n" : "");
  }
}

TEST_F(SimModelTest, DatedScheduleAndAutomaticBackupStartOnTime) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.schedule = simtest::parse(R"({"next_backup_in_seconds":10})");
  auto m = make(s);
  const std::int64_t start_s = clock_.now / 1000;
  const Json::Value before = get_status(*m);
  EXPECT_EQ(num(before, "content/next_backup_time"), start_s + 10);
  EXPECT_FALSE(jsonx::has(at(before, "content"), "schedule_type"));
  run_for(*m, 9900);
  EXPECT_FALSE(m->backup_running());
  run_for(*m, 100);
  EXPECT_TRUE(m->backup_running());
  EXPECT_EQ(num(get_status(*m), "content/next_backup_time"), start_s + 20);

  // The scenario's automatic backup runs once, after its delay.
  s = simtest::quick_scenario(true);
  s.auto_backup_after_seconds = 2;
  m = make(s);
  run_for(*m, 1900);
  EXPECT_FALSE(m->backup_running());
  run_for(*m, 100);
  EXPECT_TRUE(m->backup_running());
  run_for(*m, 20000);
  EXPECT_FALSE(m->backup_running());
  EXPECT_EQ(m->take_notifications().size(), 1u);
}

struct IdleCase {
  const char* label;
  bool connected;
  std::int64_t error_code;  // 0: none
  int status;
  int schedule_type;
};
void PrintTo(const IdleCase& c, std::ostream* os) { *os << c.label; }

class SimIdleStatusTest : public SimModelTest, public ::testing::WithParamInterface<IdleCase> {};

TEST_P(SimIdleStatusTest, StatusAndContentMembers) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.connected = GetParam().connected;
  if (GetParam().error_code != 0) s.status_error["code"] = static_cast<Json::Int64>(GetParam().error_code);
  s.schedule = Json::Value(Json::objectValue);  // replaces the default schedule
  s.schedule["schedule_type"] = GetParam().schedule_type;
  auto m = make(s);
  const Json::Value v = get_status(*m);
  const Json::Value& c = at(v, "content");
  EXPECT_EQ(num(v, "status"), GetParam().status);
  EXPECT_EQ(jsonx::get_bool(c, "connected"), GetParam().connected);
  EXPECT_EQ(num(c, "error/code"), GetParam().error_code);
  EXPECT_EQ(jsonx::has(c, "error"), GetParam().error_code != 0);
  EXPECT_EQ(num(c, "schedule_type"), GetParam().schedule_type);
  EXPECT_FALSE(jsonx::has(c, "next_backup_time"));
  EXPECT_TRUE(jsonx::has(at(c, "billing"), "used_bytes"));
}

INSTANTIATE_TEST_SUITE_P(States, SimIdleStatusTest,
                         ::testing::Values(IdleCase{"Idle", true, 0, 0x2001, 4},
                                           IdleCase{"Offline", false, 0, 0x2002, 3},
                                           IdleCase{"ServiceError", true, 5, 0xF001, 1}),
                         [](const auto& test_case) { return std::string(test_case.param.label); });

TEST(SimHostileAnswers, EveryScalarChangesType) {
  const Json::Value in = simtest::parse(
      R"({"status":8193,"content":{"connected":true,"logs":[{"id":3,"body":{"volume_name":"C:"}}],"e":""}})");
  const Json::Value out = sim::make_hostile(in);
  EXPECT_TRUE(out["status"].isString());
  EXPECT_EQ(jsonx::get_int64(out, "status"), 0);  // the agent reads the default
  EXPECT_TRUE(out["content"]["connected"].isString());
  EXPECT_TRUE(out["content"]["logs"][0]["id"].isString());
  EXPECT_TRUE(out["content"]["logs"][0]["body"]["volume_name"].isArray());
  EXPECT_TRUE(out["content"]["e"].isInt());
}

}  // namespace
