#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <QDir>
#include <QFile>
#include <QHash>

#include "logging/logger.h"
#include "widgets/user-identity.h"

namespace user_identity {

QString current_user_tag() {
  return QString::number(static_cast<qulonglong>(::geteuid()));
}

bool is_private_folder(const QString& path, bool create) {
  if (path.isEmpty()) return false;
  const QByteArray native = QFile::encodeName(path);
  if (create && ::mkdir(native.constData(), S_IRWXU) != 0 && errno != EEXIST) return false;
  struct stat st {};
  // lstat: a link planted in the folder's place is refused, not followed.
  if (::lstat(native.constData(), &st) != 0) return false;
  return S_ISDIR(st.st_mode) && st.st_uid == ::geteuid() && (st.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

QString runtime_folder() {
  const QString xdg = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (is_private_folder(xdg, false)) return xdg;
  const QString tag = current_user_tag();
  const QString candidates[] = {
      QDir(QDir::tempPath()).filePath(QStringLiteral("nimbra-backup-agent-") + tag),
      QDir::home().filePath(QStringLiteral(".cache/nimbra-backup-agent-runtime")),
  };
  for (const QString& dir : candidates) {
    if (dir.contains(QStringLiteral("/.cache/"))) QDir::home().mkpath(QStringLiteral(".cache"));
    if (is_private_folder(dir, true)) return dir;
    LOG_WARN(vlog::kDefaultComponent, "single instance: [%s] is not a private folder of this user",
             qUtf8Printable(dir));
  }
  return QString();
}

QString local_server_name(const QString& base) {
  // Always inside the private folder: a long name is shortened to its hash
  // rather than left to Qt, which would put it loose in the temporary folder.
  const QDir folder(runtime_folder());
  const QString full = folder.filePath(base + QStringLiteral(".sock"));
  if (full.toUtf8().size() < 100) return full;
  return folder.filePath(QString::number(qHash(base), 16) + QStringLiteral(".sock"));
}

bool peer_is_same_user(qintptr descriptor) {
  ucred cred{};
  socklen_t length = sizeof cred;
  if (descriptor < 0 ||
      ::getsockopt(static_cast<int>(descriptor), SOL_SOCKET, SO_PEERCRED, &cred, &length) != 0)
    return false;
  return cred.uid == ::geteuid();
}

}  // namespace user_identity
