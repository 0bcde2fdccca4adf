// Whole-process stories: the real agent against the simulator's scenarios on
// a desktop of its own, played here, one test case each. "== Suite.Name [notray]" starts
// a story (notray: no tint2). Each line after it is one step; a screenshot
// follows every step (build/tests/desktop-shots/<story>/).
//
// Expectations are waited for, 60 s or the seconds written before the step:
//   request ACTION [N]     the simulator's record holds N (1) of ACTION
//   count N ACTION         exactly N;  more N ACTION: N more than at the mark
//   field ACTION KEY VALUE the first ACTION's KEY is VALUE (? : not empty)
//   picture NAME           the tray icon shows connect/running/success/error/warning
//   popup, no-popup        the tray pop-up is up / gone
//   windows N [REGEX]      N visible windows of the agent named REGEX ("^Nimbra Backup$")
//   dialog, no-dialog      an agent window that is neither pop-up nor icon
//   icon, first-actions ACTION...  the icon is in the tray / the record starts so
//   focus, running         the agent has the keyboard / still runs
//   log TEXT; log-count N TEXT; log-more N TEXT; log-same TEXT (as at the mark)
//   page TEXT              the pop-up's page (as the agent logs it) starts with TEXT
//   pixels >|< N RRGGBB [TOLERANCE]  screen pixels of that colour
//   status-file TEXT       the first line of the working space's service-status
//   a11y-node ROLE | NAME  a showing node of the accessibility tree (NAME *: any, ?: not empty)
//   a11y-value ROLE | CAPTION  a value read whole, with its caption as description
//   a11y-windows           every window is a frame or a dialog;  a11y-press NAME: pressed
//   no-icon                no icon in tint2's tray
//   item, item-property NAME TEXT, item-tooltip TEXT, item-picture NAME  the agent's StatusNotifierItem
//   popup-at X Y           the pop-up centred on X, its bottom within 10 px above Y
//   popup-override yes|no  the pop-up is an override-redirect pop-up / a window of its own
// Actions: start SCENARIO (sim, agent, window), sim SCENARIO, sim-again SCENARIO (its state kept), kill-sim,
// agent [ARGS], linked SCENARIO [ARGS], launch [ARGS] (a second launch ending 0), keys KEY..., press KEY
// EXPECTATION (again every 5 s until it holds), not-within MS EXPECTATION, window [REGEX] (waited for and
// activated), dialog-window, click-icon [BUTTON], click-away, click-user, click-list, click-colour RRGGBB (in
// the dialog), menu (the icon's right-click menu), activity (the list up, Escape closes it), exits CODE (with
// no thread left running), notifications N TITLE | TITLE (each with the agent's button; then closed),
// popup-above-icon, popup-framed, clean-pages, log-order A | B, mark, after-ms MS (since the mark),
// failed-before MIN MAX TEXT, polls-follow, panel (lxqt-panel, a StatusNotifierItem host), stop-panel, tint2
// (started late), item-click X Y (Activate), item-menu LABEL (the entry of the item's menu clicked).
//
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

#include "tests/desktop/agent-desktop.h"
#include "tests/desktop/atspi-tree.h"

namespace desktop_test {
namespace {

struct Step {
  int line = 0;
  int seconds = 60;  // how long an expectation is waited for
  QStringList words;
  QString rest(int from) const { return words.mid(from).join(' '); }
};
struct Story {
  std::string name;
  bool tray = true;
  QVector<Step> steps;
};
void PrintTo(const Story& s, std::ostream* os) {
  *os << s.name;
}

std::vector<Story> readStories() {
  QFile f(QStringLiteral(NIMBRA_DESKTOP_STORIES));
  if (!f.open(QIODevice::ReadOnly)) throw std::runtime_error("no " NIMBRA_DESKTOP_STORIES);
  std::vector<Story> out;
  int line = 0;
  for (const QString& text : QString::fromUtf8(f.readAll()).split('\n')) {
    ++line;
    QStringList words = text.split(' ', Qt::SkipEmptyParts);
    if (words.isEmpty() || words[0].startsWith('#')) continue;
    if (words[0] == "==") {
      out.push_back({words.value(1).replace('.', '_').toStdString(), !words.contains("notray"), {}});
      continue;
    }
    if (out.empty()) throw std::runtime_error("a step before the first story");
    Step step{line, 60, words};
    if (bool number = false; words[0].toInt(&number), number) step.seconds = words.takeFirst().toInt();
    step.words = words;
    out.back().steps.push_back(step);
  }
  return out;
}

TrayPicture pictureNamed(const QString& name) {
  const QStringList names{"missing", "connect", "running", "success", "error", "warning"};
  return static_cast<TrayPicture>(std::max(0, int(names.indexOf(name))));
}

class AgentStory : public AgentDesktop, public ::testing::WithParamInterface<Story> {
 protected:
  bool withTray() const override { return GetParam().tray; }

