#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>

#include "service-sim/quit-signals.h"
#include "service-sim/sim-log.h"

namespace sim {

namespace {
int g_fds[2] = {-1, -1};

void on_signal(int signo) {
  const char byte = static_cast<char>(signo);
  const int saved = errno;
  (void)!::write(g_fds[1], &byte, 1);
  errno = saved;
}
}  // namespace

bool install_quit_handlers(QCoreApplication& app) {
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, g_fds) != 0) return false;
  ::fcntl(g_fds[1], F_SETFL, O_NONBLOCK);
  auto* notifier = new QSocketNotifier(g_fds[0], QSocketNotifier::Read, &app);
  QObject::connect(notifier, &QSocketNotifier::activated, &app, [&app, notifier] {
    char byte = 0;
    if (::read(g_fds[0], &byte, 1) == 1) SIM_INFO("signal %d: shutting down", static_cast<int>(byte));
    notifier->setEnabled(false);
    app.quit();
  });
  struct sigaction sa {};
  sa.sa_handler = on_signal;
  sigemptyset(&sa.sa_mask);
  sa.sa_flags = SA_RESTART;
  return ::sigaction(SIGINT, &sa, nullptr) == 0 && ::sigaction(SIGTERM, &sa, nullptr) == 0;
}

}  // namespace sim
