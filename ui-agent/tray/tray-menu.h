#pragma once
// The content of the tray pop-up: a header (product name, the activity list
// button, the user button with its drop-down), the status or the progress
// page below it, and the kept event-log entries. It opens the activity
// dialog from the kept entries and the settings dialog after asking the
// service for the bandwidth settings.

#include <json/value.h>

#include <QFrame>
#include <QList>
#include <QSize>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/core/service-status.h"
#include "ui-agent/core/tray-status.h"
#include "ui-agent/tray/relative-age.h"

class QAction;
class QLabel;
class QMenu;
class QStackedWidget;
class LogWidget;
class QuotaInfoWidget;
class SettingsWidget;
class TrayProgressWidget;
class TrayStatusWidget;
class VellIconButton;

class TrayMenu : public QFrame {
  Q_OBJECT

 public:
  // The pop-up's size in logical pixels; the tray shows it at
  // scaledSize(), this size times the interface scale.
  static constexpr QSize kSize{400, 232};
  static QSize scaledSize();

  explicit TrayMenu(QWidget* parent = nullptr);
  ~TrayMenu() override;

  // Chooses the page for a status and updates it.
  void updateServiceStatus(ServiceStatus status, const Json::Value& content);
  // Keeps the entries (the last 100) and shows the newest on both pages.
  void appendLogEntries(const QList<LogEntry>& entries);
  // Shows or hides drop-down entries for the account.
  void setMenuEntriesVisible(bool is_vell_account, bool is_auth_fork, int backup_role);
  // Empties the kept entries (the tray leaves connected mode).
  void clearLogEntries();
  const QList<LogEntry>& logEntries() const { return entries_; }

  QuotaInfoWidget* quotaInfoWidget() const { return quota_; }
  LogWidget* logWidget() const { return log_; }
  SettingsWidget* settingsWidget() const { return settings_; }
  TrayStatusWidget* statusPage() const { return status_page_; }
  TrayProgressWidget* progressPage() const { return progress_page_; }
  QMenu* userMenu() const { return menu_; }
  // Where the pages take "now" from.
  void setClock(const relative_age::Clock& clock);

 signals:
  void sigQueryService(const QObject* sender, const Json::Value& request);
  void sigTrayStatusChanged(TrayStatus status);

 public slots:
  void slotSeeAllClicked();
  void slotShowSettingsWindow();
  void slotQueryServiceDone(const QObject* sender, const Json::Value& response);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void buildHeader();
  void buildMenu();
  void showAccountInitial(const QString& account);
  // One debug line whenever the texts of the shown page change.
  void logShownPage();

  QLabel* picture_ = nullptr;
  QLabel* title_ = nullptr;
  VellIconButton* list_button_ = nullptr;
  VellIconButton* user_button_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  TrayStatusWidget* status_page_ = nullptr;
  TrayProgressWidget* progress_page_ = nullptr;
  QMenu* menu_ = nullptr;
  QuotaInfoWidget* quota_ = nullptr;
  QAction* web_console_ = nullptr;
  QAction* recovery_portal_ = nullptr;
  LogWidget* log_ = nullptr;
  SettingsWidget* settings_ = nullptr;
  QList<LogEntry> entries_;
  QString loggedPage_;
};
