#include <pwd.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

#include "logging/paths.h"

namespace vlog {
namespace {

std::wstring widen(const std::string& s) {
  // File names here are ASCII in practice; decode UTF-8 properly anyway.
  std::wstring out;
  for (std::size_t i = 0; i < s.size();) {
    auto c = static_cast<unsigned char>(s[i]);
    std::uint32_t cp = c;
    std::size_t len = 1;
    if (c >= 0xF0 && i + 3 < s.size()) {
      cp = ((c & 0x07u) << 18) | ((s[i + 1] & 0x3Fu) << 12) | ((s[i + 2] & 0x3Fu) << 6) | (s[i + 3] & 0x3Fu);
      len = 4;
    } else if (c >= 0xE0 && i + 2 < s.size()) {
      cp = ((c & 0x0Fu) << 12) | ((s[i + 1] & 0x3Fu) << 6) | (s[i + 2] & 0x3Fu);
      len = 3;
    } else if (c >= 0xC0 && i + 1 < s.size()) {
      cp = ((c & 0x1Fu) << 6) | (s[i + 1] & 0x3Fu);
      len = 2;
    }
    out.push_back(static_cast<wchar_t>(cp));
    i += len;
  }
  return out;
}

}  // namespace

long common_appdata_folder(std::wstring& out) {
  out = L"/var/lib";
  return 0;
}

std::wstring log_path() {
  std::string base;
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state && *state) {
    base = state;
  } else {
    const char* home = std::getenv("HOME");
    if (home && *home) {
      base = home;
    } else if (const passwd* pw = ::getpwuid(::getuid()); pw && pw->pw_dir) {
      base = pw->pw_dir;
    } else {
      return std::wstring();
    }
    base += "/.local/state";
  }
  return clean_path(widen(base) + L"/NimbraBackupAgent/log");
}

}  // namespace vlog
