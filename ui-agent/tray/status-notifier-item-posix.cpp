// Linux: the item over QtDBus, its menu through libdbusmenu-qt5's exporter.
#include <unistd.h>

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QImage>
#include <QMenu>
#include <QVector>
#include <QtEndian>

#include <dbusmenuexporter.h>

#include "logging/logger.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/status-notifier-item.h"

namespace {

const char* const kWatcherService = "org.kde.StatusNotifierWatcher";
const char* const kWatcherPath = "/StatusNotifierWatcher";
const char* const kWatcherInterface = "org.kde.StatusNotifierWatcher";
const char* const kItemPath = "/StatusNotifierItem";
const char* const kMenuPath = "/MenuBar";
// A watcher that does not answer within this long counts as no tray.
const int kWatcherTimeoutMs = 5000;

}  // namespace

// One picture as the protocol carries it: ARGB32 in network byte order.
struct SniPixmap {
  int width = 0;
  int height = 0;
  QByteArray bytes;
};
using SniPixmapList = QVector<SniPixmap>;
struct SniToolTip {
  QString iconName;
  SniPixmapList pixmaps;
  QString title;
  QString text;
};
Q_DECLARE_METATYPE(SniPixmap)
Q_DECLARE_METATYPE(SniPixmapList)
Q_DECLARE_METATYPE(SniToolTip)

QDBusArgument& operator<<(QDBusArgument& arg, const SniPixmap& p) {
  arg.beginStructure();
  arg << p.width << p.height << p.bytes;
  arg.endStructure();
  return arg;
}
const QDBusArgument& operator>>(const QDBusArgument& arg, SniPixmap& p) {
  arg.beginStructure();
  arg >> p.width >> p.height >> p.bytes;
  arg.endStructure();
  return arg;
}
QDBusArgument& operator<<(QDBusArgument& arg, const SniToolTip& t) {
  arg.beginStructure();
  arg << t.iconName << t.pixmaps << t.title << t.text;
  arg.endStructure();
  return arg;
}
const QDBusArgument& operator>>(const QDBusArgument& arg, SniToolTip& t) {
  arg.beginStructure();
  arg >> t.iconName >> t.pixmaps >> t.title >> t.text;
  arg.endStructure();
  return arg;
}

// org.kde.StatusNotifierItem on the item's object.
class StatusNotifierAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
  Q_PROPERTY(QString Category READ category)
  Q_PROPERTY(QString Id READ id)
  Q_PROPERTY(QString Title READ title)
  Q_PROPERTY(QString Status READ status)
  Q_PROPERTY(int WindowId READ windowId)
  Q_PROPERTY(QString IconThemePath READ none)
  Q_PROPERTY(QString IconName READ none)
  Q_PROPERTY(SniPixmapList IconPixmap READ iconPixmap)
  Q_PROPERTY(QString OverlayIconName READ none)
  Q_PROPERTY(SniPixmapList OverlayIconPixmap READ noPixmap)
  Q_PROPERTY(QString AttentionIconName READ none)
  Q_PROPERTY(SniPixmapList AttentionIconPixmap READ noPixmap)
  Q_PROPERTY(QString AttentionMovieName READ none)
  Q_PROPERTY(SniToolTip ToolTip READ toolTip)
  Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
  Q_PROPERTY(QDBusObjectPath Menu READ menu)

 public:
  explicit StatusNotifierAdaptor(StatusNotifierItem* item) : QDBusAbstractAdaptor(item), item_(item) {}

  QString category() const { return QStringLiteral("ApplicationStatus"); }
  QString id() const { return QStringLiteral("nimbra-backup"); }
  QString title() const { return string_display::text(Str::app_name); }
  QString status() const { return QStringLiteral("Active"); }
  int windowId() const { return 0; }
  QString none() const { return QString(); }
  SniPixmapList iconPixmap() const { return pixmaps_; }
  SniPixmapList noPixmap() const { return {}; }
  SniToolTip toolTip() const { return toolTip_; }
  bool itemIsMenu() const { return false; }
  QDBusObjectPath menu() const { return QDBusObjectPath(QLatin1String(kMenuPath)); }

  void setIcon(const QIcon& icon) {
    pixmaps_.clear();
    for (const QSize& size : icon.availableSizes()) {
      const QImage image = icon.pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32);
      SniPixmap p;
      p.width = image.width();
      p.height = image.height();
      p.bytes.resize(image.width() * image.height() * 4);
      auto* out = reinterpret_cast<quint32*>(p.bytes.data());
      for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const quint32*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) *out++ = qToBigEndian(line[x]);
      }
      pixmaps_ << p;
    }
    emit NewIcon();
  }

  void setToolTip(const QString& text) {
    const int lineEnd = text.indexOf(QLatin1Char('\n'));
    toolTip_.title = lineEnd < 0 ? text : text.left(lineEnd);
    toolTip_.text = lineEnd < 0 ? QString() : text.mid(lineEnd + 1);
    emit NewToolTip();
  }

 public slots:
  void Activate(int x, int y) {
    LOG_DEBUG(vlog::kDefaultComponent, "tray: the panel reports a click at (%d, %d)", x, y);
    emit item_->activated(QPoint(x, y));
  }
  void SecondaryActivate(int, int) {}
  void ContextMenu(int x, int y) { emit item_->contextMenuRequested(QPoint(x, y)); }
  void Scroll(int, const QString&) {}

 signals:
  void NewTitle();
  void NewIcon();
  void NewAttentionIcon();
  void NewOverlayIcon();
  void NewToolTip();
  void NewStatus(const QString& status);

 private:
  StatusNotifierItem* item_;
  SniPixmapList pixmaps_;
  SniToolTip toolTip_;
};

