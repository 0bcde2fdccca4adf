// The tray icon: pictures per state and panel, modes with the right-click
// menu, clicks per mode, presses outside the pop-up, balloons.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "tests/support/qt-print.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/json-meta-type.h"
#include "ui-agent/tray/quota-info-widget.h"
#include "ui-agent/tray/system-tray.h"
#include "ui-agent/tray/tray-menu.h"
#include "ui-agent/tray/tray-placement.h"
#include "ui-agent/tray/tray-theme.h"

namespace {

// The picture's name on this test's panel: on Linux no portal and no
// platform palette (a dark panel, the light picture); on Windows whatever the
// taskbar's theme value says.
QString onPanel(const char* base) {
#ifdef _WIN32
  if (!PanelThemeWatcher().isSystemDarkTheme()) return QLatin1String(base) + QStringLiteral("_dark");
#endif
  return QLatin1String(base);
}

TEST(TrayTheme, PictureForStateAndPanel) {
  const char* const colours[] = {"connect", "green", "blue", "red", "orange"};
  for (int status : {-1, 0, 1, 2, 3, 4, 5, 7}) {
    for (bool dark : {true, false}) {
      const QString expected = QStringLiteral("logo_tray_icn_") +
                               (status >= 0 && status <= 4 ? colours[status] : "connect") +
                               (dark ? "" : "_dark");
      EXPECT_EQ(tray_theme::icon_name(static_cast<TrayStatus>(status), dark), expected) << status << dark;
    }
  }
}

TEST(TrayTheme, SchemePortalThenPaletteThenDark) {
  using tray_theme::Scheme;
  EXPECT_EQ(tray_theme::scheme_from_portal(1), Scheme::Dark);
  EXPECT_EQ(tray_theme::scheme_from_portal(2), Scheme::Light);
  EXPECT_EQ(tray_theme::scheme_from_portal(0), Scheme::Unknown);
  EXPECT_EQ(tray_theme::scheme_from_portal(3), Scheme::Unknown);
  EXPECT_TRUE(tray_theme::is_dark(Scheme::Dark, Scheme::Light));
  EXPECT_FALSE(tray_theme::is_dark(Scheme::Light, Scheme::Dark));
  EXPECT_FALSE(tray_theme::is_dark(Scheme::Unknown, Scheme::Light));
  EXPECT_TRUE(tray_theme::is_dark(Scheme::Unknown, Scheme::Dark));
  EXPECT_TRUE(tray_theme::is_dark(Scheme::Unknown, Scheme::Unknown));
  QPalette standard(QColor("#efefef"));
  EXPECT_EQ(tray_theme::scheme_from_palette(standard, standard), Scheme::Unknown);
  EXPECT_EQ(tray_theme::scheme_from_palette(QPalette(QColor("#202124")), standard), Scheme::Dark);
  EXPECT_EQ(tray_theme::scheme_from_palette(QPalette(QColor("#fafafa")), standard), Scheme::Light);
}

TEST(TrayBalloons, OnePerNotificationInOrder) {
  EXPECT_TRUE(trayBalloons(agent_test::parse(R"({"type":7})")).isEmpty());
  EXPECT_TRUE(trayBalloons(agent_test::parse("[]")).isEmpty());
  const QVector<TrayBalloon> b = trayBalloons(agent_test::parse(
      R"([{"type":7,"data":{"status":4}},{"type":0},"junk",{"type":8,"data":{"total_size":1073741824}}])"));
  ASSERT_EQ(b.size(), 4);
  EXPECT_EQ(b[0].title, QStringLiteral("Nimbra Backup Failed"));
  EXPECT_EQ(b[1].title + b[1].text + b[2].title, QString());
  EXPECT_TRUE(b[3].text.contains(QStringLiteral("1 GB"))) << b[3].text.toStdString();
}

class TrayIcon : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { agent_test::loadLook(); }
  TrayIcon() {
    tray_ = std::make_unique<SystemTray>();
    tray_->setTrayAvailabilitySource([this] { return trayAvailable_; });
    tray_->container()->setAvailableGeometrySource([] { return QRect(0, 0, 1280, 760); });
  }
  TrayMenuContainer* popup() const { return tray_->container(); }
  // The application turning active: a click on the icon, unless one of the
  // agent's own windows or menus took the focus.
  bool activeOpensThePopup() {
    popup()->hide();
    tray_->slotApplicationStateChanged(Qt::ApplicationActive);
    QCoreApplication::processEvents();
    return popup()->isVisible();
  }

