// Linux: no graphics back end to choose and no global mouse hook: the
// presses on the agent's own windows feed the bus (a pop-up grabs the mouse,
// so a press outside it arrives here too).
#include <fontconfig/fontconfig.h>

#include <thread>

#include "agent-app.h"

namespace agent_app::platform {

namespace {
PositionClickFilter* filter = nullptr;
std::thread fontConfiguration;
}  // namespace

void prepareGraphics() {
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
