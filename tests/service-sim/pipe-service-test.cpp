// The service pipe end to end: real transport, real model, the record file,
// faults, bad input, and many clients at once. (The actions themselves are
// played against the model in device-model-test.cpp.)
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

#include "ipc/win-ipc.h"
#include "service-sim/agent-client.h"
#include "service-sim/device-model.h"
#include "service-sim/pipe-service.h"
#include "tests/service-sim/sim-test-util.h"
#include "tests/support/foreign-process.h"
#include "tests/support/log-capture.h"
#include "tests/support/temp-dir.h"

using namespace simtest;

namespace {

class SimPipeTest : public ::testing::Test {
 protected:
  void start(sim::PipeService::Options o = {}) {
    model_ = std::make_unique<sim::DeviceModel>(quick_scenario(true), dir_.file("state"), dir_.file("ws"),
                                                [this] { return clock_.now.load(); });
    model_->load_state();
    o.record_path = dir_.file("record.jsonl");
    o.accept_timeout_ms = 50;
    service_ = std::make_unique<sim::PipeService>(*model_, o);
    std::string error;
    ASSERT_TRUE(service_->start(&error)) << error;
  }
  void TearDown() override {
    if (service_) service_->stop();
  }
  static sim::Exchange send(const std::string& text = R"({"action":"get_status"})", int timeout_ms = 2000) {
    return sim::exchange(WinIpc::kServicePipe, text, timeout_ms);
  }

  nimbra_test::TempDir dir_;
  nimbra_test::ScopedEnv ns_{"NIMBRA_PIPE_NAMESPACE", unique_namespace("pipe").c_str()};
  ManualClock clock_;
  std::unique_ptr<sim::DeviceModel> model_;
  std::unique_ptr<sim::PipeService> service_;
};

TEST_F(SimPipeTest, GarbageAndUnknownActionsGetErrorsAndServingGoesOn) {
  start();
  for (const char* bad :
       {"this is not json", "", "[1,2]", R"({"log_id":1})", R"({"action":null})", R"({"action":7})",
        R"({"action":"reboot"})", R"({"action":"set_bandwidth_control","bandwidth":"fast"})",
        R"({"action":"get_portal_link","subaction":"admin"})",
        R"({"action":"get_portal_link","subaction":["help"]})"}) {
    const sim::Exchange ex = send(bad);
    ASSERT_TRUE(ex.ok) << bad << ": " << ex.error;
    EXPECT_EQ(num(parse(ex.answer), "error/code"), 4) << bad << " -> " << ex.answer;
  }
  // A client that connects and leaves without a word.
  {
    WinIpc::IpcClient quiet;
    ASSERT_EQ(quiet.connect(WinIpc::kServicePipe, 1000), 0);
  }
  EXPECT_EQ(num(parse(send().answer), "status"), sim::status::kIdle);
}

// A request over the cap and a client that never finishes are dropped;
// the next client is served.
TEST_F(SimPipeTest, OversizedAndSilentClientsAreDroppedAndServingGoesOn) {
  start();
  const sim::Exchange big = send("{\"action\":\"get_status\",\"pad\":\"" + std::string(2 << 20, 'p') + "\"}");
  EXPECT_FALSE(big.ok);
  WinIpc::IpcClient silent;
  ASSERT_EQ(silent.connect(WinIpc::kServicePipe, 1000), 0);
  // Served once the silent one is dropped (5 s without a byte).
  const sim::Exchange next = send(R"({"action":"get_status"})", 8000);
  ASSERT_TRUE(next.ok) << next.error;
  EXPECT_EQ(num(parse(next.answer), "status"), sim::status::kIdle);
}

TEST_F(SimPipeTest, FaultsRefuseDropGarbleAndRetypeOnSchedule) {
  sim::PipeService::Options o;
  o.faults.refuse_first = 2;
  o.faults.drop_every = 3;
  o.faults.garbage_every = 4;
  o.hostile = true;
  start(o);
  std::vector<std::string> kinds;
  for (int i = 1; i <= 10; ++i) {
    const sim::Exchange ex = send();
    Json::Value v;
    kinds.push_back(!ex.ok ? "fail" : (jsonx::parse(ex.answer, v) ? "ok" : "garbage"));
    // Hostile answers carry members of the wrong types.
    EXPECT_TRUE(kinds.back() != "ok" || v["status"].isString()) << ex.answer;
  }
  EXPECT_THAT(kinds, ::testing::ElementsAre("fail", "fail", "ok", "ok", "fail", "garbage", "ok", "fail", "ok",
                                            "garbage"));
  EXPECT_EQ(service_->received(), 8u);
  EXPECT_EQ(service_->answered(), 6u);
}

TEST_F(SimPipeTest, LateAnswerIsAbandonedOnStop) {
  sim::PipeService::Options o;
  o.faults.late_every = 1;
  o.faults.late_ms = 60000;
  start(o);
  std::thread client([] { send(); });
  while (service_->received() == 0) std::this_thread::yield();
  const auto t0 = std::chrono::steady_clock::now();
  service_->stop();
  client.join();
  EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::seconds(5));
  EXPECT_EQ(service_->answered(), 0u);
}

