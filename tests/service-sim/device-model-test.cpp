// The device model: sign-in, linking, backups and their results, quota
// notifications, the state file across restarts, hostile requests.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <set>

#include "device-model.h"
#include "sim-test-util.h"
#include "support/temp-dir.h"

using sim::DeviceModel;
using simtest::request;
namespace st = sim::status;

namespace {

class SimModelTest : public ::testing::Test {
 protected:
  sim::Clock clock() {
    return [this] { return clock_.now.load(); };
  }
  std::unique_ptr<DeviceModel> make(const sim::Scenario& s, const std::string& state = std::string()) {
    auto m = std::make_unique<DeviceModel>(s, state, dir_.file("ws"), clock());
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
  void link(DeviceModel& m) {
    const std::string token = m.issue_token();
    Json::Value r = request("get_token");
    r["token"] = token;
    ASSERT_TRUE(jsonx::get_bool(m.handle(r), "success"));
    Json::Value c = request("create_device");
    c["zid"] = "EU";
    c["subscription_id"] = "sub-eu-0001";
    c["account_type"] = "vell";
    ASSERT_TRUE(jsonx::get_bool(m.handle(c), "success")) << jsonx::compact(m.handle(c));
  }
  static std::vector<int> log_types(const Json::Value& status) {
    std::vector<int> types;
    for (const auto& e : jsonx::get_array(jsonx::get_object(status, "content"), "logs"))
      types.push_back(jsonx::get_int32(e, "type"));
    return types;
  }
  static Json::Value get_status(DeviceModel& m, std::uint64_t log_id = 0) {
    Json::Value r = request("get_status");
    r["log_id"] = static_cast<Json::UInt64>(log_id);
    return m.handle(r);
  }

  simtest::ManualClock clock_;
  nimbra_test::TempDir dir_;
};

TEST_F(SimModelTest, WholeStoryFromSignInToLogout) {
  auto m = make(simtest::quick_scenario(false));
  EXPECT_EQ(jsonx::get_int32(get_status(*m), "status"), st::kNotLinked);
  EXPECT_FALSE(jsonx::has(m->handle(request("get_connection_info")), "connection"));
  // No site list and no device before a token was accepted.
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(m->handle(request("get_site_info")), "error"), "code"), 15);
  m->set_signin_url("http://127.0.0.1:1/signin");
  EXPECT_EQ(jsonx::get_string(m->handle(request("get_auth")), "redirect_to"), "http://127.0.0.1:1/signin");

  link(*m);
  EXPECT_TRUE(m->linked());
  const Json::Value info = m->handle(request("get_connection_info"));
  const Json::Value& conn = jsonx::get_object(info, "connection");
  EXPECT_EQ(jsonx::get_string(conn, "email"), "alex@example.com");
  EXPECT_EQ(jsonx::get_string(conn, "account_type"), "vell");
  EXPECT_EQ(jsonx::get_int64(conn, "port"), 443);
  EXPECT_TRUE(jsonx::is_object(jsonx::member(info, "proxy")));

  Json::Value idle = get_status(*m);
  EXPECT_EQ(jsonx::get_int32(idle, "status"), st::kIdle);
  EXPECT_THAT(log_types(idle), ::testing::ElementsAre(5001));
  const Json::Value& content = jsonx::get_object(idle, "content");
  EXPECT_TRUE(jsonx::get_bool(content, "connected"));
  EXPECT_EQ(jsonx::get_uint64(jsonx::get_object(content, "billing"), "quota"), 100000u);
  EXPECT_FALSE(jsonx::has(content, "transfer"));

