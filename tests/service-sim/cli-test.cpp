// The nimbra-service-sim executable: --help, send and notify against a real
// agent-side pipe end, serve with a scenario, clean exit on SIGTERM, resume
// after a restart, bad scenario files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <QProcess>
#include <QTest>

#include <mutex>
#include <sstream>
#include <thread>

#include "agent-client.h"
#include "sim-test-util.h"
#include "support/temp-dir.h"
#include "win-ipc.h"

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

ProcessResult run(const QStringList& args) {
  QProcess p;
  p.start(sim_binary(), args);
  EXPECT_TRUE(p.waitForFinished(15000)) << args.join(' ').toStdString();
  ProcessResult r;
  r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
  r.out = p.readAllStandardOutput().toStdString();
  r.err = p.readAllStandardError().toStdString();
  return r;
}

// The agent's side of its own pipe: answers every request with `reply` and
// keeps what it received.
class AgentEnd {
 public:
  explicit AgentEnd(std::string reply) : reply_(std::move(reply)) {
    server_.set_timeout_ms(50);
    ok_ = server_.create(WinIpc::kAgentPipe) == 0;
    thread_ = std::thread([this] {
      while (!stop_) {
        if (!server_.accept()) continue;
        std::string text;
        if (server_.read(text, &stop_) == 0) {
          {
            std::lock_guard<std::mutex> lock(mutex_);
            received_.push_back(text);
          }
          server_.write(reply_);
        }
        server_.disconnect();
      }
    });
  }
  ~AgentEnd() {
    stop_ = true;
    thread_.join();
    server_.close();
  }
  bool ok() const { return ok_; }
  std::vector<std::string> received() {
    std::lock_guard<std::mutex> lock(mutex_);
    return received_;
  }

 private:
  WinIpc::IpcServer server_;
  std::string reply_;
  bool ok_ = false;
  std::atomic<bool> stop_{false};
  std::mutex mutex_;
  std::vector<std::string> received_;
  std::thread thread_;
};

class SimCliTest : public ::testing::Test {
 protected:
  SimCliTest() : ns_("NIMBRA_PIPE_NAMESPACE", simtest::unique_namespace("cli").c_str()) {}
  nimbra_test::TempDir dir_;
  nimbra_test::ScopedEnv ns_;
};

TEST_F(SimCliTest, HelpExplainsEveryCommand) {
  const ProcessResult r = run({"--help"});
  EXPECT_EQ(r.code, 0);
  for (const char* part : {"serve [--scenario FILE] [--state DIR] [--record FILE]", "send --pipe NAME JSON",
                           "notify --type N [--data JSON]", "NIMBRA_PIPE_NAMESPACE", "NIMBRA_WORKING_SPACE",
                           "SIGTERM", "access_token"})
    EXPECT_THAT(r.out, ::testing::HasSubstr(part));
  EXPECT_EQ(run({"serve", "--help"}).code, 0);
}

TEST_F(SimCliTest, SendDoesOneExchangeAndPrintsTheAnswer) {
  AgentEnd agent("{\"success\":true}");
  ASSERT_TRUE(agent.ok());
  const std::string message = "{\"action\":\"notifications\",\"x\":[1,2]}";
  const ProcessResult r =
      run({"send", "--pipe", "\\\\.\\pipe\\nimbrabackup-ui", QString::fromStdString(message)});
  EXPECT_EQ(r.code, 0) << r.err;
  EXPECT_EQ(r.out, "{\"success\":true}\n");
  EXPECT_THAT(agent.received(), ::testing::ElementsAre(message));
}

TEST_F(SimCliTest, SendToAnAbsentPipeFailsWithTheReason) {
  const ProcessResult r = run({"send", "--pipe", "service", "{\"action\":\"get_status\"}"});
  EXPECT_EQ(r.code, 1);
  EXPECT_THAT(r.err, ::testing::HasSubstr("cannot connect"));
  EXPECT_TRUE(r.out.empty());
}

