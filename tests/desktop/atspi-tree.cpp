#include "tests/desktop/atspi-tree.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "tests/support/desktop.h"

namespace desktop_test {

AtspiTree::AtspiTree(QProcessEnvironment env, QString driver, qint64 pid)
    : env_(std::move(env)), driver_(std::move(driver)), pid_(pid) {}

AtspiTree::~AtspiTree() {
  if (!bus_) return;
  // It ends the accessibility bus (and with it the registry) on SIGTERM.
  bus_->terminate();
  if (!bus_->waitForFinished(5000)) bus_->kill();
}

::testing::AssertionResult AtspiTree::startBus(const QString& errors) {
  bus_ = std::make_unique<nimbra_test::ChildProcess>();
  bus_->setProcessEnvironment(env_);
  bus_->setStandardErrorFile(errors);
  bus_->start("/usr/libexec/at-spi-bus-launcher", {"--launch-immediately"});
  if (!bus_->waitForStarted(10000)) return ::testing::AssertionFailure() << "no at-spi-bus-launcher";
  return ::testing::AssertionSuccess();
}

QString AtspiTree::driver(const QStringList& args, int* code) const {
  nimbra_test::ChildProcess p;
  p.setProcessEnvironment(env_);
  p.start("/usr/bin/python3", QStringList{driver_, QString::number(pid_)} + args);
  if (!p.waitForFinished(20000)) {
    p.kill();
    p.waitForFinished(5000);
    *code = -1;
    return QString();
  }
  *code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
  return QString::fromUtf8(p.readAllStandardOutput());
}

QVector<A11yNode> AtspiTree::nodes() const {
  int code = -1;
  const QString out = driver({"tree"}, &code);
  QVector<A11yNode> nodes;
  if (code != 0) return nodes;
  for (const QString& line : out.split('\n', Qt::SkipEmptyParts)) {
    const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
    nodes.push_back({o.value("depth").toInt(), o.value("role").toString(), o.value("name").toString(),
                     o.value("description").toString(), o.value("showing").toBool()});
  }
  return nodes;
}

A11yNode AtspiTree::waitFor(const std::function<bool(const A11yNode&)>& match, int ms) const {
  A11yNode found;
  nimbra_test::wait_until(
      [&] {
        for (const A11yNode& n : nodes())
          if (n.showing && match(n)) {
            found = n;
            return true;
          }
        return false;
      },
      ms);
  return found;
}

bool AtspiTree::press(const QString& name, const QString& role) const {
  int code = -1;
  driver({"press", name, role}, &code);
  return code == 0;
}

}  // namespace desktop_test
