#pragma once
// The whole agent on a desktop of its own, driven as a person drives it.
//
// Each test gets a VirtualDesktop (Xvfb, a private session bus, openbox,
// tint2 unless withTray() says no, dunst); its own simulator playing a
// scenario with a request record; its own pipe namespace, working space, XDG
// folders and log folder; and the real nimbra-backup-agent, logging at debug
// level so that its log tells the texts it shows. The browser is a script
// (BROWSER) that fetches the simulator's sign-in page, submits it and hands
// the returned nimbrabackup:// address to `nimbra-backup-agent URL`.
// Screenshots go to $NIMBRA_BUILD_DIR/tests/desktop-shots/<test>/.

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QJsonObject>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

#include "tests/support/desktop.h"
#include "tests/support/temp-dir.h"

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
  // The agent against the linked `scenario` until it polls and (on a
  // desktop with a tray) shows its icon.
  ::testing::AssertionResult startLinked(const QString& scenario, const QStringList& args = {});
  // A second launch (as the desktop file runs it); its exit code, -1 when
  // it did not end in time.
  int launchAgain(const QStringList& args);
  // True when the agent ended within `ms`; its exit code in `code`.
  bool waitForAgentExit(int ms, int* code = nullptr);

  static bool waitUntil(const std::function<bool()>& done, int ms) {
    return nimbra_test::wait_until(done, ms);
  }

  // What the simulator was asked, in order.
  QVector<Request> records() const;
  QStringList actions() const;
  int countOf(const QString& action) const { return actions().count(action); }
  bool waitForAction(const QString& action, int ms, int count = 1);
  // The agent's log (every file of its log folder), its lines that contain
  // `text`, and what it wrote on its standard error (Qt's own warnings).
  QString agentLog() const;
  QStringList logLines(const QString& text) const;
  int logCount(const QString& text) const { return agentLog().count(text); }
  bool waitForLog(const QString& text, int ms, int count = 1);
  QString agentStderr() const;

  // Visible top-level windows of the agent whose title matches `regex`.
  QStringList agentWindows(const QString& regex = QStringLiteral("^Nimbra Backup$")) const;
  // The first of them, waited for up to `ms`; empty when none came.
  QString waitForAgentWindow(int ms, const QString& regex = QStringLiteral("^Nimbra Backup$"));
  // True once the focused window belongs to the agent (what a person's keys reach).
  bool agentHasFocus() const;
  bool waitForAgentFocus(int ms) {
    return waitUntil([&] { return agentHasFocus(); }, ms);
  }
  // Activates `window` the way a click on it would; keys (xdotool key
  // names) go to whatever has the focus, as a keyboard's do.
  ::testing::AssertionResult activate(const QString& window);
  virtual void keys(const QStringList& keys);
  // Presses `key` until `done` holds (waiting 5 s after each press), as a
  // person presses again when a window that just came up missed the key.
  bool pressUntil(const QString& key, const std::function<bool()>& done, int ms);

  // The tray icon's place on the screen (inside tint2's tray); empty when
  // the tray shows no icon of the agent.
  virtual QRect trayIcon() const;
  TrayPicture trayPicture() const;
  bool waitForTrayPicture(TrayPicture want, int ms);
  void clickTrayIcon(int button = 1);
  void clickAt(const QPoint& p, int button = 1);

  // Pixels of the screen within `tolerance` (sum of channel differences) of
  // `colour`: what a page shows in bulk tells which page is up. `findColour`:
  // the centre of those inside `area`, null when there are none.
  int screenPixels(const QColor& colour, int tolerance = 6);
  QPoint findColour(const QColor& colour, const QRect& area, int tolerance = 6);
  // A window's place on the screen, empty when it is gone.
  QRect windowRect(const QString& window) const;
  // The agent's visible pop-up (its tray menu, about 400 x 232), empty when none.
  QString popup() const;
  // The pop-up's user button (the blue disc at the right of its header),
  // waited for while the pop-up is drawn; null without a pop-up. Its
  // activity-list button is 40 px left of it.
  QPoint popupUserButton();

  // A screenshot of the whole screen named NN-<step>.png.
  void shot(const QString& step);
  // Runs a program on the desktop, returning its standard output.
  QString run(const QString& program, const QStringList& args, int* code = nullptr) const {
    return desktop_->run(program, args, code);
  }
  static QString source(const QString& rel) { return qEnvironmentVariable("NIMBRA_SOURCE_DIR") + rel; }
  static QString build(const QString& rel) { return qEnvironmentVariable("NIMBRA_BUILD_DIR") + rel; }
  QString scratch() const { return QString::fromStdString(scratch_->path()); }

  std::unique_ptr<nimbra_test::TempDir> scratch_;
  std::unique_ptr<nimbra_test::VirtualDesktop> desktop_;
  std::unique_ptr<QProcess> sim_, agent_;
  QProcessEnvironment env_;
  QString record_, shotDir_, agentProgram_;
  int shots_ = 0;

 private:
  // The agent run from a folder of its own whose agent.debug raises the
  // agent's components to debug level (the programs are hard links to the
  // build's, the other resources symbolic links).
  ::testing::AssertionResult useDebugLog();
};

}  // namespace desktop_test
