#include <windows.h>

#include <QDir>

#include "user-identity.h"

namespace user_identity {

QString currentUserTag() {
  wchar_t name[256];
  DWORD size = 256;
  if (!::GetUserNameW(name, &size) || size == 0) return QStringLiteral("user");
  QString tag = QString::fromWCharArray(name, static_cast<int>(size) - 1);
  // Keep it usable in a pipe and file name.
  for (QChar& c : tag)
    if (!c.isLetterOrNumber() && c != QLatin1Char('-') && c != QLatin1Char('_')) c = QLatin1Char('_');
  return tag;
}

QString runtimeFolder() {
  return QDir::tempPath();
}

QString localServerName(const QString& base) {
  return base;
}

}  // namespace user_identity
