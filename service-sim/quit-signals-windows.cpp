#include <windows.h>

#include <QCoreApplication>
#include <QMetaObject>

#include "service-sim/quit-signals.h"

namespace sim {

namespace {
BOOL WINAPI on_console_event(DWORD) {
  // Runs on a thread of the system's: hand the quit to the event loop.
  if (QCoreApplication* app = QCoreApplication::instance())
    QMetaObject::invokeMethod(app, "quit", Qt::QueuedConnection);
  return TRUE;
}
}  // namespace

bool install_quit_handlers(QCoreApplication&) {
  return SetConsoleCtrlHandler(on_console_event, TRUE) != 0;
}

}  // namespace sim
