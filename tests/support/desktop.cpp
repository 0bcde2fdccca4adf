#include "tests/support/desktop.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include <signal.h>
#include <sys/prctl.h>

namespace nimbra_test {

void ChildProcess::setupChildProcess() {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

void stop_process(std::unique_ptr<QProcess>& p, bool kill) {
  if (!p) return;
  if (p->state() != QProcess::NotRunning) {
    kill ? p->kill() : p->terminate();
    if (!p->waitForFinished(5000)) {
      p->kill();
      p->waitForFinished(5000);
    }
  }
  p.reset();
}

bool write_text(const QString& path, const QString& text, bool executable) {
  QFile f(path);
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(text.toUtf8()) < 0) return false;
  f.close();
  return !executable || f.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

VirtualDesktop::VirtualDesktop(QString scratch) : scratch_(std::move(scratch)) {}

VirtualDesktop::~VirtualDesktop() {
  for (auto* p : {&dunst_, &tint2_, &openbox_, &bus_, &xvfb_}) stop_process(*p);
}

QString VirtualDesktop::startReading(QProcess& p, const QString& program, const QStringList& args,
                                     QString& first_line) {
  p.setStandardErrorFile(scratch_ + "/" + QFileInfo(program).fileName() + ".log");
  p.start(program, args);
  if (!p.waitForStarted(30000)) return program + " does not start: " + p.errorString();
  QElapsedTimer t;
  t.start();
  while (!p.canReadLine()) {
    if (t.elapsed() > 30000 || p.state() == QProcess::NotRunning) return program + " printed nothing";
    p.waitForReadyRead(200);
  }
  first_line = QString::fromUtf8(p.readLine()).trimmed();
  return {};
}

std::unique_ptr<QProcess> VirtualDesktop::startLogged(const QString& program, const QStringList& args) {
  auto p = std::make_unique<ChildProcess>();
  p->setProcessEnvironment(environment());
  p->setStandardOutputFile(scratch_ + "/" + program + ".log", QIODevice::Append);
  p->setStandardErrorFile(scratch_ + "/" + program + ".log", QIODevice::Append);
  p->start(program, args);
  return p;
}

QString VirtualDesktop::startBus() {
  // A session bus with no service folders: nothing is started on demand,
  // so a missing service stays missing.
  const QString config = scratch_ + "/bus.conf";
  write_text(config,
             QString("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
                     " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                     "<busconfig><type>session</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>\n"
                     "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
                     "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n")
                 .arg(scratch_));
  bus_ = std::make_unique<ChildProcess>();
  return startReading(*bus_, "dbus-daemon", {"--config-file=" + config, "--nofork", "--print-address=1"},
                      bus_address_);
}

QString VirtualDesktop::startDisplay(const QString& screen) {
  xvfb_ = std::make_unique<ChildProcess>();
  QString number;
  const QString why =
      startReading(*xvfb_, "Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp"}, number);
  display_ = ":" + number;
  if (!why.isEmpty()) return why;
  // Ready means a client can connect: ask the root window for a property.
  int code = -1;
  if (!wait_until(
          [&] {
            run("xprop", {"-root", "-len", "1", "_XKB_RULES_NAMES"}, &code);
            return code == 0;
          },
          30000))
    return "no client can open display " + display_;
  return {};
}

QString VirtualDesktop::startDunst() {
  const QString menu = scratch_ + "/dunst-menu";
  write_text(menu,
             QString("#!/bin/sh\n"
                     "cat > '%1/menu.part' && mv '%1/menu.part' '%1/menu.txt'\n"
                     "pick=$(cat '%1/pick.txt' 2>/dev/null)\n"
                     "[ -n \"$pick\" ] && grep -F -m1 -- \"$pick\" '%1/menu.txt'\n"
                     "exit 0\n")
                 .arg(scratch_),
             true);
  const QString config = scratch_ + "/dunstrc";
  write_text(config, QString("[global]\n    markup = full\n    dmenu = %1\n"
                             "[urgency_low]\n    timeout = 0\n[urgency_normal]\n    timeout = 0\n"
                             "[urgency_critical]\n    timeout = 0\n")
                         .arg(menu));
  dunst_ = startLogged("dunst", {"-config", config});
  if (!dunst_->waitForStarted(30000)) return "dunst does not start: " + dunst_->errorString();
  int code = -1;
  if (!wait_until(
          [&] {
            run("dunstctl", {"is-paused"}, &code);
            return code == 0;
          },
          30000))
    return "dunst does not answer on the bus";
  return {};
}

QString VirtualDesktop::startUntil(std::unique_ptr<QProcess>& p, const QString& program,
                                   const QStringList& args, const std::function<bool()>& ready) {
  // openbox sometimes fails to open a display that other clients open fine
  // and hangs without a word, and tint2 now and then never shows its panel
  // on a loaded machine: each try gets 20 s before it is stopped and another
  // starts, within 60 s in all.
  constexpr int kBudgetMs = 60000, kTryMs = 20000;
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < kBudgetMs) {
    p = startLogged(program, args);
    if (!p->waitForStarted(30000)) return program + " does not start: " + p->errorString();
    wait_until([&] { return p->state() == QProcess::NotRunning || ready(); },
               static_cast<double>(std::min<qint64>(kTryMs, kBudgetMs - clock.elapsed())));
    if (p->state() == QProcess::Running && ready()) return {};
    stop_process(p);
  }
  QFile log(scratch_ + "/" + program + ".log");
  log.open(QIODevice::ReadOnly);
  return program + " is not ready within 60 s; its log: " + QString::fromUtf8(log.readAll());
}

