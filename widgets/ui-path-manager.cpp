#include "widgets/ui-path-manager.h"

#include "logging/logger.h"

UIPathManager* UIPathManager::getInstance() {
  static UIPathManager instance;
  return &instance;
}

void UIPathManager::setPath(const QString& key, const QString& path) {
  QMutexLocker lock(&mutex_);
  paths_.insert(key, path);
}

QString UIPathManager::getPath(const QString& key) const {
  QMutexLocker lock(&mutex_);
  const auto it = paths_.constFind(key);
  if (it == paths_.constEnd()) {
    LOG_WARN(vlog::kDefaultComponent, "no path registered under key [%s]", qUtf8Printable(key));
    return QString();
  }
  return it.value();
}

bool UIPathManager::hasPath(const QString& key) const {
  QMutexLocker lock(&mutex_);
  return paths_.contains(key);
}

void UIPathManager::clear() {
  QMutexLocker lock(&mutex_);
  paths_.clear();
}