  bool trayAvailable_ = true;
  std::unique_ptr<SystemTray> tray_;
};

TEST_F(TrayIcon, BuiltIdleAsksForTheConnectionAfterASecond) {
  QSignalSpy asked(&GlobalConnecter::instance(), &GlobalConnecter::sigGetConnectionInfo);
  EXPECT_EQ(tray_->connectionMode(), ConnectionMode::Inactive);
  EXPECT_EQ(tray_->rightMenu(), nullptr);
  EXPECT_EQ(tray_->toolTip(), QStringLiteral("Nimbra Backup"));
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_connect"));
  EXPECT_FALSE(tray_->icon().isNull());
  EXPECT_EQ(asked.count(), 0);
  ASSERT_TRUE(asked.wait(10000));
  QTest::qWait(200);
  EXPECT_EQ(asked.count(), 1);
}

TEST_F(TrayIcon, StateFromSlotAndMenuPicksThePictureAndLeavingConnectedClears) {
  tray_->slotStatusChanged(TrayRunning);
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_blue"));
  emit tray_->trayMenu()->sigTrayStatusChanged(TrayWarning);
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_orange"));
  tray_->setConnectionMode(ConnectionMode::Connected);
  tray_->appendLogEntries({LogEntry{7, 1700000000, 3, Json::Value(Json::objectValue)}});
  EXPECT_EQ(tray_->trayMenu()->logEntries().size(), 1);
  tray_->setAccountName(QStringLiteral("ann@example.com"));
  EXPECT_EQ(tray_->trayMenu()->quotaInfoWidget()->account(), QStringLiteral("ann@example.com"));
  tray_->setConnectionMode(ConnectionMode::NotConnected);
  EXPECT_TRUE(tray_->trayMenu()->logEntries().isEmpty());
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_connect"));
}

TEST_F(TrayIcon, RightMenuExistsExactlyInModeOne) {
  QSignalSpy exit(&GlobalConnecter::instance(), &GlobalConnecter::sigExitApplication);
  QSignalSpy sent(&GlobalConnecter::instance(), &GlobalConnecter::sigQueryService);
  tray_->setConnectionMode(ConnectionMode::Connected);
  QMenu* menu = tray_->rightMenu();
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(tray_->contextMenu(), menu);
  EXPECT_EQ(menu->objectName(), QStringLiteral("RightMenu"));
  QStringList names;
  for (QAction* a : menu->actions()) names << (a->isSeparator() ? QStringLiteral("-") : a->objectName());
  EXPECT_EQ(names, QStringList({"OpenAction", "BackupNowAction", "BackupNowReason", "-", "ActivityAction",
                                "SettingsAction", "-", "ExitAction"}));
  tray_->setConnectionMode(ConnectionMode::Connected);
  EXPECT_EQ(tray_->rightMenu(), menu);  // the same menu, not a second one
  auto* backup = menu->findChild<QAction*>("BackupNowAction");
  auto* reason = menu->findChild<QAction*>("BackupNowReason");
  ASSERT_TRUE(backup && reason);

  // The model's verdict reaches the menu and the tool tip; a disabled entry sends nothing.
  tray_->updateServiceStatus(StatusBackupRunning, agent_test::parse(R"({"connected":true})"));
  EXPECT_FALSE(backup->isEnabled());
  EXPECT_TRUE(reason->isVisible());
  EXPECT_EQ(reason->text(), QStringLiteral("A backup is running"));
  EXPECT_EQ(tray_->toolTip(), QStringLiteral("Nimbra Backup\nBacking up..."));
  backup->trigger();
  emit GlobalConnecter::instance().sigQueryServiceFailed();
  EXPECT_EQ(reason->text(), QStringLiteral("Service not reachable"));
  tray_->updateServiceStatus(StatusIdle, agent_test::parse(R"({"connected":true})"));
  EXPECT_TRUE(backup->isEnabled());
  EXPECT_FALSE(reason->isVisible());
  backup->trigger();
  ASSERT_EQ(sent.count(), 1);
  EXPECT_EQ(sent.first().at(1).value<Json::Value>()["action"].asString(), "backup_now");
  menu->findChild<QAction*>("ExitAction")->trigger();
  EXPECT_EQ(exit.count(), 1);

  tray_->setConnectionMode(ConnectionMode::NotConnected);
  EXPECT_EQ(tray_->rightMenu(), nullptr);
  EXPECT_EQ(tray_->contextMenu(), nullptr);
  tray_->setConnectionMode(ConnectionMode::Connected);
  ASSERT_NE(tray_->rightMenu(), nullptr);
  tray_->setConnectionMode(ConnectionMode::Inactive);
  EXPECT_EQ(tray_->rightMenu(), nullptr);
}

