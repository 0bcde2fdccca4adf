// The tray pop-up and what it opens, in each state: the status page for
// every last result, Ready and the error page; the progress page preparing,
// running, stalled and without transfer numbers; the user drop-down with
// and without the quota area; the activity dialog with 100 entries; the
// icon's right-click menu and tool tip.

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPainter>

#include <algorithm>

#include <json/value.h>

#include "ui-agent/core/global-connecter.h"
#include "ui-agent/gallery/screen-gallery.h"
#include "ui-agent/tray/log-widget.h"
#include "ui-agent/tray/quota-info-widget.h"
#include "ui-agent/tray/system-tray.h"
#include "ui-agent/tray/tray-menu.h"
#include "ui-agent/tray/tray-progress-widget.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/style-manager.h"

namespace {

// 2026/11/23 09:41:10 local time of the rendering machine does not matter:
// every time shown is relative to this moment.
constexpr qint64 kNow = 1795426870;

Json::Value json(const char* text) {
  Json::Value v;
  jsonx::parse(text, v);
  return v;
}

LogEntry event(quint64 id, qint64 age, quint32 type, const char* body = "{}") {
  LogEntry e;
  e.id = id;
  e.time = static_cast<quint64>(kNow - age);
  e.type = type;
  e.body = json(body);
  return e;
}

std::unique_ptr<TrayMenu> popup() {
  auto menu = std::make_unique<TrayMenu>();
  menu->setFixedSize(TrayMenu::scaledSize());
  menu->setClock([] { return kNow; });
  menu->quotaInfoWidget()->setAccount(QStringLiteral("morgan.ellis@example.com"));
  return menu;
}

QImage grabPopup(TrayMenu& menu) {
  return gallery::grabWidget(&menu);
}

void renderStatus() {
  struct State {
    const char* caption;
    const char* content;
    LogEntry latest;
  };
  const std::vector<State> states{
      {"Successful (2)",
       R"js({"connected":true,"last_backup_result":{"last_backup_status":2,"last_backup_time":1795420800},
           "next_backup_time":1795507200})js",
       event(1, 300, 1102)},
      {"Partially Successful (3)",
       R"js({"connected":true,"last_backup_result":{"last_backup_status":3,"last_backup_time":1795420800},
           "schedule_type":4})js",
       event(2, 7300, 1108)},
      {"Failed (4)",
       R"js({"connected":true,"last_backup_result":{"last_backup_status":4,"last_backup_time":1795420800},
           "schedule_type":3})js",
       event(3, 90, 7004, R"js({"volume_name":"Local Disk (C:)","error_code":"0x80042306"})js")},
      {"Canceled (5)",
       R"js({"connected":true,"last_backup_result":{"last_backup_status":5,"last_backup_time":1795420800},
           "next_backup_time":0})js",
       event(4, 200000, 1103)},
      {"Ready (other code)",
       R"js({"connected":true,"last_backup_result":{"last_backup_status":1,"last_backup_time":0},
           "schedule_type":1})js",
       event(5, 10, 5001, R"js({"email":"morgan.ellis@example.com"})js")},
      {"Ready (backed_up false, code 2)",
       R"js({"connected":true,"last_backup_result":{"last_backup_status":2,"backed_up":false,"last_backup_time":0},
           "next_backup_time":1795507200})js",
       event(6, 60, 7012, R"js({"volume_name":"Data (D:)","cbt":true})js")},
      {"Error page (not connected: code 5)", R"js({"connected":false})js", event(7, 10, 1101)},
      {"Error page (code 13)", R"js({"connected":true,"error":{"code":13}})js", event(8, 10, 1101)},
  };
  std::vector<std::vector<gallery::Cell>> rows(1);
  for (const State& s : states) {
    auto menu = popup();
    menu->appendLogEntries({s.latest});
    menu->updateServiceStatus(StatusIdle, json(s.content));
    if (rows.back().size() == 2) rows.emplace_back();
    rows.back().push_back({QString::fromLatin1(s.caption), grabPopup(*menu)});
  }
  gallery::save(gallery::sheet(QStringLiteral("Tray pop-up: status page"), rows, QColor(0xE9, 0xED, 0xF2)),
                QStringLiteral("tray-status.png"));
}

