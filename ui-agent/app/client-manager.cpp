#include "ui-agent/app/client-manager.h"

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>

#include <stdexcept>

#include "logging/logger.h"
#include "ui-agent/app/client-manager-rules.h"
#include "ui-agent/core/get-status-worker.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-communicator.h"
#include "ui-agent/core/service-error-text.h"
#include "ui-agent/core/status-store.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/dialogs/about-window.h"
#include "ui-agent/dialogs/notice-box.h"
#include "ui-agent/dialogs/update-status-dialog.h"
#include "ui-agent/tray/system-tray.h"
#include "ui-agent/wizard/wizard.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/vell-message-sheet.h"
#include "widgets/web-link.h"
#include "widgets/window-placement.h"

using client_manager_rules::SchemeMessage;
using string_display::text;

#define CM_LOG_ERROR(...) LOG_ERROR(vlog::kClientManager, __VA_ARGS__)
#define CM_LOG_INFO(...) LOG_INFO(vlog::kClientManager, __VA_ARGS__)

namespace {

// An answer as it may appear in the log: secrets masked, on one line.
std::string loggable(const Json::Value& v) {
  return ServiceCommunicator::maskedForLog(v);
}

// A message as it may appear in the log: the sign-in token masked.
QString loggable(const QString& msg) {
  const SchemeMessage m = client_manager_rules::parse_scheme_message(msg);
  if (m.kind == SchemeMessage::Pair && m.key == QLatin1String("access_token"))
    return QString::fromLatin1(client_manager_rules::kSchemePrefix) + QStringLiteral("?access_token=***");
  if (m.kind == SchemeMessage::Malformed && msg.contains(QLatin1String("access_token")))
    return QString::fromLatin1(client_manager_rules::kSchemePrefix) + QStringLiteral("?access_token***");
  return QString::fromStdString(jsonx::masked_text(msg.toStdString()));
}

void openInBrowser(const std::string& address, const char* what) {
  web_link::open(QString::fromStdString(address), what);
}

// Changing the flags hides a window, so they are changed only when they
// differ (the dialog is asked about every second while the service upgrades).
void setMinimizable(QWidget* window, bool on) {
  const Qt::WindowFlags flags = window->windowFlags();
  const Qt::WindowFlags wanted =
      on ? flags | Qt::WindowMinimizeButtonHint : flags & ~Qt::WindowMinimizeButtonHint;
  if (wanted != flags) window->setWindowFlags(wanted);
}

}  // namespace

ClientManager::ClientManager() : QObject(nullptr) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  connect(bus, SIGNAL(sigGetConnectionInfo()), this, SLOT(slotGetConnectionInfo()));
  connect(bus, SIGNAL(sigGetAuthURL()), this, SLOT(slotGetAuthURL()));
  connect(bus, SIGNAL(sigCreateDevice(const QString&, const QString&, const QString&)), this,
          SLOT(slotCreateDevice(const QString&, const QString&, const QString&)));
  connect(bus, SIGNAL(sigRestorePortal()), this, SLOT(slotRestorePortal()));
  connect(bus, &GlobalConnecter::sigWebConsole, this, &ClientManager::slotWebConsole);
  connect(bus, SIGNAL(sigOpenHelp()), this, SLOT(slotOpenHelp()));
  connect(bus, SIGNAL(sigUpdateQuota()), this, SLOT(slotUpdateQuota()));
  connect(bus, SIGNAL(sigShowAboutWindow()), this, SLOT(slotShowAboutWindow()));
  connect(bus, SIGNAL(sigTrayClickedWithoutConnection()), this, SLOT(slotTrayClickedWithoutConnection()));
  connect(bus, SIGNAL(sigLogoutService()), this, SLOT(slotLogoutService()));
  connect(bus, SIGNAL(sigExitApplication()), this, SLOT(slotExitApplication()));
  connect(bus, SIGNAL(sigMessageReceived(const QString&)), this, SLOT(slotMessageReceived(const QString&)));
  connect(bus, &GlobalConnecter::sigNotifyStatusChange, this, &ClientManager::slotHandleStatusChange);
  connect(bus, SIGNAL(sigHandleNotifications(const Json::Value&)), this,
          SLOT(slotHandleNotifications(const Json::Value&)));
  connect(bus, &GlobalConnecter::sigQueryServiceDone, this, &ClientManager::slotQueryServiceDone);
  connect(bus, SIGNAL(sigQueryServiceFailed()), this, SLOT(slotQueryServiceFailed()));
  connect(this, SIGNAL(sigQueryService(const QObject*, Json::Value)), bus,
          SIGNAL(sigQueryService(const QObject*, Json::Value)));
  connect(this, SIGNAL(sigShowMessage(QString, QString)), bus, SIGNAL(sigShowMessage(QString, QString)));

  communicatorThread = new QThread(this);
  communicator = new ServiceCommunicator();
  communicator->moveToThread(communicatorThread);
  communicatorThread->start(QThread::InheritPriority);

  ipcServer = new ServiceIpcServer(this);
  try {
    ipcServer->init();
    ipcServer->start(QThread::InheritPriority);
  } catch (const std::exception& e) {
    // Without its own pipe the agent still works; pushed notifications are lost.
    CM_LOG_ERROR("agent pipe not served: %s", e.what());
  }

  // The poller shares the request client's thread: a tick sends its request
  // and handles the answer there, without waking a thread of its own (and
  // no tick comes while an exchange is under way).
  statusWorker = new GetStatusWorker();
  statusWorker->moveToThread(communicatorThread);

  // The windows are built when first needed: a connected agent never shows
  // the wizard, and nothing but the tray icon is needed to start.
}

