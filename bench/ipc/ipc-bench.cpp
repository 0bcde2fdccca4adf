// The pipe transport against raw abstract Unix sockets in the same run:
//  - one request exchange (connect, 300-byte framed request, 2 KB framed
//    reply, close): target at most 2x the raw exchange at the median;
//  - one 10 MB framed read: target at most 3x reading the same bytes in the
//    same 4095-byte reads without framing.

#include <benchmark/benchmark.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "bench/bench-report.h"
#include "ipc/win-ipc.h"

namespace {

using Clock = std::chrono::steady_clock;

const std::string kMarker(WinIpc::kEndMarker);
const std::string kRequest(300, 'q');
const std::string kReply(2048, 'r');

std::string pipe_name(const char* tag) {
  return std::string("\\\\.\\pipe\\nimbra-ipc-bench-") + tag + "-" + std::to_string(::getpid());
}

// ----------------------------------------------------------- raw socket floor

sockaddr_un raw_address(const std::string& name, socklen_t& length) {
  const std::string native = WinIpc::platform_pipe_name(name);
  sockaddr_un addr{};
  addr.sun_family = AF_UNIX;
  std::memcpy(addr.sun_path + 1, native.data(), native.size());
  length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + native.size());
  return addr;
}

bool send_all(int fd, const std::string& data) {
  std::size_t done = 0;
  while (done < data.size()) {
    const ssize_t n = ::send(fd, data.data() + done, data.size() - done, MSG_NOSIGNAL);
    if (n <= 0) return false;
    done += static_cast<std::size_t>(n);
  }
  return true;
}

// Blocking reads until the marker ends the text (the floor of one exchange).
bool recv_until_marker(int fd, std::string& out) {
  out.clear();
  char buffer[4096];
  for (;;) {
    const ssize_t n = ::recv(fd, buffer, sizeof buffer - 1, 0);
    if (n <= 0) return false;
    out.append(buffer, static_cast<std::size_t>(n));
    if (out.size() >= kMarker.size() &&
        out.compare(out.size() - kMarker.size(), kMarker.size(), kMarker) == 0) {
      out.resize(out.size() - kMarker.size());
      return true;
    }
  }
}

class RawServer {
 public:
  explicit RawServer(const std::string& name) {
    socklen_t length = 0;
    const sockaddr_un addr = raw_address(name, length);
    fd_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(fd_, reinterpret_cast<const sockaddr*>(&addr), length) != 0 || ::listen(fd_, 16) != 0) {
      std::perror("raw server");
      std::exit(2);
    }
    thread_ = std::thread([this] {
      const std::string framed = kReply + kMarker;
      std::string request;
      for (;;) {
        const int c = ::accept(fd_, nullptr, nullptr);
        if (c < 0) return;
        if (stop_) {
          ::close(c);
          return;
        }
        if (recv_until_marker(c, request)) send_all(c, framed);
        ::close(c);
      }
    });
  }
  ~RawServer() {
    stop_ = true;
    ::shutdown(fd_, SHUT_RDWR);
    thread_.join();
    ::close(fd_);
  }

 private:
  int fd_ = -1;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

bool raw_exchange(const sockaddr_un& addr, socklen_t length) {
  const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  bool ok = ::connect(fd, reinterpret_cast<const sockaddr*>(&addr), length) == 0 &&
            send_all(fd, kRequest + kMarker);
  std::string reply;
  ok = ok && recv_until_marker(fd, reply);
  ::close(fd);
  return ok && reply.size() == kReply.size();
}

// ------------------------------------------------------------- our transport

class IpcEchoServer {
 public:
  explicit IpcEchoServer(const std::string& name) {
    if (server_.create(name) != 0) {
      std::fprintf(stderr, "cannot create %s\n", name.c_str());
      std::exit(2);
    }
    server_.set_timeout_ms(100);
    thread_ = std::thread([this] {
      std::string request;
      while (!stop_) {
        if (!server_.accept()) continue;
        if (server_.read(request) == 0) server_.write(kReply);
        server_.disconnect();
      }
    });
  }
  ~IpcEchoServer() {
    stop_ = true;
    thread_.join();
  }

 private:
  WinIpc::IpcServer server_;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

bool ipc_exchange(const std::string& name) {
  WinIpc::IpcClient client;
  std::string reply;
  return client.connect(name, 3000) == 0 && client.write(kRequest) == 0 && client.read(reply) == 0 &&
         reply.size() == kReply.size();
}

// ------------------------------------------------------------ 10 MB transfer

const std::string& big_text() {
  static const std::string text = [] {
    std::string s(10u << 20, ' ');
    for (std::size_t i = 0; i < s.size(); ++i) s[i] = static_cast<char>('a' + i % 26);
    return s;
  }();
  return text;
}

// A connected pair of abstract stream sockets: the writer side as a raw fd,
// the reader side as the transport's server end.
struct BigPair {
  explicit BigPair(const std::string& name) : name_(name) {
    if (server.create(name) != 0) std::exit(2);
  }
  WinIpc::IpcServer server;
  std::string name_;
};

double framed_read_ms(const std::string& name) {
  BigPair pair(name);
  const std::string framed = big_text() + kMarker;
  std::thread writer([&] {
    socklen_t length = 0;
    const sockaddr_un addr = raw_address(name, length);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&addr), length) == 0) send_all(fd, framed);
    char c;
    (void)::recv(fd, &c, 1, 0);  // until the reader has finished
    ::close(fd);
  });
  if (!pair.server.accept()) std::exit(2);
  std::string out;
  const auto start = Clock::now();
  const int rc = pair.server.read(out);
  const double ms = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  pair.server.disconnect();
  writer.join();
  if (rc != 0 || out.size() != big_text().size()) {
    std::fprintf(stderr, "framed read failed\n");
    std::exit(2);
  }
  return ms;
}