namespace {

QDBusConnection busNamed(const QString& connection) {
  return connection.isEmpty() ? QDBusConnection::sessionBus() : QDBusConnection(connection);
}

StatusNotifierAdaptor* adaptorOf(QObject* adaptor) {
  return static_cast<StatusNotifierAdaptor*>(adaptor);
}

const char* hostName(StatusNotifierItem::Host host) {
  switch (host) {
    case StatusNotifierItem::Host::Unknown:
      return "unknown";
    case StatusNotifierItem::Host::Absent:
      return "absent";
    case StatusNotifierItem::Host::Present:
      return "present";
  }
  return "?";
}

}  // namespace

StatusNotifierItem::StatusNotifierItem(QObject* parent, const QString& connection)
    : QObject(parent), connection_(connection) {
  qDBusRegisterMetaType<SniPixmap>();
  qDBusRegisterMetaType<SniPixmapList>();
  qDBusRegisterMetaType<SniToolTip>();
  adaptor_ = new StatusNotifierAdaptor(this);
  QDBusConnection bus = busNamed(connection_);
  if (!bus.isConnected()) {
    LOG_INFO(vlog::kDefaultComponent, "tray: no session bus, so no StatusNotifierItem");
    host_ = Host::Absent;
    return;
  }
  const QString name = QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(::getpid());
  service_ = bus.registerService(name) ? name : bus.baseService();
  if (!bus.registerObject(QLatin1String(kItemPath), this, QDBusConnection::ExportAdaptors)) {
    LOG_WARN(vlog::kDefaultComponent, "tray: cannot export the StatusNotifierItem: %s",
             qUtf8Printable(bus.lastError().message()));
    service_.clear();
    host_ = Host::Absent;
    return;
  }
  // The exporter makes itself a child of the menu and ends with it.
  exported_ = new QMenu();
  new DBusMenuExporter(QLatin1String(kMenuPath), exported_, bus);
  auto* watcher = new QDBusServiceWatcher(QLatin1String(kWatcherService), bus,
                                          QDBusServiceWatcher::WatchForOwnerChange, this);
  connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString&, const QString&, const QString& owner) {
            ++generation_;
            LOG_INFO(vlog::kDefaultComponent, "tray: StatusNotifierWatcher %s",
                     owner.isEmpty() ? "gone" : "appeared");
            if (owner.isEmpty()) {
              setHost(Host::Absent);
            } else {
              registerWithWatcher();
            }
          });
  for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
    bus.connect(QLatin1String(kWatcherService), QLatin1String(kWatcherPath), QLatin1String(kWatcherInterface),
                QLatin1String(signal), this, SLOT(askHost()));
  askWatcher();
}