TEST_F(SimCliTest, NotifyPushesOneNotificationRequest) {
  AgentEnd agent("{\"success\":true}");
  ASSERT_TRUE(agent.ok());
  const ProcessResult r = run({"notify", "--type", "7", "--data", "{\"status\":4}", "--id", "42"});
  EXPECT_EQ(r.code, 0) << r.err;
  const auto got = agent.received();
  ASSERT_EQ(got.size(), 1u);
  const Json::Value v = parse(got[0]);
  EXPECT_EQ(jsonx::get_string(v, "action"), "notifications");
  EXPECT_TRUE(jsonx::has(v, "site_path"));
  const Json::Value& list = jsonx::get_array(v, "notifications");
  ASSERT_EQ(list.size(), 1u);
  EXPECT_EQ(jsonx::get_int64(list[0], "id"), 42);
  EXPECT_EQ(jsonx::get_int32(list[0], "type"), 7);
  EXPECT_EQ(jsonx::get_int32(jsonx::get_object(list[0], "data"), "status"), 4);
  EXPECT_EQ(jsonx::get_int32(list[0], "action_type"), 1);
  EXPECT_FALSE(jsonx::get_bool(list[0], "noti_nimbrauser"));
}

TEST_F(SimCliTest, NotifyRefusedByTheAgentExitsThree) {
  AgentEnd agent("{\"success\":false}");
  ASSERT_TRUE(agent.ok());
  EXPECT_EQ(run({"notify", "--type", "8", "--data", "{\"total_size\":1073741824}"}).code, 3);
}

struct Usage {
  const char* label;
  QStringList args;
  const char* message;
};

class SimUsageTest : public SimCliTest, public ::testing::WithParamInterface<Usage> {};

TEST_P(SimUsageTest, ExitsTwoWithAMessage) {
  const ProcessResult r = run(GetParam().args);
  EXPECT_EQ(r.code, 2);
  EXPECT_THAT(r.err, ::testing::HasSubstr(GetParam().message));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, SimUsageTest,
    ::testing::Values(
        Usage{"NotifyWithoutType", {"notify"}, "--type"},
        Usage{"NotifyBadData", {"notify", "--type", "7", "--data", "{oops"}, "--data is not JSON"},
        Usage{"SendWithoutPipe", {"send", "{}"}, "--pipe"},
        Usage{"SendTwoMessages", {"send", "--pipe", "agent", "{}", "{}"}, "exactly one JSON"},
        Usage{"UnknownCommand", {"explode"}, "unknown command"},
        Usage{"UnknownOption", {"serve", "--colour", "red"}, "--colour"},
        Usage{"BadPort", {"serve", "--port", "99999"}, "--port"}),
    [](const auto& test_case) { return std::string(test_case.param.label); });

TEST_F(SimCliTest, ServeRefusesABadScenarioNamingTheMember) {
  nimbra_test::write_file(dir_.file("bad.json"), "{\"backup\":{\"outcome\":\"exploded\"}}");
  const ProcessResult r = run({"serve", "--scenario", QString::fromStdString(dir_.file("bad.json")),
                               "--state", QString::fromStdString(dir_.file("state"))});
  EXPECT_EQ(r.code, 2);
  EXPECT_THAT(r.err, ::testing::HasSubstr("backup.outcome"));
}

class Served {
 public:
  Served(const QStringList& args) {
    process_.start(sim_binary(), QStringList{"serve"} + args);
    ok_ = process_.waitForStarted(5000) &&
          QTest::qWaitFor(
              [this] { return process_.canReadLine() || process_.state() == QProcess::NotRunning; }, 10000) &&
          process_.readLine().startsWith("ready pipe=");
  }
  ~Served() {
    if (process_.state() != QProcess::NotRunning) {
      process_.kill();
      process_.waitForFinished(5000);
    }
  }
  bool ok() const { return ok_; }
  // SIGTERM, then the exit code (-1 when it did not end cleanly in time).
  int terminate(int signo = SIGTERM) {
    ::kill(static_cast<pid_t>(process_.processId()), signo);
    if (!process_.waitForFinished(5000) || process_.exitStatus() != QProcess::NormalExit) return -1;
    return process_.exitCode();
  }

 private:
  QProcess process_;
  bool ok_ = false;
};

