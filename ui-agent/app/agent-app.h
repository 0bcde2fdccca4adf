#pragma once
// Start-up of the agent: prepares the application (paths, logging, pictures,
// style sheets, language, font), takes the machine-wide lock, settles the
// single instance (a second launch hands its argument, or "open", to the
// running agent and exits 0), wires the primary instance, runs the event
// loop and tears down in a fixed order. main() only calls run().

#include <QApplication>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace agent_app {

// Seams for tests and tools; run() with default options is the agent.
struct Options {
  // The user identity compared with the machine lock's holder (the uid on
  // Linux); tests simulate another user with it.
  std::function<unsigned long()> lockUser;
  // Called once the application object exists.
  std::function<void(QApplication&)> applicationReady;
  // Creates and starts what the primary instance runs (the client manager
  // unless given); `openLog` tells whether "open_log" was an argument.
  std::function<std::unique_ptr<QObject>(bool openLog)> createPrimary;
  // Called in the primary instance just before the event loop runs.
  std::function<void()> primaryReady;
};

int run(int argc, char** argv, const Options& options = Options());

// --- decisions of start-up, as pure functions ---------------------------

// What a second instance hands to the running one: argument 1 when there is
// one, else "open". `arguments` includes the program path.
QString messageForRunning(const QStringList& arguments);
// True when any argument (the program path included) is exactly "open_log".
bool wantsOpenLog(const QStringList& arguments);

// The single-instance check: asks `isRunning` until it answers false (this
// process becomes the primary: returns true) or `budgetMs` have passed
// (another instance runs: returns false). `elapsedMs` and `pause` are the
// clock and the wait between questions.
bool becomePrimary(const std::function<bool()>& isRunning, const std::function<qint64()>& elapsedMs,
                   const std::function<void()>& pause, qint64 budgetMs = 500);

// Feeds GlobalConnecter::sigPositionClicked with the global position of
// every left press on the application's windows (installed on the
// application where no global mouse hook exists).
class PositionClickFilter : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

// Platform halves (agent-app-posix.cpp / agent-app-windows.cpp).
namespace platform {
// Before the application object exists: the graphics back end (on Linux
// also the font configuration, loaded on a helper thread meanwhile).
void prepareGraphics();
// Before the first text is laid out: waits for what prepareGraphics()
// started to be ready.
void fontsNeeded();
// The source of sigPositionClicked: the low-level mouse hook on Windows,
// PositionClickFilter on the application elsewhere.
void installPositionSource(QApplication& app);
void removePositionSource(QApplication& app);
}  // namespace platform

}  // namespace agent_app
