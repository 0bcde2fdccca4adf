// What the StatusNotifierItem makes of a watcher's answers, on a private
// bus: a panel there or not, and a watcher that refuses, fails or answers
// with the wrong type (no panel, with a log line).
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSignalSpy>

#include <ostream>
#include <string>

#include "ui-agent/tray/status-notifier-item.h"

namespace {

using Host = StatusNotifierItem::Host;

// org.kde.StatusNotifierWatcher answering as it is told.
class FakeWatcher : public QDBusVirtualObject {
 public:
  bool accept = true;
  QVariant host;  // none: Get fails
  QString registered;

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& m, const QDBusConnection& bus) override {
    if (m.member() == QLatin1String("RegisterStatusNotifierItem")) {
      registered = m.arguments().value(0).toString();
      bus.send(accept ? m.createReply() : m.createErrorReply(QDBusError::AccessDenied, "not here"));
      return true;
    }
    if (m.member() == QLatin1String("Get")) {
      bus.send(host.isValid() ? m.createReply(QVariant::fromValue(QDBusVariant(host)))
                              : m.createErrorReply(QDBusError::UnknownProperty, "no such property"));
      return true;
    }
    return false;
  }
};

struct WatcherRow {
  const char* name;
  bool accept;
  QVariant host;
  Host expected;
};
void PrintTo(const WatcherRow& r, std::ostream* os) {
  *os << r.name;
}

// A private bus with the fake watcher on it.
class PrivateBus : public ::testing::Test {
 protected:
  void SetUp() override {
    daemon_.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(daemon_.waitForReadyRead(10000)) << "dbus-daemon did not start";
    const QString address = QString::fromUtf8(daemon_.readLine().trimmed());
    ASSERT_TRUE(QDBusConnection::connectToBus(address, "item").isConnected());
    QDBusConnection panel = QDBusConnection::connectToBus(address, "panel");
    ASSERT_TRUE(panel.registerVirtualObject("/StatusNotifierWatcher", &watcher_));
    ASSERT_TRUE(panel.registerService("org.kde.StatusNotifierWatcher"));
  }
  void TearDown() override {
    QDBusConnection::disconnectFromBus("item");
    QDBusConnection::disconnectFromBus("panel");
    daemon_.kill();
    daemon_.waitForFinished(3000);
  }

  QProcess daemon_;
  FakeWatcher watcher_;
};

class ItemHost : public PrivateBus, public ::testing::WithParamInterface<WatcherRow> {};

TEST_P(ItemHost, FollowsTheWatchersAnswer) {
  const WatcherRow& r = GetParam();
  watcher_.accept = r.accept;
  watcher_.host = r.host;
  StatusNotifierItem item(nullptr, QStringLiteral("item"));
  EXPECT_EQ(item.host(), Host::Unknown);
  QSignalSpy changed(&item, &StatusNotifierItem::hostChanged);
  ASSERT_TRUE(changed.wait(10000));
  EXPECT_EQ(item.host(), r.expected);
  EXPECT_EQ(watcher_.registered, item.serviceName());
  EXPECT_TRUE(item.serviceName().startsWith("org.kde.StatusNotifierItem-"))
      << item.serviceName().toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ItemHost,
    ::testing::Values(WatcherRow{"PanelThere", true, QVariant(true), Host::Present},
                      WatcherRow{"NoPanel", true, QVariant(false), Host::Absent},
                      WatcherRow{"StringForBool", true, QVariant(QStringLiteral("true")), Host::Absent},
                      WatcherRow{"NumberForBool", true, QVariant(1), Host::Absent},
                      WatcherRow{"GetFails", true, QVariant(), Host::Absent},
                      WatcherRow{"RegistrationRefused", false, QVariant(true), Host::Absent}),
    [](const auto& row) { return std::string(row.param.name); });

// A panel reads the menu as the item registers, before the agent has one.
TEST_F(PrivateBus, TheMenuIsOnTheBusBeforeThereIsOne) {
  StatusNotifierItem item(nullptr, QStringLiteral("item"));
  const QDBusMessage reply =
      QDBusConnection(QStringLiteral("panel"))
          .call(QDBusMessage::createMethodCall(item.serviceName(), "/MenuBar",
                                               "org.freedesktop.DBus.Introspectable", "Introspect"),
                QDBus::BlockWithGui, 10000);
  EXPECT_TRUE(reply.arguments().value(0).toString().contains("com.canonical.dbusmenu"))
      << reply.errorMessage().toStdString();
}

}  // namespace
