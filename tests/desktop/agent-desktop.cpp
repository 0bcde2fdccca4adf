#include "desktop/agent-desktop.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QColor>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <cmath>

namespace desktop_test {
namespace {

void stopProcess(std::unique_ptr<QProcess>& p, bool kill = false) {
  if (!p) return;
  if (p->state() != QProcess::NotRunning) {
    if (kill) {
      p->kill();
    } else {
      p->terminate();
    }
    if (!p->waitForFinished(5000)) {
      p->kill();
      p->waitForFinished(5000);
    }
  }
  p.reset();
}

bool writeExecutable(const QString& path, const QString& text) {
  QFile f(path);
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  f.write(text.toUtf8());
  f.close();
  return f.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString testName() {
  const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
  return QString::fromUtf8(info->test_suite_name()) + "." + QString::fromUtf8(info->name());
}

}  // namespace

const char* pictureName(TrayPicture p) {
  switch (p) {
    case TrayPicture::Missing:
      return "missing";
    case TrayPicture::Connect:
      return "connect";
    case TrayPicture::Running:
      return "running (blue)";
    case TrayPicture::Success:
      return "success (green)";
    case TrayPicture::Error:
      return "error (red)";
    case TrayPicture::Warning:
      return "warning (orange)";
  }
  return "?";
}

TrayPicture classifyTrayPicture(const QImage& icon) {
  if (icon.isNull()) return TrayPicture::Missing;
  // The state colours of the tray pictures.
  struct Shade {
    QColor colour;
    TrayPicture picture;
  };
  const Shade shades[] = {{QColor(0x0A, 0x9C, 0xFF), TrayPicture::Running},
                          {QColor(0x00, 0xA2, 0x82), TrayPicture::Success},
                          {QColor(0xE6, 0x40, 0x40), TrayPicture::Error},
                          {QColor(0xF2, 0x9A, 0x2E), TrayPicture::Warning}};
  int counts[4] = {0, 0, 0, 0};
  for (int y = 0; y < icon.height(); ++y) {
    for (int x = 0; x < icon.width(); ++x) {
      const QColor c = icon.pixelColor(x, y);
      for (int i = 0; i < 4; ++i) {
        const int d = std::abs(c.red() - shades[i].colour.red()) +
                      std::abs(c.green() - shades[i].colour.green()) +
                      std::abs(c.blue() - shades[i].colour.blue());
        if (d < 60) ++counts[i];
      }
    }
  }
  int best = -1;
  for (int i = 0; i < 4; ++i)
    if (counts[i] >= 6 && (best < 0 || counts[i] > counts[best])) best = i;
  return best < 0 ? TrayPicture::Connect : shades[best].picture;
}

void AgentDesktop::SetUp() {
  for (const char* program :
       {"Xvfb", "dbus-daemon", "openbox", "tint2", "dunst", "xdotool", "import", "xprop", "xwininfo", "curl"})
    ASSERT_FALSE(QStandardPaths::findExecutable(program).isEmpty())
        << program << " is missing: scripts/setup installs the desktop test tools";
  scratch_ = std::make_unique<nimbra_test::TempDir>();
  const QString dir = QString::fromStdString(scratch_->path());
  ::chmod(scratch_->path().c_str(), 0700);
  shotDir_ = build("/tests/desktop-shots/" + testName());
  QDir(shotDir_).removeRecursively();
  QDir().mkpath(shotDir_);

  desktop_ = std::make_unique<notifier_test::PrivateDesktop>(dir);
  QString why = desktop_->startBus();
  ASSERT_TRUE(why.isEmpty()) << why.toStdString();
  why = desktop_->startDisplay("1280x800x24");
  ASSERT_TRUE(why.isEmpty()) << why.toStdString();
  why = desktop_->startWindowManager();
  ASSERT_TRUE(why.isEmpty()) << why.toStdString();
  if (withTray()) {
    why = desktop_->startTray(trayConfig());
    ASSERT_TRUE(why.isEmpty()) << why.toStdString();
  }
  why = desktop_->startDunst();
  ASSERT_TRUE(why.isEmpty()) << why.toStdString();

  for (const char* sub : {"ws", "config", "data", "cache", "runtime", "sim"}) QDir(dir).mkpath(sub);
  ::chmod((scratch_->path() + "/runtime").c_str(), 0700);
  env_ = desktop_->environment();
  env_.remove("QT_QPA_PLATFORM");
  env_.insert("NIMBRA_PIPE_NAMESPACE", QStringLiteral("desk%1-").arg(::getpid()));
  env_.insert("NIMBRA_WORKING_SPACE", dir + "/ws");
  env_.insert("XDG_CONFIG_HOME", dir + "/config");
  env_.insert("XDG_DATA_HOME", dir + "/data");
  env_.insert("XDG_CACHE_HOME", dir + "/cache");
  env_.insert("XDG_RUNTIME_DIR", dir + "/runtime");
  env_.insert("XDG_CURRENT_DESKTOP", "");
  env_.insert("LANG", "en_US.UTF-8");
  env_.remove("LC_ALL");
  env_.remove("LANGUAGE");
  // The user's part on the sign-in page: fetch it, press "Sign in", follow
  // the redirect to the agent.
  const QString browser = dir + "/browser";
  ASSERT_TRUE(writeExecutable(browser,
                              QStringLiteral("#!/bin/sh\n"
                                             "echo \"open $1\" >> '%1/browser.log'\n"
                                             "curl -sf --max-time 10 -o '%1/signin.html' \"$1\" || exit 1\n"
                                             "back=$(curl -s --max-time 10 -o /dev/null -w '%{redirect_url}' "
                                             "--data 'email=&password=simulated' \"$1\")\n"
                                             "echo \"back $back\" >> '%1/browser.log'\n"
                                             "case \"$back\" in nimbrabackup://*) ;; *) exit 1 ;; esac\n"
                                             "exec '%2' \"$back\"\n")
                                  .arg(dir, build("/bin/nimbra-backup-agent"))));
  env_.insert("BROWSER", browser);
  record_ = dir + "/requests.jsonl";
  simState_ = dir + "/sim";
}

void AgentDesktop::TearDown() {
  if (desktop_ && HasFailure()) shot("at-failure");
  stopProcess(agent_);
  stopSim();
  if (HasFailure() && scratch_) {
    // What a person needs to see why: beside the screenshots.
    QDirIterator it(QString::fromStdString(scratch_->path()), {"*.log", "*.jsonl", "*.err", "*.out", "*.txt"},
                    QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
      const QString f = it.next();
      QFile::copy(f,
                  shotDir_ + "/" + QString(f).remove(0, int(scratch_->path().size()) + 1).replace('/', '_'));
    }
    const QString log = agentLog();
    std::fprintf(stderr, "---- agent log (last 4000 characters) ----\n%s\n",
                 log.right(4000).toUtf8().constData());
    std::fprintf(stderr, "---- requests ----\n%s\n", actions().join(' ').toUtf8().constData());
  }
  desktop_.reset();
  scratch_.reset();
}

QString AgentDesktop::source(const QString& rel) const {
  return qEnvironmentVariable("NIMBRA_SOURCE_DIR") + rel;
}

QString AgentDesktop::build(const QString& rel) const {
  return qEnvironmentVariable("NIMBRA_BUILD_DIR") + rel;
}

bool AgentDesktop::waitUntil(const std::function<bool()>& done, int ms) {
  return notifier_test::wait_until(done, ms);
}

::testing::AssertionResult AgentDesktop::startSim(const QString& scenario, bool resume) {
  sim_ = std::make_unique<notifier_test::ChildProcess>();
  sim_->setProcessEnvironment(env_);
  sim_->setStandardErrorFile(QString::fromStdString(scratch_->path()) + "/sim.err", QIODevice::Append);
  QStringList args{"serve",   "--scenario", source("/service-sim/scenarios/" + scenario + ".json"),
                   "--state", simState_,    "--record",
                   record_};
  if (!resume) args << "--fresh";
  QString program = build("/bin/nimbra-service-sim");
  command(program, args);
  sim_->start(program, args);
  if (!sim_->waitForStarted(10000)) return ::testing::AssertionFailure() << "the simulator does not start";
  QElapsedTimer clock;
  clock.start();
  while (!sim_->canReadLine()) {
    if (clock.elapsed() > 20000 || sim_->state() == QProcess::NotRunning)
      return ::testing::AssertionFailure() << "the simulator never said ready";
    sim_->waitForReadyRead(200);
  }
  const QString ready = QString::fromUtf8(sim_->readLine()).trimmed();
  const QRegularExpressionMatch m = QRegularExpression("signin=(\\S+)").match(ready);
  if (!ready.startsWith("ready") || !m.hasMatch())
    return ::testing::AssertionFailure() << "unexpected first line: " << ready.toStdString();
  signinUrl_ = m.captured(1);
  return ::testing::AssertionSuccess();
}

void AgentDesktop::stopSim(bool kill) {
  stopProcess(sim_, kill);
}

::testing::AssertionResult AgentDesktop::startAgent(const QStringList& args) {
  agent_ = std::make_unique<notifier_test::ChildProcess>();
  agent_->setProcessEnvironment(env_);
  const QString dir = QString::fromStdString(scratch_->path());
  agent_->setStandardOutputFile(dir + "/agent.out", QIODevice::Append);
  agent_->setStandardErrorFile(dir + "/agent.err", QIODevice::Append);
  QString program = agentProgram();
  QStringList all = args;
  command(program, all);
  agent_->start(program, all);
  if (!agent_->waitForStarted(10000)) return ::testing::AssertionFailure() << "the agent does not start";
  return ::testing::AssertionSuccess();
}

int AgentDesktop::launchAgain(const QStringList& args) {
  notifier_test::ChildProcess second;
  second.setProcessEnvironment(env_);
  second.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  QString program = agentProgram();
  QStringList all = args;
  command(program, all);
  second.start(program, all);
  if (!second.waitForFinished(20000)) {
    second.kill();
    second.waitForFinished(5000);
    return -1;
  }
  return second.exitStatus() == QProcess::NormalExit ? second.exitCode() : -1;
}

bool AgentDesktop::waitForAgentExit(int ms, int* code) {
  if (!agent_) return true;
  if (agent_->state() != QProcess::NotRunning && !agent_->waitForFinished(ms)) return false;
  if (code) *code = agent_->exitStatus() == QProcess::NormalExit ? agent_->exitCode() : -1;
  return true;
}

QVector<Request> AgentDesktop::records() const {
  QVector<Request> out;
  QFile f(record_);
  if (!f.open(QIODevice::ReadOnly)) return out;
  for (const QByteArray& line : f.readAll().split('\n')) {
    const QJsonObject o = QJsonDocument::fromJson(line).object();
    if (o.isEmpty()) continue;  // a line still being written
    out.push_back({static_cast<qint64>(o.value("time_ms").toDouble()), o.value("request").toObject()});
  }
  return out;
}

QStringList AgentDesktop::actions() const {
  QStringList out;
  for (const Request& r : records()) out << r.action();
  return out;
}

int AgentDesktop::countOf(const QString& action) const {
  return actions().count(action);
}

bool AgentDesktop::waitForAction(const QString& action, int ms, int count) {
  return waitUntil([&] { return countOf(action) >= count; }, ms);
}

QString AgentDesktop::agentLog() const {
  QString text;
  QDirIterator it(QString::fromStdString(scratch_->path()) + "/state/NimbraBackupAgent", QDir::Files,
                  QDirIterator::Subdirectories);
  QStringList files;
  while (it.hasNext()) files << it.next();
  files.sort();
  for (const QString& f : files) {
    QFile file(f);
    if (file.open(QIODevice::ReadOnly)) text += QString::fromUtf8(file.readAll());
  }
  return text;
}

QString AgentDesktop::run(const QString& program, const QStringList& args, int* code) const {
  return desktop_->run(program, args, code);
}

QStringList AgentDesktop::agentWindows(const QString& regex) const {
  const QString pid = agent_ ? QString::number(agent_->processId()) : QString();
  QStringList out;
  for (const QString& w :
       run("xdotool", {"search", "--onlyvisible", "--name", regex}).split('\n', Qt::SkipEmptyParts)) {
    if (run("xdotool", {"getwindowpid", w}).trimmed() == pid) out << w;
  }
  return out;
}

QString AgentDesktop::activeWindow() const {
  return run("xdotool", {"getactivewindow"}).trimmed();
}

bool AgentDesktop::waitForAgentFocus(int ms) {
  const QString pid = agent_ ? QString::number(agent_->processId()) : QString();
  return waitUntil([&] { return run("xdotool", {"getactivewindow", "getwindowpid"}).trimmed() == pid; }, ms);
}

::testing::AssertionResult AgentDesktop::activate(const QString& window) {
  // windowactivate asks the window manager; --sync waits until it is done,
  // but a slow machine gets more than one chance.
  const bool ok = waitUntil(
      [&] {
        int code = -1;
        run("xdotool", {"windowactivate", "--sync", window}, &code);
        return code == 0 && activeWindow() == window;
      },
      10000);
  if (!ok)
    return ::testing::AssertionFailure() << "window " << window.toStdString() << " never became active";
  return ::testing::AssertionSuccess();
}

void AgentDesktop::keys(const QStringList& names) {
  for (const QString& k : names) run("xdotool", {"key", "--clearmodifiers", "--delay", "60", k});
}

QRect AgentDesktop::trayIcon() const {
  // In tint2's window tree, the agent's embedded icon window: a line such as
  //   0x600018 "nimbra-backup-agent": ("nimbra-backup-agent" ...)  22x22+0+0  +1117+774
  const QStringList lines = run("xwininfo", {"-root", "-tree"}).split('\n');
  int panelIndent = -1;
  static const QRegularExpression icon(
      "\"nimbra-backup-agent\": "
      "\\(\"nimbra-backup-agent\".*\\s(\\d+)x(\\d+)\\+-?\\d+\\+-?\\d+\\s+\\+(-?\\d+)\\+(-?\\d+)");
  for (const QString& line : lines) {
    const int indent = line.indexOf(QRegularExpression("\\S"));
    if (line.contains("\"tint2\": (\"tint2\"")) {
      panelIndent = indent;
      continue;
    }
    if (panelIndent < 0) continue;
    if (indent >= 0 && indent <= panelIndent) {
      panelIndent = -1;
      continue;
    }
    const QRegularExpressionMatch m = icon.match(line);
    if (m.hasMatch() && m.captured(1).toInt() > 4)
      return QRect(m.captured(3).toInt(), m.captured(4).toInt(), m.captured(1).toInt(),
                   m.captured(2).toInt());
  }
  return {};
}

TrayPicture AgentDesktop::trayPicture() const {
  const QRect where = trayIcon();
  if (where.isEmpty()) return TrayPicture::Missing;
  const QString png = QString::fromStdString(scratch_->path()) + "/tray.png";
  int code = -1;
  run("import",
      {"-window", "root", "-crop",
       QStringLiteral("%1x%2+%3+%4").arg(where.width()).arg(where.height()).arg(where.x()).arg(where.y()),
       png},
      &code);
  if (code != 0) return TrayPicture::Missing;
  return classifyTrayPicture(QImage(png));
}

bool AgentDesktop::waitForTrayPicture(TrayPicture want, int ms) {
  return waitUntil([&] { return trayPicture() == want; }, ms);
}

void AgentDesktop::clickTrayIcon(int button) {
  const QRect where = trayIcon();
  run("xdotool", {"mousemove", "--sync", QString::number(where.center().x()),
                  QString::number(where.center().y()), "click", QString::number(button)});
}

int AgentDesktop::screenPixels(const QColor& colour, int tolerance) {
  const QString png = QString::fromStdString(scratch_->path()) + "/screen.png";
  if (!desktop_->screenshot(png).isEmpty()) return 0;
  const QImage image = QImage(png).convertToFormat(QImage::Format_RGB32);
  int n = 0;
  for (int y = 0; y < image.height(); ++y) {
    const QRgb* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const QRgb c = line[x];
      if (std::abs(qRed(c) - colour.red()) + std::abs(qGreen(c) - colour.green()) +
              std::abs(qBlue(c) - colour.blue()) <=
          tolerance)
        ++n;
    }
  }
  return n;
}

QSize AgentDesktop::windowSize(const QString& window) const {
  const QString out = run("xdotool", {"getwindowgeometry", "--shell", window});
  const QRegularExpressionMatch w = QRegularExpression("WIDTH=(\\d+)").match(out);
  const QRegularExpressionMatch h = QRegularExpression("HEIGHT=(\\d+)").match(out);
  if (!w.hasMatch() || !h.hasMatch()) return {};
  return QSize(w.captured(1).toInt(), h.captured(1).toInt());
}

QString AgentDesktop::popup() const {
  // The tray menu is about 400 x 232 (with the frame of its shadow), far
  // smaller than the wizard.
  for (const QString& w : agentWindows()) {
    const QSize size = windowSize(w);
    if (size.width() >= 380 && size.width() <= 480 && size.height() >= 220 && size.height() <= 320) return w;
  }
  return {};
}

QJsonArray AgentDesktop::notifications() const {
  return desktop_->history();
}

QString AgentDesktop::shot(const QString& step) {
  const QString path =
      shotDir_ + QStringLiteral("/%1-%2.png").arg(++shots_, 2, 10, QLatin1Char('0')).arg(step);
  desktop_->screenshot(path);
  return path;
}

// ---- service faults: debug log, log lines, exit checks -----------------------

::testing::AssertionResult AgentDesktop::useDebugLog() {
  const QString app = QString::fromStdString(scratch_->path()) + "/app";
  if (!QDir().mkpath(app + "/bin") || !QDir().mkpath(app + "/resource"))
    return ::testing::AssertionFailure() << "cannot make " << app.toStdString();
  // The agent finds its resources and the notifier beside its own path.
  for (const char* program : {"nimbra-backup-agent", "nimbra-backup-notifier"}) {
    const QString from = build(QStringLiteral("/bin/") + program), to = app + "/bin/" + program;
    if (::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0 &&
        !QFile::copy(from, to))
      return ::testing::AssertionFailure() << "cannot place " << program << " in " << app.toStdString();
  }
  const QDir resources(build("/resource"));
  for (const QString& name : resources.entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
    if (name == "agent.debug") continue;
    if (!QFile::link(resources.filePath(name), app + "/resource/" + name))
      return ::testing::AssertionFailure() << "cannot link " << name.toStdString();
  }
  QFile settings(app + "/resource/agent.debug");
  if (!settings.open(QIODevice::WriteOnly) ||
      settings.write("default_component = 7\nclient_manager_debug = 7\nwin_ipc = 4\n") < 0)
    return ::testing::AssertionFailure() << "cannot write " << settings.fileName().toStdString();
  agentProgram_ = app + "/bin/nimbra-backup-agent";
  return ::testing::AssertionSuccess();
}

QString AgentDesktop::agentProgram() const {
  return agentProgram_.isEmpty() ? build("/bin/nimbra-backup-agent") : agentProgram_;
}

QStringList AgentDesktop::logLines(const QString& text) const {
  QStringList out;
  for (const QString& line : agentLog().split('\n'))
    if (line.contains(text)) out << line;
  return out;
}

QString AgentDesktop::agentStderr() const {
  QFile f(QString::fromStdString(scratch_->path()) + "/agent.err");
  return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

// ---- wizard variants, more backups, the session (one block, kept together) ----

int AgentDesktop::logCount(const QString& text) const {
  return agentLog().count(text);
}

bool AgentDesktop::waitForLog(const QString& text, int ms, int count) {
  return waitUntil([&] { return logCount(text) >= count; }, ms);
}

::testing::AssertionResult AgentDesktop::startLinked(const QString& scenario, const QStringList& args) {
  if (auto r = useDebugLog(); !r) return r;
  if (auto r = startSim(scenario); !r) return r;
  if (auto r = startAgent(args); !r) return r;
  if (!waitForAction("get_status", 30000)) return ::testing::AssertionFailure() << "the agent never polls";
  if (withTray() && !waitUntil([&] { return !trayIcon().isEmpty(); }, 20000))
    return ::testing::AssertionFailure() << "no icon in the tray";
  return ::testing::AssertionSuccess();
}

QString AgentDesktop::waitForAgentWindow(int ms, const QString& regex) {
  QString window;
  waitUntil(
      [&] {
        const QStringList w = agentWindows(regex);
        window = w.isEmpty() ? QString() : w.first();
        return !window.isEmpty();
      },
      ms);
  return window;
}

AgentDesktop::ShownNotification AgentDesktop::takeNotification() {
  ShownNotification s;
  s.menu = desktop_->contextMenu(QString());
  run("dunstctl", {"close-all"});
  waitUntil([&] { return desktop_->displayed() == 0; }, 5000);
  const QJsonArray history = notifications();
  if (!history.isEmpty()) {
    s.summary = history[0].toObject().value("summary").toString();
    s.body = history[0].toObject().value("body").toString();
  }
  return s;
}

QPoint AgentDesktop::findColour(const QColor& colour, const QRect& area, int tolerance) {
  const QString png = QString::fromStdString(scratch_->path()) + "/find.png";
  if (!desktop_->screenshot(png).isEmpty()) return {};
  const QImage image = QImage(png).convertToFormat(QImage::Format_RGB32);
  const QRect inside = area.intersected(image.rect());
  qint64 sx = 0, sy = 0, n = 0;
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    const QRgb* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = inside.left(); x <= inside.right(); ++x) {
      const QRgb c = line[x];
      if (std::abs(qRed(c) - colour.red()) + std::abs(qGreen(c) - colour.green()) +
              std::abs(qBlue(c) - colour.blue()) <=
          tolerance) {
        sx += x;
        sy += y;
        ++n;
      }
    }
  }
  return n == 0 ? QPoint() : QPoint(int(sx / n), int(sy / n));
}

