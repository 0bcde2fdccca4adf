// The tray pop-up's widgets show what the models decide (tray-model-test has
// the decisions; the page per state and the state relayed to the icon are
// the desktop Backup stories'): the pages across answers, the bandwidth
// hand-over to the settings, the activity dialog, the quota widget.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include "tests/ui-agent/tray/tray-fixture.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-error-text.h"
#include "ui-agent/dialogs/settings-widget.h"
#include "ui-agent/tray/log-widget.h"
#include "ui-agent/tray/quota-info-widget.h"
#include "ui-agent/tray/tray-menu.h"
#include "ui-agent/tray/tray-progress-widget.h"
#include "ui-agent/tray/tray-status-widget.h"
#include "widgets/dpi-info.h"
#include "widgets/vell-label.h"

using agent_test::accessibleName;
using agent_test::child;
using agent_test::parse;
using tray_test::entry;

namespace {

QList<LogEntry> entries(quint64 first, quint64 last) {
  QList<LogEntry> list;
  for (quint64 id = first; id <= last; ++id) list << entry(id);
  return list;
}
TrayStatus relayed(QSignalSpy& spy) {
  return spy.isEmpty() ? TrayStatus(-1) : spy.takeLast().at(0).value<TrayStatus>();
}
const char* const kRunning = R"({"connected":true,"transfer":{"transfer":400,"total":1600,"speed":10}})";
const char* const kFailed = R"({"connected":true,"last_backup_result":{"last_backup_status":4}})";

class TrayWidgets : public tray_test::TrayTest {
 protected:
  TrayWidgets() {
    menu_.setClock([this] { return now_; });
  }
  void show(int status, const char* content) {
    menu_.updateServiceStatus(static_cast<ServiceStatus>(status), parse(content));
  }

