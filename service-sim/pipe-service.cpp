#include "pipe-service.h"

#include <QDateTime>

#include <chrono>

#include "json-access.h"
#include "sim-log.h"
#include "win-ipc.h"

namespace sim {

std::string iso_time(std::int64_t time_ms) {
  return QDateTime::fromMSecsSinceEpoch(time_ms, Qt::UTC).toString(Qt::ISODateWithMs).toStdString();
}

bool Recorder::open(const std::string& path) {
  std::lock_guard<std::mutex> lock(mutex_);
  if (path.empty()) return true;
  out_.open(path, std::ios::binary | std::ios::app);
  return static_cast<bool>(out_);
}

void Recorder::record(std::int64_t time_ms, const std::string& text, const Json::Value* parsed) {
  std::lock_guard<std::mutex> lock(mutex_);
  if (!out_.is_open()) return;
  Json::Value line(Json::objectValue);
  line["time_ms"] = static_cast<Json::Int64>(time_ms);
  line["time"] = iso_time(time_ms);
  if (parsed != nullptr) {
    line["request"] = *parsed;
  } else {
    line["raw"] = text;
  }
  out_ << jsonx::compact(line) << '\n';
  out_.flush();
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

bool PipeService::start(std::string& error) {
  if (!recorder_.open(options_.record_path)) {
    error = "cannot open the record file " + options_.record_path;
    return false;
  }
  impl_->server.set_timeout_ms(options_.accept_timeout_ms);
  if (impl_->server.create(options_.pipe_name) != 0) {
    error = "cannot serve the pipe " + options_.pipe_name + " (" +
            WinIpc::platform_pipe_name(options_.pipe_name) +
            "): is another service running with the same NIMBRA_PIPE_NAMESPACE?";
    return false;
  }
  stop_ = false;
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
  if (thread_.joinable()) thread_.join();
  impl_->server.close();
}

bool PipeService::wait_interruptibly(int ms) {
  std::unique_lock<std::mutex> lock(wait_mutex_);
  return !wait_cv_.wait_for(lock, std::chrono::milliseconds(ms), [this] { return stop_.load(); });
}

void PipeService::run() {
  while (!stop_.load()) {
    if (!impl_->server.accept()) continue;
    serve_client();
    impl_->server.disconnect();
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

void PipeService::serve_client() {
  const std::uint64_t connection = ++connections_;
  const Faults& f = options_.faults;
  if (connection <= static_cast<std::uint64_t>(f.refuse_first)) {
    SIM_INFO("fault: connection %llu closed before reading", static_cast<unsigned long long>(connection));
    return;
  }
  std::string text;
  // As the agent's own pipe: capped, and a client that sends nothing for 5 s
  // or takes longer than 10 s for its request is dropped.
  if (impl_->server.read(text, WinIpc::agent_pipe_limits(), &stop_) != 0) {
    if (!stop_.load()) SIM_WARN("a client connected but sent no complete request");
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
  if (impl_->server.write(answer, WinIpc::Limits{0, WinIpc::kAgentIdleMs, WinIpc::kAgentDeadlineMs}, &stop_) != 0) {
    --answered_;
    if (!stop_.load())
      SIM_WARN("could not write the answer to request %llu", static_cast<unsigned long long>(n));
  }
}

}  // namespace sim
