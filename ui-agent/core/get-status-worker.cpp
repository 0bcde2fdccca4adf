#include "ui-agent/core/get-status-worker.h"

#include <QThread>
#include <QTimer>

#include "logging/logger.h"
#include "ui-agent/core/connection-info.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/status-answer.h"
#include "ui-agent/core/status-store.h"
#include "vantor-core/lib/json-access.h"

GetStatusWorker::GetStatusWorker(QObject* parent) : QObject(parent) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  connect(bus, &GlobalConnecter::sigQueryServiceDone, this, &GetStatusWorker::slotQueryServiceDone);
  connect(bus, &GlobalConnecter::sigQueryServiceEnded, this, &GetStatusWorker::slotQueryServiceEnded);
  // Forwarded on the poller's thread, so that a poll does not wake the main
  // thread only to pass the request on.
  connect(this, &GetStatusWorker::sigQueryService, bus, &GlobalConnecter::sigQueryService,
          Qt::DirectConnection);
  connect(this, &GetStatusWorker::sigNotifyStatusChange, bus, &GlobalConnecter::sigNotifyStatusChange,
          Qt::DirectConnection);
}

GetStatusWorker::~GetStatusWorker() {
  if (!timer_) return;
  // The timer lives on the worker's thread. Once that thread has ended (it
  // stopped the timer on its way out) or when it is this one, it goes now;
  // otherwise its own thread deletes it.
  QThread* owner = timer_->thread();
  if (owner == QThread::currentThread() || owner->isFinished()) {
    delete timer_;
  } else {
    timer_->deleteLater();
  }
}

void GetStatusWorker::startPolling() {
  if (!timer_) {
    timer_ = new QTimer();
    timer_->setInterval(kPollIntervalMs);
    connect(timer_, SIGNAL(timeout()), this, SLOT(slotQueryServiceStatus()));
    QThread* worker = thread();
    if (worker != QThread::currentThread()) {
      timer_->moveToThread(worker);
      // A timer is stopped on its own thread: when that thread ends, before
      // anyone deletes the worker.
      connect(worker, &QThread::finished, timer_, &QTimer::stop, Qt::DirectConnection);
    }
  }
  if (polling_.exchange(true)) return;
  QTimer* timer = timer_;
  QMetaObject::invokeMethod(timer, [timer] { timer->start(); });
}

void GetStatusWorker::stopPolling() {
  if (!timer_ || !polling_.exchange(false)) return;
  QTimer* timer = timer_;
  QMetaObject::invokeMethod(timer, [timer] { timer->stop(); });
}

bool GetStatusWorker::isPolling() const {
  return polling_.load();
}

void GetStatusWorker::slotQueryServiceStatus() {
  if (inFlight_) return;
  inFlight_ = true;
  Json::Value request(Json::objectValue);
  request["action"] = "get_status";
  request["log_id"] = Json::UInt64(StatusStore::instance().getLastLogId());
  emit sigQueryService(this, request);
}

void GetStatusWorker::slotQueryServiceEnded(const QObject* sender) {
  if (sender == this) inFlight_ = false;
}

void GetStatusWorker::slotQueryServiceDone(const QObject* sender, const SharedJson& answer) {
  if (sender != this) return;
  const Json::Value& response = answer;

  StatusStore& store = StatusStore::instance();
  const ServiceStatus previous = store.status();

  // Members of the wrong type read as their defaults; the log tells once
  // when the answers turn unreadable, and once when they are sound again.
  const std::string problem = status_answer::problem(response);
  if (problem != answerProblem_) {
    if (!problem.empty())
      LOG_WARN(vlog::kDefaultComponent,
               "status answer not as expected (%s): its members read as 0, false or empty", problem.c_str());
    else
      LOG_INFO(vlog::kDefaultComponent, "status answers as expected again");
    answerProblem_ = problem;
  }

  const ServiceStatus current = service_status::from_int64(jsonx::get_int64(response, "status"));
  // A `content` that is not an object counts as missing.
  const Json::Value& member_content = jsonx::member(response, "content");
  // Shared with the answer, never copied.
  const SharedJson content =
      jsonx::is_object(member_content) ? SharedJson(answer, member_content) : SharedJson();
  store.setStatus(current, content);

  const Json::Value& connection = jsonx::member(response, "connection");
  if (jsonx::is_object(connection)) {
    // ssl_allow_untrust is left out on purpose: a status answer never
    // carries it, so every poll with a connection stores false for it.
    store.setConnectionInfo(
        fillConnectionInfo(connection, jsonx::member(response, "proxy"), SslTrust::Ignore));
  }

  emit sigNotifyStatusChange(previous, current, content);
}
