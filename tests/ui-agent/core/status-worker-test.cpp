// The status poller on its own thread, with answers fed through the bus.

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/get-status-worker.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/status-store.h"
#include "vantor-core/lib/json-access.h"

using agent_test::parse;

namespace {

class StatusWorkerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    store_.setStatus(StatusUnknown, Json::Value());
    store_.clearConnection();
    worker_ = new GetStatusWorker();
    worker_->moveToThread(&thread_);
    thread_.start();
  }

  void TearDown() override {
    worker_->stopPolling();
    thread_.quit();
    thread_.wait();
    delete worker_;
    QCoreApplication::processEvents();
  }

  // Lets everything queued to the worker run, then delivers what it emitted.
  void drain() {
    QMetaObject::invokeMethod(
        worker_, [] {}, Qt::BlockingQueuedConnection);
    QCoreApplication::processEvents();
  }

  // Feeds one answer as the request client would broadcast it.
  void answer(const QObject* sender, const std::string& text) {
    emit bus_->sigQueryServiceDone(sender, parse(text));
  }

  // Waits for status notice number `index` and returns its arguments.
  QList<QVariant> notice(int index) {
    // A condition, not QSignalSpy::wait: the notices come from the worker's thread.
    EXPECT_TRUE(QTest::qWaitFor([&] { return notices_.size() > index; }, 10000)) << "notice " << index;
    return notices_.size() > index ? notices_.at(index) : QList<QVariant>{{}, {}, {}};
  }

  GlobalConnecter* bus_ = &GlobalConnecter::instance();
  StatusStore& store_ = StatusStore::instance();
  QSignalSpy notices_{bus_, &GlobalConnecter::sigNotifyStatusChange};
  QThread thread_;
  GetStatusWorker* worker_ = nullptr;
};

TEST_F(StatusWorkerTest, AnswerIsStoredAndAnnounced) {
  answer(worker_, R"({"status": 12289, "content": {"connected": true, "progress": 40},
                     "connection": {"address": "cloud.example", "port": 443, "ssl_allow_untrust": true},
                     "proxy": {"use_proxy": true, "proxy_port": 8080}})");
  const QList<QVariant> args = notice(0);
  EXPECT_EQ(args.at(0).value<ServiceStatus>(), StatusUnknown);
  EXPECT_EQ(args.at(1).value<ServiceStatus>(), StatusBackupPreparing);
  EXPECT_EQ(jsonx::get_int64(args.at(2).value<Json::Value>(), "progress"), 40);
  ServiceStatus s;
  Json::Value content;
  store_.getStatus(s, content);
  EXPECT_EQ(s, StatusBackupPreparing);
  EXPECT_TRUE(jsonx::get_bool(content, "connected"));
  ConnectionInfo info;
  ASSERT_EQ(store_.getConnectionInfo(info), 0);
  EXPECT_EQ(info.address, "cloud.example");
  EXPECT_EQ(info.port, 443);
  EXPECT_FALSE(info.ssl_allow_untrust);  // never read from a status answer
  EXPECT_EQ(info.proxy.proxy_port, 8080);
  // The same answer again is announced again, the previous status now equal.
  answer(worker_, R"({"status": 12289})");
  EXPECT_EQ(notice(1).at(0).value<ServiceStatus>(), StatusBackupPreparing);
  EXPECT_EQ(notice(1).at(1).value<ServiceStatus>(), StatusBackupPreparing);
}

TEST_F(StatusWorkerTest, AnswersForOtherSendersChangeNothing) {
  QObject other;
  answer(&other, R"({"status": 61440, "content": {"x": 1}, "connection": {"address": "evil"}})");
  answer(nullptr, R"({"status": 61440})");
  drain();
  EXPECT_EQ(notices_.size(), 0);
  ServiceStatus s;
  Json::Value content;
  store_.getStatus(s, content);
  EXPECT_EQ(s, StatusUnknown);
  EXPECT_TRUE(content.isNull());
  ConnectionInfo info;
  EXPECT_EQ(store_.getConnectionInfo(info), -1);
  // A second worker's answer is not this worker's either: one notice from each.
  GetStatusWorker second;
  answer(&second, R"({"status": 8192})");
  QCoreApplication::processEvents();
  answer(worker_, R"({"status": 8192})");
  notice(1);
  drain();
  EXPECT_EQ(notices_.size(), 2);
}

