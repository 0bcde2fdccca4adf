#include "tests/desktop/agent-desktop.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>

#include <cmath>

namespace desktop_test {
namespace {

// The pixels of `image` within `tolerance` of `colour`, inside `area`: how
// many, and the sum of their places.
int matching(const QImage& image, const QColor& colour, int tolerance, QRect area, QPoint* sum = nullptr) {
  area = area.intersected(image.rect());
  int n = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    const QRgb* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = area.left(); x <= area.right(); ++x) {
      if (std::abs(qRed(line[x]) - colour.red()) + std::abs(qGreen(line[x]) - colour.green()) +
              std::abs(qBlue(line[x]) - colour.blue()) >
          tolerance)
        continue;
      ++n;
      if (sum) *sum += QPoint(x, y);
    }
  }
  return n;
}

}  // namespace

const char* pictureName(TrayPicture p) {
  static const char* const names[] = {"missing",         "connect",     "running (blue)",
                                      "success (green)", "error (red)", "warning (orange)"};
  return names[static_cast<int>(p)];
}

TrayPicture classifyTrayPicture(const QImage& icon) {
  if (icon.isNull()) return TrayPicture::Missing;
  // The state colours of the tray pictures; at least 6 pixels of one.
  const std::pair<QColor, TrayPicture> shades[] = {{QColor(0x0A, 0x9C, 0xFF), TrayPicture::Running},
                                                   {QColor(0x00, 0xA2, 0x82), TrayPicture::Success},
                                                   {QColor(0xE6, 0x40, 0x40), TrayPicture::Error},
                                                   {QColor(0xF2, 0x9A, 0x2E), TrayPicture::Warning}};
  const QImage rgb = icon.convertToFormat(QImage::Format_RGB32);
  TrayPicture best = TrayPicture::Connect;
  int most = 5;
  for (const auto& [colour, picture] : shades) {
    const int n = matching(rgb, colour, 59, rgb.rect());
    if (n > most) most = n, best = picture;
  }
  return best;
}

void AgentDesktop::SetUp() {
  for (const char* program :
       {"Xvfb", "dbus-daemon", "openbox", "tint2", "dunst", "xdotool", "import", "xprop", "xwininfo", "curl"})
    ASSERT_FALSE(QStandardPaths::findExecutable(program).isEmpty())
        << program << " is missing: scripts/setup installs the desktop test tools";
  scratch_ = std::make_unique<nimbra_test::TempDir>();
  const QString dir = scratch();
  ::chmod(scratch_->path().c_str(), 0700);
  const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
  shotDir_ = build("/tests/desktop-shots/" + QString::fromUtf8(info->test_suite_name()).replace('/', '.') +
                   "." + info->name());
  QDir(shotDir_).removeRecursively();
  QDir().mkpath(shotDir_);

  desktop_ = std::make_unique<nimbra_test::VirtualDesktop>(dir);
  for (const QString& why :
       {desktop_->startBus(), desktop_->startDisplay("1280x800x24"), desktop_->startWindowManager(),
        withTray() ? desktop_->startTray(trayConfig()) : "", desktop_->startDunst()})
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
  ASSERT_TRUE(
      nimbra_test::write_text(browser,
                              QStringLiteral("#!/bin/sh\n"
                                             "echo \"open $1\" >> '%1/browser.log'\n"
                                             "curl -sf --max-time 10 -o '%1/signin.html' \"$1\" || exit 1\n"
                                             "back=$(curl -s --max-time 10 -o /dev/null -w '%{redirect_url}' "
                                             "--data 'email=&password=simulated' \"$1\")\n"
                                             "echo \"back $back\" >> '%1/browser.log'\n"
                                             "case \"$back\" in nimbrabackup://*) ;; *) exit 1 ;; esac\n"
                                             "exec '%2' \"$back\"\n")
                                  .arg(dir, build("/bin/nimbra-backup-agent")),
                              true));
  env_.insert("BROWSER", browser);
  record_ = dir + "/requests.jsonl";
  ASSERT_TRUE(useDebugLog());
}

void AgentDesktop::TearDown() {
  if (desktop_ && HasFailure()) shot("at-failure");
  nimbra_test::stop_process(agent_);
  stopSim();
  if (HasFailure() && scratch_) {
    // What a person needs to see why: beside the screenshots.
    QDirIterator it(scratch(), {"*.log", "*.jsonl", "*.err", "*.out", "*.txt"}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
      const QString f = it.next();
      QFile::copy(f, shotDir_ + "/" + QString(f).remove(0, scratch().size() + 1).replace('/', '_'));
    }
    std::fprintf(stderr, "---- agent log (last 4000 characters) ----\n%s\n---- requests ----\n%s\n",
                 agentLog().right(4000).toUtf8().constData(), actions().join(' ').toUtf8().constData());
  }
  desktop_.reset();
  scratch_.reset();
}

