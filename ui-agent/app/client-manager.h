#pragma once
// The agent's controller. It owns the two worker threads (the request
// client with the status poller, the agent's pipe server) and the top-level
// windows (tray icon, wizard, about window, update dialog); it turns bus
// signals into requests to the service and the service's answers into
// changes of those windows, and decides the agent's mode: setup (the wizard),
// connected (polling, the tray pop-up) or upgrading (the update dialog).
// Everything here runs on the main thread.

#include <json/value.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QThread>

#include <atomic>

#include "ui-agent/core/connection-info.h"
#include "ui-agent/core/json-meta-type.h"
#include "ui-agent/core/service-status.h"

class AboutWindowContainer;
class GetStatusWorker;
class ServiceCommunicator;
class ServiceIpcServer;
class SystemTray;
class UpdateStatusDialog;
class Wizard;

class ClientManager : public QObject {
  Q_OBJECT

 public:
  ClientManager();
  ~ClientManager() override;

  // Creates and shows the tray icon (which asks for the connection record a
  // second later); `openLog` opens the activity log after the first status.
  void start(bool openLog);

  // For tests and tools.
  SystemTray* systemTray() const { return tray; }
  // The wizard and the about window, built when first asked for.
  Wizard* wizardWindow();
  AboutWindowContainer* aboutWindow();
  UpdateStatusDialog* updateStatusDialog() const { return updateDialog; }
  GetStatusWorker* statusPoller() const { return statusWorker; }
  ServiceCommunicator* serviceCommunicator() const { return communicator; }
  int failures() const { return failureCount; }
  bool isAuthPending() const { return authPending.load(); }
  bool isOpenLogPending() const { return openLogPending; }

 signals:
  void sigQueryService(const QObject* sender, const Json::Value& request);
  void sigShowMessage(QString title, QString message);

 public slots:
  void slotGetConnectionInfo();
  void slotGetAuthURL();
  void slotCreateDevice(const QString& zid, const QString& subscription_id, const QString& account_type);
  void slotRestorePortal();
  void slotWebConsole();
  void slotOpenHelp();
  void slotUpdateQuota();
  void slotShowAboutWindow();
  void slotTrayClickedWithoutConnection();
  void slotLogoutService();
  void slotExitApplication();
  void slotMessageReceived(const QString& msg);
  void slotHandleStatusChange(ServiceStatus previous, ServiceStatus current,
                              const Json::Value& current_content);
  void slotHandleNotifications(const Json::Value& notifications);
  void slotQueryServiceDone(const QObject* sender, const SharedJson& answer);
  void slotQueryServiceFailed();

 private:
  void send(const Json::Value& request);
  void sendAction(const char* action);
  void showMenuAtIcon();
  void onConnectionInfo(const Json::Value& response);
  void onPortalLink(const Json::Value& response);
  void onAuth(const Json::Value& response);
  void onToken(const Json::Value& response);
  void onSiteInfo(const SharedJson& answer);
  void onCreateDevice(const Json::Value& response);
  void runNotifier(const Json::Value& notifications);

  SystemTray* tray = nullptr;
  Wizard* wizard = nullptr;
  AboutWindowContainer* about = nullptr;
  ServiceCommunicator* communicator = nullptr;
  QThread* communicatorThread = nullptr;
  ServiceIpcServer* ipcServer = nullptr;
  ConnectionInfo connection;
  GetStatusWorker* statusWorker = nullptr;
  int failureCount = 0;
  UpdateStatusDialog* updateDialog = nullptr;
  bool showMenuWhenConnected = false;
  bool openLogPending = false;
  std::atomic<bool> authPending{false};
  int registrationInFlight = 0;  // registration requests sent, not yet answered
};

// Platform halves (client-manager-posix.cpp / client-manager-windows.cpp).
namespace client_manager_platform {
// The notifier program in the application folder.
QString notifierProgram();
// Whether pushed notifications go to the notifier (else tray balloons).
bool useNotifier();
// The notifier's exit code meaning "no notification service on this desktop".
inline constexpr int kNoNotificationService = 3;
}  // namespace client_manager_platform
