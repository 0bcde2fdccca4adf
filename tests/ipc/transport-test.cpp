// Client and server ends over the real transport of the platform (abstract
// Unix sockets on Linux, named pipes on Windows and under Wine).

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <optional>
#include <string>
#include <vector>

#include "ipc/win-ipc.h"
#include "tests/ipc/pipes.h"

namespace {

using Clock = std::chrono::steady_clock;
using WinIpc::IpcClient;
using WinIpc::IpcServer;

const std::string m(WinIpc::kEndMarker);
const std::string kFailed = "<failed>";

long long ms_since(Clock::time_point t) {
  return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - t).count();
}

// One client exchange: connect, write, read the reply (or what went wrong).
std::string ask(const std::string& name, const std::string& request, int budget_ms = 3000) {
  IpcClient c;
  std::string got;
  if (c.connect(name, budget_ms) != 0) return "<no connect>";
  if (c.write(request) != 0) return "<no write>";
  return c.read(got) == 0 ? got : "<no reply>";
}

class Transport : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(server_.create(name_), 0) << log_.text(); }

  // Server rounds on a thread until `wanted` exchanges succeeded (gives up
  // after three idle accepts): read, answer `reply` or "re:" + request,
  // disconnect. Lists what each connected round read.
  std::future<std::vector<std::string>> serve(int wanted = 1,
                                              std::optional<std::string> reply = std::nullopt) {
    return std::async(std::launch::async, [this, wanted, reply] {
      std::vector<std::string> seen;
      for (int misses = 0, done = 0; done < wanted && misses < 3;) {
        std::string request;
        if (!server_.accept()) {
          ++misses;
          continue;
        }
        const bool ok = server_.read(request) == 0 && server_.write(reply.value_or("re:" + request)) == 0;
        seen.push_back(ok ? request : kFailed);
        done += ok ? 1 : 0;
        server_.disconnect();
      }
      return seen;
    });
  }

  nimbra_test::LogCapture log_;
  std::string name_ = ipc_test::unique_pipe("t");
  IpcServer server_;
};

using Strings = std::vector<std::string>;

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
  const std::string request = pattern(GetParam().request, 3);
  const std::string reply = pattern(GetParam().reply, 11);
  auto served = serve(1, reply);
  const std::string got = ask(name_, request);
  const Strings seen = served.get();
  ASSERT_EQ(seen.size(), 1u);
  // Not EXPECT_EQ on the texts: no dumps of 4 KB texts.
  EXPECT_TRUE(seen[0] == request) << seen[0].size() << " of " << request.size() << " bytes";
  EXPECT_TRUE(got == reply) << got.size() << " of " << reply.size() << " bytes";
  EXPECT_EQ(log_.text(), "");
}

INSTANTIATE_TEST_SUITE_P(Sizes, Exchange,
                         ::testing::Values(SizeCase{"Empty", 0, 0},
                                           SizeCase{"TextOneOverReadBuffer", 4096, 4096 - 13}),
                         [](const ::testing::TestParamInfo<SizeCase>& i) {
                           return std::string(i.param.name);
                         });

// A client that closes without writing: the server's read fails, and so
// does its reply, with a line that names sizes, never the text.
TEST_F(Transport, PeerThatClosesWithoutWritingFailsTheReadAndTheReply) {
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_TRUE(server_.accept());
  client.close();
  std::string got;
  EXPECT_EQ(server_.read(got), -1);
  EXPECT_EQ(server_.write("reply"), -1) << "the client is gone";
  EXPECT_EQ(log_.count("failed to write named pipe: 18 bytes, "), 1)
      << log_.text();  // "reply" and its marker
  EXPECT_EQ(log_.text().find("reply"), std::string::npos) << log_.text();
  EXPECT_TRUE(server_.disconnect());
}

