// Linux: no graphics back end to choose and no global mouse hook: the
// presses on the agent's own windows feed the bus (a pop-up grabs the mouse,
// so a press outside it arrives here too).
#include "agent-app.h"

namespace agent_app::platform {

namespace {
PositionClickFilter* filter = nullptr;
}

void prepareGraphics() {}

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
