#pragma once
// The service pipe of the simulator: a thread that accepts one client at a
// time on the service pipe, reads one framed request, answers it from the
// device model and disconnects, as the real service does. Scenario faults
// (dropped connections, garbage, late answers) and the hostile mode are
// applied here, and every request received is appended to the record file.

#include <json/value.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>

#include "device-model.h"
#include "scenario.h"

namespace sim {

// One JSON line per request received: {"time_ms":..., "time":"...Z",
// "request":{...}} or, for text that is not JSON, {"time_ms", "time", "raw"}.
class Recorder {
 public:
  // An empty path records nothing. False when the file cannot be opened.
  bool open(const std::string& path);
  void record(std::int64_t time_ms, const std::string& text, const Json::Value* parsed);

 private:
  std::mutex mutex_;
  std::ofstream out_;
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

  PipeService(DeviceModel& model, Options options);
  ~PipeService();
  PipeService(const PipeService&) = delete;
  PipeService& operator=(const PipeService&) = delete;

  // Creates the pipe and starts the thread; false with `error` filled when
  // the pipe cannot be created (another service already serves the name).
  bool start(std::string& error);
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
  void serve_client();
  bool wait_interruptibly(int ms);

  DeviceModel& model_;
  Options options_;
  Recorder recorder_;
  struct Impl;
  Impl* impl_;
  std::thread thread_;
  std::atomic<bool> stop_{false};
  std::mutex wait_mutex_;
  std::condition_variable wait_cv_;
  std::atomic<std::uint64_t> received_{0};
  std::atomic<std::uint64_t> answered_{0};
  std::uint64_t connections_ = 0;
};

}  // namespace sim
