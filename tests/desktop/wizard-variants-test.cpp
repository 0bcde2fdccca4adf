// The wizard's other ways through, with the keyboard: an account with one
// site (the summary names it, Done links there), an account of type
// "nimbra" (no summary: the device is created on the first site at once),
// and sign-in errors (each error's sheet, then the welcome page again, and
// the next try goes through).
#include <algorithm>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

// Colours the pages show in bulk.
const QColor kSummaryBlock(0xF7, 0xF8, 0xF9);
const QColor kButtonBlue(0x0A, 0x9C, 0xFF);
// The wizard's white and the summary's block under the mask of a sheet
// (black at alpha 20).
const QColor kMaskedWhite(235, 235, 235);
const QColor kMaskedSummaryBlock(228, 229, 229);

class WizardVariants : public AgentDesktop {
 protected:
  void SetUp() override {
    AgentDesktop::SetUp();
    if (HasFatalFailure()) return;
    ASSERT_TRUE(useDebugLog());
  }

  // The wizard on its welcome page, active, with "Let's Start" drawn in
  // full colour (no sheet over it).
  ::testing::AssertionResult welcomeUp(int ms = 30000) {
    wizard_ = waitForAgentWindow(ms);
    if (wizard_.isEmpty()) return ::testing::AssertionFailure() << "no wizard window";
    if (auto r = activate(wizard_); !r) return r;
    if (!welcomeDrawn(15000)) return ::testing::AssertionFailure() << "welcome page not drawn";
    return ::testing::AssertionSuccess();
  }
  bool welcomeDrawn(int ms) {
    return waitUntil([&] { return !masked() && screenPixels(kButtonBlue) > 3000; }, ms);
  }
  bool masked() { return screenPixels(kMaskedWhite, 3) > 150000; }
  bool summaryShown(int ms) {
    return waitUntil([&] { return screenPixels(kSummaryBlock) > 50000; }, ms);
  }
  // "Let's Start" with Return: the sign-in sheet, the browser, and the
  // address back to the agent, which asks for its token (the `pass`th time).
  ::testing::AssertionResult signIn(int pass) {
    if (!pressUntil(
            "Return", [&] { return countOf("get_auth") >= pass; }, 15000))
      return ::testing::AssertionFailure() << "no get_auth";
    if (!waitForAction("get_token", 30000, pass))
      return ::testing::AssertionFailure() << "the browser's return never reached the agent";
    return ::testing::AssertionSuccess();
  }
  // The `n`th (from 1) request of `action`.
  QJsonObject request(const QString& action, int n = 1) const {
    int seen = 0;
    for (const Request& r : records())
      if (r.action() == action && ++seen == n) return r.request;
    return {};
  }
  qint64 timeOf(const QString& action, int n = 1) const {
    int seen = 0;
    for (const Request& r : records())
      if (r.action() == action && ++seen == n) return r.time_ms;
    return -1;
  }
  // The back-up-now question over the wizard, with the keys' focus.
  ::testing::AssertionResult backupQuestion() {
    if (!waitForLog("asking whether to back up now", 20000))
      return ::testing::AssertionFailure() << "no back-up-now question";
    if (!waitUntil([&] { return masked(); }, 10000))
      return ::testing::AssertionFailure() << "the question shows no sheet over the wizard";
    if (!waitForAgentFocus(10000)) return ::testing::AssertionFailure() << "the question has no focus";
    return ::testing::AssertionSuccess();
  }
  // After the question: the wizard gone, the tray pop-up by the icon.
  ::testing::AssertionResult trayTakesOver() {
    if (!waitUntil([&] { return !popup().isEmpty(); }, 20000))
      return ::testing::AssertionFailure() << "no tray pop-up";
    if (!waitUntil([&] { return agentWindows().size() == 1; }, 10000))
      return ::testing::AssertionFailure() << "the wizard stays on screen";
    return ::testing::AssertionSuccess();
  }

  QString wizard_;
};

TEST_F(WizardVariants, OneSiteSummaryThenDoneLinksThere) {
  ASSERT_TRUE(startSim("one-site"));
  ASSERT_TRUE(startAgent());
  ASSERT_TRUE(welcomeUp());
  shot("welcome");
  ASSERT_TRUE(signIn(1));
  ASSERT_TRUE(waitForAction("get_site_info", 15000));
  ASSERT_TRUE(summaryShown(20000)) << "no summary page";
  ASSERT_TRUE(waitForAgentFocus(10000));
  shot("summary-one-site");
  EXPECT_EQ(countOf("create_device"), 0) << "linked before Done";

  // Done has the focus.
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return countOf("create_device") >= 1; }, 15000));
  const QJsonObject create = request("create_device");
  EXPECT_EQ(create.value("zid").toString(), "US");
  EXPECT_EQ(create.value("subscription_id").toString(), "sub-us-7f3a");
  EXPECT_EQ(create.value("account_type").toString(), "vell");

  ASSERT_TRUE(backupQuestion());
  EXPECT_GT(screenPixels(kMaskedSummaryBlock), 50000) << "the summary is not under the question";
  shot("backup-now-question");
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return countOf("backup_now") >= 1; }, 15000));  // OK
  ASSERT_TRUE(trayTakesOver());
  EXPECT_TRUE(waitForTrayPicture(TrayPicture::Running, 20000)) << pictureName(trayPicture());
  EXPECT_TRUE(waitForLog("tray pop-up: progress page: ", 10000)) << "the pop-up never shows the progress page";
  shot("popup-running");
  EXPECT_EQ(actions().mid(0, 7), QStringList({"get_connection_info", "get_auth", "get_token", "get_site_info",
                                              "create_device", "backup_now", "get_connection_info"}))
      << actions().join(' ').toStdString();
}

