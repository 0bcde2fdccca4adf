#pragma once
// Shared set-up of the tray tests: local time pinned to UTC (the pop-up's
// times are local), the product's look, and log entries built in one line.

#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "agent-test.h"
#include "core/log-entry.h"
#include "support/qt-print.h"

namespace tray_test {

// 2024/01/31 23:59:05 UTC
constexpr qint64 kMoment = 1706745545;

inline void pinUtc() {
  qputenv("TZ", "UTC");
  tzset();
}

inline LogEntry entry(quint64 id, quint64 time = kMoment, quint32 type = 1101,
                      const std::string& body = "{}") {
  LogEntry e;
  e.id = id;
  e.time = time;
  e.type = type;
  e.body = agent_test::parse(body);
  return e;
}

class TrayTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    pinUtc();
    agent_test::loadLook();
  }
};

}  // namespace tray_test
