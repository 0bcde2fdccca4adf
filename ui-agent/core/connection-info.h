#pragma once
// The link between this device and the cloud account, with its proxy.

#include <json/value.h>

#include <cstdint>
#include <string>

#include <QMetaType>

struct ProxyInfo {
  bool use_proxy = false;
  bool use_sys_proxy = false;
  std::string proxy_ip;
  std::int64_t proxy_port = 0;
  std::string proxy_username;
  std::string proxy_password;
  std::string host;
  std::string domain;
  bool active_auth = false;

  bool operator==(const ProxyInfo& o) const;
  bool operator!=(const ProxyInfo& o) const { return !(*this == o); }
};

struct ConnectionInfo {
  std::string address;
  std::int64_t port = 0;
  std::string username;
  ProxyInfo proxy;
  bool ssl_allow_untrust = false;
  bool is_vell_account = false;
  bool is_auth_fork = false;
  std::int32_t backup_role = 0;

  bool operator==(const ConnectionInfo& o) const;
  bool operator!=(const ConnectionInfo& o) const { return !(*this == o); }
};

// Which members fillConnectionInfo reads beyond the common ones.
enum class SslTrust {
  Ignore,  // status answers: ssl_allow_untrust stays false
  Read,    // connection records: connection.ssl_allow_untrust is read
};

// Builds a ConnectionInfo from the service's `connection` and `proxy`
// objects. Members that are missing or of another type read as their
// defaults; a `connection` or `proxy` that is not an object reads as empty.
ConnectionInfo fillConnectionInfo(const Json::Value& connection, const Json::Value& proxy, SslTrust ssl);

Q_DECLARE_METATYPE(ConnectionInfo)
