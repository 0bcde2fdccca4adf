#pragma once
// The service's status word and the categories the agent interprets.
//
// The value is the integer the service reports as `status`, kept unchanged;
// only bits 12 to 15 (the category), the two "preparing" values and the
// agent's own site-list value carry a meaning here. Every other value passes
// through untouched.

#include <cstdint>

#include <QMetaType>

enum ServiceStatus : std::int32_t {
  StatusUnknown = 0,
  StatusNotLinked = 0x1000,         // category: device not linked (setup needed)
  StatusSiteInfo = 0x1002,          // not linked, the store holding a "get_site_info" answer
                                    // (set by the agent itself; the summary page reads it)
  StatusIdle = 0x2000,              // category: idle between backups
  StatusBackupRunning = 0x3000,     // category: a backup is running
  StatusBackupPreparing = 0x3001,   // running, still preparing
  StatusBackupPreparing2 = 0x3002,  // running, still preparing (second stage)
  StatusError = 0xF000,             // category: error
};

namespace service_status {

constexpr std::int32_t kCategoryMask = 0xF000;

constexpr std::int32_t category(ServiceStatus s) {
  return static_cast<std::int32_t>(s) & kCategoryMask;
}
constexpr bool is_not_linked(ServiceStatus s) {
  return category(s) == StatusNotLinked;
}
constexpr bool is_idle(ServiceStatus s) {
  return category(s) == StatusIdle;
}
constexpr bool is_running(ServiceStatus s) {
  return category(s) == StatusBackupRunning;
}
constexpr bool is_preparing(ServiceStatus s) {
  return s == StatusBackupPreparing || s == StatusBackupPreparing2;
}
constexpr bool is_error(ServiceStatus s) {
  return category(s) == StatusError;
}

// The service's number as a status: the low 32 bits, as the service's own
// 32-bit field holds it.
constexpr ServiceStatus from_int64(std::int64_t v) {
  return static_cast<ServiceStatus>(static_cast<std::int32_t>(static_cast<std::uint32_t>(v & 0xFFFFFFFF)));
}

}  // namespace service_status

Q_DECLARE_TYPEINFO(ServiceStatus, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(ServiceStatus)
