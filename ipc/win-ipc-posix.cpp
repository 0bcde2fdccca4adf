// System calls of the pipe transport on POSIX: abstract Unix stream sockets.
//
// A pipe name "\\.\pipe\NAME" stands for the abstract socket address NAME
// (leading NUL byte), with $NIMBRA_PIPE_NAMESPACE put in front when it is set.
// The listener has a backlog of one waiting client; a client finding it full
// is "busy" and waits in connect (SO_SNDTIMEO bounds the kernel's wait for
// room) for at most the rest of its budget. Connected sockets are
// non-blocking; read and write wait with poll() in slices of 100 ms so that
// the caller looks at its cancel flag between them.

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "ipc/win-ipc-platform.h"

namespace WinIpc {
namespace platform {

namespace {

constexpr char kWindowsPrefix[] = "\\\\.\\pipe\\";
constexpr int kPollSliceMs = 100;

using Clock = std::chrono::steady_clock;

int elapsed_ms(Clock::time_point start) {
  return static_cast<int>(
      std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count());
}

// Fills an abstract address; 0, or the errno value when the name is empty or
// does not fit.
int make_address(const std::string& name, sockaddr_un& addr, socklen_t& length) {
  const std::string native = native_name(name);
  std::memset(&addr, 0, sizeof addr);
  addr.sun_family = AF_UNIX;
  if (native.empty()) return EINVAL;
  if (native.size() > sizeof(addr.sun_path) - 1) return ENAMETOOLONG;
  std::memcpy(addr.sun_path + 1, native.data(), native.size());
  length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + native.size());
  return 0;
}

bool is_retry(int err) {
  return err == EAGAIN || err == EWOULDBLOCK || err == EINTR;
}

void poll_one(Native handle, short events, int timeout_ms) {
  pollfd p{};
  p.fd = static_cast<int>(handle);
  p.events = events;
  (void)::poll(&p, 1, timeout_ms);
}

}  // namespace

std::string native_name(const std::string& name) {
  std::string bare = name;
  const std::size_t prefix = sizeof(kWindowsPrefix) - 1;
  if (bare.compare(0, prefix, kWindowsPrefix) == 0) bare.erase(0, prefix);
  const char* ns = std::getenv("NIMBRA_PIPE_NAMESPACE");
  return ns != nullptr ? std::string(ns) + bare : bare;
}

Result connect_client(const std::string& name, int wait_ms, Native& out) {
  Result r;
  close_handle(out);
  sockaddr_un addr;
  socklen_t length = 0;
  if (const int err = make_address(name, addr, length)) {
    r.error = static_cast<unsigned>(err);
    return r;
  }
  // Without a budget left the attempt must not wait at all; otherwise the
  // kernel waits for room in a full backlog for up to wait_ms.
  const int type = SOCK_STREAM | SOCK_CLOEXEC | (wait_ms > 0 ? 0 : SOCK_NONBLOCK);
  const int fd = ::socket(AF_UNIX, type, 0);
  if (fd < 0) {
    r.error = static_cast<unsigned>(errno);
    return r;
  }
  if (wait_ms > 0) {
    timeval tv{};
    tv.tv_sec = wait_ms / 1000;
    tv.tv_usec = static_cast<suseconds_t>((wait_ms % 1000) * 1000);
    (void)::setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv);
  }
  const Clock::time_point start = Clock::now();
  if (::connect(fd, reinterpret_cast<const sockaddr*>(&addr), length) != 0) {
    const int err = errno;
    ::close(fd);
    if (err == EAGAIN || err == EWOULDBLOCK || err == EINTR || err == EINPROGRESS) {
      r.status = Status::kBusy;
      const int waited = elapsed_ms(start);
      r.waited_ms = waited > 0 ? waited : 1;
      return r;
    }
    r.error = static_cast<unsigned>(err);
    return r;
  }
  timeval none{};
  (void)::setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &none, sizeof none);
  const int flags = ::fcntl(fd, F_GETFL, 0);
  if (flags < 0 || ::fcntl(fd, F_SETFL, flags | O_NONBLOCK) != 0) {
    r.error = static_cast<unsigned>(errno);
    ::close(fd);
    return r;
  }
  out = fd;
  r.status = Status::kOk;
  r.waited_ms = elapsed_ms(start);
  return r;
}

