// A hostile local user and a hung peer against the agent's ends: another
// uid (the tests fork and become "nobody" when they run as root) tries each
// attack and fails; clients that hang or send far too much leave the agent's pipe answering and its memory
// near where it was; a request stuck on a hung service ends when the agent quits. No log line of the whole
// suite carries one of the secrets planted on the way.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QThread>

#include <future>
#include <memory>
#include <vector>

#include "ipc/win-ipc.h"
#include "tests/support/foreign-process.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-communicator.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/machine-lock.h"
#include "widgets/single-application.h"
#include "widgets/user-identity.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

// Planted in requests, messages and answers; never to be seen in a log line.
const char* const kSecrets[] = {"PLANTED-TOKEN-7f3a", "PLANTED-PASSWORD-91c2", "PLANTED-ACCESS-55e1"};
const char kOk[] = R"({"success":true})";

// Each test's log, checked for the secrets at its end.
class Hostile : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!hostile::canPlayAnotherUser()) GTEST_SKIP() << "needs root to play another user";
  }
  void TearDown() override {
    for (const char* secret : kSecrets)
      EXPECT_THAT(log(), Not(HasSubstr(secret))) << "a secret reached the log";
  }
  std::string log() const { return log_.text(); }

  agent_test::Isolation isolation_;
  agent_test::LogCapture log_;
};

// Sends one framed text to the agent's pipe as this user; the reply or "".
std::string notify(const std::string& text, int budget_ms = 3000) {
  WinIpc::IpcClient client;
  std::string reply;
  if (client.connect(WinIpc::kAgentPipe, budget_ms) != 0 || client.write(text) != 0) return reply;
  client.read(reply, WinIpc::Limits{WinIpc::kAgentMessageCap, 0, budget_ms});
  return reply;
}

std::string notification() {
  return R"({"action":"notifications","notifications":[{"id":1,"type":6,"data":{}}]})";
}

// ---- the agent's own pipe --------------------------------------------------

class AgentPipe : public Hostile {
 protected:
  void start() {
    server_->init();
    server_->start();
  }
  void TearDown() override {
    server_->stop();
    EXPECT_TRUE(server_->wait(5000));
    QCoreApplication::processEvents();
    Hostile::TearDown();
  }
  const std::string name_ = WinIpc::platform_pipe_name(WinIpc::kAgentPipe);
  QSignalSpy notifications_{&GlobalConnecter::instance(), &GlobalConnecter::sigHandleNotifications};
  std::unique_ptr<ServiceIpcServer> server_ = std::make_unique<ServiceIpcServer>();
};

TEST_F(AgentPipe, AnotherUserCannotPushANotification) {
  start();
  const std::string framed =
      R"({"action":"notifications","notifications":[{"type":2}]})" + std::string(WinIpc::kEndMarker);
  const char* name = name_.c_str();
  hostile::ForeignProcess other(hostile::kForeignUid, [&](int out, int) {
    const int fd = hostile::rawConnect(name);
    if (fd < 0) return 2;
    hostile::rawSendAll(fd, framed.data(), framed.size());
    char reply[256];
    // Whatever comes back before the agent hangs up: 0 bytes expected.
    const std::size_t got = hostile::rawReadFor(fd, reply, sizeof reply, 5000);
    hostile::rawTell(out, got == 0 ? 'n' : 'y');
    return 0;
  });
  ASSERT_TRUE(other.started());
  EXPECT_EQ(other.hear(), 'n') << "the other user got an answer";
  EXPECT_EQ(other.wait(), 0);
  EXPECT_EQ(notify(notification()), kOk) << "this user is still served";
  ASSERT_TRUE(notifications_.count() == 1 || notifications_.wait(10000));
  QCoreApplication::processEvents();
  EXPECT_EQ(notifications_.count(), 1) << "only this user's notification arrived";
  EXPECT_THAT(log(), HasSubstr("refused a client of uid 65534"));
}

// Another user opening and closing connections as fast as it can costs one
// log line per interval (with the count held back), not one per connection.
TEST_F(AgentPipe, AFloodOfAnotherUsersConnectionsCostsOneLogLine) {
  start();
  const char* name = name_.c_str();
  hostile::ForeignProcess other(hostile::kForeignUid, [&](int out, int) {
    for (int i = 0; i < 3000; ++i) ::close(hostile::rawConnect(name));
    hostile::rawTell(out, 'd');
    return 0;
  });
  ASSERT_EQ(other.hear(30000), 'd');
  EXPECT_EQ(notify(notification()), kOk) << "this user is still served";
  std::size_t lines = 0;
  for (std::size_t at = 0; (at = log().find("refused a client of uid 65534", at)) != std::string::npos; ++at)
    ++lines;
  EXPECT_EQ(lines, 1u);
}

