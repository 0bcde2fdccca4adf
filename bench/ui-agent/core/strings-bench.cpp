// Cost of rendering an activity event as rich text, beside the cost of the
// one elidedText call it contains. The status page and the activity dialog
// call the rendering in fitting loops (up to a few hundred calls per label),
// so it must stay close to the price of the eliding itself.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFontMetrics>

#include <json/value.h>

#include <algorithm>
#include <cstdio>

#include "bench/bench-report.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"

namespace {

// Type 7039: a long named event with two values that trade places.
constexpr quint32 kType = 7039;
constexpr int kLimit = 354;

Json::Value body() {
  Json::Value b(Json::objectValue);
  b["volume_name"] = "Local Disk (C:) with a rather long volume label";
  b["error_code"] = "0x80070015";
  return b;
}

// The same sentence as the rendering elides, measured with the same font.
QString plain_sentence() {
  return event_text::render(kType, body(), false, kLimit);
}

void BM_RenderEventRich(benchmark::State& state) {
  const Json::Value b = body();
  for (auto _ : state) {
    benchmark::DoNotOptimize(event_text::render(kType, b, true, kLimit));
  }
}
BENCHMARK(BM_RenderEventRich);

void BM_ElidedTextOnly(benchmark::State& state) {
  const QString text = plain_sentence();
  const QFontMetrics fm(QApplication::font());
  for (auto _ : state) {
    benchmark::DoNotOptimize(fm.elidedText(text, Qt::ElideRight, kLimit - 20, 0));
  }
}
BENCHMARK(BM_ElidedTextOnly);

// Mean nanoseconds per call over `rounds` timed batches of `calls`.
template <typename F>
double ns_per_call(F&& f, int calls) {
  QElapsedTimer timer;
  timer.start();
  for (int i = 0; i < calls; ++i) f();
  return static_cast<double>(timer.nsecsElapsed()) / calls;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM",
          qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();

  // The figure: both measured here, interleaved, so that they share the
  // machine's state; the best of several batches of each.
  const Json::Value b = body();
  const QString text = plain_sentence();
  const QFontMetrics fm(QApplication::font());
  constexpr int kCalls = 300;  // one fitting loop
  double render = 1e300, elide = 1e300;
  for (int round = 0; round < 15; ++round) {
    render = std::min(
        render,
        ns_per_call([&] { benchmark::DoNotOptimize(event_text::render(kType, b, true, kLimit)); }, kCalls));
    elide = std::min(
        elide,
        ns_per_call([&] { benchmark::DoNotOptimize(fm.elidedText(text, Qt::ElideRight, kLimit - 20, 0)); },
                    kCalls));
  }
  std::printf("event_text::render rich: %.0f ns/call, elidedText: %.0f ns/call\n", render, elide);
  bench_report::report("rich event message / one elidedText (x)", render / elide, "x", 1.5, false);
  return bench_report::report_summary();
}
