#pragma once
// Helpers shared by the agent's test suites: JSON from text, the product's
// look, children by object name, a log file the test reads back, and
// per-process pipe / working-space isolation.

#include <gtest/gtest.h>
#include <json/value.h>

#include <QObject>
#include <QString>
#include <QWidget>

#include <memory>
#include <string>

#include "tests/support/log-capture.h"
#include "tests/support/temp-dir.h"

namespace agent_test {

// Parses `text`, failing the current test when it is not JSON.
Json::Value parse(const std::string& text);

// Loads the product's pictures and style sheets from the source tree (widgets
// take their style sheets when built, so before the first one is).
void loadLook();

// The child of `parent` with this object name, failing the test when absent.
template <typename T = QWidget>
T* child(const QObject* parent, const char* name) {
  T* found = parent->findChild<T*>(QLatin1String(name));
  EXPECT_NE(found, nullptr) << name;
  return found;
}

// The name a screen reader announces for `object`.
QString accessibleName(QObject* object);

// The log capture with every component at debug level.
class LogCapture : public nimbra_test::LogCapture {
 public:
  LogCapture() : nimbra_test::LogCapture("default_component = 7\nwin_ipc = 7\n") {}
  // Pumps Qt events until `needle` shows up in text(); false after `timeout_ms`.
  bool waitFor(const std::string& needle, int timeout_ms = 10000) const;
};

// NIMBRA_PIPE_NAMESPACE unique to this process and object, NIMBRA_WORKING_SPACE
// a fresh scratch folder.
class Isolation {
 public:
  Isolation();
  const std::string& workingSpace() const { return dir_.path(); }

 private:
  nimbra_test::TempDir dir_;
  std::unique_ptr<nimbra_test::ScopedEnv> pipe_ns_, working_space_;
};

}  // namespace agent_test
