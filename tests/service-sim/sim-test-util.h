#pragma once
// Helpers shared by the simulator's tests.

#include <json/value.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "service-sim/scenario.h"
#include "vantor-core/lib/json-access.h"

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

// {"action": action, members...}
inline Json::Value request(const std::string& action,
                           std::initializer_list<std::pair<const char*, Json::Value>> members = {}) {
  Json::Value r(Json::objectValue);
  r["action"] = action;
  for (const auto& m : members) r[m.first] = m.second;
  return r;
}

// Follows a '/'-separated path of object members ("content/billing"); a
// missing or mistyped step reads as null.
inline const Json::Value& at(const Json::Value& v, const std::string& path) {
  const std::size_t slash = path.find('/');
  const Json::Value& next = jsonx::member(v, path.substr(0, slash).c_str());
  return slash == std::string::npos ? next : at(next, path.substr(slash + 1));
}
// The integer / string at such a path (0 / "" when absent or mistyped).
inline std::int64_t num(const Json::Value& v, const std::string& path) {
  return jsonx::to_int64(at(v, path));
}
inline std::string str(const Json::Value& v, const std::string& path) {
  return jsonx::to_string(at(v, path));
}

// A unique pipe namespace for one test, so parallel runs never meet.
inline std::string unique_namespace(const char* tag) {
  static std::atomic<int> counter{0};
  return std::string("simtest") + tag + std::to_string(::getpid()) + "x" + std::to_string(++counter);
}

// A small, fast scenario: two sites, a 1 s preparation and 4 s of transfer
// (1000 bytes at 250 B/s, half of it uploaded).
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
