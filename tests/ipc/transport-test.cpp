// Client and server ends over the real transport of the platform (abstract
// Unix sockets on Linux, named pipes on Windows and under Wine).

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "log-capture.h"
#include "win-ipc.h"

namespace {

using Clock = std::chrono::steady_clock;
using WinIpc::IpcClient;
using WinIpc::IpcServer;
using WinIpc::kEndMarker;

const std::string kMarker(kEndMarker);

long long ms_since(Clock::time_point t) {
  return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - t).count();
}

class Transport : public ::testing::Test {
 protected:
  void SetUp() override {
    name_ = ipc_test::unique_pipe("t");
    ASSERT_EQ(server_.create(name_), 0) << log_.text();
  }

  // Runs one server round on a thread: accept, read, reply, disconnect.
  // The future holds what the server read ("<failed>" when it could not).
  // `accepted`, when given, is set once a client is connected.
  std::future<std::string> serve_once(const std::string& reply, std::promise<void>* accepted = nullptr) {
    return std::async(std::launch::async, [this, reply, accepted] {
      const bool in = server_.accept();
      if (accepted != nullptr) accepted->set_value();
      if (!in) return std::string("<no client>");
      std::string request;
      const int rc = server_.read(request);
      if (rc == 0) server_.write(reply);
      server_.disconnect();
      return rc == 0 ? request : std::string("<failed>");
    });
  }

  ipc_test::LogCapture log_;
  std::string name_;
  IpcServer server_;
};

struct SizeCase {
  const char* name;
  std::size_t request;
  std::size_t reply;
};

void PrintTo(const SizeCase& c, std::ostream* os) {
  *os << c.name;
}

class Exchange : public Transport, public ::testing::WithParamInterface<SizeCase> {};

std::string pattern(std::size_t n, char seed) {
  std::string s(n, ' ');
  for (std::size_t i = 0; i < n; ++i) s[i] = static_cast<char>('!' + (seed + i * 7) % 90);  // never NUL
  return s;
}

TEST_P(Exchange, BothWaysIntact) {
  const SizeCase& c = GetParam();
  const std::string request = pattern(c.request, 3);
  const std::string reply = pattern(c.reply, 11);
  auto served = serve_once(reply);

  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0) << log_.text();
  EXPECT_TRUE(client.is_open());
  ASSERT_EQ(client.write(request), 0);
  std::string got;
  ASSERT_EQ(client.read(got), 0) << log_.text();
  const std::string seen = served.get();
  EXPECT_EQ(seen.size(), request.size());
  EXPECT_TRUE(seen == request);
  EXPECT_EQ(got.size(), reply.size());
  EXPECT_TRUE(got == reply);
  EXPECT_EQ(log_.text(), "");
}

INSTANTIATE_TEST_SUITE_P(Sizes, Exchange,
                         ::testing::Values(SizeCase{"Empty", 0, 0}, SizeCase{"Small", 300, 2048},
                                           SizeCase{"TextFillsReadBuffer", 4095, 4095},
                                           SizeCase{"TextOneOverReadBuffer", 4096, 4096},
                                           SizeCase{"FramedFillsReadBuffer", 4095 - 13, 4096 - 13},
                                           SizeCase{"TenMegabytes", 10u << 20, 10u << 20}),
                         [](const ::testing::TestParamInfo<SizeCase>& i) {
                           return std::string(i.param.name);
                         });

TEST_F(Transport, MarkerInsideTheTextCutsTheMessage) {
  auto served = serve_once("r");
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_EQ(client.write("head" + kMarker + "tail"), 0);
  std::string got;
  ASSERT_EQ(client.read(got), 0);
  EXPECT_EQ(served.get(), "head");
  EXPECT_EQ(got, "r");
}

