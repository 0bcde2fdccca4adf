#pragma once
// A scripted service end on a real pipe: for each connection it reads one
// framed request and writes whatever the script returns (nothing for
// std::nullopt: the peer just hangs up).

#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include "ipc/win-ipc.h"

class ScriptedPeer {
 public:
  using Script = std::function<std::optional<std::string>(const std::string& request)>;

  // Creates the pipe `name` and serves on a thread of its own; ok() is false
  // when the pipe could not be made.
  ScriptedPeer(const std::string& name, Script script);
  ~ScriptedPeer();
  bool ok() const { return thread_.joinable(); }
  int connections() const { return connections_.load(); }

 private:
  Script script_;
  WinIpc::IpcServer server_;
  std::thread thread_;
  std::atomic<bool> stop_{false};
  std::atomic<int> connections_{0};
};
