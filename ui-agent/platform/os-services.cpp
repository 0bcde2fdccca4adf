#include "ui-agent/platform/os-services.h"

#include <mutex>
#include <utility>

namespace os_services {

namespace {
std::mutex hook_mutex;
MouseHook::Callback hook_callback;
}  // namespace

// 0x0201 is WM_LBUTTONDOWN on Windows; the hook procedure hands every
// message here.
bool MouseHook::dispatch(unsigned message, int x, int y) {
  if (message != 0x0201u) return false;
  MouseHook::Callback cb;
  {
    std::lock_guard<std::mutex> lock(hook_mutex);
    cb = hook_callback;
  }
  if (cb) cb(x, y);
  return true;
}

namespace detail {
void set_hook_callback(MouseHook::Callback cb) {
  std::lock_guard<std::mutex> lock(hook_mutex);
  hook_callback = std::move(cb);
}
}  // namespace detail

MouseHook::~MouseHook() {
  remove();
}

}  // namespace os_services
