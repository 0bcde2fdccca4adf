#include "logging/logger.h"

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstring>
#include <fstream>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "logging/logger-platform.h"

namespace vlog {
namespace {

// Rotation happens once this many characters went to the file.
constexpr std::uint32_t kRotateAt = 1048577;

// Counters shared by every logger state that writes the same file.
struct SharedFile {
  std::atomic<std::uint32_t> written{0};
  std::atomic<std::uint64_t> generation{0};
};

struct State {
  std::atomic<bool> enabled{false};  // read by log() before it takes the line mutex
  int output = 0;
  FILE* file = nullptr;
  std::wstring path;
  std::string prefix;
  std::map<std::string, int> component_levels;
  int keep = 0;
  int sharers = 1;
  std::shared_ptr<SharedFile> shared;
  std::uint64_t own_generation = 0;
  std::mutex line_mutex;
};

struct Registry {
  std::mutex lock;
  std::map<std::string, std::unique_ptr<State>> loggers;
  std::map<std::wstring, std::shared_ptr<SharedFile>> files;
};

Registry& registry() {
  static Registry r;
  return r;
}
// Created before main runs, so that no static constructor races its creation.
[[maybe_unused]] const Registry& g_registry_at_startup = registry();

State* find(const char* name) {
  Registry& r = registry();
  std::lock_guard<std::mutex> g(r.lock);
  auto it = r.loggers.find(name);
  return it == r.loggers.end() ? nullptr : it->second.get();
}

State& find_or_create(const std::string& name) {
  Registry& r = registry();
  auto& slot = r.loggers[name];
  if (!slot) slot = std::make_unique<State>();
  return *slot;
}

void close_file(State& s) {
  if (s.file && s.output == kRotatingFile) std::fclose(s.file);
  s.file = nullptr;
}

bool open_file(State& s) {
  s.file = platform::open_append(s.path);
  if (!s.file) return false;
  s.shared->written = static_cast<std::uint32_t>(platform::file_size(s.path, s.file));
  return true;
}

std::wstring numbered(const std::wstring& path, int i) {
  return path + L"_" + std::to_wstring(i);
}

// P_(keep-2) -> P_(keep-1) ... P_0 -> P_1, remove P_(keep-1), P -> P_0, reopen.
// The renames run before the oldest file is removed and never replace an
// existing file; that order is deliberate.
void rotate(State& s) {
  for (int i = s.keep - 2; i >= 0; --i)
    platform::rename_no_replace(numbered(s.path, i), numbered(s.path, i + 1));
  if (s.keep >= 1) platform::remove_file(numbered(s.path, s.keep - 1));
  std::fclose(s.file);
  s.file = nullptr;
  if (!platform::rename_no_replace(s.path, numbered(s.path, 0))) return;  // later lines are dropped
  s.file = platform::open_append(s.path);
  ++s.shared->generation;
  ++s.own_generation;
}

// Reads "agent.debug": one "component = level" per line; blank lines and
// lines starting with '#' or ';' are skipped; "component level" and
// "component: level" are accepted too.
void read_settings(const std::wstring& settings_path, std::map<std::string, int>& levels) {
#ifdef _WIN32
  std::ifstream in(settings_path.c_str());
#else
  std::ifstream in(platform::narrow(settings_path));
#endif
  if (!in) return;
  std::string line;
  while (std::getline(in, line)) {
    const auto first = line.find_first_not_of(" \t\r");
    if (first == std::string::npos || line[first] == '#' || line[first] == ';') continue;
    auto sep = line.find_first_of("=: \t", first);
    if (sep == std::string::npos) continue;
    std::string key = line.substr(first, sep - first);
    auto value_at = line.find_first_not_of("=: \t", sep);
    if (value_at == std::string::npos) continue;
    char* end = nullptr;
    const long value = std::strtol(line.c_str() + value_at, &end, 10);
    if (end == line.c_str() + value_at) continue;  // not a number: ignored
    levels[key] = static_cast<int>(value);
  }
}

// The formatted line, cut to kMaxLineBytes: a longer one keeps its first
// bytes (up to a character boundary), ends with "... [N bytes cut]" and keeps
// its final line feed. The whole line is never built, however long it is.
// A line break inside the text (outside data may carry one) is written as
// "\n" or "\r", so that nothing a peer sends can start a line of its own
// (unless `raw`: the message exactly as formatted).
std::string format_message(const char* format, va_list args, bool raw) {
  char buf[kMaxLineBytes + 2];  // the line, its line feed and the NUL
  const int n = std::vsnprintf(buf, sizeof buf, format, args);
  if (n < 0) return std::string();
  const bool line_feed = format[0] != '\0' && format[std::strlen(format) - 1] == '\n';
  const std::size_t full = static_cast<std::size_t>(n);
  const std::size_t text = full - (line_feed && full > 0 ? 1 : 0);
  std::size_t keep = std::min(text, kMaxLineBytes);
  if (keep < text)
    while (keep > 0 && (static_cast<unsigned char>(buf[keep]) & 0xC0) == 0x80) --keep;
  std::string out;
  out.reserve(keep + 32);
  for (std::size_t i = 0; i < keep; ++i) {
    const char c = buf[i];
    if (!raw && (c == '\n' || c == '\r')) {
      out.push_back('\\');
      out.push_back(c == '\n' ? 'n' : 'r');
    } else {
      out.push_back(c);
    }
  }
  if (keep < text) out += "... [" + std::to_string(text - keep) + " bytes cut]";
  if (line_feed) out.push_back('\n');
  return out;
}

std::string time_stamp(int level) {
  std::tm tm{};
  int millis = 0, offset = 0;
  platform::local_now(tm, millis, offset);
  char buf[64];
  const std::size_t n = std::strftime(buf, sizeof buf, "%Y/%m/%d %H:%M:%S ", &tm);
  std::string stamp(buf, n);
  stamp += utc_offset_text(offset);
  stamp += ' ';
  if (level == kDebug) {
    char ms[32];
    std::snprintf(ms, sizeof ms, ":%d ", millis);
    stamp += ms;
  }
  return stamp;
}

}  // namespace

std::string utc_offset_text(int minutes) {
  const int whole = minutes < 0 ? -minutes : minutes;
  char buf[16];
  std::snprintf(buf, sizeof buf, "%c%02d%02d", minutes < 0 ? '-' : '+', whole / 60 % 100, whole % 60);
  return buf;
}

int init(int output, const std::wstring& path, const std::wstring& settings_path, const std::string& prefix,
         int keep, int sharers, const std::string& name) {
  Registry& r = registry();
  std::lock_guard<std::mutex> g(r.lock);
  State& s = find_or_create(name);
  std::lock_guard<std::mutex> line(s.line_mutex);

  close_file(s);
  s.enabled = false;
  s.component_levels.clear();
  s.path = path;
  s.sharers = output == kRotatingFile ? sharers : 1;
  s.component_levels[kDefaultComponent] = kDefaultThreshold;
  if (!settings_path.empty()) read_settings(settings_path, s.component_levels);
  s.output = output;
  s.prefix = prefix;
  s.keep = keep;

  switch (output) {
    case kRawStderr:
      break;
    case kStdout:
      s.file = stdout;
      break;
    case kStderr:
      s.file = stderr;
      break;
    case kRotatingFile: {
      auto& shared = r.files[path];
      if (!shared) shared = std::make_shared<SharedFile>();
      s.shared = shared;
      s.own_generation = shared->generation;
      if (!open_file(s)) return -1;
      break;
    }
    default:
      return -1;
  }
  s.enabled = true;
  return 0;
}

void log(const char* logger, int level, const char* component, const char* format, ...) {
  State* s = find(logger);
  if (!s || !s->enabled) return;
  {
    auto it = s->component_levels.find(component);
    const int limit = it == s->component_levels.end() ? kDefaultThreshold : it->second;
    if (level > limit) return;
  }

  std::string fmt;
  if (s->output == kRawStderr) {
    fmt = format;
  } else {
    fmt.reserve(s->prefix.size() + std::strlen(format) + 1);
    fmt.append(s->prefix).append(format);
    if (fmt.empty() || fmt.back() != '\n') fmt.push_back('\n');
  }
  va_list args;
  va_start(args, format);
  const std::string message = format_message(fmt.c_str(), args, s->output == kRawStderr);
  va_end(args);

  std::lock_guard<std::mutex> g(s->line_mutex);
  if (s->output == kRotatingFile && s->sharers >= 2 && s->own_generation != s->shared->generation) {
    if (s->file) std::fclose(s->file);
    s->file = nullptr;
    if (open_file(*s)) s->own_generation = s->shared->generation;
  }
  if (s->output == kRawStderr) {
    platform::write_text(stderr, message, false);
    return;
  }
  // No open stream (a failed rotation or reopen): the line is dropped. Checked
  // under the mutex because a rotation on another thread replaces the stream.
  if (!s->file) return;
  const std::string stamp = time_stamp(level);
  platform::write_text(s->file, stamp + message, s->output == kRotatingFile);
  std::fflush(s->file);
  if (s->output == kRotatingFile) {
    const auto chars = static_cast<std::uint32_t>(utf16_length(stamp) + utf16_length(message));
    if (s->shared->written.fetch_add(chars) + chars >= kRotateAt) {
      rotate(*s);
      s->shared->written = 0;
    }
  }
}

void shutdown(const std::string& name) {
  Registry& r = registry();
  std::lock_guard<std::mutex> g(r.lock);
  auto it = r.loggers.find(name);
  if (it == r.loggers.end()) return;
  std::lock_guard<std::mutex> line(it->second->line_mutex);
  close_file(*it->second);
  it->second->enabled = false;
}

bool enabled(const std::string& name) {
  State* s = find(name.c_str());
  return s && s->enabled;
}

int threshold(const std::string& component, const std::string& name) {
  State* s = find(name.c_str());
  if (!s) return kDefaultThreshold;
  auto it = s->component_levels.find(component);
  return it == s->component_levels.end() ? kDefaultThreshold : it->second;
}

std::uint32_t written(const std::string& name) {
  State* s = find(name.c_str());
  return s && s->shared ? s->shared->written.load() : 0;
}

std::string trace_tag() {
  std::string v;
  return platform::get_env("VANTOR_LOG_TRACE", v) ? v : std::string();
}

unsigned current_pid() {
  return platform::pid();
}
unsigned long current_tid() {
  return platform::tid();
}

const char* base_name(const char* path) {
  const char* base = path;
  for (const char* p = path; *p; ++p)
    if (*p == '/' || *p == '\\') base = p + 1;
  return base;
}

std::string to_utf8(const std::wstring& text) {
  return platform::narrow(text);
}

std::size_t utf16_length(const std::string& utf8) {
  std::size_t units = 0;
  for (unsigned char c : utf8) {
    if ((c & 0xC0) == 0x80) continue;  // continuation byte
    units += (c >= 0xF0) ? 2 : 1;      // 4-byte sequences need a surrogate pair
  }
  return units;
}

}  // namespace vlog
