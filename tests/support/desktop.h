#pragma once
// A desktop of the test's own: an Xvfb display, a private session bus (with
// no activatable services) and, when asked, openbox as its window manager,
// tint2 as its panel with a system tray and dunst as its notification
// service, all started in a scratch folder and stopped with the object (and
// killed by the system should the test process die first).
// The helpers read what dunst shows (its history and the actions of its
// context menu, through a menu program that records the menu and picks a line).

#include <QJsonArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

#include "tests/support/wait.h"

namespace nimbra_test {

// A QProcess whose program is killed when the process that started it ends,
// so that a test stopped by its time limit leaves nothing behind.
class ChildProcess : public QProcess {
 public:
  using QProcess::QProcess;

 protected:
  void setupChildProcess() override;
};

// SIGTERM (SIGKILL with `kill`), SIGKILL after 5 s; then the object is gone.
void stop_process(std::unique_ptr<QProcess>& p, bool kill = false);
// Writes `text` to `path`, executable by its owner when `executable`.
bool write_text(const QString& path, const QString& text, bool executable = false);

class VirtualDesktop {
 public:
  explicit VirtualDesktop(QString scratch);
  ~VirtualDesktop();
  VirtualDesktop(const VirtualDesktop&) = delete;
  VirtualDesktop& operator=(const VirtualDesktop&) = delete;

  // Each returns an empty text on success, else what failed.
  QString startBus();
  QString startDisplay(const QString& screen = QStringLiteral("800x600x24"));
  // openbox; returns once it manages the screen.
  QString startWindowManager();
  // tint2 with its system tray; returns once the panel is shown. `extra`:
  // more lines of its configuration.
  QString startTray(const QString& extra = QString());
  QString startDunst();
  void stopDunst();

  // A picture of the whole screen; empty on success.
  QString screenshot(const QString& png) const;

  // The environment of programs on this desktop: DISPLAY, the bus address,
  // and XDG_STATE_HOME in the scratch folder.
  QProcessEnvironment environment() const;
  // Runs a program on this desktop and returns its standard output.
  QString run(const QString& program, const QStringList& args, int* exit_code = nullptr) const;

  // dunst's history, newest first: one object per notification with its
  // members as plain strings ("summary", "body", "message", "appname", ...).
  QJsonArray history() const;
  int displayed() const;
  // Opens dunst's context menu; the menu program picks the first line that
  // contains `pick` (none when it is empty). Returns every line of the menu.
  QStringList contextMenu(const QString& pick) const;

 private:
  QString startReading(QProcess& p, const QString& program, const QStringList& args, QString& first_line);
  std::unique_ptr<QProcess> startLogged(const QString& program, const QStringList& args);
  // Starts `program` again until `ready` holds; empty on success.
  QString startUntil(std::unique_ptr<QProcess>& p, const QString& program, const QStringList& args,
                     const std::function<bool()>& ready);

  QString scratch_;
  QString bus_address_;
  QString display_;
  std::unique_ptr<QProcess> bus_, xvfb_, dunst_, openbox_, tint2_;
};

}  // namespace nimbra_test
