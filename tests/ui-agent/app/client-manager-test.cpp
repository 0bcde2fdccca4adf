// The client manager driven through the bus: a scripted service end answers
// its requests, each test gives the answers to the sheets and boxes it
// expects, and the effects are read from the requests, the store, the tray
// and the log.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <QAction>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <set>

#include "tests/ui-agent/agent-test.h"
#include "ui-agent/app/client-manager.h"
#include "ui-agent/core/get-status-worker.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-communicator.h"
#include "ui-agent/core/status-store.h"
#include "ui-agent/tray/system-tray.h"
#include "ui-agent/tray/tray-menu.h"
#include "ui-agent/wizard/nimbra-loading-frame.h"
#include "ui-agent/wizard/wizard.h"
#include "widgets/ui-path-manager.h"
#include "widgets/vell-message-sheet.h"

namespace {

const char* const kScheme = "nimbrabackup://nimbrabackupprotocol";

// Catches what would go to the browser.
class UrlCatcher : public QObject {
  Q_OBJECT
 public:
  QList<QUrl> urls;
  std::function<void()> then;
 public slots:
  void open(const QUrl& url) {
    urls << url;
    if (then) QTimer::singleShot(0, this, then);
  }
};

class Manager : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { agent_test::loadLook(); }

  Manager() {
    StatusStore::instance().clearConnection();
    StatusStore::instance().setStatus(static_cast<ServiceStatus>(0), Json::Value());
    manager_ = std::make_unique<ClientManager>();
    GlobalConnecter& bus = GlobalConnecter::instance();
    // The scripted service end replaces the pipe.
    QObject::disconnect(&bus, nullptr, manager_->serviceCommunicator(), nullptr);
    QObject::connect(&bus, &GlobalConnecter::sigQueryService, &script_,
                     [this](const QObject* sender, Json::Value request) { serve(sender, request); });
    QDesktopServices::setUrlHandler("https", &urls_, "open");
  }
  ~Manager() override {
    // Every answer a test gave was taken: each sheet or box it expected came.
    EXPECT_EQ(VellMessageSheet::clearNextAnswers(), 0);
    QDesktopServices::unsetUrlHandler("https");
    manager_.reset();
    StatusStore::instance().clearConnection();
  }

  void serve(const QObject* sender, const Json::Value& request) {
    if (sender != manager_.get()) return;
    requests_.push_back(request);
    const std::string action = request["action"].asString();
    if (failing_.count(action)) {
      QTimer::singleShot(0, manager_.get(), [] { emit GlobalConnecter::instance().sigQueryServiceFailed(); });
      return;
    }
    auto it = answers_.find(action);
    if (it == answers_.end()) return;
    Json::Value answer = it->second;
    answer["action"] = action;
    QTimer::singleShot(0, manager_.get(), [this, answer] {
      emit GlobalConnecter::instance().sigQueryServiceDone(manager_.get(), answer);
    });
  }
  void answer(const char* action, const char* json) { answers_[action] = agent_test::parse(json); }
  void reply(const char* action, const char* json) {
    Json::Value v = agent_test::parse(json);
    v["action"] = action;
    emit GlobalConnecter::instance().sigQueryServiceDone(manager_.get(), v);
  }
  std::vector<std::string> actions() const {
    std::vector<std::string> out;
    for (const Json::Value& r : requests_) out.push_back(r["action"].asString());
    return out;
  }
  int count(const std::string& action) const {
    int n = 0;
    for (const Json::Value& r : requests_) n += r["action"].asString() == action;
    return n;
  }
  // Pumps events until `done` or `ms` pass.
  static bool until(const std::function<bool()>& done, int ms = 10000) {
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < ms) QTest::qWait(10);
    return done();
  }
  void connect() {
    manager_->start(false);
    reply("get_connection_info",
          R"({"connection":{"address":"a","email":"ann@example.com","account_type":"vell"}})");
    ASSERT_TRUE(manager_->statusPoller()->isPolling());
    ConnectionInfo stored;  // the record is what the store holds from now on
    ASSERT_EQ(StatusStore::instance().getConnectionInfo(stored), 0);
    EXPECT_EQ(stored.address, "a");
  }
  static void send(const QString& message) { emit GlobalConnecter::instance().sigMessageReceived(message); }

  agent_test::Isolation isolation_;
  agent_test::LogCapture log_;
  std::unique_ptr<ClientManager> manager_;
  QObject script_;
  UrlCatcher urls_;
  std::map<std::string, Json::Value> answers_;
  std::set<std::string> failing_;  // actions whose exchange fails
  std::vector<Json::Value> requests_;
};

