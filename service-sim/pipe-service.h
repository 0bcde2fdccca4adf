#pragma once
// The service pipe of the simulator: a thread accepts clients on the service
// pipe and hands each to one of a few worker threads, which reads one framed
// request, answers it from the device model and disconnects, as the real
// service does. Like the agent, it serves only uid 0 and its own user; a
// client gets a short deadline for its request, so nobody holds the pipe.
// Scenario faults (dropped connections, garbage, late answers) and the
// hostile mode are applied here, and every request received is appended to
// the record file (mode 0600: it holds tokens; a large request is cut).

#include <json/value.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "ipc/win-ipc.h"
#include "logging/log-throttle.h"
#include "service-sim/device-model.h"
#include "service-sim/scenario.h"

namespace sim {

// One JSON line per request received: {"time_ms":..., "time":"...Z",
// "request":{...}} or, for text that is not JSON, {"time_ms", "time", "raw"}.
// A request over kRecordCap bytes keeps its first kRecordCut bytes as "raw"
// with "bytes", its size.
class Recorder {
 public:
  static constexpr std::size_t kRecordCap = 16 * 1024;
  static constexpr std::size_t kRecordCut = 1024;

  Recorder() = default;
  ~Recorder();
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;
  // An empty path records nothing. False when the file cannot be opened
  // (also when it is a symbolic link). The file is made 0600.
  bool open(const std::string& path);
  void record(std::int64_t time_ms, const std::string& text, const Json::Value* parsed);

 private:
  std::mutex mutex_;
  int fd_ = -1;
};

// ISO 8601 UTC with milliseconds, for the record file and log lines.
std::string iso_time(std::int64_t time_ms);

class PipeService {
 public:
  struct Options {
    std::string pipe_name;  // WinIpc::kServicePipe by default
    std::string record_path;
    Faults faults;
    bool hostile = false;
    double answer_delay_ms = 0;
    int accept_timeout_ms = 250;  // how quickly stop() is noticed between clients
  };

  // Clients served at once, and the time one has for its request.
  static constexpr int kWorkers = 4;
  static constexpr int kClientIdleMs = 2000;
  static constexpr int kClientDeadlineMs = 3000;

  PipeService(DeviceModel& model, Options options);
  ~PipeService();
  PipeService(const PipeService&) = delete;
  PipeService& operator=(const PipeService&) = delete;

  // Creates the pipe and starts the thread; false, with the reason in
  // `*error` when given, when the record file or the pipe cannot be created
  // (another service already serves the name).
  bool start(std::string* error = nullptr);
  // Ends the thread (an exchange in progress is abandoned) and closes the pipe.
  void stop();

  // Requests read so far, and answers written.
  std::uint64_t received() const { return received_.load(); }
  std::uint64_t answered() const { return answered_.load(); }

  // The answer text for one request text (parse, model, hostile mode); what
  // the thread writes unless a fault replaces it.
  std::string answer_for(const std::string& request_text);

 private:
  std::string answer_parsed(const std::string& request_text, bool is_json, const Json::Value& request,
                            const std::string& parse_error);
  void run();
  void work();
  void serve_client(WinIpc::IpcConnection& client);
  bool wait_interruptibly(int ms);

  DeviceModel& model_;
  Options options_;
  Recorder recorder_;
  struct Impl;
  Impl* impl_;
  std::thread thread_;
  std::vector<std::thread> workers_;
  std::deque<std::unique_ptr<WinIpc::IpcConnection>> queue_;
  std::mutex queue_mutex_;
  std::condition_variable queue_cv_;
  vlog::LogThrottle refused_log_;
  vlog::LogThrottle incomplete_log_;
  std::atomic<bool> stop_{false};
  std::mutex wait_mutex_;
  std::condition_variable wait_cv_;
  std::atomic<std::uint64_t> received_{0};
  std::atomic<std::uint64_t> answered_{0};
  std::uint64_t connections_ = 0;
};

}  // namespace sim