ClientManager::~ClientManager() {
  // The two threads, then the windows.
  ipcServer->stop();
  ipcServer->wait();
  statusWorker->stopPolling();
  communicatorThread->quit();
  communicatorThread->wait();
  delete statusWorker;
  delete communicator;
  delete tray;
  delete updateDialog;
  delete about;
  delete wizard;
}

Wizard* ClientManager::wizardWindow() {
  if (!wizard) wizard = new Wizard();  // 900 x 540, its own size
  return wizard;
}

AboutWindowContainer* ClientManager::aboutWindow() {
  if (!about) about = new AboutWindowContainer();
  return about;
}

void ClientManager::start(bool openLog) {
  CM_LOG_INFO("Application start with log %d", openLog ? 1 : 0);
  openLogPending = openLog;
  if (!tray) tray = new SystemTray();
  tray->setVisible(true);
  // The pop-up once the icon is up, so that the first click finds it built.
  QMetaObject::invokeMethod(tray, &SystemTray::buildPopup, Qt::QueuedConnection);
}

// The requests of the sign-in and device registration, answered to the wizard.
static bool isRegistrationAction(const std::string& action) {
  return action == "get_auth" || action == "get_token" || action == "get_site_info" ||
         action == "create_device";
}

void ClientManager::send(const Json::Value& request) {
  if (isRegistrationAction(jsonx::get_string(request, "action"))) ++registrationInFlight;
  emit sigQueryService(this, request);
}

void ClientManager::sendAction(const char* action) {
  Json::Value request(Json::objectValue);
  request["action"] = action;
  send(request);
}

void ClientManager::showMenuAtIcon() {
  if (tray) tray->showMenuAt(tray->openAnchor());
}

// ---- requests ----------------------------------------------------------------

void ClientManager::slotGetConnectionInfo() {
  sendAction("get_connection_info");
}

void ClientManager::slotGetAuthURL() {
  sendAction("get_auth");
  authPending.exchange(true);
  wizardWindow()->showSignInSheet();
}

void ClientManager::slotCreateDevice(const QString& zid, const QString& subscription_id,
                                     const QString& account_type) {
  Json::Value request(Json::objectValue);
  request["action"] = "create_device";
  request["zid"] = zid.toStdString();
  request["subscription_id"] = subscription_id.toStdString();
  request["account_type"] = account_type.toStdString();
  send(request);
  wizardWindow()->showConnecting();
}

static Json::Value portalRequest(const char* subaction) {
  Json::Value request(Json::objectValue);
  request["action"] = "get_portal_link";
  request["subaction"] = subaction;
  return request;
}

void ClientManager::slotRestorePortal() {
  send(portalRequest("restore_portal"));
}

void ClientManager::slotWebConsole() {
  send(portalRequest("web_console"));
}

void ClientManager::slotOpenHelp() {
  send(portalRequest("help"));
}

void ClientManager::slotUpdateQuota() {
  sendAction("update_tray_menu");
}

