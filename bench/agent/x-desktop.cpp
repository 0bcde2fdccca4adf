#include "bench/agent/x-desktop.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <thread>

extern char** environ;

namespace agent_bench {

double now_ms() {
  using namespace std::chrono;
  return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

pid_t spawn(const std::vector<std::string>& argv, const std::map<std::string, std::string>& env,
            const std::string& log, int* stdout_pipe) {
  std::map<std::string, std::string> all;
  for (char** e = environ; *e; ++e) {
    const char* eq = std::strchr(*e, '=');
    if (eq) all[std::string(*e, static_cast<std::size_t>(eq - *e))] = eq + 1;
  }
  for (const auto& [k, v] : env) {
    if (v.empty())
      all.erase(k);
    else
      all[k] = v;
  }
  std::vector<std::string> env_lines;
  for (const auto& [k, v] : all) env_lines.push_back(k + "=" + v);
  std::vector<char*> envp, args;
  for (auto& l : env_lines) envp.push_back(l.data());
  envp.push_back(nullptr);
  std::vector<std::string> argv_copy = argv;
  for (auto& a : argv_copy) args.push_back(a.data());
  args.push_back(nullptr);

  int fds[2] = {-1, -1};
  if (stdout_pipe && pipe(fds) != 0) return -1;
  const int out =
      open(log.empty() ? "/dev/null" : log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  const pid_t pid = fork();
  if (pid == 0) {
    setpgid(0, 0);
    if (out >= 0) {
      dup2(out, 1);
      dup2(out, 2);
    }
    if (stdout_pipe) dup2(fds[1], 1);
    const int in = open("/dev/null", O_RDONLY);
    if (in >= 0) dup2(in, 0);
    execve(args[0], args.data(), envp.data());
    execvpe(args[0], args.data(), envp.data());
    _exit(127);
  }
  if (out >= 0) close(out);
  if (stdout_pipe) {
    close(fds[1]);
    *stdout_pipe = fds[0];
  }
  return pid;
}

void stop(pid_t pid, int ms) {
  if (pid <= 0) return;
  kill(pid, SIGCONT);
  kill(pid, SIGTERM);
  int status = 0;
  if (wait_until([&] { return waitpid(pid, &status, WNOHANG) == pid; }, ms)) return;
  kill(pid, SIGKILL);
  waitpid(pid, &status, 0);
}

long rss_kib(pid_t pid) {
  std::ifstream f("/proc/" + std::to_string(pid) + "/status");
  std::string line;
  while (std::getline(f, line))
    if (line.rfind("VmRSS:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
  return -1;
}

namespace {

std::map<long, double> threadTimes(pid_t pid) {
  std::map<long, double> out;
  const std::string dir = "/proc/" + std::to_string(pid) + "/task";
  DIR* d = opendir(dir.c_str());
  if (!d) return out;
  while (dirent* e = readdir(d)) {
    if (e->d_name[0] == '.') continue;
    std::ifstream f(dir + "/" + e->d_name + "/schedstat");
    double on_cpu = 0;
    if (f >> on_cpu) out[std::strtol(e->d_name, nullptr, 10)] = on_cpu;
  }
  closedir(d);
  return out;
}

}  // namespace

CpuMeter::CpuMeter(pid_t pid) : pid_(pid), first_(threadTimes(pid)), last_(first_) {}

void CpuMeter::sample() {
  for (const auto& [tid, ns] : threadTimes(pid_)) {
    first_.emplace(tid, 0.0);  // started since: all of its time counts
    last_[tid] = ns;
  }
}

double CpuMeter::ns() const {
  double total = 0;
  for (const auto& [tid, ns] : last_) total += ns - first_.at(tid);
  return total;
}

// ---- Desktop ------------------------------------------------------------------

Desktop::Desktop(std::string scratch) : scratch_(std::move(scratch)) {}

Desktop::~Desktop() {
  if (x_) XCloseDisplay(x_);
  for (auto it = pids_.rbegin(); it != pids_.rend(); ++it) stop(*it);
}

std::string Desktop::start() {
  int out = -1;
  const pid_t xvfb = spawn({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"}, {},
                           scratch_ + "/xvfb.log", &out);
  if (xvfb < 0) return "Xvfb did not start";
  pids_.push_back(xvfb);
  std::string number;
  pollfd p{out, POLLIN, 0};
  while (poll(&p, 1, 15000) > 0) {
    char c = 0;
    if (read(out, &c, 1) != 1 || c == '\n') break;
    number += c;
  }
  close(out);
  if (number.empty()) return "Xvfb gave no display number";
  display_ = ":" + number;
  x_ = XOpenDisplay(display_.c_str());
  if (!x_) return "cannot open " + display_;
  root_ = DefaultRootWindow(x_);
  int event_base, error_base, major, minor;
  if (!XTestQueryExtension(x_, &event_base, &error_base, &major, &minor)) return "no XTest extension";

  const std::map<std::string, std::string> env{{"DISPLAY", display_},
                                               {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}};
  pids_.push_back(spawn({"openbox"}, env, scratch_ + "/openbox.log"));
  const Atom check = XInternAtom(x_, "_NET_SUPPORTING_WM_CHECK", False);
  auto has_property = [this](Atom a) {
    Atom type;
    int format;
    unsigned long n, after;
    unsigned char* data = nullptr;
    const bool ok = XGetWindowProperty(x_, root_, a, 0, 1, False, AnyPropertyType, &type, &format, &n, &after,
                                       &data) == Success &&
                    n > 0;
    if (data) XFree(data);
    return ok;
  };
  if (!wait_until([&] { return has_property(check); }, 10000)) return "openbox did not start";
  pids_.push_back(spawn({"tint2"}, env, scratch_ + "/tint2.log"));
  const Atom tray = XInternAtom(x_, "_NET_SYSTEM_TRAY_S0", False);
  if (!wait_until([&] { return XGetSelectionOwner(x_, tray) != None; }, 20000))
    return "tint2's notification area did not appear";
  XSelectInput(x_, root_, SubstructureNotifyMask);
  XSync(x_, False);
  return {};
}

long Desktop::windowPid(Window w) const {
  const Atom pid_atom = XInternAtom(x_, "_NET_WM_PID", False);
  Atom type;
  int format;
  unsigned long n, after;
  unsigned char* data = nullptr;
  long pid = -1;
  if (XGetWindowProperty(x_, w, pid_atom, 0, 1, False, XA_CARDINAL, &type, &format, &n, &after, &data) ==
          Success &&
      n == 1 && format == 32)
    pid = static_cast<long>(*reinterpret_cast<unsigned long*>(data));
  if (data) XFree(data);
  return pid;
}

bool Desktop::geometry(Window w, int& x, int& y, int& width, int& height) const {
  XWindowAttributes a;
  if (!XGetWindowAttributes(x_, w, &a)) return false;
  Window child;
  XTranslateCoordinates(x_, w, root_, 0, 0, &x, &y, &child);
  width = a.width;
  height = a.height;
  return true;
}

bool Desktop::waitEvent(const std::function<bool(const XEvent&)>& match, double ms) {
  const double end = now_ms() + ms;
  for (;;) {
    while (XPending(x_)) {
      XEvent e;
      XNextEvent(x_, &e);
      if (match(e)) return true;
    }
    const double left = end - now_ms();
    if (left <= 0) return false;
    pollfd p{ConnectionNumber(x_), POLLIN, 0};
    poll(&p, 1, static_cast<int>(left) + 1);
  }
}

void Desktop::dropEvents() {
  XSync(x_, False);
  while (XPending(x_)) {
    XEvent e;
    XNextEvent(x_, &e);
  }
}

void Desktop::click(int x, int y, int button) {
  XTestFakeMotionEvent(x_, -1, x, y, CurrentTime);
  XTestFakeButtonEvent(x_, static_cast<unsigned>(button), True, CurrentTime);
  XTestFakeButtonEvent(x_, static_cast<unsigned>(button), False, CurrentTime);
  XFlush(x_);
}

void Desktop::key(unsigned long keysym) {
  const KeyCode code = XKeysymToKeycode(x_, static_cast<KeySym>(keysym));
  XTestFakeKeyEvent(x_, code, True, CurrentTime);
  XTestFakeKeyEvent(x_, code, False, CurrentTime);
  XFlush(x_);
}

unsigned long Desktop::pixel(int x, int y) const {
  XImage* image = XGetImage(x_, root_, x, y, 1, 1, AllPlanes, ZPixmap);
  if (!image) return 0;
  const unsigned long value = XGetPixel(image, 0, 0) & 0xFFFFFF;
  XDestroyImage(image);
  return value;
}

}  // namespace agent_bench
