#include "ui-agent/tray/tray-anchor.h"

#include <algorithm>

namespace tray_anchor {

namespace {

QPoint taskbarCorner(const QRect& s, const QRect& area) {
  const QRect& a = area.isEmpty() ? s : area;
  if (a.bottom() < s.bottom()) return {a.right(), (a.bottom() + 1 + s.bottom()) / 2};
  if (a.top() > s.top()) return {a.right(), (s.top() + a.top()) / 2};
  if (a.right() < s.right()) return {(a.right() + 1 + s.right()) / 2, a.bottom()};
  if (a.left() > s.left()) return {(s.left() + a.left()) / 2, a.bottom()};
  return {a.right(), a.bottom()};
}

}  // namespace

bool icon_on_screen(const Facts& f) {
  return !f.icon.isEmpty() &&
         (f.screens.isEmpty() || std::any_of(f.screens.begin(), f.screens.end(),
                                             [&f](const QRect& s) { return s.intersects(f.icon); }));
}

QPoint anchor_for(const Facts& f) {
  const auto onScreen = [&f](const QPoint& p) {
    return std::any_of(f.screens.begin(), f.screens.end(), [&p](const QRect& s) { return s.contains(p); });
  };
  if (icon_on_screen(f)) return f.icon.center();
  if (f.activation && !f.activation->isNull() && onScreen(*f.activation)) return *f.activation;
  if (f.pointer) return *f.pointer;
  if (f.screens.isEmpty()) return f.activation.value_or(QPoint());
  const QRect& primary = f.screens.first();
  if (!f.activation) return taskbarCorner(primary, f.workArea);
  // Kept on the primary screen: a peer's (-2^31, 2^31 - 1) is a point too.
  return QPoint(std::clamp(f.activation->x(), primary.left(), primary.right()),
                std::clamp(f.activation->y(), primary.top(), primary.bottom()));
}

}  // namespace tray_anchor
