#include "ui-agent/tray/tray-placement.h"

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

}  // namespace tray_placement
