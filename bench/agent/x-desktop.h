#pragma once
// A desktop of the benchmark's own, and the few process and X11 helpers the
// agent's desktop benchmark needs: Xvfb with openbox and a tint2 panel (a
// real XEmbed notification area), programs started with extra environment,
// X events waited for with a deadline, clicks through the XTest extension.

#include <X11/Xlib.h>
#include <sys/types.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/wait.h"

namespace agent_bench {

// Milliseconds on the monotonic clock.
double now_ms();

// The tests' wait, polling every millisecond: the figures are measured with it.
inline bool wait_until(const std::function<bool()>& done, double ms) {
  return nimbra_test::wait_until(done, ms, 1);
}

// Starts `argv` with the environment of this process plus `env`, standard
// output and error appended to `log` (or /dev/null when empty). With
// `stdout_pipe`, standard output goes to a pipe whose read end is returned
// there. Returns the pid, or -1.
pid_t spawn(const std::vector<std::string>& argv, const std::map<std::string, std::string>& env,
            const std::string& log, int* stdout_pipe = nullptr);
// SIGTERM, then SIGKILL after `ms`; reaps the process.
void stop(pid_t pid, int ms = 3000);

// Resident set size in KiB (VmRSS), or -1.
long rss_kib(pid_t pid);
// CPU time of a process, to the nanosecond, across threads that start and
// end while it is measured: every thread's time on a CPU
// (/proc/PID/task/TID/schedstat) is read at each sample(), so a thread that
// ends loses at most what it used since the last sample. (The process-wide
// counters of /proc/PID/stat count in 10 ms ticks: too coarse for a process
// that uses a fraction of a millisecond per second.)
class CpuMeter {
 public:
  explicit CpuMeter(pid_t pid);
  void sample();
  // Nanoseconds used between construction and the last sample.
  double ns() const;
  int threads() const { return static_cast<int>(last_.size()); }

 private:
  pid_t pid_;
  std::map<long, double> first_;  // a thread's time at construction, 0 for later ones
  std::map<long, double> last_;   // its time at the last sample that saw it
};

class Desktop {
 public:
  explicit Desktop(std::string scratch);
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // Xvfb, openbox and tint2; an empty text on success, else what failed.
  std::string start();
  Display* x() const { return x_; }
  Window root() const { return root_; }
  // DISPLAY for programs on this desktop.
  const std::string& display() const { return display_; }

  // _NET_WM_PID of a window, or -1.
  long windowPid(Window w) const;
  // The window's rectangle in root coordinates.
  bool geometry(Window w, int& x, int& y, int& width, int& height) const;
  // Waits up to `ms` for an event that `match` accepts (events it rejects
  // are dropped). Root's substructure events are selected by start().
  bool waitEvent(const std::function<bool(const XEvent&)>& match, double ms);
  void dropEvents();
  // A left (1) or right (3) click at a root position, through XTest.
  void click(int x, int y, int button = 1);
  // A press and release of one key (an X keysym such as XK_Up), through XTest.
  void key(unsigned long keysym);
  // The colour of one screen pixel as 0xRRGGBB.
  unsigned long pixel(int x, int y) const;

 private:
  std::string scratch_;
  std::string display_;
  Display* x_ = nullptr;
  Window root_ = 0;
  std::vector<pid_t> pids_;
};

}  // namespace agent_bench
