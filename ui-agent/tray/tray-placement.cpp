#include "tray/tray-placement.h"

#include <algorithm>

namespace tray_placement {

Placement place(const QRect& available, const QSize& size, const QPoint& anchor, int side) {
  const QRect& a = available;
  int x = anchor.x() - size.width() / 2;
  int y = anchor.y();
  if (side == TopEdge || anchor.y() < a.y()) {
    y = a.y() + 1;
    side = TopEdge;
  }
  if (x + size.width() > a.x() + a.width()) x = a.x() + a.width() - size.width() - 1;
  if (x < a.x()) x = a.x() + 1;
  if (side != AboveAnchor && y + size.height() <= a.y() + a.height()) return {QPoint(x, y), side};
  y = std::min(a.bottom(), anchor.y()) - size.height() - 1;
  return {QPoint(x, y), AboveAnchor};
}

QPoint anchor(const QRect& icon, const std::optional<QPoint>& press, const QRect& screen,
              const QRect& available) {
  if (icon.isValid() && !icon.isEmpty() && screen.intersects(icon)) return icon.center();
  if (press) return *press;
  const QRect& a = available;
  const QRect& s = screen;
  if (a.bottom() < s.bottom()) return {a.right(), (a.bottom() + 1 + s.bottom()) / 2};
  if (a.top() > s.top()) return {a.right(), (s.top() + a.top()) / 2};
  if (a.right() < s.right()) return {(a.right() + 1 + s.right()) / 2, a.bottom()};
  if (a.left() > s.left()) return {(s.left() + a.left()) / 2, a.bottom()};
  return {a.right(), a.bottom()};
}

}  // namespace tray_placement