void ClientManager::slotShowAboutWindow() {
  aboutWindow()->show();
  window_placement::activate(about);
}

void ClientManager::slotTrayClickedWithoutConnection() {
  wizardWindow()->bringToFront();
}

void ClientManager::slotLogoutService() {
  if (notice_box::ask(*notice_box::logout_question()) != QMessageBox::ApplyRole) return;
  sendAction("logout");
  if (tray) tray->setConnectionMode(ConnectionMode::NotConnected);
}

void ClientManager::slotExitApplication() {
  CM_LOG_INFO("exit chosen: the agent tells the user and ends");
  if (tray) tray->setConnectionMode(ConnectionMode::Inactive);
  notice_box::ask(*notice_box::exit_notice());
  QCoreApplication::quit();
}

// ---- messages from a second launch ------------------------------------------

void ClientManager::slotMessageReceived(const QString& msg) {
  CM_LOG_INFO("Got message from local peer: %s (%p)", qUtf8Printable(loggable(msg)),
              static_cast<void*>(this));
  if (msg == QLatin1String("open")) {
    ConnectionInfo info;
    if (StatusStore::instance().getConnectionInfo(info) == 0) showMenuAtIcon();
    return;
  }
  if (msg == QLatin1String("open_log")) {
    openLogPending = true;
    return;
  }
  const SchemeMessage m = client_manager_rules::parse_scheme_message(msg);
  if (m.kind == SchemeMessage::NotScheme) return;
  if (m.kind == SchemeMessage::Malformed) {
    CM_LOG_ERROR("Message content is wrong: %s", qUtf8Printable(loggable(msg)));
    return;
  }
  if (m.key == QLatin1String("open_log")) {
    openLogPending = true;
  } else if (m.key == QLatin1String("access_token")) {
    if (!authPending.exchange(false)) {
      CM_LOG_INFO("sign-in token ignored: no sign-in is under way");
      return;
    }
    Json::Value request(Json::objectValue);
    request["action"] = "get_token";
    request["token"] = m.value.toStdString();
    send(request);
    wizardWindow()->closeSignInSheet();
    wizardWindow()->bringToFront();
    wizardWindow()->showConnecting();
  }
}

// ---- status and notifications -------------------------------------------------

void ClientManager::slotHandleStatusChange(ServiceStatus, ServiceStatus current,
                                           const Json::Value& current_content) {
  failureCount = 0;
  StatusStore& store = StatusStore::instance();
  if (service_status::is_not_linked(current)) {
    QGuiApplication::setQuitOnLastWindowClosed(true);
    statusWorker->stopPolling();
    store.clearConnection();
    store.setLastLogId(0);
    if (tray) tray->setConnectionMode(ConnectionMode::NotConnected);
    wizardWindow()->showWelcomePage();
    wizardWindow()->bringToFront();
    return;
  }
  if (tray) {
    tray->updateServiceStatus(current, current_content);
    ConnectionInfo info;
    store.getConnectionInfo(info);
    tray->setMenuEntriesVisible(info.is_vell_account, info.is_auth_fork, info.backup_role);
    if (jsonx::has(current_content, "billing")) tray->updateQuota(jsonx::member(current_content, "billing"));
  }
  const QList<LogEntry> entries =
      client_manager_rules::new_log_entries(jsonx::member(current_content, "logs"), store.getLastLogId());
  if (!entries.isEmpty()) {
    store.setLastLogId(entries.last().id);
    if (tray) tray->appendLogEntries(entries);
  }
  if (openLogPending && tray) {
    tray->showLogWindow();
    openLogPending = false;
  }
}

void ClientManager::slotHandleNotifications(const Json::Value& pushed) {
  int leftOut = 0;
  const Json::Value notifications = client_manager_rules::bounded_notifications(pushed, leftOut);
  if (leftOut > 0)
    CM_LOG_ERROR("%d notifications in one push: the last %d shown, the first %d left out",
                 leftOut + client_manager_rules::kNotificationsPerPush,
                 client_manager_rules::kNotificationsPerPush, leftOut);
  if (client_manager_platform::useNotifier()) {
    runNotifier(notifications);
  } else if (tray) {
    tray->showNotifications(
        client_manager_rules::balloon_notifications(jsonx::member(notifications, "notifications")));
  }
}