  EXPECT_TRUE(jsonx::get_bool(m->handle(request("backup_now")), "success"));
  EXPECT_EQ(jsonx::get_int32(get_status(*m), "status"), st::kPreparingDevice);
  run_for(*m, 600);
  EXPECT_EQ(jsonx::get_int32(get_status(*m), "status"), st::kPreparingSnapshot);
  run_for(*m, 1400);  // 1 s into the transfer: 250 of 1000 bytes
  Json::Value running = get_status(*m);
  EXPECT_EQ(jsonx::get_int32(running, "status"), st::kBackingUp);
  const Json::Value& t = jsonx::get_object(jsonx::get_object(running, "content"), "transfer");
  EXPECT_EQ(jsonx::get_uint64(t, "total"), 1000u);
  EXPECT_EQ(jsonx::get_uint64(t, "transfer"), 250u);
  EXPECT_EQ(jsonx::get_uint64(t, "delta_upload"), 125u);
  EXPECT_EQ(jsonx::get_int64(t, "speed"), 250);

  // A second backup_now while one runs is refused with event 1137.
  const std::uint64_t seen = m->last_log_id();
  m->handle(request("backup_now"));
  EXPECT_THAT(log_types(get_status(*m, seen)), ::testing::ElementsAre(1137));

  run_for(*m, 3500);
  Json::Value done = get_status(*m);
  EXPECT_EQ(jsonx::get_int32(done, "status"), st::kIdle);
  const Json::Value& last = jsonx::get_object(jsonx::get_object(done, "content"), "last_backup_result");
  EXPECT_EQ(jsonx::get_int32(last, "last_backup_status"), 2);
  EXPECT_TRUE(jsonx::get_bool(last, "backed_up"));
  EXPECT_GT(jsonx::get_int64(last, "last_backup_time"), 0);
  EXPECT_EQ(m->used_bytes(), 500u);

  const auto pushed = m->take_notifications();
  ASSERT_EQ(pushed.size(), 1u);
  EXPECT_EQ(jsonx::get_string(pushed[0], "action"), "notifications");
  const Json::Value& n = jsonx::get_array(pushed[0], "notifications")[0];
  EXPECT_EQ(jsonx::get_int32(n, "type"), 7);
  EXPECT_EQ(jsonx::get_int32(jsonx::get_object(n, "data"), "status"), 2);
  EXPECT_EQ(jsonx::get_string(pushed[0], "site_path"), "https://eu.console.nimbrabackup.example");

  EXPECT_TRUE(jsonx::get_bool(m->handle(request("logout")), "success"));
  EXPECT_EQ(jsonx::get_int32(get_status(*m), "status"), st::kNotLinked);
  EXPECT_FALSE(jsonx::has(m->handle(request("get_connection_info")), "connection"));
}

TEST_F(SimModelTest, TokensAreAcceptedOnlyWhenIssuedAndOnlyOnce) {
  auto m = make(simtest::quick_scenario(false));
  Json::Value r = request("get_token");
  r["token"] = "made-up";
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(m->handle(r), "error"), "code"), 15);
  r["token"] = 12345;  // wrong type
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(m->handle(r), "error"), "code"), 15);
  const std::string a = m->issue_token();
  const std::string b = m->issue_token();
  EXPECT_NE(a, b);
  r["token"] = b;
  EXPECT_TRUE(jsonx::get_bool(m->handle(r), "success"));
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(m->handle(r), "error"), "code"), 15);
  EXPECT_TRUE(m->token_pending(a));
  EXPECT_FALSE(m->token_pending(b));
  EXPECT_EQ(jsonx::get_int32(get_status(*m), "status"), st::kSignedIn);
}

TEST_F(SimModelTest, CreateDeviceNeedsASiteOfTheAccount) {
  auto m = make(simtest::quick_scenario(false));
  Json::Value t = request("get_token");
  t["token"] = m->issue_token();
  m->handle(t);
  Json::Value c = request("create_device");
  c["zid"] = "EU";
  c["subscription_id"] = "sub-us-0001";  // another site's subscription
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(m->handle(c), "error"), "code"), 4);
  c["zid"] = Json::Value(Json::arrayValue);  // hostile type
  EXPECT_TRUE(jsonx::has(m->handle(c), "error"));
  EXPECT_FALSE(m->linked());
  c["zid"] = "US";
  c["subscription_id"] = "sub-us-0001";
  EXPECT_TRUE(jsonx::get_bool(m->handle(c), "success"));
  EXPECT_TRUE(m->linked());
}

