// A linked device: the tray icon's picture follows the backup, the finished
// backup is shown by the desktop's notification service with the agent's
// button, a second launch opens the pop-up by the icon, the icon's menu
// backs up now, and Exit ends the agent after its notice.
#include <QJsonObject>
#include <QRegularExpression>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

using LinkedAgent = AgentDesktop;

struct BackupRow {
  const char* scenario;
  TrayPicture after;
  const char* title;
};

void PrintTo(const BackupRow& r, std::ostream* os) {
  *os << r.scenario;
}

class BackupOutcome : public LinkedAgent, public ::testing::WithParamInterface<BackupRow> {};

TEST_P(BackupOutcome, TrayPictureFollowsAndTheNotificationHasTheAgentsButton) {
  const BackupRow& row = GetParam();
  ASSERT_TRUE(startLinked(row.scenario));
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Running, 30000)) << "icon: " << pictureName(trayPicture());
  clickTrayIcon();
  EXPECT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 10000)) << "a click on the icon shows no pop-up";
  shot("running-popup");

  ASSERT_TRUE(waitForTrayPicture(row.after, 60000)) << "icon: " << pictureName(trayPicture());
  ASSERT_TRUE(waitUntil([&] { return desktop_->displayed() >= 1; }, 30000)) << "no notification shown";
  shot("finished-notification");
  const ShownNotification shown = takeNotification();
  EXPECT_EQ(shown.summary, QString("Nimbra Backup %1").arg(row.title));
  EXPECT_EQ(shown.body, "Check the activity logs in the agent for more information.");
  // The agent's button and the notification's default action (a click on it).
  EXPECT_EQ(shown.menu.filter(QRegularExpression("^#Open Nimbra Backup \\(.*\\) \\[\\d+,1\\]$")).size(), 1)
      << shown.menu.join('\n').toStdString();
  EXPECT_EQ(shown.menu.filter(",default]").size(), 1) << shown.menu.join('\n').toStdString();
  // The picture stays after the backup.
  EXPECT_EQ(trayPicture(), row.after) << pictureName(trayPicture());
  shot("after");
}

INSTANTIATE_TEST_SUITE_P(Scenarios, BackupOutcome,
                         ::testing::Values(BackupRow{"full-backup", TrayPicture::Success, "Successful"},
                                           BackupRow{"backup-failed", TrayPicture::Error, "Failed"}),
                         [](const ::testing::TestParamInfo<BackupRow>& row) {
                           QString name = row.param.scenario;
                           return name.remove('-').toStdString();
                         });

TEST_F(LinkedAgent, SecondLaunchOpensThePopupMenuBacksUpNowAndExitEndsTheAgent) {
  ASSERT_TRUE(startLinked("idle"));
  EXPECT_TRUE(popup().isEmpty()) << "the pop-up shows before anyone asked";
  EXPECT_EQ(launchAgain({}), 0);
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 15000)) << "\"open\" shows no pop-up";
  const QRect icon = trayIcon();
  const QString pop = popup();
  shot("open-popup");
  // Beside the icon: the panel is at the bottom, the pop-up right above it.
  const QString geometry = run("xdotool", {"getwindowgeometry", "--shell", pop});
  EXPECT_TRUE(geometry.contains("Y=")) << geometry.toStdString();
  const int y = QRegularExpression("Y=(\\d+)").match(geometry).captured(1).toInt();
  const int bottom = y + windowSize(pop).height();
  EXPECT_LE(bottom, icon.top()) << "pop-up over the panel";
  EXPECT_GE(bottom, icon.top() - 40) << "pop-up far from the icon";

  // A click elsewhere closes it.
  run("xdotool", {"mousemove", "--sync", "300", "300", "click", "1"});
  EXPECT_TRUE(waitUntil([&] { return popup().isEmpty(); }, 10000)) << "a click outside leaves the pop-up up";

  // The icon's menu by keyboard: "Back up now" (below "Open") asks the service;
  // the menu is up when the agent shows one window more than before.
  const int windows = agentWindows(".*").size();
  auto openMenu = [&] {
    clickTrayIcon(3);
    return waitUntil([&] { return agentWindows(".*").size() > windows; }, 10000);
  };
  EXPECT_EQ(countOf("backup_now"), 0);
  ASSERT_TRUE(openMenu());
  shot("right-menu");
  keys({"Down", "Down", "Return"});
  EXPECT_TRUE(waitForAction("backup_now", 15000)) << actions().join(' ').toStdString();

  // Exit (the last entry, Up from none), then the notice, then the agent ends.
  ASSERT_TRUE(waitUntil([&] { return agentWindows(".*").size() == windows; }, 10000)) << "the menu stays";
  run("xdotool", {"mousemove", "--sync", "300", "300"});
  ASSERT_TRUE(openMenu());
  keys({"Up", "Return"});
  QString notice;
  ASSERT_TRUE(waitUntil(
      [&] {
        const QStringList w = agentWindows();
        notice = w.isEmpty() ? QString() : w.first();
        return !notice.isEmpty() && activeWindow() == notice;
      },
      15000))
      << "no exit notice";
  shot("exit-notice");
  keys({"Return"});
  int code = -1;
  ASSERT_TRUE(waitForAgentExit(15000, &code)) << "the agent stays after Exit";
  // A normal exit with 0: the client manager joined its threads (a thread
  // still running at exit aborts the process).
  EXPECT_EQ(code, 0);
}

}  // namespace
}  // namespace desktop_test
