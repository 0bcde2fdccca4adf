// The device model: sign-in, linking, backups and their results, quota
// notifications, the state file across restarts. (Hostile requests go
// through the pipe in pipe-service-test.cpp.)
#include <gmock/gmock.h>

#include <filesystem>
#include <set>

#include "service-sim/device-model.h"
#include "tests/service-sim/sim-test-util.h"
#include "tests/support/temp-dir.h"

using namespace simtest;
namespace sim {
void PrintTo(BackupOutcome o, std::ostream* os) {
  *os << static_cast<int>(o);
}
}  // namespace sim
using sim::DeviceModel;
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

  simtest::ManualClock clock_;
  nimbra_test::TempDir dir_;
};

// (The story from sign-in to a backup's result and logout is played whole by
// the desktop tests.) What the agent's screens do not reach: the portal links
// and a second backup_now while one runs, refused with event 1137.
TEST_F(SimModelTest, PortalLinksAndASecondBackupWhileOneRuns) {
  auto m = make(quick_scenario(true));
  for (const char* sub : {"help", "restore_portal", "web_console"})
    EXPECT_EQ(str(m->handle(request("get_portal_link", {{"subaction", sub}})), "url").rfind("https://", 0),
              0u);
  EXPECT_TRUE(ok(m->handle(request("backup_now"))));
  run_for(*m, 2000);  // 1 s into the transfer: 250 of 1000 bytes
  EXPECT_EQ(jsonx::compact(at(get_status(*m), "content/transfer")),
            R"({"delta_upload":125,"speed":250,"total":1000,"transfer":250})");
  const Json::UInt64 seen = m->last_log_id();
  m->handle(request("backup_now"));
  EXPECT_THAT(log_types(get_status(*m, seen)), ElementsAre(1137));
}

