// The tray pop-up's widgets through their public operations: page choice,
// kept entries, the bandwidth hand-over to the settings, the activity
// dialog's rows, the quota widget, accessibility and keys.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>
#include <QTextDocument>
#include <QToolButton>
#include <QTranslator>
#include <memory>

#include "core/global-connecter.h"
#include "core/language-font.h"
#include "core/service-error-text.h"
#include "dialogs/settings-widget.h"
#include "dpi-info.h"
#include "string-display.h"
#include "support/temp-dir.h"
#include "tray-fixture.h"
#include "tray/log-widget.h"
#include "tray/quota-info-widget.h"
#include "tray/tray-menu.h"
#include "tray/tray-progress-widget.h"
#include "tray/tray-status-widget.h"
#include "vell-label.h"

using agent_test::accessibleName;
using agent_test::child;
using tray_test::entry;

namespace {

QList<LogEntry> entries(quint64 first, quint64 last, qint64 time = tray_test::kMoment) {
  QList<LogEntry> list;
  for (quint64 id = first; id <= last; ++id) list << entry(id, static_cast<quint64>(time));
  return list;
}

class TrayWidgets : public tray_test::TrayTest {
 protected:
  void SetUp() override {
    menu_ = std::make_unique<TrayMenu>();
    menu_->setClock([this] { return now_; });
  }
  QWidget* currentPage() { return child<QStackedWidget>(menu_.get(), "trayPages")->currentWidget(); }

  qint64 now_ = tray_test::kMoment;
  std::unique_ptr<TrayMenu> menu_;
};

// ---- pages -------------------------------------------------------------------

TEST_F(TrayWidgets, PageChoiceAndRelayedTrayStatus) {
  QSignalSpy spy(menu_.get(), &TrayMenu::sigTrayStatusChanged);
  menu_->updateServiceStatus(
      static_cast<ServiceStatus>(0x3003),
      agent_test::parse(R"({"connected":true,"transfer":{"transfer":1,"total":2,"speed":1}})"));
  EXPECT_EQ(currentPage(), menu_->progressPage());
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy.takeFirst().at(0).value<TrayStatus>(), TrayRunning);

  // A running category that is not connected: the status page (error page).
  menu_->updateServiceStatus(static_cast<ServiceStatus>(0x3000), agent_test::parse(R"({"connected":false})"));
  EXPECT_EQ(currentPage(), menu_->statusPage());
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy.takeFirst().at(0).value<TrayStatus>(), TrayError);

  // An error category while connected: the status page with the last result.
  menu_->updateServiceStatus(
      static_cast<ServiceStatus>(0xF000),
      agent_test::parse(R"({"connected":true,"last_backup_result":{"last_backup_status":4}})"));
  EXPECT_EQ(currentPage(), menu_->statusPage());
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy.takeFirst().at(0).value<TrayStatus>(), TrayError);
}

TEST_F(TrayWidgets, StatusPageResultAndErrorPage) {
  TrayStatusWidget* page = menu_->statusPage();
  QSignalSpy spy(page, &TrayStatusWidget::sigTrayStatusChanged);
  auto* event = child<QLabel>(page, "statusLatestEvent");
  auto* age = child<QLabel>(page, "statusEventAge");
  menu_->appendLogEntries({entry(7, tray_test::kMoment - 60)});

  page->updateStatus(agent_test::parse(
      R"({"connected":true,"last_backup_result":{"last_backup_status":2,"backed_up":false,"last_backup_time":0}})"));
  EXPECT_EQ(spy.takeLast().at(0).value<TrayStatus>(), TrayIdle);
  EXPECT_EQ(accessibleName(child(page, "statusResult")), QStringLiteral("Ready"));
  // The whole text (the label elides it where the fonts are wider).
  EXPECT_EQ(child<VellLabel>(page, "lastBackupValue")->fullText(), QStringLiteral("Not backed up yet"));
  EXPECT_TRUE(age->text().contains(QStringLiteral("0 day ago"))) << age->text().toStdString();
  EXPECT_TRUE(event->text().contains(QStringLiteral("Backup task started."))) << event->text().toStdString();

  // Not connected, no "error": code 5's message across the widened label.
  page->updateStatus(agent_test::parse(R"({"connected":false})"));
  EXPECT_EQ(spy.takeLast().at(0).value<TrayStatus>(), TrayError);
  EXPECT_EQ(event->width(), DPIinfo::scaled(296));
  EXPECT_TRUE(age->isHidden());
  EXPECT_EQ(event->toolTip(), service_error::message(5));
  // A new event meanwhile does not replace the error message.
  menu_->appendLogEntries({entry(8)});
  EXPECT_EQ(event->toolTip(), service_error::message(5));

  // Back to connected: the narrow event line with the newest entry again.
  page->updateStatus(
      agent_test::parse(R"({"connected":true,"last_backup_result":{"last_backup_status":4}})"));
  EXPECT_EQ(spy.takeLast().at(0).value<TrayStatus>(), TrayError);
  EXPECT_EQ(event->width(), DPIinfo::scaled(177));
  EXPECT_FALSE(age->isHidden());
  EXPECT_TRUE(age->text().contains(QStringLiteral("Just now")));
  // Its tool tip and name are the newest entry's plain text again at once.
  const QString plain = string_display::render_event_message(entry(8), false, 449);
  EXPECT_EQ(event->toolTip(), plain);
  EXPECT_EQ(accessibleName(event), plain);
}