TEST_F(WizardVariants, NimbraAccountLinksOnTheFirstSiteWithoutSummary) {
  ASSERT_TRUE(startSim("nimbra-account"));
  ASSERT_TRUE(startAgent());
  ASSERT_TRUE(welcomeUp());
  ASSERT_TRUE(signIn(1));
  // No key is pressed after the sign-in: the device is created by itself.
  ASSERT_TRUE(waitForAction("create_device", 20000)) << "no create_device without a summary";
  const qint64 sites = timeOf("get_site_info");
  ASSERT_GE(sites, 0);
  EXPECT_LT(timeOf("create_device") - sites, 5000) << "create_device waited for something";
  const QJsonObject create = request("create_device");
  EXPECT_EQ(create.value("zid").toString(), "US");
  EXPECT_EQ(create.value("subscription_id").toString(), "sub-us-7f3a");
  EXPECT_EQ(create.value("account_type").toString(), "nimbra");

  ASSERT_TRUE(backupQuestion());
  // Under the question's mask the page is bare: no summary block.
  EXPECT_LT(screenPixels(kMaskedSummaryBlock), 5000);
  shot("backup-now-question");
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return countOf("backup_now") >= 1; }, 15000));  // OK
  ASSERT_TRUE(trayTakesOver());
  EXPECT_TRUE(waitForTrayPicture(TrayPicture::Running, 20000)) << pictureName(trayPicture());
  shot("popup-running");
  EXPECT_EQ(countOf("create_device"), 1);
}

TEST_F(WizardVariants, SignInErrorsShowTheirSheetAndReturnToWelcome) {
  ASSERT_TRUE(startSim("signin-errors"));
  ASSERT_TRUE(startAgent());
  ASSERT_TRUE(welcomeUp());
  shot("welcome");

  // First pass: the token is refused (15).
  ASSERT_TRUE(signIn(1));
  ASSERT_TRUE(waitForLog(
      "wizard shows error 15: Authentication failed. Sign out from the agent and sign in again.", 15000))
      << "no sheet for error 15";
  EXPECT_TRUE(waitUntil([&] { return masked(); }, 10000)) << "the error sheet does not cover the wizard";
  ASSERT_TRUE(waitForAgentFocus(10000));
  shot("error-15");
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return logCount("wizard: welcome page") >= 2; }, 15000))  // OK
      << "not back on the welcome page";
  ASSERT_TRUE(welcomeDrawn(10000)) << "the error sheet stays";
  shot("welcome-after-15");
  EXPECT_EQ(countOf("get_site_info"), 0) << "sites asked for with a refused token";
  EXPECT_EQ(countOf("create_device"), 0);

  // Second pass: signed in, the summary, Done: the service has no
  // encryption key yet (17) and says where to set it.
  ASSERT_TRUE(signIn(2));
  ASSERT_TRUE(waitForAction("get_site_info", 15000));
  ASSERT_TRUE(summaryShown(20000)) << "no summary page";
  ASSERT_TRUE(waitForAgentFocus(10000));
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return countOf("create_device") >= 1; }, 15000));  // Done
  ASSERT_TRUE(waitForLog("wizard shows error 17: You haven't set up the Nimbra Encryption Key.", 15000))
      << "no sheet for error 17";
  EXPECT_EQ(logCount("href=\"https://us.console.nimbrabackup.example/encryption\">console</a>"), 1)
      << "the sheet does not link to the console";
  EXPECT_TRUE(waitUntil([&] { return masked(); }, 10000));
  ASSERT_TRUE(waitForAgentFocus(10000));
  shot("error-17");
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return logCount("wizard: welcome page") >= 3; }, 15000))  // OK
      << "not back on the welcome page";
  ASSERT_TRUE(welcomeDrawn(10000)) << "the error sheet stays";
  shot("welcome-after-17");
  EXPECT_EQ(countOf("create_device"), 1);
  EXPECT_EQ(countOf("backup_now"), 0);

  // Third pass: both go through now; "Not Now" (Escape) links without a backup.
  ASSERT_TRUE(signIn(3));
  ASSERT_TRUE(waitForAction("get_site_info", 15000, 2));
  ASSERT_TRUE(summaryShown(20000)) << "no summary page";
  ASSERT_TRUE(waitForAgentFocus(10000));
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return countOf("create_device") >= 2; }, 15000));  // Done
  ASSERT_TRUE(backupQuestion());
  ASSERT_TRUE(pressUntil(
      "Escape", [&] { return logCount("back up now: not now") >= 1; }, 15000));  // Not Now
  ASSERT_TRUE(trayTakesOver());
  ASSERT_TRUE(waitForAction("get_status", 15000));
  shot("linked");
  EXPECT_EQ(countOf("backup_now"), 0) << "\"Not Now\" started a backup";
  EXPECT_EQ(logCount("wizard shows error"), 2);
  const QJsonObject create = request("create_device", 2);
  EXPECT_EQ(create.value("zid").toString(), "US");
  EXPECT_EQ(create.value("subscription_id").toString(), "sub-us-7f3a");
}

}  // namespace
}  // namespace desktop_test
