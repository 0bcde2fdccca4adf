// The Windows agent and simulator under Wine, on a desktop of the test's own
// (Xvfb, openbox, tint2 as the tray: Wine embeds its tray icons over XEmbed),
// talking over real named pipes, driven as the Linux desktop tests drive the
// Linux agent (tests/desktop/agent-desktop.h). A Linux program, run by
// scripts/check-windows after the Windows tests, with the Wine prefix of that
// run (WINEPREFIX) and the Windows build in NIMBRA_WINDOWS_BUILD_DIR.
//
// Wine's own desktop process (which hosts the tray icons) belongs to the
// display of the Wine session, so each case starts a session of its own on
// its display and ends it afterwards.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "tests/desktop/agent-desktop.h"

namespace desktop_test {
namespace {

const QColor kSummaryBlock(0xF7, 0xF8, 0xF9);
const QColor kButtonBlue(0x0A, 0x9C, 0xFF);

class AgentUnderWine : public AgentDesktop {
 protected:
  void SetUp() override {
    const QString windows = qEnvironmentVariable("NIMBRA_WINDOWS_BUILD_DIR");
    ASSERT_FALSE(windows.isEmpty() || qEnvironmentVariable("WINEPREFIX").isEmpty())
        << "run by scripts/check-windows (NIMBRA_WINDOWS_BUILD_DIR and WINEPREFIX)";
    bin_ = windows + "/bin/";
    AgentDesktop::SetUp();
    if (HasFatalFailure()) return;
    // A Wine session on this display: a persistent server, then Wine's
    // services and desktop process started once, before the programs.
    wine({"wineserver", "-k"});
    wine({"wineserver", "-w"});
    ASSERT_EQ(wine({"wineserver", "-p"}), 0) << "no wineserver";
    ASSERT_EQ(wine({"wine", "cmd.exe", "/c", "exit"}), 0) << "Wine does not start";
    // The agent logs to C:\ProgramData\NimbraBackupAgent\log: into the
    // case's folder, where agentLog() reads.
    const QString dir = QString::fromStdString(scratch_->path());
    appData_ = qEnvironmentVariable("WINEPREFIX") + "/drive_c/ProgramData/NimbraBackupAgent";
    QDir(appData_).removeRecursively();
    QFile::remove(appData_);
    ASSERT_TRUE(QDir().mkpath(dir + "/state/NimbraBackupAgent"));
    ASSERT_TRUE(QFile::link(dir + "/state/NimbraBackupAgent", appData_));
    // The browser hands the sign-in return to the Windows agent.
    QFile browser(dir + "/browser");
    ASSERT_TRUE(browser.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(browser.readAll());
    browser.close();
    text.replace(QRegularExpression("exec '[^']*'"), "exec wine '" + bin_ + "nimbra-backup-agent.exe'");
    ASSERT_TRUE(browser.open(QIODevice::WriteOnly | QIODevice::Truncate));
    browser.write(text.toUtf8());
  }

  void TearDown() override {
    AgentDesktop::TearDown();
    wine({"wineserver", "-k"});
    if (!appData_.isEmpty() && QFileInfo(appData_).isSymLink()) QFile::remove(appData_);
  }

  void command(QString& program, QStringList& args) const override {
    args.prepend(bin_ + QFileInfo(program).fileName() + ".exe");
    program = "wine";
  }

  // Wine's desktop process hosts every tray icon of the session (the
  // notifier's balloon brings one more): the agent's is the first one that
  // shows in tint2, found once and then followed by its window.
  QRect trayIcon() const override {
    if (icon_.isEmpty()) {
      const QStringList lines = run("xwininfo", {"-root", "-tree"}).split('\n');
      static const QRegularExpression embedded(
          "^\\s*(0x[0-9a-f]+) .*\\(\"explorer\\.exe\" \"explorer\\.exe\"\\)\\s+"
          "(\\d+)x(\\d+)\\+0\\+0\\s+\\+(\\d+)\\+(\\d+)");
      bool inPanel = false;
      for (const QString& line : lines) {
        if (line.contains("\"tint2\": (\"tint2\"")) inPanel = true;
        const QRegularExpressionMatch m = embedded.match(line);
        if (inPanel && m.hasMatch() && m.captured(2).toInt() > 4) {
          icon_ = m.captured(1);
          break;
        }
      }
      if (icon_.isEmpty()) return {};
    }
    const QString info = run("xwininfo", {"-id", icon_});
    auto value = [&](const char* name) {
      return QRegularExpression(QString(name) + ":\\s+(-?\\d+)").match(info).captured(1).toInt();
    };
    const QRect r(value("Absolute upper-left X"), value("Absolute upper-left Y"), value("Width"),
                  value("Height"));
    return r.width() > 4 ? r : QRect();
  }

  // Runs a Wine command on this desktop; its exit code.
  int wine(const QStringList& command) {
    QProcess p;
    p.setProcessEnvironment(env_);
    p.setStandardOutputFile(QProcess::nullDevice());
    p.setStandardErrorFile(QProcess::nullDevice());
    p.start(command.first(), command.mid(1));
    if (!p.waitForFinished(120000)) {
      p.kill();
      p.waitForFinished(5000);
      return -1;
    }
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
  }

  // The pop-up beside the icon: above the bottom panel, the icon within its width.
  void expectBesideTheIcon(const char* how) {
    const QRect icon = trayIcon(), pop = windowRect(popup());
    ASSERT_FALSE(icon.isEmpty() || pop.isEmpty()) << how;
    EXPECT_LE(pop.bottom(), icon.top()) << how << ": pop-up over the panel";
    EXPECT_GE(pop.bottom(), icon.top() - 40) << how << ": pop-up far above the icon";
    EXPECT_LE(pop.left(), icon.center().x()) << how;
    EXPECT_GE(pop.right(), icon.center().x()) << how << ": the icon is not under the pop-up";
  }

  // How many windows of the agent are shown, named or not.
  QStringList shownWindows() const {
    return run("xdotool", {"search", "--onlyvisible", "--pid", QString::number(agent_->processId())})
        .split('\n', Qt::SkipEmptyParts);
  }

  // Escape into the pop-up, given the keyboard first (shown on a message
  // from another process, it does not get the focus under Wine).
  bool closePopup() {
    const QString pop = popup();
    if (pop.isEmpty()) return true;
    run("xdotool", {"windowfocus", "--sync", pop});
    return pressUntil(
        "Escape", [&] { return popup().isEmpty(); }, 15000);
  }

  // Wine's tray icons are 32-bit windows; tint2's composited drawing of them
  // now and then fails (an X error), and tint2 then drops the icon.
  QString trayConfig() const override { return "disable_transparency = 1\n"; }

  QString bin_, appData_;
  mutable QString icon_;
};

TEST_F(AgentUnderWine, FirstRunByKeyboardBackupPopupSecondLaunchAndExit) {
  ASSERT_TRUE(startSim("first-run"));
  ASSERT_TRUE(startAgent());
  const QString wizard = waitForAgentWindow(60000);
  ASSERT_FALSE(wizard.isEmpty()) << "no wizard window";
  ASSERT_TRUE(activate(wizard));
  ASSERT_TRUE(waitUntil([&] { return screenPixels(kButtonBlue) > 3000; }, 30000)) << "welcome page not drawn";
  ASSERT_TRUE(waitUntil([&] { return !trayIcon().isEmpty(); }, 30000))
      << "no icon in tint2:\n"
      << run("xwininfo", {"-root", "-tree"}).toStdString();
  shot("welcome");

  // "Let's Start": the browser signs in and hands the address to a second
  // Windows agent, which forwards it over the single-instance pipe.
  keys({"Return"});
  ASSERT_TRUE(waitForAction("get_auth", 30000));
  ASSERT_TRUE(waitForAction("get_site_info", 60000)) << "the browser's return never reached the agent";
  ASSERT_TRUE(waitUntil([&] { return screenPixels(kSummaryBlock) > 50000; }, 30000)) << "no summary page";
  ASSERT_TRUE(waitForAgentFocus(15000));
  shot("summary");
  keys({"Return"});
  ASSERT_TRUE(waitForAction("create_device", 30000));
  // The back-up-now question, a window of its own over the wizard: Return is OK.
  // (The wizard dims under it.)
  ASSERT_TRUE(waitUntil([&] { return screenPixels(kSummaryBlock) < 10000; }, 30000))
      << "no back-up-now question";
  shot("backup-now-question");
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return countOf("backup_now") > 0; }, 30000));

