// The agent's own pipe server, driven by a client end playing the service.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include <QElapsedTimer>
#include <QSignalSpy>

#include <stdexcept>

#include "core/global-connecter.h"
#include "json-access.h"
#include "peer.h"
#include "service-communicator.h"

using ::testing::HasSubstr;

namespace {

class IpcServerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    bus_ = &GlobalConnecter::instance();
    server_ = std::make_unique<ServiceIpcServer>();
    server_->setAcceptTimeoutMs(200);
    server_->init();
    server_->start();
  }

  void TearDown() override {
    if (server_) {
      server_->stop();
      EXPECT_TRUE(server_->wait(5000));
    }
    // Deliver what is still queued for the bus so that no test sees the
    // signals of the one before.
    QCoreApplication::processEvents();
  }

  // Sends one raw message (nullopt: connect and hang up) and returns the reply
  // text, or nullopt when none came.
  std::optional<std::string> send(const std::optional<std::string>& text) {
    WinIpc::IpcClient client;
    if (client.connect(WinIpc::kAgentPipe, 3000) != 0) return std::nullopt;
    if (!text) return std::nullopt;
    if (client.write(*text) != 0) return std::nullopt;
    std::string reply;
    if (client.read(reply) != 0) return std::nullopt;
    return reply;
  }

  comm_test::Isolation isolation_;
  comm_test::LogFile log_;
  GlobalConnecter* bus_ = nullptr;
  std::unique_ptr<ServiceIpcServer> server_;
};

TEST_F(IpcServerTest, NotificationsAreAcceptedAndReachTheBusWhole) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigHandleNotifications);
  const std::string text =
      R"({"action":"notifications","site_path":"/s","notifications":[{"id":7,"type":11,"data":{"k":[1,2]}}]})";
  const auto reply = send(text);
  ASSERT_TRUE(reply);
  EXPECT_EQ(*reply, R"({"success":true})");
  ASSERT_TRUE(spy.size() == 1 || spy.wait(5000));
  ASSERT_EQ(spy.size(), 1);
  Json::Value expected;
  ASSERT_TRUE(jsonx::parse(text, expected));
  EXPECT_EQ(spy.at(0).at(0).value<Json::Value>(), expected);
}

TEST_F(IpcServerTest, NotificationsReachAListenerOnTheMainThreadQueued) {
  Json::Value received;
  Qt::HANDLE receiving_thread = nullptr;
  QObject context;
  QObject::connect(bus_, &GlobalConnecter::sigHandleNotifications, &context, [&](const Json::Value& v) {
    received = v;
    receiving_thread = QThread::currentThreadId();
  });
  QSignalSpy spy(bus_, &GlobalConnecter::sigHandleNotifications);
  ASSERT_TRUE(send(std::string(R"({"action":"notifications","n":1})")));
  ASSERT_TRUE(spy.size() == 1 || spy.wait(5000));
  EXPECT_EQ(receiving_thread, QThread::currentThreadId());
  EXPECT_EQ(jsonx::get_int64(received, "n"), 1);
}

struct Refused {
  const char* name;
  std::string request;
  std::string line;
};

std::ostream& operator<<(std::ostream& os, const Refused& v) {
  return os << v.name;
}

class RefusedTest : public IpcServerTest, public ::testing::WithParamInterface<Refused> {};

