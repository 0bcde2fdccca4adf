// Windows: the pop-up is placed by coordinates.
#include "ui-agent/tray/popup-surface.h"

namespace popup_surface {

void prepareApplication() {}

Kind kind() {
  return Kind::Positioned;
}

void markLayer(QWindow*, const layer_placement::Placement&) {}

}  // namespace popup_surface
