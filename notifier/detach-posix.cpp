#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "notifier/detach.h"
#include "notifier/notifier-args.h"

namespace notifier {
namespace {

void quiet_standard_streams() {
  const int null_fd = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  if (null_fd < 0) return;
  ::dup2(null_fd, STDIN_FILENO);
  ::dup2(null_fd, STDOUT_FILENO);
  ::dup2(null_fd, STDERR_FILENO);
  ::close(null_fd);
}

// The parent: the first byte on the pipe is the exit code.
int wait_for_report(int fd, pid_t child, int wait_ms) {
  using clock = std::chrono::steady_clock;
  const auto deadline = clock::now() + std::chrono::milliseconds(wait_ms);
  for (;;) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - clock::now()).count();
    if (left <= 0) break;
    pollfd p{fd, POLLIN, 0};
    const int n = ::poll(&p, 1, static_cast<int>(left));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) break;
    unsigned char code = 0;
    const ssize_t got = ::read(fd, &code, 1);
    if (got < 0 && errno == EINTR) continue;
    ::close(fd);
    if (got == 1) return code;
    // The child closed the pipe without a word: it has ended.
    int status = 0;
    ::waitpid(child, &status, WNOHANG);
    std::fprintf(stderr, "nimbra-backup-notifier: the notification process ended before showing anything\n");
    return kExitFailure;
  }
  ::close(fd);
  ::kill(child, SIGTERM);
  std::fprintf(stderr, "nimbra-backup-notifier: no answer from the notification process within %d ms\n",
               wait_ms);
  return kExitFailure;
}

}  // namespace

int run_detached(const std::function<int(const Report&)>& body, int wait_ms) {
  int fds[2];
  if (::pipe2(fds, O_CLOEXEC) != 0) {
    std::fprintf(stderr, "nimbra-backup-notifier: cannot create a pipe: %s\n", std::strerror(errno));
    return kExitFailure;
  }
  std::fflush(nullptr);
  const pid_t pid = ::fork();
  if (pid < 0) {
    std::fprintf(stderr, "nimbra-backup-notifier: cannot fork: %s\n", std::strerror(errno));
    ::close(fds[0]);
    ::close(fds[1]);
    return kExitFailure;
  }
  if (pid > 0) {
    ::close(fds[1]);
    return wait_for_report(fds[0], pid, wait_ms);
  }

  // The child: out of the agent's process group and terminal, so that what
  // happens to the agent's session does not end the notifications' process.
  // It also lets go of the agent's working folder, which may be unmounted.
  ::close(fds[0]);
  ::setsid();
  if (::chdir("/") != 0) std::perror("nimbra-backup-notifier: cannot change to /");
  int report_fd = fds[1];
  const Report report = [&report_fd](int code) {
    if (report_fd < 0) return;
    std::fflush(nullptr);
    const unsigned char byte = static_cast<unsigned char>(code);
    while (::write(report_fd, &byte, 1) < 0 && errno == EINTR) {
    }
    ::close(report_fd);
    report_fd = -1;
    quiet_standard_streams();
  };
  const int code = body(report);
  report(code);
  std::exit(code);
}

}  // namespace notifier