::testing::AssertionResult AgentDesktop::useDebugLog() {
  const QString app = scratch() + "/app";
  if (!QDir().mkpath(app + "/bin") || !QDir().mkpath(app + "/resource"))
    return ::testing::AssertionFailure() << "cannot make " << app.toStdString();
  // The agent finds its resources and the notifier beside its own path.
  for (const char* program : {"nimbra-backup-agent", "nimbra-backup-notifier"}) {
    const QString from = build(QStringLiteral("/bin/") + program), to = app + "/bin/" + program;
    if (!QFile::exists(from)) continue;  // (the Windows programs under Wine come from their own build)
    if (::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0 &&
        !QFile::copy(from, to))
      return ::testing::AssertionFailure() << "cannot place " << program << " in " << app.toStdString();
  }
  const QDir resources(build("/resource"));
  for (const QString& name : resources.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
    if (name != "agent.debug" && !QFile::link(resources.filePath(name), app + "/resource/" + name))
      return ::testing::AssertionFailure() << "cannot link " << name.toStdString();
  if (!nimbra_test::write_text(app + "/resource/agent.debug",
                               "default_component = 7\nclient_manager_debug = 7\nwin_ipc = 4\n"))
    return ::testing::AssertionFailure() << "cannot write agent.debug";
  agentProgram_ = app + "/bin/nimbra-backup-agent";
  return ::testing::AssertionSuccess();
}

::testing::AssertionResult AgentDesktop::startSim(const QString& scenario, bool resume) {
  sim_ = std::make_unique<nimbra_test::ChildProcess>();
  sim_->setProcessEnvironment(env_);
  sim_->setStandardErrorFile(scratch() + "/sim.err", QIODevice::Append);
  QStringList args{"serve",   "--scenario",       source("/service-sim/scenarios/" + scenario + ".json"),
                   "--state", scratch() + "/sim", "--record",
                   record_};
  if (!resume) args << "--fresh";
  QString program = build("/bin/nimbra-service-sim");
  command(program, args);
  sim_->start(program, args);
  if (!sim_->waitForStarted(10000)) return ::testing::AssertionFailure() << "the simulator does not start";
  QElapsedTimer clock;
  clock.start();
  while (!sim_->canReadLine()) {
    if (clock.elapsed() > 30000 || sim_->state() == QProcess::NotRunning)
      return ::testing::AssertionFailure() << "the simulator never said ready";
    sim_->waitForReadyRead(200);
  }
  const QString ready = QString::fromUtf8(sim_->readLine()).trimmed();
  if (!ready.startsWith("ready"))
    return ::testing::AssertionFailure() << "unexpected first line: " << ready.toStdString();
  return ::testing::AssertionSuccess();
}

void AgentDesktop::stopSim(bool kill) {
  nimbra_test::stop_process(sim_, kill);
}

::testing::AssertionResult AgentDesktop::startAgent(const QStringList& args) {
  agent_ = std::make_unique<nimbra_test::ChildProcess>();
  agent_->setProcessEnvironment(env_);
  agent_->setStandardOutputFile(scratch() + "/agent.out", QIODevice::Append);
  agent_->setStandardErrorFile(scratch() + "/agent.err", QIODevice::Append);
  QString program = agentProgram_;
  QStringList all = args;
  command(program, all);
  agent_->start(program, all);
  if (!agent_->waitForStarted(10000)) return ::testing::AssertionFailure() << "the agent does not start";
  return ::testing::AssertionSuccess();
}

::testing::AssertionResult AgentDesktop::startLinked(const QString& scenario, const QStringList& args) {
  if (auto r = startSim(scenario); !r) return r;
  if (auto r = startAgent(args); !r) return r;
  if (!waitForAction("get_status", 60000)) return ::testing::AssertionFailure() << "the agent never polls";
  if (withTray() && !waitUntil([&] { return !trayIcon().isEmpty(); }, 60000))
    return ::testing::AssertionFailure() << "no icon in the tray";
  return ::testing::AssertionSuccess();
}

int AgentDesktop::launchAgain(const QStringList& args) {
  nimbra_test::ChildProcess second;
  second.setProcessEnvironment(env_);
  second.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  QString program = agentProgram_;
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

bool AgentDesktop::waitForAction(const QString& action, int ms, int count) {
  return waitUntil([&] { return countOf(action) >= count; }, ms);
}

QString AgentDesktop::agentLog() const {
  QString text;
  QDirIterator it(scratch() + "/state/NimbraBackupAgent", QDir::Files, QDirIterator::Subdirectories);
  QStringList files;
  while (it.hasNext()) files << it.next();
  files.sort();
  for (const QString& f : files) {
    QFile file(f);
    if (file.open(QIODevice::ReadOnly)) text += QString::fromUtf8(file.readAll());
  }
  return text;
}

QStringList AgentDesktop::logLines(const QString& text) const {
  return agentLog().split('\n').filter(text);
}

bool AgentDesktop::waitForLog(const QString& text, int ms, int count) {
  return waitUntil([&] { return logCount(text) >= count; }, ms);
}

QString AgentDesktop::agentStderr() const {
  QFile f(scratch() + "/agent.err");
  return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
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

bool AgentDesktop::agentHasFocus() const {
  return agent_ &&
         run("xdotool", {"getactivewindow", "getwindowpid"}).trimmed().toLongLong() == agent_->processId();
}

::testing::AssertionResult AgentDesktop::activate(const QString& window) {
  // windowactivate asks the window manager; --sync waits until it is done,
  // but a slow machine gets more than one chance.
  if (!waitUntil(
          [&] {
            int code = -1;
            run("xdotool", {"windowactivate", "--sync", window}, &code);
            return code == 0 && run("xdotool", {"getactivewindow"}).trimmed() == window;
          },
          30000))
    return ::testing::AssertionFailure() << "window " << window.toStdString() << " never became active";
  return ::testing::AssertionSuccess();
}

void AgentDesktop::keys(const QStringList& names) {
  for (const QString& k : names) run("xdotool", {"key", "--clearmodifiers", "--delay", "60", k});
}

bool AgentDesktop::pressUntil(const QString& key, const std::function<bool()>& done, int ms) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < ms) {
    keys({key});
    if (waitUntil(done, 5000)) return true;
  }
  return done();
}

QRect AgentDesktop::trayIcon() const {
  // In tint2's window tree, the agent's embedded icon window: a line such as
  //   0x600018 "nimbra-backup-agent": ("nimbra-backup-agent" ...)  22x22+0+0  +1117+774
  static const QRegularExpression icon(
      "\"nimbra-backup-agent\": "
      "\\(\"nimbra-backup-agent\".*\\s(\\d+)x(\\d+)\\+-?\\d+\\+-?\\d+\\s+\\+(-?\\d+)\\+(-?\\d+)");
  int panelIndent = -1;
  for (const QString& line : run("xwininfo", {"-root", "-tree"}).split('\n')) {
    const int indent = line.indexOf(QRegularExpression("\\S"));
    if (line.contains("\"tint2\": (\"tint2\"")) {
      panelIndent = indent;
    } else if (panelIndent >= 0 && indent >= 0 && indent <= panelIndent) {
      panelIndent = -1;
    } else if (const QRegularExpressionMatch m = icon.match(line);
               panelIndent >= 0 && m.hasMatch() && m.captured(1).toInt() > 4) {
      return QRect(m.captured(3).toInt(), m.captured(4).toInt(), m.captured(1).toInt(),
                   m.captured(2).toInt());
    }
  }
  return {};
}

TrayPicture AgentDesktop::trayPicture() const {
  const QRect where = trayIcon();
  if (where.isEmpty()) return TrayPicture::Missing;
  const QString png = scratch() + "/tray.png";
  int code = -1;
  run("import",
      {"-window", "root", "-crop",
       QStringLiteral("%1x%2+%3+%4").arg(where.width()).arg(where.height()).arg(where.x()).arg(where.y()),
       png},
      &code);
  return code == 0 ? classifyTrayPicture(QImage(png)) : TrayPicture::Missing;
}

bool AgentDesktop::waitForTrayPicture(TrayPicture want, int ms) {
  return waitUntil([&] { return trayPicture() == want; }, ms);
}

void AgentDesktop::clickTrayIcon(int button) {
  clickAt(trayIcon().center(), button);
}

void AgentDesktop::clickAt(const QPoint& p, int button) {
  run("xdotool", {"mousemove", "--sync", QString::number(p.x()), QString::number(p.y()), "click",
                  QString::number(button)});
}

int AgentDesktop::screenPixels(const QColor& colour, int tolerance) {
  const QString png = scratch() + "/screen.png";
  if (!desktop_->screenshot(png).isEmpty()) return 0;
  const QImage image = QImage(png).convertToFormat(QImage::Format_RGB32);
  return matching(image, colour, tolerance, image.rect());
}

QPoint AgentDesktop::findColour(const QColor& colour, const QRect& area, int tolerance) {
  const QString png = scratch() + "/find.png";
  if (!desktop_->screenshot(png).isEmpty()) return {};
  QPoint sum;
  const int n = matching(QImage(png).convertToFormat(QImage::Format_RGB32), colour, tolerance, area, &sum);
  return n == 0 ? QPoint() : sum / n;
}

QRect AgentDesktop::windowRect(const QString& window) const {
  const QString out = run("xdotool", {"getwindowgeometry", "--shell", window});
  int v[4];
  for (int i = 0; i < 4; ++i) {
    const QRegularExpressionMatch m =
        QRegularExpression(QStringLiteral("%1=(-?\\d+)").arg(QStringList{"X", "Y", "WIDTH", "HEIGHT"}[i]))
            .match(out);
    if (!m.hasMatch()) return {};
    v[i] = m.captured(1).toInt();
  }
  return QRect(v[0], v[1], v[2], v[3]);
}

QString AgentDesktop::popup() const {
  // The tray menu is about 400 x 232 (with the frame of its shadow), far
  // smaller than the wizard.
  for (const QString& w : agentWindows()) {
    const QSize size = windowRect(w).size();
    if (size.width() >= 380 && size.width() <= 480 && size.height() >= 220 && size.height() <= 320) return w;
  }
  return {};
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

void AgentDesktop::shot(const QString& step) {
  desktop_->screenshot(shotDir_ +
                       QStringLiteral("/%1-%2.png").arg(++shots_, 2, 10, QLatin1Char('0')).arg(step));
}

}  // namespace desktop_test
