// Windows: the pop-up is placed by coordinates.
#include "ui-agent/tray/popup-surface.h"

namespace popup_surface {

void prepare_application() {}

Kind kind() {
  return Kind::Positioned;
}

void mark_layer(QWindow*, const layer_placement::Placement&) {}

}  // namespace popup_surface
