// Log lines per second into the rotating file (flushed after every line), with
// one writer and with four, and a count of the lines that reached the files.
#include <benchmark/benchmark.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "bench/bench-report.h"
#include "logging/logger.h"

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;

// A scratch folder for the log files of one run.
struct Scratch {
  Scratch() {
    path = fs::temp_directory_path() / ("nimbra-logger-bench-" + std::to_string(std::rand()) + "-" +
                                        std::to_string(Clock::now().time_since_epoch().count()));
    fs::create_directories(path);
  }
  ~Scratch() {
    std::error_code ec;
    fs::remove_all(path, ec);
  }
  std::wstring log_file() const { return (path / "ui.txt").wstring(); }
  fs::path path;
};

// Lines in ui.txt and every rotated ui.txt_N.
long count_lines(const fs::path& folder) {
  long lines = 0;
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::ifstream in(entry.path(), std::ios::binary);
    char buf[1 << 16];
    while (in.read(buf, sizeof buf) || in.gcount() > 0) {
      for (std::streamsize i = 0; i < in.gcount(); ++i)
        if (buf[i] == '\n') ++lines;
    }
  }
  return lines;
}

double g_rate_one = 0;   // lines/s of the last single-writer run
double g_rate_four = 0;  // lines/s of the last four-writer run
long g_lost_four = -1;   // lines logged but not found in the files, last four-writer run
long g_logged_four = 0;

void BM_LogLineOneThread(benchmark::State& state) {
  Scratch scratch;
  if (vlog::init(vlog::kRotatingFile, scratch.log_file(), L"", "", 50, 1) != 0) {
    state.SkipWithError("cannot open the log file");
    return;
  }
  long n = 0;
  const auto start = Clock::now();
  for (auto _ : state) {
    LOG_ERROR(vlog::kWinIpc, "failed to recv request, error %d, %s", static_cast<int>(n), "pipe broken");
    ++n;
  }
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  vlog::shutdown();
  g_rate_one = seconds > 0 ? static_cast<double>(n) / seconds : 0;
  state.SetItemsProcessed(n);
}
BENCHMARK(BM_LogLineOneThread)->UseRealTime();

// Four writers of `per_thread` lines each; then every line is counted.
void run_four(benchmark::State& state, long per_thread) {
  Scratch scratch;
  if (vlog::init(vlog::kRotatingFile, scratch.log_file(), L"", "", 50, 1) != 0) {
    state.SkipWithError("cannot open the log file");
    return;
  }
  std::atomic<bool> go{false};
  std::vector<std::thread> writers;
  for (int t = 0; t < 4; ++t)
    writers.emplace_back([&go, t, per_thread] {
      while (!go.load()) std::this_thread::yield();
      for (long i = 0; i < per_thread; ++i)
        LOG_ERROR(vlog::kDefaultComponent, "writer %d line %ld of the status poll", t, i);
    });
  const auto start = Clock::now();
  go = true;
  for (auto& w : writers) w.join();
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  vlog::shutdown();
  g_logged_four = 4 * per_thread;
  g_lost_four = g_logged_four - count_lines(scratch.path);
  g_rate_four = seconds > 0 ? static_cast<double>(g_logged_four) / seconds : 0;
  state.SetIterationTime(seconds);
  state.SetItemsProcessed(g_logged_four);
}

void BM_LogLineFourThreads(benchmark::State& state) {
  for (auto _ : state) run_four(state, state.range(0));
  state.SetItemsProcessed(g_logged_four * state.iterations());
}
BENCHMARK(BM_LogLineFourThreads)->Arg(50000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  bench_report::report("log lines/s to a file, 1 thread, flush per line", g_rate_one, "l/s", 100000, true);
  bench_report::report("log lines/s to a file, 4 threads, flush per line", g_rate_four, "l/s", 100000, true);
  bench_report::report(
      "lines lost of 4 x 50,000 from 4 threads (" + std::to_string(g_logged_four) + " logged)",
      static_cast<double>(g_lost_four), "lines", 0, false);
  return bench_report::report_summary();
}