TEST_F(TrayWidgets, StatusPageRepeatedAnswerKeepsStateAndMovesTheAgeOn) {
  TrayStatusWidget* page = menu_->statusPage();
  QSignalSpy spy(page, &TrayStatusWidget::sigTrayStatusChanged);
  auto* age = child<QLabel>(page, "statusEventAge");
  menu_->appendLogEntries({entry(7, tray_test::kMoment - 30)});
  const Json::Value done = agent_test::parse(
      R"({"connected":true,"last_backup_result":{"last_backup_status":2,"backed_up":true,"last_backup_time":1700000000}})");
  page->updateStatus(done);
  ASSERT_EQ(spy.takeLast().at(0).value<TrayStatus>(), TraySuccess);
  const QString shownAge = age->text();
  // The same answer a minute later: the state is told again (the icon may
  // have been reset meanwhile) and the age follows the clock.
  now_ = tray_test::kMoment + 7200;
  page->updateStatus(done);
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy.takeLast().at(0).value<TrayStatus>(), TraySuccess);
  EXPECT_NE(age->text(), shownAge);
  EXPECT_EQ(accessibleName(child(page, "statusResult")), QStringLiteral("Successful"));
  // The same error twice stays an error.
  const Json::Value lost = agent_test::parse(R"({"connected":false})");
  page->updateStatus(lost);
  page->updateStatus(lost);
  EXPECT_EQ(spy.takeLast().at(0).value<TrayStatus>(), TrayError);
  EXPECT_TRUE(age->isHidden());
}

TEST_F(TrayWidgets, ProgressPageCountsDownWhileStalled) {
  TrayProgressWidget* page = menu_->progressPage();
  auto* finish = child<QLabel>(page, "progressFinish");
  const auto running = static_cast<ServiceStatus>(0x3003);
  page->updateStatus(running, agent_test::parse(R"({"transfer":{"transfer":400,"total":1600,"speed":10}})"));
  EXPECT_EQ(page->remainingEstimate(), 120);
  EXPECT_EQ(finish->text(), QStringLiteral("Est. finish: 02/01 00:01"));
  page->updateStatus(running, agent_test::parse(R"({"transfer":{"transfer":400,"total":1600,"speed":0}})"));
  page->updateStatus(running, agent_test::parse(R"({"transfer":{"transfer":400,"total":1600,"speed":0}})"));
  EXPECT_EQ(page->remainingEstimate(), 118);
  // The estimate survives a stay on the status page and updates without "transfer".
  menu_->updateServiceStatus(static_cast<ServiceStatus>(0x2000), agent_test::parse(R"({"connected":true})"));
  page->updateStatus(static_cast<ServiceStatus>(0x3001), agent_test::parse(R"({})"));
  EXPECT_EQ(page->remainingEstimate(), 118);
  EXPECT_EQ(accessibleName(child(page, "progressPhase")), QStringLiteral("Preparing for backup..."));
  EXPECT_EQ(child<QLabel>(page, "progressPercent")->text(), QStringLiteral("25%"));
  EXPECT_EQ(child<QProgressBar>(page, "progressBar")->value(), 2500);
}