TEST_F(Manager, TokenWithoutSignInUnderWayIsIgnored) {
  manager_->start(false);
  send(QString(kScheme) + "?access_token=abc");
  EXPECT_EQ(count("get_token"), 0);
  // Also after a failed "get_auth" (the sign-in notice, then the error).
  answer("get_auth", R"({"error":{"code":5}})");
  VellMessageSheet::setNextAnswer(QMessageBox::NoButton);
  VellMessageSheet::setNextAnswer(QMessageBox::Ok);
  emit GlobalConnecter::instance().sigGetAuthURL();
  ASSERT_TRUE(until([this] { return !manager_->isAuthPending(); }));
  send(QString(kScheme) + "?access_token=abc");
  EXPECT_EQ(count("get_token"), 0);
  EXPECT_NE(log_.text().find("failed to get auth URL"), std::string::npos);
  EXPECT_EQ(log_.text().find("abc"), std::string::npos) << "the token reached the log";
}

TEST_F(Manager, MalformedReturnIsLoggedAndSendsNothing) {
  manager_->start(false);
  // The sign-in notice holds its own loop: the browser's return arrives in it.
  bool pendingAfter = false, done = false;
  QTimer::singleShot(0, [] { emit GlobalConnecter::instance().sigGetAuthURL(); });
  QTimer::singleShot(100, [&] {
    send(QString(kScheme) + "?access_token");
    pendingAfter = manager_->isAuthPending();
    manager_->wizardWindow()->closeSignInSheet();
    done = true;
  });
  ASSERT_TRUE(until([&done] { return done; }));
  EXPECT_NE(log_.text().find("Message content is wrong"), std::string::npos);
  EXPECT_EQ(actions(), std::vector<std::string>{"get_auth"});
  EXPECT_TRUE(pendingAfter);
}

// A registration request whose exchange fails ends the wait (sign-in sheet
// or connecting frame): the generic error, then the welcome page.
class RegistrationFailure : public Manager, public ::testing::WithParamInterface<const char*> {};

TEST_P(RegistrationFailure, ReturnsToTheWelcomePageWithTheGenericError) {
  const std::string failing = GetParam();
  manager_->start(false);
  answer("get_auth", R"({"redirect_to":"https://signin.example/start"})");
  answer("get_token", "{}");
  failing_.insert(failing);
  urls_.then = [] {
    send(QString(kScheme) + "?access_token=tok");
    send(QString(kScheme) + "?access_token=tok");  // a replay: ignored
  };
  if (failing != "create_device") VellMessageSheet::setNextAnswer(QMessageBox::NoButton);  // sign-in notice
  VellMessageSheet::setNextAnswer(QMessageBox::Ok);                                        // the error
  if (failing == "create_device")
    emit GlobalConnecter::instance().sigCreateDevice("z1", "s1", "vell");
  else
    emit GlobalConnecter::instance().sigGetAuthURL();
  ASSERT_TRUE(until([this] { return log_.text().find("wizard shows error -1:") != std::string::npos; }))
      << log_.text();
  Wizard* wizard = manager_->wizardWindow();
  EXPECT_TRUE(wizard->connectingFrame() == nullptr || !wizard->connectingFrame()->isVisible());
  EXPECT_EQ(wizard->pageStack()->currentWidget(), reinterpret_cast<QWidget*>(wizard->welcomePage()));
  EXPECT_FALSE(manager_->isAuthPending());
  EXPECT_EQ(count(failing), 1);
}

INSTANTIATE_TEST_SUITE_P(Requests, RegistrationFailure,
                         ::testing::Values("get_auth", "get_token", "get_site_info", "create_device"));

TEST_F(Manager, SiteInfoWithErrorButDataSucceeds) {
  manager_->start(false);
  VellMessageSheet::setNextAnswer(QMessageBox::Ok);
  reply("get_site_info", R"({"error":{"code":7},"data":[{"zid":"z"}]})");
  ServiceStatus status;
  Json::Value content;
  StatusStore::instance().getStatus(status, content);
  EXPECT_EQ(status, StatusSiteInfo);
  EXPECT_EQ(VellMessageSheet::clearNextAnswers(), 1) << "an error sheet was shown";
  EXPECT_EQ(log_.text().find("failed to get site info"), std::string::npos);
  // Without data it fails, with the error sheet.
  VellMessageSheet::setNextAnswer(QMessageBox::Ok);
  reply("get_site_info", R"({"error":{"code":7},"data":[]})");
  EXPECT_NE(log_.text().find("failed to get site info"), std::string::npos);
}

TEST_F(Manager, OldLogIdsDroppedNewOnesSortedAndKept) {
  connect();
  StatusStore::instance().setLastLogId(5);
  GlobalConnecter& bus = GlobalConnecter::instance();
  emit bus.sigNotifyStatusChange(ServiceStatus(0), ServiceStatus(0x2000),
                                 agent_test::parse(R"({"logs":[{"id":3},{"id":7},{"id":5},{"id":6}]})"));
  EXPECT_EQ(StatusStore::instance().getLastLogId(), 7u);
  const QList<LogEntry>& kept = manager_->systemTray()->trayMenu()->logEntries();
  ASSERT_EQ(kept.size(), 2);  // (which ids are new is the rule's table)
  // Not linked any more: back to setup.
  emit bus.sigNotifyStatusChange(ServiceStatus(0x2000), ServiceStatus(0x1005), Json::Value());
  EXPECT_EQ(manager_->systemTray()->connectionMode(), ConnectionMode::NotConnected);
  EXPECT_FALSE(manager_->statusPoller()->isPolling());
  EXPECT_EQ(StatusStore::instance().getLastLogId(), 0u);
  EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
  EXPECT_TRUE(manager_->wizardWindow()->isVisible());
}

// Every status shows the menu entries of the connection the poller stored.
TEST_F(Manager, EveryStatusShowsTheMenuEntriesOfTheStoredConnection) {
  connect();
  auto* console = agent_test::child<QAction>(manager_->systemTray()->trayMenu(), "actionWebConsole");
  ASSERT_NE(console, nullptr);
  EXPECT_TRUE(console->isVisible());
  ConnectionInfo forked;
  forked.is_auth_fork = true;
  StatusStore::instance().setConnectionInfo(forked);
  emit GlobalConnecter::instance().sigNotifyStatusChange(ServiceStatus(0), ServiceStatus(0x2000),
                                                         Json::Value());
  EXPECT_FALSE(console->isVisible());
}

// Error answers that echo secrets (in members of any spelling and in
// addresses' queries) are logged masked.
TEST_F(Manager, ErrorAnswersAreLoggedMasked) {
  manager_->start(false);
  // (Which names and parameters are secret is json-access's table.)
  const char* const answer = R"({"error":{"code":17,"base_url":"https://c.example/k?x=1&ACCESS_TOKEN=S1"},
      "token":"S2","sessionKey":"S6"})";
  for (const char* action : {"get_auth", "get_token", "get_site_info", "create_device"}) {
    VellMessageSheet::setNextAnswer(QMessageBox::Ok);
    reply(action, answer);
  }
  const std::string logged = log_.text();
  EXPECT_NE(logged.find("failed to create device"), std::string::npos);
  for (const char* secret : {"S1", "S2", "S6"})
    EXPECT_EQ(logged.find(std::string("\"") + secret), std::string::npos)
        << secret << " reached the log: " << logged;
  EXPECT_EQ(logged.find("=S"), std::string::npos) << logged;
}

