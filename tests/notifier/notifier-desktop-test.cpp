// nimbra-backup-notifier as the agent runs it, against a real notification
// service (dunst on a private session bus and display): what it shows, what
// its buttons start, when its detached process ends, and its exit codes.
#include <gtest/gtest.h>

#include <signal.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>

#include "tests/support/desktop.h"
#include "tests/support/qt-print.h"
#include "tests/support/temp-dir.h"

using nimbra_test::wait_until;

namespace {

struct RunResult {
  int code = -1;
  QString err;
};

// A notification of the agent: title, text, button label, action type.
QStringList notifierArgs(const std::vector<QStringList>& elements) {
  QStringList a{"1", "/var/lib/NimbraBackupAgent/site", QString::number(elements.size())};
  for (const QStringList& e : elements) a << e;
  return a;
}
QStringList note(const QString& title, const QString& text = "x",
                 const QString& button = "Open Nimbra Backup", int action = 1) {
  return {title, text, button, QString::number(action)};
}

// A copy of the notifier beside a stand-in agent that writes its arguments,
// one run per line, into agent-args.txt; and a desktop to show on.
class Notifier : public ::testing::Test {
 protected:
  void SetUp() override {
    QDir().mkpath(scratch_ + "/app/bin");
    ASSERT_TRUE(
        QFile::copy(qEnvironmentVariable("NIMBRA_BUILD_DIR") + "/bin/nimbra-backup-notifier", program()));
    ASSERT_TRUE(nimbra_test::write_text(
        scratch_ + "/app/bin/nimbra-backup-agent",
        QString("#!/bin/sh\necho \"$*\" >> '%1/agent-args.txt'\n").arg(scratch_), true));
  }
  void TearDown() override {
    for (int pid : processes()) ::kill(pid, SIGKILL);
  }
  // Xvfb, the bus and dunst.
  void startDesktop() {
    for (const QString& why : {desktop_.startBus(), desktop_.startDisplay(), desktop_.startDunst()})
      ASSERT_EQ(why, "");
  }

  QString program() const { return scratch_ + "/app/bin/nimbra-backup-notifier"; }
  QString agentArgs() const {
    QFile f(scratch_ + "/agent-args.txt");
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
  }
  RunResult run(const QStringList& args, QProcessEnvironment env = {}, const QString& linger_ms = {}) const {
    if (env.isEmpty()) env = desktop_.environment();
    if (!linger_ms.isEmpty()) env.insert("NIMBRA_NOTIFIER_LINGER_MS", linger_ms);
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(program(), args);
    RunResult r;
    if (!p.waitForFinished(30000)) {
      p.kill();
      p.waitForFinished(3000);
      return r;
    }
    r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.err = QString::fromLocal8Bit(p.readAllStandardError());
    return r;
  }
  // Shown: back with 0 and nothing on standard error.
  void show(const std::vector<QStringList>& elements, const QString& linger_ms = {}) {
    const RunResult r = run(notifierArgs(elements), {}, linger_ms);
    EXPECT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_EQ(r.err, "");
  }
  // Live processes of this copy of the notifier (the detached one).
  std::vector<int> processes() const {
    std::vector<int> pids;
    for (const QString& pid : QDir("/proc").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      QFile status("/proc/" + pid + "/status");
      if (pid.toInt() > 0 && QFileInfo("/proc/" + pid + "/exe").symLinkTarget() == program() &&
          status.open(QIODevice::ReadOnly) && !status.readAll().contains("\nState:\tZ"))
        pids.push_back(pid.toInt());
    }
    return pids;
  }
  bool ended(int ms = 10000) const {
    return wait_until([&] { return processes().empty(); }, ms);
  }
  // Titles (or texts) of what dunst showed, after closing everything.
  QStringList shown(const char* member = "summary") {
    desktop_.run("dunstctl", {"close-all"});
    QStringList out;
    for (const QJsonValue& n : desktop_.history()) out << n.toObject().value(member).toString();
    std::sort(out.begin(), out.end());
    return out;
  }

