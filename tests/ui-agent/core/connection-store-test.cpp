// ConnectionInfo filling and the status store.

#include <gtest/gtest.h>

#include <ostream>

#include <atomic>
#include <thread>

#include "core/connection-info.h"
#include "core/status-store.h"
#include "json-access.h"

namespace {

Json::Value parse(const char* text) {
  Json::Value v;
  EXPECT_TRUE(jsonx::parse(text, v)) << text;
  return v;
}

const char* const kFull = R"({
  "connection": {"address": "cloud.example", "port": 443, "username": "me@example.com",
                 "ssl_allow_untrust": true, "account_type": "vell", "is_auth_fork": "1",
                 "backup_role": 2},
  "proxy": {"use_proxy": true, "use_sys_proxy": true, "proxy_ip": "10.0.0.1", "proxy_port": 3128,
            "proxy_username": "pu", "proxy_password": "pp", "host": "h", "domain": "d",
            "active_auth": true}
})";

TEST(ConnectionInfoTest, EveryFieldIsReadFromItsMember) {
  const Json::Value a = parse(kFull);
  const ConnectionInfo info = fillConnectionInfo(a["connection"], a["proxy"], SslTrust::Read);
  EXPECT_EQ(info.address, "cloud.example");
  EXPECT_EQ(info.port, 443);
  EXPECT_EQ(info.username, "me@example.com");
  EXPECT_TRUE(info.ssl_allow_untrust);
  EXPECT_TRUE(info.is_vell_account);
  EXPECT_TRUE(info.is_auth_fork);
  EXPECT_EQ(info.backup_role, 2);
  EXPECT_TRUE(info.proxy.use_proxy);
  EXPECT_TRUE(info.proxy.use_sys_proxy);
  EXPECT_EQ(info.proxy.proxy_ip, "10.0.0.1");
  EXPECT_EQ(info.proxy.proxy_port, 3128);
  EXPECT_EQ(info.proxy.proxy_username, "pu");
  EXPECT_EQ(info.proxy.proxy_password, "pp");
  EXPECT_EQ(info.proxy.host, "h");
  EXPECT_EQ(info.proxy.domain, "d");
  EXPECT_TRUE(info.proxy.active_auth);
}

TEST(ConnectionInfoTest, StatusAnswersLeaveSslAllowUntrustFalse) {
  const Json::Value a = parse(kFull);
  const ConnectionInfo info = fillConnectionInfo(a["connection"], a["proxy"], SslTrust::Ignore);
  EXPECT_FALSE(info.ssl_allow_untrust);
  EXPECT_EQ(info.address, "cloud.example");
}

TEST(ConnectionInfoTest, MissingObjectsGiveTheDefaults) {
  const ConnectionInfo info = fillConnectionInfo(Json::Value(), Json::Value(), SslTrust::Read);
  EXPECT_EQ(info, ConnectionInfo());
  EXPECT_EQ(info.port, 0);
  EXPECT_FALSE(info.proxy.use_proxy);
}

// One member replaced by a value of another kind: it reads as its default
// while the rest of the record is still read.
struct Confused {
  const char* name;
  const char* object;  // "connection" or "proxy"
  const char* member;
  const char* value;  // JSON text
  bool (*still_default)(const ConnectionInfo&);
};

std::ostream& operator<<(std::ostream& os, const Confused& v) {
  return os << v.name;
}

class ConfusedMemberTest : public ::testing::TestWithParam<Confused> {};

