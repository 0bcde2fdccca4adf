#pragma once
// Sends the default logger to a file in a scratch folder for one test, so the
// test can look at the lines this layer wrote.

#include <string>

#include "support/temp-dir.h"

namespace ipc_test {

class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  // Everything written so far (without a byte order mark).
  std::string text() const;
  // Number of lines containing `needle`.
  int count(const std::string& needle) const;

 private:
  nimbra_test::TempDir dir_;
  std::string path_;
};

// A pipe name private to this test process and the given tag.
std::string unique_pipe(const std::string& tag);

}  // namespace ipc_test
