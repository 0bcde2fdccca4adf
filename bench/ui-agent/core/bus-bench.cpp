// Round trip of a request over the bus, beside the raw transport exchange
// it rides on.
//
// Raw: one client connect / write / read against a local peer answering a
// small get_status. Bus: sigQueryService emitted on the main thread until
// sigQueryServiceDone for the same sender is delivered on the main thread,
// through the request client on its own thread and the same peer.
// Target: bus median <= 3 x raw median.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "bench/bench-report.h"
#include "bench/ui-agent/core/service-peer.h"
#include "ipc/win-ipc.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-communicator.h"
#include "vantor-core/lib/json-access.h"

namespace {

using Clock = std::chrono::steady_clock;

const char kAnswer[] =
    R"({"status":8192,"content":{"connected":true,"last_backup":{"result":1,"end_time":1700000000}},)"
    R"("connection":{"address":"cloud.example","port":443,"username":"me@example.com"}})";

Json::Value getStatusRequest() {
  Json::Value r(Json::objectValue);
  r["action"] = "get_status";
  r["log_id"] = 42;
  return r;
}

std::vector<double> g_raw_us;
std::vector<double> g_bus_us;

void BM_RawExchange(benchmark::State& state) {
  const std::string text = getStatusRequest().toStyledString();
  for (auto _ : state) {
    const auto t0 = Clock::now();
    WinIpc::IpcClient client;
    std::string reply;
    if (client.connect(WinIpc::kServicePipe, 3000) != 0 || client.write(text) != 0 ||
        client.read(reply) != 0) {
      state.SkipWithError("exchange failed");
      break;
    }
    Json::Value parsed;
    jsonx::parse(reply, parsed);
    benchmark::DoNotOptimize(parsed);
    g_raw_us.push_back(std::chrono::duration<double, std::micro>(Clock::now() - t0).count());
  }
}

void BM_BusRoundTrip(benchmark::State& state) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  QObject requester;
  QEventLoop loop;
  bool ok = false;
  QObject::connect(bus, &GlobalConnecter::sigQueryServiceDone, &loop,
                   [&](const QObject* sender, const Json::Value&) {
                     if (sender != &requester) return;
                     ok = true;
                     loop.quit();
                   });
  QObject::connect(bus, &GlobalConnecter::sigQueryServiceFailed, &loop, [&] {
    ok = false;
    loop.quit();
  });
  const Json::Value request = getStatusRequest();
  for (auto _ : state) {
    const auto t0 = Clock::now();
    emit bus->sigQueryService(&requester, request);
    loop.exec();
    if (!ok) {
      state.SkipWithError("request failed");
      break;
    }
    g_bus_us.push_back(std::chrono::duration<double, std::micro>(Clock::now() - t0).count());
  }
}

double percentile(std::vector<double> v, double p) {
  if (v.empty()) return 0.0;
  std::sort(v.begin(), v.end());
  const std::size_t at =
      std::min(v.size() - 1, static_cast<std::size_t>(p * static_cast<double>(v.size() - 1) + 0.5));
  return v[at];
}

}  // namespace

int main(int argc, char** argv) {
  const std::string ns = "nimbra-bench-bus-" + std::to_string(::getpid()) + "-";
  ::setenv("NIMBRA_PIPE_NAMESPACE", ns.c_str(), 1);
  QCoreApplication app(argc, argv);
  GlobalConnecter::instance();

  ServicePeer peer(kAnswer);
  QThread worker;
  auto* communicator = new ServiceCommunicator();
  communicator->moveToThread(&worker);
  worker.start();

  benchmark::RegisterBenchmark("raw_transport_exchange", BM_RawExchange)->Iterations(2000)->UseRealTime();
  benchmark::RegisterBenchmark("bus_round_trip", BM_BusRoundTrip)->Iterations(2000)->UseRealTime();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();

  worker.quit();
  worker.wait();
  delete communicator;

  const double raw_median = percentile(g_raw_us, 0.5);
  const double bus_median = percentile(g_bus_us, 0.5);
  std::printf("INFO    raw transport exchange: median %.1f us, p99 %.1f us (%zu samples)\n", raw_median,
              percentile(g_raw_us, 0.99), g_raw_us.size());
  std::printf("INFO    bus round trip:         median %.1f us, p99 %.1f us (%zu samples)\n", bus_median,
              percentile(g_bus_us, 0.99), g_bus_us.size());
  bench_report::report("bus round trip median, us (<= 3x raw exchange median)", bus_median, "us",
                       3.0 * raw_median, false);
  return bench_report::report_summary();
}
