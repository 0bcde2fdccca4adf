// The request client against a scripted service on a real pipe end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QThread>

#include "core/global-connecter.h"
#include "json-access.h"
#include "peer.h"
#include "service-communicator.h"

using comm_test::ScriptedPeer;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

Json::Value parse(const std::string& text) {
  Json::Value v;
  EXPECT_TRUE(jsonx::parse(text, v)) << text;
  return v;
}

Json::Value request(const char* action) {
  Json::Value r(Json::objectValue);
  r["action"] = action;
  return r;
}

// Answers every request with {"status":4096,"echo":<request>}.
std::optional<std::string> echo(const std::string& text) {
  Json::Value answer(Json::objectValue);
  answer["status"] = 4096;
  answer["echo"] = parse(text);
  return jsonx::compact(answer);
}

class CommunicatorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    bus_ = &GlobalConnecter::instance();
    communicator_ = new ServiceCommunicator();
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
    EXPECT_TRUE(peer->start());
    return peer;
  }

  // Emits one request and waits for its outcome; true for an answer.
  bool ask(const Json::Value& req, Json::Value* answer, const QObject* sender = nullptr) {
    QSignalSpy done(bus_, &GlobalConnecter::sigQueryServiceDone);
    QSignalSpy failed(bus_, &GlobalConnecter::sigQueryServiceFailed);
    emit bus_->sigQueryService(sender ? sender : &sender_, req);
    for (int i = 0; i < 100 && done.isEmpty() && failed.isEmpty(); ++i) done.wait(100);
    EXPECT_EQ(done.size() + failed.size(), 1);
    if (done.size() != 1) return false;
    EXPECT_EQ(done.at(0).at(0).value<const QObject*>(), sender ? sender : &sender_);
    if (answer) *answer = done.at(0).at(1).value<Json::Value>();
    return true;
  }

  comm_test::Isolation isolation_;
  comm_test::LogFile log_;
  GlobalConnecter* bus_ = nullptr;
  QThread thread_;
  ServiceCommunicator* communicator_ = nullptr;
  QObject sender_;
};

TEST_F(CommunicatorTest, SendsStyledRequestAndReturnsParsedAnswerWithAction) {
  auto peer = startPeer();
  Json::Value req = request("get_status");
  req["log_id"] = Json::UInt64(18446744073709551615ULL);
  Json::Value answer;
  ASSERT_TRUE(ask(req, &answer));
  EXPECT_EQ(jsonx::get_int64(answer, "status"), 4096);
  EXPECT_EQ(jsonx::get_string(answer, "action"), "get_status");
  EXPECT_EQ(jsonx::get_uint64(jsonx::member(answer, "echo"), "log_id"), 18446744073709551615ULL);
  ASSERT_EQ(peer->requests().size(), 1u);
  // Written with the library's indented style, not compact.
  EXPECT_EQ(peer->requests()[0], req.toStyledString());
}

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
  while (done.size() < kCount && done.wait(5000)) {
  }
  ASSERT_EQ(done.size(), kCount);
  for (int i = 0; i < kCount; ++i) {
    const Json::Value answer = done.at(i).at(1).value<Json::Value>();
    EXPECT_EQ(jsonx::get_int64(jsonx::member(answer, "echo"), "seq"), i);
    EXPECT_EQ(done.at(i).at(0).value<const QObject*>(), i % 2 ? &a : &b);
  }
  EXPECT_EQ(peer->connections(), kCount);  // one connection per request
}

TEST_F(CommunicatorTest, ServiceOwnActionMemberIsOverwrittenByTheRequestAction) {
  auto peer = startPeer([](const std::string&) { return std::string(R"({"action":"other","x":1})"); });
  Json::Value answer;
  ASSERT_TRUE(ask(request("backup_now"), &answer));
  EXPECT_EQ(jsonx::get_string(answer, "action"), "backup_now");
  EXPECT_EQ(jsonx::get_int64(answer, "x"), 1);
}

// --- the "service-status" short-cut --------------------------------------

struct ShortCutCase {
  const char* name;
  const char* action;
  std::optional<std::string> file;     // nullopt: no file
  const char* expected_update_status;  // nullptr: the pipe is asked
};

std::ostream& operator<<(std::ostream& os, const ShortCutCase& v) {
  return os << v.name;
}

class ShortCutTest : public CommunicatorTest, public ::testing::WithParamInterface<ShortCutCase> {};

