#include <shlobj.h>
#include <windows.h>

#include "logging/paths.h"

namespace vlog {

long common_appdata_folder(std::wstring& out) {
  wchar_t buf[MAX_PATH] = {};
  const HRESULT hr = ::SHGetFolderPathW(nullptr, CSIDL_COMMON_APPDATA, nullptr, SHGFP_TYPE_CURRENT, buf);
  if (hr != S_OK) {
    out.clear();
    return static_cast<long>(hr == 0 ? -1 : hr);
  }
  out = buf;
  return 0;
}

std::wstring log_path() {
  std::wstring base;
  if (common_appdata_folder(base) != 0) return std::wstring();
  return clean_path(base + L"/NimbraBackupAgent/log");
}

}  // namespace vlog
