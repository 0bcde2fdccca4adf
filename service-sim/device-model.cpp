#include "service-sim/device-model.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>

#include "vantor-core/lib/json-access.h"
#include "service-sim/sim-log.h"

namespace sim {

namespace {

constexpr std::size_t kKeptLogs = 200;       // entries the model remembers
constexpr std::size_t kLogsPerAnswer = 100;  // newest entries one get_status carries
constexpr int kStateVersion = 1;

// Event types used by the backup script.
constexpr int kTaskStart = 1101;
constexpr int kTaskFinish = 1102;
constexpr int kTaskCancel = 1103;
constexpr int kTaskError = 1104;
constexpr int kTaskPartial = 1108;
constexpr int kTaskStartByEvent = 1115;
constexpr int kTaskSameBackupExists = 1137;
constexpr int kSignedInEvent = 5001;
constexpr int kCollectDeviceInfo = 7001;
constexpr int kSnapshotStart = 7002;
constexpr int kSnapshotFinish = 7003;
constexpr int kSnapshotError = 7004;
constexpr int kUploadDeviceInfoStart = 7009;
constexpr int kUploadDeviceInfoFinish = 7010;
constexpr int kUploadVolumeStart = 7012;
constexpr int kUploadVolumeFinish = 7013;
constexpr int kUploadVolumeError = 7014;
constexpr int kResumeCancel = 7086;
constexpr int kSnapshotsStartAll = 7096;
constexpr int kSnapshotsFinishAll = 7097;
constexpr int kPlanQuotaExceeded = 8014;

Json::Value volume_body(const std::string& volume) {
  Json::Value body(Json::objectValue);
  body["volume_name"] = volume;
  return body;
}

bool write_file_atomically(const std::string& path, const std::string& text) {
  const std::string tmp = path + ".tmp";
  {
    std::ofstream out(tmp, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out << text;
    out.flush();
    if (!out) return false;
  }
  std::error_code ec;
  std::filesystem::rename(tmp, path, ec);
  return !ec;
}

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

std::int64_t system_clock_ms() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::system_clock::now().time_since_epoch())
      .count();
}

DeviceModel::DeviceModel(Scenario scenario, std::string state_dir, std::string working_space, Clock clock)
    : scenario_(std::move(scenario)),
      state_dir_(std::move(state_dir)),
      working_space_(std::move(working_space)),
      clock_(clock ? std::move(clock) : Clock(system_clock_ms)),
      created_ms_(clock_()) {
  linked_ = scenario_.linked;
  if (scenario_.sites.isArray() && !scenario_.sites.empty()) {
    const Json::ArrayIndex index = static_cast<Json::ArrayIndex>(scenario_.site_index);
    site_ = scenario_.sites[index < scenario_.sites.size() ? index : 0];
    account_type_ =
        jsonx::get_string(jsonx::get_object(scenario_.sites[0], "backup_policy"), "account_type", "vell");
    if (account_type_.empty()) account_type_ = "vell";
  }
  client_config_ = scenario_.client_config;
  last_result_ = scenario_.last_backup_result;
  if (jsonx::has(last_result_, "age_seconds")) {
    // Scenarios date the last backup relative to the start.
    const auto age = static_cast<std::int64_t>(jsonx::get_double(last_result_, "age_seconds"));
    last_result_.removeMember("age_seconds");
    last_result_["last_backup_time"] = static_cast<Json::Int64>(created_ms_ / 1000 - age);
  }
  used_bytes_ = scenario_.used_bytes;
  const std::int64_t now_s = created_ms_ / 1000;
  for (const auto& entry : scenario_.initial_logs) {
    const std::int64_t age = static_cast<std::int64_t>(jsonx::get_double(entry, "age_seconds"));
    add_log_locked(jsonx::get_int32(entry, "type"), jsonx::member(entry, "body"), now_s - age);
  }
  const double next_in = jsonx::get_double(scenario_.schedule, "next_backup_in_seconds", -1);
  if (next_in >= 0) {
    schedule_period_ms_ = std::max<std::int64_t>(1000, static_cast<std::int64_t>(next_in * 1000));
    next_backup_ms_ = created_ms_ + static_cast<std::int64_t>(next_in * 1000);
  }
  if (scenario_.auto_backup_after_seconds >= 0)
    auto_backup_at_ms_ = created_ms_ + static_cast<std::int64_t>(scenario_.auto_backup_after_seconds * 1000);
}

std::string DeviceModel::state_file() const {
  return state_dir_.empty() ? std::string() : state_dir_ + "/sim-state.json";
}

std::string DeviceModel::load_state() {
  std::lock_guard<std::mutex> lock(mutex_);
  const std::string path = state_file();
  if (path.empty()) return "no state folder: nothing is kept across restarts";
  std::ifstream in(path, std::ios::binary);
  if (!in) return "no state file yet at " + path + ": starting from the scenario";
  std::ostringstream text;
  text << in.rdbuf();
  in.close();
  Json::Value state;
  std::string error;
  if (!jsonx::parse(text.str(), state, &error) || !state.isObject() ||
      jsonx::get_int32(state, "version") != kStateVersion) {
    std::error_code ec;
    std::filesystem::rename(path, path + ".bad", ec);
    save_locked();
    return "state file " + path + " cannot be read (" + (error.empty() ? "wrong layout" : error) +
           "); kept as " + path + ".bad, starting from the scenario";
  }
  linked_ = jsonx::get_bool(state, "linked");
  if (jsonx::has(state, "site") && jsonx::is_object(jsonx::member(state, "site")))
    site_ = jsonx::member(state, "site");
  account_type_ = jsonx::get_string(state, "account_type", account_type_);
  client_config_ = jsonx::is_object(jsonx::member(state, "client_config"))
                       ? jsonx::member(state, "client_config")
                       : Json::Value();
  last_result_ = jsonx::is_object(jsonx::member(state, "last_backup_result"))
                     ? jsonx::member(state, "last_backup_result")
                     : Json::Value();
  used_bytes_ = jsonx::get_uint64(state, "used_bytes", used_bytes_);
  log_id_ = jsonx::get_uint64(state, "log_id");
  notification_id_ = jsonx::get_int64(state, "notification_id");
  logs_.clear();
  for (const auto& entry : jsonx::get_array(state, "logs")) {
    if (jsonx::is_object(entry) && jsonx::get_uint64(entry, "id") <= log_id_) logs_.push_back(entry);
  }
  std::string line = "resumed from " + path + ": " + (linked_ ? "linked" : "not linked") + ", log id " +
                     std::to_string(log_id_);
  if (jsonx::get_bool(state, "backup_running")) {
    // The service went away in the middle of a backup: that run is lost, as
    // after a real restart.
    Json::Value result(Json::objectValue);
    const std::int64_t now_s = clock_() / 1000;
    add_log_locked(kResumeCancel, Json::Value(Json::objectValue), now_s);
    result["last_backup_status"] = outcome_code(BackupOutcome::kCancelled);
    result["last_backup_time"] = static_cast<Json::Int64>(now_s);
    result["backed_up"] = true;
    last_result_ = result;
    line += "; the backup that was running is recorded as cancelled";
  }
  save_locked();
  return line;
}

void DeviceModel::save_locked() {
  const std::string path = state_file();
  if (path.empty()) return;
  Json::Value state(Json::objectValue);
  state["version"] = kStateVersion;
  state["scenario"] = scenario_.name;
  state["linked"] = linked_;
  state["site"] = site_;
  state["account_type"] = account_type_;
  state["client_config"] = client_config_;
  state["last_backup_result"] = last_result_;
  state["used_bytes"] = static_cast<Json::UInt64>(used_bytes_);
  state["log_id"] = static_cast<Json::UInt64>(log_id_);
  state["notification_id"] = static_cast<Json::Int64>(notification_id_);
  state["backup_running"] = running_;
  Json::Value logs(Json::arrayValue);
  for (const auto& entry : logs_) logs.append(entry);
  state["logs"] = logs;
  std::error_code ec;
  std::filesystem::create_directories(state_dir_, ec);
  if (!write_file_atomically(path, state.toStyledString()))
    SIM_ERROR("cannot write the state file %s", path.c_str());
}

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

std::vector<Json::Value> DeviceModel::take_notifications() {
  std::lock_guard<std::mutex> lock(mutex_);
  std::vector<Json::Value> out;
  out.swap(outbox_);
  return out;
}

Json::Value DeviceModel::notification_request(const std::string& site_path, std::int64_t id, int type,
                                              const Json::Value& data, int action_type, bool nimbra_user) {
  Json::Value request(Json::objectValue);
  request["action"] = "notifications";
  request["site_path"] = site_path;
  Json::Value item(Json::objectValue);
  item["id"] = static_cast<Json::Int64>(id);
  item["type"] = type;
  item["data"] = data.isNull() ? Json::Value(Json::objectValue) : data;
  item["action_type"] = action_type;
  item["noti_nimbrauser"] = nimbra_user;
  request["notifications"] = Json::Value(Json::arrayValue);
  request["notifications"].append(item);
  return request;
}

std::string DeviceModel::site_path_locked() const {
  return jsonx::get_string(site_, "web_console_url");
}

void DeviceModel::push_locked(int type, const Json::Value& data) {
  outbox_.push_back(
      notification_request(site_path_locked(), ++notification_id_, type, data, 1, account_type_ == "nimbra"));
}

void DeviceModel::add_log_locked(int type, const Json::Value& body, std::int64_t time_s) {
  Json::Value entry(Json::objectValue);
  entry["id"] = static_cast<Json::UInt64>(++log_id_);
  entry["time"] = static_cast<Json::Int64>(time_s);
  entry["type"] = type;
  entry["body"] = body.isObject() ? body : Json::Value(Json::objectValue);
  logs_.push_back(entry);
  while (logs_.size() > kKeptLogs) logs_.pop_front();
}

int DeviceModel::status_code() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return status_locked();
}
bool DeviceModel::linked() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return linked_;
}
bool DeviceModel::backup_running() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return running_;
}
std::uint64_t DeviceModel::last_log_id() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return log_id_;
}
std::uint64_t DeviceModel::used_bytes() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return used_bytes_;
}
Json::Value DeviceModel::client_config() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return client_config_;
}

