// A linked agent in a user's session: "open_log" (at start, from a second
// launch, from the desktop's URL) opens the activity list after the next
// status; log-out asks first and brings the wizard back; and on a desktop
// without a tray a launch shows the pop-up as a small window of its own.
#include <QRegularExpression>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

const QColor kButtonBlue(0x0A, 0x9C, 0xFF);

class Session : public AgentDesktop {
 protected:
  // The activity list up and active; closed again with Escape.
  ::testing::AssertionResult activityUp(const char* step) {
    const QString list = waitForAgentWindow(15000, "^Activity$");
    if (list.isEmpty()) return ::testing::AssertionFailure() << "no activity list";
    shot(step);
    if (auto r = activate(list); !r) return r;
    if (!pressUntil(
            "Escape", [&] { return agentWindows("^Activity$").isEmpty(); }, 10000))
      return ::testing::AssertionFailure() << "Escape leaves the activity list up";
    return ::testing::AssertionSuccess();
  }
  // An agent window that is neither the pop-up nor the activity list.
  QString dialog(int ms) {
    QString found;
    waitUntil(
        [&] {
          const QString pop = popup();
          for (const QString& w : agentWindows())
            if (w != pop) found = w;
          return !found.isEmpty();
        },
        ms);
    return found;
  }
  // The pop-up from the icon, its user menu, and "Log out" (its last entry).
  ::testing::AssertionResult chooseLogOut() {
    clickTrayIcon();
    if (!waitUntil([&] { return !popup().isEmpty(); }, 10000))
      return ::testing::AssertionFailure() << "a click on the icon shows no pop-up";
    const QPoint user = popupUserButton();
    if (user.isNull()) return ::testing::AssertionFailure() << "no user button on the pop-up";
    const int shown = countOf("update_tray_menu");
    clickAt(user);
    // The menu asks the service for the quota as it opens.
    if (!waitForAction("update_tray_menu", 10000, shown + 1))
      return ::testing::AssertionFailure() << "the user button opens no menu";
    keys({"Up", "Return"});
    return ::testing::AssertionSuccess();
  }
};

TEST_F(Session, OpenLogAtStartFromASecondLaunchAndFromTheUrl) {
  ASSERT_TRUE(startLinked("idle", {"open_log"}));
  ASSERT_TRUE(activityUp("open-log-at-start"));
  // Opened once the first status came, with the service's four entries.
  const QString log = agentLog();
  const int status = log.indexOf("tray pop-up: status page: Successful");
  ASSERT_GE(status, 0);
  EXPECT_LT(status, log.indexOf("activity dialog: 4 rows"));

  EXPECT_EQ(launchAgain({"open_log"}), 0);
  ASSERT_TRUE(activityUp("open-log-second-launch"));
  EXPECT_EQ(launchAgain({"nimbrabackup://nimbrabackupprotocol?open_log=1"}), 0);
  ASSERT_TRUE(activityUp("open-log-url"));
  EXPECT_EQ(logCount("activity dialog: 4 rows"), 3);
  EXPECT_EQ(agent_->state(), QProcess::Running);
}

TEST_F(Session, LogOutAsksFirstThenTheWizardIsBack) {
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Success, 20000)) << pictureName(trayPicture());

  // Cancel (Escape) keeps the device linked.
  ASSERT_TRUE(chooseLogOut());
  QString confirm = dialog(15000);
  ASSERT_FALSE(confirm.isEmpty()) << "no confirmation";
  ASSERT_TRUE(activate(confirm));
  shot("confirm");
  ASSERT_TRUE(pressUntil(
      "Escape", [&] { return dialog(0).isEmpty(); }, 10000))
      << "Escape leaves the confirmation up";
  EXPECT_EQ(countOf("logout"), 0) << "Cancel logged out";
  EXPECT_EQ(trayPicture(), TrayPicture::Success) << pictureName(trayPicture());

  // OK (the blue button) logs out.
  ASSERT_TRUE(chooseLogOut());
  confirm = dialog(15000);
  ASSERT_FALSE(confirm.isEmpty()) << "no confirmation";
  const QPoint ok = findColour(kButtonBlue, windowRect(confirm), 30);
  ASSERT_FALSE(ok.isNull()) << "no OK button on the confirmation";
  clickAt(ok);
  ASSERT_TRUE(waitForAction("logout", 10000)) << "the service was not asked to log out";

  // The wizard's welcome page, and the icon without a state.
  const QString wizard = waitForAgentWindow(20000);
  ASSERT_FALSE(wizard.isEmpty()) << "no wizard after log-out";
  EXPECT_TRUE(waitUntil([&] { return screenPixels(kButtonBlue) > 3000; }, 15000)) << "welcome page not drawn";
  EXPECT_TRUE(waitForTrayPicture(TrayPicture::Connect, 10000)) << pictureName(trayPicture());
  EXPECT_TRUE(waitForLog("wizard: welcome page", 10000));
  shot("wizard-after-logout");
  // Polling stopped with the unlinked status: the last request is no poll
  // but the status that said so, or the log-out itself.
  const int polls = countOf("get_status");
  EXPECT_FALSE(waitForAction("get_status", 3000, polls + 2)) << "still polling after log-out";
}

class NoTray : public Session {
 protected:
  bool withTray() const override { return false; }
};

TEST_F(NoTray, OpenShowsThePopupAsASmallWindowThatWorks) {
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitForLog("tray pop-up: status page: Successful", 15000));
  EXPECT_TRUE(agentWindows(".*").isEmpty()) << "a window shows before anyone asked";

  // The desktop file's launch (no argument: "open").
  EXPECT_EQ(launchAgain({}), 0);
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 15000)) << "\"open\" shows nothing";
  const QString window = popup();
  ASSERT_TRUE(activate(window));
  // An ordinary window: managed, framed by the window manager.
  EXPECT_TRUE(run("xwininfo", {"-id", window}).contains("Override Redirect State: no"));
  const QString frame = run("xprop", {"-id", window, "_NET_FRAME_EXTENTS"});
  EXPECT_TRUE(frame.contains("=") && !frame.contains("= 0, 0, 0, 0")) << frame.toStdString();
  // It asks for title, minimise and close only (motif functions: no maximise, 0x10).
  const QString motif = run("xprop", {"-id", window, "_MOTIF_WM_HINTS"});
  const QRegularExpressionMatch functions = QRegularExpression("= 0x[0-9a-f]+, (0x[0-9a-f]+)").match(motif);
  ASSERT_TRUE(functions.hasMatch()) << motif.toStdString();
  EXPECT_EQ(functions.captured(1).toUInt(nullptr, 16) & 0x10u, 0u) << motif.toStdString();
  shot("popup-window");

  // It works: its list button opens the activity list.
  const QPoint list = popupListButton();
  ASSERT_FALSE(list.isNull());
  clickAt(list);
  ASSERT_TRUE(activityUp("activity"));

  // Escape closes it, and "open" brings it back.
  ASSERT_TRUE(activate(window));
  EXPECT_TRUE(pressUntil(
      "Escape", [&] { return popup().isEmpty(); }, 10000))
      << "Escape leaves the window up";
  EXPECT_EQ(launchAgain({}), 0);
  EXPECT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 15000)) << "a second \"open\" shows nothing";
  shot("popup-window-again");
  EXPECT_EQ(agent_->state(), QProcess::Running);
}

}  // namespace
}  // namespace desktop_test
