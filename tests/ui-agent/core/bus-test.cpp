// The signal bus, the value types it carries, ConnectionInfo filling and the
// status store.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QSignalSpy>

#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/connection-info.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-status.h"
#include "ui-agent/core/status-store.h"
#include "ui-agent/core/tray-status.h"
#include "vantor-core/lib/json-access.h"

using agent_test::parse;

namespace {

TEST(Bus, LivesOnTheMainThreadAndForwardsTheApplicationState) {
  EXPECT_EQ(GlobalConnecter::instance().thread(), QCoreApplication::instance()->thread());
  QSignalSpy spy(&GlobalConnecter::instance(), &GlobalConnecter::sigApplicationStateChanged);
  ASSERT_TRUE(QMetaObject::invokeMethod(qGuiApp, "applicationStateChanged", Qt::DirectConnection,
                                        Q_ARG(Qt::ApplicationState, Qt::ApplicationInactive)));
  ASSERT_EQ(spy.size(), 1);
  EXPECT_EQ(spy.at(0).at(0).value<Qt::ApplicationState>(), Qt::ApplicationInactive);
}

// Categories by value: not linked, idle, running, preparing, error.
struct StatusRow {
  std::int64_t value;
  const char* categories;  // one letter per category that holds: N I R P E
};
void PrintTo(const StatusRow& r, std::ostream* os) {
  *os << std::hex << r.value;
}

class ServiceStatusTest : public ::testing::TestWithParam<StatusRow> {};

TEST_P(ServiceStatusTest, CategoriesFollowBits12To15) {
  const ServiceStatus s = service_status::from_int64(GetParam().value);
  std::string got;
  if (service_status::is_not_linked(s)) got += 'N';
  if (service_status::is_idle(s)) got += 'I';
  if (service_status::is_running(s)) got += 'R';
  if (service_status::is_preparing(s)) got += 'P';
  if (service_status::is_error(s)) got += 'E';
  EXPECT_EQ(got, GetParam().categories);
}

INSTANTIATE_TEST_SUITE_P(Values, ServiceStatusTest,
                         ::testing::Values(StatusRow{0, ""}, StatusRow{0x1000, "N"}, StatusRow{0x1005, "N"},
                                           StatusRow{0x2000, "I"}, StatusRow{0x2FFF, "I"},
                                           StatusRow{0x3000, "R"}, StatusRow{0x3001, "RP"},
                                           StatusRow{0x3002, "RP"}, StatusRow{0x3003, "R"},
                                           StatusRow{0x13001, "R"}, StatusRow{0xF001, "E"},
                                           StatusRow{0x4000, ""}, StatusRow{0x0FFF, ""}));

TEST(ServiceStatusValue, KeptUnchangedWithinThirtyTwoBits) {
  EXPECT_EQ(static_cast<std::int32_t>(service_status::from_int64(0x3001)), 0x3001);
  EXPECT_EQ(static_cast<std::int32_t>(service_status::from_int64(-1)), -1);
  EXPECT_EQ(static_cast<std::int32_t>(service_status::from_int64(0x100003000LL)), 0x3000);
  EXPECT_EQ(static_cast<std::uint32_t>(service_status::from_int64(0xF0000001LL)), 0xF0000001u);
}

TEST(TrayStatusValue, OutsideOneToFourShowsIdle) {
  const char* const colours[] = {"connect", "connect", "green", "blue", "red", "orange", "connect"};
  for (int value = -1; value <= 5; ++value)
    EXPECT_EQ(std::string(tray_status::icon_name(static_cast<TrayStatus>(value))),
              std::string("logo_tray_icn_") + colours[value + 1])
        << value;
}

// --- ConnectionInfo -------------------------------------------------------------

const char* const kFull = R"({
  "connection": {"address": "cloud.example", "port": 443, "username": "me@example.com",
                 "ssl_allow_untrust": true, "account_type": "vell", "is_auth_fork": "1", "backup_role": 2},
  "proxy": {"use_proxy": true, "use_sys_proxy": true, "proxy_ip": "10.0.0.1", "proxy_port": 3128,
            "proxy_username": "pu", "proxy_password": "pp", "host": "h", "domain": "d", "active_auth": true}
})";

ConnectionInfo fill(const Json::Value& a, SslTrust ssl = SslTrust::Read) {
  return fillConnectionInfo(a["connection"], a["proxy"], ssl);
}

TEST(ConnectionInfoTest, EveryFieldIsReadFromItsMemberSslOnlyForConnectionRecords) {
  const ProxyInfo proxy{true, true, "10.0.0.1", 3128, "pu", "pp", "h", "d", true};
  EXPECT_EQ(fill(parse(kFull)),
            (ConnectionInfo{"cloud.example", 443, "me@example.com", proxy, true, true, true, 2}));
  EXPECT_EQ(fill(parse(kFull), SslTrust::Ignore),
            (ConnectionInfo{"cloud.example", 443, "me@example.com", proxy, false, true, true, 2}));
  // Missing objects, or containers of another kind, give the defaults.
  EXPECT_EQ(fillConnectionInfo(Json::Value(), Json::Value(), SslTrust::Read), ConnectionInfo());
  EXPECT_EQ(fillConnectionInfo(parse("[1,2]"), parse("\"proxy\""), SslTrust::Read), ConnectionInfo());
  EXPECT_EQ(fillConnectionInfo(parse("17"), parse("true"), SslTrust::Read), ConnectionInfo());
}

// --- StatusStore ----------------------------------------------------------------

TEST(StatusStoreTest, HoldsCopiesAndTheConnectionUntilCleared) {
  StatusStore store;
  ServiceStatus s = StatusError;
  Json::Value content = "x";
  store.getStatus(s, content);
  EXPECT_EQ(s, StatusUnknown);
  EXPECT_TRUE(content.isNull());
  ConnectionInfo out;
  EXPECT_EQ(store.getConnectionInfo(out), -1);
  // Status and content are copies, not shared.
  content = parse(R"({"a": 1})");
  store.setStatus(StatusIdle, content);
  content["a"] = 2;
  store.getStatus(s, content);
  EXPECT_EQ(s, StatusIdle);
  EXPECT_EQ(jsonx::get_int64(content, "a"), 1);
  ConnectionInfo stored;
  stored.address = "cloud.example";
  store.setConnectionInfo(stored);
  store.setLastLogId(18446744073709551615ULL);
  ASSERT_EQ(store.getConnectionInfo(out), 0);
  EXPECT_EQ(out, stored);
  EXPECT_EQ(store.getLastLogId(), 18446744073709551615ULL);
  // Cleared: log id 0 and a failed read that leaves the output alone.
  store.clearConnection();
  EXPECT_EQ(store.getLastLogId(), 0u);
  ConnectionInfo untouched;
  untouched.username = "keep";
  EXPECT_EQ(store.getConnectionInfo(untouched), -1);
  EXPECT_EQ(untouched.username, "keep");
  store.setConnectionInfo(stored);
  EXPECT_EQ(store.getConnectionInfo(out), 0);
}

}  // namespace
