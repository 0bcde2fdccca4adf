#include <windows.h>
// after windows.h
#include <sddl.h>

#include <QDir>

#include <memory>

#include "widgets/user-identity.h"

namespace user_identity {

namespace {

// The user SID of a process token, copied into `out`; false when unreadable.
bool tokenUser(HANDLE process, std::unique_ptr<BYTE[]>& out) {
  HANDLE token = nullptr;
  if (!::OpenProcessToken(process, TOKEN_QUERY, &token)) return false;
  DWORD size = 0;
  ::GetTokenInformation(token, TokenUser, nullptr, 0, &size);
  bool ok = false;
  if (size > 0) {
    out.reset(new BYTE[size]);
    ok = ::GetTokenInformation(token, TokenUser, out.get(), size, &size) != 0;
  }
  ::CloseHandle(token);
  return ok;
}

PSID sidOf(const std::unique_ptr<BYTE[]>& tokenUserBuffer) {
  return reinterpret_cast<TOKEN_USER*>(tokenUserBuffer.get())->User.Sid;
}

QString userName() {
  wchar_t name[256];
  DWORD size = 256;
  if (!::GetUserNameW(name, &size) || size == 0) return QStringLiteral("user");
  QString tag = QString::fromWCharArray(name, static_cast<int>(size) - 1);
  for (QChar& c : tag)
    if (!c.isLetterOrNumber() && c != QLatin1Char('-') && c != QLatin1Char('_')) c = QLatin1Char('_');
  return tag;
}

}  // namespace

QString current_user_tag() {
  // Session and SID: another user's, or another session's, agent never
  // shares the name.
  DWORD session = 0;
  ::ProcessIdToSessionId(::GetCurrentProcessId(), &session);
  std::unique_ptr<BYTE[]> user;
  LPWSTR text = nullptr;
  QString sid;
  if (tokenUser(::GetCurrentProcess(), user) && ::ConvertSidToStringSidW(sidOf(user), &text)) {
    sid = QString::fromWCharArray(text);
    ::LocalFree(text);
  } else {
    sid = userName();
  }
  return QString::number(static_cast<qulonglong>(session)) + QLatin1Char('-') + sid;
}

bool is_private_folder(const QString& path, bool) {
  return !path.isEmpty() && QDir(path).exists();
}

QString runtime_folder() {
  // The user's own temporary folder, under the profile.
  return QDir::tempPath();
}

QString local_server_name(const QString& base) {
  return base;
}

bool peer_is_same_user(qintptr descriptor) {
  // The local socket is a named pipe. On the client end the other process is
  // the pipe's server (whoever created the name first serves it); on the
  // server end it is the client that connected.
  const HANDLE pipe = reinterpret_cast<HANDLE>(descriptor);
  const ULONG self = ::GetCurrentProcessId();
  ULONG server = 0;
  if (!::GetNamedPipeServerProcessId(pipe, &server) || server == 0) return false;
  ULONG peer = server;
  if (server == self) {
    ULONG client = 0;
    if (!::GetNamedPipeClientProcessId(pipe, &client) || client == 0) return false;
    peer = client;
  }
  if (peer == self) return true;
  const HANDLE process = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, peer);
  if (process == nullptr) return false;
  std::unique_ptr<BYTE[]> theirs, mine;
  const bool same = tokenUser(process, theirs) && tokenUser(::GetCurrentProcess(), mine) &&
                    ::EqualSid(sidOf(theirs), sidOf(mine));
  ::CloseHandle(process);
  return same;
}

}  // namespace user_identity
