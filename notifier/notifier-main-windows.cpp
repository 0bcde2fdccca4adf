// "Nimbra Backup Notifier.exe": the agent's notification as the shell's
// notification balloon (Windows 10 and later show it as a toast), from a
// notification-area icon of its own. A click on the balloon or on the icon
// runs "nimbra-backup-agent.exe open" from the same folder. The program
// returns as soon as the balloon is up; a detached process of its own keeps
// the icon (the balloon goes with it) until the balloon is dismissed or times
// out, the taskbar restarts, or the time to linger has passed.
#include <windows.h>
// after windows.h
#include <shellapi.h>

#include <QDir>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <cwchar>
#include <string>

#include "logging/logger.h"
#include "logging/paths.h"
#include "notifier/detach.h"
#include "notifier/notifier-args.h"
#include "notifier/notifier-main.h"
#include "ui-agent/catalogue/string-catalogue-table.h"

namespace notifier {
namespace {

constexpr int kReportWaitMs = 20000;  // the agent itself gives up after 30 s
constexpr int kDefaultLingerMs = 10 * 60 * 1000;
constexpr UINT kIconMessage = WM_APP + 1;
constexpr UINT kIconId = 1;
constexpr UINT_PTR kLingerTimer = 1;

QString app_dir() {
  wchar_t path[MAX_PATH * 4];
  const DWORD n = ::GetModuleFileNameW(nullptr, path, MAX_PATH * 4);
  const QString file = QString::fromWCharArray(path, static_cast<int>(n));
  return QDir::fromNativeSeparators(file).section(QLatin1Char('/'), 0, -2);
}

void init_log(const QString& dir) {
  const QString folder = QString::fromStdWString(vlog::log_path());
  if (folder.isEmpty() || !QDir().mkpath(folder)) return;
  const QString settings = QDir::cleanPath(dir + "/../resource/agent.debug");
  vlog::init(vlog::kRotatingFile, (folder + "/notifier.txt").toStdWString(), settings.toStdWString(), "", 5,
             1);
}

int linger_ms() {
  bool ok = false;
  const int ms = qEnvironmentVariableIntValue("NIMBRA_NOTIFIER_LINGER_MS", &ok);
  return ok && ms > 0 ? ms : kDefaultLingerMs;
}

// Copies `text` into a fixed buffer of the notify-icon structure, cut at a
// character boundary.
template <size_t N>
void put(wchar_t (&out)[N], const QString& text) {
  std::wstring w = text.toStdWString();
  if (w.size() >= N) {
    w.resize(N - 1);
    if (!w.empty() && IS_HIGH_SURROGATE(w.back())) w.pop_back();
  }
  std::wmemcpy(out, w.c_str(), w.size() + 1);
}

struct Balloon {
  HWND window = nullptr;
  UINT taskbar_created = 0;
  QString agent;
  bool icon_added = false;

  NOTIFYICONDATAW base() const {
    NOTIFYICONDATAW data{};
    data.cbSize = sizeof(data);
    data.hWnd = window;
    data.uID = kIconId;
    return data;
  }

  void open_agent() {
    std::wstring command = L"\"" + QDir::toNativeSeparators(agent).toStdWString() + L"\" open";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                         &process)) {
      ::CloseHandle(process.hThread);
      ::CloseHandle(process.hProcess);
      LOG_INFO(vlog::kDefaultComponent, "notification chosen: the agent is asked to open");
    } else {
      LOG_ERROR(vlog::kDefaultComponent, "cannot start %s (error %lu)", qUtf8Printable(agent),
                ::GetLastError());
    }
  }

  void remove_icon() {
    if (!icon_added) return;
    NOTIFYICONDATAW data = base();
    ::Shell_NotifyIconW(NIM_DELETE, &data);
    icon_added = false;
  }
};

Balloon* the_balloon = nullptr;

LRESULT CALLBACK window_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  Balloon* b = the_balloon;
  if (b != nullptr && message == kIconMessage) {
    // NOTIFYICON_VERSION_4: the event is in the low word.
    switch (LOWORD(lparam)) {
      case NIN_BALLOONUSERCLICK:
      case NIN_SELECT:
      case NIN_KEYSELECT:
      case WM_LBUTTONUP:
        b->open_agent();
        ::PostQuitMessage(0);
        break;
      case NIN_BALLOONTIMEOUT:
        LOG_INFO(vlog::kDefaultComponent, "notification closed without a choice");
        ::PostQuitMessage(0);
        break;
      default:
        break;
    }
    return 0;
  }
  if (b != nullptr && message == b->taskbar_created && message != 0) {
    // The taskbar restarted: the balloon went with the old one.
    LOG_INFO(vlog::kDefaultComponent, "the taskbar restarted; the notification is gone");
    b->icon_added = false;
    ::PostQuitMessage(0);
    return 0;
  }
  if (message == WM_TIMER && wparam == kLingerTimer) {
    LOG_INFO(vlog::kDefaultComponent, "notification left unanswered; closing it");
    ::PostQuitMessage(0);
    return 0;
  }
  return ::DefWindowProcW(window, message, wparam, lparam);
}