// A push of thousands: the notifier gets the last five, the GUI thread does
// not wait for it, and its reasons (standard error) reach the log.
#ifndef _WIN32  // the stand-in notifier is a shell script
TEST_F(Manager, ANotifierIsNotWaitedForAndItsReasonsAreLogged) {
  nimbra_test::TempDir bin;
  const std::string go = bin.file("go");
  nimbra_test::write_file(bin.file("nimbra-backup-notifier"),
                          "#!/bin/sh\necho $# > '" + bin.file("args") + "'\nwhile [ ! -e '" + go +
                              "' ]; do sleep 0.05; done\necho 'no notification service here' >&2\nexit 3\n");
  ASSERT_EQ(::chmod(bin.file("nimbra-backup-notifier").c_str(), 0755), 0);
  UIPathManager* paths = UIPathManager::getInstance();
  const QString kept = paths->getPath(QStringLiteral("application_path"));
  paths->setPath(QStringLiteral("application_path"), QString::fromStdString(bin.path()));
  Json::Value push = agent_test::parse(R"({"action":"notifications","notifications":[]})");
  for (int i = 0; i < 3000; ++i) push["notifications"].append(agent_test::parse(R"({"type":7,"data":{}})"));
  emit GlobalConnecter::instance().sigHandleNotifications(push);
  // Back on the GUI thread while the notifier still runs.
  ASSERT_TRUE(until([&] { return nimbra_test::read_file(bin.file("args")) == "23\n"; }));
  nimbra_test::write_file(go, "");
  EXPECT_TRUE(until([this] {
    return log_.text().find("output: no notification service here") != std::string::npos;
  })) << log_.text();
  EXPECT_NE(log_.text().find("3000 notifications in one push: the last 5 shown"), std::string::npos);
  paths->setPath(QStringLiteral("application_path"), kept);
}
#endif

TEST_F(Manager, PortalLinksAndAnswersForOthersIgnored) {
  connect();
  emit GlobalConnecter::instance().sigWebConsole();
  emit GlobalConnecter::instance().sigRestorePortal();
  emit GlobalConnecter::instance().sigOpenHelp();
  ASSERT_EQ(count("get_portal_link"), 3);
  EXPECT_EQ(requests_.at(requests_.size() - 3)["subaction"].asString(), "web_console");
  EXPECT_EQ(requests_.at(requests_.size() - 2)["subaction"].asString(), "restore_portal");
  EXPECT_EQ(requests_.back()["subaction"].asString(), "help");
  reply("get_portal_link", R"({"url":"https://console.example/"})");
  ASSERT_EQ(urls_.urls.size(), 1);
  Json::Value other = agent_test::parse(R"({"action":"get_portal_link","url":"https://other.example/"})");
  QObject stranger;
  emit GlobalConnecter::instance().sigQueryServiceDone(&stranger, other);
  EXPECT_EQ(urls_.urls.size(), 1);
}

}  // namespace

#include "client-manager-test.moc"