TEST_F(Transport, ClientGoneBeforeAcceptDoesNotBlockTheNextOne) {
  ASSERT_EQ(IpcClient().connect(name_, 3000), 0);
  // Linux hands the gone client to accept (its read then fails); Windows
  // drops it inside accept. Either way the next client is served.
  auto served = serve();
  EXPECT_EQ(ask(name_, "hello"), "re:hello");
  const Strings seen = served.get();
  EXPECT_TRUE(seen == Strings{"hello"} || seen == (Strings{kFailed, "hello"}))
      << ::testing::PrintToString(seen);
}

TEST_F(Transport, AbsentPipeFailsAtOnceWithItsLine) {
  const std::string absent = ipc_test::unique_pipe("absent");
  IpcClient client;
  EXPECT_EQ(client.connect(absent, 0), -1) << "no budget: fails without trying or a line";
  const auto start = Clock::now();
  EXPECT_EQ(client.connect(absent, 3000), -1);
  EXPECT_LT(ms_since(start), 1000) << "an absent pipe is not waited for";
  EXPECT_FALSE(client.is_open());
  EXPECT_EQ(log_.count("[ERROR][win-ipc.cpp:"), 1) << log_.text();
  EXPECT_EQ(log_.count("Failed to connect named pipe '" + absent + "'"), 1) << log_.text();
}

TEST_F(Transport, IdleAcceptAndBusyConnectGiveUpSilentlyAfterTheirBudgets) {
  const auto took_ms = [](auto run) {
    const auto start = Clock::now();
    run();
    return ms_since(start);
  };
  server_.set_timeout_ms(200);
  const long long accepting = took_ms([this] { EXPECT_FALSE(server_.accept()); });
  EXPECT_GE(accepting, 190);
  EXPECT_LT(accepting, 2500) << "gives up once the budget is spent";
  // The one waiting place is taken and the server never accepts.
  IpcClient first;
  IpcClient second;
  ASSERT_EQ(first.connect(name_, 3000), 0);
  const long long connecting = took_ms([&] { EXPECT_EQ(second.connect(name_, 300), -1); });
  EXPECT_GE(connecting, 290);
  EXPECT_LT(connecting, 2500) << "gives up once the budget is spent";
  EXPECT_FALSE(second.is_open());
  EXPECT_EQ(log_.text(), "");
}

TEST_F(Transport, CancelFlagStopsReadsAndWritesAndMovesNothing) {
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_TRUE(server_.accept());
  std::atomic<bool> cancel{false};
  auto waiting = std::async(std::launch::async, [&] {
    std::string got;
    return server_.read(got, &cancel);
  });
  EXPECT_EQ(waiting.wait_for(std::chrono::milliseconds(200)), std::future_status::timeout)
      << "a read with nothing to read waits";
  cancel = true;
  // Looked at within 100 ms on POSIX (10 ms on Windows).
  ASSERT_EQ(waiting.wait_for(std::chrono::seconds(10)), std::future_status::ready) << "the flag was not seen";
  EXPECT_EQ(waiting.get(), -1);
  EXPECT_EQ(client.write("dropped", &cancel), -1);
  auto written = std::async(std::launch::async, [&client] { return client.write("kept"); });
  std::string got;
  EXPECT_EQ(server_.read(got, &cancel), -1) << "leaves the message in the pipe";
  EXPECT_EQ(server_.read(got), 0);
  EXPECT_EQ(got, "kept");
  EXPECT_EQ(written.get(), 0);
  EXPECT_EQ(log_.text(), "");
}

TEST_F(Transport, ManyClientsRacingAreServedOneAtATime) {
  constexpr int kClients = 6;
  auto served = serve(kClients);
  std::vector<std::future<std::string>> clients;
  for (int i = 0; i < kClients; ++i)
    clients.push_back(std::async(std::launch::async, ask, name_, "c" + std::to_string(i), 10000));
  for (int i = 0; i < kClients; ++i) EXPECT_EQ(clients[i].get(), "re:c" + std::to_string(i));
  EXPECT_EQ(served.get().size(), static_cast<std::size_t>(kClients));
}