int fail(int code, const QString& why) {
  LOG_ERROR(vlog::kDefaultComponent, "%s", why.toUtf8().constData());
  return code;
}

// The detached process: the icon, its balloon, then the clicks.
int show_and_stay(const NotificationElement& element, const Report& report) {
  const QString dir = app_dir();
  init_log(dir);
  const HINSTANCE instance = ::GetModuleHandleW(nullptr);
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof(window_class);
  window_class.lpfnWndProc = window_proc;
  window_class.hInstance = instance;
  window_class.lpszClassName = L"NimbraBackupNotifier";
  if (!::RegisterClassExW(&window_class))
    return fail(kExitFailure,
                QStringLiteral("cannot register the window class (error %1)").arg(::GetLastError()));
  Balloon balloon;
  balloon.agent = dir + QStringLiteral("/nimbra-backup-agent.exe");
  balloon.window = ::CreateWindowExW(0, window_class.lpszClassName, L"", WS_OVERLAPPED, 0, 0, 0, 0, nullptr,
                                     nullptr, instance, nullptr);
  if (balloon.window == nullptr) {
    // No desktop to show anything on: the agent falls back to its own balloons.
    return fail(kExitNoService, QStringLiteral("cannot create a window (error %1)").arg(::GetLastError()));
  }
  balloon.taskbar_created = ::RegisterWindowMessageW(L"TaskbarCreated");
  the_balloon = &balloon;

  const QString app_name =
      QString::fromUtf8(string_display::catalogue_rows()[static_cast<int>(Str::app_name)].source);
  HICON icon =
      static_cast<HICON>(::LoadImageW(instance, L"IDI_ICON1", IMAGE_ICON, ::GetSystemMetrics(SM_CXSMICON),
                                      ::GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR));
  HICON large =
      static_cast<HICON>(::LoadImageW(instance, L"IDI_ICON1", IMAGE_ICON, ::GetSystemMetrics(SM_CXICON),
                                      ::GetSystemMetrics(SM_CYICON), LR_DEFAULTCOLOR));
  NOTIFYICONDATAW data = balloon.base();
  data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP | NIF_SHOWTIP;
  data.uCallbackMessage = kIconMessage;
  data.hIcon = icon;
  put(data.szTip, app_name);
  if (!::Shell_NotifyIconW(NIM_ADD, &data)) {
    // No notification area (no shell): the agent shows its own balloons.
    return fail(kExitNoService, QStringLiteral("the desktop has no notification area"));
  }
  balloon.icon_added = true;
  data.uVersion = NOTIFYICON_VERSION_4;
  ::Shell_NotifyIconW(NIM_SETVERSION, &data);

  data = balloon.base();
  data.uFlags = NIF_INFO;
  put(data.szInfoTitle, element.title);
  put(data.szInfo, element.text.isEmpty() ? element.title : element.text);
  data.dwInfoFlags = large != nullptr ? (NIIF_USER | NIIF_LARGE_ICON) : NIIF_INFO;
  data.hBalloonIcon = large;
  if (!::Shell_NotifyIconW(NIM_MODIFY, &data)) {
    balloon.remove_icon();
    return fail(kExitNoService, QStringLiteral("the notification area took no balloon"));
  }
  LOG_INFO(vlog::kDefaultComponent, "notification shown (action type %d)", element.action_type);
  ::SetTimer(balloon.window, kLingerTimer, static_cast<UINT>(linger_ms()), nullptr);
  report(kExitShown);

  MSG message;
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
  balloon.remove_icon();
  the_balloon = nullptr;
  ::DestroyWindow(balloon.window);
  if (icon) ::DestroyIcon(icon);
  if (large) ::DestroyIcon(large);
  vlog::shutdown();
  return kExitShown;
}

}  // namespace

int notifier_main(int, char**) {
  // The arguments as Windows passed them (UTF-16), not argv's code page.
  int count = 0;
  LPWSTR* wide = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  QStringList args;
  for (int i = 1; wide != nullptr && i < count; ++i) args << QString::fromWCharArray(wide[i]);
  if (wide != nullptr) ::LocalFree(wide);
  const ParseResult parsed = parse_notifier_args(args);
  if (!parsed.ok) {
    std::fprintf(stderr, "nimbra-backup-notifier: %s\n", parsed.error.toLocal8Bit().constData());
    return kExitBadArguments;
  }
  // The elements replace each other in order, so the last one with something
  // to say is the one that stays.
  const NotificationElement* last = nullptr;
  for (const NotificationElement& el : parsed.request.elements)
    if (!el.title.isEmpty() || !el.text.isEmpty()) last = &el;
  if (last == nullptr) return kExitShown;
  const NotificationElement element = *last;
  const int code = run_detached([&element](const Report& report) { return show_and_stay(element, report); },
                                kReportWaitMs);
  if (code != kExitShown)
    std::fprintf(stderr, "nimbra-backup-notifier: the notification was not shown (code %d)\n", code);
  return code;
}

}  // namespace notifier