TEST_F(SimCliTest, ServeRunsTheScenarioPushesNotificationsAndResumesAfterRestart) {
  AgentEnd agent("{\"success\":true}");
  ASSERT_TRUE(agent.ok());
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
  {
    Served serve(args);
    ASSERT_TRUE(serve.ok());
    // The backup ends within a second: type 7, and 80% -> 90% crosses 85%: type 8.
    ASSERT_TRUE(QTest::qWaitFor([&] { return agent.received().size() >= 2; }, 10000));
    const auto got = agent.received();
    EXPECT_EQ(jsonx::get_int32(jsonx::get_array(parse(got[0]), "notifications")[0], "type"), 7);
    EXPECT_EQ(jsonx::get_int32(jsonx::get_array(parse(got[1]), "notifications")[0], "type"), 8);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return nimbra_test::read_file(dir_.file("ws") + "/service-status") == "update_error\n"; },
        10000));
    const sim::Exchange ex = sim::exchange(WinIpc::kServicePipe, "{\"action\":\"get_status\",\"log_id\":0}");
    ASSERT_TRUE(ex.ok) << ex.error;
    const Json::Value status = parse(ex.answer);
    EXPECT_EQ(jsonx::get_int32(status, "status"), 0x2001);
    const Json::Value& logs = jsonx::get_array(jsonx::get_object(status, "content"), "logs");
    ASSERT_FALSE(logs.empty());
    log_id = jsonx::get_uint64(logs[logs.size() - 1], "id");
    EXPECT_EQ(serve.terminate(), 0);
  }
  // The record file holds the request with its time.
  EXPECT_THAT(nimbra_test::read_file(dir_.file("rec.jsonl")),
              ::testing::HasSubstr("\"request\":{\"action\":\"get_status\",\"log_id\":0}"));
  // The second run plays a scenario without the automatic backup, so the
  // figures it reports are those kept from the first run.
  nimbra_test::write_file(dir_.file("quick.json"), R"({"device": {"linked": false, "quota": 10000}})");
  {
    Served again(args);
    ASSERT_TRUE(again.ok());
    const sim::Exchange ex = sim::exchange(WinIpc::kServicePipe, "{\"action\":\"get_status\",\"log_id\":0}");
    ASSERT_TRUE(ex.ok) << ex.error;
    const Json::Value answer = parse(ex.answer);
    const Json::Value& content = jsonx::get_object(answer, "content");
    const Json::Value& logs = jsonx::get_array(content, "logs");
    ASSERT_FALSE(logs.empty());
    EXPECT_GE(jsonx::get_uint64(logs[logs.size() - 1], "id"), log_id);
    EXPECT_EQ(jsonx::get_uint64(jsonx::get_object(content, "billing"), "used_bytes"), 9000u);
    EXPECT_EQ(again.terminate(), 0);
  }
}

TEST_F(SimCliTest, InterruptEndsServingCleanlyAndFreesThePipe) {
  const QStringList args{"--state", QString::fromStdString(dir_.file("state"))};
  {
    Served serve(args);
    ASSERT_TRUE(serve.ok());
    EXPECT_EQ(serve.terminate(SIGINT), 0);
  }
  // The name is free again: a second service can serve it at once.
  Served again(args);
  ASSERT_TRUE(again.ok());
  EXPECT_TRUE(sim::exchange(WinIpc::kServicePipe, "{\"action\":\"get_connection_info\"}").ok);
  EXPECT_EQ(again.terminate(), 0);
}

TEST_F(SimCliTest, SendReadsTheMessageFromStandardInput) {
  AgentEnd agent("{\"success\":true}");
  ASSERT_TRUE(agent.ok());
  QProcess p;
  p.start(sim_binary(), {"send", "--pipe", "agent", "-"});
  ASSERT_TRUE(p.waitForStarted(5000));
  p.write("{\"action\":\"notifications\",\"from\":\"stdin\"}");
  p.closeWriteChannel();
  ASSERT_TRUE(p.waitForFinished(10000));
  EXPECT_EQ(p.exitCode(), 0);
  EXPECT_THAT(agent.received(), ::testing::ElementsAre("{\"action\":\"notifications\",\"from\":\"stdin\"}"));
}

}  // namespace