TEST_F(Transport, BytesAfterTheMarkerAreNotReadAsAnotherMessage) {
  auto served = std::async(std::launch::async, [this] {
    std::vector<std::string> seen;
    if (!server_.accept()) return seen;
    std::string m;
    seen.push_back(server_.read(m) == 0 ? m : "<failed>");
    // The rest of the chunk is gone: the next read sees only the end.
    seen.push_back(server_.read(m) == 0 ? m : "<failed>");
    server_.disconnect();
    return seen;
  });
  {
    IpcClient client;
    ASSERT_EQ(client.connect(name_, 3000), 0);
    ASSERT_EQ(client.write("first" + kMarker + "second"), 0);
  }  // closed: the server's second read ends
  EXPECT_EQ(served.get(), (std::vector<std::string>{"first", "<failed>"}));
}

TEST_F(Transport, NulByteCutsTheChunkAndTheMarkerBehindItIsLost) {
  auto served = serve_once("never");
  {
    IpcClient client;
    ASSERT_EQ(client.connect(name_, 3000), 0);
    ASSERT_EQ(client.write(std::string("ab\0cd", 5)), 0);
  }
  EXPECT_EQ(served.get(), "<failed>");
}

TEST_F(Transport, PeerClosingWithoutAMessageFailsTheRead) {
  std::promise<void> accepted;
  auto served = serve_once("never", &accepted);
  {
    IpcClient client;
    ASSERT_EQ(client.connect(name_, 3000), 0);
    accepted.get_future().wait();
  }
  EXPECT_EQ(served.get(), "<failed>");
}

// One server loop of up to `rounds` accepts that answers "ack" to every
// message; the future lists what each connected round read.
std::future<std::vector<std::string>> serve_rounds(IpcServer& server, int rounds) {
  return std::async(std::launch::async, [&server, rounds] {
    std::vector<std::string> seen;
    for (int round = 0; round < rounds; ++round) {
      if (!server.accept()) continue;
      std::string m;
      if (server.read(m) == 0) {
        seen.push_back(m);
        server.write("ack");
      } else {
        seen.push_back("<failed>");
      }
      server.disconnect();
      if (!seen.empty() && seen.back() != "<failed>") break;
    }
    return seen;
  });
}

TEST_F(Transport, ClientThatClosesWithoutWritingDoesNotStopTheServer) {
  std::promise<void> accepted;
  auto first = serve_once("never", &accepted);
  {
    IpcClient silent;
    ASSERT_EQ(silent.connect(name_, 3000), 0);
    accepted.get_future().wait();
  }
  EXPECT_EQ(first.get(), "<failed>");
  auto next = serve_once("ack");
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_EQ(client.write("hello"), 0);
  std::string got;
  ASSERT_EQ(client.read(got), 0);
  EXPECT_EQ(got, "ack");
  EXPECT_EQ(next.get(), "hello");
}

TEST_F(Transport, ClientGoneBeforeAcceptDoesNotBlockTheNextOne) {
  {
    IpcClient silent;
    ASSERT_EQ(silent.connect(name_, 3000), 0);
  }
  // Linux hands the gone client to accept (its read then fails); Windows
  // drops it inside accept. Either way the next client is served.
  auto served = serve_rounds(server_, 3);
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_EQ(client.write("hello"), 0);
  std::string got;
  ASSERT_EQ(client.read(got), 0);
  EXPECT_EQ(got, "ack");
  const std::vector<std::string> seen = served.get();
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back(), "hello");
  EXPECT_LE(seen.size(), 2u);
}

TEST_F(Transport, AbsentPipeFailsAtOnceWithItsLine) {
  const std::string absent = ipc_test::unique_pipe("absent");
  IpcClient client;
  const auto start = Clock::now();
  EXPECT_EQ(client.connect(absent, 3000), -1);
  EXPECT_LT(ms_since(start), 1000) << "an absent pipe is not waited for";
  EXPECT_FALSE(client.is_open());
  EXPECT_EQ(log_.count("[ERROR][win-ipc.cpp:"), 1) << log_.text();
  EXPECT_EQ(log_.count("Failed to connect named pipe '" + absent + "'"), 1) << log_.text();
}

