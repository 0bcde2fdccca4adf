// The per-user single instance across processes, and the machine-wide lock
// telling the same user from another one.

#include <QCoreApplication>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QtEndian>

#include <future>

#include <unistd.h>

#include "tests/widgets/widgets-fixture.h"
#include "widgets/machine-lock.h"
#include "widgets/single-application.h"

namespace {

QString helperPath() {
  return qEnvironmentVariable("NIMBRA_BUILD_DIR") + QStringLiteral("/tests/bin/widgets-instance-helper");
}
// Starts the helper and returns the first line it prints.
QByteArray startHelper(QProcess& p, const QStringList& args) {
  p.start(helperPath(), args);
  return p.waitForReadyRead(10000) ? p.readLine().trimmed() : QByteArray("(no output)");
}

// Every test gets names of its own, so parallel runs never meet.
class WidgetsSingleApp : public ::testing::Test {
 protected:
  WidgetsSingleApp()
      : ns_("NIMBRA_PIPE_NAMESPACE", (std::string("wt") + std::to_string(::getpid()) + "-" +
                                      ::testing::UnitTest::GetInstance()->current_test_info()->name() + "-")
                                         .c_str()) {}
  nimbra_test::ScopedEnv ns_;
  const QString appId_ = QStringLiteral("nimbra-test-agent");
  const std::string name_ = "nimbra-test-lock";
};
using WidgetsLock = WidgetsSingleApp;

// Another instance of `appId` sends `message`: it arrives, alone, at `primary`.
void expectReceives(SingleInstance& primary, const QString& appId, const QString& message) {
  QSignalSpy received(&primary, &SingleInstance::messageReceived);
  auto sent = std::async(std::launch::async,
                         [appId, message] { return SingleInstance(appId).sendMessage(message, 5000); });
  ASSERT_TRUE(received.wait(10000));
  EXPECT_TRUE(sent.get());
  ASSERT_EQ(received.size(), 1);
  EXPECT_EQ(received.first().first().toString(), message);
}

TEST_F(WidgetsSingleApp, InstanceThatIsExitingIsNotRunning) {
  // Nobody listening: the message is lost.
  EXPECT_FALSE(SingleInstance(appId_).sendMessage("open", 300));
  SingleInstance first(appId_);
  ASSERT_FALSE(first.isRunning());
  EXPECT_FALSE(SingleInstance(QStringLiteral("some-other-app")).isRunning());
  SingleInstance second(appId_);
  EXPECT_TRUE(second.isRunning());
  EXPECT_TRUE(second.isRunning());  // asking again changes nothing
  first.release();
  EXPECT_FALSE(second.isRunning());
  EXPECT_TRUE(second.isPrimary());
  expectReceives(second, appId_, "open");  // the new primary receives messages
}

TEST_F(WidgetsSingleApp, CrashedPrimaryLeavesNothingBehind) {
  QProcess primary;
  ASSERT_EQ(startHelper(primary, {"primary", appId_}), "PRIMARY");
  SingleInstance me(appId_);
  EXPECT_TRUE(me.isRunning());
  primary.kill();
  ASSERT_TRUE(primary.waitForFinished(10000));
  EXPECT_FALSE(me.isRunning());
  expectReceives(me, appId_, "after crash");
}

// The size cap is inclusive on both ends: a message of exactly the cap
// arrives, one byte more is not even sent.
TEST_F(WidgetsSingleApp, AMessageOfExactlyTheCapArrives) {
  SingleInstance primary(appId_);
  ASSERT_FALSE(primary.isRunning());
  expectReceives(primary, appId_, QString(SingleInstance::kMaxMessageBytes, QLatin1Char('x')));
  EXPECT_FALSE(SingleInstance(appId_).sendMessage(
      QString(SingleInstance::kMaxMessageBytes + 1, QLatin1Char('x')), 1000));
}

TEST_F(WidgetsSingleApp, HostilePeersAreDroppedAndLaterMessagesStillArrive) {
  SingleInstance primary(appId_);
  ASSERT_FALSE(primary.isRunning());
  QSignalSpy received(&primary, &SingleInstance::messageReceived);
  widgets_test::LogCapture log;

  QLocalSocket huge, half;
  for (QLocalSocket* peer : {&huge, &half}) {
    peer->connectToServer(primary.serverName());
    ASSERT_TRUE(peer->waitForConnected(3000));
  }
  huge.write(QByteArray("\xff\xff\xff\xff", 4));  // announces four gigabytes
  QByteArray frame(4, '\0');
  qToBigEndian<quint32>(10, frame.data());
  half.write(frame + "abc");  // half a message, then gone
  huge.flush();
  half.flush();
  QCoreApplication::processEvents();
  half.disconnectFromServer();

  expectReceives(primary, appId_, "open");
  EXPECT_EQ(received.size(), 1) << "a hostile peer's bytes arrived as a message";
  EXPECT_NE(log.text().find("refused a message announcing"), std::string::npos);
}

TEST_F(WidgetsLock, FirstAcquiresSameUserSeesItHeld) {
  MachineLock first(name_);
  ASSERT_EQ(first.acquire(), MachineLock::Acquired);
  EXPECT_TRUE(first.held());
  EXPECT_EQ(first.acquire(), MachineLock::Acquired);  // again: still ours
  MachineLock second(name_);
  // Asked again and again, it never stalls nor runs out of handles.
  for (int i = 0; i < 200; ++i) ASSERT_EQ(MachineLock(name_).acquire(), MachineLock::HeldBySameUser) << i;
  EXPECT_EQ(second.acquire(), MachineLock::HeldBySameUser);
  EXPECT_FALSE(second.held());
  first.release();
  EXPECT_FALSE(first.held());
  EXPECT_EQ(second.acquire(), MachineLock::Acquired);
}

TEST_F(WidgetsLock, LockVanishesWithItsProcess) {
  QProcess holder;
  ASSERT_EQ(startHelper(holder, {"hold-lock", QString::fromStdString(name_)}), "acquired");
  MachineLock me(name_);
  EXPECT_EQ(me.acquire(), MachineLock::HeldBySameUser);
  holder.kill();
  ASSERT_TRUE(holder.waitForFinished(10000));
  EXPECT_EQ(me.acquire(), MachineLock::Acquired);
}

}  // namespace
