#pragma once
// The process-wide signal bus. It declares signals only: a part emits a bus
// signal (or forwards one of its own signals of the same signature to it)
// and listeners connect the bus signals to their slots. The bus lives on the
// main thread, so signals emitted on worker threads reach their listeners
// through queued delivery; every type carried here is a registered meta-type.
// Worker threads forward to the bus with direct connections, so their
// signals go to each listener's thread without a hop through the main one.
//
// Answers and the status content travel as SharedJson: one tree, shared
// read-only by every listener (slots may take `const Json::Value&`).
//
// sigQueryServiceDone is a broadcast: every requester receives every answer
// and must compare `sender` with its own address before reading it.

#include <json/value.h>

#include <QObject>
#include <QPoint>
#include <QString>

#include "ui-agent/core/connection-info.h"
#include "ui-agent/core/json-meta-type.h"
#include "ui-agent/core/service-status.h"

// The requester's address that rides along with requests and answers.
Q_DECLARE_METATYPE(const QObject*)

class GlobalConnecter : public QObject {
  Q_OBJECT

 public:
  // The bus, created on first call (thread-safe).
  static GlobalConnecter& instance();

 signals:
  void sigPositionClicked(QPoint pos);
  void sigShowAboutWindow();
  void sigRestorePortal();
  void sigWebConsole();
  void sigOpenHelp();
  void sigUpdateQuota();
  void sigGetConnectionInfo();
  void sigConnectServer(ConnectionInfo info);
  void sigQueryService(const QObject* sender, const Json::Value& request);
  void sigQueryServiceDone(const QObject* sender, const SharedJson& response);
  void sigQueryServiceFailed();
  // After every request, answered (after sigQueryServiceDone) or failed
  // (after sigQueryServiceFailed), for the requester that keeps count.
  void sigQueryServiceEnded(const QObject* sender);
  void sigLogoutService();
  void sigExitApplication();
  void sigCancelCreateDevice();
  void sigCreateDevice(const QString& zid, const QString& sub_id, const QString& account_type);
  void sigGetAuthURL();
  void sigNotifyStatusChange(ServiceStatus previous, ServiceStatus current, const SharedJson& content);
  void sigShowMessage(QString title, QString message);
  void sigMessageReceived(const QString& message);
  void sigOpenLogWindow();
  void sigHandleNotifications(const Json::Value& notifications);
  void sigTrayClickedWithoutConnection();
  void sigTrayClickedDuringSetup();
  void sigApplicationStateChanged(Qt::ApplicationState state);

 private:
  GlobalConnecter();
};
