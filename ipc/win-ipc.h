#pragma once
// The byte transport under both directions of the agent's IPC.
//
// A message is its text followed by the 13-byte end marker "^^2552*1814^^";
// one connection carries exactly one message each way (request, then reply).
// On Windows the ends are named pipes ("\\.\pipe\NAME"); on Linux they are
// abstract Unix stream sockets named NAME, with $NIMBRA_PIPE_NAMESPACE put in
// front when it is set, so that test runs and demos do not meet each other.
//
// Every operation reports failure by its return value and one error line in
// the log (component "win_ipc"); nothing here throws.

#include <atomic>
#include <cstddef>
#include <string>

namespace WinIpc {

// The end marker that closes every message.
inline constexpr char kEndMarker[] = "^^2552*1814^^";
inline constexpr std::size_t kEndMarkerSize = sizeof(kEndMarker) - 1;  // 13

// Pipe names as the agent and the service use them. Both ends accept the
// Windows form; the POSIX layer strips the "\\.\pipe\" prefix.
inline constexpr char kServicePipe[] = "\\\\.\\pipe\\nimbrabackup-service";
inline constexpr char kAgentPipe[] = "\\\\.\\pipe\\nimbrabackup-ui";

// Budget of one accept round on the server end, in milliseconds.
inline constexpr int kAcceptTimeoutMs = 3000;

// Optional cancel flag of read and write: when it becomes true the loop gives
// up with -1 (looked at least every 100 ms while waiting).
using CancelFlag = std::atomic<bool>;

// The platform name a pipe name stands for: on Windows the name itself; on
// POSIX the bare name (without "\\.\pipe\") prefixed with
// $NIMBRA_PIPE_NAMESPACE, used as an abstract socket address.
std::string platform_pipe_name(const std::string& name);

// Client end: opens an existing pipe. One object serves one request.
class IpcClient {
 public:
  IpcClient();
  virtual ~IpcClient();
  IpcClient(const IpcClient&) = delete;
  IpcClient& operator=(const IpcClient&) = delete;

  // 0 on success, -1 on failure. A busy pipe is retried silently until
  // `timeout_ms` has passed; an absent one fails at once with a log line.
  // A time-out of 0 fails at once without a line.
  int connect(const std::string& name, int timeout_ms);
  // One framed message: 0 on success, -1 on failure.
  int read(std::string& out, const CancelFlag* cancel = nullptr);
  int write(const std::string& message, const CancelFlag* cancel = nullptr);
  void close();
  bool is_open() const;

 private:
  struct Handle;
  Handle* handle_;
};

// Server end: one instance of a pipe, one client at a time.
class IpcServer {
 public:
  IpcServer();
  ~IpcServer();
  IpcServer(const IpcServer&) = delete;
  IpcServer& operator=(const IpcServer&) = delete;

  // 0 on success, -1 on failure (for instance when another process already
  // serves the name).
  int create(const std::string& name);
  // Waits up to timeout_ms() for a client; true when one is connected.
  bool accept();
  // Drops the connected client; true on success.
  bool disconnect();
  int read(std::string& out, const CancelFlag* cancel = nullptr);
  int write(const std::string& message, const CancelFlag* cancel = nullptr);
  void close();
  bool is_open() const;

  int timeout_ms() const { return timeout_ms_; }
  void set_timeout_ms(int ms) { timeout_ms_ = ms; }

 private:
  struct Handle;
  int timeout_ms_ = kAcceptTimeoutMs;
  Handle* handle_;
};

}  // namespace WinIpc
