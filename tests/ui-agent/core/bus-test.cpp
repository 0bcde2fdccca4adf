// The signal bus and the value types it carries.

#include <gtest/gtest.h>

#include <ostream>

#include <QGuiApplication>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QThread>

#include <atomic>
#include <thread>
#include <vector>

#include "core/global-connecter.h"
#include "core/service-status.h"
#include "core/tray-status.h"
#include "json-access.h"

namespace {

// --- the signal table ---------------------------------------------------------

struct SignalRow {
  int index;
  const char* signature;  // normalised
};

std::ostream& operator<<(std::ostream& os, const SignalRow& v) {
  return os << v.signature;
}

class BusSignalTest : public ::testing::TestWithParam<SignalRow> {};

TEST_P(BusSignalTest, SignalSitsAtItsPlaceWithItsSignature) {
  const QMetaObject& mo = GlobalConnecter::staticMetaObject;
  const int at = mo.methodOffset() + GetParam().index;
  ASSERT_LT(at, mo.methodCount());
  const QMetaMethod m = mo.method(at);
  EXPECT_EQ(m.methodType(), QMetaMethod::Signal);
  EXPECT_EQ(m.methodSignature().toStdString(), GetParam().signature);
}

INSTANTIATE_TEST_SUITE_P(
    Table, BusSignalTest,
    ::testing::Values(
        SignalRow{0, "sigPositionClicked(QPoint)"}, SignalRow{1, "sigShowAboutWindow()"},
        SignalRow{2, "sigRestorePortal()"}, SignalRow{3, "sigWebConsole()"}, SignalRow{4, "sigOpenHelp()"},
        SignalRow{5, "sigUpdateQuota()"}, SignalRow{6, "sigGetConnectionInfo()"},
        SignalRow{7, "sigConnectServer(ConnectionInfo)"},
        SignalRow{8, "sigQueryService(const QObject*,Json::Value)"},
        SignalRow{9, "sigQueryServiceDone(const QObject*,Json::Value)"},
        SignalRow{10, "sigQueryServiceFailed()"}, SignalRow{11, "sigLogoutService()"},
        SignalRow{12, "sigExitApplication()"}, SignalRow{13, "sigCancelCreateDevice()"},
        SignalRow{14, "sigCreateDevice(QString,QString,QString)"}, SignalRow{15, "sigGetAuthURL()"},
        SignalRow{16, "sigNotifyStatusChange(ServiceStatus,ServiceStatus,Json::Value)"},
        SignalRow{17, "sigShowMessage(QString,QString)"}, SignalRow{18, "sigMessageReceived(QString)"},
        SignalRow{19, "sigOpenLogWindow()"}, SignalRow{20, "sigHandleNotifications(Json::Value)"},
        SignalRow{21, "sigTrayClickedWithoutConnection()"}, SignalRow{22, "sigTrayClickedDuringSetup()"},
        SignalRow{23, "sigApplicationStateChanged(Qt::ApplicationState)"}));

TEST(BusTest, OnlySignalsAndExactlyTheTable) {
  const QMetaObject& mo = GlobalConnecter::staticMetaObject;
  EXPECT_EQ(mo.methodCount() - mo.methodOffset(), 24);
  for (int i = mo.methodOffset(); i < mo.methodCount(); ++i)
    EXPECT_EQ(mo.method(i).methodType(), QMetaMethod::Signal) << mo.method(i).methodSignature().constData();
}

TEST(BusTest, StringConnectionsWithTheWrittenSignaturesResolve) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  QObject target;
  const char* written[] = {
      SIGNAL(sigQueryService(const QObject*, Json::Value)),
      SIGNAL(sigNotifyStatusChange(ServiceStatus, ServiceStatus, Json::Value)),
      SIGNAL(sigHandleNotifications(const Json::Value&)),
      SIGNAL(sigCreateDevice(const QString&, const QString&, const QString&)),
      SIGNAL(sigShowMessage(QString, QString)),
  };
  for (const char* sig : written) {
    // A signal-to-signal connection onto the bus itself checks the name.
    QMetaObject::Connection c = QObject::connect(bus, sig, bus, sig);
    EXPECT_TRUE(c) << sig;
    QObject::disconnect(c);
  }
}

