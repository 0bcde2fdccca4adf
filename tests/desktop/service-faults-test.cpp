// A service that misbehaves under a linked agent: one that drops, garbles
// and delays answers, one whose answers carry every member with the wrong
// type, one that reports it is offline or failing, one killed and started
// again, and one killed for good. The person keeps a working agent with sane
// texts, and the agent ends only after its warning when the service is gone.
#include <QElapsedTimer>
#include <QRegularExpression>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

// What the agent logs for each failed exchange with the service.
const QString kFailedExchange = QStringLiteral("Failed to query service");
// The catalogue's texts a person reads.
const QString kConnectionError = QStringLiteral("Internet connection error. Check your Internet connection.");
const QString kServiceGone = QStringLiteral(
    "The service cannot be activated normally. Please reboot your device and try again. If the problem "
    "remains, please contact Corvana Technical Support.");

class ServiceFaults : public AgentDesktop {
 protected:
  // The agent (logging at debug level) started against `scenario` until it
  // polls and shows its icon.
  ::testing::AssertionResult connected(const QString& scenario) {
    if (auto r = useDebugLog(); !r) return r;
    if (auto r = startSim(scenario); !r) return r;
    if (auto r = startAgent(); !r) return r;
    if (!waitForAction("get_status", 30000)) return ::testing::AssertionFailure() << "the agent never polls";
    if (!waitUntil([&] { return !trayIcon().isEmpty(); }, 20000))
      return ::testing::AssertionFailure() << "no icon in the tray";
    return ::testing::AssertionSuccess();
  }

  // What the pop-up's page showed last, as the agent logs it ("status page:
  // Error | ..."), empty before it showed anything.
  QString shownPage() const {
    const QStringList lines = logLines("tray pop-up: ");
    if (lines.isEmpty()) return {};
    const QString& last = lines.last();
    return last.mid(last.indexOf("tray pop-up: ") + 13).trimmed();
  }
  // Waits until the page shown starts with `texts` (the labels' texts
  // joined by " | ").
  bool waitForPage(const QString& texts, int ms) {
    return waitUntil([&] { return shownPage().startsWith(texts); }, ms);
  }

  // A click on the icon brings the pop-up up.
  ::testing::AssertionResult openPopup() {
    if (!popup().isEmpty()) return ::testing::AssertionSuccess();
    clickTrayIcon();
    if (!waitUntil([&] { return !popup().isEmpty(); }, 15000))
      return ::testing::AssertionFailure() << "a click on the icon shows no pop-up";
    return ::testing::AssertionSuccess();
  }

  // Every page text the pop-up showed: no markup, entity or control
  // character reached the person.
  ::testing::AssertionResult pagesReadWell() const {
    static const QRegularExpression markup(
        "<[a-zA-Z/!]|&[a-zA-Z#][a-zA-Z0-9]*;|[\\x{0}-\\x{8}\\x{b}-\\x{1f}\\x{fffd}]");
    const QStringList lines = logLines("tray pop-up: ");
    if (lines.isEmpty()) return ::testing::AssertionFailure() << "the pop-up never showed a page";
    for (const QString& line : lines) {
      if (line.contains(markup))
        return ::testing::AssertionFailure() << "shown as is: " << line.toStdString();
      if (line.contains(QRegularExpression("page: *(\\| *)*$")))
        return ::testing::AssertionFailure() << "a page without text: " << line.toStdString();
    }
    return ::testing::AssertionSuccess();
  }

  // The agent's windows other than its pop-up and its icon in the tray: a
  // dialog in the person's way.
  QStringList dialogs() const {
    const QString pop = popup();
    QStringList out;
    for (const QString& w : agentWindows(".*")) {
      const QSize size = windowSize(w);
      if (w != pop && (size.width() > 64 || size.height() > 64)) out << w;
    }
    return out;
  }

  // Qt's complaint when the process ends with a thread still running, and
  // the crash reports of a process that aborts.
  ::testing::AssertionResult endedCleanly() const {
    const QString err = agentStderr();
    for (const char* bad : {"QThread: Destroyed while thread", "terminate called", "Aborted", "Segmentation"})
      if (err.contains(bad)) return ::testing::AssertionFailure() << "stderr: " << err.toStdString();
    return ::testing::AssertionSuccess();
  }
};

// ---- a flaky and a hostile service ------------------------------------------

