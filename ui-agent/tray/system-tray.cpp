#include "ui-agent/tray/system-tray.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QDesktopWidget>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleOption>
#include <QTimer>
#include <QVBoxLayout>

#include "logging/logger.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/notification-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/popup-surface.h"
#include "ui-agent/tray/quota-info-widget.h"
#include "ui-agent/tray/status-notifier-item.h"
#include "ui-agent/tray/tray-anchor.h"
#include "ui-agent/tray/tray-menu.h"
#include "ui-agent/tray/tray-placement.h"
#include "ui-agent/tray/tray-theme.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/accessible-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/window-placement.h"

// ---- TrayMenuContainer ----------------------------------------------------

TrayMenuContainer::TrayMenuContainer(QWidget* content, QWidget* parent) : QWidget(parent), content_(content) {
  setObjectName(QStringLiteral("TrayMenuContainer"));
  setAccessibleName(string_display::text(Str::app_name));
  accessible_text::set_window_role(this, accessible_text::WindowRole::Frame);
  setWindowTitle(string_display::text(Str::app_name));
  setAttribute(Qt::WA_TranslucentBackground);
  setPopupMode(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  if (content_) layout->addWidget(content_);
  popup_surface::close_on_focus_loss(this);
}

void TrayMenuContainer::setPopupMode(bool popup) {
  const bool wasVisible = isVisible();
  if (popup) {
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, true);
  } else {
    // CustomizeWindowHint: these buttons only (without it the window
    // manager adds a maximise button to this fixed-size window).
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                   Qt::WindowMinimizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground, false);
  }
  windowMode_ = !popup;
  if (wasVisible) show();
}

