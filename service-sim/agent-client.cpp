#include "service-sim/agent-client.h"

#include <chrono>

#include "ipc/win-ipc.h"
#include "service-sim/sim-log.h"
#include "vantor-core/lib/json-access.h"

namespace sim {

std::string resolve_pipe_name(const std::string& name) {
  if (name == "service") return WinIpc::kServicePipe;
  if (name == "agent" || name == "ui") return WinIpc::kAgentPipe;
  return name;
}

Exchange exchange(const std::string& pipe_name, const std::string& message, int timeout_ms) {
  Exchange result;
  WinIpc::IpcClient client;
  if (client.connect(pipe_name, timeout_ms) != 0) {
    result.error = "cannot connect to " + pipe_name + " (" + WinIpc::platform_pipe_name(pipe_name) +
                   "): nobody serves it";
    return result;
  }
  if (client.write(message) != 0) {
    result.error = "cannot write the request to " + pipe_name;
    return result;
  }
  // An answer is capped and must come within the budget plus a grace of 30 s.
  if (client.read(result.answer, WinIpc::Limits{WinIpc::kServiceAnswerCap, 0, timeout_ms + 30000}) != 0) {
    result.error = "no answer from " + pipe_name + " (the peer closed the connection)";
    result.answer.clear();
    return result;
  }
  result.ok = true;
  return result;
}

NotificationPusher::NotificationPusher(std::string pipe_name) : pipe_name_(std::move(pipe_name)) {
  thread_ = std::thread([this] { run(); });
}

NotificationPusher::~NotificationPusher() {
  {
    std::lock_guard<std::mutex> lock(mutex_);
    stop_ = true;
  }
  cv_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void NotificationPusher::push(const Json::Value& request) {
  {
    std::lock_guard<std::mutex> lock(mutex_);
    queue_.push_back(request);
  }
  cv_.notify_all();
}

bool NotificationPusher::drain(int timeout_ms) {
  std::unique_lock<std::mutex> lock(mutex_);
  return cv_.wait_for(lock, std::chrono::milliseconds(timeout_ms),
                      [this] { return queue_.empty() && !busy_; });
}

int NotificationPusher::delivered() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return delivered_;
}

int NotificationPusher::failed() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return failed_;
}

void NotificationPusher::run() {
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    cv_.wait(lock, [this] { return stop_ || !queue_.empty(); });
    if (stop_) return;
    Json::Value request = queue_.front();
    queue_.pop_front();
    busy_ = true;
    lock.unlock();
    const Exchange ex = exchange(pipe_name_, jsonx::compact(request), 3000);
    bool accepted = false;
    if (ex.ok) {
      Json::Value reply;
      accepted = jsonx::parse(ex.answer, reply) && jsonx::get_bool(reply, "success");
      if (!accepted) SIM_WARN("the agent refused a notification: %s", ex.answer.c_str());
    } else {
      SIM_WARN("notification not delivered: %s", ex.error.c_str());
    }
    if (accepted) SIM_INFO("notification delivered: %s", jsonx::compact(request).c_str());
    lock.lock();
    busy_ = false;
    if (accepted) {
      ++delivered_;
    } else {
      ++failed_;
    }
    cv_.notify_all();
  }
}

}  // namespace sim
