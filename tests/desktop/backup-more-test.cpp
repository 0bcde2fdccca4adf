// More endings of a backup on a linked device: partly done and cancelled
// (the orange picture, the pop-up's status page, the notification with the
// agent's button), the storage notifications at 85% and 95%, and a backup
// stopped by a full quota (red, "Failed", the reason in the activity list).
#include <QJsonObject>
#include <QRegularExpression>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

const QColor kUsageRed(0xE6, 0x40, 0x40);
const char kFinishBody[] = "Check the activity logs in the agent for more information.";

class BackupMore : public AgentDesktop {
 protected:
  // The icon turns blue; a click shows the pop-up with the progress page.
  ::testing::AssertionResult runningWithPopup() {
    if (!waitForTrayPicture(TrayPicture::Running, 30000))
      return ::testing::AssertionFailure() << "icon: " << pictureName(trayPicture());
    clickTrayIcon();
    if (!waitUntil([&] { return !popup().isEmpty(); }, 10000))
      return ::testing::AssertionFailure() << "a click on the icon shows no pop-up";
    if (!waitForLog("tray pop-up: progress page: ", 10000))
      return ::testing::AssertionFailure() << "the pop-up never shows the progress page";
    return ::testing::AssertionSuccess();
  }
  // The agent's button and the default action (a click on the notification).
  static ::testing::AssertionResult hasAgentsButton(const QStringList& menu) {
    const int buttons = menu.filter(QRegularExpression("^#Open Nimbra Backup \\(.*\\) \\[\\d+,1\\]$")).size();
    const int defaults = menu.filter(",default]").size();
    if (buttons < 1 || defaults < 1)
      return ::testing::AssertionFailure() << "no agent's button in\n" << menu.join('\n').toStdString();
    return ::testing::AssertionSuccess();
  }
  QStringList summaries() const {
    QStringList out;
    for (const QJsonValue& n : notifications()) out << n.toObject().value("summary").toString();
    return out;
  }
  QString bodyOf(const QString& summary) const {
    for (const QJsonValue& n : notifications())
      if (n.toObject().value("summary").toString() == summary) return n.toObject().value("body").toString();
    return {};
  }
};

struct EndingRow {
  const char* scenario;
  const char* result;  // the status page's text and the notification's title
  const char* event;   // the latest event the page shows
};

void PrintTo(const EndingRow& r, std::ostream* os) {
  *os << r.scenario;
}

class BackupEnding : public BackupMore, public ::testing::WithParamInterface<EndingRow> {};

TEST_P(BackupEnding, OrangeIconStatusPageAndNotification) {
  const EndingRow& row = GetParam();
  ASSERT_TRUE(startLinked(row.scenario));
  ASSERT_TRUE(runningWithPopup());
  shot("running-popup");

  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Warning, 60000)) << "icon: " << pictureName(trayPicture());
  // The open pop-up turns to the status page with the result.
  EXPECT_TRUE(waitForLog(QString("tray pop-up: status page: %1").arg(row.result), 10000));
  EXPECT_FALSE(popup().isEmpty()) << "the pop-up closed by itself";
  ASSERT_TRUE(waitUntil([&] { return desktop_->displayed() >= 1; }, 30000)) << "no notification shown";
  shot("finished");
  const ShownNotification shown = takeNotification();
  EXPECT_EQ(shown.summary, QString("Nimbra Backup %1").arg(row.result));
  EXPECT_EQ(shown.body, kFinishBody);
  EXPECT_TRUE(hasAgentsButton(shown.menu));
  EXPECT_EQ(trayPicture(), TrayPicture::Warning) << pictureName(trayPicture());

  // The activity list tells why.
  clickAt(popupListButton());
  EXPECT_FALSE(waitForAgentWindow(10000, "^Activity$").isEmpty()) << "the list button opens no activity list";
  EXPECT_EQ(logCount(QString("activity row: %1").arg(row.event)), 1);
  shot("activity");
}

INSTANTIATE_TEST_SUITE_P(Scenarios, BackupEnding,
                         ::testing::Values(EndingRow{"backup-partial", "Partially Successful",
                                                     "Failed to read and upload the volume content of D:."},
                                           EndingRow{"backup-cancelled", "Canceled",
                                                     "Backup task was canceled."}),
                         [](const ::testing::TestParamInfo<EndingRow>& row) {
                           QString name = row.param.scenario;
                           return name.remove('-').toStdString();
                         });

