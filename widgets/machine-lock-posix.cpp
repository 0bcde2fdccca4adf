// Linux: an abstract Unix socket held for the life of the process; its
// holder's uid tells the users apart.
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/types.h>
#include <sys/un.h>
#include <unistd.h>

#include "logging/logger.h"
#include "widgets/machine-lock.h"

struct MachineLock::Impl {
  int fd = -1;
  std::thread drainer;
  int wake[2] = {-1, -1};
};

namespace {

socklen_t make_address(const std::string& name, sockaddr_un* addr) {
  std::memset(addr, 0, sizeof(*addr));
  addr->sun_family = AF_UNIX;
  // Abstract name: a leading NUL byte, no file on disk.
  const size_t room = sizeof(addr->sun_path) - 1;
  const size_t len = name.size() < room ? name.size() : room;
  std::memcpy(addr->sun_path + 1, name.data(), len);
  return static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + len);
}

}  // namespace

MachineLock::MachineLock(std::string name, std::function<unsigned long()> ownUser)
    : name_(std::move(name)), own_(std::move(ownUser)), impl_(new Impl) {
  if (!own_) own_ = &MachineLock::currentUser;
}

MachineLock::~MachineLock() {
  release();
}

unsigned long MachineLock::currentUser() {
  return static_cast<unsigned long>(::getuid());
}

std::string MachineLock::systemName() const {
  const char* ns = std::getenv("NIMBRA_PIPE_NAMESPACE");
  return (ns ? std::string(ns) : std::string()) + name_;
}

bool MachineLock::held() const {
  return impl_->fd >= 0;
}

MachineLock::Result MachineLock::acquire() {
  if (held()) return Acquired;
  const std::string name = systemName();
  sockaddr_un addr;
  const socklen_t len = make_address(name, &addr);

  // Anyone can take the name. A holder that listens says who it is; one that
  // bound without listening (connect refused) or never accepts (backlog full)
  // cannot, and after a few tries counts as another user's holder.
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (attempt > 0) std::this_thread::sleep_for(std::chrono::milliseconds(kRetryPauseMs));
    int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0) {
      LOG_ERROR(vlog::kDefaultComponent, "machine lock: socket failed, errno %d", errno);
      return Failed;
    }
    if (::bind(fd, reinterpret_cast<sockaddr*>(&addr), len) == 0 && ::listen(fd, 8) == 0) {
      hold(fd);
      LOG_INFO(vlog::kDefaultComponent, "machine lock [%s] acquired", name.c_str());
      return Acquired;
    }
    const int bindErr = errno;
    ::close(fd);
    if (bindErr != EADDRINUSE) {
      LOG_ERROR(vlog::kDefaultComponent, "machine lock [%s]: bind failed, errno %d", name.c_str(), bindErr);
      return Failed;
    }

    // Taken: ask the holder who it is, without ever blocking.
    fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0) return Failed;
    if (::connect(fd, reinterpret_cast<sockaddr*>(&addr), len) != 0) {
      const int err = errno;
      ::close(fd);
      // Refused: released meanwhile, or bound without listening. Would
      // block: its backlog is full. Both are tried again.
      if (err == ECONNREFUSED || err == EAGAIN || err == EWOULDBLOCK || err == EINPROGRESS) continue;
      LOG_ERROR(vlog::kDefaultComponent, "machine lock [%s]: connect failed, errno %d", name.c_str(), err);
      return Failed;
    }
    ucred cred;
    socklen_t credLen = sizeof(cred);
    const int rc = ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &cred, &credLen);
    ::close(fd);
    if (rc != 0) {
      LOG_ERROR(vlog::kDefaultComponent, "machine lock [%s]: SO_PEERCRED failed, errno %d", name.c_str(),
                errno);
      return Failed;
    }
    const unsigned long mine = own_();
    if (static_cast<unsigned long>(cred.uid) == mine) {
      LOG_INFO(vlog::kDefaultComponent, "machine lock [%s] held by this user (pid %d)", name.c_str(),
               static_cast<int>(cred.pid));
      return HeldBySameUser;
    }
    LOG_WARN(vlog::kDefaultComponent, "machine lock [%s] held by another user (uid %lu, pid %d)",
             name.c_str(), static_cast<unsigned long>(cred.uid), static_cast<int>(cred.pid));
    return HeldByOtherUser;
  }
  LOG_WARN(vlog::kDefaultComponent,
           "machine lock [%s] taken by a process that does not answer; counted as "
           "another user's",
           name.c_str());
  return HeldByOtherUser;
}

MachineLock::Result MachineLock::acquireForLife(int wait_ms) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(wait_ms);
  for (;;) {
    const Result r = acquire();
    if (r != HeldBySameUser || std::chrono::steady_clock::now() >= deadline) return r;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
}

void MachineLock::hold(int fd) {
  impl_->fd = fd;
  // Accept and drop whoever asks who holds the lock, so the backlog never
  // fills up and a later asker is never kept waiting.
  if (::pipe2(impl_->wake, O_CLOEXEC) == 0) {
    const int wakeRead = impl_->wake[0];
    impl_->drainer = std::thread([fd, wakeRead]() {
      for (;;) {
        pollfd fds[2] = {{fd, POLLIN, 0}, {wakeRead, POLLIN, 0}};
        if (::poll(fds, 2, -1) < 0) {
          if (errno == EINTR) continue;
          return;
        }
        if (fds[1].revents) return;
        if (fds[0].revents & POLLIN) {
          const int peer = ::accept4(fd, nullptr, nullptr, SOCK_CLOEXEC);
          if (peer >= 0) ::close(peer);
        }
      }
    });
  }
}

void MachineLock::release() {
  if (impl_->drainer.joinable()) {
    const char byte = 1;
    if (::write(impl_->wake[1], &byte, 1) < 0) {
      // The drainer then ends when the listening socket is closed below.
    }
    impl_->drainer.join();
  }
  for (int& end : impl_->wake) {
    if (end >= 0) ::close(end);
    end = -1;
  }
  if (impl_->fd >= 0) {
    ::close(impl_->fd);
    impl_->fd = -1;
    LOG_INFO(vlog::kDefaultComponent, "machine lock [%s] released", systemName().c_str());
  }
}

const char* MachineLock::resultName(Result r) {
  switch (r) {
    case Acquired:
      return "acquired";
    case HeldBySameUser:
      return "held by same user";
    case HeldByOtherUser:
      return "held by another user";
    default:
      return "failed";
  }
}
