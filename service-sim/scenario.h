#pragma once
// A scenario: the script of one simulated service run, read from a JSON file
// under service-sim/scenarios/. Every member is optional; a member that is
// present must have the documented type, and unknown members are refused, so
// a typo in a scenario file is reported instead of silently ignored.
// service-sim/scenarios/README.md documents the format.

#include <json/value.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace sim {

// How a backup run ends.
enum class BackupOutcome { kSuccess, kPartial, kFailed, kCancelled };

// Result codes as the agent reads them in last_backup_result and in the data
// of a type-7 notification.
int outcome_code(BackupOutcome outcome);
const char* outcome_name(BackupOutcome outcome);

struct BackupPlan {
  double prepare_seconds = 4.0;              // 0x3001 for the first half, 0x3002 for the second
  std::uint64_t total_bytes = 2000000000;    // bytes to read
  double rate_bytes_per_second = 200000000;  // read speed (the `speed` the agent shows)
  double delta_ratio = 0.35;                 // share of the read bytes that are uploaded
  std::vector<std::string> volumes{"C:", "D:"};
  bool cbt = true;
  BackupOutcome outcome = BackupOutcome::kSuccess;
  double stop_at = 0.6;                   // failed / cancelled: fraction of total_bytes where the run stops
  std::string error_code = "0x80070005";  // failed: error code in the event bodies
};

// An error answer a given action returns: {"error":{"code":N,"base_url":...}}.
struct ErrorRule {
  std::int64_t code = 4;
  std::string base_url;
  int times = -1;  // how many requests get it; -1 = all of them
};

// Transport faults, counted over all requests (1-based request number n):
// a fault of period p hits the requests with n % p == 0.
struct Faults {
  int drop_every = 0;     // read the request, close without an answer
  int garbage_every = 0;  // answer text that is not JSON
  int late_every = 0;     // answer after late_ms
  int late_ms = 0;
  int refuse_first = 0;  // close the first N connections without reading them
};

struct UpgradePlan {
  bool enabled = false;
  double start_after_seconds = 0;
  double duration_seconds = 10;
  bool fails = false;  // ends with "update_error" instead of an empty file
};

struct Scenario {
  std::string name;
  std::string description;
  std::string file;  // where it was loaded from

  // Account that the sign-in page signs into.
  std::string email = "alex@example.com";
  std::string username = "alex";
  std::string address = "cloud.nimbrabackup.example";
  std::int64_t port = 443;
  bool ssl_allow_untrust = false;
  std::int64_t backup_role = 3;
  std::string is_auth_fork = "0";
  Json::Value proxy;  // object sent as `proxy`

  Json::Value sites;  // array of get_site_info `data` elements

  // The device at start (a state file, when present, wins).
  bool linked = false;
  int site_index = 0;  // site of a device that starts linked
  std::uint64_t quota = 1099511627776ULL;
  std::uint64_t used_bytes = 0;
  Json::Value last_backup_result;  // object or null
  bool connected = true;
  Json::Value status_error;  // object {"code":N} puts the device in 0xF001

  Json::Value schedule;  // {"schedule_type":N} and/or {"next_backup_in_seconds":S}
  BackupPlan backup;
  double auto_backup_after_seconds = -1;  // < 0: only "backup_now" starts one

  Json::Value server_config;                  // get_bandwidth_control `server_config`
  Json::Value client_config;                  // initial `client_config` (null: none saved)
  std::map<std::string, std::string> portal;  // subaction -> url
  std::map<std::string, ErrorRule> errors;    // action -> error answer
  Faults faults;
  bool hostile = false;        // answers carry members of the wrong types
  double answer_delay_ms = 0;  // every answer waits this long
  UpgradePlan upgrade;
  Json::Value initial_logs;  // array of {type, body, age_seconds}
};

// Parses scenario text. On failure returns false, leaves `out` as it was and
// puts one sentence naming the file and the offending member into `*error`
// (when given).
bool parse_scenario(const std::string& text, const std::string& file_label, Scenario& out,
                    std::string* error = nullptr);
// Reads and parses a file.
bool load_scenario(const std::string& path, Scenario& out, std::string* error = nullptr);

// The scenario used when none is named: one linked device, idle.
Scenario default_scenario();

}  // namespace sim