CreateResult create_server(const std::string& name, ServerEnds& ends, int backlog) {
  CreateResult r;
  close_server(ends);
  sockaddr_un addr;
  socklen_t length = 0;
  if (const int err = make_address(name, addr, length)) {
    r.error = static_cast<unsigned>(err);
    return r;
  }
  const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (fd < 0) {
    r.error = static_cast<unsigned>(errno);
    return r;
  }
  // A second server on the same name fails here with EADDRINUSE. Backlog 0
  // lets one client wait while another is served; the next one is busy.
  if (::bind(fd, reinterpret_cast<const sockaddr*>(&addr), length) != 0 || ::listen(fd, backlog) != 0) {
    r.error = static_cast<unsigned>(errno);
    ::close(fd);
    return r;
  }
  ends.listener = fd;
  r.step = CreateStep::kDone;
  return r;
}

Result accept_client(ServerEnds& ends, int wait_ms) {
  Result r;
  if (ends.listener == kInvalid) {
    r.error = EBADF;
    return r;
  }
  if (ends.client != kInvalid) {
    // The previous client was never dropped: it is still the connected one.
    r.status = Status::kOk;
    return r;
  }
  const Clock::time_point start = Clock::now();
  for (;;) {
    const int fd = ::accept4(static_cast<int>(ends.listener), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
    if (fd >= 0) {
      ends.client = fd;
      r.status = Status::kOk;
      r.waited_ms = elapsed_ms(start);
      return r;
    }
    const int err = errno;
    if (!is_retry(err) && err != ECONNABORTED) {
      r.error = static_cast<unsigned>(err);
      return r;
    }
    const int waited = elapsed_ms(start);
    if (waited >= wait_ms) {
      r.status = Status::kRetry;
      r.waited_ms = waited > 0 ? waited : 1;
      return r;
    }
    poll_one(ends.listener, POLLIN, wait_ms - waited);
  }
}

bool detach_client(ServerEnds& ends, Native& out) {
  if (ends.client == kInvalid) return false;
  out = ends.client;
  ends.client = kInvalid;
  return true;
}

Result disconnect_client(ServerEnds& ends) {
  Result r;
  if (ends.listener == kInvalid) {
    r.error = EBADF;
    return r;
  }
  close_handle(ends.client);
  r.status = Status::kOk;
  return r;
}

void close_server(ServerEnds& ends) {
  close_handle(ends.client);
  close_handle(ends.listener);
}

void close_handle(Native& handle) {
  if (handle != kInvalid) {
    ::close(static_cast<int>(handle));
    handle = kInvalid;
  }
}

namespace {

// The outcome of one non-blocking recv() or send() that returned `n`.
Result transfer_result(ssize_t n) {
  Result r;
  if (n >= 0) {
    r.status = Status::kOk;
    r.count = static_cast<std::size_t>(n);
  } else if (is_retry(errno)) {
    r.status = Status::kRetry;
  } else {
    r.error = static_cast<unsigned>(errno);
  }
  return r;
}

}  // namespace

Result read_some(Native handle, char* buffer, std::size_t size) {
  return transfer_result(::recv(static_cast<int>(handle), buffer, size, MSG_DONTWAIT));
}

Result write_some(Native handle, const char* data, std::size_t size) {
  return transfer_result(::send(static_cast<int>(handle), data, size, MSG_DONTWAIT | MSG_NOSIGNAL));
}

void wait_readable(Native handle) {
  poll_one(handle, POLLIN, kPollSliceMs);
}

void wait_writable(Native handle) {
  poll_one(handle, POLLOUT, kPollSliceMs);
}

std::size_t write_piece_limit() {
  return std::numeric_limits<std::size_t>::max();
}

void flush(Native) {
  // The bytes are in the peer's queue once send() returns.
}

Peer peer_of(Native handle) {
  Peer peer;
  ucred cred{};
  socklen_t length = sizeof cred;
  if (::getsockopt(static_cast<int>(handle), SOL_SOCKET, SO_PEERCRED, &cred, &length) == 0 &&
      length == sizeof cred) {
    peer.known = true;
    peer.uid = static_cast<unsigned long>(cred.uid);
    peer.pid = static_cast<long>(cred.pid);
  }
  return peer;
}

Peer server_of(Native client) {
  return peer_of(client);
}

unsigned long current_user() {
  return static_cast<unsigned long>(::geteuid());
}

bool unknown_peer_trusted() {
  // Every local user can reach an abstract socket: who cannot be named is
  // not talked to.
  return false;
}

}  // namespace platform
}  // namespace WinIpc