QRect AgentDesktop::windowRect(const QString& window) const {
  const QString out = run("xdotool", {"getwindowgeometry", "--shell", window});
  const QRegularExpressionMatch x = QRegularExpression("X=(-?\\d+)").match(out);
  const QRegularExpressionMatch y = QRegularExpression("Y=(-?\\d+)").match(out);
  const QSize size = windowSize(window);
  if (!x.hasMatch() || !y.hasMatch() || size.isEmpty()) return {};
  return QRect(QPoint(x.captured(1).toInt(), y.captured(1).toInt()), size);
}

QPoint AgentDesktop::popupUserButton() {
  // The header's right half, above the page, once the pop-up is drawn (the
  // tolerance takes the lighter blue under the mouse too).
  QPoint found;
  waitUntil(
      [&] {
        const QRect pop = windowRect(popup());
        if (!pop.isEmpty())
          found = findColour(QColor(0x0A, 0x9C, 0xFF),
                             QRect(pop.center().x(), pop.top(), pop.width() / 2, 50), 80);
        return !found.isNull();
      },
      5000);
  return found;
}

QPoint AgentDesktop::popupListButton() {
  const QPoint user = popupUserButton();
  // 12 apart, the list button's 32 and the user button's 24: centres 40 apart.
  return user.isNull() ? user : user - QPoint(40, 0);
}

void AgentDesktop::clickAt(const QPoint& p) {
  run("xdotool", {"mousemove", "--sync", QString::number(p.x()), QString::number(p.y()), "click", "1"});
}

bool AgentDesktop::pressUntil(const QString& key, const std::function<bool()>& done, int ms) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < ms) {
    keys({key});
    if (waitUntil(done, 3000)) return true;
  }
  return done();
}

// ---- end of the block ----

}  // namespace desktop_test