TEST_F(Transport, ZeroBudgetFailsWithoutTryingOrLogging) {
  IpcClient client;
  EXPECT_EQ(client.connect(name_, 0), -1);
  EXPECT_FALSE(client.is_open());
  EXPECT_EQ(client.connect(ipc_test::unique_pipe("absent"), 0), -1);
  EXPECT_EQ(log_.text(), "");
}

TEST_F(Transport, BusyPipeGivesUpSilentlyAfterTheBudget) {
  // The one waiting place is taken and the server never accepts.
  IpcClient first;
  ASSERT_EQ(first.connect(name_, 3000), 0);
  IpcClient second;
  const auto start = Clock::now();
  EXPECT_EQ(second.connect(name_, 300), -1);
  const long long took = ms_since(start);
  EXPECT_GE(took, 290);
  EXPECT_LT(took, 2500) << "gives up once the budget is spent";
  EXPECT_FALSE(second.is_open());
  EXPECT_EQ(log_.text(), "");
}

TEST_F(Transport, BusyPipeThatFreesUpWithinTheBudgetConnects) {
  IpcClient first;
  ASSERT_EQ(first.connect(name_, 3000), 0);
  std::promise<void> trying;
  auto second = std::async(std::launch::async, [this, &trying] {
    IpcClient c;
    trying.set_value();
    if (c.connect(name_, 3000) != 0) return std::string("<no connect>");
    if (c.write("second") != 0) return std::string("<no write>");
    std::string got;
    return c.read(got) == 0 ? got : std::string("<no reply>");
  });
  trying.get_future().wait();
  // The first client's exchange runs on its own thread: a write may wait
  // until the other end has read it.
  auto first_done = std::async(std::launch::async, [&first] {
    if (first.write("first") != 0) return std::string("<no write>");
    std::string got;
    return first.read(got) == 0 ? got : std::string("<no reply>");
  });
  ASSERT_TRUE(server_.accept());
  std::string m;
  ASSERT_EQ(server_.read(m), 0);
  EXPECT_EQ(m, "first");
  ASSERT_EQ(server_.write("one"), 0);
  EXPECT_EQ(first_done.get(), "one");
  ASSERT_TRUE(server_.disconnect());
  ASSERT_TRUE(server_.accept());
  ASSERT_EQ(server_.read(m), 0);
  EXPECT_EQ(m, "second");
  ASSERT_EQ(server_.write("two"), 0);
  EXPECT_EQ(second.get(), "two");
  EXPECT_TRUE(server_.disconnect());
}

TEST_F(Transport, SecondServerOnTheSameNameFailsInCreate) {
  IpcServer second;
  EXPECT_EQ(second.create(name_), -1);
  EXPECT_FALSE(second.is_open());
  EXPECT_EQ(log_.count("Failed to create named pipe '" + name_ + "', "), 1) << log_.text();
  // The first server still serves.
  auto served = serve_once("still here");
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_EQ(client.write("ping"), 0);
  std::string got;
  ASSERT_EQ(client.read(got), 0);
  EXPECT_EQ(got, "still here");
  EXPECT_EQ(served.get(), "ping");
}

TEST_F(Transport, NameIsFreeAgainAfterClose) {
  server_.close();
  EXPECT_FALSE(server_.is_open());
  IpcServer again;
  EXPECT_EQ(again.create(name_), 0) << log_.text();
}

TEST_F(Transport, AcceptWithoutClientReturnsFalseSilentlyAfterItsBudget) {
  server_.set_timeout_ms(200);
  const auto start = Clock::now();
  EXPECT_FALSE(server_.accept());
  const long long took = ms_since(start);
  EXPECT_GE(took, 190);
  EXPECT_LT(took, 2500) << "gives up once the budget is spent";
  EXPECT_EQ(log_.text(), "");
}

TEST_F(Transport, AcceptWithoutBudgetReturnsAtOnce) {
  server_.set_timeout_ms(0);
  EXPECT_FALSE(server_.accept());
  server_.set_timeout_ms(-5);
  EXPECT_FALSE(server_.accept());
  EXPECT_EQ(log_.text(), "");
}

