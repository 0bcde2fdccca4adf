// The status poller on its own thread, with answers fed through the bus.

#include <gtest/gtest.h>

#include <ostream>

#include <QSignalSpy>
#include <QThread>

#include "core/get-status-worker.h"
#include "core/global-connecter.h"
#include "core/status-store.h"
#include "json-access.h"

namespace {

Json::Value parse(const std::string& text) {
  Json::Value v;
  EXPECT_TRUE(jsonx::parse(text, v)) << text;
  return v;
}

class StatusWorkerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    bus_ = &GlobalConnecter::instance();
    StatusStore::instance().setStatus(StatusUnknown, Json::Value());
    StatusStore::instance().clearConnection();
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

  // Lets everything already queued to the worker run, then delivers what it
  // emitted to the bus's listeners on this thread.
  void drain() {
    QMetaObject::invokeMethod(
        worker_, [] {}, Qt::BlockingQueuedConnection);
    QCoreApplication::processEvents();
  }

  // Feeds one answer as the request client would broadcast it.
  void answer(const QObject* sender, const std::string& text) {
    emit bus_->sigQueryServiceDone(sender, parse(text));
  }

  // Waits for the next status notice; its arguments.
  QList<QVariant> nextNotice(QSignalSpy& spy, int already) {
    while (spy.size() <= already && spy.wait(3000)) {
    }
    EXPECT_GT(spy.size(), already);
    return spy.size() > already ? spy.at(already) : QList<QVariant>();
  }

  GlobalConnecter* bus_ = nullptr;
  QThread thread_;
  GetStatusWorker* worker_ = nullptr;
};

TEST_F(StatusWorkerTest, AnswerIsStoredAndAnnounced) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigNotifyStatusChange);
  answer(worker_, R"({"status": 12289, "content": {"connected": true, "progress": 40},
                     "connection": {"address": "cloud.example", "port": 443, "ssl_allow_untrust": true},
                     "proxy": {"use_proxy": true, "proxy_port": 8080}})");
  const QList<QVariant> args = nextNotice(spy, 0);
  ASSERT_EQ(args.size(), 3);
  EXPECT_EQ(args.at(0).value<ServiceStatus>(), StatusUnknown);
  EXPECT_EQ(args.at(1).value<ServiceStatus>(), StatusBackupPreparing);
  EXPECT_EQ(jsonx::get_int64(args.at(2).value<Json::Value>(), "progress"), 40);

  ServiceStatus s;
  Json::Value content;
  StatusStore::instance().getStatus(s, content);
  EXPECT_EQ(s, StatusBackupPreparing);
  EXPECT_TRUE(jsonx::get_bool(content, "connected"));
  ConnectionInfo info;
  ASSERT_EQ(StatusStore::instance().getConnectionInfo(info), 0);
  EXPECT_EQ(info.address, "cloud.example");
  EXPECT_EQ(info.port, 443);
  EXPECT_FALSE(info.ssl_allow_untrust);  // never read from a status answer
  EXPECT_TRUE(info.proxy.use_proxy);
  EXPECT_EQ(info.proxy.proxy_port, 8080);
}

TEST_F(StatusWorkerTest, AnswersForOtherSendersChangeNothing) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigNotifyStatusChange);
  QObject other;
  answer(&other, R"({"status": 61440, "content": {"x": 1}, "connection": {"address": "evil"}})");
  answer(nullptr, R"({"status": 61440})");
  drain();
  EXPECT_EQ(spy.size(), 0);
  ServiceStatus s;
  Json::Value content;
  StatusStore::instance().getStatus(s, content);
  EXPECT_EQ(s, StatusUnknown);
  EXPECT_TRUE(content.isNull());
  ConnectionInfo info;
  EXPECT_EQ(StatusStore::instance().getConnectionInfo(info), -1);

  // A second worker's answer is not this worker's either.
  GetStatusWorker second;
  answer(&second, R"({"status": 8192})");
  QCoreApplication::processEvents();
  answer(worker_, R"({"status": 8192})");
  const QList<QVariant> args = nextNotice(spy, 0);
  drain();
  EXPECT_EQ(spy.size(), 2);  // one from each worker, each for its own answer
  EXPECT_EQ(args.at(0).value<ServiceStatus>(), StatusUnknown);
}

