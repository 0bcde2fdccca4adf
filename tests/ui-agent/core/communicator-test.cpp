// The request client against a scripted service on a real pipe end.

#include <gmock/gmock.h>

#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include "tests/ui-agent/agent-test.h"
#include "tests/ui-agent/core/peer.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-communicator.h"
#include "vantor-core/lib/json-access.h"

using agent_test::parse;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

Json::Value request(const char* action) {
  Json::Value r(Json::objectValue);
  r["action"] = action;
  return r;
}

// Answers every request with its own "action" (which the client replaces by
// the request's) and the request it got.
std::optional<std::string> echo(const std::string& text) {
  Json::Value answer = parse(R"({"status": 4096, "action": "other"})");
  answer["echo"] = parse(text);
  return jsonx::compact(answer);
}

ScriptedPeer::Script reply(const std::string& text) {
  return [text](const std::string&) { return text; };
}

class CommunicatorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    communicator_->moveToThread(&thread_);
    thread_.start();
  }

  void TearDown() override {
    thread_.quit();
    thread_.wait();
    delete communicator_;
    QCoreApplication::processEvents();
  }

  std::unique_ptr<ScriptedPeer> startPeer(ScriptedPeer::Script script = echo) {
    auto peer = std::make_unique<ScriptedPeer>(WinIpc::kServicePipe, std::move(script));
    EXPECT_TRUE(peer->ok());
    return peer;
  }

  // Emits one request and waits for its outcome; true for an answer.
  bool ask(const Json::Value& req, Json::Value* answer = nullptr) {
    QSignalSpy done(bus_, &GlobalConnecter::sigQueryServiceDone);
    QSignalSpy failed(bus_, &GlobalConnecter::sigQueryServiceFailed);
    emit bus_->sigQueryService(&sender_, req);
    for (int i = 0; i < 100 && done.isEmpty() && failed.isEmpty(); ++i) done.wait(100);
    EXPECT_EQ(done.size() + failed.size(), 1);
    if (done.size() != 1) return false;
    EXPECT_EQ(done.at(0).at(0).value<const QObject*>(), &sender_);
    if (answer) *answer = done.at(0).at(1).value<Json::Value>();
    return true;
  }

  agent_test::Isolation isolation_;
  agent_test::LogCapture log_;
  GlobalConnecter* bus_ = &GlobalConnecter::instance();
  QThread thread_;
  ServiceCommunicator* communicator_ = new ServiceCommunicator();
  QObject sender_;
};

TEST_F(CommunicatorTest, BackToBackRequestsAreAnsweredInOrderWithTheirSenders) {
  auto peer = startPeer();
  QObject a, b;
  QSignalSpy done(bus_, &GlobalConnecter::sigQueryServiceDone);
  constexpr int kCount = 12;
  for (int i = 0; i < kCount; ++i) {
    Json::Value req = request("get_status");
    req["seq"] = i;
    emit bus_->sigQueryService(i % 2 ? &a : &b, req);
  }
  // A condition, not QSignalSpy::wait: the signals come from the client's
  // thread, and a wait started after a burst returns at its stale wake-up.
  (void)QTest::qWaitFor([&] { return done.size() >= kCount; }, 10000);
  ASSERT_EQ(done.size(), kCount);
  for (int i = 0; i < kCount; ++i) {
    EXPECT_EQ(jsonx::get_int64(jsonx::member(done.at(i).at(1).value<Json::Value>(), "echo"), "seq"), i);
    EXPECT_EQ(done.at(i).at(0).value<const QObject*>(), i % 2 ? &a : &b);
  }
  EXPECT_EQ(peer->connections(), kCount);  // one connection per request
}

// The "service-status" short-cut: the first line of the file decides whether
// the pipe is asked.
struct ShortCut {
  const char* action;
  const char* file;    // nullptr: no file; "/": a folder in its place
  const char* status;  // nullptr: the pipe is asked
};
void PrintTo(const ShortCut& c, std::ostream* os) {
  *os << c.action << " " << (c.file ? c.file : "(no file)");
}

class ShortCutTest : public CommunicatorTest, public ::testing::WithParamInterface<ShortCut> {};

TEST_P(ShortCutTest, UpdateStatusFileDecidesWhetherThePipeIsAsked) {
  const ShortCut& c = GetParam();
  const std::string path = isolation_.workingSpace() + "/service-status";
  if (c.file && std::string(c.file) == "/")
    QDir().mkpath(QString::fromStdString(path));
  else if (c.file)
    nimbra_test::write_file(path, c.file);
  auto peer = startPeer();
  Json::Value answer;
  ASSERT_TRUE(ask(request(c.action), &answer));
  EXPECT_EQ(jsonx::get_string(answer, "action"), c.action);
  if (c.status) {
    EXPECT_EQ(answer, parse(std::string(R"({"update_status": ")") + c.status + R"(", "action": ")" +
                            c.action + "\"}"));
    EXPECT_EQ(peer->connections(), 0);
  } else {
    EXPECT_EQ(jsonx::get_int64(answer, "status"), 4096);
    EXPECT_EQ(peer->connections(), 1);
  }
}