TEST_F(AgentPipe, AnotherUserHoldingTheNameDoesNotStopTheStart) {
  const auto squatter = hostile::holdName(hostile::kForeignUid, name_);
  ASSERT_EQ(squatter->hear(), 'r');
  EXPECT_NO_THROW(start());
  EXPECT_FALSE(server_->isServing());
  EXPECT_THAT(log(), HasSubstr("agent pipe held by uid 65534"));
  squatter->tell('q');
  EXPECT_EQ(squatter->wait(), 0);
  QElapsedTimer clock;
  clock.start();
  while (!server_->isServing() && clock.elapsed() < 10000) QThread::msleep(20);
  ASSERT_TRUE(server_->isServing()) << "the pipe was taken over once free";
  EXPECT_EQ(notify(notification()), kOk);
}

// Clients that never finish: the pipe still answers a real notification
// within 6 s, and the peak memory stays under 64 MiB above the start.
enum class Attack { Silent, HugeRequest };

void PrintTo(Attack a, std::ostream* os) {
  *os << (a == Attack::Silent ? "Silent" : "HugeRequest");
}

class AgentPipeAttack : public AgentPipe, public ::testing::WithParamInterface<Attack> {};

TEST_P(AgentPipeAttack, RealNotificationIsAnsweredWithin6sAndMemoryStaysBounded) {
  start();
  const Attack attack = GetParam();
  // Prepared before the fork: the child only sends.
  const std::string piece(64 * 1024, 'x');
  const std::string head = std::string(R"({"action":"notifications","pad":")");
  const std::string tail = std::string(R"("})") + WinIpc::kEndMarker;
  const std::size_t total = 200u * 1000u * 1000u;
  const char* name = name_.c_str();
  ASSERT_TRUE(hostile::resetPeakResident());
  const long before = hostile::peakResidentKiB();
  // The same user: the attack reaches the reading itself.
  hostile::ForeignProcess client(::geteuid(), [&](int out, int in) {
    const int fd = hostile::rawConnect(name);
    if (fd < 0) return 2;
    hostile::rawTell(out, 'c');
    if (attack == Attack::Silent) {
      hostile::rawAwait(in);
      return 0;
    }
    if (!hostile::rawSendAll(fd, head.data(), head.size())) return 0;
    for (std::size_t sent = 0; sent < total; sent += piece.size())
      if (!hostile::rawSendAll(fd, piece.data(), piece.size())) return 0;  // dropped: expected
    hostile::rawSendAll(fd, tail.data(), tail.size());
    hostile::rawAwait(in);
    return 0;
  });
  ASSERT_EQ(client.hear(), 'c');
  QThread::msleep(100);  // let the agent take the attacker first
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(notify(notification(), 6000), kOk) << "after " << clock.elapsed() << " ms";
  const long peak = hostile::peakResidentKiB();
  EXPECT_LT(peak - before, 64 * 1024) << "KiB above the start";
  client.tell('q');
  std::printf("answered after %lld ms (limit 6000), peak %ld KiB above the start (limit 65536)\n",
              static_cast<long long>(clock.elapsed()), peak - before);
}

INSTANTIATE_TEST_SUITE_P(Clients, AgentPipeAttack, ::testing::Values(Attack::Silent, Attack::HugeRequest),
                         [](const ::testing::TestParamInfo<Attack>& i) {
                           return ::testing::PrintToString(i.param);
                         });

TEST_F(AgentPipe, StopIsSeenWhileAClientHangs) {
  start();
  WinIpc::IpcClient silent;
  ASSERT_EQ(silent.connect(WinIpc::kAgentPipe, 3000), 0);
  ASSERT_EQ(silent.write(R"({"action":"notifications"})"), 0);  // then never reads
  WinIpc::IpcClient half;
  ASSERT_EQ(half.connect(WinIpc::kAgentPipe, 3000), 0);  // waits, sends nothing
  QThread::msleep(200);
  server_->stop();
  EXPECT_TRUE(server_->wait(3500)) << "stop() is noticed within 3 s whatever a client does";
}

// ---- the service's pipe and the request client ---------------------------

// The request client on a thread of its own, as the agent runs it.
class Client : public Hostile {
 protected:
  void SetUp() override {
    Hostile::SetUp();
    communicator_->moveToThread(&thread_);
    thread_.start();
  }
  void TearDown() override {
    communicator_->cancelRequests();
    thread_.quit();
    EXPECT_TRUE(thread_.wait(5000));
    delete communicator_;
    QCoreApplication::processEvents();
    Hostile::TearDown();
  }
  void ask(const Json::Value& request) {
    emit GlobalConnecter::instance().sigQueryService(&sender_, request);
  }

