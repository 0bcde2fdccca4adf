#include "service-sim/pipe-service.h"

#include <fcntl.h>
#include <sys/stat.h>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include <QDateTime>

#include <chrono>

#include "ipc/win-ipc.h"
#include "service-sim/hostile-answer.h"
#include "service-sim/sim-log.h"
#include "vantor-core/lib/json-access.h"

namespace sim {

std::string iso_time(std::int64_t time_ms) {
  return QDateTime::fromMSecsSinceEpoch(time_ms, Qt::UTC).toString(Qt::ISODateWithMs).toStdString();
}

Recorder::~Recorder() {
  if (fd_ >= 0) ::close(fd_);
}

bool Recorder::open(const std::string& path) {
  std::lock_guard<std::mutex> lock(mutex_);
  if (path.empty()) return true;
#ifdef _WIN32
  fd_ = ::_open(path.c_str(), _O_WRONLY | _O_CREAT | _O_APPEND | _O_BINARY, _S_IREAD | _S_IWRITE);
#else
  // It holds sign-in tokens: for this user only, never through a link, and
  // an older, wider file is narrowed.
  fd_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (fd_ >= 0 && ::fchmod(fd_, 0600) != 0) {
    ::close(fd_);
    fd_ = -1;
  }
#endif
  return fd_ >= 0;
}

void Recorder::record(std::int64_t time_ms, const std::string& text, const Json::Value* parsed) {
  std::lock_guard<std::mutex> lock(mutex_);
  if (fd_ < 0) return;
  Json::Value line(Json::objectValue);
  line["time_ms"] = static_cast<Json::Int64>(time_ms);
  line["time"] = iso_time(time_ms);
  if (text.size() > kRecordCap) {
    // A request no client of ours sends: its start and its size, so that a
    // peer cannot grow the record by what it sends.
    std::size_t keep = kRecordCut;
    while (keep > 0 && (static_cast<unsigned char>(text[keep]) & 0xC0) == 0x80) --keep;
    line["raw"] = text.substr(0, keep);
    line["bytes"] = static_cast<Json::UInt64>(text.size());
  } else if (parsed != nullptr) {
    line["request"] = *parsed;
  } else {
    line["raw"] = text;
  }
  const std::string out = jsonx::compact(line) + '\n';
  for (std::size_t done = 0; done < out.size();) {
#ifdef _WIN32
    const int n = ::_write(fd_, out.data() + done, static_cast<unsigned>(out.size() - done));
#else
    const ssize_t n = ::write(fd_, out.data() + done, out.size() - done);
#endif
    if (n <= 0) break;
    done += static_cast<std::size_t>(n);
  }
}

struct PipeService::Impl {
  WinIpc::IpcServer server;
};

PipeService::PipeService(DeviceModel& model, Options options)
    : model_(model), options_(std::move(options)), impl_(new Impl) {
  if (options_.pipe_name.empty()) options_.pipe_name = WinIpc::kServicePipe;
}

PipeService::~PipeService() {
  stop();
  delete impl_;
}

bool PipeService::start(std::string* error) {
  if (!recorder_.open(options_.record_path)) {
    if (error) *error = "cannot open the record file " + options_.record_path;
    return false;
  }
  impl_->server.set_timeout_ms(options_.accept_timeout_ms);
  // Clients wait in the backlog while the workers are busy.
  impl_->server.set_backlog(16);
  if (impl_->server.create(options_.pipe_name) != 0) {
    if (error)
      *error = "cannot serve the pipe " + options_.pipe_name + " (" +
               WinIpc::platform_pipe_name(options_.pipe_name) +
               "): is another service running with the same NIMBRA_PIPE_NAMESPACE?";
    return false;
  }
  stop_ = false;
  for (int i = 0; i < kWorkers; ++i) workers_.emplace_back([this] { work(); });
  thread_ = std::thread([this] { run(); });
  SIM_INFO("serving %s", WinIpc::platform_pipe_name(options_.pipe_name).c_str());
  return true;
}

void PipeService::stop() {
  {
    std::lock_guard<std::mutex> lock(wait_mutex_);
    stop_ = true;
  }
  wait_cv_.notify_all();
  { std::lock_guard<std::mutex> lock(queue_mutex_); }
  queue_cv_.notify_all();
  if (thread_.joinable()) thread_.join();
  for (std::thread& t : workers_)
    if (t.joinable()) t.join();
  workers_.clear();
  queue_.clear();
  impl_->server.close();
}

bool PipeService::wait_interruptibly(int ms) {
  std::unique_lock<std::mutex> lock(wait_mutex_);
  return !wait_cv_.wait_for(lock, std::chrono::milliseconds(ms), [this] { return stop_.load(); });
}

void PipeService::run() {
  WinIpc::IpcServer& server = impl_->server;
  while (!stop_.load()) {
    if (!server.accept()) continue;
    // As the agent: the system or this user, nobody else.
    const WinIpc::Peer peer = server.peer();
    if (!WinIpc::trusted_peer(peer)) {
      std::uint64_t held_back = 0;
      if (refused_log_.allow(held_back))
        SIM_WARN("refused a client of uid %lu (pid %ld) (%llu more like it held back)", peer.uid, peer.pid,
                 static_cast<unsigned long long>(held_back));
      server.disconnect();
      continue;
    }
    const std::uint64_t connection = ++connections_;
    if (connection <= static_cast<std::uint64_t>(options_.faults.refuse_first)) {
      SIM_INFO("fault: connection %llu closed before reading", static_cast<unsigned long long>(connection));
      server.disconnect();
      continue;
    }
    auto client = std::make_unique<WinIpc::IpcConnection>();
    if (!server.take_client(*client)) {
      SIM_ERROR("the connection could not be handed to a worker");
      server.disconnect();
      continue;
    }
    std::unique_lock<std::mutex> lock(queue_mutex_);
    // The clients beyond the workers wait in the listen backlog.
    queue_cv_.wait(lock,
                   [this] { return stop_.load() || queue_.size() < static_cast<std::size_t>(kWorkers); });
    if (stop_.load()) break;
    queue_.push_back(std::move(client));
    lock.unlock();
    queue_cv_.notify_all();
  }
}

void PipeService::work() {
  for (;;) {
    std::unique_ptr<WinIpc::IpcConnection> client;
    {
      std::unique_lock<std::mutex> lock(queue_mutex_);
      queue_cv_.wait(lock, [this] { return stop_.load() || !queue_.empty(); });
      if (stop_.load()) return;
      client = std::move(queue_.front());
      queue_.pop_front();
    }
    queue_cv_.notify_all();
    serve_client(*client);
  }
}

std::string PipeService::answer_for(const std::string& request_text) {
  Json::Value request;
  std::string parse_error;
  const bool is_json = jsonx::parse(request_text, request, &parse_error);
  return answer_parsed(request_text, is_json, request, parse_error);
}

std::string PipeService::answer_parsed(const std::string& request_text, bool is_json,
                                       const Json::Value& request, const std::string& parse_error) {
  Json::Value answer;
  if (!is_json) {
    SIM_WARN("request is not JSON (%s): %.200s", parse_error.c_str(), request_text.c_str());
    answer["error"]["code"] = 4;
    answer["error"]["message"] = "the request is not JSON";
  } else {
    answer = model_.handle(request);
  }
  if (options_.hostile) answer = make_hostile(answer);
  return jsonx::compact(answer);
}

void PipeService::serve_client(WinIpc::IpcConnection& client) {
  const Faults& f = options_.faults;
  std::string text;
  // Capped, and a client that sends nothing for 2 s or takes longer than
  // 3 s for its request is dropped: nobody holds a worker for long.
  if (client.read(text, WinIpc::Limits{WinIpc::kAgentMessageCap, kClientIdleMs, kClientDeadlineMs}, &stop_) !=
      0) {
    std::uint64_t held_back = 0;
    if (!stop_.load() && incomplete_log_.allow(held_back))
      SIM_WARN("a client connected but sent no complete request (%llu more like it held back)",
               static_cast<unsigned long long>(held_back));
    return;
  }
  const std::uint64_t n = ++received_;
  Json::Value parsed;
  std::string parse_error;
  const bool is_json = jsonx::parse(text, parsed, &parse_error);
  recorder_.record(system_clock_ms(), text, is_json ? &parsed : nullptr);

  if (f.drop_every > 0 && n % static_cast<std::uint64_t>(f.drop_every) == 0) {
    SIM_INFO("fault: request %llu dropped without an answer", static_cast<unsigned long long>(n));
    return;
  }
  std::string answer;
  if (f.garbage_every > 0 && n % static_cast<std::uint64_t>(f.garbage_every) == 0) {
    SIM_INFO("fault: request %llu answered with garbage", static_cast<unsigned long long>(n));
    answer = "}{ this is not JSON \x01\x02 ]";
  } else {
    answer = answer_parsed(text, is_json, parsed, parse_error);
  }
  int delay = static_cast<int>(options_.answer_delay_ms);
  if (f.late_every > 0 && n % static_cast<std::uint64_t>(f.late_every) == 0) {
    SIM_INFO("fault: request %llu answered %d ms late", static_cast<unsigned long long>(n), f.late_ms);
    delay += f.late_ms;
  }
  if (delay > 0 && !wait_interruptibly(delay)) return;
  // Counted before the write, so a client that has its answer sees the count.
  ++answered_;
  if (client.write(answer, WinIpc::Limits{0, WinIpc::kAgentIdleMs, WinIpc::kAgentDeadlineMs}, &stop_) != 0) {
    --answered_;
    if (!stop_.load())
      SIM_WARN("could not write the answer to request %llu", static_cast<unsigned long long>(n));
  }
}

}  // namespace sim