// Inside the card's border the pages get 360 x 160; nothing on them is
// clipped, and the schedule box stands 16 under the event line.
TEST_F(TrayWidgets, PagesGetTheirRoomAtEveryScale) {
  for (const char* scale : {"1", "2"}) {
    nimbra_test::ScopedEnv env("NIMBRA_UI_SCALE", scale);
    TrayMenu menu;
    menu.setFixedSize(DPIinfo::scaled(400), DPIinfo::scaled(232));
    menu.show();
    QApplication::processEvents();
    auto* pages = child<QStackedWidget>(&menu, "trayPages");
    EXPECT_EQ(pages->size(), QSize(DPIinfo::scaled(360), DPIinfo::scaled(160))) << "scale " << scale;
    for (QWidget* page :
         {static_cast<QWidget*>(menu.statusPage()), static_cast<QWidget*>(menu.progressPage())}) {
      page->resize(pages->size());
      for (QWidget* w : page->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(page->rect().contains(w->geometry())) << scale << " " << w->objectName().toStdString();
    }
    const QWidget* event = child<QWidget>(menu.statusPage(), "statusLatestEvent");
    const QWidget* box = child<QWidget>(menu.statusPage(), "BackupScheduleInfoWidget");
    EXPECT_EQ(box->y() - (event->y() + event->height()), DPIinfo::scaled(16)) << "scale " << scale;
  }
}

// In every language, no one-line text of the pages is cut without an
// ellipsis: what does not fit is elided, with the whole text as tool tip.
class TrayPagesInLanguage : public tray_test::TrayTest, public ::testing::WithParamInterface<const char*> {
 protected:
  static QWidget* currentPage(TrayMenu& menu) {
    return child<QStackedWidget>(&menu, "trayPages")->currentWidget();
  }
};

TEST_P(TrayPagesInLanguage, OneLineTextsFitOrAreElided) {
  const QString language = QString::fromLatin1(GetParam());
  language_font::install_font_substitutions();
  const QFont saved = QApplication::font();
  QApplication::setFont(language_font::application_font(language));
  QTranslator translator;
  if (language != QLatin1String("enu") && string_display::load_translation(translator, language))
    QCoreApplication::installTranslator(&translator);
  {
    TrayMenu menu;
    menu.setFixedSize(DPIinfo::scaled(400), DPIinfo::scaled(232));
    menu.show();
    const std::pair<int, const char*> states[] = {
        {0x2000,
         R"({"connected":true,"last_backup_result":{"last_backup_status":2,"backed_up":false,"last_backup_time":0}})"},
        {0x2000, R"({"connected":true,"last_backup_result":{"last_backup_status":2,"backed_up":true,
                     "last_backup_time":1706745000},"next_backup_time":0})"},
        {0x2000,
         R"({"connected":true,"last_backup_result":{"last_backup_status":4},"next_backup_time":1706800000})"},
        {0x3001, R"({"connected":true})"},
        {0x3003, R"({"connected":true,"transfer":{"transfer":400,"total":1600,"speed":0}})"}};
    for (const auto& [status, content] : states) {
      menu.updateServiceStatus(static_cast<ServiceStatus>(status), agent_test::parse(content));
      QApplication::processEvents();
      for (QLabel* label : currentPage(menu)->findChildren<QLabel*>()) {
        if (label->wordWrap() || label->text().isEmpty() || Qt::mightBeRichText(label->text())) continue;
        const int room = label->contentsRect().width();
        const bool fits = label->fontMetrics().horizontalAdvance(label->text()) <= room;
        EXPECT_TRUE(fits) << GetParam() << " " << label->objectName().toStdString() << ": "
                          << label->text().toStdString() << " in " << room;
        if (label->text().endsWith(QChar(0x2026))) {
          EXPECT_FALSE(label->toolTip().isEmpty()) << label->objectName().toStdString();
        }
      }
    }
  }
  QCoreApplication::removeTranslator(&translator);
  QApplication::setFont(saved);
}

INSTANTIATE_TEST_SUITE_P(Languages, TrayPagesInLanguage,
                         ::testing::Values("enu", "ger", "fre", "spn", "tha", "chs", "cht", "jpn", "krn"));

