// Windows: the shell's notification area is the only tray (QSystemTrayIcon);
// there is no StatusNotifierWatcher to register with, so the item never has
// a host.
#include "ui-agent/tray/status-notifier-item.h"

StatusNotifierItem::StatusNotifierItem(QObject* parent, const QString& connection)
    : QObject(parent), host_(Host::Absent), connection_(connection) {}

StatusNotifierItem::~StatusNotifierItem() = default;

void StatusNotifierItem::setIcon(const QIcon&) {}

void StatusNotifierItem::setToolTip(const QString&) {}

void StatusNotifierItem::setMenu(QMenu*) {}

void StatusNotifierItem::setHost(Host host) {
  host_ = host;
}

void StatusNotifierItem::askWatcher() {}

void StatusNotifierItem::registerWithWatcher() {}

void StatusNotifierItem::askHost() {}