StatusNotifierItem::~StatusNotifierItem() {
  delete exported_;  // and its exporter
  if (service_.isEmpty()) return;
  QDBusConnection bus = busNamed(connection_);
  bus.unregisterObject(QLatin1String(kItemPath));
  if (service_ != bus.baseService()) bus.unregisterService(service_);
}

void StatusNotifierItem::setHost(Host host) {
  if (host == host_) return;
  LOG_INFO(vlog::kDefaultComponent, "tray: StatusNotifierItem host %s", hostName(host));
  host_ = host;
  emit hostChanged();
}

void StatusNotifierItem::askWatcher() {
  QDBusConnection bus = busNamed(connection_);
  const QDBusMessage ask =
      QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                     QStringLiteral("/org/freedesktop/DBus"),
                                     QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"))
      << QLatin1String(kWatcherService);
  const int generation = generation_;
  auto* call = new QDBusPendingCallWatcher(bus.asyncCall(ask, kWatcherTimeoutMs), this);
  connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, generation]() {
    call->deleteLater();
    if (generation != generation_) return;
    const QDBusPendingReply<bool> reply = *call;
    if (!reply.isError() && reply.value()) {
      registerWithWatcher();
    } else {
      setHost(Host::Absent);
    }
  });
}

void StatusNotifierItem::registerWithWatcher() {
  QDBusConnection bus = busNamed(connection_);
  const QDBusMessage call =
      QDBusMessage::createMethodCall(QLatin1String(kWatcherService), QLatin1String(kWatcherPath),
                                     QLatin1String(kWatcherInterface),
                                     QStringLiteral("RegisterStatusNotifierItem"))
      << service_;
  const int generation = generation_;
  auto* pending = new QDBusPendingCallWatcher(bus.asyncCall(call, kWatcherTimeoutMs), this);
  connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending, generation]() {
    pending->deleteLater();
    if (generation != generation_) return;
    if (pending->isError()) {
      LOG_WARN(vlog::kDefaultComponent, "tray: the StatusNotifierWatcher refused the item: %s",
               qUtf8Printable(pending->error().message()));
      setHost(Host::Absent);
      return;
    }
    askHost();
  });
}

void StatusNotifierItem::askHost() {
  if (service_.isEmpty()) return;
  QDBusConnection bus = busNamed(connection_);
  const QDBusMessage get =
      QDBusMessage::createMethodCall(QLatin1String(kWatcherService), QLatin1String(kWatcherPath),
                                     QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"))
      << QLatin1String(kWatcherInterface) << QStringLiteral("IsStatusNotifierHostRegistered");
  const int generation = generation_;
  auto* pending = new QDBusPendingCallWatcher(bus.asyncCall(get, kWatcherTimeoutMs), this);
  connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending, generation]() {
    pending->deleteLater();
    if (generation != generation_) return;
    const QDBusPendingReply<QDBusVariant> reply = *pending;
    if (reply.isError()) {
      LOG_WARN(vlog::kDefaultComponent,
               "tray: the StatusNotifierWatcher does not say whether a panel shows items: %s",
               qUtf8Printable(reply.error().message()));
      setHost(Host::Absent);
      return;
    }
    const QVariant value = reply.value().variant();
    if (value.userType() != QMetaType::Bool) {
      LOG_WARN(vlog::kDefaultComponent, "tray: IsStatusNotifierHostRegistered of type [%s] taken as no panel",
               value.isValid() ? value.typeName() : "none");
      setHost(Host::Absent);
      return;
    }
    setHost(value.toBool() ? Host::Present : Host::Absent);
  });
}

void StatusNotifierItem::setIcon(const QIcon& icon) {
  adaptorOf(adaptor_)->setIcon(icon);
}

void StatusNotifierItem::setToolTip(const QString& toolTip) {
  adaptorOf(adaptor_)->setToolTip(toolTip);
}

void StatusNotifierItem::setMenu(QMenu* menu) {
  if (!exported_) return;
  // The entries stay the menu's own (shared, not copied): their states
  // reach the panel as they change.
  for (QAction* action : exported_->actions()) exported_->removeAction(action);
  if (menu) exported_->addActions(menu->actions());
}

#include "status-notifier-item-posix.moc"
