#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "logging/logger.h"
#include "vantor-core/lib/env-platform.h"

namespace vantor::platform {

bool get_env(const wchar_t* name, std::wstring& value) {
  const char* v = std::getenv(to_utf8(name).c_str());
  if (!v) return false;
  // Decode UTF-8 into UTF-32 wide characters.
  value.clear();
  const auto* p = reinterpret_cast<const unsigned char*>(v);
  while (*p) {
    std::uint32_t cp = *p;
    int extra = 0;
    if (cp >= 0xF0) {
      cp &= 0x07;
      extra = 3;
    } else if (cp >= 0xE0) {
      cp &= 0x0F;
      extra = 2;
    } else if (cp >= 0xC0) {
      cp &= 0x1F;
      extra = 1;
    }
    ++p;
    for (; extra > 0 && (*p & 0xC0) == 0x80; --extra, ++p) cp = (cp << 6) | (*p & 0x3Fu);
    value.push_back(static_cast<wchar_t>(cp));
  }
  return true;
}

wchar_t separator() {
  return L'/';
}

std::uint32_t last_error() {
  return static_cast<std::uint32_t>(errno);
}

void set_last_error(std::uint32_t error) {
  errno = static_cast<int>(error);
}

int errno_from_last_error(std::uint32_t error) {
  errno = static_cast<int>(error);
  return errno;
}

unsigned process_id() {
  return static_cast<unsigned>(::getpid());
}

std::string to_utf8(const std::wstring& text) {
  return vlog::to_utf8(text);
}

}  // namespace vantor::platform
