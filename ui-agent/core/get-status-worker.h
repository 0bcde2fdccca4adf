#pragma once
// The status poller: while the device is linked it asks the service for its
// state once a second ("get_status" with the newest activity-log id seen),
// keeps the answer in the StatusStore and announces every answer on the bus
// as sigNotifyStatusChange(previous, current, content). It makes no
// decisions of its own. At most one get_status is in flight: a tick while
// one is outstanding is skipped.
//
// The worker lives on a thread of its own. startPolling(), stopPolling() and
// isPolling() are called from the main thread; the timer is created there
// and handed to the worker's thread, where it ticks and calls
// slotQueryServiceStatus() without waking the main thread. Starting and
// stopping reach it queued, in the order they were asked for; isPolling()
// answers at once.

#include <json/value.h>

#include <QObject>

#include <atomic>
#include <string>

#include "ui-agent/core/json-meta-type.h"
#include "ui-agent/core/service-status.h"

class QTimer;

class GetStatusWorker : public QObject {
  Q_OBJECT

 public:
  static constexpr int kPollIntervalMs = 1000;

  explicit GetStatusWorker(QObject* parent = nullptr);
  ~GetStatusWorker() override;

  void startPolling();
  void stopPolling();
  bool isPolling() const;

 signals:
  void sigQueryService(const QObject* sender, const Json::Value& request);
  void sigNotifyStatusChange(ServiceStatus previous, ServiceStatus current,
                             const SharedJson& current_content);

 public slots:
  void slotQueryServiceStatus();
  void slotQueryServiceDone(const QObject* sender, const SharedJson& response);
  void slotQueryServiceEnded(const QObject* sender);

 private:
  QTimer* timer_ = nullptr;
  // What was wrong with the last answer ("" when nothing), on the worker's
  // thread.
  std::string answerProblem_;
  std::atomic<bool> polling_{false};
  // A get_status is on its way (asked, neither answered nor failed yet): a
  // tick meanwhile asks nothing, so a hung service never finds a pile of
  // requests when it comes back. On the worker's thread.
  bool inFlight_ = false;
};
