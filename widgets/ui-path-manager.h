#pragma once
// Process-wide registry of well-known folders ("resource_path", "log_path",
// ...). Start-up fills it; every other part reads it by key.

#include <QHash>
#include <QMutex>
#include <QString>

class UIPathManager {
 public:
  static UIPathManager* getInstance();

  // Stores `path` under `key`, replacing an earlier value.
  void setPath(const QString& key, const QString& path);
  // The path stored under `key`, or an empty string (and a log line) when
  // nothing was stored.
  QString getPath(const QString& key) const;
  bool hasPath(const QString& key) const;
  // Forgets every key (tests).
  void clear();

 private:
  UIPathManager() = default;
  mutable QMutex mutex_;
  QHash<QString, QString> paths_;
};
