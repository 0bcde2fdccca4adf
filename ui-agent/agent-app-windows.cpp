// Windows: OpenGL ES through ANGLE (the software renderer on Windows 7 and
// 8.x), the low-level mouse hook feeding the bus, and the end of the process.
#include <windows.h>

#include <QMetaObject>

#include <cstdio>

#include "agent-app.h"
#include "core/global-connecter.h"
#include "logger.h"
#include "os-services.h"

namespace agent_app::platform {

namespace {
os_services::MouseHook hook;
}

void prepareGraphics() {
  QCoreApplication::setAttribute(Qt::AA_UseOpenGLES);
  if (os_services::wants_warp_renderer(os_services::running_windows_version()))
    qputenv("QT_ANGLE_PLATFORM", "warp");
}

void fontsNeeded() {}

void installPositionSource(QApplication&) {
  // The hook runs on the main thread, serviced by its message loop.
  hook.install([](int x, int y) { emit GlobalConnecter::instance().sigPositionClicked(QPoint(x, y)); });
}

void removePositionSource(QApplication&) {
  hook.remove();
}

int endProcess(int code) {
  // The agent has stopped its threads and closed its windows: the process
  // ends here, without the C runtime's exit handlers. One of them, the
  // static thread library's removal of the key behind thread_local
  // destructors, waited for ever under Wine for a read lock on its key table
  // that a thread which had already ended never gave back (one reader
  // counted, no thread of the agent's left), so the agent stayed after "Exit".
  vlog::shutdown();
  std::fflush(nullptr);
  ::ExitProcess(static_cast<UINT>(code));
}

}  // namespace agent_app::platform
