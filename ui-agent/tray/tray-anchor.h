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
};

// The icon's centre; else the panel's point when it lies on a screen and is
// not (0, 0); else the pointer; else the panel's point moved onto the
// primary screen; else the primary screen's centre.
QPoint anchorFor(const Facts& facts);

}  // namespace tray_anchor
