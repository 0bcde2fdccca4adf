// Linux: the desktop's colour scheme from the settings portal, then the
// platform palette.
#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QStyle>

#include <functional>
#include <optional>
#include <utility>

#include "logging/logger.h"
#include "ui-agent/tray/tray-theme.h"

namespace {

const char* const kPortalService = "org.freedesktop.portal.Desktop";
const char* const kPortalPath = "/org/freedesktop/portal/desktop";
const char* const kSettings = "org.freedesktop.portal.Settings";
const char* const kAppearance = "org.freedesktop.appearance";
const char* const kColorScheme = "color-scheme";
const char* const kContrast = "contrast";

// The portal wraps the value in one or two variants, depending on its
// version; `key`'s number, or nothing for a value of another type.
std::optional<uint> numberFromMessageValue(QVariant v, const char* key) {
  for (int depth = 0; depth < 4 && v.userType() == qMetaTypeId<QDBusVariant>(); ++depth)
    v = v.value<QDBusVariant>().variant();
  bool ok = false;
  const uint value = v.toUInt(&ok);
  if (!ok || (v.userType() != QMetaType::UInt && v.userType() != QMetaType::Int)) {
    LOG_WARN(vlog::kDefaultComponent, "settings portal: %s of type [%s] ignored", key,
             v.isValid() ? v.typeName() : "none");
    return std::nullopt;
  }
  return value;
}

// Receives the portal's SettingChanged signal (a D-Bus connection needs a
// slot of the signal's signature) and hands it to the watcher.
class PortalListener : public QObject {
  Q_OBJECT
 public:
  PortalListener(std::function<void(const QString&, const QString&, const QVariant&)> onChange,
                 QObject* parent)
      : QObject(parent), onChange_(std::move(onChange)) {}

 public slots:
  void onSettingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value) {
    onChange_(nameSpace, key, value.variant());
  }

 private:
  std::function<void(const QString&, const QString&, const QVariant&)> onChange_;
};

}  // namespace

struct PanelThemeWatcher::Impl {
  tray_theme::Scheme portal = tray_theme::Scheme::Unknown;
  bool portalContrast = false;
  // The palette's verdict, worked out once per palette and style (the icon
  // is asked for at every status, and the style's standard palette is built
  // afresh on each call).
  mutable bool paletteKnown = false;
  mutable tray_theme::Scheme palette = tray_theme::Scheme::Unknown;
  mutable const QStyle* paletteStyle = nullptr;

  // A setting the portal announced: true when it changed what the watcher knows.
  bool applySetting(const QString& nameSpace, const QString& key, const QVariant& value) {
    if (nameSpace != QLatin1String(kAppearance)) return false;
    if (key == QLatin1String(kColorScheme)) {
      const std::optional<uint> n = numberFromMessageValue(value, kColorScheme);
      const tray_theme::Scheme scheme = n ? tray_theme::scheme_from_portal(*n) : tray_theme::Scheme::Unknown;
      if (scheme == portal) return false;
      portal = scheme;
      return true;
    }
    if (key == QLatin1String(kContrast)) {
      const std::optional<uint> n = numberFromMessageValue(value, kContrast);
      const bool high = n && tray_theme::high_contrast_from_portal(*n);
      if (high == portalContrast) return false;
      portalContrast = high;
      return true;
    }
    return false;
  }
};

PanelThemeWatcher::PanelThemeWatcher(QObject* parent) : PanelThemeWatcher(QString(), parent) {}

PanelThemeWatcher::PanelThemeWatcher(const QString& busConnectionName, QObject* parent)
    : QObject(parent), d(new Impl) {
  if (qApp) qApp->installEventFilter(this);
  QDBusConnection bus =
      busConnectionName.isEmpty() ? QDBusConnection::sessionBus() : QDBusConnection(busConnectionName);
  if (!bus.isConnected()) {
    LOG_INFO(vlog::kDefaultComponent, "no session bus: the panel colour follows the palette");
    return;
  }
  bus.connect(QString::fromLatin1(kPortalService), QString::fromLatin1(kPortalPath),
              QString::fromLatin1(kSettings), QStringLiteral("SettingChanged"),
              new PortalListener(
                  [this](const QString& nameSpace, const QString& key, const QVariant& value) {
                    if (d->applySetting(nameSpace, key, value)) emit changed();
                  },
                  this),
              SLOT(onSettingChanged(QString, QString, QDBusVariant)));
  // Both keys asked without waiting: the answers arrive through the event loop.
  for (const char* key : {kColorScheme, kContrast}) {
    QDBusMessage read =
        QDBusMessage::createMethodCall(QString::fromLatin1(kPortalService), QString::fromLatin1(kPortalPath),
                                       QString::fromLatin1(kSettings), QStringLiteral("Read"));
    read << QString::fromLatin1(kAppearance) << QString::fromLatin1(key);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(read, 3000), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, key](QDBusPendingCallWatcher* call) {
      call->deleteLater();
      QDBusPendingReply<QVariant> reply = *call;
      if (reply.isError()) {
        LOG_INFO(vlog::kDefaultComponent, "settings portal: no %s (%s)", key,
                 qUtf8Printable(reply.error().name()));
        return;
      }
      if (d->applySetting(QString::fromLatin1(kAppearance), QString::fromLatin1(key), reply.value()))
        emit changed();
    });
  }
}

PanelThemeWatcher::~PanelThemeWatcher() = default;

tray_theme::Scheme PanelThemeWatcher::portalScheme() const {
  return d->portal;
}

bool PanelThemeWatcher::highContrast() const {
  return d->portalContrast || tray_theme::is_high_contrast_theme_name(qEnvironmentVariable("GTK_THEME"));
}

bool PanelThemeWatcher::isSystemDarkTheme() const {
  const QStyle* style =
      qobject_cast<QApplication*>(QCoreApplication::instance()) ? QApplication::style() : nullptr;
  if (!d->paletteKnown || style != d->paletteStyle) {
    d->palette = style ? tray_theme::scheme_from_palette(QGuiApplication::palette(), style->standardPalette())
                       : tray_theme::Scheme::Unknown;
    d->paletteStyle = style;
    d->paletteKnown = true;
  }
  return tray_theme::is_dark(d->portal, d->palette);
}

bool PanelThemeWatcher::eventFilter(QObject* watched, QEvent* event) {
  if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
    d->paletteKnown = false;
    emit changed();
  }
  return QObject::eventFilter(watched, event);
}

#include "tray-theme-posix.moc"