TEST_F(TrayIcon, ClicksPerMode) {
  QSignalSpy wizard(&GlobalConnecter::instance(), &GlobalConnecter::sigTrayClickedWithoutConnection);
  // Mode 0: nothing.
  tray_->slotIconActivated(QSystemTrayIcon::Trigger);
  EXPECT_FALSE(activeOpensThePopup());
  EXPECT_EQ(wizard.count(), 0);
  // Mode 2: asks for the wizard, never opens the pop-up.
  tray_->setConnectionMode(ConnectionMode::NotConnected);
  tray_->slotIconActivated(QSystemTrayIcon::Trigger);
  EXPECT_FALSE(activeOpensThePopup());
  EXPECT_EQ(wizard.count(), 2);
  tray_->showMenuAt(QPoint(640, 780));
  EXPECT_FALSE(popup()->isVisible());
  // Mode 1: other reasons do nothing, a plain click opens the pop-up.
  tray_->setConnectionMode(ConnectionMode::Connected);
  for (auto reason : {QSystemTrayIcon::Context, QSystemTrayIcon::DoubleClick, QSystemTrayIcon::MiddleClick})
    tray_->slotIconActivated(reason);
  tray_->slotApplicationStateChanged(Qt::ApplicationInactive);
  QCoreApplication::processEvents();
  EXPECT_FALSE(popup()->isVisible());
  tray_->slotIconActivated(QSystemTrayIcon::Trigger);
  EXPECT_TRUE(popup()->isVisible());
  EXPECT_FALSE(popup()->isWindowMode());
  EXPECT_TRUE(popup()->windowFlags().testFlag(Qt::Popup));
  EXPECT_EQ(wizard.count(), 2);
}

// Another window of the agent or its right-click menu taking the focus is no
// click: the pop-up, a Popup, would take the keys and cover it. The window
// system may name the active window only after the application turned
// active.
TEST_F(TrayIcon, FocusTakenByTheAgentsOwnWindowsIsNoClick) {
  tray_->setConnectionMode(ConnectionMode::Connected);
  QWidget about;
  about.show();
  QApplication::setActiveWindow(&about);
  EXPECT_FALSE(activeOpensThePopup());
  QApplication::setActiveWindow(nullptr);
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QApplication::setActiveWindow(&about);
  QCoreApplication::processEvents();
  EXPECT_FALSE(popup()->isVisible()) << "the pop-up came up over a warning named active late";
  about.hide();
  QApplication::setActiveWindow(nullptr);

  tray_->rightMenu()->popup(QPoint(640, 700));
  ASSERT_EQ(QApplication::activePopupWidget(), tray_->rightMenu());
  EXPECT_FALSE(activeOpensThePopup());
  tray_->rightMenu()->hide();
  EXPECT_TRUE(activeOpensThePopup());
}