struct OutcomeCase {
  sim::BackupOutcome outcome;
  int status_code;
  int result_event;
  std::uint64_t bytes_read;  // of 1000
};

class SimOutcomeTest : public SimModelTest, public ::testing::WithParamInterface<OutcomeCase> {};

TEST_P(SimOutcomeTest, ResultCodeEventsAndProgress) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.backup.outcome = GetParam().outcome;
  s.backup.stop_at = 0.4;
  auto m = make(s);
  m->handle(request("backup_now"));
  run_for(*m, 10000);
  const Json::Value status = get_status(*m);
  const Json::Value& last = jsonx::get_object(jsonx::get_object(status, "content"), "last_backup_result");
  EXPECT_EQ(jsonx::get_int32(last, "last_backup_status"), GetParam().status_code);
  const std::vector<int> types = log_types(status);
  ASSERT_FALSE(types.empty());
  EXPECT_EQ(types.front(), 1101);
  EXPECT_EQ(types.back(), GetParam().result_event);
  // Every event is one the agent can render (no unknown types).
  const std::set<int> known{1101, 1102, 1103, 1104, 1108, 7001, 7002, 7003, 7004,
                            7009, 7010, 7012, 7013, 7014, 7096, 7097, 8014};
  for (int type : types) EXPECT_TRUE(known.count(type)) << type;
  EXPECT_EQ(m->used_bytes(), GetParam().bytes_read / 2);
  const auto pushed = m->take_notifications();
  ASSERT_EQ(pushed.size(), 1u);
  EXPECT_EQ(
      jsonx::get_int32(jsonx::get_object(jsonx::get_array(pushed[0], "notifications")[0], "data"), "status"),
      GetParam().status_code);
}

INSTANTIATE_TEST_SUITE_P(Outcomes, SimOutcomeTest,
                         ::testing::Values(OutcomeCase{sim::BackupOutcome::kSuccess, 2, 1102, 1000},
                                           OutcomeCase{sim::BackupOutcome::kPartial, 3, 1108, 1000},
                                           OutcomeCase{sim::BackupOutcome::kFailed, 4, 1104, 400},
                                           OutcomeCase{sim::BackupOutcome::kCancelled, 5, 1103, 400}));

struct QuotaCase {
  std::uint64_t used_before;  // of a 10,000-byte quota; the backup uploads 500
  std::vector<int> pushed_types;
};

class SimQuotaTest : public SimModelTest, public ::testing::WithParamInterface<QuotaCase> {};

TEST_P(SimQuotaTest, CrossingEightyFiveAndNinetyFivePercentIsPushed) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.quota = 10000;
  s.used_bytes = GetParam().used_before;
  auto m = make(s);
  m->handle(request("backup_now"));
  run_for(*m, 6000);
  std::vector<int> types;
  for (const auto& request_ : m->take_notifications()) {
    const Json::Value& n = jsonx::get_array(request_, "notifications")[0];
    types.push_back(jsonx::get_int32(n, "type"));
    if (types.back() != 7) {
      EXPECT_EQ(jsonx::get_uint64(jsonx::get_object(n, "data"), "total_size"), 10000u);
    }
  }
  EXPECT_EQ(types, GetParam().pushed_types);
}

INSTANTIATE_TEST_SUITE_P(Thresholds, SimQuotaTest,
                         ::testing::Values(QuotaCase{7000, {7}},     // 70% -> 75%
                                           QuotaCase{8000, {7, 8}},  // 80% -> 85% exactly
                                           QuotaCase{8500, {7}},     // already past 85%
                                           QuotaCase{9100, {7, 9}},  // 91% -> 96%
                                           QuotaCase{8499, {7, 8}},  // 84.99% -> 89.99%
                                           QuotaCase{9500, {7}}));   // already full