void renderProgress() {
  std::vector<std::vector<gallery::Cell>> rows(1);
  auto add = [&](const char* caption, TrayMenu& menu) {
    if (rows.back().size() == 2) rows.emplace_back();
    rows.back().push_back({QString::fromLatin1(caption), grabPopup(menu)});
  };
  const LogEntry latest = event(20, 30, 7012, R"js({"volume_name":"Local Disk (C:)"})js");
  {
    auto menu = popup();
    menu->appendLogEntries({latest});
    menu->updateServiceStatus(
        StatusBackupPreparing,
        json(R"js({"connected":true,"transfer":{"transfer":0,"delta_upload":0,"total":0,"speed":0}})js"));
    add("Preparing", *menu);
  }
  {
    auto menu = popup();
    menu->appendLogEntries({latest});
    menu->updateServiceStatus(
        static_cast<ServiceStatus>(0x3003),
        json(R"js({"connected":true,"transfer":{"transfer":48318382080,"delta_upload":2254857830,
                                      "total":128849018880,"speed":41943040}})js"));
    add("Running", *menu);
  }
  {
    auto menu = popup();
    menu->appendLogEntries({latest});
    const char* stalled =
        R"js({"connected":true,"transfer":{"transfer":48318382080,"delta_upload":2254857830,"total":128849018880,"speed":0}})js";
    menu->updateServiceStatus(
        static_cast<ServiceStatus>(0x3003),
        json(R"js({"connected":true,"transfer":{"transfer":48318382080,"delta_upload":2254857830,
                                      "total":128849018880,"speed":41943040}})js"));
    for (int i = 0; i < 30; ++i) menu->updateServiceStatus(static_cast<ServiceStatus>(0x3003), json(stalled));
    add("Stalled (speed 0, counting down)", *menu);
  }
  {
    auto menu = popup();
    menu->appendLogEntries({event(21, 4000, 1101)});
    menu->updateServiceStatus(static_cast<ServiceStatus>(0x3003), json(R"js({"connected":true})js"));
    add("Without \"transfer\"", *menu);
  }
  gallery::save(gallery::sheet(QStringLiteral("Tray pop-up: progress page"), rows, QColor(0xE9, 0xED, 0xF2)),
                QStringLiteral("tray-progress.png"));
}

QImage grabMenu(TrayMenu& menu) {
  QMenu* m = menu.userMenu();
  m->popup(QPoint(0, 0));
  QApplication::processEvents();
  QImage img = gallery::grabShown(m);
  m->hide();
  return img;
}

void renderUserMenu() {
  std::vector<gallery::Cell> row;
  {
    auto menu = popup();
    menu->setMenuEntriesVisible(true, false, 0);
    menu->quotaInfoWidget()->setUsage(json(R"js({"used_bytes":1288490188,"quota":5368709120})js"));
    row.push_back({QStringLiteral("Quota area (\"vell\" account)"), grabMenu(*menu)});
  }
  {
    auto menu = popup();
    menu->setMenuEntriesVisible(true, false, 0);
    menu->quotaInfoWidget()->setUsage(json(R"js({"used_bytes":5153960755,"quota":5368709120})js"));
    row.push_back({QStringLiteral("Quota at 96 % (red)"), grabMenu(*menu)});
  }
  {
    auto menu = popup();
    menu->setMenuEntriesVisible(false, false, 3);
    row.push_back({QStringLiteral("Without quota area (role 3)"), grabMenu(*menu)});
  }
  {
    auto menu = popup();
    menu->quotaInfoWidget()->setAccount(
        QStringLiteral("a.very.long.account.name.for.testing@subsidiary.example.com"));
    menu->setMenuEntriesVisible(false, true, 0);
    row.push_back({QStringLiteral("Auth fork, long account"), grabMenu(*menu)});
  }
  {
    auto menu = popup();
    menu->setMenuEntriesVisible(true, false, 0);
    row.push_back({QStringLiteral("Pop-up with the account's initial"), grabPopup(*menu)});
  }
  gallery::save(gallery::sheet(QStringLiteral("Tray pop-up: user menu"), {row}, QColor(0xE9, 0xED, 0xF2)),
                QStringLiteral("tray-user-menu.png"));
}

