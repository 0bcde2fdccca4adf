// The tray's costs that grow with text: fitting the latest event into the
// pop-up's two lines, filling the activity dialog with 100 new entries (and
// with 40 whose values are a megabyte each), and
// one status update with a large status content. Each figure is printed
// beside its target and beside the plain walk over every width limit that
// the fit replaces.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFont>

#include <json/value.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

#include "bench/bench-report.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/log-entry.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/event-fit.h"
#include "ui-agent/tray/log-widget.h"
#include "ui-agent/tray/tray-menu.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/ui-path-manager.h"

namespace {

constexpr qint64 kNow = 1795426870;

const std::string kLongValue =
    "\\\\?\\GLOBALROOT\\Device\\HarddiskVolumeShadowCopy12\\Users\\Administrator\\Documents\\Quarterly "
    "reports and their many appendices for the whole financial year\\final-final-v7.xlsx";

Json::Value longBody() {
  Json::Value b(Json::objectValue);
  for (const char* key : {"volume_name", "error_code", "inode_number", "path", "email", "trigger_event",
                          "task_name", "destination", "plan_name", "parent_path", "interval_start",
                          "interval_end", "exit_code", "script_result_path"})
    b[key] = kLongValue;
  b["cbt"] = true;
  return b;
}

LogEntry entryOf(quint64 id, quint32 type, const Json::Value& body) {
  LogEntry e;
  e.id = id;
  e.time = static_cast<quint64>(kNow - 600);
  e.type = type;
  e.body = body;
  return e;
}

// The event whose plain message is the longest, with long values.
LogEntry longestEntry() {
  LogEntry best;
  int longest = -1;
  const Json::Value body = longBody();
  for (quint32 type = 1000; type <= 8300; ++type) {
    if (event_text::kind_of(type) == event_text::Kind::Unknown) continue;
    const int n = event_text::render(type, body, false, 449).size();
    if (n > longest) {
      longest = n;
      best = entryOf(1, type, body);
    }
  }
  return best;
}

// 100 entries of mixed types and lengths, ids from `first`.
QList<LogEntry> mixedEntries(quint64 first) {
  std::vector<quint32> types;
  for (quint32 type = 1000; type <= 8300; ++type)
    if (event_text::kind_of(type) != event_text::Kind::Unknown) types.push_back(type);
  Json::Value shortBody(Json::objectValue);
  shortBody["volume_name"] = "C:";
  shortBody["path"] = "C:\\Users";
  const Json::Value body = longBody();
  QList<LogEntry> list;
  for (quint64 i = 0; i < 100; ++i)
    list << entryOf(first + i, types[(i * 7) % types.size()], i % 2 ? body : shortBody);
  return list;
}

// A status content of about 17 KB: a running backup with its numbers and a
// "logs" array as the service sends it.
Json::Value bigContent() {
  Json::Value c(Json::objectValue);
  c["connected"] = true;
  c["transfer"]["transfer"] = Json::UInt64(48318382080ull);
  c["transfer"]["delta_upload"] = Json::UInt64(2254857830ull);
  c["transfer"]["total"] = Json::UInt64(128849018880ull);
  c["transfer"]["speed"] = Json::Int64(41943040);
  c["last_backup_result"]["last_backup_status"] = 2;
  c["last_backup_result"]["last_backup_time"] = Json::UInt64(kNow - 86400);
  c["next_backup_time"] = Json::UInt64(kNow + 86400);
  c["billing"]["used_bytes"] = Json::UInt64(1288490188ull);
  c["billing"]["quota"] = Json::UInt64(5368709120ull);
  Json::Value& logs = c["logs"];
  for (int i = 0; logs.toStyledString().size() < 17 * 1024; ++i) {
    Json::Value e(Json::objectValue);
    e["id"] = i;
    e["time"] = Json::UInt64(kNow - i);
    e["type"] = 7002;
    e["body"]["volume_name"] = "Local Disk (C:) " + std::to_string(i);
    logs.append(e);
  }
  return c;
}

// The time this thread spends, in milliseconds. The figures are the GUI
// thread's own time: on a shared machine the wall clock also counts the
// other processes' turns (on an idle one the two agree).
double thread_ms() {
  timespec ts{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
  return static_cast<double>(ts.tv_sec) * 1e3 + static_cast<double>(ts.tv_nsec) / 1e6;
}

// Best of `rounds` timings of f, in milliseconds of thread time.
double best_ms(const std::function<void()>& f, int rounds) {
  double best = 1e300;
  for (int r = 0; r < rounds; ++r) {
    const double start = thread_ms();
    f();
    best = std::min(best, thread_ms() - start);
  }
  return best;
}

void setScale(double scale) {
  qputenv("NIMBRA_UI_SCALE", QByteArray::number(scale));
  QFont font = QApplication::font();
  font.setPointSizeF(9.0 * scale);  // as a high-DPI screen gives the font
  QApplication::setFont(font);
}

void plainWalk(double walk_ms, double fast_ms) {
  std::printf("        plain walk over every limit: %.2f ms (%.1fx the fit)\n", walk_ms, walk_ms / fast_ms);
  std::fflush(stdout);
}

void BM_TrayFitLongest(benchmark::State& state) {
  const LogEntry e = longestEntry();
  auto fitter = event_fit::Fitter::tray();
  for (auto _ : state) benchmark::DoNotOptimize(fitter.fit(e));
}
BENCHMARK(BM_TrayFitLongest)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM",
          qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  const QString res = QStringLiteral(TRAY_BENCH_RESOURCES);
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), res);
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->initialize(
      {res + "/agent.stylesheet", res + "/component.business.stylesheet"});
  setScale(1);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();

  const LogEntry longest = longestEntry();
  std::printf("longest message: type %u, %d characters\n", longest.type,
              event_text::render(longest, false, 449).size());
  for (double scale : {1.0, 2.0}) {
    setScale(scale);
    auto fitter = event_fit::Fitter::tray();
    const double fast = best_ms([&] { benchmark::DoNotOptimize(fitter.fit(longest)); }, 15);
    const double walk = best_ms([&] { benchmark::DoNotOptimize(fitter.fitLinear(longest)); }, 3);
    bench_report::report("tray latest-event fit, longest message, scale " + std::to_string(int(scale)), fast,
                         "ms", 5, false);
    plainWalk(walk, fast);
  }
  setScale(1);

  {
    const QList<LogEntry> entries = mixedEntries(1);
    double fill = 1e300;
    for (int r = 0; r < 5; ++r) {
      LogWidget log;  // a fresh dialog: all 100 entries are new
      const double start = thread_ms();
      log.fillEntries(entries);
      fill = std::min(fill, thread_ms() - start);
    }
    auto fitter = event_fit::Fitter::activity();
    const double walk = best_ms(
        [&] {
          for (const LogEntry& e : entries) benchmark::DoNotOptimize(fitter.fitLinear(e));
        },
        1);
    bench_report::report("activity dialog fill, 100 new entries", fill, "ms", 100, false);
    std::printf("        plain walk, the 100 fits alone: %.2f ms (%.1fx the whole fill)\n", walk,
                walk / fill);
  }

  {
    // A broken or hostile service: 40 entries whose values are a megabyte each.
    Json::Value body(Json::objectValue);
    body["volume_name"] = std::string(1 << 20, 'V');
    body["error_code"] = std::string(1 << 20, '7');
    body["path"] = std::string(1 << 20, 'P');
    QList<LogEntry> huge;
    for (quint64 id = 1; id <= 40; ++id) huge << entryOf(id, id % 2 ? 7038 : 6015, body);
    double fill = 1e300;
    for (int r = 0; r < 3; ++r) {
      LogWidget log;
      const double start = thread_ms();
      log.fillEntries(huge);
      fill = std::min(fill, thread_ms() - start);
    }
    bench_report::report("activity dialog fill, 40 entries with 1 MB values", fill, "ms", 100, false);
  }

  {
    const Json::Value content = bigContent();
    std::printf("status content: %zu bytes\n", content.toStyledString().size());
    TrayMenu menu;
    menu.setClock([] { return kNow; });
    menu.appendLogEntries({longest});
    auto fitter = event_fit::Fitter::tray();
    const double walk = best_ms([&] { benchmark::DoNotOptimize(fitter.fitLinear(longest)); }, 3);
    for (int running = 0; running < 2; ++running) {
      const auto status = static_cast<ServiceStatus>(running ? 0x3003 : 0x2000);
      menu.updateServiceStatus(status, content);  // the first update after a new entry fits it
      const double update = best_ms([&] { menu.updateServiceStatus(status, content); }, 200);
      bench_report::report(
          std::string("updateServiceStatus, 17 KB content, ") + (running ? "progress" : "status") + " page",
          update, "ms", 2, false);
      std::printf("        with the plain walk on each update: %.2f ms (%.1fx)\n", update + walk,
                  (update + walk) / update);
    }
  }
  return bench_report::report_summary();
}
