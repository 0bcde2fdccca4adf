#pragma once
// The handful of system calls under the logger; logger-posix.cpp and
// logger-windows.cpp implement them.

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>

namespace vlog::platform {

// Opens `path` for appending UTF-8 text and makes its handle non-inheritable.
FILE* open_append(const std::wstring& path);
// Size of the file in bytes. On failure writes a line saying so to `stream`
// and returns 0.
std::uint64_t file_size(const std::wstring& path, FILE* stream);
// Renames without replacing an existing target (fails instead).
bool rename_no_replace(const std::wstring& from, const std::wstring& to);
bool remove_file(const std::wstring& path);
// Writes UTF-8 text to a stream opened by open_append or a standard stream.
void write_text(FILE* stream, const std::string& utf8, bool is_file);
unsigned pid();
unsigned long tid();
// The local time now, the milliseconds of the current second and the local
// time's offset from UTC in minutes (east positive).
void local_now(std::tm& out, int& millis, int& utc_offset_minutes);
std::string narrow(const std::wstring& w);  // to UTF-8
// The value of an environment variable in UTF-8; false when it is not set.
bool get_env(const char* name, std::string& value);

}  // namespace vlog::platform

namespace vlog {
// An offset from UTC in minutes as the log header writes it: "+0000",
// "-0530" (the same on every system, where strftime's %z is not).
std::string utc_offset_text(int minutes);
}  // namespace vlog