TEST_F(Transport, CancelFlagSetBeforeReadLeavesTheMessageInThePipe) {
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_TRUE(server_.accept());
  auto written = std::async(std::launch::async, [&client] { return client.write("kept"); });
  std::atomic<bool> cancel{true};
  std::string m;
  EXPECT_EQ(server_.read(m, &cancel), -1);
  EXPECT_EQ(server_.read(m), 0);
  EXPECT_EQ(m, "kept");
  EXPECT_EQ(written.get(), 0);
}

TEST_F(Transport, CancelFlagEndsAReadThatWaitsForData) {
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_TRUE(server_.accept());
  std::atomic<bool> cancel{false};
  std::atomic<bool> reading{false};
  auto read = std::async(std::launch::async, [&] {
    std::string m;
    reading = true;
    return server_.read(m, &cancel);
  });
  while (!reading) std::this_thread::yield();
  cancel = true;
  // Looked at within 100 ms on POSIX (10 ms on Windows); the test time-out
  // catches a reader that never looks.
  EXPECT_EQ(read.get(), -1);
  EXPECT_EQ(log_.text(), "");
}

TEST_F(Transport, CancelFlagSetBeforeWriteSendsNothing) {
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_TRUE(server_.accept());
  std::atomic<bool> cancel{true};
  EXPECT_EQ(client.write("dropped", &cancel), -1);
  auto written = std::async(std::launch::async, [&client] { return client.write("sent"); });
  std::string m;
  ASSERT_EQ(server_.read(m), 0);
  EXPECT_EQ(m, "sent");
  EXPECT_EQ(written.get(), 0);
}

TEST_F(Transport, WriteToAGoneClientFailsWithItsLine) {
  {
    IpcClient client;
    ASSERT_EQ(client.connect(name_, 3000), 0);
    ASSERT_TRUE(server_.accept());
  }
  std::string m;
  EXPECT_EQ(server_.read(m), -1);  // sees the end first
  EXPECT_EQ(server_.write("reply"), -1);
  EXPECT_EQ(log_.count("failed to write named pipe: 'reply" + kMarker + "', "), 1) << log_.text();
  EXPECT_TRUE(server_.disconnect());
}

TEST_F(Transport, ClosedClientCannotReadOrWrite) {
  IpcClient client;
  EXPECT_FALSE(client.is_open());
  std::string m;
  EXPECT_EQ(client.read(m), -1);
  EXPECT_EQ(client.write("x"), -1);
  EXPECT_EQ(log_.count("read pipe failed, "), 1) << log_.text();
  EXPECT_EQ(log_.count("failed to write named pipe: 'x" + kMarker + "', "), 1) << log_.text();
}

TEST(TransportServerless, AcceptOnAServerNeverCreatedFailsWithItsLine) {
  ipc_test::LogCapture log;
  IpcServer server;
  EXPECT_FALSE(server.is_open());
  EXPECT_FALSE(server.accept());
  EXPECT_EQ(log.count("connect pipe failed, "), 1) << log.text();
}

TEST_F(Transport, ManyClientsRacingAreServedOneAtATime) {
  constexpr int kClients = 6;
  auto served = std::async(std::launch::async, [this] {
    int n = 0;
    for (int misses = 0; n < kClients && misses < 3;) {
      if (!server_.accept()) {
        ++misses;
        continue;
      }
      std::string m;
      if (server_.read(m) == 0 && server_.write("re:" + m) == 0) ++n;
      server_.disconnect();
    }
    return n;
  });
  std::vector<std::future<std::string>> clients;
  for (int i = 0; i < kClients; ++i) {
    clients.push_back(std::async(std::launch::async, [this, i] {
      IpcClient c;
      if (c.connect(name_, 10000) != 0) return std::string("<no connect>");
      if (c.write("c" + std::to_string(i)) != 0) return std::string("<no write>");
      std::string got;
      return c.read(got) == 0 ? got : std::string("<no reply>");
    }));
  }
  for (int i = 0; i < kClients; ++i) EXPECT_EQ(clients[i].get(), "re:c" + std::to_string(i));
  EXPECT_EQ(served.get(), kClients);
}

}  // namespace
