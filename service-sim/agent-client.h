#pragma once
// The client end of one framed exchange with any pipe (the agent's, or the
// service's), and the queue that pushes the model's notifications to the
// agent's pipe from a thread of its own, so that a slow or absent agent never
// holds up the service.

#include <json/value.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

namespace sim {

struct Exchange {
  bool ok = false;
  std::string answer;  // the reply text when ok
  std::string error;   // why it failed otherwise
};

// Connects to `pipe_name` (waiting up to `timeout_ms` for a busy pipe), writes
// `message` as one framed message and reads one framed reply.
Exchange exchange(const std::string& pipe_name, const std::string& message, int timeout_ms = 3000);

// "service", "agent" (or "ui"), or a pipe name as the agent uses them
// ("\\.\pipe\NAME" or a bare NAME).
std::string resolve_pipe_name(const std::string& name);

class NotificationPusher {
 public:
  explicit NotificationPusher(std::string pipe_name);
  ~NotificationPusher();
  NotificationPusher(const NotificationPusher&) = delete;
  NotificationPusher& operator=(const NotificationPusher&) = delete;

  void push(const Json::Value& request);
  // Waits until the queue is empty (tests); false on time-out.
  bool drain(int timeout_ms);
  int delivered() const;
  int failed() const;

 private:
  void run();

  std::string pipe_name_;
  mutable std::mutex mutex_;
  std::condition_variable cv_;
  std::deque<Json::Value> queue_;
  bool busy_ = false;
  bool stop_ = false;
  int delivered_ = 0;
  int failed_ = 0;
  std::thread thread_;
};

}  // namespace sim
