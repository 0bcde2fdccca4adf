#pragma once
// Helpers shared by the simulator's tests.

#include <json/value.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <string>

#include "json-access.h"
#include "scenario.h"

namespace simtest {

// A clock the test moves by hand.
struct ManualClock {
  std::atomic<std::int64_t> now{1700000000000};
  void advance_ms(std::int64_t ms) { now += ms; }
};

inline Json::Value parse(const std::string& text) {
  Json::Value v;
  jsonx::parse(text, v);
  return v;
}

inline Json::Value request(const std::string& action) {
  Json::Value r(Json::objectValue);
  r["action"] = action;
  return r;
}

// A unique pipe namespace for one test, so parallel runs never meet.
inline std::string unique_namespace(const char* tag) {
  static std::atomic<int> counter{0};
  return std::string("simtest") + tag + std::to_string(::getpid()) + "x" + std::to_string(++counter);
}

// A small, fast scenario: linked, two sites, a 1 s preparation and 4 s of
// transfer (1000 bytes at 250 B/s).
inline sim::Scenario quick_scenario(bool linked = true) {
  sim::Scenario s = sim::default_scenario();
  s.linked = linked;
  s.backup.prepare_seconds = 1;
  s.backup.total_bytes = 1000;
  s.backup.rate_bytes_per_second = 250;
  s.backup.delta_ratio = 0.5;
  s.backup.volumes = {"C:", "D:"};
  s.quota = 100000;
  s.used_bytes = 0;
  return s;
}

}  // namespace simtest