// --- meta-types -------------------------------------------------------------

TEST(BusTest, ConstructorRegistersTheCarriedTypes) {
  GlobalConnecter::instance();
  const char* names[] = {"uint64_t", "Json::Value", "ConnectionInfo", "ServiceStatus", "const QObject*"};
  for (const char* name : names) EXPECT_NE(QMetaType::type(name), QMetaType::UnknownType) << name;
  EXPECT_EQ(QMetaType::type("uint64_t"), qMetaTypeId<std::uint64_t>());
  EXPECT_TRUE(QMetaType::typeFlags(QMetaType::type("ServiceStatus")) & QMetaType::IsEnumeration);
  EXPECT_TRUE(QMetaType::typeFlags(QMetaType::type("ServiceStatus")) & QMetaType::MovableType);
  // Registered in this order, each after the one before.
  EXPECT_LT(QMetaType::type("Json::Value"), QMetaType::type("ConnectionInfo"));
  EXPECT_LT(QMetaType::type("ConnectionInfo"), QMetaType::type("ServiceStatus"));
}

TEST(BusTest, QueuedDeliveryCopiesEveryPayloadAcrossThreads) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  QSignalSpy status(bus, &GlobalConnecter::sigNotifyStatusChange);
  QSignalSpy connect_server(bus, &GlobalConnecter::sigConnectServer);
  QSignalSpy done(bus, &GlobalConnecter::sigQueryServiceDone);
  QObject sender;

  // A worker-thread object forwarding to the bus, as the poller and the
  // request client do.
  QThread thread;
  QObject emitter;
  emitter.moveToThread(&thread);
  thread.start();
  Json::Value content(Json::objectValue);
  content["logs"] = Json::Value(Json::arrayValue);
  content["logs"].append("entry");
  ConnectionInfo info;
  info.address = "a.example";
  info.proxy.proxy_port = 8080;
  QMetaObject::invokeMethod(
      &emitter,
      [&] {
        emit bus->sigNotifyStatusChange(StatusIdle, StatusBackupPreparing, content);
        emit bus->sigConnectServer(info);
        emit bus->sigQueryServiceDone(&sender, content);
      },
      Qt::BlockingQueuedConnection);
  thread.quit();
  thread.wait();

  ASSERT_TRUE(done.size() == 1 || done.wait(2000));
  ASSERT_EQ(status.size(), 1);
  EXPECT_EQ(status.at(0).at(0).value<ServiceStatus>(), StatusIdle);
  EXPECT_EQ(status.at(0).at(1).value<ServiceStatus>(), StatusBackupPreparing);
  EXPECT_EQ(status.at(0).at(2).value<Json::Value>(), content);
  ASSERT_EQ(connect_server.size(), 1);
  EXPECT_EQ(connect_server.at(0).at(0).value<ConnectionInfo>(), info);
  EXPECT_EQ(done.at(0).at(0).value<const QObject*>(), &sender);
}

TEST(BusTest, SingletonIsOneObjectOnTheMainThreadWhoeverAsksFirst) {
  std::vector<GlobalConnecter*> seen(8, nullptr);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < seen.size(); ++i)
    threads.emplace_back([&, i] { seen[i] = &GlobalConnecter::instance(); });
  for (auto& t : threads) t.join();
  for (GlobalConnecter* p : seen) EXPECT_EQ(p, &GlobalConnecter::instance());
  EXPECT_EQ(GlobalConnecter::instance().thread(), QCoreApplication::instance()->thread());
}

TEST(BusTest, ApplicationStateReachesTheBus) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  QSignalSpy spy(bus, &GlobalConnecter::sigApplicationStateChanged);
  ASSERT_TRUE(QMetaObject::invokeMethod(qGuiApp, "applicationStateChanged", Qt::DirectConnection,
                                        Q_ARG(Qt::ApplicationState, Qt::ApplicationInactive)));
  ASSERT_EQ(spy.size(), 1);
  EXPECT_EQ(spy.at(0).at(0).value<Qt::ApplicationState>(), Qt::ApplicationInactive);
}