QRect TrayMenuContainer::availableGeometry() const {
  if (available_) return available_();
  QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

void TrayMenuContainer::placeAt(QPoint anchor) {
  // The work area of the screen the anchor is on (a panel on a second screen).
  const QRect area = available_ ? available_() : window_placement::work_area_at(anchor);
  const tray_placement::Placement p = tray_placement::place(area, sizeHint(), anchor, side_);
  side_ = p.side;
  anchor_ = anchor;
  placed_ = true;
  move(p.pos);
}

void TrayMenuContainer::showAt(QPoint anchor) {
  if (isVisible() && !windowMode_) return;
  // Where windows cannot place themselves (Wayland): popup-surface.h.
  if (popup_surface::kind() == popup_surface::Kind::Framed) return showAsWindow();
  if (windowMode_) {
    hide();
    setPopupMode(true);
  }
  side_ = tray_placement::NotPlaced;
  adjustSize();
  if (!popup_surface::place_on_layer(this, anchor)) placeAt(anchor);
  show();
}

void TrayMenuContainer::showAsWindow() {
  if (windowMode_ && isVisible()) {
    window_placement::activate(this);
    return;
  }
  if (!windowMode_) {
    hide();
    setPopupMode(false);
  }
  adjustSize();
  const QRect area = availableGeometry();
  const QSize size = sizeHint();
  // Fixed, so that a tiling window manager floats it instead of tiling it.
  setFixedSize(size);
  move(area.center() - QPoint(size.width() / 2, size.height() / 2));
  showNormal();
  window_placement::activate(this);
}

void TrayMenuContainer::paintEvent(QPaintEvent*) {
  // Through the style, so that the style sheet's background applies.
  QStyleOption option;
  option.initFrom(this);
  QPainter painter(this);
  // As a framed window nothing shows through: the corners that the
  // pop-up's rounded card leaves take the card's white.
  if (windowMode_) painter.fillRect(rect(), Qt::white);
  style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void TrayMenuContainer::keyPressEvent(QKeyEvent* event) {
  // As a window, Escape closes it the way it closes the pop-up.
  if (windowMode_ && event->key() == Qt::Key_Escape) {
    hide();
    return;
  }
  QWidget::keyPressEvent(event);
}

void TrayMenuContainer::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // Below its anchor the side stays 0 (not placed): whether it was placed
  // is its own flag.
  if (isVisible() && !windowMode_ && placed_) placeAt(anchor_);
}

// ---- balloons --------------------------------------------------------------

QVector<TrayBalloon> trayBalloons(const Json::Value& notifications) {
  QVector<TrayBalloon> out;
  if (!notifications.isArray() || notifications.empty()) return out;
  for (const Json::Value& element : notifications) {
    const int type = jsonx::get_int32(element, "type");
    const Json::Value& data = jsonx::member(element, "data");
    out.push_back({notification_text(type, data, true), notification_text(type, data, false)});
  }
  return out;
}

// ---- SystemTray --------------------------------------------------------------

namespace {

// Every screen's geometry, the primary's first.
QVector<QRect> screenGeometries() {
  QVector<QRect> out;
  QScreen* primary = QGuiApplication::primaryScreen();
  if (primary) out << primary->geometry();
  for (QScreen* screen : QGuiApplication::screens())
    if (screen != primary) out << screen->geometry();
  return out;
}

}  // namespace

SystemTray::SystemTray(QObject* parent) : QObject(parent) {
  sni_ = new StatusNotifierItem(this);
  holdOpen_ = [this] { return menu_ && menu_->userMenu() && menu_->userMenu()->isVisible(); };
  theme_ = new PanelThemeWatcher(this);
  applyIcon();
  applyView();

  GlobalConnecter& bus = GlobalConnecter::instance();
  connect(&bus, &GlobalConnecter::sigPositionClicked, this, &SystemTray::slotPositionClicked);
  connect(sni_, &StatusNotifierItem::activated, this, &SystemTray::slotActivatedAt);
  connect(sni_, &StatusNotifierItem::contextMenuRequested, this, [this](QPoint p) {
    // The panel's point, kept on a screen (any peer on the bus may call).
    if (contextMenu_)
      contextMenu_->popup(tray_anchor::anchor_for({QRect(), p, std::nullopt, screenGeometries(), QRect()}));
  });
  connect(sni_, &StatusNotifierItem::hostChanged, this, &SystemTray::applyHost);
  connect(&bus, &GlobalConnecter::sigShowMessage, this, &SystemTray::slotShowMessage);
  connect(&bus, &GlobalConnecter::sigApplicationStateChanged, this, &SystemTray::slotApplicationStateChanged);
  connect(this, &SystemTray::sigGetConnectionInfo, &bus, &GlobalConnecter::sigGetConnectionInfo);
  connect(this, &SystemTray::sigTrayClickedWithoutConnection, &bus,
          &GlobalConnecter::sigTrayClickedWithoutConnection);
  // A change of the desktop's colour scheme picks the picture again.
  connect(theme_, &PanelThemeWatcher::changed, this, &SystemTray::applyIcon);
  // The desktop asking for high contrast switches the whole agent's look.
  auto applyContrast = [this]() { StyleManager::getInstance()->setHighContrast(theme_->highContrast()); };
  connect(theme_, &PanelThemeWatcher::changed, this, applyContrast);
  applyContrast();
  connect(this, &SystemTray::sigQueryService, &bus, &GlobalConnecter::sigQueryService);
  // Whether the service answers: any answer says yes, a failed request no.
  connect(&bus, &GlobalConnecter::sigQueryServiceDone, this, [this]() {
    if (facts_.reachable) return;
    facts_.reachable = true;
    applyView();
  });
  connect(&bus, &GlobalConnecter::sigQueryServiceFailed, this, [this]() {
    if (!facts_.reachable) return;
    facts_.reachable = false;
    applyView();
  });

  QTimer::singleShot(1000, this, [this]() { emit sigGetConnectionInfo(); });
}

// The pop-up is built after the icon is shown (start-up waits for the icon
// only), or at once when something needs it earlier.
void SystemTray::buildPopup() {
  if (menu_) return;
  menu_ = new TrayMenu();
  container_ = new TrayMenuContainer(menu_);
  menu_->setFixedSize(TrayMenu::scaledSize());
  connect(menu_, &TrayMenu::sigTrayStatusChanged, this, &SystemTray::slotStatusChanged);
}

TrayMenu* SystemTray::trayMenu() {
  buildPopup();
  return menu_;
}

TrayMenuContainer* SystemTray::container() {
  buildPopup();
  return container_;
}

SystemTray::~SystemTray() {
  delete container_;
  sni_->setMenu(nullptr);
  delete rightMenu_;
}

void SystemTray::setVisible(bool visible) {
  visible_ = visible;
  applyHost();
}

void SystemTray::applyHost() {
  using Host = StatusNotifierItem::Host;
  const Host host = sni_->host();
  // Until the session bus has answered, nothing: Qt decides once per
  // process, when its first tray icon is made, whether to use a D-Bus tray
  // itself, and it must not while a panel shows our item.
  if (host == Host::Unknown) return;
  if (host == Host::Present) {
    if (xembed_ && xembed_->isVisible()) {
      LOG_INFO(vlog::kDefaultComponent, "tray: the icon moves to the StatusNotifierItem panel");
      xembed_->hide();
    }
    return;
  }
  if (!xembed_) {
    xembed_ = new QSystemTrayIcon(this);
    xembed_->setIcon(icon_);
    xembed_->setToolTip(toolTip_);
    xembed_->setContextMenu(contextMenu_);
    connect(xembed_, &QSystemTrayIcon::activated, this, &SystemTray::slotIconActivated);
  }
  if (xembed_->isVisible() != visible_) {
    LOG_INFO(vlog::kDefaultComponent, "tray: the icon %s Qt's tray icon", visible_ ? "shows as" : "leaves");
    xembed_->setVisible(visible_);
  }
}

QRect SystemTray::geometry() const {
  return xembed_ && xembed_->isVisible() ? xembed_->geometry() : QRect();
}

tray_anchor::Facts SystemTray::anchorFacts() const {
  tray_anchor::Facts facts;
  facts.icon = geometry();
  facts.activation = lastActivation_;
  facts.screens = screenGeometries();
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary) facts.workArea = primary->availableGeometry();
  return facts;
}