struct QuotaRow {
  const char* scenario;
  const char* title;
  const char* body;
  const char* bar;  // the usage bar's style afterwards
};

void PrintTo(const QuotaRow& r, std::ostream* os) {
  *os << r.scenario;
}

class QuotaNotice : public BackupMore, public ::testing::WithParamInterface<QuotaRow> {};

TEST_P(QuotaNotice, ShownBesideTheBackupsOwn) {
  const QuotaRow& row = GetParam();
  ASSERT_TRUE(startLinked(row.scenario));
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Running, 30000)) << "icon: " << pictureName(trayPicture());
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Success, 60000)) << "icon: " << pictureName(trayPicture());
  // The backup's notification and the storage one, each with the agent's button.
  ASSERT_TRUE(waitUntil([&] { return desktop_->displayed() >= 2; }, 30000))
      << "shown: " << summaries().join(", ").toStdString();
  shot("notifications");
  const QStringList menu = desktop_->contextMenu(QString());
  EXPECT_EQ(menu.filter(QRegularExpression("^#Open Nimbra Backup \\(.*\\) \\[\\d+,1\\]$")).size(), 2)
      << menu.join('\n').toStdString();
  run("dunstctl", {"close-all"});
  EXPECT_TRUE(waitUntil([&] { return desktop_->displayed() == 0; }, 5000));
  const QStringList shown = summaries();
  EXPECT_EQ(shown.size(), 2) << shown.join(", ").toStdString();
  EXPECT_TRUE(shown.contains("Nimbra Backup Successful")) << shown.join(", ").toStdString();
  EXPECT_EQ(bodyOf(row.title), row.body) << shown.join(", ").toStdString();

  // The usage in the user menu follows.
  EXPECT_TRUE(waitForLog(QString("(%1)").arg(row.bar), 10000));
  clickTrayIcon();
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 10000)) << "a click on the icon shows no pop-up";
  const QPoint user = popupUserButton();
  ASSERT_FALSE(user.isNull()) << "no user button on the pop-up";
  clickAt(user);
  const bool red = waitUntil([&] { return screenPixels(kUsageRed, 30) > 300; }, 10000);
  EXPECT_EQ(red, QString(row.bar) == "tray_usage_red") << "the usage bar's colour";
  shot("user-menu");
}

INSTANTIATE_TEST_SUITE_P(
    Scenarios, QuotaNotice,
    ::testing::Values(QuotaRow{"quota-nearly-full", "Storage is almost full",
                               "You have used 85% of your total storage (100 GB).", "tray_usage_blue"},
                      QuotaRow{"quota-full", "Storage is full",
                               "You have used 95% of your total storage (100 GB).", "tray_usage_red"}),
    [](const ::testing::TestParamInfo<QuotaRow>& row) {
      QString name = row.param.scenario;
      return name.remove('-').toStdString();
    });

TEST_F(BackupMore, QuotaExceededStopsTheBackupAsFailed) {
  ASSERT_TRUE(startLinked("quota-exceeded"));
  ASSERT_TRUE(runningWithPopup());
  shot("running-popup");
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Error, 60000)) << "icon: " << pictureName(trayPicture());
  EXPECT_TRUE(waitForLog("tray pop-up: status page: Failed", 10000));
  EXPECT_TRUE(waitForLog("quota usage: 100 GB / 100 GB (tray_usage_red)", 10000));
  ASSERT_TRUE(waitUntil([&] { return desktop_->displayed() >= 1; }, 30000)) << "no notification shown";
  shot("failed");
  const ShownNotification shown = takeNotification();
  EXPECT_EQ(shown.summary, "Nimbra Backup Failed");
  EXPECT_EQ(shown.body, kFinishBody);
  EXPECT_TRUE(hasAgentsButton(shown.menu));
  // Already past 95% before: no storage notification.
  EXPECT_EQ(summaries().filter("Storage").size(), 0) << summaries().join(", ").toStdString();

  // The reason is in the activity list.
  ASSERT_FALSE(popup().isEmpty()) << "the pop-up closed by itself";
  clickAt(popupListButton());
  EXPECT_FALSE(waitForAgentWindow(10000, "^Activity$").isEmpty()) << "the list button opens no activity list";
  EXPECT_EQ(logCount("activity row: Nimbra Backup storage limit already reached."), 1);
  EXPECT_EQ(logCount("activity row: Backup task failed."), 1);
  shot("activity");
  EXPECT_EQ(trayPicture(), TrayPicture::Error) << pictureName(trayPicture());
}

}  // namespace
}  // namespace desktop_test