// A second show leaves the pop-up where it is; placed below its anchor or
// above it, it is placed again from its anchor when its size changes.
TEST_F(TrayIcon, PlacedOnceAndAgainOnResize) {
  tray_->setConnectionMode(ConnectionMode::Connected);
  tray_->showMenuAt(QPoint(640, 780));
  const QPoint first = popup()->pos();
  EXPECT_EQ(popup()->side(), 2);
  tray_->showMenuAt(QPoint(100, 780));
  EXPECT_EQ(popup()->pos(), first);
  popup()->hide();
  for (const QPoint anchor : {QPoint(1270, 60), QPoint(1270, 750)}) {
    popup()->content()->setMinimumWidth(0);
    tray_->showMenuAt(anchor);
    ASSERT_TRUE(popup()->isVisible());
    const int side = popup()->side();
    popup()->content()->setMinimumWidth(popup()->width() + 80);
    popup()->adjustSize();
    const auto expected = tray_placement::place(QRect(0, 0, 1280, 760), popup()->sizeHint(), anchor, side);
    EXPECT_EQ(popup()->pos(), expected.pos) << "side " << side;
    popup()->hide();
  }
}

TEST_F(TrayIcon, PressOnTheEdgeKeepsItOpenOnePastCloses) {
  tray_->setConnectionMode(ConnectionMode::Connected);
  tray_->showMenuAt(QPoint(640, 780));
  ASSERT_TRUE(popup()->isVisible());
  const QRect g = popup()->geometry();
  GlobalConnecter& bus = GlobalConnecter::instance();
  emit bus.sigPositionClicked(QPoint(g.x() + g.width(), g.y() + g.height()));
  EXPECT_TRUE(popup()->isVisible());
  // A press on the user button's open drop-down, outside the pop-up.
  QMenu* dropDown = tray_->trayMenu()->userMenu();
  dropDown->popup(QPoint(g.right() + 10, g.top()));
  emit bus.sigPositionClicked(QPoint(g.right() + 20, g.top() + 5));
  EXPECT_TRUE(popup()->isVisible());
  dropDown->hide();
  bool hold = true;
  tray_->setHoldOpenQuery([&hold] { return hold; });
  emit bus.sigPositionClicked(QPoint(0, 0));
  EXPECT_TRUE(popup()->isVisible());
  hold = false;
  emit bus.sigPositionClicked(QPoint(g.x() + g.width() + 1, g.y()));
  EXPECT_FALSE(popup()->isVisible());
}

TEST_F(TrayIcon, WithoutANotificationAreaShowsAnOrdinaryWindow) {
  trayAvailable_ = false;
  tray_->setConnectionMode(ConnectionMode::Connected);
  tray_->showMenuAt(QPoint());
  ASSERT_TRUE(popup()->isVisible());
  EXPECT_TRUE(popup()->isWindowMode());
  EXPECT_EQ(popup()->windowTitle(), QStringLiteral("Nimbra Backup"));
  EXPECT_TRUE(QRect(0, 0, 1280, 760).contains(popup()->frameGeometry().center()));
  // A small fixed window: title, minimise and close, nothing to maximise.
  const Qt::WindowFlags flags = popup()->windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint) && flags.testFlag(Qt::WindowCloseButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint) || flags.testFlag(Qt::Popup));
  QTest::keyClick(popup(), Qt::Key_Escape);
  EXPECT_FALSE(popup()->isVisible()) << "Escape leaves the window up";
  tray_->showMenuAt(QPoint());
  // An ordinary window: a press elsewhere leaves it, a click raises it.
  emit GlobalConnecter::instance().sigPositionClicked(QPoint(5000, 5000));
  EXPECT_TRUE(popup()->isVisible());
  EXPECT_TRUE(activeOpensThePopup());
  EXPECT_TRUE(popup()->isWindowMode());
  // A panel that appears later gets the pop-up back.
  popup()->hide();
  trayAvailable_ = true;
  tray_->showMenuAt(QPoint(640, 780));
  EXPECT_FALSE(popup()->isWindowMode());
  EXPECT_TRUE(popup()->windowFlags().testFlag(Qt::Popup));
}

}  // namespace