TEST_F(SimModelTest, BackupStopsWhenTheQuotaIsFull) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.quota = 10000;
  s.used_bytes = 9900;  // room for 100 uploaded bytes = 200 read
  auto m = make(s);
  m->handle(request("backup_now"));
  run_for(*m, 6000);
  const Json::Value status = get_status(*m);
  EXPECT_EQ(jsonx::get_int32(jsonx::get_object(jsonx::get_object(status, "content"), "last_backup_result"),
                             "last_backup_status"),
            4);
  EXPECT_THAT(log_types(status), ::testing::Contains(8014));
  EXPECT_EQ(m->used_bytes(), 10000u);
}

TEST_F(SimModelTest, LogsAreOnlyThoseAboveLogIdAndAtMostHundred) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.initial_logs = Json::Value(Json::arrayValue);
  for (int i = 0; i < 150; ++i) {
    Json::Value e(Json::objectValue);
    e["type"] = 7002;
    e["body"]["volume_name"] = "C:";
    e["age_seconds"] = 1000 - i;
    s.initial_logs.append(e);
  }
  auto m = make(s);
  const Json::Value first = get_status(*m, 0);
  const Json::Value& all = jsonx::get_array(jsonx::get_object(first, "content"), "logs");
  ASSERT_EQ(all.size(), 100u);
  EXPECT_EQ(jsonx::get_uint64(all[0], "id"), 51u);
  EXPECT_EQ(jsonx::get_uint64(all[99], "id"), 150u);
  const Json::Value later = get_status(*m, 147);
  const Json::Value& tail = jsonx::get_array(jsonx::get_object(later, "content"), "logs");
  ASSERT_EQ(tail.size(), 3u);
  EXPECT_EQ(jsonx::get_uint64(tail[0], "id"), 148u);
  EXPECT_TRUE(jsonx::get_array(jsonx::get_object(get_status(*m, 150), "content"), "logs").empty());
  // A log_id of the wrong type reads as 0.
  Json::Value r = request("get_status");
  r["log_id"] = "147";
  EXPECT_EQ(jsonx::get_array(jsonx::get_object(m->handle(r), "content"), "logs").size(), 100u);
}

TEST_F(SimModelTest, StateSurvivesARestart) {
  const std::string state = dir_.file("state");
  std::uint64_t log_id = 0;
  {
    auto m = make(simtest::quick_scenario(false), state);
    link(*m);
    Json::Value bw = request("set_bandwidth_control");
    bw["bandwidth"]["bandwidth_type"] = 1;
    bw["bandwidth"]["bandwidth_rate"] = 40;
    bw["bandwidth"]["bandwidth_limit_range"] = true;
    bw["bandwidth"]["bandwidth_start_time"] = "22:00";
    bw["bandwidth"]["bandwidth_end_time"] = "05:00";
    EXPECT_TRUE(jsonx::get_bool(m->handle(bw), "success"));
    m->handle(request("backup_now"));
    run_for(*m, 6000);
    log_id = m->last_log_id();
  }
  auto m = make(simtest::quick_scenario(false), state);
  EXPECT_TRUE(m->linked());
  EXPECT_EQ(m->last_log_id(), log_id);
  EXPECT_EQ(m->used_bytes(), 500u);
  const Json::Value bw = m->handle(request("get_bandwidth_control"));
  const Json::Value& client = jsonx::get_object(bw, "client_config");
  EXPECT_EQ(jsonx::get_int32(client, "bandwidth_rate"), 40);
  EXPECT_EQ(jsonx::get_string(client, "bandwidth_end_time"), "05:00");
  EXPECT_TRUE(jsonx::has(bw, "server_config"));
  const Json::Value resumed = get_status(*m);
  const Json::Value& content = jsonx::get_object(resumed, "content");
  EXPECT_EQ(jsonx::get_int32(jsonx::get_object(content, "last_backup_result"), "last_backup_status"), 2);
  // The log id counter goes on from where it was.
  m->handle(request("backup_now"));
  run_for(*m, 100);
  EXPECT_GT(m->last_log_id(), log_id);
  EXPECT_EQ(jsonx::get_uint64(
                jsonx::get_array(jsonx::get_object(get_status(*m, log_id), "content"), "logs")[0], "id"),
            log_id + 1);
}

