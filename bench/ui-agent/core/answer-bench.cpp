// What one answer of the service costs the agent in memory: a hostile
// get_status answer of 8 MiB made of small array elements, and a real
// status with 100 activity entries, each through the request client on its own thread
// and the bus to three listeners on the main thread (as the poller, the
// client manager and the tray listen).
//
// Targets: the process's peak resident size while the hostile answer is
// handled stays under 400 MB, and its resident size afterwards within 20 MB
// of where it was.

#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

#include "bench/bench-report.h"
#include "bench/ui-agent/core/service-peer.h"
#include "ipc/win-ipc.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-communicator.h"

namespace {

// A field of /proc/self/status in KiB ("VmHWM:", "VmRSS:").
long statusKiB(const char* field) {
  std::ifstream in("/proc/self/status");
  for (std::string line; std::getline(in, line);)
    if (line.rfind(field, 0) == 0) return std::strtol(line.c_str() + std::string(field).size(), nullptr, 10);
  return -1;
}

// Makes the peak the current size.
void resetPeak() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

std::string realStatus() {
  std::string logs;
  for (int i = 1; i <= 100; ++i) {
    if (i > 1) logs += ",";
    logs += R"({"id":)" + std::to_string(i) +
            R"(,"time":1700000000,"type":3,"body":{"site":"Home","plan":"Default policy","size":"1.2 GB"}})";
  }
  return R"({"status":8192,"content":{"connected":true,"progress":40,"logs":[)" + logs +
         R"(]},"connection":{"address":"cloud.example","port":443}})";
}

std::string hostileStatus() {
  std::string s = R"({"status":8192,"content":{"logs":[0)";
  s.reserve((8u << 20) + 64);
  while (s.size() < (8u << 20)) s += ",0";
  return s + "]}}";
}

struct Cost {
  long peakKiB;   // above the start
  long afterKiB;  // resident size afterwards, above the start
  bool answered;
};

// One get_status through the bus to three listeners.
Cost ask(const std::string& answer) {
  ServicePeer peer(answer);
  GlobalConnecter* bus = &GlobalConnecter::instance();
  QObject requester, listeners[3];
  QEventLoop loop;
  bool answered = false;
  std::size_t held = 0;
  for (QObject& l : listeners)
    QObject::connect(bus, &GlobalConnecter::sigQueryServiceDone, &l,
                     [&held](const QObject*, const Json::Value& v) { held += v.size(); });
  QObject::connect(bus, &GlobalConnecter::sigQueryServiceDone, &loop,
                   [&](const QObject* sender, const Json::Value&) {
                     if (sender != &requester) return;
                     answered = true;
                     loop.quit();
                   });
  QObject::connect(bus, &GlobalConnecter::sigQueryServiceFailed, &loop, [&] { loop.quit(); });
  const long start = statusKiB("VmRSS:");
  resetPeak();
  Json::Value request(Json::objectValue);
  request["action"] = "get_status";
  emit bus->sigQueryService(&requester, request);
  loop.exec();
  QCoreApplication::processEvents();
  const long peak = statusKiB("VmHWM:") - start;
  return Cost{peak, statusKiB("VmRSS:") - start, answered};
}

}  // namespace

int main(int argc, char** argv) {
  const std::string ns = "nimbra-bench-answer-" + std::to_string(::getpid()) + "-";
  ::setenv("NIMBRA_PIPE_NAMESPACE", ns.c_str(), 1);
  QCoreApplication app(argc, argv);
  GlobalConnecter::instance();
  QThread worker;
  auto* communicator = new ServiceCommunicator();
  communicator->moveToThread(&worker);
  worker.start();

  const std::string real = realStatus();
  const std::string hostile = hostileStatus();
  const long base = statusKiB("VmRSS:");
  const Cost r = ask(real);
  const Cost h = ask(hostile);
  worker.quit();
  worker.wait();
  delete communicator;

  std::printf("INFO    real status (%zu bytes): %s, peak %+ld KiB, afterwards %+ld KiB\n", real.size(),
              r.answered ? "answered" : "FAILED", r.peakKiB, r.afterKiB);
  std::printf("INFO    hostile status (%zu bytes): %s, peak %+ld KiB, afterwards %+ld KiB\n", hostile.size(),
              h.answered ? "taken" : "refused", h.peakKiB, h.afterKiB);
  bench_report::report("peak RSS with an 8 MiB hostile answer, MB", (base + h.peakKiB) / 1024.0, "MB", 400,
                       false);
  bench_report::report("RSS growth after the hostile answer, MB", h.afterKiB / 1024.0, "MB", 20, false);
  return bench_report::report_summary();
}
