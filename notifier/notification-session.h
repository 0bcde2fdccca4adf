#pragma once
// One run's notifications on the session bus: shows them in order, each
// replacing the one before, then acts on their buttons until they are closed,
// the service goes away, or the time to linger has passed.
//
//   NotificationSession s(QDBusConnection::sessionBus(), program, 10 * 60 * 1000);
//   ShowOutcome o = s.show(calls);   // blocking calls, a few ms each
//   if (o.code == kExitShown) { report; app.exec(); }   // finished() quits
//
// The service sends ActionInvoked and NotificationClosed only to the
// connection that sent Notify, so the process that shows the notifications is
// the one that must stay.

#include <QDBusConnection>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

#include "notifier/notification-request.h"

namespace notifier {

inline constexpr const char* kNotificationsService = "org.freedesktop.Notifications";
inline constexpr const char* kNotificationsPath = "/org/freedesktop/Notifications";
inline constexpr const char* kNotificationsInterface = "org.freedesktop.Notifications";

// How long one call to the service may take (an activatable service is
// started by the bus on the first call).
inline constexpr int kCallTimeoutMs = 5000;
// How long the notifier stays for the buttons.
inline constexpr int kDefaultLingerMs = 10 * 60 * 1000;

struct ShowOutcome {
  int code = kExitNoService;
  QString error;  // one line when code != kExitShown
  int shown = 0;
  uint last_id = 0;   // the notification that stays on screen
  QString last_kind;  // its title
};

class NotificationSession : public QObject {
  Q_OBJECT
 public:
  // `agent` is the program started with "open" when a button is chosen.
  NotificationSession(const QDBusConnection& bus, QString agent, int linger_ms, QObject* parent = nullptr);

  // Asks the service for its capabilities (into `traits`) and who it is;
  // kExitNoService when there is no bus or no service.
  ShowOutcome probe(ServerTraits& traits);
  // The service instance that answered probe(): the bus's id and the
  // service's unique name; empty when unknown.
  QString server() const { return server_; }
  // Shows `calls` in order, each replacing the previous one, the first
  // replacing `replaces` (0: none). kExitShown when at least one is on
  // screen; then the session waits for its actions.
  ShowOutcome show(const std::vector<NotifyCall>& calls, uint replaces = 0);

  // Asked before the session closes a notification at the end of its time
  // or acts on a button: true when a later run has taken the id over.
  void setHandedOver(std::function<bool(uint)> handedOver) { handedOver_ = std::move(handedOver); }

  // Ids of the notifications still open.
  QSet<uint> openIds() const { return open_; }

 signals:
  // Every notification is closed (or the service or the bus has gone, or
  // the time to linger is over): the program can end.
  void finished();
  // A button or the notification was chosen and the agent was started
  // (started false: it could not be).
  void agentStarted(bool started);

 private slots:
  void slotActionInvoked(uint id, const QString& key);
  void slotNotificationClosed(uint id, uint reason);
  void slotServiceGone();
  void slotLingerOver();
  void slotCheckBus();

 private:
  bool subscribe();
  void closeNotification(uint id);
  void finishWhenNothingOpen();

  QDBusConnection bus_;
  QString agent_;
  QString server_;
  QSet<uint> open_;
  QSet<QString> action_keys_;
  std::function<bool(uint)> handedOver_;
  QTimer linger_;
  QTimer bus_check_;
  bool finished_ = false;
};

}  // namespace notifier
