#pragma once
// A short tag naming the signed-in user, used in per-user object names, and
// the private folder where the single-instance lock and socket live.

#include <QString>
#include <QtGlobal>

namespace user_identity {

// Linux: the uid ("1000"). Windows: the session id and the user's SID
// ("1-S-1-5-21-..."), or the user name when the SID cannot be read.
QString current_user_tag();

// The folder for the per-user lock file and socket, private to the user:
// Linux: $XDG_RUNTIME_DIR when it is a real folder (not a link) owned by the
// user with no access for others; else <temp>/nimbra-backup-agent-<uid>,
// created with mode 0700 and checked with lstat; else
// ~/.cache/nimbra-backup-agent-runtime, made the same way. Empty when none of
// them is private (the single instance then has no channel). Windows: the
// user's own temporary folder.
QString runtime_folder();

// True when `path` is a folder (not a link) owned by the user running this
// process with no access for group or others. `create` makes it first (mode
// 0700) when it is missing. Windows: true for any existing folder.
bool is_private_folder(const QString& path, bool create);

// The local-server name for `base`: on Linux a socket path in runtime_folder(),
// named after a hash of `base` when the full name would not fit the socket
// path limit; on Windows `base`, which Qt turns into a pipe name.
QString local_server_name(const QString& base);

// True when the process at the other end of the connected local socket
// `descriptor` runs as this user (Linux: SO_PEERCRED; Windows: the pipe
// server's or client's process token).
bool peer_is_same_user(qintptr descriptor);

}  // namespace user_identity
