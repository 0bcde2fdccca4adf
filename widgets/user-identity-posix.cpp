#include <unistd.h>

#include <QDir>

#include "user-identity.h"

namespace user_identity {

QString currentUserTag() {
  return QString::number(static_cast<qulonglong>(::getuid()));
}

QString runtimeFolder() {
  QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (dir.isEmpty() || !QDir(dir).exists()) dir = QDir::tempPath();
  return dir;
}

QString localServerName(const QString& base) {
  const QString full = QDir(runtimeFolder()).filePath(base + QStringLiteral(".sock"));
  return full.toUtf8().size() < 100 ? full : base;
}

}  // namespace user_identity
