#pragma once
// The whole agent on a desktop of its own, driven as a person drives it.
//
// Each test gets an Xvfb display, a private session bus, openbox, tint2 (its
// system tray; left out for the no-tray case) and dunst; its own simulator
// playing a scenario with a request record; its own pipe namespace, working
// space, XDG folders and log folder; and the real nimbra-backup-agent. The
// browser is a script (BROWSER) that fetches the simulator's sign-in page,
// submits it and hands the returned nimbrabackup:// address to
// `nimbra-backup-agent URL`, as the desktop's URL handler does.
//
// Every wait is for a condition with a deadline; every process is stopped in
// TearDown (and killed by the system if the test process dies first).
// Screenshots go to $NIMBRA_BUILD_DIR/tests/desktop-shots/<test>/.

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

#include "notifier/private-desktop.h"
#include "support/temp-dir.h"

namespace desktop_test {

// One line of the simulator's record.
struct Request {
  qint64 time_ms = 0;
  QJsonObject request;
  QString action() const { return request.value("action").toString(); }
};

// The tray icon's picture as a person sees it, read from its pixels.
enum class TrayPicture { Missing, Connect, Running, Success, Error, Warning };
const char* pictureName(TrayPicture p);
// The picture whose colour (blue, green, red, orange) most pixels of `icon`
// carry; Connect when none of them shows.
TrayPicture classifyTrayPicture(const QImage& icon);

class AgentDesktop : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Overridden by the no-tray tests.
  virtual bool withTray() const { return true; }
  // How a program of the build is started (the Windows programs through
  // Wine), and more lines of tint2's configuration.
  virtual void command(QString& /*program*/, QStringList& /*args*/) const {}
  virtual QString trayConfig() const { return {}; }

  // The simulator with service-sim/scenarios/<scenario>.json and a fresh
  // state; `resume` keeps the state of an earlier run (a restart).
  ::testing::AssertionResult startSim(const QString& scenario, bool resume = false);
  void stopSim(bool kill = false);
  ::testing::AssertionResult startAgent(const QStringList& args = {});
  // A second launch (as the desktop file runs it); its exit code, -1 when
  // it did not end in time.
  int launchAgain(const QStringList& args);
  // True when the agent ended within `ms`; its exit code in `code`.
  bool waitForAgentExit(int ms, int* code = nullptr);

  // Polls `done` until it holds or `ms` passes.
  static bool waitUntil(const std::function<bool()>& done, int ms);

  // What the simulator was asked, in order.
  QVector<Request> records() const;
  QStringList actions() const;
  bool waitForAction(const QString& action, int ms, int count = 1);
  int countOf(const QString& action) const;
  // The agent's log (every file of its log folder).
  QString agentLog() const;

  // Visible top-level windows of the agent whose title matches `regex`.
  QStringList agentWindows(const QString& regex = QStringLiteral("^Nimbra Backup$")) const;
  QString activeWindow() const;
  // True once the focused window belongs to the agent (what a person's keys reach).
  bool waitForAgentFocus(int ms);
  // Activates `window` the way a click on it would, then types `keys`
  // (xdotool key names) into whatever has the focus, as a keyboard does.
  ::testing::AssertionResult activate(const QString& window);
  void keys(const QStringList& keys);

  // The tray icon's place on the screen (inside tint2's tray); empty when
  // the tray shows no icon of the agent.
  virtual QRect trayIcon() const;
  TrayPicture trayPicture() const;
  bool waitForTrayPicture(TrayPicture want, int ms);
  void clickTrayIcon(int button = 1);

  // Pixels of the screen within `tolerance` (sum of channel differences) of
  // `colour`: what a page shows in bulk tells which page is up.
  int screenPixels(const QColor& colour, int tolerance = 6);
  // The size of a window, empty when it is gone.
  QSize windowSize(const QString& window) const;
  // The agent's visible pop-up (its tray menu, about 400 x 232), empty when none.
  QString popup() const;

  // dunst's history (newest first).
  QJsonArray notifications() const;

  // A screenshot of the whole screen named NN-<step>.png, and the path.
  QString shot(const QString& step);
  // Runs a program on the desktop, returning its standard output.
  QString run(const QString& program, const QStringList& args, int* code = nullptr) const;

  QString source(const QString& rel) const;
  QString build(const QString& rel) const;

  // ---- wizard variants, more backups, the session (one block, kept together) ----
  // How many times the agent's log contains `text`.
  int logCount(const QString& text) const;
  bool waitForLog(const QString& text, int ms, int count = 1);
  // The agent, logging at debug level (useDebugLog), against the linked `scenario` until
  // it polls and (on a desktop with a tray) shows its icon.
  ::testing::AssertionResult startLinked(const QString& scenario, const QStringList& args = {});
  // The first visible window of the agent whose title matches `regex`,
  // waited for up to `ms`; empty when none came.
  QString waitForAgentWindow(int ms, const QString& regex = QStringLiteral("^Nimbra Backup$"));
  // The notification dunst shows: its title, its text and its menu of
  // actions (read from dunst's context menu); all closed afterwards.
  struct ShownNotification {
    QString summary, body;
    QStringList menu;
  };
  ShownNotification takeNotification();
  // The centre of the pixels of `colour` (within `tolerance`) inside `area`
  // of the screen, null when there are none: where a coloured control is.
  QPoint findColour(const QColor& colour, const QRect& area, int tolerance = 6);
  // A window's place on the screen, empty when it is gone.
  QRect windowRect(const QString& window) const;
  // The pop-up's user button (the blue disc at the right of its header) and
  // its activity-list button (left of it), on the screen, waited for while
  // the pop-up is drawn; null without a pop-up.
  QPoint popupUserButton();
  QPoint popupListButton();
  void clickAt(const QPoint& p);
  // Presses `key` until `done` holds (waiting 3 s after each press), as a
  // person presses again when a window that just came up missed the key
  // (the toolkit takes the focus a moment after the window manager gives it).
  bool pressUntil(const QString& key, const std::function<bool()>& done, int ms);
  // ---- end of the block ----

  std::unique_ptr<nimbra_test::TempDir> scratch_;
  std::unique_ptr<notifier_test::PrivateDesktop> desktop_;
  std::unique_ptr<QProcess> sim_, agent_;
  QProcessEnvironment env_;
  QString record_, simState_, shotDir_, signinUrl_;
  int shots_ = 0;

  // ---- service faults: debug log, log lines, exit checks -------------------
  // The agent run from a folder of its own whose agent.debug raises the
  // agent's components to debug level, so that its log tells every tray
  // picture and what the pop-up's page shows (the programs are hard links
  // to the build's, the other resources symbolic links). Call before
  // startAgent.
  ::testing::AssertionResult useDebugLog();
  // The program startAgent and launchAgain run.
  QString agentProgram() const;
  // The lines of the agent's log that contain `text`, in order.
  QStringList logLines(const QString& text) const;
  // What the agent wrote on its standard error (Qt's own warnings).
  QString agentStderr() const;
  QString agentProgram_;
};

}  // namespace desktop_test
