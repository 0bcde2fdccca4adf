#pragma once
// Log lines of the simulator: through the project's logger (component
// "service_sim"), and also to standard error when --verbose is given.

#include <atomic>
#include <cstdio>

#include "logging/logger.h"

namespace sim {

inline constexpr const char* kSimComponent = "service_sim";

// True when --verbose asked for the lines on standard error as well.
inline std::atomic<bool>& verbose() {
  static std::atomic<bool> on{false};
  return on;
}

}  // namespace sim

#define SIM_LINE_(macro, tag, fmt, ...)                                                        \
  do {                                                                                         \
    macro(::sim::kSimComponent, fmt, ##__VA_ARGS__);                                           \
    if (::sim::verbose().load()) std::fprintf(stderr, "sim " tag " " fmt "\n", ##__VA_ARGS__); \
  } while (0)

#define SIM_INFO(fmt, ...) SIM_LINE_(LOG_INFO, "info ", fmt, ##__VA_ARGS__)
#define SIM_WARN(fmt, ...) SIM_LINE_(LOG_WARN, "warn ", fmt, ##__VA_ARGS__)
#define SIM_ERROR(fmt, ...) SIM_LINE_(LOG_ERROR, "error", fmt, ##__VA_ARGS__)
