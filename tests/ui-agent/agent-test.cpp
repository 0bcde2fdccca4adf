#include "tests/ui-agent/agent-test.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <atomic>

#include "logging/logger.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/ui-path-manager.h"

namespace agent_test {

Json::Value parse(const std::string& text) {
  Json::Value v;
  EXPECT_TRUE(jsonx::parse(text, v)) << text;
  return v;
}

void loadLook() {
  const QString res = QStringLiteral(NIMBRA_RESOURCE_DIR);
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), res);
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->clear();
  StyleManager::getInstance()->initialize(
      {res + "/agent.stylesheet", res + "/component.business.stylesheet"});
}

QString accessibleName(QObject* object) {
  QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(object);
  return iface ? iface->text(QAccessible::Name) : QString();
}

bool LogCapture::waitFor(const std::string& needle, int timeout_ms) const {
  QDeadlineTimer deadline(timeout_ms);
  while (text().find(needle) == std::string::npos) {
    if (deadline.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QThread::msleep(5);
  }
  return true;
}

Isolation::Isolation() {
  static std::atomic<int> counter{0};
  const std::string ns =
      "nimbra-agent-test-" + std::to_string(::getpid()) + "-" + std::to_string(++counter) + "-";
  pipe_ns_ = std::make_unique<nimbra_test::ScopedEnv>("NIMBRA_PIPE_NAMESPACE", ns.c_str());
  working_space_ = std::make_unique<nimbra_test::ScopedEnv>("NIMBRA_WORKING_SPACE", dir_.path().c_str());
}

}  // namespace agent_test