// The notifier runs on its own: the GUI thread never waits for it (a
// notification service that does not answer costs the notifier seconds).
// Its exit code and what it wrote (its reasons go to standard error) are
// logged when it ends; one that has not ended after 30 s is stopped.
void ClientManager::runNotifier(const Json::Value& notifications) {
  QStringList arguments;
  if (!client_manager_rules::notifier_arguments(notifications, arguments)) {
    CM_LOG_ERROR("format invalid");
    return;
  }
  auto* notifier = new QProcess(this);
  notifier->setProcessChannelMode(QProcess::MergedChannels);
  const Json::Value list =
      client_manager_rules::balloon_notifications(jsonx::member(notifications, "notifications"));
  // Balloons instead when there is no notifier to show them.
  const auto balloons = [this, list] {
    if (tray) tray->showNotifications(list);
  };
  connect(notifier, &QProcess::errorOccurred, this, [notifier, balloons](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;
    CM_LOG_ERROR("the notifier did not start: %s", qUtf8Printable(notifier->errorString()));
    balloons();
    notifier->deleteLater();
  });
  connect(notifier, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
          [notifier, balloons](int code, QProcess::ExitStatus status) {
            const QByteArray output = notifier->readAll().trimmed();
            if (status != QProcess::NormalExit) {
              CM_LOG_ERROR("notifier ended without an exit code, output: %s", output.constData());
            } else if (code != 0) {
              CM_LOG_ERROR("command execution error occurred, code: %d, output: %s", code,
                           output.constData());
              if (code == client_manager_platform::kNoNotificationService) balloons();
            }
            notifier->deleteLater();
          });
  QTimer::singleShot(30000, notifier, [notifier] {
    CM_LOG_ERROR("the notifier has not ended after 30 s: stopped");
    notifier->kill();
  });
  notifier->start(client_manager_platform::notifierProgram(), arguments, QIODevice::ReadOnly);
}

// ---- answers -------------------------------------------------------------------

void ClientManager::slotQueryServiceDone(const QObject* sender, const SharedJson& answer) {
  if (sender != this) return;
  const Json::Value& response = answer;
  const std::string action = jsonx::get_string(response, "action");
  if (isRegistrationAction(action) && registrationInFlight > 0) --registrationInFlight;
  if (action == "get_connection_info")
    onConnectionInfo(response);
  else if (action == "get_portal_link")
    onPortalLink(response);
  else if (action == "create_device")
    onCreateDevice(response);
  else if (action == "get_site_info")
    onSiteInfo(answer);
  else if (action == "get_auth")
    onAuth(response);
  else if (action == "get_token")
    onToken(response);
}

void ClientManager::onConnectionInfo(const Json::Value& response) {
  if (jsonx::has(response, "update_status")) {
    if (!updateDialog) {
      updateDialog = new UpdateStatusDialog();
      connect(updateDialog, &QDialog::finished, qApp, &QCoreApplication::quit);
    }
    const std::string state = jsonx::get_string(response, "update_status");
    if (state == "update_error") {
      updateDialog->setMessage(text(Str::desc_update_service_fail));
      updateDialog->setButtonVisible(true);
      setMinimizable(updateDialog, false);
    } else if (state == "updating") {
      updateDialog->setMessage(text(Str::desc_updating_service));
      updateDialog->setButtonVisible(false);
      setMinimizable(updateDialog, true);
      QTimer::singleShot(1000, this, &ClientManager::slotGetConnectionInfo);
    }
    updateDialog->show();
    return;
  }
  if (updateDialog) updateDialog->hide();
  if (!jsonx::has(response, "connection")) {
    if (tray) tray->setConnectionMode(ConnectionMode::NotConnected);
    wizardWindow()->bringToFront();
    wizardWindow()->showWelcomePage();
    return;
  }
  const Json::Value& link = jsonx::member(response, "connection");
  // The failures before the record (a service still starting) do not count
  // against the polling window that begins now.
  failureCount = 0;
  connection = fillConnectionInfo(link, jsonx::member(response, "proxy"), SslTrust::Read);
  StatusStore::instance().setConnectionInfo(connection);
  if (tray) tray->setConnectionMode(ConnectionMode::Connected);
  QGuiApplication::setQuitOnLastWindowClosed(false);
  statusWorker->startPolling();
  if (tray) {
    tray->setAccountName(QString::fromStdString(jsonx::get_string(link, "email")));
    tray->setMenuEntriesVisible(connection.is_vell_account, connection.is_auth_fork, connection.backup_role);
  }
  if (showMenuWhenConnected) {
    showMenuAtIcon();
    showMenuWhenConnected = false;
  }
}