// Shown in the pop-up, the page titles are whole: each has the room of its
// column, whatever width it had when its text was set.
TEST_F(TrayWidgets, PageTitlesAreWholeOnceShown) {
  menu_->updateServiceStatus(
      static_cast<ServiceStatus>(0x3003),
      agent_test::parse(R"({"connected":true,"transfer":{"transfer":400,"total":1600,"speed":10}})"));
  menu_->show();
  QApplication::processEvents();
  auto* phase = child<VellLabel>(menu_->progressPage(), "progressPhase");
  ASSERT_TRUE(phase->isVisible());
  EXPECT_FALSE(phase->fullText().isEmpty());
  EXPECT_EQ(phase->text(), phase->fullText());
  EXPECT_EQ(phase->toolTip(), phase->fullText());
  EXPECT_GE(phase->width(), phase->fontMetrics().horizontalAdvance(phase->fullText()));
  menu_->updateServiceStatus(static_cast<ServiceStatus>(0x2000), agent_test::parse(R"({"connected":true})"));
  QApplication::processEvents();
  auto* result = child<VellLabel>(menu_->statusPage(), "statusResult");
  ASSERT_TRUE(result->isVisible());
  EXPECT_FALSE(result->fullText().isEmpty());
  EXPECT_EQ(result->text(), result->fullText());
  menu_->hide();
}

// ---- kept entries --------------------------------------------------------------

// Which entries are kept is tray_menu_model::keep_entries' table; here the
// menu's wiring: kept, the newest shown on both pages, cleared.
TEST_F(TrayWidgets, KeptEntriesAndLatestEvent) {
  auto* event = child<QLabel>(menu_->statusPage(), "statusLatestEvent");
  menu_->appendLogEntries(entries(1, 150));
  ASSERT_EQ(menu_->logEntries().size(), 100);
  EXPECT_EQ(menu_->logEntries().front().id, 51u);

  LogEntry last = entry(500, tray_test::kMoment, 7002, R"({"volume_name":"Disk-Z"})");
  menu_->appendLogEntries({last});
  // The whole message (the label shows as much as fits its lines in the
  // font at hand).
  const QString shown = event->text();
  EXPECT_TRUE(event->accessibleName().contains(QStringLiteral("Disk-Z")))
      << event->accessibleName().toStdString();
  EXPECT_TRUE(
      child<QLabel>(menu_->progressPage(), "progressLatestEvent")->accessibleName().contains("Disk-Z"));

  menu_->appendLogEntries({});
  EXPECT_EQ(event->text(), shown);
  menu_->clearLogEntries();
  EXPECT_TRUE(menu_->logEntries().isEmpty());
}

// ---- bandwidth answer -----------------------------------------------------------

TEST_F(TrayWidgets, SettingsOpenOnTheBandwidthAnswer) {
  auto& bus = GlobalConnecter::instance();
  QSignalSpy asked(&bus, &GlobalConnecter::sigQueryService);
  menu_->slotShowSettingsWindow();
  ASSERT_EQ(asked.count(), 1);
  EXPECT_EQ(asked.at(0).at(0).value<const QObject*>(), menu_.get());
  const auto request = asked.at(0).at(1).value<Json::Value>();
  EXPECT_EQ(request.getMemberNames(), std::vector<std::string>{"action"});
  EXPECT_EQ(request["action"].asString(), "get_bandwidth_control");

  SettingsWidget* settings = menu_->settingsWidget();
  // Another action, even for this sender, is ignored.
  emit bus.sigQueryServiceDone(menu_.get(),
                               agent_test::parse(R"({"action":"get_status","client_config":{}})"));
  EXPECT_FALSE(settings->isVisible());

  // An answer for another sender is still handled; a client config without
  // bandwidth_type loads the defaults.
  QObject stranger;
  emit bus.sigQueryServiceDone(&stranger, agent_test::parse(R"({"action":"get_bandwidth_control",
      "client_config":{"bandwidth_rate":80,"bandwidth_limit_range":false},
      "server_config":{"bandwidth_type":1,"bandwidth_rate":50,"bandwidth_limit_range":true,
                       "bandwidth_start_time":"09:00","bandwidth_end_time":"17:00"}})"));
  EXPECT_TRUE(settings->isVisible());
  EXPECT_EQ(child<QLineEdit>(settings, "SettingsRateEdit")->text(), QStringLiteral("20"));
  auto* note = child<QLabel>(settings, "SettingsServerNote");
  const QString noteText = note->text();
  EXPECT_TRUE(noteText.contains(QStringLiteral("50"))) << noteText.toStdString();

  // An invalid server config leaves the note as it was.
  settings->hide();
  emit bus.sigQueryServiceDone(nullptr, agent_test::parse(R"({"action":"get_bandwidth_control",
      "client_config":{"bandwidth_type":1,"bandwidth_rate":80,"bandwidth_limit_range":true,
                       "bandwidth_start_time":"08:00","bandwidth_end_time":"18:00"},
      "server_config":{"bandwidth_type":1,"bandwidth_limit_range":true,"bandwidth_start_time":"7:00"}})"));
  EXPECT_TRUE(settings->isVisible());
  EXPECT_EQ(note->text(), noteText);
  EXPECT_EQ(child<QLineEdit>(settings, "SettingsRateEdit")->text(), QStringLiteral("80"));
  settings->hide();
}

