#include "service-sim/scenario.h"

#include <cmath>
#include <fstream>
#include <set>
#include <sstream>
#include <utility>

#include "vantor-core/lib/json-access.h"

namespace sim {

int outcome_code(BackupOutcome outcome) {
  switch (outcome) {
    case BackupOutcome::kSuccess:
      return 2;
    case BackupOutcome::kPartial:
      return 3;
    case BackupOutcome::kFailed:
      return 4;
    case BackupOutcome::kCancelled:
      return 5;
  }
  return 2;
}

const char* outcome_name(BackupOutcome outcome) {
  switch (outcome) {
    case BackupOutcome::kSuccess:
      return "success";
    case BackupOutcome::kPartial:
      return "partial";
    case BackupOutcome::kFailed:
      return "failed";
    case BackupOutcome::kCancelled:
      return "cancelled";
  }
  return "success";
}

namespace {

Json::Value make_site(const char* code, const char* region, const char* city, const char* sub,
                      const char* console) {
  Json::Value site(Json::objectValue);
  site["billing"]["region"]["code"] = code;
  site["billing"]["region"]["i18n"] = region;
  site["billing"]["city"]["code"] = std::string(code) + "-1";
  site["billing"]["city"]["i18n"] = city;
  site["billing"]["subscription_id"] = sub;
  Json::Value& policy = site["backup_policy"];
  policy["account_type"] = "vell";
  policy["is_default"] = true;
  policy["backup_type"] = 1;
  policy["policy_name"] = "";
  policy["source_type"] = 1;
  policy["enable_backup_external"] = false;
  policy["custom_volume"] = Json::Value(Json::arrayValue);
  policy["schedule_setting_type"] = 4;
  policy["sched_content"] = Json::Value(Json::objectValue);
  site["web_console_link"] = console;
  site["web_console_url"] = console;
  return site;
}

// Walks one scenario object and reports the first member of a wrong type.
class Reader {
 public:
  Reader(const std::string& file, std::string& error) : file_(file), error_(error) {}

  bool fail(const std::string& path, const std::string& what) {
    if (error_.empty()) error_ = "scenario " + file_ + ": '" + path + "' " + what;
    return false;
  }
  bool ok() const { return error_.empty(); }

  // Refuses members outside `known`.
  void only(const Json::Value& obj, const std::string& path, std::set<std::string> known) {
    if (!obj.isObject()) return;
    for (const auto& name : obj.getMemberNames()) {
      if (!known.count(name)) {
        fail(path.empty() ? name : path + "." + name, "is not a known member");
        return;
      }
    }
  }

  void str(const Json::Value& obj, const char* key, const std::string& path, std::string& out) {
    if (!jsonx::has(obj, key)) return;
    const Json::Value& v = jsonx::member(obj, key);
    if (!v.isString()) {
      fail(join(path, key), "must be a string");
      return;
    }
    out = jsonx::to_string(v);
  }
  void boolean(const Json::Value& obj, const char* key, const std::string& path, bool& out) {
    if (!jsonx::has(obj, key)) return;
    const Json::Value& v = jsonx::member(obj, key);
    if (!v.isBool()) {
      fail(join(path, key), "must be true or false");
      return;
    }
    out = jsonx::to_bool(v);
  }
  void number(const Json::Value& obj, const char* key, const std::string& path, double& out, double lo,
              double hi) {
    if (!jsonx::has(obj, key)) return;
    const Json::Value& v = jsonx::member(obj, key);
    if (!v.isNumeric() || v.isBool()) {
      fail(join(path, key), "must be a number");
      return;
    }
    const double d = jsonx::to_double(v);
    if (!std::isfinite(d) || d < lo || d > hi) {
      std::ostringstream s;
      s << "must lie between " << lo << " and " << hi;
      fail(join(path, key), s.str());
      return;
    }
    out = d;
  }
  template <typename Int>
  void integer(const Json::Value& obj, const char* key, const std::string& path, Int& out, double lo,
               double hi) {
    double d = static_cast<double>(out);
    if (!jsonx::has(obj, key)) return;
    const Json::Value& v = jsonx::member(obj, key);
    if (!(v.isIntegral() || (v.isDouble() && std::floor(jsonx::to_double(v)) == jsonx::to_double(v))) ||
        v.isBool()) {
      fail(join(path, key), "must be a whole number");
      return;
    }
    number(obj, key, path, d, lo, hi);
    if (ok()) out = static_cast<Int>(d);
  }
  const Json::Value& object(const Json::Value& obj, const char* key, const std::string& path) {
    static const Json::Value kNull;
    if (!jsonx::has(obj, key)) return kNull;
    const Json::Value& v = jsonx::member(obj, key);
    if (!v.isObject()) {
      fail(join(path, key), "must be an object");
      return kNull;
    }
    return v;
  }
  const Json::Value& array(const Json::Value& obj, const char* key, const std::string& path) {
    static const Json::Value kNull;
    if (!jsonx::has(obj, key)) return kNull;
    const Json::Value& v = jsonx::member(obj, key);
    if (!v.isArray()) {
      fail(join(path, key), "must be an array");
      return kNull;
    }
    return v;
  }

