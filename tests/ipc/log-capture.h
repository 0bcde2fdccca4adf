#pragma once
// Test helpers of the transport tests: a log capture and private pipe names.

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <sstream>
#include <string>

#include "logger.h"
#include "support/temp-dir.h"

namespace ipc_test {

inline const std::string kPrefix = "nimbra-ipc-test-" + std::to_string(vlog::current_pid()) + "-";

// Sends the default logger to a file in a scratch folder for one test.
class LogCapture {
 public:
  LogCapture() { vlog::init(vlog::kRotatingFile, std::wstring(path_.begin(), path_.end()), L"", "", 50, 1); }
  ~LogCapture() { vlog::shutdown(); }
  // Everything written so far (the Windows log file starts with a byte order mark).
  std::string text() const {
    const std::string t = nimbra_test::read_file(path_);
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
  nimbra_test::TempDir dir_;
  std::string path_ = dir_.file("ui.txt");
};

// A pipe name private to this test process and the given tag.
inline std::string unique_pipe(const std::string& tag) {
  static std::atomic<int> serial{0};
  return "\\\\.\\pipe\\" + kPrefix + tag + "-" + std::to_string(++serial);
}

// Pipe names of this test process never meet those of a test running beside
// it: a namespace of its own (POSIX) and the process id in every name.
class PipeNamespace : public ::testing::Environment {
  void SetUp() override {
    env_ = std::make_unique<nimbra_test::ScopedEnv>("NIMBRA_PIPE_NAMESPACE", kPrefix.c_str());
  }
  void TearDown() override { env_.reset(); }
  std::unique_ptr<nimbra_test::ScopedEnv> env_;
};

inline ::testing::Environment* const kPipeNamespace = ::testing::AddGlobalTestEnvironment(new PipeNamespace);

}  // namespace ipc_test
