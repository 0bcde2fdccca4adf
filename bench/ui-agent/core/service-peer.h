#pragma once
// A service end for the agent's benchmarks: answers every request on the
// service pipe with one fixed text, on a thread of its own.

#include <atomic>
#include <cstdlib>
#include <string>
#include <thread>

#include "ipc/win-ipc.h"

class ServicePeer {
 public:
  explicit ServicePeer(std::string answer) : answer_(std::move(answer)) {
    server_.set_timeout_ms(50);
    if (server_.create(WinIpc::kServicePipe) != 0) std::abort();
    thread_ = std::thread([this] {
      while (!stop_) {
        if (!server_.accept()) continue;
        std::string request;
        if (server_.read(request) == 0) server_.write(answer_);
        server_.disconnect();
      }
    });
  }
  ~ServicePeer() {
    stop_ = true;
    thread_.join();
    server_.close();
  }
  ServicePeer(const ServicePeer&) = delete;
  ServicePeer& operator=(const ServicePeer&) = delete;

 private:
  std::string answer_;
  WinIpc::IpcServer server_;
  std::thread thread_;
  std::atomic<bool> stop_{false};
};
