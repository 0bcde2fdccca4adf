// Requests per second that the simulated service answers to a client asking
// "get_status" in a loop (one connection per request, as the agent does),
// while a backup runs and the model moves on.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include "bench/bench-report.h"
#include "ipc/win-ipc.h"
#include "service-sim/agent-client.h"
#include "service-sim/device-model.h"
#include "service-sim/pipe-service.h"
#include "vantor-core/lib/json-access.h"

namespace {

const std::string kRequest = "{\n   \"action\" : \"get_status\",\n   \"log_id\" : 0\n}\n";

struct Service {
  Service() : model(make_scenario(), std::string(), std::string()), pipe(model, {}) {
    std::string error;
    ok = pipe.start(&error);
    Json::Value r(Json::objectValue);
    r["action"] = "backup_now";
    model.handle(r);
  }
  static sim::Scenario make_scenario() {
    sim::Scenario s = sim::default_scenario();
    s.backup.prepare_seconds = 0;
    s.backup.total_bytes = 1ULL << 50;  // runs for the whole benchmark
    return s;
  }
  sim::DeviceModel model;
  sim::PipeService pipe;
  bool ok = false;
};

Service& service() {
  static Service s;
  return s;
}

void BM_GetStatusRoundTrip(benchmark::State& state) {
  Service& s = service();
  if (!s.ok) {
    state.SkipWithError("cannot serve the pipe");
    return;
  }
  for (auto _ : state) {
    s.model.advance();
    const sim::Exchange ex = sim::exchange(WinIpc::kServicePipe, kRequest);
    if (!ex.ok) {
      state.SkipWithError(ex.error.c_str());
      return;
    }
    benchmark::DoNotOptimize(ex.answer.data());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GetStatusRoundTrip)->UseRealTime()->MinTime(1.0);

}  // namespace

int main(int argc, char** argv) {
  const std::string ns = "simbench" + std::to_string(::getpid());
  ::setenv("NIMBRA_PIPE_NAMESPACE", ns.c_str(), 1);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  // The figure beside its target: a fixed two-second loop.
  Service& s = service();
  if (!s.ok) {
    bench_report::report("service-sim get_status requests/s", 0, "req/s", 5000, true);
    return bench_report::report_summary();
  }
  const auto t0 = std::chrono::steady_clock::now();
  long n = 0;
  while (std::chrono::steady_clock::now() - t0 < std::chrono::seconds(2)) {
    if (sim::exchange(WinIpc::kServicePipe, kRequest).ok) ++n;
  }
  const double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
  bench_report::report("service-sim get_status requests/s (one client)", static_cast<double>(n) / secs,
                       "req/s", 5000, true);
  benchmark::Shutdown();
  return bench_report::report_summary();
}