QPoint SystemTray::clickAnchor(bool pointerCounts) const {
  tray_anchor::Facts facts = anchorFacts();
  // The pointer is on the icon just pressed. Wayland does not tell where the
  // pointer is (nor does the offscreen platform of the tests).
  const QString platform = QGuiApplication::platformName();
  if (pointerCounts && (platform == QLatin1String("xcb") || platform == QLatin1String("windows")))
    facts.pointer = QCursor::pos();
  return tray_anchor::anchor_for(facts);
}

QPoint SystemTray::openAnchor() const {
  // Not the pointer: "open" from a second launch has nothing to do with it.
  const tray_anchor::Facts facts = anchorFacts();
  return tray_anchor::icon_on_screen(facts) ? facts.icon.topLeft() : tray_anchor::anchor_for(facts);
}

void SystemTray::setContextMenu(QMenu* menu) {
  contextMenu_ = menu;
  if (xembed_) xembed_->setContextMenu(menu);
  sni_->setMenu(menu);
}

void SystemTray::showMessage(const QString& title, const QString& text, int ms) {
  if (!xembed_ || !xembed_->isVisible()) {
    LOG_INFO(vlog::kDefaultComponent, "tray: a balloon is not shown: no tray icon of Qt's to show it");
    return;
  }
  xembed_->showMessage(title, text, QSystemTrayIcon::Information, ms);
}