TEST_P(RefusedTest, AnsweredFalseWithItsLine) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigHandleNotifications);
  log_.mark();
  const auto reply = send(GetParam().request);
  ASSERT_TRUE(reply);
  EXPECT_EQ(*reply, R"({"success":false})");
  EXPECT_TRUE(log_.waitFor(GetParam().line)) << log_.text();
  EXPECT_THAT(log_.text(), HasSubstr("[ERROR][service-communicator.cpp:"));
  QCoreApplication::processEvents();
  EXPECT_EQ(spy.size(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Requests, RefusedTest,
    ::testing::Values(
        Refused{"OtherAction", R"({"action": "open"})", "not support action: {\"action\":\"open\"}\n"},
        Refused{"ActionOfOtherType", R"({"action": 5})", "not support action: {\"action\":5}\n"},
        Refused{"NullAction", R"({"action": null})", "not support action: {\"action\":null}\n"},
        Refused{"CaseDiffers", R"({"action": "Notifications"})", "not support action: "},
        Refused{"NoAction", R"({"notifications": []})", "format invalid: {\"notifications\":[]}\n"},
        Refused{"NotJson", "hello", "format invalid: null\n"}, Refused{"Empty", "", "format invalid: null\n"},
        Refused{"Array", R"(["action"])", "format invalid: [\"action\"]\n"},
        Refused{"String", R"("notifications")", "format invalid: \"notifications\"\n"},
        Refused{"DeepNesting", std::string(50000, '['), "format invalid: null\n"}),
    [](const ::testing::TestParamInfo<Refused>& p) { return std::string(p.param.name); });

TEST_F(IpcServerTest, ClientThatHangsUpIsLoggedAndTheNextOneServed) {
  log_.mark();
  EXPECT_FALSE(send(std::nullopt));
  EXPECT_TRUE(log_.waitFor("failed to recv request\n")) << log_.text();
  const auto reply = send(std::string(R"({"action":"notifications"})"));
  ASSERT_TRUE(reply);
  EXPECT_EQ(*reply, R"({"success":true})");
}

TEST_F(IpcServerTest, ManyClientsInARowAreServedOneAtATime) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigHandleNotifications);
  constexpr int kCount = 20;
  for (int i = 0; i < kCount; ++i) {
    Json::Value req(Json::objectValue);
    req["action"] = "notifications";
    req["i"] = i;
    ASSERT_EQ(send(jsonx::compact(req)).value_or(""), R"({"success":true})");
  }
  while (spy.size() < kCount && spy.wait(5000)) {
  }
  ASSERT_EQ(spy.size(), kCount);
  for (int i = 0; i < kCount; ++i) EXPECT_EQ(jsonx::get_int64(spy.at(i).at(0).value<Json::Value>(), "i"), i);
}

TEST_F(IpcServerTest, StopEndsTheThreadWithinOneAcceptRoundAndLogsIt) {
  EXPECT_TRUE(log_.waitFor("[INFO][service-communicator.cpp:"));
  EXPECT_THAT(log_.text(), HasSubstr("ipc server thread start\n"));
  QElapsedTimer clock;
  clock.start();
  server_->stop();
  EXPECT_TRUE(server_->isStopping());
  ASSERT_TRUE(server_->wait(5000));
  EXPECT_LT(clock.elapsed(), 2000);  // one round of 200 ms here
  EXPECT_THAT(log_.text(), HasSubstr("ipc server thread stop\n"));
  // The pipe went with the thread: nobody answers any more.
  WinIpc::IpcClient client;
  EXPECT_NE(client.connect(WinIpc::kAgentPipe, 300), 0);
}

TEST_F(IpcServerTest, RestartedServerDeliversEachNotificationOnce) {
  server_->stop();
  ASSERT_TRUE(server_->wait(5000));
  server_->init();
  server_->start();
  QSignalSpy spy(bus_, &GlobalConnecter::sigHandleNotifications);
  ASSERT_EQ(send(std::string(R"({"action":"notifications"})")).value_or(""), R"({"success":true})");
  // The signal was queued before the reply was written.
  QCoreApplication::processEvents();
  EXPECT_EQ(spy.size(), 1);
}

TEST_F(IpcServerTest, SecondServerOnTheSameNameThrows) {
  ServiceIpcServer second;
  try {
    second.init();
    FAIL() << "no exception";
  } catch (const std::runtime_error& e) {
    EXPECT_STREQ(e.what(), "can't open port or socket, ipc broken");
  }
  // The first one still serves.
  EXPECT_EQ(send(std::string(R"({"action":"notifications"})")).value_or(""), R"({"success":true})");
}

TEST(IpcServerDefaults, StopIsNoticedWithinTheDefaultAcceptRound) {
  comm_test::Isolation isolation;
  ServiceIpcServer server;
  server.init();
  server.start();
  QElapsedTimer clock;
  clock.start();
  server.stop();
  ASSERT_TRUE(server.wait(6000));
  EXPECT_LT(clock.elapsed(), 4500);
}

TEST(IpcServerDefaults, DestroyingARunningServerStopsIt) {
  comm_test::Isolation isolation;
  auto server = std::make_unique<ServiceIpcServer>();
  server->setAcceptTimeoutMs(100);
  server->init();
  server->start();
  server.reset();  // must not crash nor leave the thread running
  // The name is free again.
  ServiceIpcServer again;
  EXPECT_NO_THROW(again.init());
}

}  // namespace
