// The answers to the service protocol's requests: the scenario's error
// rules first, then one branch per action.
#include "service-sim/device-model.h"

#include <cstdio>
#include <random>

#include "service-sim/sim-log.h"
#include "vantor-core/lib/json-access.h"

namespace sim {

namespace {

constexpr std::size_t kLogsPerAnswer = 100;  // newest entries one get_status carries

// Keeps only the members of a bandwidth configuration, with their types.
Json::Value normalise_bandwidth(const Json::Value& in) {
  Json::Value out(Json::objectValue);
  out["bandwidth_type"] = jsonx::get_int32(in, "bandwidth_type");
  out["bandwidth_rate"] = jsonx::get_int32(in, "bandwidth_rate");
  out["bandwidth_limit_range"] = jsonx::get_bool(in, "bandwidth_limit_range");
  out["bandwidth_start_time"] = jsonx::get_string(in, "bandwidth_start_time");
  out["bandwidth_end_time"] = jsonx::get_string(in, "bandwidth_end_time");
  return out;
}

}  // namespace

void DeviceModel::set_signin_url(const std::string& url) {
  std::lock_guard<std::mutex> lock(mutex_);
  signin_url_ = url;
}

std::string DeviceModel::issue_token() {
  static thread_local std::mt19937_64 rng{std::random_device{}()};
  char buf[40];
  std::snprintf(buf, sizeof buf, "%016llx%016llx", static_cast<unsigned long long>(rng()),
                static_cast<unsigned long long>(rng()));
  std::lock_guard<std::mutex> lock(mutex_);
  tokens_.insert(buf);
  return buf;
}

bool DeviceModel::token_pending(const std::string& token) const {
  std::lock_guard<std::mutex> lock(mutex_);
  return tokens_.count(token) > 0;
}

Json::Value DeviceModel::error_answer(std::int64_t code, const std::string& message,
                                      const std::string& base_url) const {
  Json::Value answer(Json::objectValue);
  answer["error"]["code"] = static_cast<Json::Int64>(code);
  if (!base_url.empty()) answer["error"]["base_url"] = base_url;
  if (!message.empty()) answer["error"]["message"] = message;
  return answer;
}

Json::Value DeviceModel::handle(const Json::Value& request) {
  std::lock_guard<std::mutex> lock(mutex_);
  if (!request.isObject()) return error_answer(4, "the request is not a JSON object");
  if (!jsonx::has(request, "action")) return error_answer(4, "the request has no action");
  const std::string action = jsonx::get_string(request, "action");
  if (action.empty()) return error_answer(4, "the action is not a non-empty string");

  const auto rule = scenario_.errors.find(action);
  if (rule != scenario_.errors.end()) {
    int& uses = error_uses_[action];
    if (rule->second.times < 0 || uses < rule->second.times) {
      ++uses;
      return error_answer(rule->second.code, "", rule->second.base_url);
    }
  }
  return answer_locked(action, request);
}

Json::Value DeviceModel::connection_locked() const {
  Json::Value c(Json::objectValue);
  c["address"] = scenario_.address;
  c["port"] = static_cast<Json::Int64>(scenario_.port);
  c["username"] = scenario_.username;
  c["email"] = scenario_.email;
  c["ssl_allow_untrust"] = scenario_.ssl_allow_untrust;
  c["account_type"] = account_type_;
  c["backup_role"] = static_cast<Json::Int64>(scenario_.backup_role);
  c["is_auth_fork"] = scenario_.is_auth_fork;
  return c;
}

Json::Value DeviceModel::content_locked() {
  Json::Value c(Json::objectValue);
  c["connected"] = scenario_.connected;
  if (scenario_.status_error.isObject() && !running_) c["error"] = scenario_.status_error;
  Json::Value result(Json::objectValue);
  result["last_backup_status"] = jsonx::get_int32(last_result_, "last_backup_status");
  result["last_backup_time"] = static_cast<Json::Int64>(jsonx::get_int64(last_result_, "last_backup_time"));
  result["backed_up"] = jsonx::get_bool(last_result_, "backed_up");
  c["last_backup_result"] = result;
  if (next_backup_ms_ > 0) {
    c["next_backup_time"] = static_cast<Json::Int64>(next_backup_ms_ / 1000);
  } else if (jsonx::has(scenario_.schedule, "schedule_type")) {
    c["schedule_type"] = jsonx::get_int32(scenario_.schedule, "schedule_type");
  }
  c["billing"]["quota"] = static_cast<Json::UInt64>(scenario_.quota);
  c["billing"]["used_bytes"] = static_cast<Json::UInt64>(used_bytes_);
  if (running_) {
    const std::int64_t now = clock_();
    const std::uint64_t read = bytes_read_locked(now);
    const bool reading = now - backup_.start_ms >= backup_.prepare_ms && read < backup_.stop_bytes;
    Json::Value t(Json::objectValue);
    t["transfer"] = static_cast<Json::UInt64>(read);
    t["delta_upload"] = static_cast<Json::UInt64>(static_cast<double>(read) * scenario_.backup.delta_ratio);
    t["total"] = static_cast<Json::UInt64>(scenario_.backup.total_bytes);
    t["speed"] = static_cast<Json::Int64>(reading ? scenario_.backup.rate_bytes_per_second : 0);
    c["transfer"] = t;
  }
  return c;
}

Json::Value DeviceModel::get_status_locked(const Json::Value& request) {
  const std::uint64_t seen = jsonx::get_uint64(request, "log_id");
  Json::Value answer(Json::objectValue);
  answer["status"] = status_locked();
  Json::Value content = linked_ ? content_locked() : Json::Value(Json::objectValue);
  if (!linked_) content["connected"] = false;
  Json::Value logs(Json::arrayValue);
  if (linked_) {
    std::vector<const Json::Value*> fresh;
    for (const auto& entry : logs_)
      if (jsonx::get_uint64(entry, "id") > seen) fresh.push_back(&entry);
    const std::size_t skip = fresh.size() > kLogsPerAnswer ? fresh.size() - kLogsPerAnswer : 0;
    for (std::size_t i = skip; i < fresh.size(); ++i) logs.append(*fresh[i]);
  }
  content["logs"] = logs;
  answer["content"] = content;
  if (linked_) {
    answer["connection"] = connection_locked();
    answer["proxy"] = scenario_.proxy;
  }
  return answer;
}

Json::Value DeviceModel::answer_locked(const std::string& action, const Json::Value& request) {
  Json::Value ok(Json::objectValue);
  ok["success"] = true;

  if (action == "get_status") return get_status_locked(request);

  if (action == "get_connection_info") {
    Json::Value answer(Json::objectValue);
    if (linked_) {
      answer["connection"] = connection_locked();
      answer["proxy"] = scenario_.proxy;
    }
    return answer;
  }

  if (action == "get_auth") {
    if (signin_url_.empty()) return error_answer(5, "the sign-in page is not running");
    Json::Value answer(Json::objectValue);
    answer["redirect_to"] = signin_url_;
    return answer;
  }

  if (action == "get_token") {
    const std::string token = jsonx::get_string(request, "token");
    const auto it = tokens_.find(token);
    if (token.empty() || it == tokens_.end()) {
      SIM_WARN("get_token with a token that was never issued (or already used): '%s'", token.c_str());
      return error_answer(15, "unknown access token");
    }
    tokens_.erase(it);
    signed_in_ = true;
    SIM_INFO("token accepted: signed in as %s", scenario_.email.c_str());
    return ok;
  }

  if (action == "get_site_info") {
    if (!signed_in_ && !linked_) return error_answer(15, "not signed in");
    Json::Value answer(Json::objectValue);
    answer["data"] = scenario_.sites;
    return answer;
  }

  if (action == "create_device") {
    if (!signed_in_) return error_answer(15, "not signed in");
    const std::string zid = jsonx::get_string(request, "zid");
    const std::string sub = jsonx::get_string(request, "subscription_id");
    const std::string type = jsonx::get_string(request, "account_type");
    const Json::Value* chosen = nullptr;
    for (const auto& site : scenario_.sites) {
      const Json::Value& billing = jsonx::get_object(site, "billing");
      if (jsonx::get_string(jsonx::get_object(billing, "region"), "code") == zid &&
          jsonx::get_string(billing, "subscription_id") == sub)
        chosen = &site;
    }
    if (!chosen) {
      SIM_WARN("create_device for a site the account does not have: zid '%s', subscription '%s'", zid.c_str(),
               sub.c_str());
      return error_answer(4, "no such site");
    }
    linked_ = true;
    signed_in_ = false;
    site_ = *chosen;
    account_type_ = type == "nimbra" ? "nimbra" : "vell";
    Json::Value body(Json::objectValue);
    body["email"] = scenario_.email;
    add_log_locked(event::kSignedIn, body, clock_() / 1000);
    save_locked();
    SIM_INFO("device linked to site %s (%s)", zid.c_str(), account_type_.c_str());
    return ok;
  }

  if (action == "logout") {
    if (running_) {
      running_ = false;
      SIM_INFO("log-out stops the running backup");
    }
    linked_ = false;
    signed_in_ = false;
    save_locked();
    SIM_INFO("logged out: the device is not linked any more");
    return ok;
  }

  if (action == "backup_now") {
    if (!linked_) return error_answer(9, "the device is not linked");
    if (running_) {
      add_log_locked(event::kTaskSameBackupExists, Json::Value(Json::objectValue), clock_() / 1000);
      return ok;
    }
    start_backup_locked(event::kTaskStart, std::string());
    return ok;
  }

  if (action == "get_portal_link") {
    const std::string sub = jsonx::get_string(request, "subaction");
    std::string url;
    const auto it = scenario_.portal.find(sub);
    if (it != scenario_.portal.end()) url = it->second;
    if (sub == "web_console" && !jsonx::get_string(site_, "web_console_url").empty())
      url = jsonx::get_string(site_, "web_console_url");
    if (sub != "help" && sub != "restore_portal" && sub != "web_console")
      return error_answer(4, "unknown subaction '" + sub + "'");
    if (url.empty()) return error_answer(4, "no link for '" + sub + "'");
    Json::Value answer(Json::objectValue);
    answer["url"] = url;
    return answer;
  }

  if (action == "update_tray_menu") {
    Json::Value answer = ok;
    answer["billing"]["quota"] = static_cast<Json::UInt64>(scenario_.quota);
    answer["billing"]["used_bytes"] = static_cast<Json::UInt64>(used_bytes_);
    return answer;
  }

  if (action == "get_bandwidth_control") {
    Json::Value answer(Json::objectValue);
    answer["server_config"] =
        scenario_.server_config.isObject() ? scenario_.server_config : Json::Value(Json::objectValue);
    if (client_config_.isObject()) answer["client_config"] = client_config_;
    return answer;
  }

  if (action == "set_bandwidth_control") {
    const Json::Value& bandwidth = jsonx::member(request, "bandwidth");
    if (!jsonx::is_object(bandwidth)) return error_answer(4, "bandwidth must be an object");
    client_config_ = normalise_bandwidth(bandwidth);
    save_locked();
    SIM_INFO("bandwidth settings saved: %s", jsonx::compact(client_config_).c_str());
    return ok;
  }

  SIM_WARN("unknown action '%s'", action.c_str());
  return error_answer(4, "unknown action '" + action + "'");
}

}  // namespace sim
