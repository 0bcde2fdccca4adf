// Linux: no OpenGL, the Wayland shell, the screen-reader switch, and no
// global mouse hook: the
// presses on the agent's own windows feed the bus (a pop-up grabs the mouse,
// so a press outside it arrives here too).
#include <fontconfig/fontconfig.h>

#include <QByteArray>
#include <QtGlobal>
#include <thread>

#include "ui-agent/app/agent-app.h"
#include "ui-agent/tray/popup-surface.h"
#include "widgets/accessible-text.h"

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
  // On Wayland the tray pop-up needs a shell of the agent's own.
  popup_surface::prepare_application();
  // Screen readers: Qt looks once, when it starts or when the accessibility
  // bus appears, whether a screen reader is on (on X11 it also takes the
  // bus's root-window property as a yes). A screen reader started after the
  // agent then never saw it. Always on, the agent joins the accessibility
  // bus whenever there is one (its cost is nil while nobody listens). A
  // setting of the person's own is kept.
  accessible_text::install();
  if (qEnvironmentVariableIsEmpty("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"))
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
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
