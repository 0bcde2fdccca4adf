#pragma once
// The default logger sent to a scratch file for one test's lifetime (every
// line is flushed as it is written, so the file can be read at any time).

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "logging/logger.h"
#include "tests/support/temp-dir.h"

namespace nimbra_test {

class LogCapture {
 public:
  // `levels`: the text of a log settings file ("win_ipc = 7" lines), or none
  // for the logger's default levels.
  explicit LogCapture(const std::string& levels = "") {
    const std::string settings = levels.empty() ? std::string() : dir_.file("agent.debug");
    if (!levels.empty()) write_file(settings, levels);
    if (vlog::init(vlog::kRotatingFile, std::wstring(path_.begin(), path_.end()),
                   std::wstring(settings.begin(), settings.end()), "", 50, 1) != 0)
      ADD_FAILURE() << "cannot log to " << path_;
  }
  ~LogCapture() { vlog::shutdown(); }
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  // From now on text() starts here.
  void mark() { offset_ = read_file(path_).size(); }
  // Everything written so far, or since mark() (the Windows log file starts
  // with a byte order mark).
  std::string text() const {
    std::string t = read_file(path_);
    t = t.size() > offset_ ? t.substr(offset_) : std::string();
    return t.compare(0, 3, "\xEF\xBB\xBF") == 0 ? t.substr(3) : t;
  }
  // Number of lines containing `needle`.
  int count(const std::string& needle) const {
    std::istringstream in(text());
    int n = 0;
    for (std::string line; std::getline(in, line);) n += line.find(needle) != std::string::npos ? 1 : 0;
    return n;
  }

 private:
  TempDir dir_;
  std::string path_ = dir_.file("ui.txt");
  std::size_t offset_ = 0;
};

}  // namespace nimbra_test
