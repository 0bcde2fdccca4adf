// The service pipe end to end: real transport, real model, the record file,
// faults, bad input, and many clients at once.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <thread>
#include <vector>

#include "agent-client.h"
#include "device-model.h"
#include "pipe-service.h"
#include "sim-test-util.h"
#include "support/temp-dir.h"
#include "win-ipc.h"

using simtest::parse;
using simtest::request;

namespace {

class SimPipeTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ns_ = std::make_unique<nimbra_test::ScopedEnv>("NIMBRA_PIPE_NAMESPACE",
                                                   simtest::unique_namespace("pipe").c_str());
  }

  void start(const sim::Scenario& s, sim::PipeService::Options o = {}) {
    model_ = std::make_unique<sim::DeviceModel>(s, dir_.file("state"), dir_.file("ws"),
                                                [this] { return clock_.now.load(); });
    model_->load_state();
    if (o.record_path.empty()) o.record_path = dir_.file("record.jsonl");
    o.accept_timeout_ms = 50;
    service_ = std::make_unique<sim::PipeService>(*model_, o);
    std::string error;
    ASSERT_TRUE(service_->start(error)) << error;
  }
  void TearDown() override {
    if (service_) service_->stop();
  }
  static sim::Exchange send(const std::string& text) {
    return sim::exchange(WinIpc::kServicePipe, text, 2000);
  }
  static Json::Value ask(const Json::Value& r) {
    const sim::Exchange ex = send(jsonx::compact(r));
    EXPECT_TRUE(ex.ok) << ex.error;
    return parse(ex.answer);
  }
  std::vector<Json::Value> recorded() {
    std::vector<Json::Value> lines;
    std::istringstream in(nimbra_test::read_file(dir_.file("record.jsonl")));
    std::string line;
    while (std::getline(in, line)) lines.push_back(parse(line));
    return lines;
  }

  nimbra_test::TempDir dir_;
  std::unique_ptr<nimbra_test::ScopedEnv> ns_;
  simtest::ManualClock clock_;
  std::unique_ptr<sim::DeviceModel> model_;
  std::unique_ptr<sim::PipeService> service_;
};

TEST_F(SimPipeTest, SignInLinkBackupResultLogoutThroughThePipe) {
  start(simtest::quick_scenario(false));
  EXPECT_EQ(jsonx::get_int32(ask(request("get_status")), "status"), sim::status::kNotLinked);
  Json::Value token = request("get_token");
  token["token"] = model_->issue_token();
  EXPECT_TRUE(jsonx::get_bool(ask(token), "success"));
  const Json::Value sites = ask(request("get_site_info"));
  ASSERT_EQ(jsonx::get_array(sites, "data").size(), 2u);
  const Json::Value& site = jsonx::get_array(sites, "data")[1];
  Json::Value create = request("create_device");
  create["zid"] = jsonx::get_string(jsonx::get_object(jsonx::get_object(site, "billing"), "region"), "code");
  create["subscription_id"] = jsonx::get_string(jsonx::get_object(site, "billing"), "subscription_id");
  create["account_type"] = "vell";
  EXPECT_TRUE(jsonx::get_bool(ask(create), "success"));
  EXPECT_TRUE(jsonx::has(ask(request("get_connection_info")), "connection"));
  EXPECT_TRUE(jsonx::get_bool(ask(request("backup_now")), "success"));
  EXPECT_EQ(jsonx::get_int32(ask(request("get_status")), "status"), sim::status::kPreparingDevice);
  for (int i = 0; i < 60; ++i) {
    clock_.advance_ms(100);
    model_->advance();
  }
  const Json::Value done = ask(request("get_status"));
  EXPECT_EQ(jsonx::get_int32(done, "status"), sim::status::kIdle);
  EXPECT_EQ(jsonx::get_int32(jsonx::get_object(jsonx::get_object(done, "content"), "last_backup_result"),
                             "last_backup_status"),
            2);
  EXPECT_TRUE(jsonx::get_bool(ask(request("logout")), "success"));
  EXPECT_EQ(jsonx::get_int32(ask(request("get_status")), "status"), sim::status::kNotLinked);
}

TEST_F(SimPipeTest, GarbageAndUnknownActionsGetErrorsAndServingGoesOn) {
  start(simtest::quick_scenario(true));
  for (const char* bad : {"this is not json", "{\"action\":\"reboot\"}", "[]", "{\"action\":null}", ""}) {
    const sim::Exchange ex = send(bad);
    ASSERT_TRUE(ex.ok) << bad << ": " << ex.error;
    const Json::Value answer = parse(ex.answer);
    EXPECT_EQ(jsonx::get_int64(jsonx::get_object(answer, "error"), "code"), 4) << bad << " -> " << ex.answer;
  }
  // A client that connects and leaves without a word.
  {
    WinIpc::IpcClient quiet;
    ASSERT_EQ(quiet.connect(WinIpc::kServicePipe, 1000), 0);
  }
  EXPECT_EQ(jsonx::get_int32(ask(request("get_status")), "status"), sim::status::kIdle);
}