void SystemTray::applyIcon() {
  const QString name = tray_theme::icon_name(status_, theme_->isSystemDarkTheme());
  if (name == iconName_ && !icon().isNull()) return;
  iconName_ = name;
  LOG_DEBUG(vlog::kDefaultComponent, "tray icon: %s (status %d)", name.toUtf8().constData(),
            static_cast<int>(status_));
  // Rendered sharp for each size a panel may ask for.
  QIcon picture;
  ImageManager* images = ImageManager::getInstance();
  for (int size : {16, 20, 22, 24, 32, 48, 64})
    picture.addPixmap(images->pixmap(name, QSize(size, size), 1.0));
  icon_ = picture;
  if (xembed_) xembed_->setIcon(picture);
  sni_->setIcon(picture);
}

void SystemTray::slotStatusChanged(TrayStatus s) {
  status_ = tray_status::from_int(static_cast<int>(s));
  applyIcon();
}

void SystemTray::setConnectionMode(ConnectionMode mode) {
  mode_ = mode;
  facts_.mode = mode;
  if (mode != ConnectionMode::Connected && rightMenu_) {
    setContextMenu(nullptr);
    rightMenu_->deleteLater();
    rightMenu_ = nullptr;
    backupNow_ = backupReason_ = nullptr;
    if (menu_) menu_->clearLogEntries();
    status_ = TrayIdle;
    facts_.status = StatusUnknown;
    facts_.content = Json::Value();
    applyIcon();
  } else if (mode == ConnectionMode::Connected && !rightMenu_) {
    buildRightMenu();
  }
  applyView();
}

void SystemTray::buildRightMenu() {
  using string_display::text;
  rightMenu_ = new QMenu();
  rightMenu_->setObjectName(QStringLiteral("RightMenu"));
  rightMenu_->setAccessibleName(text(Str::app_name));
  rightMenu_->setMinimumWidth(DPIinfo::scaled(100));
  rightMenu_->setStyleSheet(getStyleSheet(QStringLiteral("tray_right_menu")));
  auto add = [this](Str label, const char* name) {
    QAction* a = rightMenu_->addAction(string_display::text(label));
    a->setObjectName(QLatin1String(name));
    return a;
  };
  connect(add(Str::notification_btn, "OpenAction"), &QAction::triggered, this,
          [this]() { showMenuAt(clickAnchor()); });
  backupNow_ = add(Str::tray_menu_backup_now, "BackupNowAction");
  connect(backupNow_, &QAction::triggered, this, &SystemTray::backupNow);
  backupReason_ = add(Str::tray_menu_backup_running, "BackupNowReason");
  backupReason_->setEnabled(false);
  rightMenu_->addSeparator();
  connect(add(Str::title_activities, "ActivityAction"), &QAction::triggered, this,
          &SystemTray::showLogWindow);
  connect(add(Str::act_settings, "SettingsAction"), &QAction::triggered, trayMenu(),
          &TrayMenu::slotShowSettingsWindow);
  rightMenu_->addSeparator();
  QAction* quit = add(Str::act_tray_quit, "ExitAction");
  connect(quit, &QAction::triggered, &GlobalConnecter::instance(), &GlobalConnecter::sigExitApplication);
  setContextMenu(rightMenu_);
}

void SystemTray::backupNow() {
  if (!view_.backup_now) return;
  LOG_INFO(vlog::kDefaultComponent, "tray menu: back up now");
  Json::Value request(Json::objectValue);
  request["action"] = "backup_now";
  emit sigQueryService(this, request);
}

void SystemTray::applyView() {
  view_ = tray_icon_model::view_for(facts_);
  if (toolTip_ != view_.tool_tip) {
    toolTip_ = view_.tool_tip;
    if (xembed_) xembed_->setToolTip(toolTip_);
    sni_->setToolTip(toolTip_);
  }
  if (!backupNow_) return;
  backupNow_->setEnabled(view_.backup_now);
  backupReason_->setVisible(view_.backup_reason.has_value());
  if (view_.backup_reason) backupReason_->setText(string_display::text(*view_.backup_reason));
}

