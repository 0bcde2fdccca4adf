#pragma once
// Pipe names private to this test process (the log capture is tests/support's).

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>

#include "logging/logger.h"
#include "tests/support/log-capture.h"
#include "tests/support/temp-dir.h"

namespace ipc_test {

inline const std::string kPrefix = "nimbra-ipc-test-" + std::to_string(vlog::current_pid()) + "-";

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
