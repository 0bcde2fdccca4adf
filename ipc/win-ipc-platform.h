#pragma once
// The handful of system calls under the framing loop of win-ipc.cpp.
//
// win-ipc-posix.cpp and win-ipc-windows.cpp implement these functions; they
// never log. Every failure comes back as a status with the system's error
// code, and win-ipc.cpp writes the log line, so that all lines of this layer
// carry the source name win-ipc.cpp.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

#include "ipc/win-ipc.h"

namespace WinIpc {
namespace platform {

// A native handle: a file descriptor on POSIX, a HANDLE on Windows. Both
// fit an intptr_t and both use -1 for "not open" (INVALID_HANDLE_VALUE).
using Native = std::intptr_t;
inline constexpr Native kInvalid = -1;

// Size of the read buffer (reads take at most kBufferSize - 1 bytes) and of
// the pipe's own buffers.
inline constexpr std::size_t kBufferSize = 4096;

enum class Status {
  kOk,      // done; `count` bytes moved (may be 0)
  kRetry,   // nothing to do yet (no data, buffer full, no client): wait, then try again
  kBusy,    // connect: the pipe exists but takes no client now
  kGone,    // accept: a client came and already left
  kFailed,  // any other error; `error` holds the system's code
};

struct Result {
  Status status = Status::kFailed;
  std::size_t count = 0;
  unsigned error = 0;
  // connect and accept: milliseconds spent waiting inside the call.
  int waited_ms = 0;
};

// Where server creation stopped; each step has its own log line.
enum class CreateStep {
  kDone,
  kAllocSid,
  kEveryoneSid,
  kAce,
  kInitDescriptor,
  kSetDescriptor,
  kPipe,
};

struct CreateResult {
  CreateStep step = CreateStep::kPipe;
  unsigned error = 0;
};

// The two ends a server holds: the listening end and the connected client.
// On Windows both are the one pipe handle.
struct ServerEnds {
  Native listener = kInvalid;
  Native client = kInvalid;
  // Windows: the pipe's name and how many instances it may have, for the
  // instance that takes over listening when a client is detached.
  std::string name;
  int instances = 1;
};

// The name in the form the system takes (see platform_pipe_name).
std::string native_name(const std::string& name);

// One connect attempt. A busy pipe may be waited on for up to `wait_ms`
// inside the call (Windows sleeps its fixed 100 ms there instead); the time
// actually spent comes back in waited_ms.
Result connect_client(const std::string& name, int wait_ms, Native& out);

// `backlog`: how many clients may wait while one is served (POSIX); on
// Windows, where one pipe instance is one client, a backlog above 0 allows
// that many instances besides the first, for detach_client.
CreateResult create_server(const std::string& name, ServerEnds& ends, int backlog);

// One accept attempt, waiting for a client for up to `wait_ms` (Windows
// sleeps its fixed 100 ms when there is none).
Result accept_client(ServerEnds& ends, int wait_ms);

// Moves the connected client out of `ends` into `out`, so that the next
// accept waits for another one (on Windows a new instance of the pipe
// listens; false when the pipe allows one instance only, backlog 0).
bool detach_client(ServerEnds& ends, Native& out);

// Drops the connected client. kOk or kFailed.
Result disconnect_client(ServerEnds& ends);

void close_server(ServerEnds& ends);
void close_handle(Native& handle);

// Moves at most `size` bytes without blocking: kOk with the count (0 at the
// end of the stream), kRetry when nothing can move now, or kFailed.
Result read_some(Native handle, char* buffer, std::size_t size);
Result write_some(Native handle, const char* data, std::size_t size);

// The pause between two read or write attempts that had to retry. POSIX waits
// for the handle to become ready, at most 100 ms so that the caller looks at
// its cancel flag again; Windows sleeps 10 ms.
void wait_readable(Native handle);
void wait_writable(Native handle);

// Largest piece handed to one write_some call.
std::size_t write_piece_limit();

// After a whole message is written (FlushFileBuffers on Windows).
void flush(Native handle);

// The credentials of the process at the other end of a connected handle
// (unknown on Windows), and the user running this process.
Peer peer_of(Native handle);
// The process serving the pipe a client end is connected to. Windows names
// it by its token's user: uid 0 for LocalSystem, current_user() for this
// process's user, anything else for another user (also when it cannot be
// asked); POSIX reads it as peer_of does.
Peer server_of(Native client);
unsigned long current_user();
// Whether a peer whose identity cannot be read may be talked to.
bool unknown_peer_trusted();

}  // namespace platform

namespace framing {

// Where the framed reader takes its chunks from: the pipe in win-ipc.cpp, a
// scripted sequence in tests and in the fuzz target.
// Milliseconds of the steady clock: the time limits' clock.
inline std::int64_t steady_ms() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

class ChunkSource {
 public:
  virtual ~ChunkSource() = default;
  virtual platform::Result read_some(char* buffer, std::size_t size) = 0;
  virtual void wait() = 0;
  // The clock the time limits are measured with (tests script it).
  virtual std::int64_t now_ms() { return steady_ms(); }
};

class ChunkSink {
 public:
  virtual ~ChunkSink() = default;
  virtual platform::Result write_some(const char* data, std::size_t size) = 0;
  virtual void wait() = 0;
  virtual void flush() = 0;
  virtual std::size_t piece_limit() const = 0;
  virtual std::int64_t now_ms() { return steady_ms(); }
};

// Reads one framed message from `source` into `out` (text without marker).
// Over `limits` it fails with one log line and leaves `out` empty with its
// memory given back. Without limits the default cap applies.
int read_message(ChunkSource& source, std::string& out, const CancelFlag* cancel);
int read_message(ChunkSource& source, std::string& out, const Limits& limits, const CancelFlag* cancel);
// Writes `message` followed by the end marker. A write that moves nothing
// waits before the next attempt; the time limits of `limits` apply.
int write_message(ChunkSink& sink, const std::string& message, const CancelFlag* cancel);
int write_message(ChunkSink& sink, const std::string& message, const Limits& limits,
                  const CancelFlag* cancel);

// Offset where the search for the marker starts after `old_size` bytes had
// been searched without success: the last kEndMarkerSize - 1 of them may hold
// the start of a marker that the new chunk completes.
inline std::size_t search_start(std::size_t old_size) {
  return old_size >= kEndMarkerSize - 1 ? old_size - (kEndMarkerSize - 1) : 0;
}

}  // namespace framing
}  // namespace WinIpc
