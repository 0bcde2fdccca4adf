#pragma once
// A short tag naming the signed-in user, used in per-user object names.

#include <QString>

namespace user_identity {

// Linux: the uid ("1000"). Windows: the user name, or "user" when unknown.
QString currentUserTag();

// The folder for per-user lock files: $XDG_RUNTIME_DIR when it exists, else
// the temporary folder (Linux); the user's temporary folder (Windows).
QString runtimeFolder();

// The local-server name for `base`: on Linux a socket path in runtimeFolder()
// when it fits the 108-byte limit, else `base` (Qt then picks the folder);
// on Windows `base`, which Qt turns into a pipe name.
QString localServerName(const QString& base);

}  // namespace user_identity
