#pragma once
// Process-level services of the agent that the operating system provides:
// Windows version checks, the socket library and error mode, the global mouse
// hook and the taskbar theme value. Free of Qt. On Linux most of them have
// nothing to do; each says what it does there.

#include <functional>

namespace os_services {

struct WindowsVersion {
  unsigned long major = 0;  // 0: not Windows
  unsigned long minor = 0;
};

// The running Windows version as the kernel reports it (not the version the
// program's manifest lets GetVersionEx claim). {0, 0} on other systems.
WindowsVersion running_windows_version();

// True when the running Windows has at least major version `major`, tested
// with VerifyVersionInfoW. False on other systems.
bool windows_at_least(unsigned long major);

// Windows 7 and 8.x (major version 6, whatever the minor one) need the
// software renderer: QT_ANGLE_PLATFORM=warp.
constexpr bool wants_warp_renderer(WindowsVersion v) {
  return v.major == 6;
}

// The taskbar colour rule: Windows 7 and 8.x (major version not above 6)
// never count as dark; later versions are dark exactly when the value
// SystemUsesLightTheme is 0, an absent value (`has_value` false) reading as 0.
constexpr bool is_dark_taskbar(WindowsVersion v, bool has_value, unsigned long light_value) {
  if (v.major <= 6) return false;
  return !has_value || light_value == 0;
}

// Reads the value SystemUsesLightTheme of the current user's theme settings
// (key Personalize under SOFTWARE\Microsoft\Windows\CurrentVersion\Themes).
// False when the value is absent or not a number (always on other systems).
bool read_system_uses_light_theme(unsigned long& value);

// Starts the socket library (WSAStartup 2.2) and sets the process error mode
// to SEM_FAILCRITICALERRORS. True when the socket library started. Nothing to
// do, and true, on other systems.
bool start_process_services();
// Undoes start_process_services (WSACleanup).
void stop_process_services();

// The low-level mouse hook (WH_MOUSE_LL) of the main thread: every left
// button press anywhere on the desktop is reported with its screen position;
// every message is passed on. One hook per process. On other systems there
// is no such hook: install() returns false and the caller watches its own
// windows' presses instead.
class MouseHook {
 public:
  using Callback = std::function<void(int x, int y)>;
  MouseHook() = default;
  ~MouseHook();
  MouseHook(const MouseHook&) = delete;
  MouseHook& operator=(const MouseHook&) = delete;

  bool install(Callback on_left_press);
  void remove();
  bool installed() const { return handle_ != nullptr; }

  // What the hook procedure does with one message (exposed for tests):
  // reports (x, y) for a left button press and returns true.
  static bool dispatch(unsigned message, int x, int y);

 private:
  void* handle_ = nullptr;
};

namespace detail {
// Who the hook reports to (set by install, cleared by remove).
void set_hook_callback(MouseHook::Callback cb);
}  // namespace detail

}  // namespace os_services
