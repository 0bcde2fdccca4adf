// The nimbra-service-sim executable: --help, send and notify against a real
// agent-side pipe end, failures and their exit codes, serve with a scenario,
// clean exit on SIGINT/SIGTERM, resume after a restart.
#include <gmock/gmock.h>
#include <signal.h>

#include <QProcess>
#include <QTcpServer>
#include <QTest>

#include <functional>

#include "ipc/win-ipc.h"
#include "service-sim/agent-client.h"
#include "tests/service-sim/sim-test-util.h"
#include "tests/support/temp-dir.h"

using simtest::num;
using simtest::parse;

namespace {

QString sim_binary() {
  return QString::fromLocal8Bit(qgetenv("NIMBRA_BUILD_DIR")) + "/bin/nimbra-service-sim";
}

struct ProcessResult {
  int code = -1;
  std::string out;
  std::string err;
};

// Runs the simulator with `args` and `input` on its standard input; `meanwhile`
// runs while it does (the agent's end serving it).
ProcessResult run(const QStringList& args, const std::function<void()>& meanwhile = {},
                  const QByteArray& input = {}) {
  QProcess p;
  p.start(sim_binary(), args);
  EXPECT_TRUE(p.waitForStarted(5000));
  p.write(input);
  EXPECT_TRUE(input.isEmpty() || p.waitForBytesWritten(5000));
  p.closeWriteChannel();
  if (meanwhile) meanwhile();
  EXPECT_TRUE(p.waitForFinished(15000)) << args.join(' ').toStdString();
  return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput().toStdString(),
          p.readAllStandardError().toStdString()};
}

// The agent's end of its own pipe, served from the test's thread: take()
// answers up to `count` requests with `reply`, waiting up to 10 s, and
// returns what came.
class AgentEnd {
 public:
  AgentEnd() {
    server_.set_timeout_ms(50);
    EXPECT_EQ(server_.create(WinIpc::kAgentPipe), 0);
  }
  ~AgentEnd() { server_.close(); }
  std::vector<std::string> take(std::size_t count, const std::string& reply = "{\"success\":true}") {
    std::vector<std::string> got;
    for (int round = 0; round < 200 && got.size() < count; ++round) {
      if (!server_.accept()) continue;
      std::string text;
      if (server_.read(text) == 0 && server_.write(reply) == 0) got.push_back(text);
      server_.disconnect();
    }
    return got;
  }

 private:
  WinIpc::IpcServer server_;
};

class SimCliTest : public ::testing::Test {
 protected:
  nimbra_test::TempDir dir_;
  nimbra_test::ScopedEnv ns_{"NIMBRA_PIPE_NAMESPACE", simtest::unique_namespace("cli").c_str()};
};

TEST_F(SimCliTest, SendDoesOneExchangeAndPrintsTheAnswer) {
  AgentEnd agent;
  const std::string message = "{\"action\":\"notifications\",\"x\":[1,2]}";
  std::vector<std::string> got;
  const auto serve_one = [&] { got.push_back(agent.take(1).at(0)); };
  const ProcessResult r =
      run({"send", "--pipe", "\\\\.\\pipe\\nimbrabackup-ui", QString::fromStdString(message)}, serve_one);
  EXPECT_EQ(r.code, 0) << r.err;
  EXPECT_EQ(r.out, "{\"success\":true}\n");
  // "-" reads the message from standard input.
  EXPECT_EQ(run({"send", "--pipe", "agent", "-"}, serve_one, "{\"from\":\"stdin\"}").code, 0);
  EXPECT_THAT(got, ::testing::ElementsAre(message, "{\"from\":\"stdin\"}"));
}

TEST_F(SimCliTest, NotifyPushesOneNotificationRequest) {
  AgentEnd agent;
  std::vector<std::string> got;
  const ProcessResult r =
      run({"notify", "--type", "7", "--data", "{\"status\":4}", "--id", "42"}, [&] { got = agent.take(1); });
  EXPECT_EQ(r.code, 0) << r.err;
  ASSERT_EQ(got.size(), 1u);
  const Json::Value v = parse(got[0]);
  EXPECT_EQ(jsonx::get_string(v, "action"), "notifications");
  EXPECT_TRUE(jsonx::has(v, "site_path"));
  const Json::Value& list = jsonx::get_array(v, "notifications");
  ASSERT_EQ(list.size(), 1u);
  EXPECT_EQ(num(list[0], "id"), 42);
  EXPECT_EQ(num(list[0], "type"), 7);
  EXPECT_EQ(num(list[0], "data/status"), 4);
  EXPECT_EQ(num(list[0], "action_type"), 1);
  EXPECT_FALSE(jsonx::get_bool(list[0], "noti_nimbrauser"));
}

struct Failure {
  QStringList args;
  int code;
  const char* message;                // in standard error
  const char* agent_reply = nullptr;  // nullptr: no agent pipe
};
void PrintTo(const Failure& c, std::ostream* os) {
  *os << c.args.join(' ').toStdString();
}

class SimFailureTest : public SimCliTest, public ::testing::WithParamInterface<Failure> {};

TEST_P(SimFailureTest, ExitsNonZeroWithTheReason) {
  const char* reply = GetParam().agent_reply;
  std::unique_ptr<AgentEnd> agent(reply != nullptr ? new AgentEnd : nullptr);
  const ProcessResult r =
      run(GetParam().args, [&] { EXPECT_TRUE(agent == nullptr || agent->take(1, reply).size() == 1u); });
  EXPECT_EQ(r.code, GetParam().code);
  EXPECT_THAT(r.err, ::testing::HasSubstr(GetParam().message));
  // Only an answer that came is printed.
  EXPECT_EQ(r.out, reply != nullptr ? std::string(reply) + "\n" : "");
}

