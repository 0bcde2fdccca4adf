// Windows: the version checks, Winsock and the error mode, the low-level
// mouse hook and the taskbar theme value from the registry.
// Winsock 2 before anything that may bring in the old Winsock.
#include <winsock2.h>

#include <windows.h>

#include "logging/logger.h"
#include "ui-agent/platform/os-services.h"

namespace os_services {

WindowsVersion running_windows_version() {
  // RtlGetVersion tells the truth whatever the manifest says.
  using RtlGetVersionFn = LONG(WINAPI*)(OSVERSIONINFOW*);
  WindowsVersion v;
  HMODULE ntdll = ::GetModuleHandleW(L"ntdll.dll");
  auto fn = ntdll ? reinterpret_cast<RtlGetVersionFn>(
                        reinterpret_cast<void*>(::GetProcAddress(ntdll, "RtlGetVersion")))
                  : nullptr;
  OSVERSIONINFOW info = {};
  info.dwOSVersionInfoSize = sizeof(info);
  if (fn && fn(&info) == 0) {
    v.major = info.dwMajorVersion;
    v.minor = info.dwMinorVersion;
  } else {
    LOG_ERROR(vlog::kDefaultComponent, "RtlGetVersion is not available");
  }
  return v;
}

bool windows_at_least(unsigned long major) {
  OSVERSIONINFOEXW info = {};
  info.dwOSVersionInfoSize = sizeof(info);
  info.dwMajorVersion = major;
  const DWORDLONG mask = ::VerSetConditionMask(0, VER_MAJORVERSION, VER_GREATER_EQUAL);
  return ::VerifyVersionInfoW(&info, VER_MAJORVERSION, mask) != FALSE;
}

bool read_system_uses_light_theme(unsigned long& value) {
  DWORD data = 0;
  DWORD size = sizeof(data);
  const LSTATUS rc =
      ::RegGetValueW(HKEY_CURRENT_USER, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                     L"SystemUsesLightTheme", RRF_RT_REG_DWORD, nullptr, &data, &size);
  if (rc != ERROR_SUCCESS) return false;
  value = data;
  return true;
}

bool start_process_services() {
  WSADATA data;
  const int rc = ::WSAStartup(0x0202, &data);
  ::SetErrorMode(SEM_FAILCRITICALERRORS);
  if (rc != 0) {
    LOG_ERROR(vlog::kDefaultComponent, "WSAStartup failed with %d", rc);
    return false;
  }
  return true;
}

void stop_process_services() {
  ::WSACleanup();
}

namespace {

LRESULT CALLBACK hook_procedure(int code, WPARAM wparam, LPARAM lparam) {
  if (code == HC_ACTION && lparam) {
    const auto* event = reinterpret_cast<const MSLLHOOKSTRUCT*>(lparam);
    MouseHook::dispatch(static_cast<unsigned>(wparam), static_cast<int>(event->pt.x),
                        static_cast<int>(event->pt.y));
  }
  return ::CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace

bool MouseHook::install(Callback on_left_press) {
  if (handle_) return true;
  detail::set_hook_callback(std::move(on_left_press));
  HHOOK hook = ::SetWindowsHookExA(WH_MOUSE_LL, hook_procedure, nullptr, 0);
  if (!hook) {
    LOG_ERROR(vlog::kDefaultComponent, "SetWindowsHookExA failed with %lu",
              static_cast<unsigned long>(::GetLastError()));
    detail::set_hook_callback(nullptr);
    return false;
  }
  handle_ = hook;
  return true;
}

void MouseHook::remove() {
  if (handle_) ::UnhookWindowsHookEx(static_cast<HHOOK>(handle_));
  handle_ = nullptr;
  detail::set_hook_callback(nullptr);
}

}  // namespace os_services