TEST_F(SimModelTest, TokensAreAcceptedOnlyWhenIssuedAndOnlyOnce) {
  auto m = make(quick_scenario(false));
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

// Columns: outcome (stopping at 40% when it fails or is cancelled), bytes used
// of a 10,000-byte quota before (a whole backup uploads 500) and after, the
// result and its event, the types of the pushed notifications.
using BackupCase = std::tuple<sim::BackupOutcome, int, int, int, int, std::vector<int>>;
class SimBackupTest : public SimModelTest, public ::testing::WithParamInterface<BackupCase> {};

TEST_P(SimBackupTest, ResultEventsUsageAndNotifications) {
  const auto& [outcome, used_before, used_after, result, result_event, pushed_types] = GetParam();
  sim::Scenario s = quick_scenario(true);
  s.backup.outcome = outcome;
  s.backup.stop_at = 0.4;
  s.quota = 10000;
  s.used_bytes = used_before;
  auto m = make(s);
  m->handle(request("backup_now"));
  run_for(*m, 10000);
  const Json::Value status = get_status(*m);
  EXPECT_EQ(last_result(status), result);
  EXPECT_EQ(m->used_bytes(), static_cast<std::uint64_t>(used_after));
  const std::vector<int> types = log_types(status);
  ASSERT_FALSE(types.empty());
  EXPECT_EQ(types.front(), 1101);
  EXPECT_EQ(types.back(), result_event);
  // Every event is one the agent can render (no unknown types); 8014 when the quota is full.
  const std::set<int> known{1101, 1102, 1103, 1104, 1108, 7001, 7002, 7003, 7004,
                            7009, 7010, 7012, 7013, 7014, 7096, 7097, 8014};
  for (int type : types) EXPECT_TRUE(known.count(type)) << type;
  EXPECT_EQ(std::count(types.begin(), types.end(), 8014) > 0, used_after == 10000 && result == 4);
  const auto pushed = m->take_notifications();
  ASSERT_EQ(pushed.size(), pushed_types.size());
  for (std::size_t i = 0; i < pushed.size(); ++i) {
    EXPECT_EQ(jsonx::get_string(pushed[i], "action"), "notifications");
    const Json::Value& n = jsonx::get_array(pushed[i], "notifications")[0];
    EXPECT_EQ(num(n, "type"), pushed_types[i]);
    EXPECT_EQ(num(n, i == 0 ? "data/status" : "data/total_size"), i == 0 ? result : 10000);
  }
}

using sim::BackupOutcome;
INSTANTIATE_TEST_SUITE_P(Cases, SimBackupTest,
                         ::testing::Values(BackupCase{BackupOutcome::kSuccess, 0, 500, 2, 1102, {7}},
                                           BackupCase{BackupOutcome::kPartial, 0, 500, 3, 1108, {7}},
                                           BackupCase{BackupOutcome::kFailed, 0, 200, 4, 1104, {7}},
                                           BackupCase{BackupOutcome::kCancelled, 0, 200, 5, 1103, {7}},
                                           // 85% reached exactly, and from just below it.
                                           BackupCase{BackupOutcome::kSuccess, 8000, 8500, 2, 1102, {7, 8}},
                                           BackupCase{BackupOutcome::kSuccess, 8499, 8999, 2, 1102, {7, 8}},
                                           BackupCase{BackupOutcome::kSuccess, 8500, 9000, 2, 1102, {7}},
                                           BackupCase{BackupOutcome::kSuccess, 9100, 9600, 2, 1102, {7, 9}},
                                           BackupCase{BackupOutcome::kSuccess, 9500, 10000, 2, 1102, {7}},
                                           BackupCase{BackupOutcome::kSuccess, 9900, 10000, 4, 1104, {7}}));

TEST_F(SimModelTest, LogsAreOnlyThoseAboveLogIdAndAtMostHundred) {
  sim::Scenario s = quick_scenario(true);
  s.initial_logs = Json::Value(Json::arrayValue);
  for (int i = 0; i < 150; ++i)
    s.initial_logs.append(
        parse(R"({"type":7002,"body":{"volume_name":"C:"},"age_seconds":)" + std::to_string(1000 - i) + "}"));
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
    auto m = make(quick_scenario(false), state);
    link(*m);
    EXPECT_TRUE(ok(m->handle(
        request("set_bandwidth_control",
                {{"bandwidth", parse(R"({"bandwidth_type":1,"bandwidth_rate":40,"bandwidth_limit_range":true,
                                          "bandwidth_start_time":"22:00","bandwidth_end_time":"05:00"})")}}))));
    m->handle(request("backup_now"));
    run_for(*m, 6000);
    log_id = m->last_log_id();
  }
  {
    auto m = make(quick_scenario(false), state);
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
  auto m = make(quick_scenario(false), state);
  EXPECT_FALSE(m->backup_running());
  const Json::Value status = get_status(*m);
  EXPECT_EQ(log_types(status).back(), 7086);
  EXPECT_EQ(last_result(status), 5);
}

TEST_F(SimModelTest, UnreadableStateFileIsSetAsideNotLost) {
  const std::string state = dir_.file("state");
  std::filesystem::create_directories(state);
  nimbra_test::write_file(state + "/sim-state.json", "{ broken");
  auto m = make(quick_scenario(true), state);
  EXPECT_TRUE(m->linked());  // the scenario's start
  EXPECT_EQ(nimbra_test::read_file(state + "/sim-state.json.bad"), "{ broken");
  EXPECT_TRUE(nimbra_test::file_exists(state + "/sim-state.json"));
}

TEST_F(SimModelTest, UpgradeWritesServiceStatus) {
  for (bool fails : {false, true}) {
    nimbra_test::TempDir ws;
    sim::Scenario s = quick_scenario(true);
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
  sim::Scenario s = quick_scenario(true);
  s.schedule = parse(R"({"next_backup_in_seconds":10})");
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
  s = quick_scenario(true);
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

}  // namespace
