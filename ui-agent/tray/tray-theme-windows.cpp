// Windows: the taskbar theme value of the registry and the high-contrast
// setting, read afresh every time; a change of the system's colours (Qt
// turns it into a palette change) is told by changed().
#include <windows.h>

#include <QApplication>
#include <QEvent>

#include "ui-agent/platform/os-services.h"
#include "ui-agent/tray/tray-theme.h"

struct PanelThemeWatcher::Impl {};

PanelThemeWatcher::PanelThemeWatcher(QObject* parent) : QObject(parent), d(new Impl) {
  if (qApp) qApp->installEventFilter(this);
}

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

bool PanelThemeWatcher::highContrast() const {
  HIGHCONTRASTW hc{};
  hc.cbSize = sizeof(hc);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(hc), &hc, 0) && (hc.dwFlags & HCF_HIGHCONTRASTON);
}

bool PanelThemeWatcher::eventFilter(QObject* watched, QEvent* event) {
  if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) emit changed();
  return QObject::eventFilter(watched, event);
}
