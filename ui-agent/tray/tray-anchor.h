#pragma once
// Which point the tray pop-up is anchored at (tray-placement.h then places
// it inside the work area). A pure function, so that every kind of panel is
// a row of a test.
//
// XEmbed trays tell the icon's place; StatusNotifierItem panels do not, but
// most send the point of the click with it (Activate), some send (0, 0); on
// X11 (and Windows) the pointer is where the person just clicked.

#include <QPoint>
#include <QRect>
#include <QVector>

#include <optional>

namespace tray_anchor {

struct Facts {
  QRect icon;                        // the icon's place; empty when the tray does not tell
  std::optional<QPoint> activation;  // the point a panel sent with the click
  std::optional<QPoint> pointer;     // the pointer, where the window system tells it
  QVector<QRect> screens;            // the screens' geometries; the first is the primary
  QRect workArea;                    // the primary screen's work area; empty: the whole screen
};

// The icon's centre when its place is on a screen; else the panel's point
// when it lies on a screen and is not (0, 0); else the pointer; else the
// panel's point moved onto the primary screen; else, where the notification
// area sits, the middle of the taskbar at the end of the work area: the side
// where a taskbar cuts the work area from the screen (bottom, top, right,
// left, in that order), the bottom-right corner when none does. Some shells
// (Wine's tray in an XEmbed panel) tell no place for the icon at all.
QPoint anchor_for(const Facts& facts);
// Whether the tray told a place for the icon that lies on a screen.
bool icon_on_screen(const Facts& facts);

}  // namespace tray_anchor
