// Runs the agent's start-up as the agent does and prints, one line each,
// what a test needs to see:
//   PRIMARY            this process became the primary instance
//   OPEN_LOG <0|1>     what the primary was started with
//   MESSAGE <text>     a message from a second instance reached the bus
//   SHEET <title>|<text>  a warning was shown (and answered with OK)
// Environment: NIMBRA_TEST_OTHER_USER=1 makes this process look like another
// user to the machine-wide lock (Linux only); NIMBRA_TEST_QUIT_AFTER=<n> ends the event
// loop after n messages.
#include <cstdio>
#ifndef _WIN32
#include <unistd.h>
#endif

#include <QMessageBox>
#include <QTimer>

#include "ui-agent/app/agent-app.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/tray/system-tray.h"
#include "widgets/vell-message-sheet.h"

namespace {

void say(const QString& line) {
  std::printf("%s\n", qUtf8Printable(line));
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  agent_app::Options options;
#ifndef _WIN32
  if (qEnvironmentVariable("NIMBRA_TEST_OTHER_USER") == QLatin1String("1"))
    options.lockUser = [] { return static_cast<unsigned long>(::getuid()) + 1; };
#endif
  options.applicationReady = [](QApplication& app) {
    auto* answer = new QTimer(&app);
    QObject::connect(answer, &QTimer::timeout, [] {
      for (VellMessageSheet* sheet : VellMessageSheet::runningSheets()) {
        say(QStringLiteral("SHEET ") + sheet->windowTitle() + QLatin1Char('|') + sheet->text());
        sheet->quit(QMessageBox::Ok);
      }
    });
    answer->start(20);
  };
  options.createPrimary = [](bool openLog) -> std::unique_ptr<QObject> {
    say(QStringLiteral("OPEN_LOG %1").arg(openLog ? 1 : 0));
    auto tray = std::make_unique<SystemTray>();
    tray->setVisible(true);
    return tray;
  };
  options.primaryReady = [] {
    static int left = qEnvironmentVariableIntValue("NIMBRA_TEST_QUIT_AFTER");
    QObject::connect(&GlobalConnecter::instance(), &GlobalConnecter::sigMessageReceived,
                     [](const QString& m) {
                       say(QStringLiteral("MESSAGE ") + m);
                       if (left > 0 && --left == 0) QCoreApplication::quit();
                     });
    say(QStringLiteral("PRIMARY"));
  };
  const int code = agent_app::run(argc, argv, options);
  say(QStringLiteral("EXIT %1").arg(code));
  return code;
}
