#pragma once
// Process-wide logging keyed by logger name.
//
// One line per event, written to standard error, standard output or a
// size-rotated text file, with a level threshold per component read from the
// "agent.debug" settings file. Call sites use the LOG_* macros below, which
// fill the header (source file, line, process, thread, trace tag) themselves:
//
//   LOG_ERROR(vlog::kWinIpc, "read pipe failed, %u", err);
//
// writes "<stamp>[ERROR][win-ipc.cpp:318](pid,tid){trace} read pipe failed, 109".

#include <cstddef>
#include <cstdint>
#include <string>

namespace vlog {

// Syslog-style levels.
constexpr int kError = 3;
constexpr int kWarning = 4;
constexpr int kNotice = 5;
constexpr int kInfo = 6;
constexpr int kDebug = 7;

// Where a logger writes.
enum Output : int {
  kRawStderr = 1,  // standard error, the message exactly as formatted
  kStdout = 2,
  kStderr = 3,
  kRotatingFile = 4,
};

// Components in use; thresholds in "agent.debug" are keyed by these names.
inline constexpr const char* kDefaultComponent = "default_component";
inline constexpr const char* kWinIpc = "win_ipc";
inline constexpr const char* kClientManager = "client_manager_debug";

// The logger every macro writes to.
inline constexpr const char* kDefaultLogger = "DEFAULT";

// Longest line written, in bytes (time stamp not counted); a longer one is
// cut and ends with "... [N bytes cut]".
constexpr std::size_t kMaxLineBytes = 4096;

// Threshold of a component that "agent.debug" does not name.
constexpr int kDefaultThreshold = kWarning;

// Sets a logger up: its output, the log file (output 4), the settings file
// with per-component thresholds (may be empty), a prefix put before every
// message, how many rotated files to keep and how many processes share the
// file. Returns 0 on success, -1 when the log file cannot be opened (the
// logger then stays disabled and drops every line).
int init(int output, const std::wstring& path, const std::wstring& settings_path, const std::string& prefix,
         int keep, int sharers, const std::string& name = kDefaultLogger);

// Writes one line if the logger is enabled and `level` is within the
// component's threshold. `format` is a printf format whose first five
// conversions are the header fields: source file (%s), line (%d), process id
// (%u), thread id (%lu) and trace tag (%s); the message's own arguments follow.
// Narrow strings are UTF-8.
void log(const char* logger, int level, const char* component, const char* format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 4, 5)))
#endif
    ;

// Closes the logger's file and disables it (tests, and orderly shutdown).
void shutdown(const std::string& name = kDefaultLogger);

// State that tests and benchmarks look at.
bool enabled(const std::string& name = kDefaultLogger);
int threshold(const std::string& component, const std::string& name = kDefaultLogger);
std::uint32_t written(const std::string& name = kDefaultLogger);

// The value of VANTOR_LOG_TRACE now, or "" when it is not set. Read afresh for
// every line so that a caller can tag all lines of a run.
std::string trace_tag();

// Header helpers used by the macros.
unsigned current_pid();
unsigned long current_tid();
// The part of a source path after its last slash or backslash.
const char* base_name(const char* path);

// Number of characters (UTF-16 code units) in UTF-8 text: what `written`
// counts, so that the rotation size is the same on every platform.
std::size_t utf16_length(const std::string& utf8);

// UTF-8 of a wide text (on Windows UTF-16, elsewhere UTF-32), as the log
// files and the working-space helpers write names.
std::string to_utf8(const std::wstring& text);

}  // namespace vlog

// The trace tag lives in a temporary that outlasts the whole call.
#define VLOG_LINE_(level, tag, component, fmt, ...)                                                \
  ::vlog::log(::vlog::kDefaultLogger, level, component, tag "[%s:%d](%u,%lu){%s} " fmt "\n",       \
              ::vlog::base_name(__FILE__), __LINE__, ::vlog::current_pid(), ::vlog::current_tid(), \
              ::vlog::trace_tag().c_str(), ##__VA_ARGS__)

#define LOG_ERROR(component, fmt, ...) VLOG_LINE_(::vlog::kError, "[ERROR]", component, fmt, ##__VA_ARGS__)
#define LOG_WARN(component, fmt, ...) VLOG_LINE_(::vlog::kWarning, "[WARNIN]", component, fmt, ##__VA_ARGS__)
#define LOG_NOTICE(component, fmt, ...) VLOG_LINE_(::vlog::kNotice, "[NOTICE]", component, fmt, ##__VA_ARGS__)
#define LOG_INFO(component, fmt, ...) VLOG_LINE_(::vlog::kInfo, "[INFO]", component, fmt, ##__VA_ARGS__)
#define LOG_DEBUG(component, fmt, ...) VLOG_LINE_(::vlog::kDebug, "[DEBUG]", component, fmt, ##__VA_ARGS__)
