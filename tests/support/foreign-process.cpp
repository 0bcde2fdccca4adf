#include "tests/support/foreign-process.h"

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <fstream>

#include "tests/support/wait.h"

namespace hostile {

ForeignProcess::ForeignProcess(uid_t uid, std::function<int(int, int)> body) {
  // A byte told to a child that already left must not end the test process.
  ::signal(SIGPIPE, SIG_IGN);
  if (::pipe2(to_parent_, O_CLOEXEC) != 0 || ::pipe2(from_parent_, O_CLOEXEC) != 0) return;
  pid_ = ::fork();
  if (pid_ == 0) {
    ::close(to_parent_[0]);
    ::close(from_parent_[1]);
    if (uid != ::geteuid()) {
      if (::setgroups(0, nullptr) != 0 || ::setresgid(uid, uid, uid) != 0 || ::setresuid(uid, uid, uid) != 0)
        ::_exit(99);
    }
    ::_exit(body(to_parent_[1], from_parent_[0]));
  }
  ::close(to_parent_[1]);
  to_parent_[1] = -1;
  ::close(from_parent_[0]);
  from_parent_[0] = -1;
}

ForeignProcess::~ForeignProcess() {
  if (pid_ > 0) {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
  }
  for (int fd : {to_parent_[0], from_parent_[1]})
    if (fd >= 0) ::close(fd);
}

char ForeignProcess::hear(int timeout_ms) {
  pollfd p{to_parent_[0], POLLIN, 0};
  if (::poll(&p, 1, timeout_ms) != 1) return 0;
  char c = 0;
  return ::read(to_parent_[0], &c, 1) == 1 ? c : 0;
}

void ForeignProcess::tell(char c) {
  rawTell(from_parent_[1], c);
}

int ForeignProcess::wait(int timeout_ms) {
  int status = 0;
  if (pid_ <= 0 ||
      !nimbra_test::wait_until([&] { return ::waitpid(pid_, &status, WNOHANG) == pid_; }, timeout_ms, 10))
    return -1;
  pid_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::unique_ptr<ForeignProcess> holdName(uid_t uid, const std::string& name, bool is_path) {
  const char* n = name.c_str();  // the child has its own copy of the memory
  return std::make_unique<ForeignProcess>(uid, [n, is_path](int out, int in) {
    if ((is_path ? rawBindPath(n, 4) : rawBind(n, 4)) < 0) return 1;
    rawTell(out, 'r');
    rawAwait(in);
    return 0;
  });
}

bool canPlayAnotherUser() {
  return ::geteuid() == 0;
}

namespace {

socklen_t abstractAddress(const char* name, sockaddr_un& addr) {
  std::memset(&addr, 0, sizeof addr);
  addr.sun_family = AF_UNIX;
  std::size_t n = std::strlen(name);
  if (n > sizeof(addr.sun_path) - 1) n = sizeof(addr.sun_path) - 1;
  std::memcpy(addr.sun_path + 1, name, n);
  return static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + n);
}

int bindAt(const sockaddr_un& addr, socklen_t length, int backlog) {
  const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return -1;
  if (::bind(fd, reinterpret_cast<const sockaddr*>(&addr), length) != 0 ||
      (backlog >= 0 && ::listen(fd, backlog) != 0)) {
    ::close(fd);
    return -1;
  }
  return fd;
}

}  // namespace

int rawConnect(const char* name) {
  sockaddr_un addr;
  const socklen_t length = abstractAddress(name, addr);
  const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return -1;
  if (::connect(fd, reinterpret_cast<const sockaddr*>(&addr), length) != 0) {
    ::close(fd);
    return -1;
  }
  return fd;
}

int rawBind(const char* name, int backlog) {
  sockaddr_un addr;
  const socklen_t length = abstractAddress(name, addr);
  return bindAt(addr, length, backlog);
}

int rawBindPath(const char* path, int backlog) {
  sockaddr_un addr;
  std::memset(&addr, 0, sizeof addr);
  addr.sun_family = AF_UNIX;
  std::strncpy(addr.sun_path, path, sizeof(addr.sun_path) - 1);
  return bindAt(addr, static_cast<socklen_t>(sizeof addr), backlog);
}

bool rawSendAll(int fd, const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t n = ::send(fd, data, size, MSG_NOSIGNAL);
    if (n <= 0) return false;
    data += n;
    size -= static_cast<std::size_t>(n);
  }
  return true;
}

std::size_t rawReadFor(int fd, char* buffer, std::size_t size, int timeout_ms) {
  std::size_t got = 0;
  while (got < size) {
    pollfd p{fd, POLLIN, 0};
    if (::poll(&p, 1, timeout_ms) != 1) break;
    const ssize_t n = ::recv(fd, buffer + got, size - got, 0);
    if (n <= 0) break;
    got += static_cast<std::size_t>(n);
  }
  return got;
}

void rawTell(int fd, char c) {
  if (::write(fd, &c, 1) != 1) {
    // The other side is gone; nothing to tell.
  }
}

void rawAwait(int fd) {
  char c;
  while (::read(fd, &c, 1) < 0) {
  }
}

long peakResidentKiB() {
  std::ifstream in("/proc/self/status");
  std::string line;
  while (std::getline(in, line))
    if (line.compare(0, 6, "VmHWM:") == 0) return std::stol(line.substr(6));
  return -1;
}

bool resetPeakResident() {
  std::ofstream out("/proc/self/clear_refs");
  out << "5";
  out.flush();
  return static_cast<bool>(out);
}

}  // namespace hostile
