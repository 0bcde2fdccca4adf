#pragma once
// The working space: the machine-wide folder shared with the backup service.

#include <cstdint>
#include <string>

namespace vantor {

// $NIMBRA_WORKING_SPACE when it is set and not empty; otherwise the
// machine-wide application-data folder + "NimbraBackupAgent"
// ("C:\ProgramData\NimbraBackupAgent" on Windows, "/var/lib/NimbraBackupAgent"
// on Linux). Raises a ravel::exception when the application-data folder
// cannot be found (the one raise of the agent; nothing catches it).
std::wstring get_working_space();

// The same as UTF-8, for code that opens files with narrow names.
std::string get_working_space_utf8();

namespace detail {

// The folder query behind get_working_space(): 0 and the folder on success,
// the query's non-zero result otherwise (with the OS error left in the
// thread's last-error slot).
using AppDataQuery = long (*)(std::wstring& folder);

// get_working_space() with another folder query, so that the failure path can
// be exercised.
std::wstring get_working_space_with(AppDataQuery query);

// The OS error slot the raise reads: GetLastError()/SetLastError() on
// Windows, errno elsewhere.
std::uint32_t last_os_error();
void set_last_os_error(std::uint32_t error);

}  // namespace detail
}  // namespace vantor
