// The first-run wizard and the two small dialogs in each of their states:
// the welcome page, the sign-in sheet, the connecting frame, error sheets,
// the summary for one and several sites, the backup-now question, the
// update dialog and the about window.

#include <json/value.h>

#include <QApplication>
#include <QComboBox>
#include <QTimer>

#include <functional>

#include "ui-agent/core/status-store.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/dialogs/about-window.h"
#include "ui-agent/dialogs/update-status-dialog.h"
#include "ui-agent/gallery/screen-gallery.h"
#include "ui-agent/wizard/nimbra-loading-frame.h"
#include "ui-agent/wizard/wizard.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/vell-message-sheet.h"

namespace {

using gallery::Cell;
using string_display::text;

const QColor kBackdrop("#E9EDF2");

// The wizard as it is on screen now.
QImage shot(Wizard& w) {
  // Layout requests climb one parent per pass.
  for (int i = 0; i < 6; ++i) QApplication::processEvents();
  return gallery::grabShown(&w);
}

// Runs `whileUp` from inside the next nested loop, which it must end.
void fromInside(std::function<void()> whileUp) {
  QTimer::singleShot(0, qApp, std::move(whileUp));
}

Json::Value parse(const char* text) {
  Json::Value v;
  jsonx::parse(text, v);
  return v;
}

// Five sites as a real account offers them: three with built-in names, two
// named by the service; every scope and schedule kind.
const char* kSites = R"({"data":[
 {"billing":{"region":{"code":"US","i18n":"North America"},"city":{"i18n":"Seattle"},"subscription_id":"sub-us"},
  "backup_policy":{"account_type":"vell","is_default":true,"backup_type":1,"source_type":1,
   "enable_backup_external":true,"schedule_setting_type":4},
  "web_console_link":"https://console.nimbrabackup.com","web_console_url":"https://us.console.nimbrabackup.com"},
 {"billing":{"region":{"code":"EU","i18n":"Europe"},"city":{"i18n":"Frankfurt"},"subscription_id":"sub-eu"},
  "backup_policy":{"account_type":"vell","is_default":false,"policy_name":"Finance laptops","source_type":3,
   "custom_volume":["C:","D:","E:","F:"],"schedule_setting_type":2,
   "sched_content":{"time":{"run_hour":21,"run_min":30,"day_choose_by":2,"run_weekday":[1,3,5]}}},
  "web_console_link":"https://console.nimbrabackup.com","web_console_url":"https://eu.console.nimbrabackup.com"},
 {"billing":{"region":{"code":"TW","i18n":"APAC"},"city":{"i18n":"Taiwan"},"subscription_id":"sub-tw"},
  "backup_policy":{"account_type":"vell","is_default":true,"backup_type":2,"source_type":2,
   "schedule_setting_type":3,"sched_content":{"event":{"types":[1,2,3]}}},
  "web_console_link":"https://console.nimbrabackup.com","web_console_url":"https://tw.console.nimbrabackup.com"},
 {"billing":{"region":{"code":"JP","i18n":"Asia Pacific"},"city":{"i18n":"Tokyo"},"subscription_id":"sub-jp"},
  "backup_policy":{"account_type":"vell","is_default":false,"policy_name":"Engineering workstations",
   "source_type":1,"schedule_setting_type":2,
   "sched_content":{"time":{"run_hour":2,"run_min":0,"day_choose_by":1}}},
  "web_console_link":"https://console.nimbrabackup.com","web_console_url":"https://jp.console.nimbrabackup.com"},
 {"billing":{"region":{"code":"BR","i18n":"South America"},"city":{"i18n":"Sao Paulo"},"subscription_id":"sub-br"},
  "backup_policy":{"account_type":"vell","is_default":false,"policy_name":"Manual only","source_type":3,
   "custom_volume":["C:","D:"],"schedule_setting_type":1},
  "web_console_link":"https://console.nimbrabackup.com","web_console_url":"https://br.console.nimbrabackup.com"}
]})";

// The wizard while `open` holds a sheet up over it (the sheet is then quit).
QImage sheetOver(Wizard& w, const std::function<void()>& open) {
  QImage img;
  fromInside([&] {
    img = shot(w);
    if (auto sheets = VellMessageSheet::runningSheets(); !sheets.isEmpty()) sheets.last()->quit();
  });
  open();
  return img;
}

