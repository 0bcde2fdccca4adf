#pragma once
// Traffic with the backup service.
//
// ServiceCommunicator carries every request of the agent to the service: a
// part emits GlobalConnecter::sigQueryService(sender, request); the
// communicator, living on a worker thread of its own, makes one exchange over
// the service's pipe and broadcasts GlobalConnecter::sigQueryServiceDone
// (sender, answer) or GlobalConnecter::sigQueryServiceFailed(). Requests are
// served one at a time, in the order they were emitted.
//
// ServiceIpcServer is the agent's own pipe, on which the service pushes
// notifications; they go out on the bus as sigHandleNotifications.
//
// Both ends check who is on the other side: requests go only to a service
// end run by the system (uid 0) or by the agent's own user, and the agent's
// pipe serves only such clients. Everything else gets one log line.

#include <json/value.h>

#include <atomic>
#include <string>

#include <QObject>
#include <QThread>

#include "ipc/win-ipc.h"
#include "logging/log-throttle.h"
#include "ui-agent/core/json-meta-type.h"

class ServiceCommunicator : public QObject {
  Q_OBJECT

 public:
  explicit ServiceCommunicator(QObject* parent = nullptr);

  // A request or answer as it may appear in a log line, on one line: every
  // secret member at any depth and every secret query parameter masked as
  // "***" unless empty (see jsonx::masked).
  static std::string maskedForLog(const Json::Value& request);

  // Makes the exchange in progress (and every later one) give up within
  // about 100 ms, so that quitting never waits on a hung service. Called
  // from any thread; done by itself when the application is about to quit.
  void cancelRequests();
  bool isCancelled() const { return quit_.load(); }

  // The first line of <working space>/service-status when it is "updating" or
  // "update_error"; empty otherwise (also when the file is missing).
  static std::string updateStatusFromFile();

 signals:
  void sigQueryServiceDone(const QObject* sender, const SharedJson& response);
  void sigQueryServiceFailed();
  // After every request, answered or failed.
  void sigQueryServiceEnded(const QObject* sender);

 public slots:
  void slotQueryService(const QObject* sender, const Json::Value& request);

 private:
  // One exchange with the service: 0 with `response` filled, or -1.
  int query(const Json::Value& request, Json::Value& response);

  WinIpc::CancelFlag quit_{false};
};

class ServiceIpcServer : public QThread {
  Q_OBJECT

 public:
  explicit ServiceIpcServer(QObject* parent = nullptr);
  ~ServiceIpcServer() override;

  // Connects the signals to the bus, clears the stop flag and creates the
  // agent's pipe. Throws std::runtime_error("can't open port or socket, ipc
  // broken") when another process of this user (another agent) holds it.
  // When someone else holds the name, the thread keeps trying to take it
  // over and serves once it is free (isServing() tells).
  void init();
  bool isServing() const { return serving_.load(); }
  // Asks the thread to end: noticed within one accept round (3 s) between
  // clients and within 100 ms during an exchange, whatever the client does.
  void stop();
  bool isStopping() const { return stop_.load(); }
  // Length of one accept round, 3000 ms unless changed before start(); it
  // bounds how long stop() takes to be noticed.
  void setAcceptTimeoutMs(int ms) { server_.set_timeout_ms(ms); }

 signals:
  void sigOpenLogWindow();
  void sigHandleNotifications(const Json::Value& data);

 protected:
  void run() override;

 private:
  void handleConnection();
  bool dispatch(const Json::Value& request);
  // Tries to take the pipe name over after init() found it held by another
  // user; waits (watching the stop flag) between attempts.
  void retakePipe();

  WinIpc::IpcServer server_;
  // A client refused, or one that sent no complete request: a line per
  // interval, whatever a peer does on every connection.
  vlog::LogThrottle refusedLog_;
  vlog::LogThrottle incompleteLog_;
  std::atomic<bool> serving_{false};
  int retakeDelayMs_ = 0;
  std::atomic<bool> stop_{true};
};
