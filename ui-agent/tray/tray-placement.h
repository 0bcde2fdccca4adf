#pragma once
// Where the tray pop-up goes, and whether a press falls on it. Pure
// functions, so that every taskbar position is a row of a test.

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tray_placement {

// Which rule placed the pop-up last. A side once taken is kept while the
// pop-up is re-placed on resize.
enum Side : int {
  NotPlaced = 0,    // not yet placed
  TopEdge = 1,      // one pixel below the top of the work area (taskbar at the top)
  AboveAnchor = 2,  // bottom edge one pixel above the anchor or the work area's bottom
};

struct Placement {
  QPoint pos;
  int side = NotPlaced;
};

// The pop-up's top-left corner for a pop-up of `size` anchored at `anchor`
// (the centre of the tray icon) inside the work area `available`, keeping
// `side` when it is already TopEdge or AboveAnchor. Centred on the anchor,
// kept one pixel inside the work area's left and right edges; below the
// anchor when it fits, otherwise above it.
Placement place(const QRect& available, const QSize& size, const QPoint& anchor, int side);

// True when `p` is on the pop-up whose geometry is `geometry`: both bounds
// inclusive, so x + width and y + height (one past the last pixel) still count.
constexpr bool press_inside(const QRect& geometry, const QPoint& p) {
  return geometry.x() <= p.x() && p.x() <= geometry.x() + geometry.width() && geometry.y() <= p.y() &&
         p.y() <= geometry.y() + geometry.height();
}

}  // namespace tray_placement