// ---- activity dialog -------------------------------------------------------------

// The titles stand over their columns, at every scale, in one colour.
TEST_F(TrayWidgets, ActivityTitlesStandOverTheirColumns) {
  for (const char* scale : {"1", "2"}) {
    nimbra_test::ScopedEnv env("NIMBRA_UI_SCALE", scale);
    LogWidget log;
    log.fillEntries(entries(1, 3));
    log.show();
    QApplication::processEvents();
    auto* header = child<QTableWidget>(&log, "logHeaderTable");
    auto* table = child<QTableWidget>(&log, "logTable");
    for (int column : {0, 1}) {
      const QWidget* title = header->cellWidget(0, column);
      const QWidget* cell = table->cellWidget(0, column);
      EXPECT_EQ(title->mapTo(&log, QPoint()).x(), cell->mapTo(&log, QPoint()).x())
          << scale << " column " << column;
    }
    EXPECT_EQ(header->cellWidget(0, 0)->palette().color(QPalette::WindowText),
              header->cellWidget(0, 1)->palette().color(QPalette::WindowText));
  }
}

TEST_F(TrayWidgets, ActivityDialogRows) {
  menu_->appendLogEntries(entries(1, 100, tray_test::kMoment));
  menu_->slotSeeAllClicked();
  LogWidget* log = menu_->logWidget();
  EXPECT_TRUE(log->isVisible());
  ASSERT_EQ(log->rowCount(), 100);
  EXPECT_EQ(log->rowId(0), 100u);
  EXPECT_EQ(log->rowId(99), 1u);
  auto* table = child<QTableWidget>(log, "logTable");
  auto* time = qobject_cast<QLabel*>(table->cellWidget(0, 0));
  ASSERT_NE(time, nullptr);
  EXPECT_EQ(time->text(), QStringLiteral("2024/01/31 23:59:05"));

  // Opening again without news changes nothing.
  menu_->slotSeeAllClicked();
  EXPECT_EQ(log->rowCount(), 100);
  EXPECT_EQ(log->rowId(0), 100u);

  // Five newer: on top, the five oldest gone.
  menu_->appendLogEntries(entries(101, 105));
  menu_->slotSeeAllClicked();
  ASSERT_EQ(log->rowCount(), 100);
  EXPECT_EQ(log->rowId(0), 105u);
  EXPECT_EQ(log->rowId(99), 6u);

  // A lower id arriving after a higher one never shows.
  log->fillEntries({entry(50), entry(106), entry(104)});
  EXPECT_EQ(log->rowId(0), 106u);
  EXPECT_EQ(log->rowId(1), 105u);

  // Escape closes (hides) the dialog; its rows stay.
  QTest::keyClick(log, Qt::Key_Escape);
  EXPECT_FALSE(log->isVisible());
  EXPECT_EQ(log->rowCount(), 100);
}

// A long row is elided on screen; a copy of it gives its time and its whole
// message as plain text (a value's "<b>" as the characters it is).
TEST_F(TrayWidgets, ActivityRowsFitThreeLinesAndCopyWhole) {
  LogWidget log;
  const std::string longName = "<b>a</b> & " + std::string(200, 'x');
  log.fillEntries(
      {entry(1, tray_test::kMoment, 7039, R"({"volume_name":")" + longName + R"(","error_code":"5"})")});
  auto* table = child<QTableWidget>(&log, "logTable");
  auto* label = qobject_cast<QLabel*>(table->cellWidget(0, 1));
  ASSERT_NE(label, nullptr);
  EXPECT_LE(label->heightForWidth(label->width()), 60);
  EXPECT_TRUE(label->text().contains(QChar(0x2026))) << label->text().toStdString();
  EXPECT_EQ(
      table->item(0, 1)->toolTip(),
      string_display::render_event_message(
          7039, agent_test::parse(R"({"volume_name":")" + longName + R"(","error_code":"5"})"), false, 449));

  QGuiApplication::clipboard()->clear();
  table->selectRow(0);
  QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "2024/01/31 23:59:05\t" + table->item(0, 1)->toolTip());
  EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("<b>a</b> & xxx"));
  EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