  nimbra_test::TempDir tmp_;
  QString scratch_ = QString::fromStdString(tmp_.path());
  nimbra_test::VirtualDesktop desktop_{scratch_};
};

class NotifierButtons : public Notifier, public ::testing::WithParamInterface<int> {};

TEST_P(NotifierButtons, ShowTitleTextAndButtonAndTheButtonOpensTheAgent) {
  startDesktop();
  const int action = GetParam();
  const QString label = action == 1 ? "Open Nimbra Backup" : "Settings";
  show({note("Backup successful", "Your device was backed up.", label, action)});
  EXPECT_EQ(desktop_.displayed(), 1);
  EXPECT_EQ(processes().size(), 1u) << "the detached process stays for the button";

  const QString key = QString(",%1]").arg(action);
  const QStringList menu = desktop_.contextMenu(key);
  ASSERT_EQ(menu.size(), 2) << menu.join('\n').toStdString();
  EXPECT_TRUE(menu[0].contains(QString("#%1 (Backup successful) [").arg(label))) << menu[0].toStdString();
  EXPECT_TRUE(menu.filter(key).size() == 1 && menu.filter(",default]").size() == 1)
      << menu.join('\n').toStdString();
  ASSERT_TRUE(wait_until([&] { return !agentArgs().isEmpty(); }, 10000)) << "the agent was not started";
  EXPECT_EQ(agentArgs(), "open\n");
  EXPECT_TRUE(ended()) << "the notifier stays after its notification was acted on";
  EXPECT_EQ(desktop_.displayed(), 0);

  const QJsonArray history = desktop_.history();
  ASSERT_EQ(history.size(), 1);
  const QJsonObject n = history[0].toObject();
  EXPECT_EQ(n.value("body").toString(), "Your device was backed up.");
  EXPECT_EQ(n.value("appname").toString(), "Nimbra Backup");
  EXPECT_EQ(n.value("default_action_name").toString(), "default");
}

INSTANTIATE_TEST_SUITE_P(OpenAndSettings, NotifierButtons, ::testing::Values(1, 11));

TEST_F(Notifier, AClickOnTheNotificationOpensTheAgent) {
  startDesktop();
  show({note("Storage is full", "x", "Open Nimbra Backup", 2)});
  desktop_.run("dunstctl", {"action", "0"});
  ASSERT_TRUE(wait_until([&] { return !agentArgs().isEmpty(); }, 10000));
  EXPECT_EQ(agentArgs(), "open\n");
  EXPECT_TRUE(ended());
  EXPECT_EQ(desktop_.displayed(), 0);
}

TEST_F(Notifier, ElementsOfOneRunReplaceEachOtherInOrder) {
  startDesktop();
  show({note("First", "one"), note("", "", "Open Nimbra Backup", 0), note("Second", "two"),
        note("Third", "three", "Settings", 11)});
  EXPECT_EQ(desktop_.displayed(), 1);
  EXPECT_EQ(shown("body"), QStringList{"three"}) << "replaced notifications do not stay";
  EXPECT_TRUE(ended()) << "closing the notification ends the notifier";
  EXPECT_EQ(agentArgs(), "");
}

TEST_F(Notifier, ARepeatedEventReplacesItsEarlierNotificationOthersStay) {
  startDesktop();
  show({note("Backup failed", "one")});
  show({note("Storage full", "two")});
  show({note("Backup failed", "three")});
  EXPECT_EQ(desktop_.displayed(), 2);
  EXPECT_EQ(shown("body"), QStringList({"three", "two"}));
}

TEST_F(Notifier, ARunWhoseNotificationWasReplacedLeavesItOnScreen) {
  startDesktop();
  show({note("Backup failed", "one")}, "1500");
  const std::vector<int> first = processes();
  show({note("Backup failed", "two")});
  // The first run's time is over: it ends without closing what the second shows.
  ASSERT_TRUE(wait_until(
      [&] {
        const std::vector<int> now = processes();
        return std::none_of(first.begin(), first.end(),
                            [&](int pid) { return std::find(now.begin(), now.end(), pid) != now.end(); });
      },
      10000));
  EXPECT_EQ(desktop_.displayed(), 1);
}

TEST_F(Notifier, MarkupInTitleAndTextIsShownAsText) {
  startDesktop();
  show({note("<b>Nimbra</b> & co", "Tom & <i>Jerry</i> <a href=\"x\">y</a>")});
  desktop_.run("dunstctl", {"close-all"});
  const QJsonObject n = desktop_.history().at(0).toObject();
  EXPECT_EQ(n.value("summary").toString(), "<b>Nimbra</b> & co");
  EXPECT_EQ(n.value("body").toString(),
            "Tom &amp; &lt;i&gt;Jerry&lt;/i&gt; &lt;a href=&quot;x&quot;&gt;y&lt;/a&gt;");
  // What dunst renders: its own bold title, our words as text.
  const QString message = n.value("message").toString();
  EXPECT_FALSE(message.contains("<i>") || message.contains("<a ") || message.contains("<b>Nimbra"))
      << message.toStdString();
}

TEST_F(Notifier, LeavesAfterItsTimeTakingItsNotificationAlongOrWhenTheServiceDoes) {
  startDesktop();
  show({note("Device removed")}, "500");
  EXPECT_TRUE(ended());
  EXPECT_EQ(desktop_.displayed(), 0);
  EXPECT_EQ(agentArgs(), "");
  show({note("Backup successful")});
  desktop_.stopDunst();
  EXPECT_TRUE(ended());
}

// Without a notification service or anything to show: the exit code, at
// most one line on standard error, and no process left.
struct Unshown {
  const char* name;
  QStringList args;
  const char* bus;  // "none", "empty": a bus without a notification service
  int code;
  const char* says;
};
void PrintTo(const Unshown& u, std::ostream* os) {
  *os << u.name;
}
class NotifierUnshown : public Notifier, public ::testing::WithParamInterface<Unshown> {};

TEST_P(NotifierUnshown, ExitsWithItsCodeAndOneLine) {
  const Unshown& row = GetParam();
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert("XDG_STATE_HOME", scratch_ + "/state");
  if (QString(row.bus) == "empty") {
    ASSERT_EQ(desktop_.startBus(), "");
    env = desktop_.environment();
  } else {
    env.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + scratch_ + "/no-bus");
  }
  const RunResult r = run(row.args, env);
  EXPECT_EQ(r.code, row.code) << r.err.toStdString();
  EXPECT_TRUE(r.err.contains(row.says)) << r.err.toStdString();
  EXPECT_EQ(r.err.count('\n'), row.code == 0 ? 0 : 1) << r.err.toStdString();
  EXPECT_TRUE(ended(5000));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NotifierUnshown,
    ::testing::Values(
        Unshown{"NoServiceOnTheBus", notifierArgs({note("Backup")}), "empty", 3, "no notification service"},
        Unshown{"NoSessionBus", notifierArgs({note("Backup")}), "none", 3, ""},
        Unshown{"MalformedArguments",
                {"1", "/s", "2", "t", "x", "Open", "1"},
                "none",
                2,
                "nimbra-backup-notifier: "},
        Unshown{"NoWords", notifierArgs({note("", "", "Open Nimbra Backup", 13)}), "none", 0, ""}),
    [](const auto& p) { return std::string(p.param.name); });

}  // namespace