TEST_F(SimPipeTest, RecordFileHasOneTimedLinePerRequest) {
  start(simtest::quick_scenario(true));
  Json::Value r = request("get_status");
  r["log_id"] = 7;
  ask(r);
  send("garbage!");
  ask(request("get_bandwidth_control"));
  const auto lines = recorded();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(jsonx::get_string(jsonx::get_object(lines[0], "request"), "action"), "get_status");
  EXPECT_EQ(jsonx::get_int64(jsonx::get_object(lines[0], "request"), "log_id"), 7);
  EXPECT_EQ(jsonx::get_string(lines[1], "raw"), "garbage!");
  EXPECT_FALSE(jsonx::has(lines[1], "request"));
  EXPECT_EQ(jsonx::get_string(jsonx::get_object(lines[2], "request"), "action"), "get_bandwidth_control");
  for (const auto& l : lines) {
    EXPECT_GT(jsonx::get_int64(l, "time_ms"), 1600000000000);
    EXPECT_THAT(jsonx::get_string(l, "time"), ::testing::EndsWith("Z"));
  }
  EXPECT_LE(jsonx::get_int64(lines[0], "time_ms"), jsonx::get_int64(lines[2], "time_ms"));
}

TEST_F(SimPipeTest, FaultsDropAndGarbleTheScheduledRequests) {
  sim::PipeService::Options o;
  o.faults.drop_every = 3;
  o.faults.garbage_every = 4;
  start(simtest::quick_scenario(true), o);
  std::vector<std::string> kinds;
  for (int i = 1; i <= 8; ++i) {
    const sim::Exchange ex = send(jsonx::compact(request("get_status")));
    Json::Value v;
    kinds.push_back(!ex.ok ? "drop" : (jsonx::parse(ex.answer, v) ? "ok" : "garbage"));
  }
  EXPECT_THAT(kinds, ::testing::ElementsAre("ok", "ok", "drop", "garbage", "ok", "drop", "ok", "garbage"));
  EXPECT_EQ(service_->received(), 8u);
  EXPECT_EQ(service_->answered(), 6u);
}

TEST_F(SimPipeTest, FirstConnectionsRefusedThenServed) {
  sim::PipeService::Options o;
  o.faults.refuse_first = 2;
  start(simtest::quick_scenario(true), o);
  EXPECT_FALSE(send(jsonx::compact(request("get_status"))).ok);
  EXPECT_FALSE(send(jsonx::compact(request("get_status"))).ok);
  EXPECT_TRUE(send(jsonx::compact(request("get_status"))).ok);
  EXPECT_EQ(service_->received(), 1u);
}

TEST_F(SimPipeTest, HostileModeChangesTypesButStillAnswers) {
  sim::PipeService::Options o;
  o.hostile = true;
  start(simtest::quick_scenario(true), o);
  const Json::Value v = ask(request("get_status"));
  ASSERT_TRUE(jsonx::has(v, "status"));
  EXPECT_FALSE(v["status"].isIntegral());
  EXPECT_EQ(jsonx::get_int64(v, "status"), 0);
}

TEST_F(SimPipeTest, LateAnswerIsAbandonedOnStop) {
  sim::PipeService::Options o;
  o.faults.late_every = 1;
  o.faults.late_ms = 60000;
  start(simtest::quick_scenario(true), o);
  std::thread client([] { send(jsonx::compact(request("get_status"))); });
  while (service_->received() == 0) std::this_thread::yield();
  const auto t0 = std::chrono::steady_clock::now();
  service_->stop();
  client.join();
  EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::seconds(5));
  EXPECT_EQ(service_->answered(), 0u);
}

TEST_F(SimPipeTest, ManyClientsWhileTheModelMoves) {
  sim::Scenario s = simtest::quick_scenario(true);
  start(s);
  model_->handle(request("backup_now"));
  std::atomic<bool> done{false};
  std::thread mover([&] {
    while (!done) {
      clock_.advance_ms(10);
      model_->advance();
      std::this_thread::yield();
    }
  });
  std::atomic<int> good{0};
  std::vector<std::thread> clients;
  for (int c = 0; c < 4; ++c) {
    clients.emplace_back([&] {
      for (int i = 0; i < 40; ++i) {
        const sim::Exchange ex =
            sim::exchange(WinIpc::kServicePipe, jsonx::compact(request("get_status")), 5000);
        Json::Value v;
        if (ex.ok && jsonx::parse(ex.answer, v) && jsonx::has(v, "status")) ++good;
      }
    });
  }
  for (auto& t : clients) t.join();
  done = true;
  mover.join();
  EXPECT_EQ(good.load(), 160);
}

TEST_F(SimPipeTest, SecondServiceOnTheSameNameIsRefused) {
  start(simtest::quick_scenario(true));
  sim::DeviceModel other(simtest::quick_scenario(true), std::string(), std::string());
  sim::PipeService second(other, {});
  std::string error;
  EXPECT_FALSE(second.start(error));
  EXPECT_THAT(error, ::testing::HasSubstr("NIMBRA_PIPE_NAMESPACE"));
}

}  // namespace
