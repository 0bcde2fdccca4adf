#pragma once
// The agent's notification-area icon and the frameless pop-up beside it.
//
// SystemTray shows the tray state as the icon's colour (with the panel's
// colour deciding between the light and the dark picture), opens the pop-up
// on a click while connected or asks for the wizard while not, closes the
// pop-up on a press outside it, shows balloons and carries the right-click
// menu, which exists exactly while connected (ConnectionMode::Connected): open the pop-up,
// "Back up now" (with why it is disabled), the activity dialog, settings and
// "Exit". The tool tip names the state (tray-icon-model.h).
//
// The icon is a StatusNotifierItem while a panel shows such items (D-Bus
// trays), else Qt's tray icon (an XEmbed tray on X11, the shell's
// notification area on Windows). Either may appear or go away while the
// agent runs; the icon moves to whichever is there. On a StatusNotifierItem
// panel the pop-up is anchored at the point of the click (tray-anchor.h).
//
// Without a notification area (a desktop without a tray), the pop-up is
// shown as an ordinary small window when the agent is asked to show itself.

#include <json/value.h>

#include <QMenu>
#include <QPoint>
#include <QSystemTrayIcon>
#include <QVector>
#include <QWidget>

#include <functional>
#include <optional>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/core/service-status.h"
#include "ui-agent/core/tray-status.h"
#include "ui-agent/tray/tray-anchor.h"
#include "ui-agent/tray/tray-icon-model.h"

class PanelThemeWatcher;
class StatusNotifierItem;
class TrayMenu;

// The frameless pop-up that holds the tray menu, placed next to the icon.
class TrayMenuContainer : public QWidget {
  Q_OBJECT
 public:
  // Takes `content` into its layout (and ownership).
  explicit TrayMenuContainer(QWidget* content, QWidget* parent = nullptr);

  // Places the pop-up at `anchor` (the icon's centre) and shows it; nothing
  // when it is already visible.
  void showAt(QPoint anchor);
  // Shows the content as an ordinary small window with a title bar, centred
  // in the work area (no notification area to place it beside).
  void showAsWindow();
  bool isWindowMode() const { return windowMode_; }

  QWidget* content() const { return content_; }
  QPoint anchor() const { return anchor_; }
  int side() const { return side_; }

  // The work area to place in: the pop-up goes into the work area of the
  // screen that holds its anchor, the window into the primary screen's,
  // unless a test gives another.
  void setAvailableGeometrySource(std::function<QRect()> source) { available_ = std::move(source); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QRect availableGeometry() const;
  void setPopupMode(bool popup);
  void placeAt(QPoint anchor);

  QWidget* content_;
  QPoint anchor_;
  int side_ = 0;
  bool placed_ = false;  // by showAt() at least once
  bool windowMode_ = false;
  std::function<QRect()> available_;
};

// One balloon: title and text of a pushed notification.
struct TrayBalloon {
  QString title;
  QString text;
};
// The balloons for the service's `notifications` array, in order; none when
// it is not an array or is empty.
QVector<TrayBalloon> trayBalloons(const Json::Value& notifications);

class SystemTray : public QObject {
  Q_OBJECT
 public:
  // Creates the tray menu and its pop-up; asks for the connection record
  // one second later.
  explicit SystemTray(QObject* parent = nullptr);
  ~SystemTray() override;

  // Shows the icon on whichever tray there is, now or once one appears.
  void setVisible(bool visible);
  // What the icon shows (on either kind of tray).
  QIcon icon() const { return icon_; }
  QString toolTip() const { return toolTip_; }
  QMenu* contextMenu() const { return contextMenu_; }
  // The icon's place on an XEmbed tray; empty elsewhere.
  QRect geometry() const;
  // Where a click on the icon anchors the pop-up now: the icon's centre, the
  // point of the last click a panel reported, the pointer, or the taskbar's
  // corner of the work area (tray-anchor.h).
  // `pointerCounts`: the pointer is where the icon was just pressed.
  QPoint clickAnchor(bool pointerCounts = true) const;
  // Where "open" from a second launch anchors it: the icon's top-left
  // corner where the tray tells its place, else as clickAnchor() without
  // the pointer.
  QPoint openAnchor() const;

