#include "ui-agent/tray/tray-menu.h"

#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>
#include <QTextDocument>
#include <QVBoxLayout>
#include <QWidgetAction>

#include "logging/logger.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/dialogs/settings-widget.h"
#include "ui-agent/tray/log-widget.h"
#include "ui-agent/tray/quota-info-widget.h"
#include "ui-agent/tray/tray-menu-model.h"
#include "ui-agent/tray/tray-progress-widget.h"
#include "ui-agent/tray/tray-status-widget.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"
#include "widgets/window-placement.h"

namespace {
constexpr auto kBandwidthAction = "get_bandwidth_control";

// The labels whose texts tell what a page shows (the figures that move every
// second, the ages and the amounts, are left out).
constexpr const char* kStatusLabels[] = {"statusResult", "statusLatestEvent", "lastBackupValue",
                                         "nextBackupValue"};
constexpr const char* kProgressLabels[] = {"progressPhase", "progressLatestEvent"};

// A label's text as a person reads it: rich text rendered to plain text.
QString readable(const QLabel* label) {
  const QString text = label->text();
  const bool rich = label->textFormat() == Qt::RichText ||
                    (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
  if (!rich) return text;
  QTextDocument document;
  document.setHtml(text);
  return document.toPlainText().simplified();
}
}  // namespace

QSize TrayMenu::scaledSize() {
  return {DPIinfo::scaled(kSize.width()), DPIinfo::scaled(kSize.height())};
}

TrayMenu::TrayMenu(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("TrayMenu"));
  setStyleSheet(getStyleSheet(QStringLiteral("tray_menu")));
  setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
  setAccessibleName(string_display::text(Str::app_name));

  status_page_ = new TrayStatusWidget(this);
  progress_page_ = new TrayProgressWidget(this);
  quota_ = new QuotaInfoWidget;  // owned by the drop-down's widget action
  log_ = new LogWidget;
  settings_ = new SettingsWidget;
  log_->hide();
  settings_->hide();

  buildMenu();
  buildHeader();

  pages_ = new QStackedWidget(this);
  pages_->setObjectName(QStringLiteral("trayPages"));
  pages_->addWidget(status_page_);
  pages_->addWidget(progress_page_);
  pages_->setCurrentWidget(status_page_);

  auto* header = new QHBoxLayout;
  header->setContentsMargins(0, 0, 0, 0);
  header->setSpacing(0);
  header->addWidget(picture_);
  header->addSpacing(DPIinfo::scaled(8));
  header->addWidget(title_);
  header->addStretch();
  header->addWidget(list_button_);
  header->addSpacing(DPIinfo::scaled(12));
  header->addWidget(user_button_);

  // The margins count from the card's outer edge: its border is inside
  // them, so that the pages get their whole 360 x 160.
  ensurePolished();
  const int frame = frameWidth();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(DPIinfo::scaled(20) - frame, DPIinfo::scaled(12) - frame,
                             DPIinfo::scaled(20) - frame, DPIinfo::scaled(12) - frame);
  layout->setSpacing(0);
  layout->addLayout(header);
  layout->addSpacing(DPIinfo::scaled(24));
  layout->addWidget(pages_);

  auto* shadow = new QGraphicsDropShadowEffect(this);
  shadow->setBlurRadius(12);
  shadow->setOffset(0, 0);
  shadow->setColor(QColor(0, 0, 0, 45));
  setGraphicsEffect(shadow);

  setTabOrder(list_button_, user_button_);

  auto& bus = GlobalConnecter::instance();
  connect(this, &TrayMenu::sigQueryService, &bus, &GlobalConnecter::sigQueryService);
  connect(&bus, &GlobalConnecter::sigQueryServiceDone, this, &TrayMenu::slotQueryServiceDone);
  connect(status_page_, &TrayStatusWidget::sigTrayStatusChanged, this, &TrayMenu::sigTrayStatusChanged);
  connect(progress_page_, &TrayProgressWidget::sigTrayStatusChanged, this, &TrayMenu::sigTrayStatusChanged);
  connect(list_button_, &QToolButton::clicked, this, &TrayMenu::slotSeeAllClicked);
  connect(quota_, &QuotaInfoWidget::sigAccountChanged, this, &TrayMenu::showAccountInitial);
}