int DeviceModel::status_locked() const {
  if (!linked_) return signed_in_ ? status::kSignedIn : status::kNotLinked;
  if (running_) {
    const std::int64_t offset = clock_() - backup_.start_ms;
    if (offset < backup_.prepare_ms / 2) return status::kPreparingDevice;
    if (offset < backup_.prepare_ms) return status::kPreparingSnapshot;
    return status::kBackingUp;
  }
  if (scenario_.status_error.isObject()) return status::kServiceError;
  return scenario_.connected ? status::kIdle : status::kIdleOffline;
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

std::uint64_t DeviceModel::bytes_read_locked(std::int64_t now) const {
  const std::int64_t reading_ms = now - backup_.start_ms - backup_.prepare_ms;
  if (reading_ms <= 0) return 0;
  const double bytes = static_cast<double>(reading_ms) * scenario_.backup.rate_bytes_per_second / 1000.0;
  if (bytes >= static_cast<double>(backup_.stop_bytes)) return backup_.stop_bytes;
  return static_cast<std::uint64_t>(bytes);
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
    add_log_locked(kSignedInEvent, body, clock_() / 1000);
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
      add_log_locked(kTaskSameBackupExists, Json::Value(Json::objectValue), clock_() / 1000);
      return ok;
    }
    start_backup_locked(kTaskStart, std::string());
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

void DeviceModel::start_backup_locked(int trigger_type, const std::string& trigger) {
  const BackupPlan& plan = scenario_.backup;
  Backup b;
  b.start_ms = clock_();
  b.prepare_ms = static_cast<std::int64_t>(plan.prepare_seconds * 1000);
  b.outcome = plan.outcome;
  const std::uint64_t total = plan.total_bytes;
  b.stop_bytes = total;
  if (b.outcome == BackupOutcome::kFailed || b.outcome == BackupOutcome::kCancelled)
    b.stop_bytes = static_cast<std::uint64_t>(static_cast<double>(total) * plan.stop_at);
  // A backup that would upload past the quota stops where the quota is full.
  const double upload_per_byte = plan.delta_ratio;
  if (upload_per_byte > 0 && used_bytes_ < scenario_.quota) {
    const double room = static_cast<double>(scenario_.quota - used_bytes_) / upload_per_byte;
    if (room < static_cast<double>(b.stop_bytes)) {
      b.stop_bytes = static_cast<std::uint64_t>(room);
      b.outcome = BackupOutcome::kFailed;
      b.quota_exceeded = true;
    }
  } else if (upload_per_byte > 0 && used_bytes_ >= scenario_.quota) {
    b.stop_bytes = 0;
    b.outcome = BackupOutcome::kFailed;
    b.quota_exceeded = true;
  }
  const double rate = plan.rate_bytes_per_second;
  auto at_bytes = [&](double bytes) {
    return b.prepare_ms + static_cast<std::int64_t>(std::ceil(bytes * 1000.0 / rate));
  };
  const std::int64_t p = b.prepare_ms;
  auto& ev = b.events;
  if (trigger_type == kTaskStartByEvent) {
    Json::Value body(Json::objectValue);
    body["trigger_event"] = trigger;
    ev.push_back({0, kTaskStartByEvent, body});
  }
  ev.push_back({0, kTaskStart, Json::Value(Json::objectValue)});
  ev.push_back({0, kCollectDeviceInfo, Json::Value(Json::objectValue)});
  ev.push_back({p * 25 / 100, kUploadDeviceInfoStart, Json::Value(Json::objectValue)});
  ev.push_back({p * 45 / 100, kUploadDeviceInfoFinish, Json::Value(Json::objectValue)});
  ev.push_back({p / 2, kSnapshotsStartAll, Json::Value(Json::objectValue)});
  const std::size_t n = plan.volumes.size();
  for (std::size_t i = 0; i < n; ++i) {
    const std::int64_t base = p / 2 + static_cast<std::int64_t>(static_cast<double>(p) * 0.4 * i / n);
    ev.push_back({base, kSnapshotStart, volume_body(plan.volumes[i])});
    ev.push_back({base + static_cast<std::int64_t>(static_cast<double>(p) * 0.2 / n), kSnapshotFinish,
                  volume_body(plan.volumes[i])});
  }
  ev.push_back({p * 95 / 100, kSnapshotsFinishAll, Json::Value(Json::objectValue)});

  const double share = static_cast<double>(total) / static_cast<double>(n);
  const double stop = static_cast<double>(b.stop_bytes);
  std::size_t stopped_in = n;
  for (std::size_t i = 0; i < n; ++i) {
    const double begin = share * static_cast<double>(i);
    const double end = share * static_cast<double>(i + 1);
    if (begin > stop || (begin == stop && stop < static_cast<double>(total))) break;
    Json::Value start = volume_body(plan.volumes[i]);
    start["cbt"] = plan.cbt;
    ev.push_back({at_bytes(begin), kUploadVolumeStart, start});
    if (end > stop && stop < static_cast<double>(total)) {
      stopped_in = i;
      break;
    }
    const bool partial_victim = b.outcome == BackupOutcome::kPartial && i + 1 == n;
    ev.push_back({at_bytes(end), partial_victim ? kUploadVolumeError : kUploadVolumeFinish,
                  volume_body(plan.volumes[i])});
  }
  b.end_ms = at_bytes(stop);
  if (b.outcome == BackupOutcome::kFailed) {
    if (b.quota_exceeded) {
      ev.push_back({b.end_ms, kPlanQuotaExceeded, Json::Value(Json::objectValue)});
    } else {
      Json::Value body = volume_body(plan.volumes[stopped_in < n ? stopped_in : n - 1]);
      body["error_code"] = plan.error_code;
      ev.push_back({b.end_ms, kSnapshotError, body});
    }
  }
  int result_type = kTaskFinish;
  if (b.outcome == BackupOutcome::kPartial) result_type = kTaskPartial;
  if (b.outcome == BackupOutcome::kFailed) result_type = kTaskError;
  if (b.outcome == BackupOutcome::kCancelled) result_type = kTaskCancel;
  ev.push_back({b.end_ms, result_type, Json::Value(Json::objectValue)});
  std::stable_sort(ev.begin(), ev.end(),
                   [](const LogEvent& a, const LogEvent& c) { return a.at_ms < c.at_ms; });
  backup_ = std::move(b);
  running_ = true;
  save_locked();
  SIM_INFO("backup started: %llu bytes at %.0f B/s, ends %s after %.1f s",
           static_cast<unsigned long long>(plan.total_bytes), rate, outcome_name(backup_.outcome),
           static_cast<double>(backup_.end_ms) / 1000.0);
}

void DeviceModel::finish_backup_locked() {
  const std::int64_t now = clock_();
  running_ = false;
  const std::uint64_t read = backup_.stop_bytes;
  const std::uint64_t uploaded =
      static_cast<std::uint64_t>(static_cast<double>(read) * scenario_.backup.delta_ratio);
  const std::uint64_t before = used_bytes_;
  used_bytes_ =
      std::min<std::uint64_t>(scenario_.quota > before ? scenario_.quota : before, before + uploaded);
  Json::Value result(Json::objectValue);
  result["last_backup_status"] = outcome_code(backup_.outcome);
  result["last_backup_time"] = static_cast<Json::Int64>((backup_.start_ms + backup_.end_ms) / 1000);
  result["backed_up"] = true;
  last_result_ = result;
  Json::Value data(Json::objectValue);
  data["status"] = outcome_code(backup_.outcome);
  push_locked(notification::kBackupFinished, data);
  const double quota = static_cast<double>(scenario_.quota);
  auto crossed = [&](double share) {
    return quota > 0 && static_cast<double>(before) < quota * share &&
           static_cast<double>(used_bytes_) >= quota * share;
  };
  Json::Value size(Json::objectValue);
  size["total_size"] = static_cast<Json::UInt64>(scenario_.quota);
  if (crossed(0.85)) push_locked(notification::kStorageNearlyFull, size);
  if (crossed(0.95)) push_locked(notification::kStorageFull, size);
  save_locked();
  SIM_INFO("backup ended %s at %lld; used %llu of %llu bytes", outcome_name(backup_.outcome),
           static_cast<long long>(now), static_cast<unsigned long long>(used_bytes_),
           static_cast<unsigned long long>(scenario_.quota));
}

void DeviceModel::write_service_status_locked(const std::string& text) {
  if (working_space_.empty()) return;
  std::error_code ec;
  std::filesystem::create_directories(working_space_, ec);
  const std::string path = working_space_ + "/service-status";
  if (!write_file_atomically(path, text)) {
    SIM_ERROR("cannot write %s", path.c_str());
    return;
  }
  SIM_INFO("service-status is now '%s'", text.empty() ? "" : text.substr(0, text.find('\n')).c_str());
}

void DeviceModel::advance() {
  std::lock_guard<std::mutex> lock(mutex_);
  const std::int64_t now = clock_();

  if (scenario_.upgrade.enabled) {
    const std::int64_t start =
        created_ms_ + static_cast<std::int64_t>(scenario_.upgrade.start_after_seconds * 1000);
    const std::int64_t end = start + static_cast<std::int64_t>(scenario_.upgrade.duration_seconds * 1000);
    if (upgrade_stage_ == 0 && now >= start) {
      upgrade_stage_ = 1;
      write_service_status_locked("updating\n");
    }
    if (upgrade_stage_ == 1 && now >= end) {
      upgrade_stage_ = 2;
      write_service_status_locked(scenario_.upgrade.fails ? "update_error\n" : "");
    }
  }

  if (linked_ && !running_) {
    if (auto_backup_at_ms_ >= 0 && now >= auto_backup_at_ms_) {
      auto_backup_at_ms_ = -1;
      start_backup_locked(kTaskStart, std::string());
    } else if (next_backup_ms_ > 0 && now >= next_backup_ms_) {
      while (next_backup_ms_ <= now) next_backup_ms_ += schedule_period_ms_;
      start_backup_locked(kTaskStart, std::string());
    }
  }
  if (!running_) return;
  bool changed = false;
  const std::int64_t offset = now - backup_.start_ms;
  while (backup_.next_event < backup_.events.size() && backup_.events[backup_.next_event].at_ms <= offset) {
    const LogEvent& e = backup_.events[backup_.next_event++];
    add_log_locked(e.type, e.body, (backup_.start_ms + e.at_ms) / 1000);
    changed = true;
  }
  if (offset >= backup_.end_ms) {
    finish_backup_locked();
  } else if (changed) {
    save_locked();
  }
}

Json::Value make_hostile(const Json::Value& answer) {
  switch (answer.type()) {
    case Json::intValue:
    case Json::uintValue:
    case Json::realValue:
      return Json::Value(answer.asString());  // safe: the value is numeric here
    case Json::booleanValue:
      return Json::Value(answer.asBool() ? "true" : "false");
    case Json::stringValue: {
      const std::string s = answer.asString();
      if (s.empty()) return Json::Value(0);
      Json::Value wrapped(Json::arrayValue);
      wrapped.append(s);
      return wrapped;
    }
    case Json::arrayValue: {
      Json::Value out(Json::arrayValue);
      for (const auto& v : answer) out.append(make_hostile(v));
      return out;
    }
    case Json::objectValue: {
      Json::Value out(Json::objectValue);
      for (const auto& name : answer.getMemberNames()) out[name] = make_hostile(answer[name]);
      return out;
    }
    case Json::nullValue:
      break;
  }
  return Json::Value(Json::objectValue);
}

}  // namespace sim