INSTANTIATE_TEST_SUITE_P(
    Commands, SimFailureTest,
    ::testing::ValuesIn(std::vector<Failure>{
        {{"notify"}, 2, "--type"},
        {{"notify", "--type", "7", "--data", "{oops"}, 2, "--data is not JSON"},
        {{"send", "{}"}, 2, "--pipe"},
        {{"send", "--pipe", "agent", "{}", "{}"}, 2, "exactly one JSON"},
        {{"explode"}, 2, "unknown command"},
        {{"serve", "--colour", "red"}, 2, "--colour"},
        {{"serve", "--port", "99999"}, 2, "--port"},
        {{"serve", "--scenario", "/nonexistent/x.json"}, 2, "/nonexistent/x.json: cannot be opened"},
        {{"send", "--pipe", "service", "{}"}, 1, "cannot connect"},
        {{"notify", "--type", "8"}, 3, "", "{\"success\":false}"}}));

// A sign-in port another program holds: the simulator says so and exits 1.
TEST_F(SimCliTest, ServeFailsWhenTheSignInPortIsTaken) {
  QTcpServer taken;
  ASSERT_TRUE(taken.listen(QHostAddress::LocalHost));
  const ProcessResult r = run({"serve", "--port", QString::number(taken.serverPort())});
  EXPECT_EQ(r.code, 1);
  EXPECT_THAT(r.err, ::testing::HasSubstr("cannot listen on port"));
}

// Starts `serve` with `args`; true once it printed its "ready" line.
bool serve(QProcess& p, const QStringList& args) {
  p.start(sim_binary(), QStringList{"serve"} + args);
  return p.waitForStarted(5000) &&
         QTest::qWaitFor([&] { return p.canReadLine() || p.state() == QProcess::NotRunning; }, 10000) &&
         p.readLine().startsWith("ready pipe=");
}

// Sends `signo`, then the exit code (-1 when it did not end cleanly in time).
int terminate(QProcess& p, int signo) {
  ::kill(static_cast<pid_t>(p.processId()), signo);
  if (!p.waitForFinished(5000) || p.exitStatus() != QProcess::NormalExit) return -1;
  return p.exitCode();
}

// get_status from the served pipe, and the id of its newest log entry.
std::uint64_t last_log_id(Json::Value& status) {
  const sim::Exchange ex = sim::exchange(WinIpc::kServicePipe, "{\"action\":\"get_status\",\"log_id\":0}");
  EXPECT_TRUE(ex.ok) << ex.error;
  status = parse(ex.answer);
  const Json::Value& logs = jsonx::get_array(simtest::at(status, "content"), "logs");
  EXPECT_FALSE(logs.empty());
  return logs.empty() ? 0 : jsonx::get_uint64(logs[logs.size() - 1], "id");
}

TEST_F(SimCliTest, ServeRunsTheScenarioPushesNotificationsAndResumesAfterRestart) {
  AgentEnd agent;
  nimbra_test::ScopedEnv ws("NIMBRA_WORKING_SPACE", dir_.file("ws").c_str());
  nimbra_test::write_file(dir_.file("quick.json"), R"({
    "description": "tiny",
    "device": {"linked": true, "quota": 10000, "used_bytes": 8000},
    "backup": {"prepare_seconds": 0.2, "total_bytes": 1000, "rate_bytes_per_second": 4000, "delta_ratio": 1},
    "auto_backup_after_seconds": 0,
    "upgrade": {"start_after_seconds": 0, "duration_seconds": 0.3, "outcome": "error"}
  })");
  const QStringList args{"--scenario", QString::fromStdString(dir_.file("quick.json")),
                         "--state",    QString::fromStdString(dir_.file("state")),
                         "--record",   QString::fromStdString(dir_.file("rec.jsonl")),
                         "--tick-ms",  "20"};
  std::uint64_t log_id = 0;
  Json::Value status;
  {
    QProcess first;
    ASSERT_TRUE(serve(first, args));
    // The backup ends within a second: type 7, and 80% -> 90% crosses 85%: type 8.
    const auto got = agent.take(2);
    ASSERT_EQ(got.size(), 2u);
    EXPECT_EQ(num(jsonx::get_array(parse(got[0]), "notifications")[0], "type"), 7);
    EXPECT_EQ(num(jsonx::get_array(parse(got[1]), "notifications")[0], "type"), 8);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return nimbra_test::read_file(dir_.file("ws") + "/service-status") == "update_error\n"; },
        10000));
    log_id = last_log_id(status);
    EXPECT_EQ(num(status, "status"), 0x2001);
    // SIGINT ends serving cleanly and frees the pipe for the next run.
    EXPECT_EQ(terminate(first, SIGINT), 0);
  }
  // The record file holds the request with its time.
  EXPECT_THAT(nimbra_test::read_file(dir_.file("rec.jsonl")),
              ::testing::HasSubstr("\"request\":{\"action\":\"get_status\",\"log_id\":0}"));
  // The second run plays a scenario without the automatic backup, so the
  // figures it reports are those kept from the first run.
  nimbra_test::write_file(dir_.file("quick.json"), R"({"device": {"linked": false, "quota": 10000}})");
  QProcess again;
  ASSERT_TRUE(serve(again, args));
  EXPECT_GE(last_log_id(status), log_id);
  EXPECT_EQ(num(status, "content/billing/used_bytes"), 9000);
  EXPECT_EQ(terminate(again, SIGTERM), 0);
}

}  // namespace
