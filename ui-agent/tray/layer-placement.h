#pragma once
// Where the tray pop-up goes on a Wayland compositor with the layer-shell
// protocol. Such a compositor does not let a window place itself; a layer
// surface instead names the screen edges it is anchored to and its distance
// from each. Pure functions, so that every tray position is a row of a test.

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

namespace layer_placement {

struct Placement {
  Qt::Edges anchors;  // the screen edges the surface is anchored to (one per axis)
  QMargins margins;   // its distance from each anchored edge (the others 0)
  QPoint topLeft;     // where that puts it on the screen, panels' reserved room left out

  bool operator==(const Placement& o) const {
    return anchors == o.anchors && margins == o.margins && topLeft == o.topLeft;
  }
};

// The pop-up of `size` for an activation at `anchor` on `screen` (its whole
// geometry; a point outside it counts as its nearest point inside): one pixel
// off the screen edge nearest the point (the panel holding the icon; a
// compositor keeps the surface clear of the room a panel reserves), centred
// on the point along that edge, kept one pixel inside the screen, and
// anchored to the corner of the half the point is in, so that the margins
// stay small. Ties go to the bottom, then the top, right and left.
Placement anchored_at(const QRect& screen, const QSize& size, QPoint anchor);

// A window opened from the pop-up (its menu, a tool tip) at `offset` from
// the pop-up's top-left corner: anchored to the same edges as `parent`, so
// that it keeps its place beside the pop-up whatever room panels reserve.
// Margins never go below 0.
Placement nested_in(const Placement& parent, const QSize& parentSize, QPoint offset, const QSize& size);

}  // namespace layer_placement