void ClientManager::onPortalLink(const Json::Value& response) {
  if (jsonx::has(response, "url")) {
    openInBrowser(jsonx::get_string(response, "url"), "portal link");
  } else if (jsonx::has(response, "error")) {
    showWarningMsg(text(Str::app_name),
                   service_error_text::message(service_error_text::code_of(response), response));
  }
}

void ClientManager::onAuth(const Json::Value& response) {
  if (!jsonx::has(response, "error")) {
    openInBrowser(jsonx::get_string(response, "redirect_to"), "sign-in address");
    return;
  }
  CM_LOG_ERROR("failed to get auth URL [%s]", loggable(response).c_str());
  authPending.exchange(false);
  wizardWindow()->closeSignInSheet();
  wizardWindow()->showError(service_error_text::code_of(response), response);
  wizardWindow()->showWelcomePage();
}

void ClientManager::onToken(const Json::Value& response) {
  if (jsonx::has(response, "error")) {
    CM_LOG_ERROR("failed to get token [%s]", loggable(response).c_str());
    wizardWindow()->hideConnecting();
    wizardWindow()->showError(service_error_text::code_of(response), response);
    wizardWindow()->showWelcomePage();
    return;
  }
  sendAction("get_site_info");
}

void ClientManager::onSiteInfo(const SharedJson& answer) {
  const Json::Value& response = answer;
  wizardWindow()->hideConnecting();
  if (jsonx::has(response, "error") && jsonx::member(response, "data").empty()) {
    CM_LOG_ERROR("failed to get site info [%s]", loggable(response).c_str());
    wizardWindow()->showError(service_error_text::code_of(response), response);
    wizardWindow()->showWelcomePage();
    return;
  }
  StatusStore::instance().setStatus(StatusSiteInfo, answer);
  wizardWindow()->showSummaryPage();
}

void ClientManager::onCreateDevice(const Json::Value& response) {
  wizardWindow()->hideConnecting();
  if (jsonx::has(response, "error")) {
    CM_LOG_ERROR("failed to create device [%s]", loggable(response).c_str());
    wizardWindow()->showError(service_error_text::code_of(response), response);
    wizardWindow()->showWelcomePage();
    return;
  }
  QGuiApplication::setQuitOnLastWindowClosed(false);
  if (wizardWindow()->askBackupNow()) {
    showMenuWhenConnected = true;
    sendAction("backup_now");
  }
  if (wizard) wizard->hide();
  sendAction("get_connection_info");
  statusWorker->startPolling();
  if (tray) tray->setConnectionMode(ConnectionMode::Connected);
  showMenuAtIcon();
}

void ClientManager::slotQueryServiceFailed() {
  if (registrationInFlight > 0) {
    // A registration request got no answer: the wizard would wait under its
    // connecting frame (or the sign-in sheet) for ever. Back to the welcome
    // page, with the generic error.
    --registrationInFlight;
    CM_LOG_ERROR("a registration request failed: back to the welcome page");
    authPending.exchange(false);
    wizardWindow()->closeSignInSheet();
    wizardWindow()->showError(-1);
    wizardWindow()->showWelcomePage();
  }
  const client_manager_rules::Failure verdict =
      client_manager_rules::count_failure(failureCount, statusWorker->isPolling());
  if (verdict == client_manager_rules::Failure::Retry) {
    QTimer::singleShot(1000, this, &ClientManager::slotGetConnectionInfo);
    return;
  }
  if (verdict == client_manager_rules::Failure::Tolerated) return;
  CM_LOG_ERROR("service unreachable after %d failures: the agent ends", failureCount);
  disconnect(&GlobalConnecter::instance(), SIGNAL(sigQueryServiceFailed()), this,
             SLOT(slotQueryServiceFailed()));
  // Nothing more is asked while the warning waits for the person: each
  // failed request would add its lines to the log for as long as it waits.
  statusWorker->stopPolling();
  showWarningMsg(text(Str::app_name), text(Str::err_query_service_failed));
  QCoreApplication::quit();
}