  // What a click does, and whether the right-click menu exists (see the
  // class comment).
  void setConnectionMode(ConnectionMode mode);
  ConnectionMode connectionMode() const { return mode_; }
  // While connected: places and shows the pop-up at `p`, raises and activates it;
  // as a window when there is no notification area.
  void showMenuAt(QPoint p);
  // One balloon per notification, each replacing the one before.
  void showNotifications(const Json::Value& notifications);

  // Handed on to the tray menu and its widgets.
  void updateServiceStatus(ServiceStatus status, const Json::Value& content);
  void appendLogEntries(const QList<LogEntry>& entries);
  // The activity dialog, filled from the pop-up's kept entries.
  void showLogWindow();
  void updateQuota(const Json::Value& billing);
  void setAccountName(const QString& account);
  void setMenuEntriesVisible(bool is_vell_account, bool is_auth_fork, int backup_role);

  // The pop-up's content and its window, built on first use (buildPopup()).
  TrayMenu* trayMenu();
  TrayMenuContainer* container();
  void buildPopup();
  QMenu* rightMenu() const { return rightMenu_; }
  // The picture name now shown, "_dark" included.
  QString currentIconName() const { return iconName_; }

  // While it answers true, presses outside do not close the pop-up; by
  // default while the menu's user drop-down is open.
  void setHoldOpenQuery(std::function<bool()> query) { holdOpen_ = std::move(query); }
  // Whether the desktop has a notification area; asks Qt unless a test
  // gives another answer.
  void setTrayAvailabilitySource(std::function<bool()> source) { trayAvailable_ = std::move(source); }

 signals:
  void sigGetConnectionInfo();
  // "Back up now" from the right-click menu.
  void sigQueryService(const QObject* sender, const Json::Value& request);
  void sigTrayClickedWithoutConnection();

 public slots:
  void slotPositionClicked(QPoint p);
  void slotIconActivated(QSystemTrayIcon::ActivationReason reason);
  // A click a StatusNotifierItem panel reported, at `p` ((0, 0): no point).
  void slotActivatedAt(QPoint p);
  void slotShowMessage(QString title, QString message);
  void slotStatusChanged(TrayStatus s);
  void slotApplicationStateChanged(Qt::ApplicationState state);

 private:
  void applyIcon();
  // The icon on the tray there is now: the StatusNotifierItem while a panel
  // shows it, else Qt's tray icon.
  void applyHost();
  void setContextMenu(QMenu* menu);
  void showMessage(const QString& title, const QString& text, int ms);
  // The tool tip and the menu's enabled states from the facts.
  void applyView();
  void buildRightMenu();
  void backupNow();
  // What anchoring knows: the icon, the last panel point, the screens.
  tray_anchor::Facts anchorFacts() const;
  void click(bool pointerCounts);
  // What the application turning active means, once the window system has
  // named the window that took the focus.
  void actOnActivation();
  bool trayAvailable() const;

  TrayMenu* menu_ = nullptr;
  TrayMenuContainer* container_ = nullptr;
  ConnectionMode mode_ = ConnectionMode::Inactive;
  TrayStatus status_ = TrayIdle;
  QMenu* rightMenu_ = nullptr;
  QAction* backupNow_ = nullptr;
  QAction* backupReason_ = nullptr;
  tray_icon_model::Facts facts_;
  tray_icon_model::View view_;
  QString iconName_;
  PanelThemeWatcher* theme_ = nullptr;
  std::function<bool()> holdOpen_;
  std::function<bool()> trayAvailable_;
  StatusNotifierItem* sni_ = nullptr;
  QSystemTrayIcon* xembed_ = nullptr;
  bool visible_ = false;
  QIcon icon_;
  QString toolTip_;
  QMenu* contextMenu_ = nullptr;
  std::optional<QPoint> lastActivation_;
};
