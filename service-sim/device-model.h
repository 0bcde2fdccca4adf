#pragma once
// The simulated service's model of one device: whether it is linked to an
// account, the sign-in, the storage site, the running backup with its
// progress and its activity-log entries, the quota, the bandwidth settings and
// the service upgrade. Every request of the service protocol is answered by
// handle(); time moves on through advance(). Both may be called from any
// thread: one mutex guards the whole model.
//
// The model keeps what a real service keeps across a restart in
// <state dir>/sim-state.json (linked or not, site, account type, client
// bandwidth settings, last backup result, used bytes, the newest activity-log
// entries and the log id counter).
//
// The class is implemented in one file per job: device-model.cpp (its state,
// the activity log, notifications, observers), device-requests.cpp (handle()
// and the answer to each action), device-backup.cpp (a backup's start,
// progress, result; advance()) and device-persistence.cpp (the state file and
// the upgrade's service-status file).

#include <json/value.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "service-sim/scenario.h"

namespace sim {

// Status codes, by category (status & 0xF000).
namespace status {
inline constexpr int kNotLinked = 0x1001;          // no account; the agent shows its wizard
inline constexpr int kSignedIn = 0x1002;           // token accepted, device not created yet
inline constexpr int kIdle = 0x2001;               // linked, between backups
inline constexpr int kIdleOffline = 0x2002;        // linked, the cloud cannot be reached
inline constexpr int kPreparingDevice = 0x3001;    // backup: collecting device information
inline constexpr int kPreparingSnapshot = 0x3002;  // backup: taking snapshots
inline constexpr int kBackingUp = 0x3003;          // backup: reading and uploading volumes
inline constexpr int kServiceError = 0xF001;       // the service is in error; content.error.code says why
}  // namespace status

// Notification types pushed to the agent.
namespace notification {
inline constexpr int kBackupFinished = 7;
inline constexpr int kStorageNearlyFull = 8;
inline constexpr int kStorageFull = 9;
}  // namespace notification

// Activity-log event types the model writes.
namespace event {
inline constexpr int kTaskStart = 1101;
inline constexpr int kTaskFinish = 1102;
inline constexpr int kTaskCancel = 1103;
inline constexpr int kTaskError = 1104;
inline constexpr int kTaskPartial = 1108;
inline constexpr int kTaskStartByEvent = 1115;
inline constexpr int kTaskSameBackupExists = 1137;
inline constexpr int kSignedIn = 5001;
inline constexpr int kCollectDeviceInfo = 7001;
inline constexpr int kSnapshotStart = 7002;
inline constexpr int kSnapshotFinish = 7003;
inline constexpr int kSnapshotError = 7004;
inline constexpr int kUploadDeviceInfoStart = 7009;
inline constexpr int kUploadDeviceInfoFinish = 7010;
inline constexpr int kUploadVolumeStart = 7012;
inline constexpr int kUploadVolumeFinish = 7013;
inline constexpr int kUploadVolumeError = 7014;
inline constexpr int kResumeCancel = 7086;
inline constexpr int kSnapshotsStartAll = 7096;
inline constexpr int kSnapshotsFinishAll = 7097;
inline constexpr int kPlanQuotaExceeded = 8014;
}  // namespace event

// Milliseconds since the epoch; replaced by a hand-driven clock in tests.
using Clock = std::function<std::int64_t()>;
std::int64_t system_clock_ms();

class DeviceModel {
 public:
  // `state_dir` may be empty (nothing is kept); `working_space` is where the
  // "service-status" file is written during an upgrade.
  DeviceModel(Scenario scenario, std::string state_dir, std::string working_space,
              Clock clock = system_clock_ms);

  // Reads the state file when there is one; a state file that cannot be read
  // is set aside as sim-state.json.bad and the scenario's start is used.
  // Returns a line for the log describing what happened.
  std::string load_state();

  // Answers one request (already parsed). Never throws.
  Json::Value handle(const Json::Value& request);

  // Moves the backup and the upgrade along to the clock's time.
  void advance();

  // Sign-in: the address "get_auth" answers with, set by the sign-in server.
  void set_signin_url(const std::string& url);
  // A fresh token for the browser return; "get_token" accepts each once.
  std::string issue_token();
  bool token_pending(const std::string& token) const;

  // Notifications produced since the last call, each a whole
  // {"action":"notifications",...} request for the agent's pipe.
  std::vector<Json::Value> take_notifications();
  // Builds one such request (used by the notify command too).
  static Json::Value notification_request(const std::string& site_path, std::int64_t id, int type,
                                          const Json::Value& data, int action_type, bool nimbra_user);

  // Observers for tests and the log.
  int status_code() const;
  bool linked() const;
  bool backup_running() const;
  std::uint64_t last_log_id() const;
  std::uint64_t used_bytes() const;
  Json::Value client_config() const;
  std::string state_file() const;

 private:
  struct LogEvent {
    std::int64_t at_ms;  // offset from the backup's start
    int type;
    Json::Value body;
  };
  struct Backup {
    std::int64_t start_ms = 0;
    std::int64_t prepare_ms = 0;
    std::uint64_t stop_bytes = 0;  // where reading ends (total, or the failure point)
    std::int64_t end_ms = 0;       // offset of the result
    BackupOutcome outcome = BackupOutcome::kSuccess;
    bool quota_exceeded = false;
    std::vector<LogEvent> events;
    std::size_t next_event = 0;
  };

  Json::Value answer_locked(const std::string& action, const Json::Value& request);
  Json::Value get_status_locked(const Json::Value& request);
  Json::Value connection_locked() const;
  Json::Value content_locked();
  int status_locked() const;
  void start_backup_locked(int trigger_type, const std::string& trigger);
  void finish_backup_locked();
  std::uint64_t bytes_read_locked(std::int64_t now) const;
  void add_log_locked(int type, const Json::Value& body, std::int64_t time_s);
  void push_locked(int type, const Json::Value& data);
  void save_locked();
  void write_service_status_locked(const std::string& text);
  std::string site_path_locked() const;
  Json::Value error_answer(std::int64_t code, const std::string& message,
                           const std::string& base_url = std::string()) const;

  mutable std::mutex mutex_;
  Scenario scenario_;
  std::string state_dir_;
  std::string working_space_;
  Clock clock_;
  std::int64_t created_ms_;

  // Kept across restarts.
  bool linked_ = false;
  Json::Value site_;
  std::string account_type_ = "vell";
  Json::Value client_config_;
  Json::Value last_result_;
  std::uint64_t used_bytes_ = 0;
  std::uint64_t log_id_ = 0;
  std::int64_t notification_id_ = 0;
  std::deque<Json::Value> logs_;  // newest last, at most kKeptLogs

  // This run only.
  bool signed_in_ = false;
  std::string signin_url_;
  std::set<std::string> tokens_;
  bool running_ = false;
  Backup backup_;
  std::int64_t next_backup_ms_ = 0;  // 0: no dated schedule
  std::int64_t schedule_period_ms_ = 0;
  std::int64_t auto_backup_at_ms_ = -1;
  int upgrade_stage_ = 0;  // 0 not started, 1 updating, 2 over
  std::map<std::string, int> error_uses_;
  std::vector<Json::Value> outbox_;
};

}  // namespace sim
