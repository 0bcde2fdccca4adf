// The model's own state: its start from the scenario, the activity log, the
// notifications for the agent, the observers and the status code.
#include "service-sim/device-model.h"

#include <algorithm>
#include <chrono>

#include "service-sim/sim-log.h"
#include "vantor-core/lib/json-access.h"

namespace sim {

namespace {

constexpr std::size_t kKeptLogs = 200;  // entries the model remembers

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

}  // namespace sim
