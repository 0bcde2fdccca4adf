#pragma once
// What the windowing system lets the tray pop-up be, and the Wayland surface
// for it.
//
// On X11 (and Windows) the pop-up is a frameless window placed by
// coordinates. A Wayland compositor places windows itself: a tiling one
// makes an ordinary window a full-screen tile. Where the compositor has the
// layer-shell protocol (sway and the other wlroots compositors, KWin), the
// pop-up is a layer surface anchored at the screen corner or edge nearest
// the activation point (layer-placement.h), with the keyboard on demand;
// elsewhere (GNOME) a small fixed-size framed window.
//
// Qt 5 gives one shell to every window of a process. On Wayland the agent
// therefore runs its own shell integration, which makes the windows marked
// by mark_layer() (and the menus and tool tips opened from them) layer
// surfaces and every other window an ordinary xdg-shell window.

#include <QPoint>

#include "ui-agent/tray/layer-placement.h"

class QWidget;
class QWindow;

namespace popup_surface {

enum class Kind {
  Positioned,  // a frameless pop-up placed by coordinates (X11, Windows)
  Layer,       // a layer surface anchored to the screen's edges (Wayland with layer-shell)
  Framed,      // a small fixed-size framed window (Wayland without layer-shell)
};

// Before the application object: on Wayland, the agent's shell integration
// unless the person chose a shell (QT_WAYLAND_SHELL_INTEGRATION).
void prepare_application();

// Which of the three the pop-up is on this display.
Kind kind();

// Marks `window` (not yet shown) as a layer surface at `placement` on
// `screen`'s output, with the keyboard on demand. Only for Kind::Layer.
void mark_layer(QWindow* window, const layer_placement::Placement& placement);

// Kind::Layer: makes `popup` (a top-level widget, not shown) a layer surface
// for an activation at `anchor`, on the screen holding the point (else the
// primary one), and moves it where that surface appears, so that menus
// opened from it find their place. False (nothing done) for the other kinds.
bool place_on_layer(QWidget* popup, QPoint anchor);

// Kind::Layer: hides `popup` when the keyboard focus leaves it for another
// program or window (a click outside it), unless a menu of its own took it.
// The compositor tells the agent of no press outside its own surfaces.
void close_on_focus_loss(QWidget* popup);

}  // namespace popup_surface
