// Linux: no taskbar registry, no socket library to start, no global hook.
#include "ui-agent/platform/os-services.h"

namespace os_services {

WindowsVersion running_windows_version() {
  return {};
}

bool windows_at_least(unsigned long) {
  return false;
}

bool read_system_uses_light_theme(unsigned long&) {
  return false;
}

bool start_process_services() {
  return true;
}

void stop_process_services() {}

bool MouseHook::install(Callback) {
  return false;
}

void MouseHook::remove() {
  handle_ = nullptr;
  detail::set_hook_callback(nullptr);
}

}  // namespace os_services
