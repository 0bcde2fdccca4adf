// First run with the keyboard only: welcome page, sign-in through the
// browser, the summary with its sites, Done, the back-up-now question, and the
// tray pop-up with the backup's progress; the service's record shows the
// whole exchange in order.
#include <algorithm>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

// Colours the pages show in bulk.
const QColor kSummaryBlock(0xF7, 0xF8, 0xF9);
const QColor kButtonBlue(0x0A, 0x9C, 0xFF);

class FirstRun : public AgentDesktop {
 protected:
  // The wizard's window, once shown and given the focus.
  QString wizardUp() {
    QString wizard;
    EXPECT_TRUE(waitUntil(
        [&] {
          const QStringList w = agentWindows();
          wizard = w.isEmpty() ? QString() : w.first();
          return !wizard.isEmpty();
        },
        30000))
        << "no wizard window";
    return wizard;
  }
  bool summaryShown(int ms) {
    return waitUntil([&] { return screenPixels(kSummaryBlock) > 50000; }, ms);
  }
};

TEST_F(FirstRun, KeyboardOnlyFromWelcomeToTheTrayPopup) {
  ASSERT_TRUE(startSim("first-run"));
  ASSERT_TRUE(startAgent());
  const QString wizard = wizardUp();
  ASSERT_FALSE(wizard.isEmpty());
  ASSERT_TRUE(activate(wizard));
  ASSERT_TRUE(waitUntil([&] { return screenPixels(kButtonBlue) > 3000; }, 15000)) << "welcome page not drawn";
  shot("welcome");

  // "Let's Start" has the focus: Return asks for the sign-in address, shows
  // the sign-in sheet and opens the browser, which signs in and hands the
  // address back to the agent.
  keys({"Return"});
  ASSERT_TRUE(waitForAction("get_auth", 15000));
  shot("sign-in");
  ASSERT_TRUE(waitForAction("get_site_info", 30000)) << "the browser's return never reached the agent";
  ASSERT_TRUE(summaryShown(20000)) << "no summary page";
  ASSERT_TRUE(waitForAgentFocus(10000));
  shot("summary");

  // Done has the focus; Shift+Tab reaches the site chooser, Down picks the
  // second site (Europe), Return on the chooser is Done.
  keys({"shift+Tab", "Down"});
  shot("summary-europe");
  keys({"Return"});
  ASSERT_TRUE(waitForAction("create_device", 15000));

  // The back-up-now question: a sheet of its own over the wizard, OK first.
  ASSERT_TRUE(waitUntil(
      [&] {
        const QString active = activeWindow();
        return active != wizard && agentWindows(".*").contains(active);
      },
      20000))
      << "no back-up-now question";
  shot("backup-now-question");
  keys({"Return"});
  ASSERT_TRUE(waitForAction("backup_now", 15000));

  // The tray pop-up comes up by the icon and the icon turns blue while the
  // backup runs.
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 20000)) << "no tray pop-up";
  EXPECT_TRUE(agentWindows().size() == 1) << "the wizard stays on screen";
  EXPECT_TRUE(waitForTrayPicture(TrayPicture::Running, 20000)) << pictureName(trayPicture());
  shot("popup-running");

  // get_status once a second with a log_id that follows the activity log.
  ASSERT_TRUE(waitForAction("get_status", 20000, 8));
  shot("popup-progress");

  const QVector<Request> all = records();
  QStringList first;
  for (int i = 0; i < all.size() && first.size() < 7; ++i) first << all[i].action();
  EXPECT_EQ(first, QStringList({"get_connection_info", "get_auth", "get_token", "get_site_info",
                                "create_device", "backup_now", "get_connection_info"}))
      << actions().join(' ').toStdString();
  const auto create =
      std::find_if(all.begin(), all.end(), [](const Request& r) { return r.action() == "create_device"; });
  ASSERT_NE(create, all.end());
  EXPECT_EQ(create->request.value("zid").toString(), "EU");
  EXPECT_EQ(create->request.value("subscription_id").toString(), "sub-eu-19c2");
  EXPECT_EQ(create->request.value("account_type").toString(), "vell");
  const auto token =
      std::find_if(all.begin(), all.end(), [](const Request& r) { return r.action() == "get_token"; });
  ASSERT_NE(token, all.end());
  EXPECT_FALSE(token->request.value("token").toString().isEmpty());

  QVector<qint64> times;
  QVector<int> ids;
  for (const Request& r : all) {
    if (r.action() != "get_status") continue;
    times << r.time_ms;
    ids << r.request.value("log_id").toInt(-1);
  }
  QVector<qint64> gaps;
  for (int i = 1; i < times.size(); ++i) gaps << times[i] - times[i - 1];
  std::sort(gaps.begin(), gaps.end());
  ASSERT_FALSE(gaps.isEmpty());
  const qint64 median = gaps[gaps.size() / 2];
  EXPECT_GE(median, 700);
  EXPECT_LE(median, 1600);
  for (int i = 1; i < ids.size(); ++i) EXPECT_GE(ids[i], ids[i - 1]) << "log_id went back at poll " << i;
  ASSERT_FALSE(ids.isEmpty());
  EXPECT_GT(ids.last(), ids.first()) << "log_id never grew: the agent does not follow the activity log";
}

}  // namespace
}  // namespace desktop_test