// ---- quota and menu entries --------------------------------------------------------

TEST_F(TrayWidgets, QuotaWidgetAndUserButton) {
  QuotaInfoWidget* quota = menu_->quotaInfoWidget();
  auto* button = child<QToolButton>(menu_.get(), "trayUserButton");
  auto* usage = child<QLabel>(quota, "quotaUsageLabel");
  quota->setAccount(QString());
  EXPECT_EQ(button->text(), QStringLiteral("U"));
  quota->setAccount(QStringLiteral("émilie@example.com"));
  EXPECT_EQ(button->text(), QStringLiteral("É"));
  EXPECT_EQ(accessibleName(button), QStringLiteral("émilie@example.com"));

  const QString before = usage->text();
  quota->setUsage(agent_test::parse(R"({"used_bytes":95})"));
  EXPECT_EQ(usage->text(), before);
  quota->setUsage(agent_test::parse(R"({"used_bytes":95,"quota":100})"));
  EXPECT_TRUE(usage->text().contains(QStringLiteral("#E64040")));
  EXPECT_EQ(child<QProgressBar>(quota, "quotaUsageBar")->value(), 95) << usage->text().toStdString();

  QSignalSpy asked(&GlobalConnecter::instance(), &GlobalConnecter::sigUpdateQuota);
  menu_->userMenu()->popup(QPoint(0, 0));  // the drop-down opens
  EXPECT_EQ(asked.count(), 1);
  menu_->userMenu()->hide();
  menu_->userMenu()->popup(QPoint(0, 0));
  EXPECT_EQ(asked.count(), 2);
  menu_->userMenu()->hide();
}

TEST_F(TrayWidgets, MenuEntriesByAccount) {
  auto* console = child<QAction>(menu_.get(), "actionWebConsole");
  auto* portal = child<QAction>(menu_.get(), "actionRecoveryPortal");
  menu_->setMenuEntriesVisible(true, true, 3);
  EXPECT_FALSE(console->isVisible());
  EXPECT_FALSE(portal->isVisible());
  EXPECT_FALSE(menu_->quotaInfoWidget()->usageAreaVisible());
  menu_->setMenuEntriesVisible(true, false, 0);
  EXPECT_TRUE(console->isVisible());
  EXPECT_TRUE(portal->isVisible());
  EXPECT_TRUE(menu_->quotaInfoWidget()->usageAreaVisible());
  menu_->setMenuEntriesVisible(false, false, 2);
  EXPECT_FALSE(console->isVisible());
  EXPECT_TRUE(portal->isVisible());

  QSignalSpy about(&GlobalConnecter::instance(), &GlobalConnecter::sigShowAboutWindow);
  child<QAction>(menu_.get(), "actionAbout")->trigger();
  EXPECT_EQ(about.count(), 1);
}

// ---- accessibility and keys -----------------------------------------------------------

TEST_F(TrayWidgets, AccessibleNamesAndTabOrder) {
  auto* list = child<QToolButton>(menu_.get(), "trayListButton");
  auto* user = child<QToolButton>(menu_.get(), "trayUserButton");
  EXPECT_EQ(accessibleName(list), QStringLiteral("Activity"));
  EXPECT_FALSE(accessibleName(user).isEmpty());
  auto* bar = child<QProgressBar>(menu_->progressPage(), "progressBar");
  menu_->updateServiceStatus(
      static_cast<ServiceStatus>(0x3003),
      agent_test::parse(R"({"connected":true,"transfer":{"transfer":1,"total":8,"speed":1}})"));
  QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(bar);
  ASSERT_NE(iface, nullptr);
  EXPECT_EQ(iface->text(QAccessible::Name), QStringLiteral("Backing up..."));
  ASSERT_NE(iface->valueInterface(), nullptr);
  EXPECT_EQ(iface->valueInterface()->currentValue().toInt(), 1250);
  EXPECT_EQ(list->nextInFocusChain(), user);

  LogWidget* log = menu_->logWidget();
  EXPECT_EQ(accessibleName(log), QStringLiteral("Activity"));
  auto* close = child<QPushButton>(log, "logCloseButton");
  EXPECT_EQ(accessibleName(close), QStringLiteral("Close"));
}

}  // namespace