void SystemTray::showMenuAt(QPoint p) {
  if (mode_ != ConnectionMode::Connected) return;
  if (!trayAvailable()) {
    container()->showAsWindow();
    return;
  }
  container()->showAt(p);
  window_placement::activate(container_);
}

bool SystemTray::trayAvailable() const {
  if (trayAvailable_) return trayAvailable_();
  switch (sni_->host()) {
    case StatusNotifierItem::Host::Present:
      return true;
    case StatusNotifierItem::Host::Absent:
      // Asked only now: Qt's answer decides its own tray icon's kind for good.
      return QSystemTrayIcon::isSystemTrayAvailable();
    case StatusNotifierItem::Host::Unknown:
      break;
  }
  return false;
}

void SystemTray::click(bool pointerCounts) {
  if (mode_ == ConnectionMode::NotConnected) {
    emit sigTrayClickedWithoutConnection();
  } else if (mode_ == ConnectionMode::Connected) {
    if (!trayAvailable()) {
      container()->showAsWindow();
      return;
    }
    container()->showAt(clickAnchor(pointerCounts));
    window_placement::activate(container_);
  }
}

void SystemTray::slotIconActivated(QSystemTrayIcon::ActivationReason reason) {
  if (reason == QSystemTrayIcon::Trigger) click(true);
}

void SystemTray::slotActivatedAt(QPoint p) {
  lastActivation_ = p;
  click(true);
}

void SystemTray::slotApplicationStateChanged(Qt::ApplicationState state) {
  if (state != Qt::ApplicationActive) return;
  // The window system turns the application active before QApplication
  // names the window that took the focus (a warning or question of the
  // agent coming up): decide once that is known.
  QTimer::singleShot(0, this, &SystemTray::actOnActivation);
}

void SystemTray::actOnActivation() {
  // The agent became active because one of its own windows (the wizard,
  // a message box, the about or activity window) or one of its menus (the
  // icon's right-click menu) took the focus: that is no click. The pop-up,
  // a Popup, would otherwise take the keys and the first click meant for it.
  QWidget* active = QApplication::activeWindow();
  if (active && active != container_) return;
  if (rightMenu_ && rightMenu_->isVisible()) return;
  QWidget* popup = QApplication::activePopupWidget();
  if (popup && popup != container_) return;
  // No press told where: the pointer may be anywhere.
  click(false);
}

void SystemTray::slotPositionClicked(QPoint p) {
  if (!container_ || !container_->isVisible() || container_->isWindowMode()) return;
  if (holdOpen_ && holdOpen_()) return;
  if (tray_placement::press_inside(container_->geometry(), p)) return;
  container_->hide();
}

void SystemTray::slotShowMessage(QString title, QString message) {
  showMessage(title, message, 0);
}

void SystemTray::showNotifications(const Json::Value& notifications) {
  for (const TrayBalloon& b : trayBalloons(notifications)) showMessage(b.title, b.text, 10000);
}

void SystemTray::updateServiceStatus(ServiceStatus status, const Json::Value& content) {
  trayMenu()->updateServiceStatus(status, content);
  facts_.status = status;
  facts_.content = content;
  facts_.reachable = true;
  applyView();
}

void SystemTray::appendLogEntries(const QList<LogEntry>& entries) {
  trayMenu()->appendLogEntries(entries);
}

void SystemTray::showLogWindow() {
  trayMenu()->slotSeeAllClicked();
}

void SystemTray::updateQuota(const Json::Value& billing) {
  trayMenu()->quotaInfoWidget()->setUsage(billing);
}

void SystemTray::setAccountName(const QString& account) {
  trayMenu()->quotaInfoWidget()->setAccount(account);
}

void SystemTray::setMenuEntriesVisible(bool is_vell_account, bool is_auth_fork, int backup_role) {
  trayMenu()->setMenuEntriesVisible(is_vell_account, is_auth_fork, backup_role);
}
