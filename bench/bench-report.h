#pragma once
// Prints a measured figure beside its target, one line each, after the
// Google Benchmark table:
//
//   TARGET  log lines/s, 1 thread        412,331   >= 100,000   met
//
// A benchmark's main calls report() once per figure; report_summary() returns
// the process exit code (0 when every target was met).

#include <cstdio>
#include <string>

namespace bench_report {

inline int& failures() {
  static int n = 0;
  return n;
}

// higher_is_better: the figure must be >= target; otherwise <= target.
inline void report(const std::string& what, double figure, const char* unit, double target,
                   bool higher_is_better) {
  const bool met = higher_is_better ? figure >= target : figure <= target;
  if (!met) ++failures();
  std::printf("TARGET  %-52s %14.2f %-6s %s %12.2f  %s\n", what.c_str(), figure, unit,
              higher_is_better ? ">=" : "<=", target, met ? "met" : "MISSED");
  std::fflush(stdout);
}

inline int report_summary() {
  return failures() == 0 ? 0 : 1;
}

}  // namespace bench_report
