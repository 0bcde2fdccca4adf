#include "log-capture.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <sstream>

#include "logger.h"

namespace ipc_test {

namespace {
std::wstring widen(const std::string& s) {
  return std::wstring(s.begin(), s.end());
}

// Pipe names of this test process never meet those of a test running beside
// it: a namespace of its own (POSIX) and the process id in every name.
class PipeNamespace : public ::testing::Environment {
 public:
  void SetUp() override {
    const std::string ns = "nimbra-ipc-test-" + std::to_string(vlog::current_pid()) + "-";
    env_ = std::make_unique<nimbra_test::ScopedEnv>("NIMBRA_PIPE_NAMESPACE", ns.c_str());
  }
  void TearDown() override { env_.reset(); }

 private:
  std::unique_ptr<nimbra_test::ScopedEnv> env_;
};

[[maybe_unused]] ::testing::Environment* const kPipeNamespace =
    ::testing::AddGlobalTestEnvironment(new PipeNamespace);
}  // namespace

LogCapture::LogCapture() : path_(dir_.file("ui.txt")) {
  vlog::init(vlog::kRotatingFile, widen(path_), L"", "", 50, 1);
}

LogCapture::~LogCapture() {
  vlog::shutdown();
}

std::string LogCapture::text() const {
  // The Windows log file starts with a byte order mark.
  std::string t = nimbra_test::read_file(path_);
  if (t.compare(0, 3, "\xEF\xBB\xBF") == 0) t.erase(0, 3);
  return t;
}

int LogCapture::count(const std::string& needle) const {
  std::istringstream in(text());
  std::string line;
  int n = 0;
  while (std::getline(in, line)) {
    if (line.find(needle) != std::string::npos) ++n;
  }
  return n;
}

std::string unique_pipe(const std::string& tag) {
  static std::atomic<int> serial{0};
  return "\\\\.\\pipe\\nimbra-ipc-test-" + std::to_string(vlog::current_pid()) + "-" + tag + "-" +
         std::to_string(++serial);
}

}  // namespace ipc_test