TEST_F(SimPipeTest, ManyClientsWhileTheModelMovesAndASecondServiceIsRefused) {
  start();
  model_->handle(request("backup_now"));
  std::atomic<bool> done{false};
  std::thread mover([&] {
    for (; !done; std::this_thread::yield()) {
      clock_.advance_ms(10);
      model_->advance();
    }
  });
  std::atomic<int> good{0};
  std::vector<std::thread> clients;
  for (int c = 0; c < 4; ++c) {
    clients.emplace_back([&] {
      for (int i = 0; i < 40; ++i) {
        const sim::Exchange ex = send(R"({"action":"get_status"})", 5000);
        good += ex.ok && jsonx::has(parse(ex.answer), "status") ? 1 : 0;
      }
    });
  }
  // Meanwhile a second service on the same name is refused, naming the way out.
  sim::PipeService second(*model_, {});
  std::string error;
  EXPECT_FALSE(second.start(&error));
  EXPECT_THAT(error, ::testing::HasSubstr("NIMBRA_PIPE_NAMESPACE"));
  for (auto& t : clients) t.join();
  done = true;
  mover.join();
  EXPECT_EQ(good.load(), 160);
}

// Another user gets nothing (its logout does not unlink the device) and a
// flood of its connections costs one log line; clients of this user that
// hold connections without a word do not keep the next one waiting; the
// record is for this user only and a huge request is cut in it.
TEST_F(SimPipeTest, AnotherUserIsRefusedSilentClientsStarveNobodyAndTheRecordStaysSmallAndPrivate) {
  if (!hostile::canPlayAnotherUser()) GTEST_SKIP() << "needs root to play another user";
  nimbra_test::LogCapture log;
  start();
  const std::string name = WinIpc::platform_pipe_name(WinIpc::kServicePipe);
  const std::string logout = std::string(R"({"action":"logout"})") + WinIpc::kEndMarker;
  hostile::ForeignProcess other(hostile::kForeignUid, [&](int out, int) {
    int fd = hostile::rawConnect(name.c_str());
    if (fd < 0) return 2;
    hostile::rawSendAll(fd, logout.data(), logout.size());
    char reply[256];
    hostile::rawTell(out, hostile::rawReadFor(fd, reply, sizeof reply, 3000) == 0 ? 'n' : 'y');
    ::close(fd);
    for (int i = 0; i < 2000; ++i) ::close(hostile::rawConnect(name.c_str()));
    hostile::rawTell(out, 'd');
    return 0;
  });
  EXPECT_EQ(other.hear(), 'n') << "the other user got an answer";
  EXPECT_EQ(other.hear(15000), 'd');
  EXPECT_EQ(log.count("refused a client of uid 65534"), 1) << "one line for the whole flood";
  EXPECT_NE(num(parse(send().answer), "status") & 0xF000, 0x1000) << "the device was unlinked";

  std::vector<std::unique_ptr<WinIpc::IpcClient>> silent;
  for (int i = 0; i < 4; ++i) {
    silent.push_back(std::make_unique<WinIpc::IpcClient>());
    ASSERT_EQ(silent.back()->connect(WinIpc::kServicePipe, 1000), 0);
  }
  const sim::Exchange served = send(R"({"action":"get_status"})", 3000);
  EXPECT_TRUE(served.ok) << "waited behind silent clients: " << served.error;

  const std::string huge = "{\"action\":\"get_status\",\"pad\":\"" + std::string(900 * 1024, 'p') + "\"}";
  ASSERT_TRUE(send(huge).ok);
  struct stat st {};
  ASSERT_EQ(::stat(dir_.file("record.jsonl").c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 0777, 0600u);
  EXPECT_LT(st.st_size, 8 * 1024) << "the huge request went into the record whole";
}

}  // namespace
