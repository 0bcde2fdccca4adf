#include "ui-agent/core/connection-info.h"

#include "vantor-core/lib/json-access.h"

bool ProxyInfo::operator==(const ProxyInfo& o) const {
  return use_proxy == o.use_proxy && use_sys_proxy == o.use_sys_proxy && proxy_ip == o.proxy_ip &&
         proxy_port == o.proxy_port && proxy_username == o.proxy_username &&
         proxy_password == o.proxy_password && host == o.host && domain == o.domain &&
         active_auth == o.active_auth;
}

bool ConnectionInfo::operator==(const ConnectionInfo& o) const {
  return address == o.address && port == o.port && username == o.username && proxy == o.proxy &&
         ssl_allow_untrust == o.ssl_allow_untrust && is_vell_account == o.is_vell_account &&
         is_auth_fork == o.is_auth_fork && backup_role == o.backup_role;
}

ConnectionInfo fillConnectionInfo(const Json::Value& connection, const Json::Value& proxy, SslTrust ssl) {
  ConnectionInfo info;
  info.address = jsonx::get_string(connection, "address");
  info.port = jsonx::get_int64(connection, "port");
  info.username = jsonx::get_string(connection, "username");
  if (ssl == SslTrust::Read) info.ssl_allow_untrust = jsonx::get_bool(connection, "ssl_allow_untrust");
  info.is_vell_account = jsonx::get_string(connection, "account_type") == "vell";
  info.is_auth_fork = jsonx::get_string(connection, "is_auth_fork") == "1";
  info.backup_role = jsonx::get_int32(connection, "backup_role");

  ProxyInfo& p = info.proxy;
  p.use_proxy = jsonx::get_bool(proxy, "use_proxy");
  p.use_sys_proxy = jsonx::get_bool(proxy, "use_sys_proxy");
  p.proxy_ip = jsonx::get_string(proxy, "proxy_ip");
  p.proxy_port = jsonx::get_int64(proxy, "proxy_port");
  p.proxy_username = jsonx::get_string(proxy, "proxy_username");
  p.proxy_password = jsonx::get_string(proxy, "proxy_password");
  p.host = jsonx::get_string(proxy, "host");
  p.domain = jsonx::get_string(proxy, "domain");
  p.active_auth = jsonx::get_bool(proxy, "active_auth");
  return info;
}
