#include "ui-agent/core/status-store.h"

#include <QMutexLocker>

StatusStore& StatusStore::instance() {
  static StatusStore store;
  return store;
}

void StatusStore::getStatus(ServiceStatus& status, Json::Value& content) const {
  QMutexLocker lock(&mutex_);
  status = status_;
  content = content_.value();
}

ServiceStatus StatusStore::status() const {
  QMutexLocker lock(&mutex_);
  return status_;
}

void StatusStore::setStatus(ServiceStatus status, SharedJson content) {
  QMutexLocker lock(&mutex_);
  status_ = status;
  content_ = std::move(content);
}

int StatusStore::getConnectionInfo(ConnectionInfo& info) const {
  QMutexLocker lock(&mutex_);
  if (!has_connection_) return -1;
  info = connection_;
  return 0;
}

void StatusStore::setConnectionInfo(const ConnectionInfo& info) {
  QMutexLocker lock(&mutex_);
  connection_ = info;
  has_connection_ = true;
}

void StatusStore::clearConnection() {
  QMutexLocker lock(&mutex_);
  has_connection_ = false;
  last_log_id_ = 0;
}

std::uint64_t StatusStore::getLastLogId() const {
  QMutexLocker lock(&mutex_);
  return last_log_id_;
}

void StatusStore::setLastLogId(std::uint64_t id) {
  QMutexLocker lock(&mutex_);
  last_log_id_ = id;
}