TEST_F(SimModelTest, RestartDuringABackupRecordsItAsCancelled) {
  const std::string state = dir_.file("state");
  {
    auto m = make(simtest::quick_scenario(true), state);
    m->handle(request("backup_now"));
    run_for(*m, 1500);
    ASSERT_TRUE(m->backup_running());
  }
  auto m = make(simtest::quick_scenario(true), state);
  EXPECT_FALSE(m->backup_running());
  const Json::Value status = get_status(*m);
  EXPECT_EQ(log_types(status).back(), 7086);
  EXPECT_EQ(jsonx::get_int32(jsonx::get_object(jsonx::get_object(status, "content"), "last_backup_result"),
                             "last_backup_status"),
            5);
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

struct BadRequest {
  const char* label;
  const char* json;
};

class SimHostileRequestTest : public SimModelTest, public ::testing::WithParamInterface<BadRequest> {};

TEST_P(SimHostileRequestTest, AnsweredWithAnErrorAndTheModelGoesOn) {
  auto m = make(simtest::quick_scenario(true));
  const Json::Value answer = m->handle(simtest::parse(GetParam().json));
  EXPECT_TRUE(jsonx::has(answer, "error")) << jsonx::compact(answer);
  EXPECT_EQ(jsonx::get_int32(get_status(*m), "status"), st::kIdle);
}

INSTANTIATE_TEST_SUITE_P(
    Requests, SimHostileRequestTest,
    ::testing::Values(
        BadRequest{"NotAnObject", "[1,2]"}, BadRequest{"NoAction", "{\"log_id\":1}"},
        BadRequest{"ActionNumber", "{\"action\":7}"},
        BadRequest{"UnknownAction", "{\"action\":\"format_disk\"}"},
        BadRequest{"BandwidthString", "{\"action\":\"set_bandwidth_control\",\"bandwidth\":\"fast\"}"},
        BadRequest{"PortalUnknown", "{\"action\":\"get_portal_link\",\"subaction\":\"admin\"}"},
        BadRequest{"PortalWrongType", "{\"action\":\"get_portal_link\",\"subaction\":[\"help\"]}"}),
    [](const auto& test_case) { return std::string(test_case.param.label); });

TEST_F(SimModelTest, ScenarioErrorsApplyTheGivenNumberOfTimes) {
  sim::Scenario s = simtest::quick_scenario(false);
  sim::ErrorRule rule;
  rule.code = 17;
  rule.base_url = "https://console.example/key";
  rule.times = 1;
  s.errors["get_auth"] = rule;
  auto m = make(s);
  m->set_signin_url("http://127.0.0.1:9/signin");
  const Json::Value first = m->handle(request("get_auth"));
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(first, "error"), "code"), 17);
  EXPECT_EQ(jsonx::get_string(jsonx::get_object(first, "error"), "base_url"), "https://console.example/key");
  EXPECT_EQ(jsonx::get_string(m->handle(request("get_auth")), "redirect_to"), "http://127.0.0.1:9/signin");
}

