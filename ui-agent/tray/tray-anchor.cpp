#include "tray/tray-anchor.h"

#include <algorithm>

namespace tray_anchor {

QPoint anchorFor(const Facts& f) {
  if (!f.icon.isEmpty()) return f.icon.center();
  const auto onScreen = [&f](const QPoint& p) {
    return std::any_of(f.screens.begin(), f.screens.end(), [&p](const QRect& s) { return s.contains(p); });
  };
  if (f.activation && !f.activation->isNull() && onScreen(*f.activation)) return *f.activation;
  if (f.pointer) return *f.pointer;
  if (f.screens.isEmpty()) return f.activation.value_or(QPoint());
  const QRect& primary = f.screens.first();
  if (!f.activation) return primary.center();
  // Kept on the primary screen: a peer's (-2^31, 2^31 - 1) is a point too.
  return QPoint(std::clamp(f.activation->x(), primary.left(), primary.right()),
                std::clamp(f.activation->y(), primary.top(), primary.bottom()));
}

}  // namespace tray_anchor
