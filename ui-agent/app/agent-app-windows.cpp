// Windows: OpenGL ES through ANGLE (the software renderer on Windows 7 and
// 8.x) and the low-level mouse hook feeding the bus.
#include <QMetaObject>

#include "ui-agent/app/agent-app.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/platform/os-services.h"

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

}  // namespace agent_app::platform
