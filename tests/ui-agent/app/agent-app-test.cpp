// Start-up's decisions: the message a second instance forwards, the
// "open_log" switch, the 500 ms single-instance loop,
// and the presses that feed the bus.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QWidget>
#include <QWindow>

#include "tests/support/qt-print.h"
#include "ui-agent/app/agent-app.h"
#include "ui-agent/core/global-connecter.h"

namespace {

TEST(AgentStartup, ForwardsArgumentOneOrOpen) {
  EXPECT_EQ(agent_app::messageForRunning({"agent"}), QStringLiteral("open"));
  EXPECT_EQ(agent_app::messageForRunning({"agent", "token=abc"}), QStringLiteral("token=abc"));
  EXPECT_EQ(agent_app::messageForRunning({"agent", "open_log", "x"}), QStringLiteral("open_log"));
  EXPECT_EQ(agent_app::messageForRunning({"agent", ""}), QString(""));
}

TEST(AgentStartup, OpenLogInAnyArgument) {
  EXPECT_FALSE(agent_app::wantsOpenLog({"agent"}));
  EXPECT_TRUE(agent_app::wantsOpenLog({"agent", "open_log"}));
  EXPECT_TRUE(agent_app::wantsOpenLog({"open_log"}));  // the program path counts too
  EXPECT_TRUE(agent_app::wantsOpenLog({"agent", "x", "open_log"}));
  EXPECT_FALSE(agent_app::wantsOpenLog({"agent", "open_log=1", "OPEN_LOG", "nimbrabackup://x?open_log"}));
}

// The loop against a fake clock that advances 10 ms per pause.
struct Loop {
  int asked = 0;
  qint64 now = 0;
  bool run(int runningAnswers) {
    return agent_app::becomePrimary([&] { return ++asked <= runningAnswers; }, [&] { return now; },
                                    [&] { now += 10; });
  }
};

TEST(AgentSingleInstanceLoop, FirstInstanceExitingWithinBudgetLetsUsIn) {
  // {answers "running" this often, becomes primary, asked, clock at the end}
  const struct {
    int running;
    bool primary;
    int asked;
    qint64 now;
  } rows[] = {{0, true, 1, 0}, {30, true, 31, 300}, {50, true, 51, 500}, {1000000, false, 51, 500}};
  for (const auto& r : rows) {
    Loop loop;
    EXPECT_EQ(loop.run(r.running), r.primary) << r.running;
    EXPECT_EQ(loop.asked, r.asked) << r.running;
    EXPECT_EQ(loop.now, r.now) << r.running;
  }
}

#ifndef _WIN32  // (Windows: a low-level mouse hook)
TEST(AgentPositionFilter, LeftPressesOnWindowsFeedTheBus) {
  agent_app::platform::installPositionSource(*qApp);
  QSignalSpy clicked(&GlobalConnecter::instance(), &GlobalConnecter::sigPositionClicked);
  QWidget window;
  window.resize(200, 100);
  window.show();
  QWindow* handle = window.windowHandle();
  ASSERT_NE(handle, nullptr);
  auto press = [&](QObject* target, Qt::MouseButton button, QPoint global) {
    QMouseEvent e(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), QPointF(global), button, button,
                  Qt::NoModifier);
    QCoreApplication::sendEvent(target, &e);
  };
  press(handle, Qt::LeftButton, QPoint(1279, -40));
  press(handle, Qt::RightButton, QPoint(1, 1));
  agent_app::platform::removePositionSource(*qApp);
  press(handle, Qt::LeftButton, QPoint(2, 2));
  ASSERT_EQ(clicked.count(), 1);  // once per press, though widgets see it too
  EXPECT_EQ(clicked.first().first().toPoint(), QPoint(1279, -40));
}
#endif

}  // namespace