// --- ServiceStatus ----------------------------------------------------------

struct StatusRow {
  std::int64_t value;
  bool not_linked, idle, running, preparing, error;
};

std::ostream& operator<<(std::ostream& os, const StatusRow& v) {
  return os << v.value;
}

class ServiceStatusTest : public ::testing::TestWithParam<StatusRow> {};

TEST_P(ServiceStatusTest, CategoriesFollowBits12To15) {
  const StatusRow& r = GetParam();
  const ServiceStatus s = service_status::from_int64(r.value);
  EXPECT_EQ(service_status::is_not_linked(s), r.not_linked);
  EXPECT_EQ(service_status::is_idle(s), r.idle);
  EXPECT_EQ(service_status::is_running(s), r.running);
  EXPECT_EQ(service_status::is_preparing(s), r.preparing);
  EXPECT_EQ(service_status::is_error(s), r.error);
}

INSTANTIATE_TEST_SUITE_P(Values, ServiceStatusTest,
                         ::testing::Values(StatusRow{0, false, false, false, false, false},
                                           StatusRow{0x1000, true, false, false, false, false},
                                           StatusRow{0x1005, true, false, false, false, false},
                                           StatusRow{0x2000, false, true, false, false, false},
                                           StatusRow{0x2FFF, false, true, false, false, false},
                                           StatusRow{0x3000, false, false, true, false, false},
                                           StatusRow{0x3001, false, false, true, true, false},
                                           StatusRow{0x3002, false, false, true, true, false},
                                           StatusRow{0x3003, false, false, true, false, false},
                                           StatusRow{0x13001, false, false, true, false, false},
                                           StatusRow{0xF001, false, false, false, false, true},
                                           StatusRow{0x4000, false, false, false, false, false},
                                           StatusRow{0x0FFF, false, false, false, false, false}));

TEST(ServiceStatusValue, KeptUnchangedWithinThirtyTwoBits) {
  EXPECT_EQ(static_cast<std::int32_t>(service_status::from_int64(0x3001)), 0x3001);
  EXPECT_EQ(static_cast<std::int32_t>(service_status::from_int64(-1)), -1);
  EXPECT_EQ(static_cast<std::int32_t>(service_status::from_int64(0x100003000LL)), 0x3000);
  EXPECT_EQ(static_cast<std::uint32_t>(service_status::from_int64(0xF0000001LL)), 0xF0000001u);
  EXPECT_EQ(sizeof(ServiceStatus), 4u);
}

// --- TrayStatus -------------------------------------------------------------

struct TrayRow {
  int value;
  TrayStatus shown;
  const char* icon;
};

std::ostream& operator<<(std::ostream& os, const TrayRow& v) {
  return os << v.value;
}

class TrayStatusTest : public ::testing::TestWithParam<TrayRow> {};

TEST_P(TrayStatusTest, OutsideOneToFourShowsIdle) {
  const TrayStatus s = tray_status::from_int(GetParam().value);
  EXPECT_EQ(s, GetParam().shown);
  EXPECT_STREQ(tray_status::icon_name(static_cast<TrayStatus>(GetParam().value)), GetParam().icon);
}

INSTANTIATE_TEST_SUITE_P(Values, TrayStatusTest,
                         ::testing::Values(TrayRow{0, TrayIdle, "logo_tray_icn_connect"},
                                           TrayRow{1, TraySuccess, "logo_tray_icn_green"},
                                           TrayRow{2, TrayRunning, "logo_tray_icn_blue"},
                                           TrayRow{3, TrayError, "logo_tray_icn_red"},
                                           TrayRow{4, TrayWarning, "logo_tray_icn_orange"},
                                           TrayRow{5, TrayIdle, "logo_tray_icn_connect"},
                                           TrayRow{7, TrayIdle, "logo_tray_icn_connect"},
                                           TrayRow{-1, TrayIdle, "logo_tray_icn_connect"}));

}  // namespace
