#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#include <wchar.h>

#include <cstdlib>
#include <vector>

#include "logging/logger-platform.h"

namespace vlog::platform {
namespace {

std::wstring widen(const std::string& utf8) {
  if (utf8.empty()) return std::wstring();
  const int n = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
  std::wstring out(static_cast<std::size_t>(n), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), out.data(), n);
  return out;
}

}  // namespace

std::string narrow(const std::wstring& w) {
  if (w.empty()) return std::string();
  const int n =
      ::WideCharToMultiByte(CP_UTF8, 0, w.data(), static_cast<int>(w.size()), nullptr, 0, nullptr, nullptr);
  std::string out(static_cast<std::size_t>(n), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, w.data(), static_cast<int>(w.size()), out.data(), n, nullptr, nullptr);
  return out;
}

FILE* open_append(const std::wstring& path) {
  // Never through a symbolic link or junction put in the file's place.
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
    return nullptr;
  FILE* f = ::_wfopen(path.c_str(), L"a,ccs=UTF-8");
  if (!f) return nullptr;
  auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(f)));
  if (handle != INVALID_HANDLE_VALUE) ::SetHandleInformation(handle, HANDLE_FLAG_INHERIT, 0);
  return f;
}

std::uint64_t file_size(const std::wstring& path, FILE* stream) {
  HANDLE h = ::CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                           OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (h == INVALID_HANDLE_VALUE) {
    ::fwprintf(stream, L"CreateFile(%ls): error code %ld\n", path.c_str(),
               static_cast<long>(::GetLastError()));
    return 0;
  }
  LARGE_INTEGER size{};
  if (!::GetFileSizeEx(h, &size)) {
    ::fwprintf(stream, L"GetFileSizeEx(%ls): error code %ld\n", path.c_str(),
               static_cast<long>(::GetLastError()));
    ::CloseHandle(h);
    return 0;
  }
  ::CloseHandle(h);
  return static_cast<std::uint64_t>(size.QuadPart);
}

bool rename_no_replace(const std::wstring& from, const std::wstring& to) {
  // _wrename fails when the target exists.
  return ::_wrename(from.c_str(), to.c_str()) == 0;
}

bool remove_file(const std::wstring& path) {
  return ::_wremove(path.c_str()) == 0;
}

void write_text(FILE* stream, const std::string& utf8, bool is_file) {
  if (is_file) {
    // The file is a wide (ccs=UTF-8) stream: it takes UTF-16 text.
    ::fputws(widen(utf8).c_str(), stream);
  } else {
    std::fwrite(utf8.data(), 1, utf8.size(), stream);
  }
}

unsigned pid() {
  return static_cast<unsigned>(::GetCurrentProcessId());
}

unsigned long tid() {
  return static_cast<unsigned long>(::GetCurrentThreadId());
}

void local_now(std::tm& out, int& millis, int& utc_offset_minutes) {
  // The local time made from one reading of UTC, so that their difference
  // is the zone's offset now (the C runtime's %z gives the zone's name).
  SYSTEMTIME utc{}, st{};
  ::GetSystemTime(&utc);
  FILETIME utc_ft{}, local_ft{};
  if (!::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &st) || !::SystemTimeToFileTime(&utc, &utc_ft) ||
      !::SystemTimeToFileTime(&st, &local_ft)) {
    ::GetLocalTime(&st);
    utc_offset_minutes = 0;
  } else {
    const auto ticks = [](const FILETIME& f) {
      return static_cast<long long>((static_cast<unsigned long long>(f.dwHighDateTime) << 32) |
                                    f.dwLowDateTime);
    };
    // 100 ns ticks; both readings share their seconds, so the minutes are whole.
    utc_offset_minutes = static_cast<int>((ticks(local_ft) - ticks(utc_ft)) / 600000000LL);
  }
  out = std::tm{};
  out.tm_year = st.wYear - 1900;
  out.tm_mon = st.wMonth - 1;
  out.tm_mday = st.wDay;
  out.tm_hour = st.wHour;
  out.tm_min = st.wMinute;
  out.tm_sec = st.wSecond;
  out.tm_wday = st.wDayOfWeek;
  out.tm_isdst = -1;
  millis = st.wMilliseconds;
}

bool get_env(const char* name, std::string& value) {
  const std::wstring wname = widen(name);
  const DWORD n = ::GetEnvironmentVariableW(wname.c_str(), nullptr, 0);
  if (n == 0) return ::GetLastError() != ERROR_ENVVAR_NOT_FOUND && (value.clear(), true);
  std::vector<wchar_t> buf(n);
  const DWORD got = ::GetEnvironmentVariableW(wname.c_str(), buf.data(), n);
  value = narrow(std::wstring(buf.data(), got));
  return true;
}

}  // namespace vlog::platform