TEST_F(StatusWorkerTest, IdenticalAnswersAnnounceTwiceTheSecondWithPreviousEqualCurrent) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigNotifyStatusChange);
  const std::string text = R"({"status": 8192, "content": {"last": 1}})";
  answer(worker_, text);
  answer(worker_, text);
  nextNotice(spy, 0);
  const QList<QVariant> second = nextNotice(spy, 1);
  ASSERT_EQ(spy.size(), 2);
  EXPECT_EQ(spy.at(0).at(0).value<ServiceStatus>(), StatusUnknown);
  EXPECT_EQ(second.at(0).value<ServiceStatus>(), StatusIdle);
  EXPECT_EQ(second.at(1).value<ServiceStatus>(), StatusIdle);
}

TEST_F(StatusWorkerTest, AnswerWithoutConnectionKeepsTheStoredOne) {
  ConnectionInfo held;
  held.address = "held.example";
  held.ssl_allow_untrust = true;
  StatusStore::instance().setConnectionInfo(held);
  QSignalSpy spy(bus_, &GlobalConnecter::sigNotifyStatusChange);
  answer(worker_, R"({"status": 8192, "content": {}})");
  nextNotice(spy, 0);
  ConnectionInfo info;
  ASSERT_EQ(StatusStore::instance().getConnectionInfo(info), 0);
  EXPECT_EQ(info, held);
}

TEST_F(StatusWorkerTest, RequestCarriesTheLastLogIdAndZeroAfterClearing) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigQueryService);
  StatusStore::instance().setLastLogId(18446744073709551615ULL);
  QMetaObject::invokeMethod(worker_, "slotQueryServiceStatus", Qt::QueuedConnection);
  ASSERT_TRUE(spy.wait(3000));
  StatusStore::instance().clearConnection();
  QMetaObject::invokeMethod(worker_, "slotQueryServiceStatus", Qt::QueuedConnection);
  ASSERT_TRUE(spy.size() == 2 || spy.wait(3000));
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

TEST_F(StatusWorkerTest, StopBeforeStartDoesNothing) {
  EXPECT_FALSE(worker_->isPolling());
  worker_->stopPolling();
  EXPECT_FALSE(worker_->isPolling());
}

TEST_F(StatusWorkerTest, StartTwiceMakesOneTimerThatTicksOnTheWorkerThread) {
  QSignalSpy requests(bus_, &GlobalConnecter::sigQueryService);
  QThread* tick_thread = nullptr;
  QObject::connect(
      worker_, &GetStatusWorker::sigQueryService, worker_,
      [&](const QObject*, Json::Value) { tick_thread = QThread::currentThread(); }, Qt::DirectConnection);
  worker_->startPolling();
  worker_->startPolling();
  EXPECT_TRUE(worker_->isPolling());
  ASSERT_TRUE(requests.wait(3000));
  worker_->stopPolling();
  EXPECT_FALSE(worker_->isPolling());
  drain();
  // One timer with one connection: one request per tick.
  EXPECT_EQ(requests.size(), 1);
  EXPECT_EQ(tick_thread, &thread_);
  EXPECT_EQ(jsonx::get_string(requests.at(0).at(1).value<Json::Value>(), "action"), "get_status");

  // Started again after a stop, it ticks again.
  worker_->startPolling();
  EXPECT_TRUE(worker_->isPolling());
  ASSERT_TRUE(requests.wait(3000));
}

// Answers whose members have the wrong type behave as if they were missing.
struct ConfusedAnswer {
  const char* name;
  const char* text;
  std::int32_t status;
  const char* content;  // expected content as JSON text; "null" when missing
  bool stores_connection;
};

