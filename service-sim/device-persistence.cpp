// What the model keeps on disk: the state file that survives a restart and
// the "service-status" file an upgrade writes.
#include "service-sim/device-model.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "service-sim/sim-log.h"
#include "vantor-core/lib/json-access.h"

namespace sim {

namespace {

constexpr int kStateVersion = 1;

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

}  // namespace

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
    add_log_locked(event::kResumeCancel, Json::Value(Json::objectValue), now_s);
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

}  // namespace sim
