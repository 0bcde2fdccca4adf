#pragma once
// Shared set-up of the tray tests: local time pinned to UTC (the pop-up's
// times are local), the product's look loaded from the source tree, and
// log entries built in one line.

#include <gtest/gtest.h>

#include <QDir>

#include <ctime>
#include <string>

#include "agent-test.h"
#include "core/log-entry.h"
#include "image-manager.h"
#include "style-manager.h"
#include "support/qt-print.h"
#include "ui-path-manager.h"

namespace tray_test {

// 2024/01/31 23:59:05 UTC
constexpr qint64 kMoment = 1706745545;

inline void pinUtc() {
  qputenv("TZ", "UTC");
  tzset();
}

inline void loadLook() {
  static bool done = false;
  if (done) return;
  done = true;
  const QString res =
      QDir::cleanPath(qEnvironmentVariable("NIMBRA_SOURCE_DIR", QStringLiteral(".")) + "/resource");
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), res);
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->initialize({res + "/agent.stylesheet", res + "/component.business.stylesheet"});
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
  void SetUp() override {
    pinUtc();
    loadLook();
  }
};

}  // namespace tray_test