std::ostream& operator<<(std::ostream& os, const ConfusedAnswer& v) {
  return os << v.name;
}

class ConfusedAnswerTest : public StatusWorkerTest, public ::testing::WithParamInterface<ConfusedAnswer> {};

TEST_P(ConfusedAnswerTest, ReadsAsMissing) {
  const ConfusedAnswer& c = GetParam();
  ConnectionInfo held;
  held.address = "held.example";
  StatusStore::instance().setConnectionInfo(held);
  QSignalSpy spy(bus_, &GlobalConnecter::sigNotifyStatusChange);
  answer(worker_, c.text);
  const QList<QVariant> args = nextNotice(spy, 0);
  ASSERT_EQ(args.size(), 3);
  EXPECT_EQ(static_cast<std::int32_t>(args.at(1).value<ServiceStatus>()), c.status);
  EXPECT_EQ(args.at(2).value<Json::Value>(), parse(c.content));
  ConnectionInfo info;
  ASSERT_EQ(StatusStore::instance().getConnectionInfo(info), 0);
  EXPECT_EQ(info.address == "held.example", !c.stores_connection) << info.address;
}

INSTANTIATE_TEST_SUITE_P(
    Answers, ConfusedAnswerTest,
    ::testing::Values(
        ConfusedAnswer{"StatusString", R"({"status": "12288", "content": {}})", 0, "{}", false},
        ConfusedAnswer{"StatusObject", R"({"status": {"v": 1}})", 0, "null", false},
        ConfusedAnswer{"StatusBool", R"({"status": true})", 0, "null", false},
        ConfusedAnswer{"StatusWholeDouble", R"({"status": 8192.0})", 8192, "null", false},
        ConfusedAnswer{"StatusFraction", R"({"status": 8192.5})", 0, "null", false},
        ConfusedAnswer{"StatusWide", R"({"status": 4294979584})", 0x3000, "null", false},
        ConfusedAnswer{"StatusNegative", R"({"status": -1})", -1, "null", false},
        ConfusedAnswer{"ContentNumber", R"({"status": 8192, "content": 5})", 8192, "null", false},
        ConfusedAnswer{"ContentArray", R"({"status": 8192, "content": [1, 2]})", 8192, "null", false},
        ConfusedAnswer{"ContentString", R"({"status": 8192, "content": "x"})", 8192, "null", false},
        ConfusedAnswer{"ConnectionArray", R"({"status": 8192, "connection": [{"address": "a"}]})", 8192,
                       "null", false},
        ConfusedAnswer{"ConnectionString", R"({"status": 8192, "connection": "cloud"})", 8192, "null", false},
        ConfusedAnswer{"ConnectionNull", R"({"status": 8192, "connection": null})", 8192, "null", false},
        ConfusedAnswer{"ConnectionEmpty", R"({"status": 8192, "connection": {}})", 8192, "null", true},
        ConfusedAnswer{"ProxyArray", R"({"status": 8192, "connection": {"address": "new"}, "proxy": [1]})",
                       8192, "null", true},
        ConfusedAnswer{"Nothing", R"({})", 0, "null", false}),
    [](const ::testing::TestParamInfo<ConfusedAnswer>& p) { return std::string(p.param.name); });

TEST_F(StatusWorkerTest, AnswerThatIsNotAnObjectStillAnnouncesDefaults) {
  QSignalSpy spy(bus_, &GlobalConnecter::sigNotifyStatusChange);
  emit bus_->sigQueryServiceDone(worker_, Json::Value(Json::arrayValue));
  emit bus_->sigQueryServiceDone(worker_, Json::Value("text"));
  nextNotice(spy, 0);
  const QList<QVariant> args = nextNotice(spy, 1);
  EXPECT_EQ(args.at(1).value<ServiceStatus>(), StatusUnknown);
  EXPECT_TRUE(args.at(2).value<Json::Value>().isNull());
}

}  // namespace