  // What the agent's pop-up page showed last (its log line after "tray pop-up: ").
  QString shownPage() const {
    const QStringList lines = logLines("tray pop-up: ");
    return lines.isEmpty() ? QString() : lines.last().mid(lines.last().indexOf("tray pop-up: ") + 13);
  }
  // The agent's windows other than its pop-up and its icon: a dialog.
  QStringList dialogs() const {
    const QString pop = popup();
    QStringList out;
    for (const QString& w : agentWindows(".*")) {
      const QSize size = windowRect(w).size();
      if (w != pop && (size.width() > 64 || size.height() > 64)) out << w;
    }
    return out;
  }
  QJsonObject firstRequest(const QString& action) const {
    for (const Request& r : records())
      if (r.action() == action) return r.request;
    return {};
  }
  int pixels(const QStringList& w) { return screenPixels(QColor("#" + w[2]), w.value(3, "6").toInt()); }

  // lxqt-panel with its statusnotifier plugin, once it owns the watcher's name.
  ::testing::AssertionResult startPanel() {
    if (QStandardPaths::findExecutable("lxqt-panel").isEmpty() ||
        QStandardPaths::findExecutable("busctl").isEmpty())
      return ::testing::AssertionFailure() << "scripts/setup installs lxqt-panel and busctl";
    if (!QDir().mkpath(env_.value("XDG_CONFIG_HOME") + "/lxqt") ||
        !nimbra_test::write_text(
            env_.value("XDG_CONFIG_HOME") + "/lxqt/panel.conf",
            "[General]\n__userfile__=true\npanels=panel1\n\n[panel1]\nalignment=-1\n"
            "panelSize=32\niconSize=22\nplugins=statusnotifier\nposition=Bottom\nwidth=100\n"
            "width-percent=true\n\n[statusnotifier]\ntype=statusnotifier\n"))
      return ::testing::AssertionFailure() << "cannot write lxqt's panel.conf";
    panel_ = std::make_unique<nimbra_test::ChildProcess>();
    panel_->setProcessEnvironment(env_);
    panel_->setStandardOutputFile(scratch() + "/panel.log", QIODevice::Append);
    panel_->setStandardErrorFile(scratch() + "/panel.log", QIODevice::Append);
    panel_->start("lxqt-panel", QStringList());
    return ::testing::AssertionResult(waitUntil(
               [&] {
                 return run("busctl", {"--user", "list"}).contains("org.kde.StatusNotifierWatcher");
               },
               30000))
           << "lxqt-panel's watcher did not come up";
  }
  // The "data" of a busctl call in JSON (its options ended before the
  // arguments, which may be negative numbers).
  QJsonValue busctl(QStringList args) const {
    args.insert(1, "--");
    return QJsonDocument::fromJson(run("busctl", QStringList{"--user", "--json=short"} + args).toUtf8())
        .object()
        .value("data");
  }
  // The agent's item as the watcher lists it ("service/path" or just the
  // service): its service, empty until it registered, and its path.
  QString item(QString* path = nullptr) const {
    const QString listed = busctl({"get-property", "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                                   "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems"})
                               .toArray()
                               .first()
                               .toString();
    if (path) *path = listed.contains('/') ? listed.mid(listed.indexOf('/')) : "/StatusNotifierItem";
    return listed.section('/', 0, 0);
  }
  QJsonValue itemCall(const QString& verb, const QStringList& args) const {
    QString path;
    const QString service = item(&path);
    return busctl(QStringList{verb, service, path, "org.kde.StatusNotifierItem"} + args);
  }
  // The largest of the item's pictures, as a panel would draw it.
  TrayPicture itemPicture() const {
    QImage best;
    for (const QJsonValue& p : itemCall("get-property", {"IconPixmap"}).toArray()) {
      const QJsonArray a = p.toArray();
      const int w = a.at(0).toInt(), h = a.at(1).toInt();
      const QJsonArray bytes = a.at(2).toArray();
      if (w <= best.width() || w <= 0 || h <= 0 || bytes.size() != w * h * 4) continue;
      best = QImage(w, h, QImage::Format_ARGB32);
      for (int i = 0; i < w * h; ++i)
        best.setPixel(i % w, i / w,
                      qRgba(bytes[i * 4 + 1].toInt(), bytes[i * 4 + 2].toInt(), bytes[i * 4 + 3].toInt(),
                            bytes[i * 4].toInt()));
    }
    return classifyTrayPicture(best);
  }

  // An expectation: a condition the step waits for; null for an action.
  std::function<bool()> expectation(const QStringList& w) {
    const QString& verb = w[0];
    const int n = w.value(1).toInt();
    if (verb == "request") return [=] { return countOf(w[1]) >= w.value(2, "1").toInt(); };
    if (verb == "count") return [=] { return countOf(w[2]) == n; };
    if (verb == "more") return [=] { return countOf(w[2]) >= markActions_.count(w[2]) + n; };
    if (verb == "picture") return [=] { return trayPicture() == pictureNamed(w[1]); };
    if (verb == "popup") return [=] { return !popup().isEmpty(); };
    if (verb == "no-popup") return [=] { return popup().isEmpty(); };
    if (verb == "windows") return [=] { return agentWindows(w.value(2, "^Nimbra Backup$")).size() == n; };
    if (verb == "dialog") return [=] { return !dialogs().isEmpty(); };
    if (verb == "no-dialog") return [=] { return dialogs().isEmpty(); };
    if (verb == "icon") return [=] { return !trayIcon().isEmpty(); };
    if (verb == "first-actions") return [=] { return actions().mid(0, w.size() - 1) == w.mid(1); };
    if (verb == "focus") return [=] { return agentHasFocus(); };
    if (verb == "running") return [=] { return agent_->state() == QProcess::Running; };
    if (verb == "log") return [=] { return logCount(w.mid(1).join(' ')) >= 1; };
    if (verb == "log-count") return [=] { return logCount(w.mid(2).join(' ')) == n; };
    if (verb == "log-more")
      return [=] { return logCount(w.mid(2).join(' ')) >= markLog_.count(w.mid(2).join(' ')) + n; };
    if (verb == "log-same")
      return [=] { return logCount(w.mid(1).join(' ')) == markLog_.count(w.mid(1).join(' ')); };
    if (verb == "page")
      return [=] { return shownPage().startsWith(w.mid(1).join(' ').replace("\\u00a0", QChar(0xA0))); };
    if (verb == "pixels")
      return [=] { return w[1] == ">" ? pixels(w.mid(1)) > w[2].toInt() : pixels(w.mid(1)) < w[2].toInt(); };
    if (verb == "field")
      return [=] {
        const QString v = firstRequest(w[1]).value(w[2]).toString();
        return w[3] == "?" ? !v.isEmpty() : v == w[3];
      };
    if (verb == "no-icon") return [=] { return trayIcon().isEmpty(); };
    if (verb == "item") return [=] { return !item().isEmpty(); };
    if (verb == "item-property")
      return [=] { return itemCall("get-property", {w[1]}).toString() == w.mid(2).join(' '); };
    if (verb == "item-tooltip")
      return [=] { return itemCall("get-property", {"ToolTip"}).toArray().at(3).toString().contains(w[1]); };
    if (verb == "item-picture") return [=] { return itemPicture() == pictureNamed(w[1]); };
    if (verb == "popup-at")  // centred on the click's x, its bottom just above the click
      return [=] {
        const QRect pop = windowRect(popup());
        return !pop.isEmpty() && std::abs(pop.center().x() - w[1].toInt()) <= 2 &&
               pop.bottom() < w[2].toInt() && pop.bottom() >= w[2].toInt() - 10;
      };
    if (verb == "popup-override")  // a pop-up (yes) or a window of its own (no)
      return [=] {
        const QString pop = popup();
        return !pop.isEmpty() &&
               run("xwininfo", {"-id", pop}).contains("Override Redirect State: yes") == (w[1] == "yes");
      };
    if (verb.startsWith("a11y-")) {  // what a screen reader reads: "ROLE | NAME" (* any) or "ROLE | CAPTION"
      const QStringList rn = w.mid(1).join(' ').split(" | ");
      if (verb == "a11y-press") return [=] { return a11y_->press(rn[0]); };
      if (verb == "a11y-windows")
        return [=] {
          const QVector<A11yNode> nodes = a11y_->nodes();
          return !nodes.isEmpty() && std::all_of(nodes.begin(), nodes.end(), [](const A11yNode& node) {
            return node.depth != 1 || node.role == "frame" || node.role == "dialog";
          });
        };
      const auto match = [=](const A11yNode& node) {
        return node.role == rn[0] &&
               (verb == "a11y-node"
                    ? rn[1] == "*" || (rn[1] == "?" ? !node.name.isEmpty() : node.name == rn[1])
                    : node.description == rn[1] && !node.name.isEmpty() && node.name != node.description);
      };
      return [=] { return !a11y_->waitFor(match, 0).role.isEmpty(); };
    }
    if (verb == "status-file")
      return [=] {
        QFile f(env_.value("NIMBRA_WORKING_SPACE") + "/service-status");
        f.open(QIODevice::ReadOnly);
        return QString::fromUtf8(f.readLine()).trimmed() == w.mid(1).join(' ');
      };
    return nullptr;
  }

  ::testing::AssertionResult play(const Step& step) {
    const QStringList& w = step.words;
    const QString& verb = w[0];
    const int ms = step.seconds * 1000;
    if (auto done = expectation(w)) {
      if (waitUntil(done, ms)) return ::testing::AssertionSuccess();
      return ::testing::AssertionFailure() << "never came";
    }
    const auto ok = [](bool b) { return b ? ::testing::AssertionSuccess() : ::testing::AssertionFailure(); };
    if (verb == "press" || verb == "not-within") {
      auto done = expectation(w.mid(2));
      if (!done) return ::testing::AssertionFailure() << "no expectation";
      return ok(verb == "press" ? pressUntil(w[1], done, ms) : !waitUntil(done, w[1].toInt()));
    }
    if (verb == "start") {  // the simulator, the agent and its first window, activated
      if (auto r = startSim(w[1]); !r) return r;
      if (auto r = startAgent(); !r) return r;
      const QString window = waitForAgentWindow(ms);
      return window.isEmpty() ? ok(false) << "no window" : activate(window);
    }
    if (verb == "a11y") {  // the accessibility bus comes up after the agent, as a screen reader started later
      a11y_ =
          std::make_unique<AtspiTree>(env_, source("/tests/desktop/atspi-driver.py"), agent_->processId());
      return a11y_->startBus(scratch() + "/at-spi.err");
    }
    if (verb == "sim") return startSim(w[1]);
    if (verb == "sim-again") return startSim(w[1], true);
    if (verb == "kill-sim") return stopSim(true), ok(true);
    if (verb == "agent") return startAgent(w.mid(1));
    if (verb == "linked") return startLinked(w[1], w.mid(2));
    if (verb == "launch") return ok(launchAgain(w.mid(1)) == 0);
    if (verb == "keys") return keys(w.mid(1)), ok(true);
    if (verb == "mark") {
      markActions_ = actions();
      markLog_ = agentLog();
      markClock_.start();
      return ok(true);
    }
    if (verb == "after-ms") return ok(markClock_.elapsed() >= w[1].toInt());
    if (verb == "window") {
      const QString window = waitForAgentWindow(ms, w.value(1, "^Nimbra Backup$"));
      return window.isEmpty() ? ok(false) : activate(window);
    }
    if (verb == "dialog-window") {
      const QStringList d = dialogs();
      return d.isEmpty() ? ok(false) : activate(d.first());
    }
    if (verb == "panel") return startPanel();
    if (verb == "stop-panel") return nimbra_test::stop_process(panel_), ok(true);
    if (verb == "tint2") {
      const QString why = desktop_->startTray();
      return ok(why.isEmpty()) << why.toStdString();
    }
    if (verb == "item-click") return itemCall("call", {"Activate", "ii", w[1], w[2]}), ok(true);
    if (verb == "item-menu") {  // the entry of the item's dbusmenu with that label, clicked
      for (const QJsonValue& child :
           busctl({"call", item(), "/MenuBar", "com.canonical.dbusmenu", "GetLayout", "iias", "0", "-1", "0"})
               .toArray()
               .at(1)
               .toArray()
               .at(2)
               .toArray()) {
        const QJsonArray entry = child.toObject().value("data").toArray();
        if (entry.at(1).toObject().value("label").toObject().value("data").toString() != w.mid(1).join(' '))
          continue;
        busctl({"call", item(), "/MenuBar", "com.canonical.dbusmenu", "Event", "isvu",
                QString::number(entry.at(0).toInt()), "clicked", "s", "", "0"});
        return ok(true);
      }
      return ::testing::AssertionFailure() << "no such entry in the item's menu";
    }
    if (verb == "click-icon") return clickTrayIcon(w.value(1, "1").toInt()), ok(true);
    if (verb == "click-away") return clickAt({300, 300}), ok(true);
    if (verb == "click-user" || verb == "click-list") {
      const QPoint user = popupUserButton();
      if (user.isNull()) return ::testing::AssertionFailure() << "no user button on the pop-up";
      return clickAt(verb == "click-user" ? user : user - QPoint(40, 0)), ok(true);
    }
    if (verb == "click-colour") {  // in the first dialog
      const QStringList d = dialogs();
      const QPoint p = d.isEmpty() ? QPoint() : findColour(QColor("#" + w[1]), windowRect(d.first()), 30);
      return p.isNull() ? ok(false) : (clickAt(p), ok(true));
    }
    if (verb == "menu") {  // the icon's menu: one window more
      const int windows = agentWindows(".*").size();
      clickAt({300, 300});
      clickTrayIcon(3);
      return ok(waitUntil([&] { return agentWindows(".*").size() > windows; }, ms));
    }
    if (verb == "activity") {  // the activity list up; Escape closes it
      const QString list = waitForAgentWindow(ms, "^Activity$");
      if (list.isEmpty()) return ::testing::AssertionFailure() << "no activity list";
      if (auto r = activate(list); !r) return r;
      return ok(pressUntil(
          "Escape", [&] { return agentWindows("^Activity$").isEmpty(); }, 10000));
    }
    if (verb == "exits") {  // with its threads joined: no complaint, no crash
      int code = -1;
      if (!waitForAgentExit(ms, &code)) return ::testing::AssertionFailure() << "the agent stays";
      for (const char* bad :
           {"QThread: Destroyed while thread", "terminate called", "Aborted", "Segmentation"})
        if (agentStderr().contains(bad)) return ::testing::AssertionFailure() << agentStderr().toStdString();
      return ok(code == w[1].toInt()) << "exit code " << code;
    }
    if (verb == "notifications") {  // each with the agent's button and a click's default action
      const int n = w[1].toInt();
      if (!waitUntil([&] { return desktop_->displayed() >= n; }, ms)) return ::testing::AssertionFailure();
      const QStringList menu = desktop_->contextMenu(QString());
      run("dunstctl", {"close-all"});
      QStringList titles;
      for (const QJsonValue& shown : desktop_->history())
        titles << shown.toObject().value("summary").toString();
      const QStringList want = w.mid(2).join(' ').split(" | ");
      return ok(menu.filter(QRegularExpression("^#Open Nimbra Backup \\(.*\\) \\[\\d+,1\\]$")).size() == n &&
                menu.filter(",default]").size() == n && titles.size() == n &&
                std::all_of(want.begin(), want.end(), [&](const QString& t) { return titles.contains(t); }))
             << titles.join(", ").toStdString() << "\n"
             << menu.join('\n').toStdString();
    }
    if (verb == "popup-above-icon") {
      const QRect icon = trayIcon(), pop = windowRect(popup());
      return ok(pop.bottom() < icon.top() && pop.bottom() >= icon.top() - 40) << pop.y() << " " << icon.y();
    }
    if (verb == "popup-framed") {  // a framed window without a maximise function (motif 0x10)
      const QString window = popup();
      const QString frame = run("xprop", {"-id", window, "_NET_FRAME_EXTENTS"});
      const QString motif = run("xprop", {"-id", window, "_MOTIF_WM_HINTS"});
      const QRegularExpressionMatch f = QRegularExpression("= 0x[0-9a-f]+, (0x[0-9a-f]+)").match(motif);
      return ok(frame.contains('=') && !frame.contains("= 0, 0, 0, 0") && f.hasMatch() &&
                (f.captured(1).toUInt(nullptr, 16) & 0x10u) == 0)
             << frame.toStdString() << motif.toStdString();
    }
    if (verb == "clean-pages") {  // no markup, entity, control character or empty page reached the person
      static const QRegularExpression bad(
          "<[a-zA-Z/!]|&[a-zA-Z#][a-zA-Z0-9]*;|[\\x{0}-\\x{8}\\x{b}-\\x{1f}\\x{fffd}]|page: *(\\| *)*$");
      const QStringList lines = logLines("tray pop-up: ");
      return ok(!lines.isEmpty() && lines.filter(bad).isEmpty())
             << lines.filter(bad).join('\n').toStdString();
    }
    if (verb == "log-order") {  // the first line with one text before the first with the other
      const QStringList texts = w.mid(1).join(' ').split(" | ");
      const QString log = agentLog();
      return ok(log.contains(texts[0]) && log.indexOf(texts[0]) < log.indexOf(texts[1]));
    }
    if (verb == "failed-before") {  // failed exchanges between the mark and the first line with the text
      const QString log = agentLog();
      const int at = log.indexOf(w.mid(3).join(' '));
      const int failed =
          log.left(at).count("Failed to query service") - markLog_.count("Failed to query service");
      return ok(at >= 0 && failed >= w[1].toInt() && failed <= w[2].toInt()) << failed << " failures";
    }
    if (verb == "polls-follow") {  // get_status about once a second, its log_id never going back and growing
      QVector<qint64> gaps;
      QVector<int> ids;
      qint64 last = -1;
      for (const Request& r : records()) {
        if (r.action() != "get_status") continue;
        if (last >= 0) gaps << r.time_ms - last;
        last = r.time_ms;
        ids << r.request.value("log_id").toInt(-1);
      }
      std::sort(gaps.begin(), gaps.end());
      const qint64 median = gaps.isEmpty() ? 0 : gaps[gaps.size() / 2];
      return ok(median >= 700 && median <= 1600 && std::is_sorted(ids.begin(), ids.end()) &&
                ids.last() > ids.first())
             << "median gap " << median;
    }
    return ::testing::AssertionFailure() << "unknown step";
  }

  void TearDown() override {
    nimbra_test::stop_process(panel_, true);
    AgentDesktop::TearDown();
    a11y_.reset();
  }

  std::unique_ptr<AtspiTree> a11y_;
  std::unique_ptr<QProcess> panel_;
  QStringList markActions_;
  QString markLog_;
  QElapsedTimer markClock_;
};

TEST_P(AgentStory, Plays) {
  for (const Step& step : GetParam().steps) {
    const ::testing::AssertionResult r = play(step);
    ASSERT_TRUE(r) << "stories.txt:" << step.line << ": " << step.words.join(' ').toStdString();
    shot(step.words.join('-').left(40).replace(QRegularExpression("[^A-Za-z0-9_-]"), "_"));
  }
}

INSTANTIATE_TEST_SUITE_P(Stories, AgentStory, ::testing::ValuesIn(readStories()),
                         [](const ::testing::TestParamInfo<Story>& s) { return s.param.name; });

}  // namespace
}  // namespace desktop_test