TEST_F(SimModelTest, UpgradeWritesServiceStatus) {
  for (bool fails : {false, true}) {
    nimbra_test::TempDir ws;
    sim::Scenario s = simtest::quick_scenario(true);
    s.upgrade.enabled = true;
    s.upgrade.start_after_seconds = 1;
    s.upgrade.duration_seconds = 2;
    s.upgrade.fails = fails;
    DeviceModel m(s, std::string(), ws.path(), clock());
    m.advance();
    EXPECT_FALSE(nimbra_test::file_exists(ws.file("service-status")));
    run_for(m, 1000);
    EXPECT_EQ(nimbra_test::read_file(ws.file("service-status")), "updating\n");
    run_for(m, 2000);
    EXPECT_EQ(nimbra_test::read_file(ws.file("service-status")), fails ? "update_error\n" : "");
  }
}

TEST_F(SimModelTest, PortalLinksAndTrayMenu) {
  auto m = make(simtest::quick_scenario(true));
  Json::Value r = request("get_portal_link");
  for (const char* sub : {"help", "restore_portal", "web_console"}) {
    r["subaction"] = sub;
    EXPECT_EQ(jsonx::get_string(m->handle(r), "url").rfind("https://", 0), 0u) << sub;
  }
  const Json::Value tray = m->handle(request("update_tray_menu"));
  EXPECT_EQ(jsonx::get_uint64(jsonx::get_object(tray, "billing"), "quota"), 100000u);
}

TEST_F(SimModelTest, DatedScheduleStartsBackupsAndMovesOn) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.schedule = Json::Value(Json::objectValue);
  s.schedule["next_backup_in_seconds"] = 10;
  auto m = make(s);
  const std::int64_t start_s = clock_.now / 1000;
  const Json::Value before = get_status(*m);
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(before, "content"), "next_backup_time"), start_s + 10);
  EXPECT_FALSE(jsonx::has(jsonx::get_object(before, "content"), "schedule_type"));
  run_for(*m, 9900);
  EXPECT_FALSE(m->backup_running());
  run_for(*m, 100);
  EXPECT_TRUE(m->backup_running());
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(get_status(*m), "content"), "next_backup_time"), start_s + 20);
}

TEST_F(SimModelTest, AutomaticBackupRunsOnceAfterItsDelay) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.auto_backup_after_seconds = 2;
  auto m = make(s);
  run_for(*m, 1900);
  EXPECT_FALSE(m->backup_running());
  run_for(*m, 100);
  EXPECT_TRUE(m->backup_running());
  run_for(*m, 20000);
  EXPECT_FALSE(m->backup_running());
  EXPECT_EQ(m->take_notifications().size(), 1u);  // one backup only
}

struct IdleCase {
  const char* label;
  bool connected;
  std::int64_t error_code;  // 0: none
  int status;
  int schedule_type;
};

class SimIdleStatusTest : public SimModelTest, public ::testing::WithParamInterface<IdleCase> {};

TEST_P(SimIdleStatusTest, StatusAndContentMembers) {
  sim::Scenario s = simtest::quick_scenario(true);
  s.connected = GetParam().connected;
  if (GetParam().error_code != 0) s.status_error["code"] = static_cast<Json::Int64>(GetParam().error_code);
  s.schedule = Json::Value(Json::objectValue);
  s.schedule["schedule_type"] = GetParam().schedule_type;
  auto m = make(s);
  const Json::Value v = get_status(*m);
  EXPECT_EQ(jsonx::get_int32(v, "status"), GetParam().status);
  const Json::Value& c = jsonx::get_object(v, "content");
  EXPECT_EQ(jsonx::get_bool(c, "connected"), GetParam().connected);
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(c, "error"), "code"), GetParam().error_code);
  EXPECT_EQ(jsonx::has(c, "error"), GetParam().error_code != 0);
  EXPECT_EQ(jsonx::get_int32(c, "schedule_type"), GetParam().schedule_type);
  EXPECT_FALSE(jsonx::has(c, "next_backup_time"));
  EXPECT_TRUE(jsonx::has(jsonx::get_object(c, "billing"), "used_bytes"));
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