TrayMenu::~TrayMenu() {
  // The two dialogs are windows of their own, not children.
  delete log_;
  delete settings_;
}

void TrayMenu::buildHeader() {
  picture_ = new QLabel(this);
  picture_->setObjectName(QStringLiteral("trayAppPicture"));
  const int side = DPIinfo::scaled(24);
  picture_->setPixmap(ImageManager::getInstance()->pixmap(QStringLiteral("app_img"), QSize(side, side)));
  picture_->setFixedSize(side, side);

  title_ = new QLabel(string_display::text(Str::app_name), this);
  title_->setObjectName(QStringLiteral("trayTitle"));
  title_->setStyleSheet(getStyleSheet(QStringLiteral("tray_title")));

  list_button_ = new VellIconButton(QStringLiteral("icn_list"), this);
  list_button_->setObjectName(QStringLiteral("trayListButton"));
  list_button_->setAccessibleName(string_display::text(Str::title_activities));
  list_button_->setToolTip(list_button_->accessibleName());
  list_button_->setFocusPolicy(Qt::StrongFocus);
  // As high as the user button beside it: the header row is 24.
  list_button_->setFixedSize(DPIinfo::scaled(24), DPIinfo::scaled(24));

  user_button_ = new VellIconButton(this);
  user_button_->setObjectName(QStringLiteral("trayUserButton"));
  user_button_->setText(QStringLiteral("U"));
  user_button_->setStyleSheet(getStyleSheet(QStringLiteral("tray_user_icon")));
  user_button_->setFixedSize(DPIinfo::scaled(24), DPIinfo::scaled(24));
  user_button_->setMenu(menu_);
  user_button_->setAccessibleName(string_display::text(Str::act_settings));
  user_button_->setFocusPolicy(Qt::StrongFocus);
}

void TrayMenu::buildMenu() {
  auto& bus = GlobalConnecter::instance();
  menu_ = new QMenu(this);
  menu_->setObjectName(QStringLiteral("SettingMenu"));
  menu_->setWindowFlags(menu_->windowFlags() | Qt::Popup | Qt::NoDropShadowWindowHint);
  menu_->setFixedWidth(DPIinfo::scaled(200));
  menu_->setStyleSheet(getStyleSheet(QStringLiteral("tray_setting_menu")));

  auto* quotaAction = new QWidgetAction(menu_);
  quotaAction->setDefaultWidget(quota_);
  menu_->addAction(quotaAction);
  menu_->addSeparator();
  web_console_ = menu_->addAction(string_display::text(Str::menu_web_console));
  web_console_->setObjectName(QStringLiteral("actionWebConsole"));
  connect(web_console_, &QAction::triggered, &bus, &GlobalConnecter::sigWebConsole);
  recovery_portal_ = menu_->addAction(string_display::text(Str::menu_restore_portal));
  recovery_portal_->setObjectName(QStringLiteral("actionRecoveryPortal"));
  connect(recovery_portal_, &QAction::triggered, &bus, &GlobalConnecter::sigRestorePortal);
  menu_->addSeparator();
  QAction* settings = menu_->addAction(string_display::text(Str::act_settings));
  settings->setObjectName(QStringLiteral("actionSettings"));
  connect(settings, &QAction::triggered, this, &TrayMenu::slotShowSettingsWindow);
  menu_->addSeparator();
  QAction* help = menu_->addAction(string_display::text(Str::act_help));
  help->setObjectName(QStringLiteral("actionHelp"));
  connect(help, &QAction::triggered, &bus, &GlobalConnecter::sigOpenHelp);
  QAction* about = menu_->addAction(string_display::text(Str::act_about));
  about->setObjectName(QStringLiteral("actionAbout"));
  connect(about, &QAction::triggered, &bus, &GlobalConnecter::sigShowAboutWindow);
  QAction* logout = menu_->addAction(string_display::text(Str::act_tray_logout));
  logout->setObjectName(QStringLiteral("actionLogout"));
  connect(logout, &QAction::triggered, &bus, &GlobalConnecter::sigLogoutService);
}

