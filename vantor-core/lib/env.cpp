#include "vantor-core/lib/env.h"

#include "logging/paths.h"

#include "vantor-core/lib/env-platform.h"
#include "vantor-core/lib/exception.h"

namespace vantor {
namespace detail {

std::wstring get_working_space_with(AppDataQuery query) {
  std::wstring value;
  if (platform::get_env(L"NIMBRA_WORKING_SPACE", value) && !value.empty()) return value;

  std::wstring folder;
  const long result = query(folder);
  if (result != 0) {
    const std::uint32_t os_error = platform::last_error();
    const int code = platform::errno_from_last_error(os_error);
    ravel::exception::raise(code, "%s:%d(%u) [win_last_err: %d] SHGetFolderPathW, error[%d]", __FILE__,
                            __LINE__, platform::process_id(), static_cast<int>(os_error),
                            static_cast<int>(result));
  }
  if (!folder.empty() && folder.back() != L'/' && folder.back() != L'\\')
    folder.push_back(platform::separator());
  return folder + L"NimbraBackupAgent";
}

std::uint32_t last_os_error() {
  return platform::last_error();
}
void set_last_os_error(std::uint32_t error) {
  platform::set_last_error(error);
}

}  // namespace detail

std::wstring get_working_space() {
  return detail::get_working_space_with(&vlog::common_appdata_folder);
}

std::string get_working_space_utf8() {
  return platform::to_utf8(get_working_space());
}

}  // namespace vantor