QString VirtualDesktop::startWindowManager() {
  // A window manager that supports _NET_ACTIVE_WINDOW announces itself on the root window.
  return startUntil(openbox_, "openbox", {"--sm-disable"}, [this] {
    return run("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains("window id");
  });
}

QString VirtualDesktop::startTray(const QString& extra) {
  const QString config = scratch_ + "/tint2rc";
  // A panel along the bottom with the task bar, the tray and a clock.
  write_text(config, QStringLiteral("panel_items = TSC\npanel_position = bottom center horizontal\n"
                                    "panel_size = 100% 30\nsystray_padding = 4 2 4\nsystray_icon_size = 22\n"
                                    "time1_format = %H:%M\n") +
                         extra);
  return startUntil(tint2_, "tint2", {"-c", config}, [this] {
    return !run("xdotool", {"search", "--onlyvisible", "--class", "tint2"}).isEmpty();
  });
}

QString VirtualDesktop::screenshot(const QString& png) const {
  int code = -1;
  run("import", {"-window", "root", png}, &code);
  return code == 0 ? QString() : "no screenshot " + png;
}

void VirtualDesktop::stopDunst() {
  stop_process(dunst_);
}

QProcessEnvironment VirtualDesktop::environment() const {
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert("DBUS_SESSION_BUS_ADDRESS", bus_address_);
  if (!display_.isEmpty()) env.insert("DISPLAY", display_);
  env.insert("XDG_STATE_HOME", scratch_ + "/state");
  env.remove("WAYLAND_DISPLAY");
  return env;
}

QString VirtualDesktop::run(const QString& program, const QStringList& args, int* exit_code) const {
  QProcess p;
  p.setProcessEnvironment(environment());
  p.start(program, args);
  p.waitForFinished(10000);
  if (exit_code != nullptr)
    *exit_code =
        p.exitStatus() == QProcess::NormalExit && p.error() != QProcess::FailedToStart ? p.exitCode() : -1;
  return QString::fromUtf8(p.readAllStandardOutput());
}

QJsonArray VirtualDesktop::history() const {
  const QJsonDocument doc = QJsonDocument::fromJson(run("dunstctl", {"history"}).toUtf8());
  QJsonArray out;
  for (const QJsonValue entry : doc.object().value("data").toArray().at(0).toArray()) {
    QJsonObject flat;
    const QJsonObject o = entry.toObject();
    for (auto it = o.begin(); it != o.end(); ++it) flat.insert(it.key(), it.value().toObject().value("data"));
    out.append(flat);
  }
  return out;
}

int VirtualDesktop::displayed() const {
  return run("dunstctl", {"count", "displayed"}).trimmed().toInt();
}

QStringList VirtualDesktop::contextMenu(const QString& pick) const {
  QFile::remove(scratch_ + "/menu.txt");
  write_text(scratch_ + "/pick.txt", pick);
  run("dunstctl", {"context"});
  QFile f(scratch_ + "/menu.txt");
  wait_until([&] { return f.exists(); }, 5000);
  if (!f.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(f.readAll()).split('\n', Qt::SkipEmptyParts);
}

}  // namespace nimbra_test
