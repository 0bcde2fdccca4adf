#pragma once
// Test helpers for the service traffic: a scripted peer on a real pipe end,
// a log file the test can read back, and per-process pipe/working-space
// isolation.

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "support/temp-dir.h"
#include "win-ipc.h"

namespace comm_test {

// A pipe server on its own thread: for each connection it reads one framed
// request, records it, and writes whatever the script returns (nothing when
// the script returns std::nullopt: the peer just hangs up).
class ScriptedPeer {
 public:
  using Script = std::function<std::optional<std::string>(const std::string& request)>;

  ScriptedPeer(std::string pipe, Script script);
  ~ScriptedPeer();
  ScriptedPeer(const ScriptedPeer&) = delete;
  ScriptedPeer& operator=(const ScriptedPeer&) = delete;

  // Creates the pipe and starts serving; false when the pipe cannot be made.
  bool start();
  void stop();

  std::vector<std::string> requests() const;
  int connections() const { return connections_.load(); }

 private:
  void loop();

  std::string pipe_;
  Script script_;
  WinIpc::IpcServer server_;
  std::thread thread_;
  std::atomic<bool> stop_{false};
  std::atomic<int> connections_{0};
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;
};

// The default logger writing to a file in a temporary folder with every
// component at debug level; text() returns what was written since mark().
class LogFile {
 public:
  LogFile();
  ~LogFile();
  void mark();
  std::string text() const;
  // Waits (pumping Qt events) until `needle` shows up in text(); false after
  // `timeout_ms`.
  bool waitFor(const std::string& needle, int timeout_ms = 5000) const;

 private:
  nimbra_test::TempDir dir_;
  std::string path_;
  std::size_t offset_ = 0;
};

// NIMBRA_PIPE_NAMESPACE unique to this process (and call), and
// NIMBRA_WORKING_SPACE pointing at a fresh temporary folder.
class Isolation {
 public:
  Isolation();
  const std::string& workingSpace() const { return dir_.path(); }

 private:
  nimbra_test::TempDir dir_;
  std::unique_ptr<nimbra_test::ScopedEnv> pipe_ns_;
  std::unique_ptr<nimbra_test::ScopedEnv> working_space_;
};

}  // namespace comm_test
