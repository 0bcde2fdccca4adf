#pragma once
// Folder layout helpers that need no Qt.

#include <string>

namespace vlog {

// The machine-wide application-data folder: SHGetFolderPathW with
// CSIDL_COMMON_APPDATA on Windows ("C:\ProgramData"), "/var/lib" on Linux.
// Returns 0 and fills `out` on success; otherwise the query's non-zero
// result, with `out` left empty.
long common_appdata_folder(std::wstring& out);

// The folder of the agent's log file, "NimbraBackupAgent/log" under:
// Windows: the machine-wide application-data folder;
// Linux:   $XDG_STATE_HOME, or ~/.local/state when that is unset or empty
//          (the agent runs per user, so its log is the user's).
// Empty when the base folder cannot be found. Uses '/' as separator.
std::wstring log_path();

// Slash-separated path with "." and ".." resolved textually and duplicate
// separators removed, as QDir::cleanPath does.
std::wstring clean_path(const std::wstring& path);

}  // namespace vlog
