// How long the agent's main thread waits for nimbra-backup-notifier: from
// starting the program with one notification to its exit, with the
// notification on screen (dunst on a private bus and display).
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/bench-report.h"
#include "tests/support/desktop.h"

namespace {

nimbra_test::VirtualDesktop* desktop = nullptr;
std::vector<double> samples_ms;

void BM_NotifierRoundTrip(benchmark::State& state) {
  const QStringList args{
      "1", "/site", "1", "Backup successful", "Your device was backed up.", "Open Nimbra Backup", "1"};
  for (auto _ : state) {
    QProcess p;
    p.setProcessEnvironment(desktop->environment());
    QElapsedTimer t;
    t.start();
    p.start(NIMBRA_NOTIFIER_PROGRAM, args);
    p.waitForFinished(30000);
    const double ms = static_cast<double>(t.nsecsElapsed()) / 1e6;
    if (p.exitCode() != 0) state.SkipWithError("the notifier failed");
    state.SetIterationTime(ms / 1000.0);
    samples_ms.push_back(ms);
    // Close it, so that its detached process ends before the next run.
    desktop->run("dunstctl", {"close-all"});
  }
}
BENCHMARK(BM_NotifierRoundTrip)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

double percentile(std::vector<double> v, double p) {
  std::sort(v.begin(), v.end());
  return v.empty() ? 0
                   : v[std::min(v.size() - 1, static_cast<std::size_t>(p * static_cast<double>(v.size())))];
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QTemporaryDir scratch;
  nimbra_test::VirtualDesktop d(scratch.path());
  for (const QString& why : {d.startBus(), d.startDisplay(), d.startDunst()}) {
    if (!why.isEmpty()) {
      std::fprintf(stderr, "notifier-bench: %s\n", why.toLocal8Bit().constData());
      return 1;
    }
  }
  desktop = &d;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  bench_report::report("notifier back with 1 notification shown, median", percentile(samples_ms, 0.5), "ms",
                       200, false);
  bench_report::report("notifier back with 1 notification shown, 90th pct", percentile(samples_ms, 0.9), "ms",
                       200, false);
  return bench_report::report_summary();
}
