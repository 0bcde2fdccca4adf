// The service upgrading under a linked agent: the update dialog while the
// service says "updating", then the tray; a failed upgrade ends the agent
// with the dialog's OK.
#include <QFile>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

const QColor kButtonBorder(0xBC, 0xC4, 0xCE);

class Upgrade : public AgentDesktop {
 protected:
  // The first line of the service's status file in the working space.
  QString serviceStatus() const {
    QFile f(env_.value("NIMBRA_WORKING_SPACE") + "/service-status");
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readLine()).trimmed() : QString();
  }
  QString updateDialog(int ms) {
    QString dialog;
    waitUntil(
        [&] {
          const QStringList w = agentWindows();
          dialog = w.isEmpty() ? QString() : w.first();
          return !dialog.isEmpty();
        },
        ms);
    return dialog;
  }
};

TEST_F(Upgrade, DialogWhileUpdatingThenTheTray) {
  ASSERT_TRUE(startSim("upgrade"));
  ASSERT_TRUE(startAgent());
  const QString dialog = updateDialog(30000);
  ASSERT_FALSE(dialog.isEmpty()) << "no update dialog";
  shot("updating");
  EXPECT_EQ(countOf("get_status"), 0) << "polls while the service upgrades";
  // The agent reads the service's status file every second while the
  // service upgrades and asks the service itself only afterwards.
  ASSERT_TRUE(waitForAction("get_status", 40000)) << "the agent never goes on after the upgrade";
  EXPECT_TRUE(serviceStatus().isEmpty());
  EXPECT_TRUE(waitUntil([&] { return agentWindows().isEmpty(); }, 10000)) << "the update dialog stays";
  EXPECT_TRUE(waitUntil([&] { return !trayIcon().isEmpty(); }, 10000)) << "no icon in the tray";
  shot("after-upgrade");
  EXPECT_EQ(agent_->state(), QProcess::Running);
}

TEST_F(Upgrade, FailureOkEndsTheAgent) {
  ASSERT_TRUE(startSim("upgrade-failure"));
  ASSERT_TRUE(startAgent());
  const QString dialog = updateDialog(30000);
  ASSERT_FALSE(dialog.isEmpty()) << "no update dialog";
  shot("updating");
  // The failure: the status file says so, and the dialog shows its OK
  // button (its grey border is nowhere else on the screen).
  ASSERT_EQ(screenPixels(kButtonBorder), 0);
  ASSERT_TRUE(waitUntil([&] { return serviceStatus() == "update_error"; }, 40000));
  ASSERT_TRUE(waitUntil([&] { return screenPixels(kButtonBorder) > 150; }, 15000))
      << "the failed upgrade shows no OK button";
  ASSERT_EQ(agent_->state(), QProcess::Running);
  const QStringList windows = agentWindows();
  ASSERT_FALSE(windows.isEmpty()) << "the failure shows no dialog";
  ASSERT_TRUE(activate(windows.first()));
  shot("update-failed");
  keys({"Return"});
  int code = -1;
  ASSERT_TRUE(waitForAgentExit(15000, &code)) << "OK leaves the agent running";
  EXPECT_EQ(code, 0);
  EXPECT_EQ(countOf("get_status"), 0);
}

}  // namespace
}  // namespace desktop_test
