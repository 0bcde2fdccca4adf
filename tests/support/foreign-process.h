#pragma once
// Another local process, for the hostile-user tests: a forked child that
// (when the tests run as root) becomes another user, and the raw socket
// calls it makes. After fork() only system calls are safe in a process that
// had threads, so everything here is plain system calls on buffers prepared
// before the fork.

#include <sys/types.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace hostile {

// The user the child becomes: "nobody".
constexpr uid_t kForeignUid = 65534;

// A child process and two pipes to talk to it with single bytes.
class ForeignProcess {
 public:
  // Runs `body(to_parent, from_parent)` in a child that first becomes `uid`
  // (nothing changes when it is the current one); the child exits with the
  // body's result. `body` must make system calls only.
  ForeignProcess(uid_t uid, std::function<int(int to_parent, int from_parent)> body);
  ~ForeignProcess();  // kills the child if it still runs
  ForeignProcess(const ForeignProcess&) = delete;
  ForeignProcess& operator=(const ForeignProcess&) = delete;

  bool started() const { return pid_ > 0; }
  // The next byte the child sent; 0 when none came within `timeout_ms`.
  char hear(int timeout_ms = 10000);
  // Sends one byte to the child.
  void tell(char c);
  // Waits for the child's exit code; -1 on a signal or after `timeout_ms`.
  int wait(int timeout_ms = 10000);

 private:
  pid_t pid_ = -1;
  int to_parent_[2] = {-1, -1};
  int from_parent_[2] = {-1, -1};
};

// A child of `uid` that binds `name` (the abstract socket, or the socket file
// when `is_path`) listening, sends 'r' and holds it until told anything
// (1: the bind failed).
std::unique_ptr<ForeignProcess> holdName(uid_t uid, const std::string& name, bool is_path = false);

// True when the tests may play another user (they run as root).
bool canPlayAnotherUser();

// --- system calls only (child-safe) ---------------------------------------

// The abstract socket `name` (no leading NUL): a connected descriptor or -1.
int rawConnect(const char* name);
// Binds the abstract socket `name`, listening with `backlog` unless it is
// negative (then bound only). -1 on failure.
int rawBind(const char* name, int backlog);
// The same for a socket file at `path`.
int rawBindPath(const char* path, int backlog);
// Writes all of `data`; false when the peer goes away.
bool rawSendAll(int fd, const char* data, std::size_t size);
// Reads what arrives within `timeout_ms` (until the peer closes or `size` is
// full); the number of bytes read.
std::size_t rawReadFor(int fd, char* buffer, std::size_t size, int timeout_ms);
// Writes one byte to a pipe end.
void rawTell(int fd, char c);
// Blocks until a byte arrives on `fd` (or it closes).
void rawAwait(int fd);

// Peak resident memory of this process, in KiB, since the last reset
// (VmHWM of /proc/self/status); the reset makes the peak the current size.
long peakResidentKiB();
bool resetPeakResident();

}  // namespace hostile
