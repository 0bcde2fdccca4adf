#pragma once
// One log line per interval for a failure a peer can cause on every
// connection (refused, no complete request, accept failing): a flood costs a
// line now and then with the count of what was held back, never a line per
// connection, so it cannot rotate the log away.

#include <chrono>
#include <cstdint>
#include <mutex>

namespace vlog {

class LogThrottle {
 public:
  explicit LogThrottle(std::chrono::milliseconds interval = std::chrono::seconds(10)) : interval_(interval) {}

  // True when a line may be written now; `held_back` is then the number of
  // lines held back since the last one written. Thread-safe.
  bool allow(std::uint64_t& held_back) {
    const auto now = std::chrono::steady_clock::now();
    std::lock_guard<std::mutex> lock(mutex_);
    if (written_ && now - last_ < interval_) {
      ++held_back_;
      return false;
    }
    written_ = true;
    last_ = now;
    held_back = held_back_;
    held_back_ = 0;
    return true;
  }

 private:
  const std::chrono::milliseconds interval_;
  std::mutex mutex_;
  bool written_ = false;
  std::chrono::steady_clock::time_point last_;
  std::uint64_t held_back_ = 0;
};

}  // namespace vlog

// Logs through `throttle` (a vlog::LogThrottle): at most one line per
// interval, ending with how many were held back since the last one.
#define LOG_THROTTLED(throttle, LEVEL_MACRO, component, fmt, ...)                 \
  do {                                                                            \
    std::uint64_t vlog_held_back_ = 0;                                            \
    if ((throttle).allow(vlog_held_back_))                                        \
      LEVEL_MACRO(component, fmt " (%llu more like it held back)", ##__VA_ARGS__, \
                  static_cast<unsigned long long>(vlog_held_back_));              \
  } while (0)