TEST_P(ShortCutTest, UpdateStatusFileDecidesWhetherThePipeIsAsked) {
  const ShortCutCase& c = GetParam();
  if (c.file) nimbra_test::write_file(isolation_.workingSpace() + "/service-status", *c.file);
  auto peer = startPeer();
  Json::Value answer;
  ASSERT_TRUE(ask(request(c.action), &answer));
  EXPECT_EQ(jsonx::get_string(answer, "action"), c.action);
  if (c.expected_update_status) {
    EXPECT_EQ(jsonx::get_string(answer, "update_status"), c.expected_update_status);
    EXPECT_EQ(answer.size(), 2u) << answer.toStyledString();
    EXPECT_EQ(peer->connections(), 0);
  } else {
    EXPECT_FALSE(jsonx::has(answer, "update_status"));
    EXPECT_EQ(jsonx::get_int64(answer, "status"), 4096);
    EXPECT_EQ(peer->connections(), 1);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, ShortCutTest,
    ::testing::Values(
        ShortCutCase{"Updating", "get_connection_info", std::string("updating\n"), "updating"},
        ShortCutCase{"UpdateError", "get_connection_info", std::string("update_error"), "update_error"},
        ShortCutCase{"WindowsLineEnd", "get_connection_info", std::string("updating\r\nmore\n"), "updating"},
        ShortCutCase{"OnlyFirstLineCounts", "get_connection_info", std::string("idle\nupdating\n"), nullptr},
        ShortCutCase{"TrailingBlank", "get_connection_info", std::string("updating \n"), nullptr},
        ShortCutCase{"OtherCase", "get_connection_info", std::string("Updating\n"), nullptr},
        ShortCutCase{"EmptyFile", "get_connection_info", std::string(""), nullptr},
        ShortCutCase{"NoFile", "get_connection_info", std::nullopt, nullptr},
        ShortCutCase{"OtherAction", "get_status", std::string("updating\n"), nullptr},
        ShortCutCase{"OtherActionUpdateError", "get_site_info", std::string("update_error\n"), nullptr}),
    [](const ::testing::TestParamInfo<ShortCutCase>& p) { return std::string(p.param.name); });

TEST_F(CommunicatorTest, UnreadableStatusPathGoesToThePipe) {
  // A folder where the file should be: it cannot be read as a file.
  QDir().mkpath(QString::fromStdString(isolation_.workingSpace() + "/service-status"));
  auto peer = startPeer();
  Json::Value answer;
  ASSERT_TRUE(ask(request("get_connection_info"), &answer));
  EXPECT_EQ(peer->connections(), 1);
}

// --- failures ---------------------------------------------------------------

TEST_F(CommunicatorTest, NoServiceFailsAtOnceWithItsLogLines) {
  log_.mark();
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(ask(request("get_status"), nullptr));
  EXPECT_LT(clock.elapsed(), 1500);  // no waiting on an absent pipe
  const std::string text = log_.text();
  EXPECT_THAT(text, HasSubstr("[ERROR][service-communicator.cpp:"));
  EXPECT_THAT(text, HasSubstr("Failed to connect to service\n"));
  EXPECT_THAT(text, HasSubstr("Failed to query service '{\n"));
  EXPECT_THAT(text, HasSubstr("\"action\" : \"get_status\""));
}

TEST_F(CommunicatorTest, BusyServiceFailsAfterTheConnectBudget) {
  // A service end that never accepts, with one client already waiting: the
  // pipe stays busy for the whole budget.
  WinIpc::IpcServer busy;
  ASSERT_EQ(busy.create(WinIpc::kServicePipe), 0);
  WinIpc::IpcClient waiting;
  ASSERT_EQ(waiting.connect(WinIpc::kServicePipe, 1000), 0);
  log_.mark();
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(ask(request("get_status"), nullptr));
  EXPECT_GE(clock.elapsed(), 2500);
  EXPECT_LT(clock.elapsed(), 8000);
  EXPECT_THAT(log_.text(), HasSubstr("Failed to connect to service\n"));
  // Busy is not absent: the transport stays silent about it.
  EXPECT_THAT(log_.text(), Not(HasSubstr("Failed to connect named pipe")));
}

TEST_F(CommunicatorTest, PeerThatHangsUpWithoutAnswerIsAFailure) {
  auto peer = startPeer([](const std::string&) { return std::nullopt; });
  log_.mark();
  EXPECT_FALSE(ask(request("get_status"), nullptr));
  EXPECT_THAT(log_.text(), HasSubstr("Failed to recv response from service\n"));
  EXPECT_EQ(peer->connections(), 1);
}

struct BadAnswer {
  const char* name;
  std::string text;
};

std::ostream& operator<<(std::ostream& os, const BadAnswer& v) {
  return os << v.name;
}

class BadAnswerTest : public CommunicatorTest, public ::testing::WithParamInterface<BadAnswer> {};

TEST_P(BadAnswerTest, MalformedAnswerIsAFailedExchangeWithParseLine) {
  const std::string text = GetParam().text;
  auto peer = startPeer([text](const std::string&) { return text; });
  log_.mark();
  EXPECT_FALSE(ask(request("get_status"), nullptr));
  EXPECT_THAT(log_.text(), HasSubstr("Failed  to parse response as json string ("));
  EXPECT_THAT(log_.text(), HasSubstr("Failed to query service '"));
  // The communicator is still serving afterwards.
  peer.reset();
  auto good = startPeer();
  EXPECT_TRUE(ask(request("get_status"), nullptr));
}

INSTANTIATE_TEST_SUITE_P(Answers, BadAnswerTest,
                         ::testing::Values(BadAnswer{"NotJson", "hello"}, BadAnswer{"Empty", ""},
                                           BadAnswer{"Truncated", R"({"status": 1)"},
                                           BadAnswer{"UnquotedKey", "{status: 1}"},
                                           BadAnswer{"Array", "[1,2,3]"}, BadAnswer{"Number", "12288"},
                                           BadAnswer{"String", "\"updating\""}, BadAnswer{"Null", "null"},
                                           BadAnswer{"DeepNesting", std::string(100000, '[')}),
                         [](const ::testing::TestParamInfo<BadAnswer>& p) {
                           return std::string(p.param.name);
                         });

TEST_F(CommunicatorTest, CommentsInAnAnswerAreNotKept) {
  auto peer = startPeer([](const std::string&) { return std::string("{\"status\": 1 // note\n}"); });
  Json::Value answer;
  ASSERT_TRUE(ask(request("get_status"), &answer));
  EXPECT_EQ(jsonx::get_int64(answer, "status"), 1);
  EXPECT_FALSE(answer["status"].hasComment(Json::commentAfterOnSameLine));
}

// --- masking -------------------------------------------------------------------

TEST(MaskingTest, PasswordLikeMembersOfContentAreMaskedUnlessEmpty) {
  Json::Value req = request("get_token");
  req["content"]["password"] = "hunter2";
  req["content"]["otp"] = "";
  req["content"]["proxy_password"] = 1234;
  req["content"]["user"] = "me";
  req["password"] = "top-level-not-masked";
  const Json::Value masked = parse(ServiceCommunicator::maskedForLog(req));
  EXPECT_EQ(masked["content"]["password"].asString(), "***");
  EXPECT_EQ(masked["content"]["otp"].asString(), "");
  EXPECT_EQ(masked["content"]["proxy_password"].asString(), "***");
  EXPECT_EQ(masked["content"]["user"].asString(), "me");
  EXPECT_EQ(masked["password"].asString(), "top-level-not-masked");
  EXPECT_FALSE(masked["content"].isMember("nothing"));
  // The original is left alone.
  EXPECT_EQ(req["content"]["password"].asString(), "hunter2");
}

TEST(MaskingTest, OddShapesAreLoggedWithoutThrowing) {
  Json::Value array_content = request("x");
  array_content["content"] = Json::Value(Json::arrayValue);
  array_content["content"].append("password");
  EXPECT_THAT(ServiceCommunicator::maskedForLog(array_content), HasSubstr("\"password\""));
  EXPECT_NO_THROW(ServiceCommunicator::maskedForLog(Json::Value("text")));
  Json::Value absent = request("x");
  absent["content"]["password"] = Json::Value();
  EXPECT_FALSE(parse(ServiceCommunicator::maskedForLog(absent))["content"]["password"].isString());
}

TEST_F(CommunicatorTest, SentRequestIsUnmaskedWhileTheLogLineIsMasked) {
  // The answer is unparseable, so the request is logged with the failure.
  auto peer = startPeer([](const std::string&) { return std::string("not json"); });
  Json::Value req = request("get_token");
  req["content"]["password"] = "s3cret-pass";
  req["content"]["otp"] = "";
  log_.mark();
  EXPECT_FALSE(ask(req, nullptr));
  ASSERT_EQ(peer->requests().size(), 1u);
  EXPECT_THAT(peer->requests()[0], HasSubstr("s3cret-pass"));
  const std::string text = log_.text();
  EXPECT_THAT(text, Not(HasSubstr("s3cret-pass")));
  EXPECT_THAT(text, HasSubstr("\"password\" : \"***\""));
  EXPECT_THAT(text, HasSubstr("\"otp\" : \"\""));
}

// --- redirect ----------------------------------------------------------------

TEST_F(CommunicatorTest, RedirectTakesActionAndSubactionFromContent) {
  auto peer = startPeer();
  Json::Value req = request("redirect");
  req["content"]["type"] = "get_portal_link";
  req["content"]["subaction"] = "help";
  Json::Value answer;
  ASSERT_TRUE(ask(req, &answer));
  EXPECT_EQ(jsonx::get_string(answer, "action"), "get_portal_link");
  EXPECT_EQ(jsonx::get_string(answer, "subaction"), "help");
}

TEST_F(CommunicatorTest, RedirectWithoutTypeAnswersWithNullAction) {
  auto peer = startPeer();
  Json::Value req = request("redirect");
  req["content"]["subaction"] = "help";
  Json::Value answer;
  ASSERT_TRUE(ask(req, &answer));
  ASSERT_TRUE(answer.isMember("action"));
  EXPECT_TRUE(answer["action"].isNull());
  EXPECT_EQ(jsonx::get_string(answer, "subaction"), "help");
}

TEST_F(CommunicatorTest, RedirectWithContentOfAnotherTypeDoesNotThrow) {
  auto peer = startPeer();
  Json::Value req = request("redirect");
  req["content"] = "get_status";
  Json::Value answer;
  ASSERT_TRUE(ask(req, &answer));
  EXPECT_TRUE(answer["action"].isNull());
  EXPECT_TRUE(answer["subaction"].isNull());
}

}  // namespace
