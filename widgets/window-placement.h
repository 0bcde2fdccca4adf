#pragma once
// Where the agent's windows open: centred on the screen that holds the
// pointer, whatever the window manager does (some leave new windows at the
// top-left corner).

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

namespace window_placement {

// The top-left corner that centres a window of `size` in the work area
// `area`; a window larger than the area keeps its top-left corner inside it.
QPoint centred_in(const QRect& area, const QSize& size);

// The work area of the screen that holds `point` (the primary screen's when
// none does).
QRect work_area_at(const QPoint& point);

// From now on `window` is centred on the pointer's screen whenever it is
// shown (a show the window system reports, such as a restore, is left alone);
// with `firstShowOnly`, only the first time.
void centre_when_shown(QWidget* window, bool firstShowOnly = false);

// Raises `window` and gives it the keyboard focus where the windowing system
// lets a program do that. On Wayland the compositor alone decides (it
// focuses a window when it maps it) and asking only logs a warning.
void activate(QWidget* window);

}  // namespace window_placement