TEST_P(ConfusedMemberTest, WrongTypeReadsAsDefault) {
  const Confused& c = GetParam();
  Json::Value a = parse(kFull);
  a[c.object][c.member] = parse(c.value);
  ConnectionInfo info;
  ASSERT_NO_THROW(info = fillConnectionInfo(a["connection"], a["proxy"], SslTrust::Read));
  EXPECT_TRUE(c.still_default(info));
  // Unrelated members are still read.
  if (std::string(c.member) != "username") {
    EXPECT_EQ(info.username, "me@example.com");
  }
  if (std::string(c.member) != "proxy_ip") {
    EXPECT_EQ(info.proxy.proxy_ip, "10.0.0.1");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Members, ConfusedMemberTest,
    ::testing::Values(Confused{"AddressNumber", "connection", "address", "12",
                               [](const ConnectionInfo& i) { return i.address.empty(); }},
                      Confused{"AddressObject", "connection", "address", "{}",
                               [](const ConnectionInfo& i) { return i.address.empty(); }},
                      Confused{"PortString", "connection", "port", "\"443\"",
                               [](const ConnectionInfo& i) { return i.port == 0; }},
                      Confused{"PortFraction", "connection", "port", "44.5",
                               [](const ConnectionInfo& i) { return i.port == 0; }},
                      Confused{"PortArray", "connection", "port", "[443]",
                               [](const ConnectionInfo& i) { return i.port == 0; }},
                      Confused{"UsernameBool", "connection", "username", "true",
                               [](const ConnectionInfo& i) { return i.username.empty(); }},
                      Confused{"SslString", "connection", "ssl_allow_untrust", "\"true\"",
                               [](const ConnectionInfo& i) { return !i.ssl_allow_untrust; }},
                      Confused{"SslNumber", "connection", "ssl_allow_untrust", "1",
                               [](const ConnectionInfo& i) { return !i.ssl_allow_untrust; }},
                      Confused{"AccountTypeCase", "connection", "account_type", "\"Vell\"",
                               [](const ConnectionInfo& i) { return !i.is_vell_account; }},
                      Confused{"AccountTypeArray", "connection", "account_type", "[\"vell\"]",
                               [](const ConnectionInfo& i) { return !i.is_vell_account; }},
                      Confused{"AuthForkZeroOne", "connection", "is_auth_fork", "\"01\"",
                               [](const ConnectionInfo& i) { return !i.is_auth_fork; }},
                      Confused{"AuthForkTrueText", "connection", "is_auth_fork", "\"true\"",
                               [](const ConnectionInfo& i) { return !i.is_auth_fork; }},
                      Confused{"AuthForkNumber", "connection", "is_auth_fork", "1",
                               [](const ConnectionInfo& i) { return !i.is_auth_fork; }},
                      Confused{"AuthForkBool", "connection", "is_auth_fork", "true",
                               [](const ConnectionInfo& i) { return !i.is_auth_fork; }},
                      Confused{"RoleString", "connection", "backup_role", "\"2\"",
                               [](const ConnectionInfo& i) { return i.backup_role == 0; }},
                      Confused{"RoleTooBig", "connection", "backup_role", "4294967298",
                               [](const ConnectionInfo& i) { return i.backup_role == 0; }},
                      Confused{"UseProxyNumber", "proxy", "use_proxy", "1",
                               [](const ConnectionInfo& i) { return !i.proxy.use_proxy; }},
                      Confused{"SysProxyString", "proxy", "use_sys_proxy", "\"yes\"",
                               [](const ConnectionInfo& i) { return !i.proxy.use_sys_proxy; }},
                      Confused{"ProxyIpNumber", "proxy", "proxy_ip", "10",
                               [](const ConnectionInfo& i) { return i.proxy.proxy_ip.empty(); }},
                      Confused{"ProxyPortString", "proxy", "proxy_port", "\"3128\"",
                               [](const ConnectionInfo& i) { return i.proxy.proxy_port == 0; }},
                      Confused{"ProxyUserNull", "proxy", "proxy_username", "null",
                               [](const ConnectionInfo& i) { return i.proxy.proxy_username.empty(); }},
                      Confused{"ProxyPasswordObject", "proxy", "proxy_password", "{\"a\":1}",
                               [](const ConnectionInfo& i) { return i.proxy.proxy_password.empty(); }},
                      Confused{"HostArray", "proxy", "host", "[]",
                               [](const ConnectionInfo& i) { return i.proxy.host.empty(); }},
                      Confused{"DomainBool", "proxy", "domain", "false",
                               [](const ConnectionInfo& i) { return i.proxy.domain.empty(); }},
                      Confused{"ActiveAuthString", "proxy", "active_auth", "\"true\"",
                               [](const ConnectionInfo& i) { return !i.proxy.active_auth; }}),
    [](const ::testing::TestParamInfo<Confused>& p) { return std::string(p.param.name); });

TEST(ConnectionInfoTest, ContainersOfAnotherKindReadAsEmpty) {
  EXPECT_EQ(fillConnectionInfo(parse("[1,2]"), parse("\"proxy\""), SslTrust::Read), ConnectionInfo());
  EXPECT_EQ(fillConnectionInfo(parse("17"), parse("true"), SslTrust::Read), ConnectionInfo());
}

// --- StatusStore ------------------------------------------------------------

TEST(StatusStoreTest, StartsEmpty) {
  StatusStore store;
  ServiceStatus s = StatusError;
  Json::Value content = "x";
  store.getStatus(s, content);
  EXPECT_EQ(s, StatusUnknown);
  EXPECT_TRUE(content.isNull());
  EXPECT_EQ(store.getLastLogId(), 0u);
  ConnectionInfo info;
  EXPECT_EQ(store.getConnectionInfo(info), -1);
}

TEST(StatusStoreTest, ConnectionIsHeldUntilClearedAndReadFailsWithoutTouchingTheOutput) {
  StatusStore store;
  ConnectionInfo stored;
  stored.address = "cloud.example";
  stored.backup_role = 3;
  store.setConnectionInfo(stored);
  store.setLastLogId(18446744073709551615ULL);

  ConnectionInfo out;
  ASSERT_EQ(store.getConnectionInfo(out), 0);
  EXPECT_EQ(out, stored);
  EXPECT_EQ(store.getLastLogId(), 18446744073709551615ULL);

  store.clearConnection();
  EXPECT_EQ(store.getLastLogId(), 0u);
  ConnectionInfo untouched;
  untouched.username = "keep";
  EXPECT_EQ(store.getConnectionInfo(untouched), -1);
  EXPECT_EQ(untouched.username, "keep");
  EXPECT_TRUE(untouched.address.empty());

  store.setConnectionInfo(stored);
  EXPECT_EQ(store.getConnectionInfo(out), 0);
}

TEST(StatusStoreTest, StatusAndContentAreCopiesNotShared) {
  StatusStore store;
  Json::Value content(Json::objectValue);
  content["a"] = 1;
  store.setStatus(StatusIdle, content);
  content["a"] = 2;
  ServiceStatus s;
  Json::Value out;
  store.getStatus(s, out);
  EXPECT_EQ(s, StatusIdle);
  EXPECT_EQ(out["a"].asInt(), 1);
}

TEST(StatusStoreTest, InstanceIsOneStore) {
  EXPECT_EQ(&StatusStore::instance(), &StatusStore::instance());
}

TEST(StatusStoreTest, ReadersNeverSeeAHalfWrittenPair) {
  // The writer keeps status and content in step; a reader that ever sees them
  // disagree has seen a write that was not guarded as a whole.
  StatusStore store;
  std::atomic<bool> done{false};
  std::atomic<int> torn{0};
  std::thread writer([&] {
    for (int i = 0; i < 20000; ++i) {
      Json::Value content(Json::objectValue);
      content["n"] = i;
      content["pad"] = std::string(static_cast<std::size_t>(i % 64), 'x');
      store.setStatus(static_cast<ServiceStatus>(i), content);
      ConnectionInfo info;
      info.port = i;
      info.address = std::to_string(i);
      store.setConnectionInfo(info);
      store.setLastLogId(static_cast<std::uint64_t>(i));
    }
    done = true;
  });
  std::thread reader([&] {
    while (!done) {
      ServiceStatus s;
      Json::Value content;
      store.getStatus(s, content);
      if (!content.isNull() && jsonx::get_int64(content, "n") != static_cast<std::int32_t>(s)) ++torn;
      ConnectionInfo info;
      if (store.getConnectionInfo(info) == 0 && std::to_string(info.port) != info.address) ++torn;
    }
  });
  writer.join();
  reader.join();
  EXPECT_EQ(torn.load(), 0);
}

}  // namespace