  static Json::Value tokenRequest() {
    Json::Value r = agent_test::parse(R"({"action":"get_token","content":{"type":"sso"}})");
    r["token"] = kSecrets[0];
    r["content"]["proxy_password"] = kSecrets[1];
    r["content"]["access_token"] = kSecrets[2];
    return r;
  }

  QObject sender_;
  QThread thread_;
  ServiceCommunicator* communicator_ = new ServiceCommunicator;
  QSignalSpy failed_{&GlobalConnecter::instance(), &GlobalConnecter::sigQueryServiceFailed};
  QSignalSpy done_{&GlobalConnecter::instance(), &GlobalConnecter::sigQueryServiceDone};
};

TEST_F(Client, AnotherUserServingTheServiceNameGetsNothing) {
  const std::string name = WinIpc::platform_pipe_name(WinIpc::kServicePipe);
  const std::string answer = std::string(R"({"redirect_to":"http://evil.example/"})") + WinIpc::kEndMarker;
  const char* n = name.c_str();
  hostile::ForeignProcess squatter(hostile::kForeignUid, [&](int out, int) {
    const int fd = hostile::rawBind(n, 4);
    if (fd < 0) return 2;
    hostile::rawTell(out, 'r');
    const int peer = ::accept(fd, nullptr, nullptr);
    if (peer < 0) return 3;
    hostile::rawSendAll(peer, answer.data(), answer.size());
    char got[4096];
    hostile::rawTell(out, hostile::rawReadFor(peer, got, sizeof got, 3000) == 0 ? 'n' : 'y');
    return 0;
  });
  ASSERT_EQ(squatter.hear(), 'r');
  ask(tokenRequest());
  ASSERT_TRUE(failed_.count() == 1 || failed_.wait(10000));
  EXPECT_EQ(done_.count(), 0) << "the squatter's answer was taken";
  EXPECT_EQ(squatter.hear(), 'n') << "the request (and its token) reached the squatter";
  EXPECT_THAT(log(), HasSubstr("served by uid 65534"));
}

TEST_F(Client, QuittingEndsAnExchangeWithAHungServiceAndNothingSecretIsLogged) {
  // This user's service that takes the request and never answers.
  WinIpc::IpcServer hung;
  ASSERT_EQ(hung.create(WinIpc::kServicePipe), 0);
  std::atomic<bool> stop{false};
  auto serving = std::async(std::launch::async, [&] {
    while (!stop && !hung.accept()) {
    }
    std::string request;
    hung.read(request);
    while (!stop) QThread::msleep(10);
  });
  ask(tokenRequest());
  QThread::msleep(300);
  QElapsedTimer clock;
  clock.start();
  communicator_->cancelRequests();
  ASSERT_TRUE(failed_.count() == 1 || failed_.wait(10000));
  EXPECT_LT(clock.elapsed(), 1000) << "Exit waits on a hung service for at most a second";
  // Later requests give up at once too, without an error line.
  ask(tokenRequest());
  ASSERT_TRUE(failed_.count() == 2 || failed_.wait(10000));
  stop = true;
  serving.get();
  EXPECT_THAT(log(), HasSubstr("not sent: the agent is quitting"));
}

// A service that hangs up on a request too big to go through before it
// does: the failure logs the request masked and cut.
TEST_F(Client, AFailedWriteLogsTheRequestMasked) {
  WinIpc::IpcServer service;
  ASSERT_EQ(service.create(WinIpc::kServicePipe), 0);
  auto serving = std::async(std::launch::async, [&] {
    for (int tries = 0; tries < 10 && !service.accept(); ++tries) {
    }
    service.disconnect();
  });
  Json::Value big = tokenRequest();
  big["content"]["padding"] = std::string(8 << 20, 'p');
  ask(big);
  ASSERT_TRUE(failed_.count() == 1 || failed_.wait(10000));
  serving.get();
  EXPECT_THAT(log(), HasSubstr("Failed to query service"));
  EXPECT_THAT(log(), HasSubstr("bytes cut]"));
}

// ---- the single instance ---------------------------------------------------

// With XDG_RUNTIME_DIR unset the channel must not go loose into a shared
// temporary folder: another user who made the agent's folder there first
// (with a planted lock naming pid 1 and a listening socket), or put a link in
// its place, gets nothing, and the token reaches the real primary.
TEST_F(Hostile, SingleInstanceIgnoresWhatAnotherUserPlantedInTmp) {
  nimbra_test::TempDir root;
  ASSERT_EQ(::chmod(root.path().c_str(), 0755), 0);
  const std::string tmp = root.file("tmp"), home = root.file("home");
  ASSERT_TRUE(QDir().mkpath(QString::fromStdString(tmp)) && QDir().mkpath(QString::fromStdString(home)));
  ASSERT_EQ(::chmod(tmp.c_str(), 01777), 0);
  const std::string shortNs = "h" + std::to_string(::getpid()) + "-";  // socket paths stay short
  nimbra_test::ScopedEnv noXdg("XDG_RUNTIME_DIR", nullptr), tmpdir("TMPDIR", tmp.c_str()),
      homeDir("HOME", home.c_str()), ns("NIMBRA_PIPE_NAMESPACE", shortNs.c_str());
  const std::string folder = tmp + "/nimbra-backup-agent-" + std::to_string(::geteuid());
  const QString appId = QStringLiteral("ha");
  const std::string base = shortNs + "ha-" + std::to_string(::geteuid());
  const std::string locks[2] = {folder + "/" + base + ".lock", tmp + "/" + base + ".lock"};
  const std::string socks[2] = {folder + "/" + base + ".sock", tmp + "/" + base + ".sock"};
  const std::string planted = "1\nnimbra-backup-agent\nhost\n";

  for (bool asLink : {false, true}) {
    SCOPED_TRACE(asLink ? "link" : "folder");
    hostile::ForeignProcess other(hostile::kForeignUid, [&](int out, int in) {
      if (asLink) {
        if (::mkdir((tmp + "/theirs").c_str(), 0777) != 0 ||
            ::symlink((tmp + "/theirs").c_str(), folder.c_str()) != 0)
          return 2;
      } else if (::mkdir(folder.c_str(), 0777) != 0) {
        return 2;
      }
      // The agent's names inside that folder and loose in the temporary
      // folder itself, where an agent without a private folder would look.
      int fds[2] = {-1, -1};
      for (int i = 0; i < 2; ++i) {
        const int lockFd = ::open(locks[i].c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0644);
        if (lockFd < 0 || ::write(lockFd, planted.data(), planted.size()) < 0) return 3;
        fds[i] = hostile::rawBindPath(socks[i].c_str(), 4);
        if (fds[i] < 0) return 4;
        ::chmod(socks[i].c_str(), 0777);
      }
      hostile::rawTell(out, 'r');
      pollfd p[2] = {{fds[0], POLLIN, 0}, {fds[1], POLLIN, 0}};
      hostile::rawTell(out, ::poll(p, 2, 4000) > 0 ? 'y' : 'n');
      hostile::rawAwait(in);
      for (int i = 0; i < 2; ++i) {
        ::unlink(socks[i].c_str());
        ::unlink(locks[i].c_str());
      }
      return 0;
    });
    ASSERT_EQ(other.hear(), 'r') << "the other user's set-up failed: " << other.wait();
    SingleInstance primary(appId);
    EXPECT_FALSE(primary.isRunning()) << "a planted lock does not make the agent think it runs";
    ASSERT_TRUE(primary.isPrimary());
    EXPECT_FALSE(primary.serverName().startsWith(QString::fromStdString(folder)));
    ASSERT_LT(socks[0].size(), 100u) << "the planted socket has the agent's name";
    QSignalSpy received(&primary, &SingleInstance::messageReceived);
    const QString url = QStringLiteral("nimbrabackup://nimbrabackupprotocol?access_token=") + kSecrets[2];
    auto sent = std::async(std::launch::async, [&] { return SingleInstance(appId).sendMessage(url, 5000); });
    ASSERT_TRUE(received.wait(10000));
    EXPECT_EQ(received.first().first().toString(), url);
    EXPECT_TRUE(sent.get());
    EXPECT_EQ(other.hear(), 'n') << "the other user's socket was contacted";
    other.tell('q');
    EXPECT_EQ(other.wait(), 0);
    primary.release();
    ::unlink(folder.c_str());
    ::rmdir(folder.c_str());
  }
  EXPECT_THAT(log(), HasSubstr("access_token=***"));
}

TEST_F(Hostile, OnlyAPeerOfTheSameUserCountsAsSameUser) {
  nimbra_test::TempDir root;
  ASSERT_EQ(::chmod(root.path().c_str(), 0777), 0);
  const std::string path = root.file("their.sock");
  const auto other = hostile::holdName(hostile::kForeignUid, path, true);
  ASSERT_EQ(other->hear(), 'r');
  QLocalSocket toThem;
  toThem.connectToServer(QString::fromStdString(path));
  ASSERT_TRUE(toThem.waitForConnected(3000));
  EXPECT_FALSE(user_identity::peer_is_same_user(toThem.socketDescriptor()));
  QLocalServer mine;
  ASSERT_TRUE(mine.listen(QString::fromStdString(root.file("mine.sock"))));
  QLocalSocket toMe;
  toMe.connectToServer(mine.fullServerName());
  ASSERT_TRUE(toMe.waitForConnected(3000));
  EXPECT_TRUE(user_identity::peer_is_same_user(toMe.socketDescriptor()));
  other->tell('q');
}

// Needs no other user: a missing folder is made private, an opened one or a
// link is refused, and what is no socket has no peer.
TEST(UserIdentity, OnlyAPrivateFolderOrASocketPeerCounts) {
  nimbra_test::TempDir root;
  const QString folder = QString::fromStdString(root.file("run"));
  EXPECT_FALSE(user_identity::is_private_folder(folder, false));
  ASSERT_TRUE(user_identity::is_private_folder(folder, true)) << "a missing folder is made";
  EXPECT_TRUE(user_identity::is_private_folder(folder, true)) << "and found again";
  ASSERT_EQ(::symlink(qPrintable(folder), root.file("link").c_str()), 0);
  EXPECT_FALSE(user_identity::is_private_folder(QString::fromStdString(root.file("link")), true));
  ASSERT_EQ(::chmod(qPrintable(folder), 0750), 0);
  EXPECT_FALSE(user_identity::is_private_folder(folder, false));
  EXPECT_FALSE(user_identity::peer_is_same_user(-1));
  const int notASocket = ::open("/dev/null", O_RDONLY);
  EXPECT_FALSE(user_identity::peer_is_same_user(notASocket));
  ::close(notASocket);
}

// ---- the machine-wide lock -------------------------------------------------

enum class Holder { BoundWithoutListening, BacklogFull };

void PrintTo(Holder h, std::ostream* os) {
  *os << (h == Holder::BoundWithoutListening ? "BoundWithoutListening" : "BacklogFull");
}

class MachineLockHolder : public Hostile, public ::testing::WithParamInterface<Holder> {};

TEST_P(MachineLockHolder, AnotherUsersHolderOfAnyKindRefusesTheStart) {
  MachineLock lock("hostile-lock");
  const std::string name = lock.systemName();
  const Holder kind = GetParam();
  hostile::ForeignProcess other(hostile::kForeignUid, [&](int out, int in) {
    const int fd = hostile::rawBind(name.c_str(), kind == Holder::BoundWithoutListening ? -1 : 0);
    if (fd < 0) return 2;
    // Backlog 0 takes one waiting client: this one fills it for good.
    if (kind == Holder::BacklogFull && hostile::rawConnect(name.c_str()) < 0) return 3;
    hostile::rawTell(out, 'r');
    hostile::rawAwait(in);
    return 0;
  });
  ASSERT_EQ(other.hear(), 'r');
  EXPECT_EQ(lock.acquire(), MachineLock::HeldByOtherUser);
  EXPECT_FALSE(lock.held());
  other.tell('q');
}

// The lock held at first by this user's exiting agent: the new primary takes
// it once it is free and holds it, so another user's agent finds it taken.
TEST_F(Hostile, ThePrimaryHoldsTheMachineLockOnceThisUsersHolderLetsGo) {
  MachineLock lock("hostile-life-lock");
  const std::string name = lock.systemName();
  const auto exiting = hostile::holdName(::geteuid(), name);
  ASSERT_EQ(exiting->hear(), 'r');
  ASSERT_EQ(lock.acquire(), MachineLock::HeldBySameUser);
  exiting->tell('q');
  EXPECT_EQ(lock.acquireForLife(5000), MachineLock::Acquired);
  EXPECT_TRUE(lock.held());
  hostile::ForeignProcess other(hostile::kForeignUid, [&](int out, int) {
    hostile::rawTell(out, hostile::rawBind(name.c_str(), 8) < 0 ? 'n' : 'y');
    return 0;
  });
  EXPECT_EQ(other.hear(), 'n') << "another user took the lock beside the primary";
}

INSTANTIATE_TEST_SUITE_P(Kinds, MachineLockHolder,
                         ::testing::Values(Holder::BoundWithoutListening, Holder::BacklogFull),
                         [](const ::testing::TestParamInfo<Holder>& i) {
                           return ::testing::PrintToString(i.param);
                         });

}  // namespace
