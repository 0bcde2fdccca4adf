#include "ui-agent/tray/layer-placement.h"

#include <algorithm>

namespace layer_placement {

namespace {

// The start of a span of `length` centred on `centre`, kept one pixel inside
// [low, high] (inclusive ends); from the low end when it is too long.
int centredInside(int centre, int length, int low, int high) {
  const int start = centre - length / 2;
  return std::max(low + 1, std::min(start, high - length));
}

}  // namespace

Placement anchored_at(const QRect& screen, const QSize& size, QPoint anchor) {
  const QPoint p(std::clamp(anchor.x(), screen.left(), screen.right()),
                 std::clamp(anchor.y(), screen.top(), screen.bottom()));
  const int toLeft = p.x() - screen.left(), toRight = screen.right() - p.x();
  const int toTop = p.y() - screen.top(), toBottom = screen.bottom() - p.y();
  const int nearest = std::min({toLeft, toRight, toTop, toBottom});

  Placement out;
  int x = 0, y = 0;
  if (toBottom == nearest || toTop == nearest) {
    // A panel along the bottom or the top.
    y = toBottom == nearest ? screen.bottom() - size.height() : screen.top() + 1;
    x = centredInside(p.x(), size.width(), screen.left(), screen.right());
  } else {
    // A panel along a side.
    x = toRight == nearest ? screen.right() - size.width() : screen.left() + 1;
    y = centredInside(p.y(), size.height(), screen.top(), screen.bottom());
  }
  const bool bottom = toBottom == nearest || (toTop != nearest && p.y() > screen.center().y());
  const bool right = toRight == nearest || (toLeft != nearest && p.x() > screen.center().x());
  out.anchors = (bottom ? Qt::BottomEdge : Qt::TopEdge) | (right ? Qt::RightEdge : Qt::LeftEdge);
  if (bottom)
    out.margins.setBottom(screen.bottom() - (y + size.height() - 1));
  else
    out.margins.setTop(y - screen.top());
  if (right)
    out.margins.setRight(screen.right() - (x + size.width() - 1));
  else
    out.margins.setLeft(x - screen.left());
  out.topLeft = QPoint(x, y);
  return out;
}

Placement nested_in(const Placement& parent, const QSize& parentSize, QPoint offset, const QSize& size) {
  Placement out;
  out.anchors = parent.anchors;
  const QMargins& m = parent.margins;
  if (parent.anchors & Qt::RightEdge)
    out.margins.setRight(std::max(0, m.right() + parentSize.width() - offset.x() - size.width()));
  else
    out.margins.setLeft(std::max(0, m.left() + offset.x()));
  if (parent.anchors & Qt::BottomEdge)
    out.margins.setBottom(std::max(0, m.bottom() + parentSize.height() - offset.y() - size.height()));
  else
    out.margins.setTop(std::max(0, m.top() + offset.y()));
  out.topLeft = parent.topLeft + offset;
  return out;
}

}  // namespace layer_placement
