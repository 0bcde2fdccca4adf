#pragma once
// The latest service state, shared by the status poller (its own thread) and
// the client manager (main thread). Every operation holds the one mutex for
// its whole duration, and only for that.

#include <json/value.h>

#include <cstdint>

#include <QMutex>

#include "ui-agent/core/connection-info.h"
#include "ui-agent/core/json-meta-type.h"
#include "ui-agent/core/service-status.h"

class StatusStore {
 public:
  // The process-wide store, created on first use.
  static StatusStore& instance();

  StatusStore() = default;
  StatusStore(const StatusStore&) = delete;
  StatusStore& operator=(const StatusStore&) = delete;

  void getStatus(ServiceStatus& status, Json::Value& content) const;
  // The status alone, without copying its content.
  ServiceStatus status() const;
  // Keeps `content` shared with whoever else holds it (no copy).
  void setStatus(ServiceStatus status, SharedJson content);

  // 0 and `info` filled when a connection is held; otherwise -1 and `info`
  // left as it was.
  int getConnectionInfo(ConnectionInfo& info) const;
  void setConnectionInfo(const ConnectionInfo& info);
  // Forgets the connection and the last seen log id (log-out, unlinking).
  void clearConnection();

  std::uint64_t getLastLogId() const;
  void setLastLogId(std::uint64_t id);

 private:
  mutable QMutex mutex_;
  ServiceStatus status_ = StatusUnknown;
  SharedJson content_;
  ConnectionInfo connection_;
  bool has_connection_ = false;
  std::uint64_t last_log_id_ = 0;
};
