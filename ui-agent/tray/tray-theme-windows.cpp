// Windows: the taskbar theme value of the registry, read afresh every time.
#include <QEvent>

#include "os-services.h"
#include "tray/tray-theme.h"

struct PanelThemeWatcher::Impl {};

PanelThemeWatcher::PanelThemeWatcher(QObject* parent) : QObject(parent), d(new Impl) {}

PanelThemeWatcher::PanelThemeWatcher(const QString&, QObject* parent) : PanelThemeWatcher(parent) {}

PanelThemeWatcher::~PanelThemeWatcher() = default;

tray_theme::Scheme PanelThemeWatcher::portalScheme() const {
  return tray_theme::Scheme::Unknown;
}

bool PanelThemeWatcher::isSystemDarkTheme() const {
  unsigned long value = 0;
  const bool has = os_services::read_system_uses_light_theme(value);
  return os_services::is_dark_taskbar(os_services::running_windows_version(), has, value);
}

bool PanelThemeWatcher::eventFilter(QObject* watched, QEvent* event) {
  return QObject::eventFilter(watched, event);
}