  static std::string join(const std::string& path, const char* key) {
    return path.empty() ? std::string(key) : path + "." + key;
  }

 private:
  std::string file_;
  std::string& error_;
};

bool read_outcome(Reader& r, const std::string& text, BackupOutcome& out) {
  if (text == "success")
    out = BackupOutcome::kSuccess;
  else if (text == "partial")
    out = BackupOutcome::kPartial;
  else if (text == "failed")
    out = BackupOutcome::kFailed;
  else if (text == "cancelled")
    out = BackupOutcome::kCancelled;
  else
    return r.fail("backup.outcome",
                  "must be one of success, partial, failed, cancelled (not '" + text + "')");
  return true;
}

void check_site(Reader& r, const Json::Value& site, const std::string& path) {
  if (!site.isObject()) {
    r.fail(path, "must be an object");
    return;
  }
  const Json::Value& billing = r.object(site, "billing", path);
  if (!r.ok()) return;
  if (billing.isNull()) {
    r.fail(path + ".billing", "is missing (every site needs billing.region.code)");
    return;
  }
  const Json::Value& region = r.object(billing, "region", path + ".billing");
  if (!r.ok()) return;
  std::string code;
  r.str(region, "code", path + ".billing.region", code);
  if (r.ok() && code.empty()) r.fail(path + ".billing.region.code", "is missing or empty");
  std::string sub;
  r.str(billing, "subscription_id", path + ".billing", sub);
  r.object(site, "backup_policy", path);
}

// Fails with `why` put into `*error` when the caller wants it.
bool failed(std::string* error, std::string why) {
  if (error) *error = std::move(why);
  return false;
}

}  // namespace

Scenario default_scenario() {
  Scenario s;
  s.name = "default";
  s.description = "One linked device, idle, with a daily schedule.";
  s.linked = true;
  s.sites = Json::Value(Json::arrayValue);
  s.sites.append(
      make_site("US", "North America", "Seattle", "sub-us-0001", "https://us.console.nimbrabackup.example"));
  s.sites.append(
      make_site("EU", "Europe", "Frankfurt", "sub-eu-0001", "https://eu.console.nimbrabackup.example"));
  s.schedule["schedule_type"] = 4;
  s.server_config["bandwidth_type"] = 0;
  s.proxy = Json::Value(Json::objectValue);
  s.proxy["use_proxy"] = false;
  s.proxy["use_sys_proxy"] = false;
  s.proxy["active_auth"] = false;
  s.proxy["domain"] = "";
  s.proxy["host"] = "";
  s.proxy["proxy_ip"] = "";
  s.proxy["proxy_port"] = 0;
  s.proxy["proxy_username"] = "";
  s.proxy["proxy_password"] = "";
  s.portal["help"] = "https://help.nimbrabackup.example/agent";
  s.portal["restore_portal"] = "https://restore.nimbrabackup.example/portal";
  s.portal["web_console"] = "https://us.console.nimbrabackup.example";
  return s;
}

bool parse_scenario(const std::string& text, const std::string& file_label, Scenario& out,
                    std::string* error) {
  Json::Value root;
  std::string parse_error;
  if (!jsonx::parse(text, root, &parse_error))
    return failed(error, "scenario " + file_label + ": not valid JSON: " + parse_error);
  if (!root.isObject()) return failed(error, "scenario " + file_label + ": the top level must be an object");
  std::string why;
  Scenario s = default_scenario();
  s.linked = false;
  s.name = file_label;
  s.description.clear();
  s.file = file_label;
  Reader r(file_label, why);
  r.only(root, "",
         {"name", "description", "account", "proxy", "sites", "device", "schedule", "backup",
          "auto_backup_after_seconds", "bandwidth", "portal", "errors", "faults", "hostile",
          "answer_delay_ms", "upgrade", "initial_logs"});
  r.str(root, "name", "", s.name);
  r.str(root, "description", "", s.description);

  const Json::Value& account = r.object(root, "account", "");
  r.only(account, "account",
         {"email", "username", "address", "port", "ssl_allow_untrust", "backup_role", "is_auth_fork"});
  r.str(account, "email", "account", s.email);
  r.str(account, "username", "account", s.username);
  r.str(account, "address", "account", s.address);
  r.integer(account, "port", "account", s.port, 0, 65535);
  r.boolean(account, "ssl_allow_untrust", "account", s.ssl_allow_untrust);
  r.integer(account, "backup_role", "account", s.backup_role, 0, 1e6);
  r.str(account, "is_auth_fork", "account", s.is_auth_fork);

  const Json::Value& proxy = r.object(root, "proxy", "");
  if (proxy.isObject()) s.proxy = proxy;

  const Json::Value& sites = r.array(root, "sites", "");
  if (r.ok() && sites.isArray()) {
    if (sites.empty()) r.fail("sites", "must list at least one site");
    for (Json::ArrayIndex i = 0; r.ok() && i < sites.size(); ++i)
      check_site(r, sites[i], "sites[" + std::to_string(i) + "]");
    if (r.ok()) s.sites = sites;
  }

  const Json::Value& device = r.object(root, "device", "");
  r.only(device, "device",
         {"linked", "site_index", "quota", "used_bytes", "last_backup_result", "connected", "error"});
  r.boolean(device, "linked", "device", s.linked);
  r.integer(device, "site_index", "device", s.site_index, 0, 1e6);
  if (r.ok() && s.site_index >= static_cast<int>(s.sites.size()))
    r.fail("device.site_index", "points past the last site");
  r.integer(device, "quota", "device", s.quota, 0, 1.8e19);
  r.integer(device, "used_bytes", "device", s.used_bytes, 0, 1.8e19);
  const Json::Value& last = r.object(device, "last_backup_result", "device");
  if (last.isObject()) s.last_backup_result = last;
  r.boolean(device, "connected", "device", s.connected);
  const Json::Value& err = r.object(device, "error", "device");
  if (err.isObject()) s.status_error = err;

  const Json::Value& schedule = r.object(root, "schedule", "");
  r.only(schedule, "schedule", {"schedule_type", "next_backup_in_seconds"});
  if (schedule.isObject()) {
    double t = 0;
    r.integer(schedule, "schedule_type", "schedule", t, 0, 1e6);
    r.number(schedule, "next_backup_in_seconds", "schedule", t, 0, 1e9);
    s.schedule = schedule;
  }

  const Json::Value& backup = r.object(root, "backup", "");
  r.only(backup, "backup",
         {"prepare_seconds", "total_bytes", "rate_bytes_per_second", "delta_ratio", "volumes", "cbt",
          "outcome", "stop_at", "error_code"});
  BackupPlan& b = s.backup;
  r.number(backup, "prepare_seconds", "backup", b.prepare_seconds, 0, 3600);
  r.integer(backup, "total_bytes", "backup", b.total_bytes, 1, 1e18);
  r.number(backup, "rate_bytes_per_second", "backup", b.rate_bytes_per_second, 1, 1e13);
  r.number(backup, "delta_ratio", "backup", b.delta_ratio, 0, 1);
  r.number(backup, "stop_at", "backup", b.stop_at, 0, 1);
  r.boolean(backup, "cbt", "backup", b.cbt);
  r.str(backup, "error_code", "backup", b.error_code);
  std::string outcome;
  r.str(backup, "outcome", "backup", outcome);
  if (r.ok() && !outcome.empty()) read_outcome(r, outcome, b.outcome);
  const Json::Value& volumes = r.array(backup, "volumes", "backup");
  if (r.ok() && volumes.isArray()) {
    b.volumes.clear();
    for (const auto& v : volumes) {
      if (!v.isString()) {
        r.fail("backup.volumes", "must hold strings");
        break;
      }
      b.volumes.push_back(jsonx::to_string(v));
    }
    if (r.ok() && b.volumes.empty()) r.fail("backup.volumes", "must name at least one volume");
  }
  r.number(root, "auto_backup_after_seconds", "", s.auto_backup_after_seconds, 0, 1e9);

  const Json::Value& bandwidth = r.object(root, "bandwidth", "");
  r.only(bandwidth, "bandwidth", {"server_config", "client_config"});
  const Json::Value& server = r.object(bandwidth, "server_config", "bandwidth");
  if (server.isObject()) s.server_config = server;
  const Json::Value& client = r.object(bandwidth, "client_config", "bandwidth");
  if (client.isObject()) s.client_config = client;

  const Json::Value& portal = r.object(root, "portal", "");
  r.only(portal, "portal", {"help", "restore_portal", "web_console"});
  if (portal.isObject()) {
    for (const auto& key : portal.getMemberNames()) r.str(portal, key.c_str(), "portal", s.portal[key]);
  }

  const Json::Value& errors = r.object(root, "errors", "");
  r.only(errors, "errors",
         {"get_status", "get_connection_info", "get_site_info", "create_device", "get_auth", "get_token",
          "logout", "backup_now", "get_portal_link", "update_tray_menu", "get_bandwidth_control",
          "set_bandwidth_control"});
  if (errors.isObject()) {
    for (const auto& action : errors.getMemberNames()) {
      const std::string path = "errors." + action;
      const Json::Value& rule = r.object(errors, action.c_str(), "errors");
      if (!r.ok()) break;
      r.only(rule, path, {"code", "base_url", "times"});
      ErrorRule e;
      r.integer(rule, "code", path, e.code, -1e15, 1e15);
      r.str(rule, "base_url", path, e.base_url);
      r.integer(rule, "times", path, e.times, -1, 1e9);
      if (!jsonx::has(rule, "code")) r.fail(path + ".code", "is missing");
      s.errors[action] = e;
    }
  }

  const Json::Value& faults = r.object(root, "faults", "");
  r.only(faults, "faults", {"drop_every", "garbage_every", "late_every", "late_ms", "refuse_first"});
  r.integer(faults, "drop_every", "faults", s.faults.drop_every, 0, 1e6);
  r.integer(faults, "garbage_every", "faults", s.faults.garbage_every, 0, 1e6);
  r.integer(faults, "late_every", "faults", s.faults.late_every, 0, 1e6);
  r.integer(faults, "late_ms", "faults", s.faults.late_ms, 0, 600000);
  r.integer(faults, "refuse_first", "faults", s.faults.refuse_first, 0, 1e6);

  r.boolean(root, "hostile", "", s.hostile);
  r.number(root, "answer_delay_ms", "", s.answer_delay_ms, 0, 600000);

  const Json::Value& upgrade = r.object(root, "upgrade", "");
  r.only(upgrade, "upgrade", {"start_after_seconds", "duration_seconds", "outcome"});
  if (upgrade.isObject()) {
    s.upgrade.enabled = true;
    r.number(upgrade, "start_after_seconds", "upgrade", s.upgrade.start_after_seconds, 0, 1e6);
    r.number(upgrade, "duration_seconds", "upgrade", s.upgrade.duration_seconds, 0, 1e6);
    std::string o = "success";
    r.str(upgrade, "outcome", "upgrade", o);
    if (r.ok() && o != "success" && o != "error")
      r.fail("upgrade.outcome", "must be success or error (not '" + o + "')");
    s.upgrade.fails = o == "error";
  }

  const Json::Value& logs = r.array(root, "initial_logs", "");
  if (r.ok() && logs.isArray()) {
    for (Json::ArrayIndex i = 0; r.ok() && i < logs.size(); ++i) {
      const std::string path = "initial_logs[" + std::to_string(i) + "]";
      if (!logs[i].isObject()) {
        r.fail(path, "must be an object");
        break;
      }
      r.only(logs[i], path, {"type", "body", "age_seconds"});
      double d = 0;
      r.integer(logs[i], "type", path, d, 0, 4294967295.0);
      r.number(logs[i], "age_seconds", path, d, 0, 1e10);
      if (r.ok() && !jsonx::has(logs[i], "type")) r.fail(path + ".type", "is missing");
    }
    s.initial_logs = logs;
  }

  if (!r.ok()) return failed(error, why);
  out = s;
  return true;
}

bool load_scenario(const std::string& path, Scenario& out, std::string* error) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return failed(error, "scenario " + path + ": cannot be opened");
  std::ostringstream text;
  text << in.rdbuf();
  if (!parse_scenario(text.str(), path, out, error)) return false;
  out.file = path;
  return true;
}

}  // namespace sim
