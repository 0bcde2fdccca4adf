// The backup's life: its script of activity-log events planned at the
// start, the bytes read as time moves on, the result and its notifications.
// advance() also moves the scheduled backups and the upgrade along.
#include "service-sim/device-model.h"

#include <algorithm>
#include <cmath>

#include "service-sim/sim-log.h"
#include "vantor-core/lib/json-access.h"

namespace sim {

namespace {

Json::Value volume_body(const std::string& volume) {
  Json::Value body(Json::objectValue);
  body["volume_name"] = volume;
  return body;
}

}  // namespace

std::uint64_t DeviceModel::bytes_read_locked(std::int64_t now) const {
  const std::int64_t reading_ms = now - backup_.start_ms - backup_.prepare_ms;
  if (reading_ms <= 0) return 0;
  const double bytes = static_cast<double>(reading_ms) * scenario_.backup.rate_bytes_per_second / 1000.0;
  if (bytes >= static_cast<double>(backup_.stop_bytes)) return backup_.stop_bytes;
  return static_cast<std::uint64_t>(bytes);
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
  if (trigger_type == event::kTaskStartByEvent) {
    Json::Value body(Json::objectValue);
    body["trigger_event"] = trigger;
    ev.push_back({0, event::kTaskStartByEvent, body});
  }
  ev.push_back({0, event::kTaskStart, Json::Value(Json::objectValue)});
  ev.push_back({0, event::kCollectDeviceInfo, Json::Value(Json::objectValue)});
  ev.push_back({p * 25 / 100, event::kUploadDeviceInfoStart, Json::Value(Json::objectValue)});
  ev.push_back({p * 45 / 100, event::kUploadDeviceInfoFinish, Json::Value(Json::objectValue)});
  ev.push_back({p / 2, event::kSnapshotsStartAll, Json::Value(Json::objectValue)});
  const std::size_t n = plan.volumes.size();
  for (std::size_t i = 0; i < n; ++i) {
    const std::int64_t base = p / 2 + static_cast<std::int64_t>(static_cast<double>(p) * 0.4 * i / n);
    ev.push_back({base, event::kSnapshotStart, volume_body(plan.volumes[i])});
    ev.push_back({base + static_cast<std::int64_t>(static_cast<double>(p) * 0.2 / n), event::kSnapshotFinish,
                  volume_body(plan.volumes[i])});
  }
  ev.push_back({p * 95 / 100, event::kSnapshotsFinishAll, Json::Value(Json::objectValue)});

  const double share = static_cast<double>(total) / static_cast<double>(n);
  const double stop = static_cast<double>(b.stop_bytes);
  std::size_t stopped_in = n;
  for (std::size_t i = 0; i < n; ++i) {
    const double begin = share * static_cast<double>(i);
    const double end = share * static_cast<double>(i + 1);
    if (begin > stop || (begin == stop && stop < static_cast<double>(total))) break;
    Json::Value start = volume_body(plan.volumes[i]);
    start["cbt"] = plan.cbt;
    ev.push_back({at_bytes(begin), event::kUploadVolumeStart, start});
    if (end > stop && stop < static_cast<double>(total)) {
      stopped_in = i;
      break;
    }
    const bool partial_victim = b.outcome == BackupOutcome::kPartial && i + 1 == n;
    ev.push_back({at_bytes(end), partial_victim ? event::kUploadVolumeError : event::kUploadVolumeFinish,
                  volume_body(plan.volumes[i])});
  }
  b.end_ms = at_bytes(stop);
  if (b.outcome == BackupOutcome::kFailed) {
    if (b.quota_exceeded) {
      ev.push_back({b.end_ms, event::kPlanQuotaExceeded, Json::Value(Json::objectValue)});
    } else {
      Json::Value body = volume_body(plan.volumes[stopped_in < n ? stopped_in : n - 1]);
      body["error_code"] = plan.error_code;
      ev.push_back({b.end_ms, event::kSnapshotError, body});
    }
  }
  int result_type = event::kTaskFinish;
  if (b.outcome == BackupOutcome::kPartial) result_type = event::kTaskPartial;
  if (b.outcome == BackupOutcome::kFailed) result_type = event::kTaskError;
  if (b.outcome == BackupOutcome::kCancelled) result_type = event::kTaskCancel;
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
      start_backup_locked(event::kTaskStart, std::string());
    } else if (next_backup_ms_ > 0 && now >= next_backup_ms_) {
      while (next_backup_ms_ <= now) next_backup_ms_ += schedule_period_ms_;
      start_backup_locked(event::kTaskStart, std::string());
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

}  // namespace sim