QImage errorOver(Wizard& w, int code, const Json::Value& response) {
  return sheetOver(w, [&] { w.showError(code, response); });
}

void renderWizard() {
  Wizard w;
  w.show();
  w.showWelcomePage();

  // Welcome and sign-in.
  {
    std::vector<std::vector<Cell>> rows;
    rows.push_back({{"welcome page (\"Let's Start\" has the focus)", shot(w)}});
    QImage signIn;
    fromInside([&] {
      signIn = shot(w);
      w.closeSignInSheet();
    });
    w.showSignInSheet();
    rows.push_back({{"sign-in sheet over the masked wizard", signIn}});
    gallery::save(gallery::sheet(QStringLiteral("Wizard: welcome and sign-in"), rows, kBackdrop),
                  QStringLiteral("wizard-welcome.png"));
  }

  // Waiting for the service, and what a failure looks like.
  {
    std::vector<std::vector<Cell>> rows;
    QImage connecting;
    fromInside([&] {
      connecting = shot(w);
      w.hideConnecting();
    });
    w.showConnecting();
    rows.push_back({{"connecting frame", connecting}});
    rows.push_back({{"error sheet, code 10 (a long message)", errorOver(w, 10, Json::Value())}});
    rows.push_back(
        {{"error sheet, code 17 (console link)",
          errorOver(w, 17,
                    parse(R"({"error":{"code":17,"base_url":"https://console.nimbrabackup.com"}})"))}});
    gallery::save(gallery::sheet(QStringLiteral("Wizard: connecting and errors"), rows, kBackdrop),
                  QStringLiteral("wizard-connecting-errors.png"));
  }

  // The summary.
  {
    const Json::Value all = parse(kSites);
    Json::Value one = all;
    one["data"].resize(1);
    std::vector<std::vector<Cell>> rows;
    StatusStore::instance().setStatus(StatusSiteInfo, one);
    w.showSummaryPage();
    rows.push_back({{"one site: a plain label, no chooser", shot(w)}});
    StatusStore::instance().setStatus(StatusSiteInfo, all);
    w.showSummaryPage();
    rows.push_back({{"five sites: the first preselected", shot(w)}});
    gallery::save(gallery::sheet(QStringLiteral("Wizard: summary"), rows, kBackdrop),
                  QStringLiteral("wizard-summary.png"));

    rows.clear();
    auto* chooser = w.findChild<QComboBox*>(QStringLiteral("SummaryComboBox"));
    chooser->setCurrentIndex(3);
    rows.push_back({{"a region without a built-in name (Asia Pacific-Tokyo), daily at 02:00", shot(w)}});
    chooser->setCurrentIndex(1);
    rows.push_back({{"four specified volumes (note row), weekly schedule, named policy", shot(w)}});
    chooser->setCurrentIndex(2);
    rows.push_back({{"by-event schedule, system volume, default server policy", shot(w)}});
    gallery::save(gallery::sheet(QStringLiteral("Wizard: summary for other sites"), rows, kBackdrop),
                  QStringLiteral("wizard-summary-sites.png"));

    rows.clear();
    chooser->setCurrentIndex(0);
    rows.push_back(
        {{"backup-now question after the device was created", sheetOver(w, [&] { w.askBackupNow(); })}});
    gallery::save(gallery::sheet(QStringLiteral("Wizard: back up now?"), rows, kBackdrop),
                  QStringLiteral("wizard-backup-now.png"));
  }
  w.hide();
}

void renderDialogs() {
  std::vector<std::vector<Cell>> rows;
  {
    UpdateStatusDialog d;
    d.setMessage(text(Str::desc_updating_service));
    d.setButtonVisible(false);
    rows.push_back({{"update dialog: upgrading (no button)", gallery::grabWidget(&d)}});
    d.setMessage(text(Str::desc_update_service_fail));
    d.setButtonVisible(true);
    rows.back().push_back({"update dialog: upgrade failed (OK)", gallery::grabWidget(&d)});
  }
  {
    AboutWindowContainer about;
    rows.push_back({{"about window", gallery::grabWidget(&about)}});
  }
  gallery::save(gallery::sheet(QStringLiteral("Update dialog and about window"), rows, kBackdrop),
                QStringLiteral("dialogs-update-about.png"));
}

void renderArea() {
  renderWizard();
  renderDialogs();
}

}  // namespace

NIMBRA_GALLERY_AREA("wizard", renderArea)