INSTANTIATE_TEST_SUITE_P(Files, ShortCutTest,
                         ::testing::Values(ShortCut{"get_connection_info", "updating\n", "updating"},
                                           ShortCut{"get_connection_info", "update_error", "update_error"},
                                           ShortCut{"get_connection_info", "updating\r\nmore\n", "updating"},
                                           ShortCut{"get_connection_info", "idle\nupdating\n", nullptr},
                                           ShortCut{"get_connection_info", "updating \n", nullptr},
                                           ShortCut{"get_connection_info", "Updating\n", nullptr},
                                           ShortCut{"get_connection_info", "", nullptr},
                                           ShortCut{"get_connection_info", nullptr, nullptr},
                                           ShortCut{"get_connection_info", "/", nullptr},
                                           ShortCut{"get_status", "updating\n", nullptr}));

TEST_F(CommunicatorTest, BusyServiceFailsAfterTheConnectBudget) {
  // A service end that never accepts, with one client already waiting.
  WinIpc::IpcServer busy;
  ASSERT_EQ(busy.create(WinIpc::kServicePipe), 0);
  WinIpc::IpcClient waiting;
  ASSERT_EQ(waiting.connect(WinIpc::kServicePipe, 1000), 0);
  log_.mark();
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(ask(request("get_status")));
  EXPECT_GE(clock.elapsed(), 2500);
  EXPECT_LT(clock.elapsed(), 8000);
  EXPECT_THAT(log_.text(), HasSubstr("Failed to connect to service\n"));
  EXPECT_THAT(log_.text(), Not(HasSubstr("Failed to connect named pipe")));  // busy is not absent
}

class BadAnswerTest : public CommunicatorTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(BadAnswerTest, IsAFailedExchangeWithParseLineAndTheClientServesOn) {
  auto peer = startPeer(reply(GetParam()));
  log_.mark();
  EXPECT_FALSE(ask(request("get_status")));
  EXPECT_THAT(log_.text(), HasSubstr("Failed  to parse response as json string ("));
  EXPECT_THAT(log_.text(), HasSubstr("Failed to query service '"));
  peer.reset();
  auto good = startPeer();
  EXPECT_TRUE(ask(request("get_status")));
}

INSTANTIATE_TEST_SUITE_P(Answers, BadAnswerTest,
                         ::testing::Values("hello", "", std::string(100000, '['), "[1,2,3]"));

// What a status may hold: a longer text is not read whole, more elements
// are not parsed; an ordinary status goes through.
TEST_F(CommunicatorTest, AnswerBeyondItsActionsCapIsRefusedBeforeParsing) {
  std::string many = "{\"status\":1,\"logs\":[0";
  for (int i = 0; i < 100000; ++i) many += ",0";
  const std::pair<std::string, const char*> rows[] = {
      {"{\"status\":1,\"pad\":\"" + std::string(3 << 20, 'p') + "\"}", "may hold 2097152 bytes"},
      {many + "]}", "refused: more than 100000 elements"}};
  for (const auto& row : rows) {
    auto peer = startPeer(reply(row.first));
    log_.mark();
    EXPECT_FALSE(ask(request("get_status")));
    EXPECT_THAT(log_.text(), HasSubstr(row.second));
  }
  many.resize(many.size() - 10);  // just under the cap
  auto peer = startPeer(reply(many + "]}"));
  EXPECT_TRUE(ask(request("get_status")));
}

TEST_F(CommunicatorTest, RedirectTakesActionAndSubactionFromContent) {
  auto peer = startPeer();
  Json::Value answer;
  ASSERT_TRUE(
      ask(parse(R"({"action": "redirect", "content": {"type": "get_portal_link", "subaction": "help"}})"),
          &answer));
  EXPECT_EQ(jsonx::get_string(answer, "action"), "get_portal_link");
  EXPECT_EQ(jsonx::get_string(answer, "subaction"), "help");
  // Without a type the action is null; content of another kind gives nulls.
  ASSERT_TRUE(ask(parse(R"({"action": "redirect", "content": {"subaction": "help"}})"), &answer));
  ASSERT_TRUE(answer.isMember("action"));
  EXPECT_TRUE(answer["action"].isNull());
  EXPECT_EQ(jsonx::get_string(answer, "subaction"), "help");
  ASSERT_TRUE(ask(parse(R"({"action": "redirect", "content": "get_status"})"), &answer));
  EXPECT_TRUE(answer["action"].isNull());
  ASSERT_TRUE(answer.isMember("subaction"));
  EXPECT_TRUE(answer["subaction"].isNull());
}

}  // namespace
