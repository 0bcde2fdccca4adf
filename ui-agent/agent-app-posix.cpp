// Linux: no OpenGL and no global mouse hook: the
// presses on the agent's own windows feed the bus (a pop-up grabs the mouse,
// so a press outside it arrives here too).
#include <fontconfig/fontconfig.h>

#include <QByteArray>
#include <QtGlobal>
#include <thread>

#include "agent-app.h"

namespace agent_app::platform {

namespace {
PositionClickFilter* filter = nullptr;
std::thread fontConfiguration;
}  // namespace

void prepareGraphics() {
  // Nothing of the agent draws with OpenGL, but the first translucent window
  // (the pop-up) would make the X11 back end load GLX and with it Mesa's
  // software renderer: about 55 MB of libraries mapped into the process for
  // nothing. A setting of the person's own is kept.
  if (qEnvironmentVariableIsEmpty("QT_XCB_GL_INTEGRATION")) qputenv("QT_XCB_GL_INTEGRATION", "none");
  // Loading the font configuration and its caches takes tens of
  // milliseconds; it happens on a helper thread while the application
  // connects to the display, instead of inside the first label built.
  // (fontconfig is thread-safe, and Qt then finds it loaded.)
  fontsNeeded();
  fontConfiguration = std::thread([] { FcInit(); });
}

void fontsNeeded() {
  if (fontConfiguration.joinable()) fontConfiguration.join();
}

void installPositionSource(QApplication& app) {
  if (!filter) filter = new PositionClickFilter(&app);
  app.installEventFilter(filter);
}

void removePositionSource(QApplication& app) {
  if (!filter) return;
  app.removeEventFilter(filter);
  delete filter;
  filter = nullptr;
}

}  // namespace agent_app::platform
