#pragma once
// The working space: the machine-wide folder shared with the backup service.

#include <string>

namespace vantor {

// $NIMBRA_WORKING_SPACE when it is set and not empty; otherwise the
// machine-wide application-data folder + "/NimbraBackupAgent". Raises a
// ravel::exception when the application-data folder cannot be found (the one
// raise of the agent; nothing catches it).
std::wstring get_working_space();

// The same as UTF-8, for code that opens files with narrow names.
std::string get_working_space_utf8();

}  // namespace vantor
