#include "notifier/notification-session.h"

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QProcess>

#include "logging/logger.h"

namespace notifier {
namespace {

constexpr int kBusCheckMs = 5000;

QDBusMessage method(const char* name) {
  return QDBusMessage::createMethodCall(kNotificationsService, kNotificationsPath, kNotificationsInterface,
                                        name);
}

QString describe(const QDBusError& e) {
  return e.name().isEmpty() ? QString("no answer") : e.name() + ": " + e.message();
}

}  // namespace

NotificationSession::NotificationSession(const QDBusConnection& bus, QString agent, int linger_ms,
                                         QObject* parent)
    : QObject(parent), bus_(bus), agent_(std::move(agent)) {
  linger_.setSingleShot(true);
  linger_.setInterval(linger_ms);
  connect(&linger_, &QTimer::timeout, this, &NotificationSession::slotLingerOver);
  bus_check_.setInterval(kBusCheckMs);
  connect(&bus_check_, &QTimer::timeout, this, &NotificationSession::slotCheckBus);
}

ShowOutcome NotificationSession::probe(ServerTraits& traits) {
  ShowOutcome o;
  if (!bus_.isConnected()) {
    o.error = "no session bus: " + describe(bus_.lastError());
    return o;
  }
  const QDBusMessage reply = bus_.call(method("GetCapabilities"), QDBus::Block, kCallTimeoutMs);
  if (reply.type() != QDBusMessage::ReplyMessage) {
    o.error = "no notification service on the session bus (" + describe(QDBusError(reply)) + ")";
    return o;
  }
  const QVariantList args = reply.arguments();
  traits = traits_from_capabilities(args.isEmpty() ? QStringList() : args.first().toStringList());
  const QDBusMessage id =
      bus_.call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                               "org.freedesktop.DBus", "GetId"),
                QDBus::Block, kCallTimeoutMs);
  const QString owner =
      bus_.interface() ? bus_.interface()->serviceOwner(kNotificationsService).value() : QString();
  server_ = id.type() == QDBusMessage::ReplyMessage && !id.arguments().isEmpty() && !owner.isEmpty()
                ? id.arguments().first().toString() + ' ' + owner
                : QString();
  o.code = kExitShown;
  return o;
}

bool NotificationSession::subscribe() {
  // Before the first Notify, so that an early click is not missed. The
  // service name makes Qt accept these signals from the service's owner only.
  const bool a = bus_.connect(kNotificationsService, kNotificationsPath, kNotificationsInterface,
                              "ActionInvoked", this, SLOT(slotActionInvoked(uint, QString)));
  const bool c = bus_.connect(kNotificationsService, kNotificationsPath, kNotificationsInterface,
                              "NotificationClosed", this, SLOT(slotNotificationClosed(uint, uint)));
  auto* watcher =
      new QDBusServiceWatcher(kNotificationsService, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
  connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &NotificationSession::slotServiceGone);
  return a && c;
}

ShowOutcome NotificationSession::show(const std::vector<NotifyCall>& calls, uint replaces) {
  ShowOutcome o;
  if (!subscribe()) LOG_WARN(vlog::kDefaultComponent, "cannot follow the notification service's signals");
  uint previous = replaces;
  for (const NotifyCall& c : calls) {
    QDBusMessage m = method("Notify");
    m << c.app_name << QVariant::fromValue<uint>(previous) << c.app_icon << c.summary << c.body << c.actions
      << c.hints << c.expire_timeout;
    const QDBusMessage reply = bus_.call(m, QDBus::Block, kCallTimeoutMs);
    const QVariantList args = reply.arguments();
    if (reply.type() != QDBusMessage::ReplyMessage || args.isEmpty()) {
      o.error = "the notification service refused a notification (" + describe(QDBusError(reply)) + ")";
      LOG_ERROR(vlog::kDefaultComponent, "%s", o.error.toUtf8().constData());
      continue;
    }
    const uint id = args.first().toUInt();
    // A replaced notification is gone from the screen, whatever id the
    // service gives its successor.
    if (previous != 0 && previous != id) open_.remove(previous);
    open_.insert(id);
    if (!c.button_key.isEmpty()) action_keys_.insert(c.button_key);
    previous = id;
    o.last_id = id;
    o.last_kind = c.summary;
    ++o.shown;
  }
  if (o.shown == 0) {
    o.code = calls.empty() ? kExitShown : kExitNoService;
    return o;
  }
  action_keys_.insert(kDefaultActionKey);
  o.code = kExitShown;
  o.error.clear();
  linger_.start();
  bus_check_.start();
  return o;
}

void NotificationSession::slotActionInvoked(uint id, const QString& key) {
  if (!open_.contains(id)) return;  // another program's notification
  if (handedOver_ && handedOver_(id)) {
    // The later run that replaced it acts on it.
    open_.remove(id);
    finishWhenNothingOpen();
    return;
  }
  if (!action_keys_.contains(key)) {
    LOG_WARN(vlog::kDefaultComponent, "unknown action '%s' on notification %u", key.toUtf8().constData(), id);
    return;
  }
  const bool started = QProcess::startDetached(agent_, {kAgentOpenArgument});
  if (!started) LOG_ERROR(vlog::kDefaultComponent, "cannot start the agent %s", agent_.toUtf8().constData());
  emit agentStarted(started);
  // Servers close a notification once its action is chosen; make sure of it,
  // and forget it either way so that the run ends.
  closeNotification(id);
  open_.remove(id);
  finishWhenNothingOpen();
}

void NotificationSession::slotNotificationClosed(uint id, uint /*reason*/) {
  if (open_.remove(id)) finishWhenNothingOpen();
}

void NotificationSession::slotServiceGone() {
  LOG_WARN(vlog::kDefaultComponent, "the notification service has left the session bus");
  open_.clear();
  finishWhenNothingOpen();
}

void NotificationSession::slotLingerOver() {
  // A button that no longer does anything is worse than no notification.
  for (uint id : open_) {
    // One that a later run has replaced is that run's to close.
    if (!handedOver_ || !handedOver_(id)) closeNotification(id);
  }
  open_.clear();
  finishWhenNothingOpen();
}

void NotificationSession::slotCheckBus() {
  if (bus_.isConnected()) return;
  LOG_WARN(vlog::kDefaultComponent, "the session bus has gone");
  open_.clear();
  finishWhenNothingOpen();
}

void NotificationSession::closeNotification(uint id) {
  QDBusMessage m = method("CloseNotification");
  m << QVariant::fromValue<uint>(id);
  // Blocking, so that the request is out before the process ends.
  bus_.call(m, QDBus::Block, 1000);
}

void NotificationSession::finishWhenNothingOpen() {
  if (!open_.isEmpty() || finished_) return;
  finished_ = true;
  linger_.stop();
  bus_check_.stop();
  emit finished();
}

}  // namespace notifier
