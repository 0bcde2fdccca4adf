// A whole launch of the agent's start-up with its own pipe namespace,
// working space, runtime and state folders: another user's agent refuses to
// start. (Second launches handing over their argument are desktop stories.)
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>

#include <memory>

#include "tests/support/temp-dir.h"
#include "tests/ui-agent/agent-test.h"
#include "widgets/machine-lock.h"

namespace {

class AgentLaunch : public ::testing::Test {
 protected:
  AgentLaunch() {
    ::chmod(runtime_.path().c_str(), 0700);
    env_ = QProcessEnvironment::systemEnvironment();
    env_.insert("XDG_RUNTIME_DIR", QString::fromStdString(runtime_.path()));
    env_.insert("XDG_STATE_HOME", QString::fromStdString(state_.path()));
    env_.insert("QT_QPA_PLATFORM", "offscreen");
    env_.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  }
  ~AgentLaunch() override {
    for (auto& p : procs_) {
      if (p->state() != QProcess::NotRunning) {
        p->kill();
        p->waitForFinished(5000);
      }
    }
  }
  // The launcher, looking like another user to the machine-wide lock when `otherUser`.
  QProcess& start(bool otherUser) {
    procs_.push_back(std::make_unique<QProcess>());
    QProcess& p = *procs_.back();
    QProcessEnvironment env = env_;
    if (otherUser) env.insert("NIMBRA_TEST_OTHER_USER", "1");
    p.setProcessEnvironment(env);
    p.start(qEnvironmentVariable("NIMBRA_BUILD_DIR") + "/tests/bin/agent-test-launcher", QStringList());
    return p;
  }
  // Reads the launcher's lines until one starts with `prefix`.
  static QString waitLine(QProcess& p, const QString& prefix, int ms = 15000) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
      while (p.canReadLine()) {
        const QString line = QString::fromUtf8(p.readLine()).trimmed();
        if (line.startsWith(prefix)) return line;
      }
      if (!p.waitForReadyRead(100) && p.state() == QProcess::NotRunning && !p.canReadLine()) break;
    }
    return QString();
  }
  std::string log() const { return nimbra_test::read_file(state_.path() + "/NimbraBackupAgent/log/ui.txt"); }

  agent_test::Isolation isolation_;
  nimbra_test::TempDir runtime_, state_;
  QProcessEnvironment env_;
  std::vector<std::unique_ptr<QProcess>> procs_;
};

#ifndef _WIN32
// (Windows tells another user by the lock's access denied, which the
// launcher cannot simulate.)
TEST_F(AgentLaunch, AnotherUsersAgentRefusesThisOne) {
  // The machine-wide lock held here; the launcher looks like another user.
  MachineLock holder;
  ASSERT_EQ(holder.acquire(), MachineLock::Acquired);
  QProcess& refused = start(true);
  EXPECT_EQ(waitLine(refused, "SHEET"),
            "SHEET Nimbra Backup|This application is already opened by another user.");
  ASSERT_TRUE(refused.waitForFinished(10000));
  EXPECT_EQ(refused.exitCode(), 0);
  EXPECT_EQ(QString::fromUtf8(refused.readAllStandardOutput()).contains("PRIMARY"), false);
  EXPECT_NE(log().find("held by another user"), std::string::npos);
  // The same user is not refused by the lock: the single instance decides.
  QProcess& same = start(false);
  EXPECT_EQ(waitLine(same, "PRIMARY"), "PRIMARY");
}
#endif

}  // namespace
