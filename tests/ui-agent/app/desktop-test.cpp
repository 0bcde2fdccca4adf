// A desktop without a notification area (an X server with no tray): the
// connected agent, asked to show itself by a second launch, shows its
// pop-up as an ordinary window.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include <memory>

#include "agent-test.h"
#include "support/temp-dir.h"

namespace {

QString build(const char* rel) {
  return qEnvironmentVariable("NIMBRA_BUILD_DIR") + QLatin1String(rel);
}

bool waitFor(const std::function<bool()>& done, int ms) {
  QElapsedTimer clock;
  clock.start();
  while (!done()) {
    if (clock.elapsed() > ms) return false;
    QThread::msleep(50);
  }
  return true;
}

class NoTrayDesktop : public ::testing::Test {
 protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable("Xvfb").isEmpty() || QStandardPaths::findExecutable("xdotool").isEmpty())
      GTEST_SKIP() << "Xvfb or xdotool missing";
    xvfb_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
    ASSERT_TRUE(xvfb_.waitForReadyRead(15000)) << "Xvfb did not start";
    display_ = QStringLiteral(":") + QString::fromUtf8(xvfb_.readLine()).trimmed();
    ::chmod(runtime_.path().c_str(), 0700);
    env_ = QProcessEnvironment::systemEnvironment();
    env_.insert("DISPLAY", display_);
    env_.remove("QT_QPA_PLATFORM");
    env_.insert("XDG_RUNTIME_DIR", QString::fromStdString(runtime_.path()));
    env_.insert("XDG_STATE_HOME", QString::fromStdString(runtime_.path() + "/state"));
    env_.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    record_ = QString::fromStdString(work_.file("requests.jsonl"));
  }
  void TearDown() override {
    for (QProcess* p : {&agent_, &sim_, &xvfb_}) {
      if (p->state() != QProcess::NotRunning) {
        p->terminate();
        if (!p->waitForFinished(5000)) {
          p->kill();
          p->waitForFinished(5000);
        }
      }
    }
  }
  QStringList visibleWindows(const QString& name) {
    QProcess search;
    search.setProcessEnvironment(env_);
    search.start("xdotool", {"search", "--onlyvisible", "--name", name});
    search.waitForFinished(5000);
    return QString::fromUtf8(search.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
  }

  agent_test::Isolation isolation_;
  nimbra_test::TempDir runtime_, work_;
  QProcess xvfb_, sim_, agent_;
  QString display_, record_;
  QProcessEnvironment env_;
};

TEST_F(NoTrayDesktop, OpenShowsThePopupAsAWindow) {
  sim_.setProcessEnvironment(env_);
  sim_.start(build("/bin/nimbra-service-sim"),
             {"serve", "--scenario", qEnvironmentVariable("NIMBRA_SOURCE_DIR") + "/service-sim/scenarios/idle.json",
              "--state", QString::fromStdString(work_.file("sim")), "--fresh", "--record", record_});
  ASSERT_TRUE(sim_.waitForReadyRead(15000));
  agent_.setProcessEnvironment(env_);
  agent_.start(build("/bin/nimbra-backup-agent"), QStringList());
  // Connected: the agent polls the service.
  ASSERT_TRUE(waitFor(
      [this] {
        QFile f(record_);
        return f.open(QIODevice::ReadOnly) && f.readAll().contains("\"get_status\"");
      },
      20000));
  EXPECT_TRUE(visibleWindows("^Nimbra Backup$").isEmpty());

  QProcess second;
  second.setProcessEnvironment(env_);
  second.start(build("/bin/nimbra-backup-agent"), QStringList());
  ASSERT_TRUE(second.waitForFinished(15000));
  EXPECT_EQ(second.exitCode(), 0);
  EXPECT_TRUE(waitFor([this] { return !visibleWindows("^Nimbra Backup$").isEmpty(); }, 10000))
      << "no window titled Nimbra Backup after \"open\"";
  // A picture for people to look at.
  QProcess::execute("import", {"-display", display_, "-window", "root",
                               build("/tests/no-tray-open.png")});
}

}  // namespace
