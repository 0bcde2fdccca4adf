#include "ui-agent/tray/tray-theme.h"

namespace tray_theme {

Scheme scheme_from_portal(quint32 value) {
  switch (value) {
    case 1:
      return Scheme::Dark;
    case 2:
      return Scheme::Light;
    default:
      return Scheme::Unknown;
  }
}

Scheme scheme_from_palette(const QPalette& application, const QPalette& styleStandard) {
  const QColor window = application.color(QPalette::Active, QPalette::Window);
  if (window == styleStandard.color(QPalette::Active, QPalette::Window) &&
      application.color(QPalette::Active, QPalette::WindowText) ==
          styleStandard.color(QPalette::Active, QPalette::WindowText))
    return Scheme::Unknown;
  return window.lightness() < 128 ? Scheme::Dark : Scheme::Light;
}

bool is_dark(Scheme portal, Scheme palette) {
  if (portal != Scheme::Unknown) return portal == Scheme::Dark;
  if (palette != Scheme::Unknown) return palette == Scheme::Dark;
  return true;
}

bool high_contrast_from_portal(quint32 value) {
  return value == 1;
}

bool is_high_contrast_theme_name(const QString& name) {
  QString n = name.toLower();
  n.remove(QLatin1Char(' ')).remove(QLatin1Char('_'));
  return n.contains(QLatin1String("highcontrast")) || n.endsWith(QLatin1String("-hc")) ||
         n.endsWith(QLatin1String(":hc"));
}

QString icon_name(TrayStatus status, bool darkPanel) {
  const QString base = QString::fromLatin1(tray_status::icon_name(status));
  return darkPanel ? base : base + QStringLiteral("_dark");
}

}  // namespace tray_theme