// A client taken off the server is answered after the next one was
// accepted and answered (a new pipe instance listens on Windows).
TEST(TransportBacklog, TakenClientIsServedWhileTheNextIsAccepted) {
  nimbra_test::LogCapture log;
  const std::string name = ipc_test::unique_pipe("taken");
  IpcServer server;
  server.set_backlog(2);
  ASSERT_EQ(server.create(name), 0) << log.text();
  auto first = std::async(std::launch::async, ask, name, "a", 10000);
  ASSERT_TRUE(server.accept());
  WinIpc::IpcConnection taken;
  ASSERT_TRUE(server.take_client(taken)) << log.text();
  auto second = std::async(std::launch::async, ask, name, "b", 10000);
  std::string request;
  ASSERT_TRUE(server.accept());
  ASSERT_EQ(server.read(request), 0);
  EXPECT_EQ(request, "b");
  ASSERT_EQ(server.write("re:b"), 0);
  EXPECT_EQ(second.get(), "re:b");
  server.disconnect();
  ASSERT_EQ(taken.read(request, WinIpc::Limits()), 0);
  EXPECT_EQ(request, "a");
  ASSERT_EQ(taken.write("re:a", WinIpc::Limits()), 0);
  EXPECT_EQ(first.get(), "re:a");
}

TEST_F(Transport, SilentClientIsDroppedAfterTheIdleLimit) {
  WinIpc::Limits limits;
  limits.idle_ms = 300;
  IpcClient silent;
  ASSERT_EQ(silent.connect(name_, 3000), 0);
  ASSERT_TRUE(server_.accept());
  std::string got;
  EXPECT_EQ(server_.read(got, limits), -1);
  EXPECT_EQ(log_.count("read pipe: nothing received for 300 ms, dropped"), 1) << log_.text();
  server_.disconnect();
}

// A server that accepts and then neither reads nor answers: the client's
// read, its write into the full pipe and a connect waiting for a busy pipe
// all give up once the cancel flag is set.
TEST_F(Transport, EndsWaitingOnAHungServerSeeTheirCancelFlag) {
  IpcClient client;
  ASSERT_EQ(client.connect(name_, 3000), 0);
  ASSERT_TRUE(server_.accept());
  IpcClient waiting;  // holds the one waiting place (POSIX)
  waiting.connect(name_, 300);
  WinIpc::CancelFlag quit{false};
  auto reading = std::async(std::launch::async, [&] {
    std::string got;
    return client.read(got, &quit);
  });
  auto writing =
      std::async(std::launch::async, [&] { return client.write(std::string(8 << 20, 'w'), &quit); });
  auto connecting = std::async(std::launch::async, [&] { return IpcClient().connect(name_, 60000, &quit); });
  std::future<int>* ends[] = {&reading, &writing, &connecting};
  for (std::future<int>* end : ends)
    EXPECT_EQ(end->wait_for(std::chrono::milliseconds(200)), std::future_status::timeout) << "each end waits";
  quit = true;
  for (std::future<int>* end : ends) {
    ASSERT_EQ(end->wait_for(std::chrono::seconds(10)), std::future_status::ready) << "the flag was not seen";
    EXPECT_EQ(end->get(), -1);
  }
}

TEST(TrustedPeer, SystemAndOwnUserOnly) {
  const unsigned long me = WinIpc::current_user();
  EXPECT_TRUE(WinIpc::trusted_peer(WinIpc::Peer{true, 0, 1}));
  EXPECT_TRUE(WinIpc::trusted_peer(WinIpc::Peer{true, me, 1}));
  EXPECT_FALSE(WinIpc::trusted_peer(WinIpc::Peer{true, me + 1, 1}));
  EXPECT_FALSE(WinIpc::trusted_peer(WinIpc::Peer{true, 65534, 1}));
}

}  // namespace