  qint64 now_ = tray_test::kMoment;
  TrayMenu menu_;
};

TEST_F(TrayWidgets, StatusPageResultErrorPageAndRepeatedAnswers) {
  TrayStatusWidget* page = menu_.statusPage();
  QSignalSpy spy(page, &TrayStatusWidget::sigTrayStatusChanged);
  auto* event = child<QLabel>(page, "statusLatestEvent");
  auto* age = child<QLabel>(page, "statusEventAge");
  menu_.appendLogEntries({entry(7, tray_test::kMoment - 60)});
  const Json::Value done = parse(
      R"({"connected":true,"last_backup_result":{"last_backup_status":2,"backed_up":true,"last_backup_time":0}})");
  page->updateStatus(done);
  EXPECT_EQ(relayed(spy), TraySuccess);
  EXPECT_EQ(accessibleName(child(page, "statusResult")), QStringLiteral("Successful"));
  EXPECT_EQ(child<VellLabel>(page, "lastBackupValue")->fullText(), QStringLiteral("Not backed up yet"));
  EXPECT_TRUE(age->text().contains(QStringLiteral("0 day ago"))) << age->text().toStdString();
  EXPECT_TRUE(event->text().contains(QStringLiteral("Backup task started."))) << event->text().toStdString();
  // The same answer later: the state is told again, the age follows the clock.
  now_ += 7200;
  page->updateStatus(done);
  EXPECT_EQ(relayed(spy), TraySuccess);
  EXPECT_TRUE(age->text().contains(QStringLiteral("2 hours ago"))) << age->text().toStdString();

  // Not connected (told twice): code 5's message across the widened label;
  // a new event meanwhile does not replace it.
  for (int twice = 0; twice < 2; ++twice) page->updateStatus(parse(R"({"connected":false})"));
  EXPECT_EQ(relayed(spy), TrayError);
  EXPECT_EQ(event->width(), DPIinfo::scaled(296));
  EXPECT_TRUE(age->isHidden());
  menu_.appendLogEntries({entry(8, now_)});
  EXPECT_EQ(event->toolTip(), service_error_text::message(5));

  // Back to connected: the narrow line with the newest entry at once.
  page->updateStatus(parse(kFailed));
  EXPECT_EQ(relayed(spy), TrayError);
  EXPECT_EQ(event->width(), DPIinfo::scaled(177));
  EXPECT_TRUE(age->text().contains(QStringLiteral("Just now")));
  const QString plain = event_text::render(entry(8), false, 449);
  EXPECT_EQ(event->toolTip(), plain);
  EXPECT_EQ(accessibleName(event), plain);
}

TEST_F(TrayWidgets, ProgressPageKeepsItsEstimateWhileStalled) {
  TrayProgressWidget* page = menu_.progressPage();
  const auto running = static_cast<ServiceStatus>(0x3003);
  page->updateStatus(running, parse(kRunning));
  EXPECT_EQ(child<QLabel>(page, "progressFinish")->text(), QStringLiteral("Est. finish: 02/01 00:01"));
  const auto stalled = parse(R"({"transfer":{"transfer":400,"total":1600,"speed":0}})");
  page->updateStatus(running, stalled);
  page->updateStatus(running, stalled);
  EXPECT_EQ(page->remainingEstimate(), 118);
  agent_test::LogCapture log;
  // Kept over a stay on the status page and an answer without "transfer".
  show(0x2000, R"({"connected":true})");
  // (The page's log line for support names only the labels shown.)
  EXPECT_NE(log.text().find("tray pop-up: status page: Ready | -- | --"), std::string::npos) << log.text();
  page->updateStatus(static_cast<ServiceStatus>(0x3001), parse("{}"));
  EXPECT_EQ(page->remainingEstimate(), 118);
  EXPECT_EQ(accessibleName(child(page, "progressPhase")), QStringLiteral("Preparing for backup..."));
  EXPECT_EQ(child<QLabel>(page, "progressPercent")->text(), QStringLiteral("25%"));
  EXPECT_EQ(child<QProgressBar>(page, "progressBar")->value(), 2500);
}

TEST_F(TrayWidgets, SettingsOpenOnTheBandwidthAnswer) {
  auto& bus = GlobalConnecter::instance();
  QSignalSpy asked(&bus, &GlobalConnecter::sigQueryService);
  menu_.slotShowSettingsWindow();
  ASSERT_EQ(asked.count(), 1);
  EXPECT_EQ(asked.at(0).at(0).value<const QObject*>(), &menu_);
  EXPECT_EQ(asked.at(0).at(1).value<Json::Value>(), parse(R"({"action":"get_bandwidth_control"})"));

  SettingsWidget* settings = menu_.settingsWidget();
  emit bus.sigQueryServiceDone(&menu_, parse(R"({"action":"get_status","client_config":{}})"));
  EXPECT_FALSE(settings->isVisible()) << "another action opened the settings";
  // An answer for another sender is still handled; a client config without
  // bandwidth_type loads the defaults.
  QObject stranger;
  emit bus.sigQueryServiceDone(&stranger, parse(R"({"action":"get_bandwidth_control",
      "client_config":{"bandwidth_rate":80,"bandwidth_limit_range":false},
      "server_config":{"bandwidth_type":1,"bandwidth_rate":50,"bandwidth_limit_range":true,
                       "bandwidth_start_time":"09:00","bandwidth_end_time":"17:00"}})"));
  EXPECT_TRUE(settings->isVisible());
  EXPECT_EQ(child<QLineEdit>(settings, "SettingsRateEdit")->text(), QStringLiteral("20"));
  EXPECT_TRUE(child<QLabel>(settings, "SettingsServerNote")->text().contains(QStringLiteral("50")));
  settings->hide();
}

TEST_F(TrayWidgets, ActivityDialogRowsEscapeAndCopy) {
  menu_.appendLogEntries(entries(1, 100));
  menu_.slotSeeAllClicked();
  LogWidget* log = menu_.logWidget();
  EXPECT_TRUE(log->isVisible());
  ASSERT_EQ(log->rowCount(), 100);
  EXPECT_EQ(log->rowId(0), 100u);
  EXPECT_EQ(log->rowId(99), 1u);
  // Five newer: on top, the five oldest gone.
  menu_.appendLogEntries(entries(101, 105));
  menu_.slotSeeAllClicked();
  ASSERT_EQ(log->rowCount(), 100);
  EXPECT_EQ(log->rowId(0), 105u);
  EXPECT_EQ(log->rowId(99), 6u);
  // A lower id arriving after a higher one never shows.
  log->fillEntries({entry(50), entry(106), entry(104)});
  EXPECT_EQ(log->rowId(0), 106u);
  EXPECT_EQ(log->rowId(1), 105u);
  QTest::keyClick(log, Qt::Key_Escape);
  EXPECT_FALSE(log->isVisible());
  EXPECT_EQ(log->rowCount(), 100);

  // A long row is elided to three lines; a copy gives its time and its whole
  // message as plain text (a value's "<b>" as the characters it is).
  const std::string body =
      R"({"volume_name":"<b>a</b> & )" + std::string(200, 'x') + R"(","error_code":"5"})";
  log->fillEntries({entry(200, tray_test::kMoment, 7039, body)});
  auto* table = child<QTableWidget>(log, "logTable");
  auto* label = qobject_cast<QLabel*>(table->cellWidget(0, 1));
  ASSERT_NE(label, nullptr);
  EXPECT_LE(label->heightForWidth(label->width()), 60);
  EXPECT_TRUE(label->text().contains(QChar(0x2026))) << label->text().toStdString();
  EXPECT_EQ(table->item(0, 1)->toolTip(), event_text::render(7039, parse(body), false, 449));
  QGuiApplication::clipboard()->clear();
  table->selectRow(0);
  QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "2024/01/31 23:59:05\t" + table->item(0, 1)->toolTip());
  EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(TrayWidgets, QuotaWidgetUserButtonAndMenuEntries) {
  QuotaInfoWidget* quota = menu_.quotaInfoWidget();
  auto* button = child<QToolButton>(&menu_, "trayUserButton");
  quota->setAccount(QString());
  EXPECT_EQ(button->text(), QStringLiteral("U"));
  quota->setAccount(QStringLiteral("émilie@example.com"));
  EXPECT_EQ(button->text(), QStringLiteral("É"));
  EXPECT_EQ(accessibleName(button), QStringLiteral("émilie@example.com"));
  auto* usage = child<QLabel>(quota, "quotaUsageLabel");
  const QString before = usage->text();
  quota->setUsage(parse(R"({"used_bytes":95})"));
  EXPECT_EQ(usage->text(), before);
  quota->setUsage(parse(R"({"used_bytes":95,"quota":100})"));
  EXPECT_TRUE(usage->text().contains(QStringLiteral("#E64040"))) << usage->text().toStdString();
  EXPECT_EQ(child<QProgressBar>(quota, "quotaUsageBar")->value(), 95);
  // Each opening of the drop-down asks for the quota.
  QSignalSpy asked(&GlobalConnecter::instance(), &GlobalConnecter::sigUpdateQuota);
  for (int i = 0; i < 2; ++i) {
    menu_.userMenu()->popup(QPoint(0, 0));
    menu_.userMenu()->hide();
  }
  EXPECT_EQ(asked.count(), 2);

  // Which entries show is menu_visibility's table; here each reaches its entry.
  auto* console = child<QAction>(&menu_, "actionWebConsole");
  auto* portal = child<QAction>(&menu_, "actionRecoveryPortal");
  menu_.setMenuEntriesVisible(true, true, 3);
  EXPECT_FALSE(console->isVisible() || portal->isVisible() || quota->usageAreaVisible());
  menu_.setMenuEntriesVisible(true, false, 0);
  EXPECT_TRUE(console->isVisible() && portal->isVisible() && quota->usageAreaVisible());
  QSignalSpy about(&GlobalConnecter::instance(), &GlobalConnecter::sigShowAboutWindow);
  child<QAction>(&menu_, "actionAbout")->trigger();
  EXPECT_EQ(about.count(), 1);
}

}  // namespace
