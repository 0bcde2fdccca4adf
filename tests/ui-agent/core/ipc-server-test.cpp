// The agent's own pipe server, driven by a client end playing the service.

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <stdexcept>

#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-communicator.h"
#include "vantor-core/lib/json-access.h"

using ::testing::HasSubstr;

namespace {

const char kOk[] = R"({"success":true})";

// Sends one raw message (nullopt: connect and hang up) to the agent's pipe
// and returns the reply, or "" when none came.
std::string send(const std::optional<std::string>& text) {
  WinIpc::IpcClient client;
  std::string reply;
  if (client.connect(WinIpc::kAgentPipe, 3000) != 0 || !text || client.write(*text) != 0) return reply;
  client.read(reply);
  return reply;
}

class IpcServerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    server_->setAcceptTimeoutMs(200);
    server_->init();
    server_->start();
  }

  void TearDown() override {
    server_->stop();
    EXPECT_TRUE(server_->wait(5000));
    QCoreApplication::processEvents();  // no test sees the queued signals of the one before
  }

  agent_test::Isolation isolation_;
  agent_test::LogCapture log_;
  GlobalConnecter* bus_ = &GlobalConnecter::instance();
  QSignalSpy notifications_{bus_, &GlobalConnecter::sigHandleNotifications};
  std::unique_ptr<ServiceIpcServer> server_ = std::make_unique<ServiceIpcServer>();
};

struct Refused {
  std::string request;
  const char* line;
};
void PrintTo(const Refused& r, std::ostream* os) {
  *os << r.request.substr(0, 40);
}

class RefusedTest : public IpcServerTest, public ::testing::WithParamInterface<Refused> {};

TEST_P(RefusedTest, AnsweredFalseWithItsLine) {
  log_.mark();
  EXPECT_EQ(send(GetParam().request), R"({"success":false})");
  EXPECT_TRUE(log_.waitFor(GetParam().line)) << log_.text();
  EXPECT_THAT(log_.text(), HasSubstr("[ERROR][service-communicator.cpp:"));
  QCoreApplication::processEvents();
  EXPECT_EQ(notifications_.size(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Requests, RefusedTest,
    ::testing::Values(Refused{R"({"action": "open"})", "not support action: {\"action\":\"open\"}\n"},
                      Refused{R"({"action": 5})", "not support action: {\"action\":5}\n"},
                      Refused{R"({"action": "Notifications"})", "not support action: "},
                      Refused{R"({"notifications": []})", "format invalid: {\"notifications\":[]}\n"},
                      Refused{"hello", "format invalid: null\n"},
                      Refused{R"(["action"])", "format invalid: [\"action\"]\n"},
                      Refused{std::string(50000, '['), "format invalid: null\n"}));

TEST_F(IpcServerTest, ClientsAreServedOneRequestEachInTurnAlsoAfterOneHangsUp) {
  log_.mark();
  EXPECT_EQ(send(std::nullopt), "");
  EXPECT_TRUE(log_.waitFor("failed to recv request (")) << log_.text();
  for (int i = 0; i < 10; ++i)
    ASSERT_EQ(send(R"({"action":"notifications","i":)" + std::to_string(i) + "}"), kOk);
  // A condition, not QSignalSpy::wait: the notices come from the server's thread.
  (void)QTest::qWaitFor([&] { return notifications_.size() >= 10; }, 10000);
  ASSERT_EQ(notifications_.size(), 10);
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(jsonx::get_int64(notifications_.at(i).at(0).value<Json::Value>(), "i"), i);
}

TEST_F(IpcServerTest, RestartedServerDeliversEachNotificationOnce) {
  server_->stop();
  ASSERT_TRUE(server_->wait(5000));
  server_->init();
  server_->start();
  EXPECT_EQ(send(R"({"action":"notifications"})"), kOk);
  QCoreApplication::processEvents();  // queued before the reply was written
  EXPECT_EQ(notifications_.size(), 1);
}

TEST_F(IpcServerTest, SecondServerOnTheSameNameThrowsAndTheFirstServesOn) {
  ServiceIpcServer second;
  try {
    second.init();
    FAIL() << "no exception";
  } catch (const std::runtime_error& e) {
    EXPECT_STREQ(e.what(), "can't open port or socket, ipc broken");
  }
  EXPECT_EQ(send(R"({"action":"notifications"})"), kOk);
}

TEST(IpcServerDefaults, DestroyingARunningServerStopsItAndFreesTheName) {
  agent_test::Isolation isolation;
  auto server = std::make_unique<ServiceIpcServer>();
  server->setAcceptTimeoutMs(100);
  server->init();
  server->start();
  server.reset();
  ServiceIpcServer again;
  EXPECT_NO_THROW(again.init());
}

}  // namespace
