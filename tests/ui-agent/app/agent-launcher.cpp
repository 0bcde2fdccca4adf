// Runs the agent's start-up as the agent does and prints, one line each,
// what a test needs to see:
//   PRIMARY            this process became the primary instance
//   SHEET <title>|<text>  a warning was shown (and answered with OK)
// Environment: NIMBRA_TEST_OTHER_USER=1 makes this process look like another
// user to the machine-wide lock (Linux only).
#include <cstdio>
#ifndef _WIN32
#include <unistd.h>
#endif

#include <QMessageBox>
#include <QTimer>

#include "ui-agent/app/agent-app.h"
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
  options.createPrimary = [](bool) -> std::unique_ptr<QObject> {
    auto tray = std::make_unique<SystemTray>();
    tray->setVisible(true);
    return tray;
  };
  options.primaryReady = [] { say(QStringLiteral("PRIMARY")); };
  return agent_app::run(argc, argv, options);
}
