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
// the log (component "win_ipc"); nothing here throws. Log lines carry names,
// sizes and error codes, never the text of a message.
//
// Every read has a size cap (64 MiB unless the caller gives another), and a
// caller may bound a read or write in time: `idle_ms` drops a peer that moves
// nothing for that long, `deadline_ms` one whose whole message takes longer.
// Over a limit the exchange fails with one log line and the memory taken for
// the message is given back.

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

// The size caps in use: what the agent's own pipe accepts from a client, and
// what the agent accepts as one answer of the service (also the default cap).
inline constexpr std::size_t kAgentMessageCap = std::size_t{1} << 20;    // 1 MiB
inline constexpr std::size_t kServiceAnswerCap = std::size_t{64} << 20;  // 64 MiB
// The agent's own pipe drops a client that sends nothing for this long, and
// one whose request is not complete after kAgentDeadlineMs.
inline constexpr int kAgentIdleMs = 5000;
inline constexpr int kAgentDeadlineMs = 10000;

// Bounds of one read or write. Zero time limits mean none; `max_bytes` (the
// text without the marker) applies to reads only.
struct Limits {
  std::size_t max_bytes = kServiceAnswerCap;
  int idle_ms = 0;
  int deadline_ms = 0;
};

// The limits of the agent's own pipe.
inline Limits agent_pipe_limits() {
  return Limits{kAgentMessageCap, kAgentIdleMs, kAgentDeadlineMs};
}

// Who is at the other end of a connection. POSIX reads it with SO_PEERCRED
// (the process that connected, or the one that created the listening end).
// Windows names the server a client is connected to by its process token's
// user (GetNamedPipeServerProcessId): uid 0 for LocalSystem, current_user()
// for this process's user, another value for anyone else or when it cannot be
// told; a server end's client stays unknown (the pipe's access list decides).
struct Peer {
  bool known = false;
  unsigned long uid = 0;
  long pid = 0;
};

// True for a peer the agent may talk to: the system (uid 0) or the user
// running this process. An unknown peer is trusted only on Windows, where the
// pipe's access list and identification-level impersonation do that work.
bool trusted_peer(const Peer& peer);
// The user running this process (uid on POSIX; on Windows the value a
// server's Peer has when it runs as this user).
unsigned long current_user();

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
  // A time-out of 0 fails at once without a line. With `cancel` the wait
  // for a busy pipe is cut in slices of at most 100 ms and given up when the
  // flag becomes true.
  int connect(const std::string& name, int timeout_ms, const CancelFlag* cancel = nullptr);
  // One framed message: 0 on success, -1 on failure. Without limits a read is
  // capped at kServiceAnswerCap and has no time limit.
  int read(std::string& out, const CancelFlag* cancel = nullptr);
  int read(std::string& out, const Limits& limits, const CancelFlag* cancel = nullptr);
  int write(const std::string& message, const CancelFlag* cancel = nullptr);
  int write(const std::string& message, const Limits& limits, const CancelFlag* cancel = nullptr);
  void close();
  bool is_open() const;
  // The process serving the pipe (known on POSIX once connected).
  Peer peer() const;

 private:
  struct Handle;
  Handle* handle_;
};

// One client taken off a server (IpcServer::take_client), served on its own
// thread while the server accepts the next one.
class IpcConnection {
 public:
  IpcConnection();
  ~IpcConnection();  // drops the client
  IpcConnection(const IpcConnection&) = delete;
  IpcConnection& operator=(const IpcConnection&) = delete;

  int read(std::string& out, const Limits& limits, const CancelFlag* cancel = nullptr);
  int write(const std::string& message, const Limits& limits, const CancelFlag* cancel = nullptr);
  bool is_open() const;
  Peer peer() const;

 private:
  friend class IpcServer;
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
  // Moves the connected client into `into` (which drops any client it held),
  // so that accept() can wait for the next one while it is served; false
  // when none is connected or, on Windows, the backlog is 0.
  bool take_client(IpcConnection& into);
  // How many clients may wait to be accepted (POSIX; on Windows how many
  // may be taken off and served at once), 0 unless set before create(): one
  // waits while another is served, the next one finds the pipe busy.
  void set_backlog(int backlog) { backlog_ = backlog; }
  int read(std::string& out, const CancelFlag* cancel = nullptr);
  int read(std::string& out, const Limits& limits, const CancelFlag* cancel = nullptr);
  int write(const std::string& message, const CancelFlag* cancel = nullptr);
  int write(const std::string& message, const Limits& limits, const CancelFlag* cancel = nullptr);
  void close();
  bool is_open() const;
  // The connected client (known on POSIX between accept and disconnect).
  Peer peer() const;

  int timeout_ms() const { return timeout_ms_; }
  void set_timeout_ms(int ms) { timeout_ms_ = ms; }

 private:
  struct Handle;
  int timeout_ms_ = kAcceptTimeoutMs;
  int backlog_ = 0;
  Handle* handle_;
};

// Who holds the pipe `name` now, asked without a log line: unknown when
// nobody listens (or on Windows).
Peer pipe_holder(const std::string& name);

}  // namespace WinIpc
