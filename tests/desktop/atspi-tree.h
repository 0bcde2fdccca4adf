#pragma once
// What a screen reader sees of the agent, and its hands: the accessibility
// bus (started on demand, as when a screen reader comes after the agent),
// the agent's tree as read by atspi-driver.py, and presses on its buttons.

#include <QProcessEnvironment>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>

#include <gtest/gtest.h>

namespace nimbra_test {
class ChildProcess;
}

namespace desktop_test {

struct A11yNode {
  int depth = 0;  // 1: a window
  QString role, name, description;
  bool showing = false;
};

class AtspiTree {
 public:
  // `env`: the desktop's (display and session bus); `pid`: the agent's.
  AtspiTree(QProcessEnvironment env, QString driver, qint64 pid);
  ~AtspiTree();  // ends the accessibility bus, if it started it

  // at-spi-bus-launcher on the desktop; its errors go to `errors`.
  ::testing::AssertionResult startBus(const QString& errors);
  // The agent's tree; empty while it is not on the bus.
  QVector<A11yNode> nodes() const;
  // The first showing node that `match` takes, once the tree has it; an
  // empty node after `ms`.
  A11yNode waitFor(const std::function<bool(const A11yNode&)>& match, int ms) const;
  // Performs the first action of the first showing node called `name`.
  bool press(const QString& name, const QString& role = QStringLiteral("push button")) const;

 private:
  QString driver(const QStringList& args, int* code) const;

  QProcessEnvironment env_;
  QString driver_;
  qint64 pid_;
  std::unique_ptr<nimbra_test::ChildProcess> bus_;
};

}  // namespace desktop_test