TEST_F(StatusWorkerTest, RequestCarriesTheLastLogIdAndZeroAfterClearing) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigQueryService);
  store_.setLastLogId(18446744073709551615ULL);
  QMetaObject::invokeMethod(worker_, "slotQueryServiceStatus", Qt::QueuedConnection);
  ASSERT_TRUE(spy.wait(10000));
  store_.clearConnection();
  // At most one in flight: a tick before the request ended (a hung service)
  // asks nothing.
  QMetaObject::invokeMethod(worker_, "slotQueryServiceStatus", Qt::QueuedConnection);
  drain();
  EXPECT_EQ(spy.size(), 1);
  emit bus_->sigQueryServiceEnded(worker_);
  QMetaObject::invokeMethod(worker_, "slotQueryServiceStatus", Qt::QueuedConnection);
  ASSERT_TRUE(spy.size() == 2 || spy.wait(10000));
  ASSERT_EQ(spy.size(), 2);
  const Json::Value first = spy.at(0).at(1).value<Json::Value>();
  const Json::Value second = spy.at(1).at(1).value<Json::Value>();
  EXPECT_EQ(spy.at(0).at(0).value<const QObject*>(), worker_);
  EXPECT_EQ(jsonx::get_string(first, "action"), "get_status");
  EXPECT_EQ(jsonx::get_uint64(first, "log_id", 1), 18446744073709551615ULL);
  EXPECT_EQ(first.size(), 2u);
  EXPECT_TRUE(second["log_id"].isIntegral());
  EXPECT_EQ(jsonx::get_uint64(second, "log_id", 1), 0u);
}

TEST_F(StatusWorkerTest, StopBeforeStartThenStartTwiceMakesOneTimerTickingOnTheWorkerThread) {
  worker_->stopPolling();
  EXPECT_FALSE(worker_->isPolling());
  QSignalSpy requests(bus_, &GlobalConnecter::sigQueryService);
  QThread* tick_thread = nullptr;
  QObject::connect(
      worker_, &GetStatusWorker::sigQueryService, worker_,
      [&](const QObject*, Json::Value) { tick_thread = QThread::currentThread(); }, Qt::DirectConnection);
  worker_->startPolling();
  worker_->startPolling();
  EXPECT_TRUE(worker_->isPolling());
  ASSERT_TRUE(requests.wait(10000));
  worker_->stopPolling();
  EXPECT_FALSE(worker_->isPolling());
  drain();
  EXPECT_EQ(requests.size(), 1);  // one timer with one connection: one request per tick
  EXPECT_EQ(tick_thread, &thread_);
  // Started again after a stop (the request ended), it ticks again.
  emit bus_->sigQueryServiceEnded(worker_);
  worker_->startPolling();
  ASSERT_TRUE(requests.wait(10000));
}

// A service that answers at once is still asked once a second, not without
// pause: a window of 300 ms after the first request holds at most one more.
TEST_F(StatusWorkerTest, AServiceThatAnswersAtOnceIsAskedOnceASecond) {
  QSignalSpy requests(bus_, &GlobalConnecter::sigQueryService);
  QObject::connect(
      worker_, &GetStatusWorker::sigQueryService, worker_,
      [this](const QObject*, Json::Value) { emit bus_->sigQueryServiceEnded(worker_); },
      Qt::DirectConnection);
  worker_->startPolling();
  ASSERT_TRUE(requests.wait(10000));
  QTest::qWait(300);
  EXPECT_LE(requests.size(), 2);
}

// A held connection stays unless a `connection` object came (how each
// member type reads is json-access's table).
struct Answer {
  const char* text;
  std::int32_t status;
  const char* content;  // expected content as JSON text
  bool stores_connection;
};
void PrintTo(const Answer& a, std::ostream* os) {
  *os << a.text;
}

class AnswerShapeTest : public StatusWorkerTest, public ::testing::WithParamInterface<Answer> {};

TEST_P(AnswerShapeTest, WrongTypesReadAsMissing) {
  const Answer& c = GetParam();
  ConnectionInfo held;
  held.address = "held.example";
  store_.setConnectionInfo(held);
  answer(worker_, c.text);
  const QList<QVariant> args = notice(0);
  EXPECT_EQ(static_cast<std::int32_t>(args.at(1).value<ServiceStatus>()), c.status);
  EXPECT_EQ(args.at(2).value<Json::Value>(), parse(c.content));
  ConnectionInfo info;
  ASSERT_EQ(store_.getConnectionInfo(info), 0);
  EXPECT_EQ(info == held, !c.stores_connection) << info.address;
}

INSTANTIATE_TEST_SUITE_P(
    Answers, AnswerShapeTest,
    ::testing::Values(Answer{R"({"status": 8192, "connection": "cloud"})", 8192, "null", false},
                      Answer{R"({"status": 8192, "connection": {}, "proxy": [1]})", 8192, "null", true}));

}  // namespace
