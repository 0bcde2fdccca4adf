#pragma once
// The tray icon's picture: the base name for the tray state, and the
// panel's colour deciding between the light picture (a dark panel) and the
// dark one ("_dark", a light panel).
//
// Windows: the taskbar theme value of the registry (see os-services.h).
// Linux: the desktop's colour scheme, org.freedesktop.appearance
// color-scheme read through the settings portal over D-Bus; when the portal
// has no preference, the platform's palette; dark when neither tells.
//
// The same watcher tells whether the desktop asks for high contrast:
// Windows' high-contrast setting; on Linux the portal's org.freedesktop.appearance
// contrast (1) or a high-contrast GTK theme (GTK_THEME).

#include <QObject>
#include <QPalette>
#include <QString>

#include <memory>

#include "ui-agent/core/tray-status.h"

namespace tray_theme {

enum class Scheme { Unknown, Dark, Light };

// The portal's color-scheme value: 1 prefers dark, 2 prefers light, anything
// else (0 "no preference", other numbers) tells nothing.
Scheme scheme_from_portal(quint32 value);
// The application palette against the style's own: the same palette means
// the platform gave none (unknown); otherwise a dark window colour is dark.
Scheme scheme_from_palette(const QPalette& application, const QPalette& styleStandard);
// The portal first, then the palette, dark when neither knows.
bool is_dark(Scheme portal, Scheme palette);

// The portal's contrast value: 1 asks for high contrast, anything else not.
bool high_contrast_from_portal(quint32 value);
// A theme name that is a high-contrast theme: "HighContrast",
// "HighContrastInverse", "Breeze High Contrast", "Adwaita-hc", "Adwaita:hc".
bool is_high_contrast_theme_name(const QString& name);

// The picture for `status` on a panel: the base name on a dark panel, with
// "_dark" appended on a light one.
QString icon_name(TrayStatus status, bool darkPanel);

}  // namespace tray_theme

// Follows the panel's colour: isSystemDarkTheme() answers from the latest
// known values and changed() is emitted when the desktop's scheme or the
// palette changes.
class PanelThemeWatcher : public QObject {
  Q_OBJECT
 public:
  explicit PanelThemeWatcher(QObject* parent = nullptr);
  // Linux: watches the portal on the bus connection of that name, opened
  // beforehand (tests give a private bus); an empty name is the session bus.
  // Windows: the name is ignored.
  PanelThemeWatcher(const QString& busConnectionName, QObject* parent);
  ~PanelThemeWatcher() override;

  bool isSystemDarkTheme() const;
  // What the portal said last (Unknown until it answered).
  tray_theme::Scheme portalScheme() const;
  // Whether the desktop asks for high contrast now (changed() when it changes).
  bool highContrast() const;

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Impl;
  std::unique_ptr<Impl> d;
};