  // The pop-up comes up by itself beside the icon, which turns blue.
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 30000)) << "no pop-up after linking";
  expectBesideTheIcon("after linking");
  EXPECT_TRUE(waitForTrayPicture(TrayPicture::Running, 30000)) << pictureName(trayPicture());
  shot("popup-running");

  // A click on the icon opens it beside the icon again.
  ASSERT_TRUE(closePopup()) << "Escape leaves the pop-up up";
  clickTrayIcon();
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 15000)) << "a click on the icon shows no pop-up";
  expectBesideTheIcon("clicked");
  shot("popup-clicked");

  // The backup to its result: the icon turns green.
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Success, 120000)) << pictureName(trayPicture());
  shot("backup-done");

  // A second launch forwards "open"; another with an argument forwards it
  // too (the activity list); both end with 0 while the first runs on.
  ASSERT_TRUE(closePopup()) << "Escape leaves the pop-up up";
  EXPECT_EQ(launchAgain({}), 0);
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 20000)) << "\"open\" shows no pop-up";
  expectBesideTheIcon("open");
  shot("second-launch-open");
  ASSERT_TRUE(closePopup());
  EXPECT_EQ(launchAgain({"open_log"}), 0);
  const QString activity = waitForAgentWindow(20000, "^Activity$");
  ASSERT_FALSE(activity.isEmpty()) << "open_log shows no activity list";
  shot("second-launch-open-log");
  ASSERT_TRUE(activate(activity));
  ASSERT_TRUE(pressUntil(
      "Escape", [&] { return agentWindows("^Activity$").isEmpty(); }, 15000));

  // "Exit" from the icon's menu, the notice, and the agent ends with 0.
  run("xdotool", {"mousemove", "--sync", "300", "300"});
  const QStringList before = shownWindows();
  QString menu;
  // (Clicked again, as a person does, when the menu went at once.)
  for (int i = 0; i < 4 && menu.isEmpty(); ++i) {
    clickTrayIcon(3);
    waitUntil(
        [&] {
          for (const QString& w : shownWindows())
            if (!before.contains(w)) menu = w;
          return !menu.isEmpty();
        },
        5000);
  }
  ASSERT_FALSE(menu.isEmpty()) << "no menu on the icon";
  shot("right-menu");
  // The menu has the keyboard once given it (no window of the agent's is active).
  run("xdotool", {"windowfocus", "--sync", menu});
  keys({"Up", "Return"});
  const QString notice = waitForAgentWindow(20000);
  ASSERT_FALSE(notice.isEmpty()) << "no exit notice";
  shot("exit-notice");
  ASSERT_TRUE(activate(notice));
  pressUntil(
      "Return", [&] { return agent_->state() == QProcess::NotRunning; }, 15000);
  int code = -1;
  ASSERT_TRUE(waitForAgentExit(30000, &code)) << "the agent stays after Exit";
  EXPECT_EQ(code, 0);
  // Nothing of the agent is left in the session; the simulator ends when told.
  EXPECT_TRUE(waitUntil(
      [&] {
        return !run("ps", {"-eo", "args"}).contains(bin_ + "nimbra-backup-agent.exe");
      },
      10000));
  stopSim();
}

}  // namespace
}  // namespace desktop_test
