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

#include <json/value.h>

#include <atomic>
#include <string>

#include <QObject>
#include <QThread>

#include "core/json-meta-type.h"
#include "win-ipc.h"

class ServiceCommunicator : public QObject {
  Q_OBJECT

 public:
  explicit ServiceCommunicator(QObject* parent = nullptr);

  // The request as it may appear in a log line: `content.password`,
  // `content.otp` and `content.proxy_password` masked as "***" unless empty,
  // written styled.
  static std::string maskedForLog(const Json::Value& request);

  // The first line of <working space>/service-status when it is "updating" or
  // "update_error"; empty otherwise (also when the file is missing).
  static std::string updateStatusFromFile();

 signals:
  void sigQueryServiceDone(const QObject* sender, Json::Value response);
  void sigQueryServiceFailed();

 public slots:
  void slotQueryService(const QObject* sender, Json::Value request);

 private:
  // One exchange with the service: 0 with `response` filled, or -1.
  int query(const Json::Value& request, Json::Value& response);
};

class ServiceIpcServer : public QThread {
  Q_OBJECT

 public:
  explicit ServiceIpcServer(QObject* parent = nullptr);
  ~ServiceIpcServer() override;

  // Connects the signals to the bus, clears the stop flag and creates the
  // agent's pipe. Throws std::runtime_error("can't open port or socket, ipc
  // broken") when the pipe cannot be created (another agent holds it).
  void init();
  // Asks the thread to end; it looks at the flag between accept rounds
  // (at least every 3 seconds). An exchange in progress is finished first.
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

  WinIpc::IpcServer server_;
  std::atomic<bool> stop_{true};
};