TEST_F(ServiceFaults, FlakyServiceTheBackupIsFollowedAndTheLogTellsEachBadAnswer) {
  ASSERT_TRUE(connected("flaky"));
  // Every 5th request is dropped, every 7th answered with garbage: each
  // gets its clear line, and the agent goes on polling.
  EXPECT_TRUE(waitUntil(
      [&] {
        return !logLines("Failed to recv response from service").isEmpty() &&
               !logLines("Failed  to parse response as json string").isEmpty();
      },
      30000))
      << "no log line for the dropped or the garbled answer";
  // The backup (4 s preparing, 10 s transferring) is followed to its end.
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Success, 60000)) << "icon: " << pictureName(trayPicture());
  EXPECT_TRUE(logLines("tray icon: logo_tray_icn_blue").size() >= 1) << "the running backup was never shown";
  ASSERT_TRUE(openPopup());
  EXPECT_TRUE(waitUntil([&] { return shownPage().startsWith("status page: Successful | "); }, 15000))
      << shownPage().toStdString();
  shot("popup-after-backup");
  EXPECT_TRUE(pagesReadWell());
  EXPECT_TRUE(dialogs().isEmpty()) << "a dialog in the way: " << dialogs().join(' ').toStdString();
  EXPECT_TRUE(logLines("warning shown").isEmpty()) << logLines("warning shown").join('\n').toStdString();
  // Polling goes on with the newest log id it has seen.
  const int polls = countOf("get_status");
  EXPECT_TRUE(waitForAction("get_status", 15000, polls + 3));
  qint64 lastLogId = 0;
  for (const Request& r : records())
    if (r.action() == "get_status") lastLogId = static_cast<qint64>(r.request.value("log_id").toDouble());
  EXPECT_GT(lastLogId, 4) << "the backup's events never reached the agent";
  EXPECT_EQ(agent_->state(), QProcess::Running);
  EXPECT_FALSE(trayIcon().isEmpty());
}

TEST_F(ServiceFaults, HostileAnswersShowTheConnectionErrorAndALogLine) {
  ASSERT_TRUE(connected("hostile"));
  // No member can be read: the status page's fallback, the error page with
  // the connection error and the red icon.
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Error, 30000)) << "icon: " << pictureName(trayPicture());
  ASSERT_TRUE(openPopup());
  EXPECT_TRUE(waitForPage("status page: Error\u00a0 | " + kConnectionError, 15000))
      << shownPage().toStdString();
  shot("popup-hostile");
  EXPECT_TRUE(pagesReadWell());
  const QStringList bad = logLines("status answer");
  ASSERT_FALSE(bad.isEmpty()) << "the malformed answers leave no line in the log";
  // One line for the run of bad answers, not one a second.
  const int polls = countOf("get_status");
  ASSERT_TRUE(waitForAction("get_status", 15000, polls + 4));
  EXPECT_EQ(logLines("status answer").size(), bad.size())
      << logLines("status answer").join('\n').toStdString();
  EXPECT_TRUE(dialogs().isEmpty()) << "a dialog in the way: " << dialogs().join(' ').toStdString();
  EXPECT_EQ(agent_->state(), QProcess::Running);
}

// ---- a service that says it cannot work --------------------------------------

struct ErrorRow {
  const char* scenario;
  const char* message;
};

void PrintTo(const ErrorRow& r, std::ostream* os) {
  *os << r.scenario;
}

class ServiceSaysError : public ServiceFaults, public ::testing::WithParamInterface<ErrorRow> {};

TEST_P(ServiceSaysError, RedIconAndTheMessageForTheCode) {
  ASSERT_TRUE(connected(GetParam().scenario));
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Error, 30000)) << "icon: " << pictureName(trayPicture());
  ASSERT_TRUE(openPopup());
  EXPECT_TRUE(waitForPage(QString::fromUtf8("status page: Error\u00a0 | ") + GetParam().message, 15000))
      << shownPage().toStdString();
  shot("popup-error");
  EXPECT_TRUE(pagesReadWell());
  EXPECT_TRUE(dialogs().isEmpty()) << "a dialog in the way: " << dialogs().join(' ').toStdString();
  // The error stays while the service says so; the agent keeps asking.
  const int polls = countOf("get_status");
  ASSERT_TRUE(waitForAction("get_status", 15000, polls + 3));
  EXPECT_EQ(trayPicture(), TrayPicture::Error) << pictureName(trayPicture());
  EXPECT_EQ(logLines("tray pop-up: ").size(), 1) << logLines("tray pop-up: ").join('\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Scenarios, ServiceSaysError,
    // offline: "connected" false without an error, shown as code 5;
    // service-error: error code 5.
    ::testing::Values(ErrorRow{"offline", "Internet connection error. Check your Internet connection."},
                      ErrorRow{"service-error",
                               "Internet connection error. Check your Internet connection."}),
    [](const ::testing::TestParamInfo<ErrorRow>& row) {
      QString name = row.param.scenario;
      return name.remove('-').toStdString();
    });

// ---- the service killed ------------------------------------------------------

