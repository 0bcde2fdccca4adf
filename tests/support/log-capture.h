#pragma once
// The default logger sent to a scratch file for one test's lifetime (every
// line is flushed as it is written, so the file can be read at any time).

#include <sstream>
#include <string>

#include "logging/logger.h"
#include "tests/support/temp-dir.h"

namespace nimbra_test {

class LogCapture {
 public:
  LogCapture() { vlog::init(vlog::kRotatingFile, std::wstring(path_.begin(), path_.end()), L"", "", 50, 1); }
  ~LogCapture() { vlog::shutdown(); }
  // Everything written so far (the Windows log file starts with a byte order mark).
  std::string text() const {
    const std::string t = read_file(path_);
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
};

}  // namespace nimbra_test
