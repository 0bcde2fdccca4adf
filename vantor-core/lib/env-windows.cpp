#include <windows.h>

#include <vector>

#include "logging/logger.h"
#include "vantor-core/lib/env-platform.h"
#include "vantor-core/lib/win-error.h"

namespace vantor::platform {

bool get_env(const wchar_t* name, std::wstring& value) {
  ::SetLastError(ERROR_SUCCESS);
  DWORD n = ::GetEnvironmentVariableW(name, nullptr, 0);
  if (n == 0) {
    value.clear();
    return ::GetLastError() != ERROR_ENVVAR_NOT_FOUND;  // set but empty
  }
  std::vector<wchar_t> buf(n);
  n = ::GetEnvironmentVariableW(name, buf.data(), static_cast<DWORD>(buf.size()));
  if (n == 0 || n >= buf.size()) {  // changed under us: treat as unset
    value.clear();
    return false;
  }
  value.assign(buf.data(), n);
  return true;
}

wchar_t separator() {
  return L'\\';
}

std::uint32_t last_error() {
  return ::GetLastError();
}

void set_last_error(std::uint32_t error) {
  ::SetLastError(error);
}

int errno_from_last_error(std::uint32_t error) {
  return ravel::exception::translate_win_error(error);
}

unsigned process_id() {
  return static_cast<unsigned>(::GetCurrentProcessId());
}

std::string to_utf8(const std::wstring& text) {
  return vlog::to_utf8(text);
}

}  // namespace vantor::platform
