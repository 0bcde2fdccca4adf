// Windows: the detached process is a second start of this program, told by
// an environment variable which inherited pipe handle to report on.
#include <windows.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <string>
#include <thread>

#include "notifier/detach.h"
#include "notifier/notifier-args.h"

namespace notifier {
namespace {

constexpr const wchar_t* kReportVariable = L"NIMBRA_NOTIFIER_REPORT_HANDLE";

// The handle the starting process gave us, or nullptr when this is the first
// start. The variable is removed so that nothing this process starts (the
// agent, on a click) sees it.
HANDLE inherited_report_handle() {
  wchar_t value[32];
  const DWORD n = ::GetEnvironmentVariableW(kReportVariable, value, 32);
  if (n == 0 || n >= 32) return nullptr;
  ::SetEnvironmentVariableW(kReportVariable, nullptr);
  const unsigned long long number = std::wcstoull(value, nullptr, 10);
  return number == 0 ? nullptr : reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(number));
}

std::wstring own_path() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD n = ::GetModuleFileNameW(nullptr, &path[0], static_cast<DWORD>(path.size()));
    if (n == 0) return std::wstring();
    if (n < path.size()) {
      path.resize(n);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

// The starting process: the first byte on the pipe is the exit code.
int wait_for_report(HANDLE read_end, HANDLE child, int wait_ms) {
  // ReadFile on an anonymous pipe cannot time out: it reads on a thread of
  // its own while this one waits with the deadline; a child that falls
  // silent is ended, which closes the pipe and ends the read.
  auto got = std::async(std::launch::async, [read_end]() -> int {
    unsigned char code = 0;
    DWORD n = 0;
    return ::ReadFile(read_end, &code, 1, &n, nullptr) && n == 1 ? code : -1;
  });
  int code = -1;
  if (got.wait_for(std::chrono::milliseconds(wait_ms)) == std::future_status::ready) {
    code = got.get();
    if (code < 0)
      std::fprintf(stderr,
                   "nimbra-backup-notifier: the notification process ended before showing anything\n");
  } else {
    ::TerminateProcess(child, kExitFailure);
    got.wait();
    std::fprintf(stderr, "nimbra-backup-notifier: no answer from the notification process within %d ms\n",
                 wait_ms);
  }
  ::CloseHandle(read_end);
  ::CloseHandle(child);
  return code < 0 ? kExitFailure : code;
}

}  // namespace

int run_detached(const std::function<int(const Report&)>& body, int wait_ms) {
  if (HANDLE report_handle = inherited_report_handle()) {
    // The detached process.
    const Report report = [&report_handle](int code) {
      if (report_handle == nullptr) return;
      const unsigned char byte = static_cast<unsigned char>(code);
      DWORD written = 0;
      ::WriteFile(report_handle, &byte, 1, &written, nullptr);
      ::CloseHandle(report_handle);
      report_handle = nullptr;
    };
    const int code = body(report);
    report(code);
    return code;
  }

  SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  HANDLE read_end = nullptr, write_end = nullptr;
  if (!::CreatePipe(&read_end, &write_end, &inheritable, 0)) {
    std::fprintf(stderr, "nimbra-backup-notifier: cannot create a pipe (error %lu)\n", ::GetLastError());
    return kExitFailure;
  }
  ::SetHandleInformation(read_end, HANDLE_FLAG_INHERIT, 0);

  // Only the report handle is inherited: not the agent's output pipes, which
  // would otherwise stay open for as long as the notification does.
  SIZE_T size = 0;
  ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
  std::string attributes_buffer(size, '\0');
  auto attributes = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(&attributes_buffer[0]);
  const bool have_list = ::InitializeProcThreadAttributeList(attributes, 1, 0, &size) &&
                         ::UpdateProcThreadAttribute(attributes, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST,
                                                     &write_end, sizeof(write_end), nullptr, nullptr);
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof(startup);
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;  // no standard streams at all
  startup.lpAttributeList = have_list ? attributes : nullptr;

  const std::wstring program = own_path();
  std::wstring command_line = ::GetCommandLineW();
  // The folder of the program, not the agent's working folder.
  std::wstring folder = program.substr(0, program.find_last_of(L"\\/"));
  const std::wstring handle_value = std::to_wstring(reinterpret_cast<std::uintptr_t>(write_end));
  ::SetEnvironmentVariableW(kReportVariable, handle_value.c_str());
  PROCESS_INFORMATION process{};
  const BOOL started =
      ::CreateProcessW(program.c_str(), &command_line[0], nullptr, nullptr, TRUE,
                       DETACHED_PROCESS | CREATE_NEW_PROCESS_GROUP | CREATE_UNICODE_ENVIRONMENT |
                           (have_list ? EXTENDED_STARTUPINFO_PRESENT : 0),
                       nullptr, folder.empty() ? nullptr : folder.c_str(), &startup.StartupInfo, &process);
  const DWORD error = ::GetLastError();
  ::SetEnvironmentVariableW(kReportVariable, nullptr);
  if (have_list) ::DeleteProcThreadAttributeList(attributes);
  ::CloseHandle(write_end);
  if (!started) {
    ::CloseHandle(read_end);
    std::fprintf(stderr, "nimbra-backup-notifier: cannot start the notification process (error %lu)\n",
                 error);
    return kExitFailure;
  }
  ::CloseHandle(process.hThread);
  return wait_for_report(read_end, process.hProcess, wait_ms);
}

}  // namespace notifier