double unframed_read_ms(const std::string& name) {
  socklen_t length = 0;
  const sockaddr_un addr = raw_address(name, length);
  const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (::bind(listener, reinterpret_cast<const sockaddr*>(&addr), length) != 0 || ::listen(listener, 1) != 0)
    std::exit(2);
  const std::string framed = big_text() + kMarker;
  const std::size_t total = framed.size();
  std::thread writer([&] {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&addr), length) == 0) send_all(fd, framed);
    char c;
    (void)::recv(fd, &c, 1, 0);
    ::close(fd);
  });
  const int fd = ::accept(listener, nullptr, nullptr);
  std::string out;
  char buffer[4096];
  const auto start = Clock::now();
  while (out.size() < total) {
    const ssize_t n = ::recv(fd, buffer, sizeof buffer - 1, 0);
    if (n <= 0) break;
    out.append(buffer, static_cast<std::size_t>(n));
  }
  const double ms = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  ::close(fd);
  writer.join();
  ::close(listener);
  if (out.size() != total) std::exit(2);
  return ms;
}

double median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v.empty() ? 0 : v[v.size() / 2];
}

// ------------------------------------------------------ Google Benchmark table

void BM_RawExchange(benchmark::State& state) {
  const std::string name = pipe_name("raw");
  RawServer server(name);
  socklen_t length = 0;
  const sockaddr_un addr = raw_address(name, length);
  for (auto _ : state) {
    if (!raw_exchange(addr, length)) state.SkipWithError("raw exchange failed");
  }
}
BENCHMARK(BM_RawExchange)->Unit(benchmark::kMicrosecond);

void BM_IpcExchange(benchmark::State& state) {
  const std::string name = pipe_name("ipc");
  IpcEchoServer server(name);
  for (auto _ : state) {
    if (!ipc_exchange(name)) state.SkipWithError("exchange failed");
  }
}
BENCHMARK(BM_IpcExchange)->Unit(benchmark::kMicrosecond);

void BM_FramedRead10MB(benchmark::State& state) {
  const std::string name = pipe_name("framed");
  for (auto _ : state) state.SetIterationTime(framed_read_ms(name) / 1000.0);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(10u << 20));
}
BENCHMARK(BM_FramedRead10MB)->UseManualTime()->Unit(benchmark::kMillisecond);

void BM_UnframedRead10MB(benchmark::State& state) {
  const std::string name = pipe_name("unframed");
  for (auto _ : state) state.SetIterationTime(unframed_read_ms(name) / 1000.0);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(10u << 20));
}
BENCHMARK(BM_UnframedRead10MB)->UseManualTime()->Unit(benchmark::kMillisecond);

// Medians of interleaved samples, so that both sides see the same machine load.
void report_exchange() {
  const std::string raw_name = pipe_name("raw-median");
  const std::string ipc_name = pipe_name("ipc-median");
  RawServer raw(raw_name);
  IpcEchoServer ipc(ipc_name);
  socklen_t length = 0;
  const sockaddr_un addr = raw_address(raw_name, length);
  std::vector<double> raw_us, ipc_us;
  constexpr int kRounds = 2000;
  for (int i = 0; i < kRounds; ++i) {
    auto t0 = Clock::now();
    const bool a = raw_exchange(addr, length);
    auto t1 = Clock::now();
    const bool b = ipc_exchange(ipc_name);
    auto t2 = Clock::now();
    if (!a || !b) {
      std::fprintf(stderr, "exchange failed\n");
      std::exit(2);
    }
    raw_us.push_back(std::chrono::duration<double, std::micro>(t1 - t0).count());
    ipc_us.push_back(std::chrono::duration<double, std::micro>(t2 - t1).count());
  }
  const double floor = median(raw_us);
  const double ours = median(ipc_us);
  std::printf("request exchange median: %.1f us, raw-socket floor %.1f us\n", ours, floor);
  bench_report::report("request exchange, median / raw-socket floor", ours / floor, "x", 2.0, false);
}

void report_big_read() {
  std::vector<double> framed, unframed;
  for (int i = 0; i < 9; ++i) {
    unframed.push_back(unframed_read_ms(pipe_name("unframed-median")));
    framed.push_back(framed_read_ms(pipe_name("framed-median")));
  }
  const double floor = median(unframed);
  const double ours = median(framed);
  std::printf("10 MB framed read median: %.2f ms, unframed %.2f ms\n", ours, floor);
  bench_report::report("10 MB framed read / unframed read", ours / floor, "x", 3.0, false);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  report_exchange();
  report_big_read();
  return bench_report::report_summary();
}
