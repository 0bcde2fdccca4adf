// The tray icon: pictures per state and panel, modes with the right-click
// menu, clicks per mode, presses outside the pop-up, balloons.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <ostream>
#include <string>

#include "agent-test.h"
#include "core/global-connecter.h"
#include "core/json-meta-type.h"
#include "support/qt-print.h"
#include "tray/quota-info-widget.h"
#include "tray/system-tray.h"
#include "tray/tray-menu.h"
#include "tray/tray-placement.h"
#include "tray/tray-theme.h"

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

struct IconRow {
  const char* name;
  int status;
  bool darkPanel;
  const char* picture;
};
void PrintTo(const IconRow& r, std::ostream* os) {
  *os << r.name;
}

class TrayIconName : public ::testing::TestWithParam<IconRow> {};

TEST_P(TrayIconName, PictureForStateAndPanel) {
  const IconRow& r = GetParam();
  EXPECT_EQ(tray_theme::iconName(static_cast<TrayStatus>(r.status), r.darkPanel), QString(r.picture));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TrayIconName,
    ::testing::Values(IconRow{"IdleDark", 0, true, "logo_tray_icn_connect"},
                      IconRow{"IdleLight", 0, false, "logo_tray_icn_connect_dark"},
                      IconRow{"SuccessDark", 1, true, "logo_tray_icn_green"},
                      IconRow{"SuccessLight", 1, false, "logo_tray_icn_green_dark"},
                      IconRow{"RunningDark", 2, true, "logo_tray_icn_blue"},
                      IconRow{"RunningLight", 2, false, "logo_tray_icn_blue_dark"},
                      IconRow{"ErrorDark", 3, true, "logo_tray_icn_red"},
                      IconRow{"ErrorLight", 3, false, "logo_tray_icn_red_dark"},
                      IconRow{"WarningDark", 4, true, "logo_tray_icn_orange"},
                      IconRow{"WarningLight", 4, false, "logo_tray_icn_orange_dark"},
                      IconRow{"FiveShowsConnect", 5, true, "logo_tray_icn_connect"},
                      IconRow{"SevenShowsConnectLight", 7, false, "logo_tray_icn_connect_dark"},
                      IconRow{"NegativeShowsConnect", -1, true, "logo_tray_icn_connect"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PanelScheme, PortalThenPaletteThenDark) {
  using tray_theme::Scheme;
  EXPECT_EQ(tray_theme::schemeFromPortal(1), Scheme::Dark);
  EXPECT_EQ(tray_theme::schemeFromPortal(2), Scheme::Light);
  EXPECT_EQ(tray_theme::schemeFromPortal(0), Scheme::Unknown);
  EXPECT_EQ(tray_theme::schemeFromPortal(3), Scheme::Unknown);
  EXPECT_TRUE(tray_theme::isDark(Scheme::Dark, Scheme::Light));
  EXPECT_FALSE(tray_theme::isDark(Scheme::Light, Scheme::Dark));
  EXPECT_FALSE(tray_theme::isDark(Scheme::Unknown, Scheme::Light));
  EXPECT_TRUE(tray_theme::isDark(Scheme::Unknown, Scheme::Dark));
  EXPECT_TRUE(tray_theme::isDark(Scheme::Unknown, Scheme::Unknown));

  QPalette standard(QColor("#efefef"));
  EXPECT_EQ(tray_theme::schemeFromPalette(standard, standard), Scheme::Unknown);
  EXPECT_EQ(tray_theme::schemeFromPalette(QPalette(QColor("#202124")), standard), Scheme::Dark);
  EXPECT_EQ(tray_theme::schemeFromPalette(QPalette(QColor("#fafafa")), standard), Scheme::Light);
}

TEST(TrayBalloons, OnePerNotificationInOrder) {
  EXPECT_TRUE(trayBalloons(agent_test::parse(R"({"type":7})")).isEmpty());
  EXPECT_TRUE(trayBalloons(agent_test::parse("[]")).isEmpty());
  const QVector<TrayBalloon> b = trayBalloons(agent_test::parse(
      R"([{"type":7,"data":{"status":4}},{"type":0},"junk",{"type":8,"data":{"total_size":1073741824}}])"));
  ASSERT_EQ(b.size(), 4);
  EXPECT_EQ(b[0].title, QStringLiteral("Nimbra Backup Failed"));
  EXPECT_EQ(b[1].title, QString());
  EXPECT_EQ(b[1].text, QString());
  EXPECT_EQ(b[2].title, QString());
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
  ~TrayIcon() override { tray_.reset(); }
  TrayMenuContainer* popup() const { return tray_->container(); }

  bool trayAvailable_ = true;
  std::unique_ptr<SystemTray> tray_;
};

TEST_F(TrayIcon, BuiltIdleAsksForTheConnectionAfterASecond) {
  QSignalSpy asked(&GlobalConnecter::instance(), &GlobalConnecter::sigGetConnectionInfo);
  EXPECT_EQ(tray_->connectionMode(), 0);
  EXPECT_EQ(tray_->rightMenu(), nullptr);
  EXPECT_EQ(tray_->toolTip(), QStringLiteral("Nimbra Backup"));
  // No portal, no platform palette: a dark panel, so the light picture.
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_connect"));
  EXPECT_FALSE(tray_->icon().isNull());
  EXPECT_TRUE(tray_->rightMenu() == nullptr);
  EXPECT_EQ(asked.count(), 0);
  ASSERT_TRUE(asked.wait(3000));
  QTest::qWait(200);
  EXPECT_EQ(asked.count(), 1);
}

TEST_F(TrayIcon, StatusPicksThePicture) {
  tray_->slotStatusChanged(TrayRunning);
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_blue"));
  tray_->slotStatusChanged(static_cast<TrayStatus>(5));
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_connect"));
}

TEST_F(TrayIcon, RightMenuExistsExactlyInModeOne) {
  QSignalSpy exit(&GlobalConnecter::instance(), &GlobalConnecter::sigExitApplication);
  QSignalSpy sent(&GlobalConnecter::instance(), &GlobalConnecter::sigQueryService);
  tray_->setConnectionMode(1);
  QMenu* menu = tray_->rightMenu();
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(tray_->contextMenu(), menu);
  EXPECT_EQ(menu->objectName(), QStringLiteral("RightMenu"));
  QStringList names;
  for (QAction* a : menu->actions()) names << (a->isSeparator() ? QStringLiteral("-") : a->objectName());
  EXPECT_EQ(names, QStringList({"OpenAction", "BackupNowAction", "BackupNowReason", "-", "ActivityAction",
                                "SettingsAction", "-", "ExitAction"}));
  tray_->setConnectionMode(1);
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

  tray_->slotStatusChanged(TrayError);
  tray_->setConnectionMode(2);
  EXPECT_EQ(tray_->rightMenu(), nullptr);
  EXPECT_EQ(tray_->contextMenu(), nullptr);
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_connect"));
  tray_->setConnectionMode(1);
  ASSERT_NE(tray_->rightMenu(), nullptr);
  tray_->setConnectionMode(0);
  EXPECT_EQ(tray_->rightMenu(), nullptr);
}

TEST_F(TrayIcon, ClicksPerMode) {
  QSignalSpy wizard(&GlobalConnecter::instance(), &GlobalConnecter::sigTrayClickedWithoutConnection);
  // Mode 0: nothing.
  tray_->slotIconActivated(QSystemTrayIcon::Trigger);
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QCoreApplication::processEvents();
  EXPECT_FALSE(popup()->isVisible());
  EXPECT_EQ(wizard.count(), 0);
  // Mode 2: asks for the wizard, never opens the pop-up.
  tray_->setConnectionMode(2);
  tray_->slotIconActivated(QSystemTrayIcon::Trigger);
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QCoreApplication::processEvents();
  EXPECT_EQ(wizard.count(), 2);
  EXPECT_FALSE(popup()->isVisible());
  tray_->showMenuAt(QPoint(640, 780));
  EXPECT_FALSE(popup()->isVisible());
  // Mode 1: other reasons do nothing, a plain click opens the pop-up.
  tray_->setConnectionMode(1);
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

TEST_F(TrayIcon, MenuReportsTheStateAndLeavingConnectedClearsItsEntries) {
  emit tray_->trayMenu()->sigTrayStatusChanged(TrayWarning);
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_orange"));
  tray_->setConnectionMode(1);
  tray_->appendLogEntries({LogEntry{7, 1700000000, 3, Json::Value(Json::objectValue)}});
  EXPECT_EQ(tray_->trayMenu()->logEntries().size(), 1);
  tray_->setAccountName(QStringLiteral("ann@example.com"));
  EXPECT_EQ(tray_->trayMenu()->quotaInfoWidget()->account(), QStringLiteral("ann@example.com"));
  tray_->setConnectionMode(2);
  EXPECT_TRUE(tray_->trayMenu()->logEntries().isEmpty());
  EXPECT_EQ(tray_->currentIconName(), onPanel("logo_tray_icn_connect"));
}

TEST_F(TrayIcon, AnotherAgentWindowTakingTheFocusIsNoClick) {
  tray_->setConnectionMode(1);
  QWidget about;
  about.show();
  QApplication::setActiveWindow(&about);
  ASSERT_EQ(QApplication::activeWindow(), &about);
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QCoreApplication::processEvents();
  EXPECT_FALSE(popup()->isVisible());
  about.hide();
  QApplication::setActiveWindow(nullptr);
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QCoreApplication::processEvents();
  EXPECT_TRUE(popup()->isVisible());
}

// As the window system tells it: the application turns active first, and
// only then does QApplication name the window that took the focus. A
// warning or question of the agent coming up is no click (the pop-up, a
// Popup, would take the keys and the first click meant for it).
TEST_F(TrayIcon, AnAgentDialogNamedActiveAfterTheApplicationTurnedActiveIsNoClick) {
  tray_->setConnectionMode(1);
  QWidget warning;
  warning.show();
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QApplication::setActiveWindow(&warning);
  QCoreApplication::processEvents();
  EXPECT_FALSE(popup()->isVisible()) << "the pop-up came up over the warning";
  warning.hide();
  QApplication::setActiveWindow(nullptr);
}

TEST_F(TrayIcon, TheRightClickMenuTakingTheFocusIsNoClick) {
  tray_->setConnectionMode(1);
  ASSERT_NE(tray_->rightMenu(), nullptr);
  tray_->rightMenu()->popup(QPoint(640, 700));
  ASSERT_EQ(QApplication::activePopupWidget(), tray_->rightMenu());
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QCoreApplication::processEvents();
  EXPECT_FALSE(popup()->isVisible()) << "the pop-up would cover the menu";
  tray_->rightMenu()->hide();
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QCoreApplication::processEvents();
  EXPECT_TRUE(popup()->isVisible());
}

TEST_F(TrayIcon, SecondShowLeavesThePopupWhereItIs) {
  tray_->setConnectionMode(1);
  tray_->showMenuAt(QPoint(640, 780));
  ASSERT_TRUE(popup()->isVisible());
  const QPoint first = popup()->pos();
  EXPECT_EQ(popup()->side(), 2);
  tray_->showMenuAt(QPoint(100, 780));
  EXPECT_EQ(popup()->pos(), first);
}

// Placed below its anchor (side 0) or above it (side 2), the pop-up is
// placed again from its anchor when its size changes.
TEST_F(TrayIcon, ResizeRePlacesOnEitherSide) {
  tray_->setConnectionMode(1);
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
  tray_->setConnectionMode(1);
  tray_->showMenuAt(QPoint(640, 780));
  ASSERT_TRUE(popup()->isVisible());
  const QRect g = popup()->geometry();
  GlobalConnecter& bus = GlobalConnecter::instance();
  emit bus.sigPositionClicked(QPoint(g.x() + g.width(), g.y() + g.height()));
  EXPECT_TRUE(popup()->isVisible());
  // The user button's drop-down is open: a press on it, outside the pop-up,
  // leaves the pop-up alone.
  QMenu* dropDown = tray_->trayMenu()->userMenu();
  ASSERT_NE(dropDown, nullptr);
  dropDown->popup(QPoint(g.right() + 10, g.top()));
  emit bus.sigPositionClicked(QPoint(g.right() + 20, g.top() + 5));
  EXPECT_TRUE(popup()->isVisible());
  dropDown->hide();
  bool hold = true;
  tray_->setHoldOpenQuery([&hold] { return hold; });
  emit bus.sigPositionClicked(QPoint(0, 0));
  EXPECT_TRUE(popup()->isVisible());  // its own drop-down is open
  hold = false;
  emit bus.sigPositionClicked(QPoint(g.x() + g.width() + 1, g.y()));
  EXPECT_FALSE(popup()->isVisible());
}

TEST_F(TrayIcon, WithoutANotificationAreaShowsAnOrdinaryWindow) {
  trayAvailable_ = false;
  tray_->setConnectionMode(1);
  tray_->showMenuAt(QPoint());
  ASSERT_TRUE(popup()->isVisible());
  EXPECT_TRUE(popup()->isWindowMode());
  EXPECT_FALSE(popup()->windowFlags().testFlag(Qt::Popup));
  EXPECT_EQ(popup()->windowTitle(), QStringLiteral("Nimbra Backup"));
  EXPECT_TRUE(QRect(0, 0, 1280, 760).contains(popup()->frameGeometry().center()));
  // A small fixed window: title, minimise and close, nothing to maximise.
  const Qt::WindowFlags flags = popup()->windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint)) << "the window manager adds its own buttons";
  EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
  // Escape closes it, as it closes the pop-up.
  QTest::keyClick(popup(), Qt::Key_Escape);
  EXPECT_FALSE(popup()->isVisible()) << "Escape leaves the window up";
  tray_->showMenuAt(QPoint());
  ASSERT_TRUE(popup()->isVisible());
  // An ordinary window: a press elsewhere leaves it, a click raises it.
  emit GlobalConnecter::instance().sigPositionClicked(QPoint(5000, 5000));
  EXPECT_TRUE(popup()->isVisible());
  tray_->slotApplicationStateChanged(Qt::ApplicationActive);
  QCoreApplication::processEvents();
  EXPECT_TRUE(popup()->isWindowMode());
  // A panel that appears later gets the pop-up back.
  popup()->hide();
  trayAvailable_ = true;
  tray_->showMenuAt(QPoint(640, 780));
  EXPECT_FALSE(popup()->isWindowMode());
  EXPECT_TRUE(popup()->windowFlags().testFlag(Qt::Popup));
}

}  // namespace
