#pragma once
// The one wait of the tests and benchmarks: polls `done` every `poll_ms`
// until it holds or `ms` has passed on the monotonic clock.

#include <chrono>
#include <thread>

namespace nimbra_test {

template <class Done>
bool wait_until(Done&& done, double ms, int poll_ms = 20) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double, std::milli>(ms);
  while (!done()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(poll_ms));
  }
  return true;
}

}  // namespace nimbra_test