void renderActivity() {
  const std::vector<std::pair<quint32, const char*>> kinds{
      {1101, "{}"},
      {7002, R"js({"volume_name":"Local Disk (C:)"})js"},
      {7012, R"js({"volume_name":"Local Disk (C:)","cbt":true})js"},
      {7004, R"js({"volume_name":"Data (D:)","error_code":"0x80042306"})js"},
      {6018,
       R"js({"path":"C:\\Users\\morgan\\Documents\\Projects\\2026\\Quarterly reports and all their appendices\\final.xlsx","error_code":"32"})js"},
      {7021, R"js({"volume_name":"Archive volume with a rather long label (E:)"})js"},
      {1102, "{}"},
      {7075, R"js({"volume_name":"Local Disk (C:)"})js"},
      {8016, "{}"},
      {1124, R"js({"task_name":"Nightly backup of the whole device"})js"},
  };
  QList<LogEntry> entries;
  for (quint64 i = 0; i < 100; ++i) {
    const auto& k = kinds[i % kinds.size()];
    entries << event(i + 1, static_cast<qint64>((100 - i) * 437), k.first, k.second);
  }
  LogWidget log;
  log.fillEntries(entries);
  gallery::save(gallery::sheet(QStringLiteral("Activity dialog: 100 entries"),
                               {{{QStringLiteral("Activity"), gallery::grabWidget(&log)}}}),
                QStringLiteral("tray-activity.png"));
}

// The icon's menu while connected, with its tool tip as the caption.
void renderIconMenu() {
  struct State {
    const char* caption;
    const char* content;
    ServiceStatus status;
    bool reachable;
  };
  const std::vector<State> states{
      {"Idle",
       R"js({"connected":true,"last_backup_result":{"last_backup_status":2,"last_backup_time":1795420800}})js",
       StatusIdle, true},
      {"Backing up", R"js({"connected":true,"transfer":{"transfer":3,"total":8}})js", StatusBackupRunning,
       true},
      {"Service unreachable", R"js({"connected":true})js", StatusIdle, false},
  };
  std::vector<gallery::Cell> row;
  for (const State& s : states) {
    // The tray follows the desktop's contrast; the gallery sets it itself.
    const bool high = StyleManager::getInstance()->highContrast();
    SystemTray tray;
    StyleManager::getInstance()->setHighContrast(high);
    tray.setConnectionMode(ConnectionMode::Connected);
    tray.updateServiceStatus(s.status, json(s.content));
    if (!s.reachable) emit GlobalConnecter::instance().sigQueryServiceFailed();
    QMenu* m = tray.rightMenu();
    m->popup(QPoint(0, 0));
    QApplication::processEvents();
    // The menu, and the tool tip below it as the desktop shows one.
    QLabel tip(tray.toolTip());
    tip.setStyleSheet(
        QStringLiteral("QLabel { background: #FFFFE1; color: black; border: 1px solid #767676; "
                       "padding: 2px 4px; }"));
    tip.adjustSize();
    const QImage menuImage = gallery::grabShown(m);
    const QImage tipImage = tip.grab().toImage();
    QImage both(std::max(menuImage.width(), tipImage.width()), menuImage.height() + tipImage.height() + 8,
                QImage::Format_ARGB32_Premultiplied);
    both.fill(Qt::transparent);
    QPainter painter(&both);
    painter.drawImage(0, 0, menuImage);
    painter.drawImage(0, menuImage.height() + 8, tipImage);
    painter.end();
    row.push_back({QString::fromLatin1(s.caption), both});
    m->hide();
  }
  gallery::save(gallery::sheet(QStringLiteral("Tray icon: right-click menu and tool tip"), {row},
                               QColor(0xE9, 0xED, 0xF2)),
                QStringLiteral("tray-icon-menu.png"));
}

void renderTray() {
  renderIconMenu();
  renderStatus();
  renderProgress();
  renderUserMenu();
  renderActivity();
}

}  // namespace

NIMBRA_GALLERY_AREA("tray", renderTray)