void TrayMenu::showAccountInitial(const QString& account) {
  if (account.isEmpty()) return;
  user_button_->setText(account.left(1).toUpper());
  user_button_->setAccessibleName(account);
  user_button_->setToolTip(account);
}

void TrayMenu::setClock(const relative_age::Clock& clock) {
  status_page_->setClock(clock);
  progress_page_->setClock(clock);
}

void TrayMenu::updateServiceStatus(ServiceStatus status, const Json::Value& content) {
  if (tray_menu_model::shows_progress_page(status, content)) {
    pages_->setCurrentWidget(progress_page_);
    progress_page_->updateStatus(status, content);
  } else {
    pages_->setCurrentWidget(status_page_);
    status_page_->updateStatus(content);
  }
  logShownPage();
}

void TrayMenu::logShownPage() {
  // Support reads in the log what the person saw; built only at debug level.
  if (vlog::threshold(vlog::kDefaultComponent) < vlog::kDebug) return;
  const bool progress = pages_->currentWidget() == progress_page_;
  QWidget* page = pages_->currentWidget();
  QStringList parts;
  auto add = [&](const char* name) {
    const QLabel* label = page->findChild<QLabel*>(QLatin1String(name));
    if (label && label->isVisibleTo(page) && !label->text().isEmpty()) parts << readable(label);
  };
  if (progress) {
    for (const char* name : kProgressLabels) add(name);
  } else {
    for (const char* name : kStatusLabels) add(name);
  }
  const QString line = (progress ? QStringLiteral("progress page: ") : QStringLiteral("status page: ")) +
                       parts.join(QStringLiteral(" | "));
  if (line == loggedPage_) return;
  loggedPage_ = line;
  LOG_DEBUG(vlog::kDefaultComponent, "tray pop-up: %s", line.toUtf8().constData());
}

void TrayMenu::appendLogEntries(const QList<LogEntry>& entries) {
  if (!tray_menu_model::keep_entries(entries_, entries)) return;
  status_page_->setLatestEvent(entries_.back());
  progress_page_->setLatestEvent(entries_.back());
  logShownPage();
}

void TrayMenu::clearLogEntries() {
  entries_.clear();
}

void TrayMenu::setMenuEntriesVisible(bool is_vell_account, bool is_auth_fork, int backup_role) {
  const auto v = tray_menu_model::menu_visibility(is_vell_account, is_auth_fork, backup_role);
  web_console_->setVisible(v.web_console);
  recovery_portal_->setVisible(v.recovery_portal);
  quota_->setUsageAreaVisible(v.quota_area);
}

void TrayMenu::slotSeeAllClicked() {
  log_->fillEntries(entries_);
  log_->show();
  window_placement::activate(log_);
}

void TrayMenu::slotShowSettingsWindow() {
  Json::Value request(Json::objectValue);
  request["action"] = kBandwidthAction;
  emit sigQueryService(this, request);
}

void TrayMenu::slotQueryServiceDone(const QObject* /*sender*/, const Json::Value& response) {
  // The settings open for any bandwidth answer, whoever asked.
  if (jsonx::get_string(response, "action") != kBandwidthAction) return;
  const Json::Value& server = jsonx::member(response, "server_config");
  const Json::Value& client = jsonx::member(response, "client_config");
  if (SettingsWidget::isValidConfig(server))
    settings_->applyServerConfig(server);
  else if (!server.isNull())
    LOG_WARN(vlog::kDefaultComponent, "bandwidth answer with an invalid server_config: note left as it was");
  if (SettingsWidget::isValidConfig(client)) {
    settings_->loadClientConfig(client);
  } else {
    LOG_WARN(vlog::kDefaultComponent, "bandwidth answer without a valid client_config: showing the defaults");
    settings_->loadClientConfig(SettingsWidget::defaultClientConfig());
  }
  settings_->show();
  window_placement::activate(settings_);
}

void TrayMenu::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && isWindow()) {
    hide();
    return;
  }
  QFrame::keyPressEvent(event);
}