TEST_F(ServiceFaults, KilledTwiceAndStartedAgainWithinTheWindowNoDialog) {
  ASSERT_TRUE(connected("idle"));
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Success, 20000)) << "icon: " << pictureName(trayPicture());
  // Two outages of 16 failed polls each: 32 in all, more than the 30 the
  // agent tolerates in a row, but every status in between starts the count
  // again.
  for (int outage = 1; outage <= 2; ++outage) {
    const int failedBefore = logLines(kFailedExchange).size();
    stopSim(true);
    ASSERT_TRUE(waitUntil([&] { return logLines(kFailedExchange).size() >= failedBefore + 16; }, 40000))
        << "outage " << outage << ": the agent stopped asking";
    shot(QStringLiteral("outage-%1").arg(outage));
    EXPECT_TRUE(dialogs().isEmpty()) << "outage " << outage << ": " << dialogs().join(' ').toStdString();
    const int polls = countOf("get_status");
    ASSERT_TRUE(startSim("idle", true));
    ASSERT_TRUE(waitForAction("get_status", 15000, polls + 2))
        << "outage " << outage << ": polling not resumed";
  }
  shot("after-outages");
  EXPECT_TRUE(dialogs().isEmpty()) << dialogs().join(' ').toStdString();
  EXPECT_TRUE(logLines("warning shown").isEmpty()) << logLines("warning shown").join('\n').toStdString();
  EXPECT_EQ(trayPicture(), TrayPicture::Success) << pictureName(trayPicture());
  EXPECT_EQ(agent_->state(), QProcess::Running);
  ASSERT_TRUE(openPopup());
  EXPECT_TRUE(shownPage().startsWith("status page: Successful | ")) << shownPage().toStdString();
  shot("popup-after-outages");
}

TEST_F(ServiceFaults, KilledForGoodTheWarningAfterThirtyFailuresThenTheAgentEnds) {
  ASSERT_TRUE(connected("idle"));
  const int failedBefore = logLines(kFailedExchange).size();
  QElapsedTimer clock;
  stopSim(true);
  clock.start();
  QString warning;
  ASSERT_TRUE(waitUntil(
      [&] {
        const QStringList d = dialogs();
        warning = d.isEmpty() ? QString() : d.first();
        return !warning.isEmpty();
      },
      90000))
      << "no warning after " << clock.elapsed() << " ms";
  const qint64 shownAfter = clock.elapsed();
  shot("warning");
  // The agent asks nothing more while the warning waits for the person.
  const int failedAtWarning = logLines(kFailedExchange).size();
  // The warning alone: the pop-up (which takes the keys while up) stays away.
  EXPECT_FALSE(waitUntil([&] { return !popup().isEmpty(); }, 1500)) << "the pop-up came up over the warning";
  // Polled once a second: the 31st failure in a row is the fatal one.
  const QString log = agentLog();
  const int fatalAt = log.indexOf("service unreachable after 30 failures");
  ASSERT_GE(fatalAt, 0) << "no fatal line";
  const int failedUntilFatal = log.left(fatalAt).count(kFailedExchange) - failedBefore;
  EXPECT_GE(failedUntilFatal, 31);
  EXPECT_LE(failedUntilFatal, 32);
  EXPECT_GE(shownAfter, 25000) << "the warning came early";
  EXPECT_EQ(logLines("warning shown: [Nimbra Backup] " + kServiceGone).size(), 1);
  // Only when the person answers does the agent end, with its threads
  // joined.
  EXPECT_EQ(agent_->state(), QProcess::Running);
  EXPECT_EQ(logLines(kFailedExchange).size(), failedAtWarning) << "still polling behind the warning";
  ASSERT_TRUE(activate(warning));
  keys({"Return"});
  int code = -1;
  ASSERT_TRUE(waitForAgentExit(15000, &code)) << "the agent stays after the warning";
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(endedCleanly());
}

TEST_F(ServiceFaults, ServiceStartedLateTheAgentRetriesEverySecondThenConnects) {
  ASSERT_TRUE(useDebugLog());
  ASSERT_TRUE(startAgent());
  // No service yet: the connection record is asked for again a second after
  // each failure, not at once.
  ASSERT_TRUE(waitUntil([&] { return logLines(kFailedExchange).size() >= 1; }, 20000))
      << "the agent never asks";
  QElapsedTimer clock;
  clock.start();
  // Five more: five seconds after the first, seen here at most a moment late.
  ASSERT_TRUE(waitUntil([&] { return logLines(kFailedExchange).size() >= 6; }, 30000))
      << "the agent does not retry";
  EXPECT_GE(clock.elapsed(), 3500) << "five retries in less than four seconds";
  EXPECT_TRUE(dialogs().isEmpty()) << dialogs().join(' ').toStdString();
  ASSERT_TRUE(startSim("idle"));
  ASSERT_TRUE(waitForAction("get_connection_info", 15000));
  ASSERT_TRUE(waitForAction("get_status", 15000, 2)) << "the agent never polls";
  ASSERT_TRUE(waitForTrayPicture(TrayPicture::Success, 20000)) << "icon: " << pictureName(trayPicture());
  shot("connected");
  EXPECT_TRUE(dialogs().isEmpty()) << dialogs().join(' ').toStdString();
  EXPECT_EQ(agent_->state(), QProcess::Running);
}

}  // namespace
}  // namespace desktop_test
