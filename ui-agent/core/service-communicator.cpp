#include "ui-agent/core/service-communicator.h"

#include <json/reader.h>
#include <json/writer.h>

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "logging/logger.h"
#include "logging/per-thread.h"
#include "ui-agent/core/answer-limits.h"
#include "ui-agent/core/global-connecter.h"
#include "vantor-core/lib/env.h"
#include "vantor-core/lib/json-access.h"

namespace {

// Budget for reaching the service's pipe while it is busy with another client.
constexpr int kConnectBudgetMs = 3000;

// How long the agent's pipe waits for a taken name to come free: starting
// at one second and doubling up to half a minute.
constexpr int kRetakeFirstMs = 1000;
constexpr int kRetakeLongestMs = 30000;

// The reply of the agent's pipe goes to a client that must take it in time.
WinIpc::Limits replyLimits() {
  return WinIpc::Limits{0, WinIpc::kAgentIdleMs, WinIpc::kAgentDeadlineMs};
}

// A request as the service reads it: the bytes of Json::Value::toStyledString()
// (requests carry no comments), from one writer kept per thread instead of a
// writer built for every request (not a thread_local object: see per-thread.h).
vlog::PerThread<Json::StreamWriter> requestWriter(+[]() {
  return Json::StreamWriterBuilder().newStreamWriter();
});

std::string requestText(const Json::Value& request) {
  std::ostringstream out;
  requestWriter.with([&](Json::StreamWriter& writer) { return writer.write(request, &out); });
  out << '\n';
  return out.str();
}

}  // namespace

// ---------------------------------------------------------------------------
// ServiceCommunicator

ServiceCommunicator::ServiceCommunicator(QObject* parent) : QObject(parent) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  connect(bus, SIGNAL(sigQueryService(const QObject*, Json::Value)), this,
          SLOT(slotQueryService(const QObject*, Json::Value)));
  // Forwarded on this thread: each listener gets the answer queued straight
  // to its own thread, not through a stop on the main thread on the way.
  connect(this, &ServiceCommunicator::sigQueryServiceDone, bus, &GlobalConnecter::sigQueryServiceDone,
          Qt::DirectConnection);
  connect(this, &ServiceCommunicator::sigQueryServiceFailed, bus, &GlobalConnecter::sigQueryServiceFailed,
          Qt::DirectConnection);
  connect(this, &ServiceCommunicator::sigQueryServiceEnded, bus, &GlobalConnecter::sigQueryServiceEnded,
          Qt::DirectConnection);
  // Runs on the thread that quits (the main thread), while this object's
  // thread may be inside an exchange.
  if (QCoreApplication* app = QCoreApplication::instance())
    connect(
        app, &QCoreApplication::aboutToQuit, this, [this] { cancelRequests(); }, Qt::DirectConnection);
}

std::string ServiceCommunicator::maskedForLog(const Json::Value& request) {
  return jsonx::compact(jsonx::masked(request));
}

void ServiceCommunicator::cancelRequests() {
  quit_ = true;
}

std::string ServiceCommunicator::updateStatusFromFile() {
  std::string folder;
  try {
    folder = vantor::get_working_space_utf8();
  } catch (...) {
    LOG_ERROR(vlog::kDefaultComponent, "working space unknown, service-status not read");
    return std::string();
  }
  std::ifstream in(folder + "/service-status", std::ios::binary);
  if (!in) return std::string();
  std::string line;
  if (!std::getline(in, line)) return std::string();
  // The service side may write Windows line ends.
  if (!line.empty() && line.back() == '\r') line.pop_back();
  if (line == "update_error" || line == "updating") return line;
  return std::string();
}

void ServiceCommunicator::slotQueryService(const QObject* sender, const Json::Value& request) {
  Json::Value response;
  int result = 0;
  const std::string action = jsonx::get_string(request, "action");

  std::string update_status;
  if (action == "get_connection_info") update_status = updateStatusFromFile();

  if (!update_status.empty()) {
    // The service is being updated and is not asked.
    response["update_status"] = update_status;
  } else {
    result = query(request, response);
    if (result != 0) {
      if (quit_.load()) {
        LOG_INFO(vlog::kDefaultComponent, "request '%s' not sent: the agent is quitting", action.c_str());
      } else {
        LOG_ERROR(vlog::kDefaultComponent, "Failed to query service '%s'", maskedForLog(request).c_str());
      }
      response = Json::Value();
    }
  }

  if (action == "redirect") {
    const Json::Value& content = jsonx::member(request, "content");
    response["action"] = jsonx::member(content, "type");
    response["subaction"] = jsonx::member(content, "subaction");
  } else {
    response["action"] = jsonx::member(request, "action");
  }

  if (result == 0) {
    // One tree for every listener, however many queued connections carry it.
    emit sigQueryServiceDone(sender, SharedJson(std::move(response)));
  } else {
    emit sigQueryServiceFailed();
  }
  emit sigQueryServiceEnded(sender);
}

int ServiceCommunicator::query(const Json::Value& request, Json::Value& response) {
  if (quit_.load()) return -1;
  WinIpc::IpcClient client;
  if (client.connect(WinIpc::kServicePipe, kConnectBudgetMs, &quit_) != 0) {
    if (!quit_.load()) LOG_ERROR(vlog::kDefaultComponent, "Failed to connect to service");
    return -1;
  }
  // Whoever serves the name while the service is down must not get the
  // request (it may carry a token) nor be able to answer it.
  const WinIpc::Peer peer = client.peer();
  if (!WinIpc::trusted_peer(peer)) {
    LOG_ERROR(vlog::kDefaultComponent,
              "service pipe is served by uid %lu (pid %ld), not by the service: nothing sent", peer.uid,
              peer.pid);
    return -1;
  }
  if (client.write(requestText(request), &quit_) != 0) {
    if (!quit_.load())
      LOG_ERROR(vlog::kDefaultComponent, "Failed to send request to service '%s'",
                maskedForLog(request).c_str());
    return -1;
  }
  std::string text;
  // No overall time limit (a long answer may take the service a while), but
  // the size cap of the action, and quitting ends the wait.
  const std::string action = jsonx::get_string(request, "action");
  const answer_limits::Cap cap = answer_limits::for_action(action);
  if (client.read(text, WinIpc::Limits{cap.max_bytes, 0, 0}, &quit_) != 0) {
    if (!quit_.load())
      LOG_ERROR(vlog::kDefaultComponent,
                "Failed to recv response from service (the answer to '%s' may hold %llu bytes)",
                action.c_str(), static_cast<unsigned long long>(cap.max_bytes));
    return -1;
  }
  // Refused before it is parsed: parsing costs far more than the text.
  const std::size_t elements = answer_limits::count_elements(text, cap.max_elements);
  if (elements > cap.max_elements) {
    LOG_ERROR(vlog::kDefaultComponent, "answer to '%s' refused: more than %llu elements in %llu bytes",
              action.c_str(), static_cast<unsigned long long>(cap.max_elements),
              static_cast<unsigned long long>(text.size()));
    return -1;
  }
  std::string error;
  Json::Value parsed;
  if (!jsonx::parse(text, parsed, &error, false)) {
    LOG_ERROR(vlog::kDefaultComponent, "Failed  to parse response as json string (%s)", error.c_str());
    return -1;
  }
  // Every answer is an object; anything else (an array, a bare number) would
  // be read by the requesters as an answer without members, so it counts as
  // a failed exchange instead.
  if (!parsed.isObject()) {
    LOG_ERROR(vlog::kDefaultComponent, "Failed  to parse response as json string (%s)",
              "the answer is not a JSON object");
    return -1;
  }
  response = std::move(parsed);
  return 0;
}

// ---------------------------------------------------------------------------
// ServiceIpcServer

namespace {

// One reader and one writer per thread, made on first use (not thread_local
// objects: see per-thread.h).
vlog::PerThread<Json::CharReader> threadReader(+[]() { return Json::CharReaderBuilder().newCharReader(); });

vlog::PerThread<Json::StreamWriter> threadWriter(+[]() {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  builder["commentStyle"] = "None";
  return builder.newStreamWriter();
});

std::string writeCompact(const Json::Value& v) {
  std::ostringstream out;
  threadWriter.with([&](Json::StreamWriter& writer) { return writer.write(v, &out); });
  return out.str();
}

}  // namespace

ServiceIpcServer::ServiceIpcServer(QObject* parent) : QThread(parent) {}

ServiceIpcServer::~ServiceIpcServer() {
  if (isRunning()) {
    stop();
    // Bounded: every wait of the thread looks at the stop flag.
    wait();
  }
  server_.close();
}

void ServiceIpcServer::init() {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  // Unique, so that a second init() does not deliver everything twice.
  connect(this, SIGNAL(sigOpenLogWindow()), bus, SIGNAL(sigOpenLogWindow()), Qt::UniqueConnection);
  connect(this, SIGNAL(sigHandleNotifications(const Json::Value&)), bus,
          SIGNAL(sigHandleNotifications(const Json::Value&)), Qt::UniqueConnection);
  stop_ = false;
  retakeDelayMs_ = 0;
  if (server_.create(WinIpc::kAgentPipe) == 0) {
    serving_ = true;
    return;
  }
  serving_ = false;
  const WinIpc::Peer holder = WinIpc::pipe_holder(WinIpc::kAgentPipe);
  if (holder.known && holder.uid == WinIpc::current_user()) {
    // Another agent of this user serves it.
    throw std::runtime_error("can't open port or socket, ipc broken");
  }
  // Anyone can take a name first: the agent starts all the same and takes
  // the pipe over once it is free.
  if (holder.known) {
    LOG_ERROR(vlog::kDefaultComponent,
              "agent pipe held by uid %lu (pid %ld); notifications wait until it is free", holder.uid,
              holder.pid);
  } else {
    LOG_ERROR(vlog::kDefaultComponent,
              "agent pipe held by an unknown process; notifications wait until it is free");
  }
}

void ServiceIpcServer::stop() {
  stop_ = true;
}

void ServiceIpcServer::retakePipe() {
  retakeDelayMs_ = retakeDelayMs_ == 0 ? kRetakeFirstMs : std::min(retakeDelayMs_ * 2, kRetakeLongestMs);
  for (int waited = 0; waited < retakeDelayMs_ && !stop_; waited += 100) QThread::msleep(100);
  if (stop_) return;
  // Asked quietly first, so that a name still taken costs no log line.
  const WinIpc::Peer holder = WinIpc::pipe_holder(WinIpc::kAgentPipe);
  if (holder.known) return;
  if (server_.create(WinIpc::kAgentPipe) == 0) {
    serving_ = true;
    retakeDelayMs_ = 0;
    LOG_NOTICE(vlog::kDefaultComponent, "agent pipe taken over, notifications are served again");
  }
}

void ServiceIpcServer::run() {
  LOG_INFO(vlog::kDefaultComponent, "ipc server thread start");
  while (!stop_) {
    if (!serving_) {
      retakePipe();
      continue;
    }
    if (server_.accept()) handleConnection();
  }
  server_.close();
  serving_ = false;
  LOG_INFO(vlog::kDefaultComponent, "ipc server thread stop");
}

void ServiceIpcServer::handleConnection() {
  const WinIpc::Peer peer = server_.peer();
  if (!WinIpc::trusted_peer(peer)) {
    // Not the service and not this user: nothing is read and nothing answered.
    LOG_THROTTLED(refusedLog_, LOG_ERROR, vlog::kDefaultComponent,
                  "refused a client of uid %lu (pid %ld) on the agent pipe", peer.uid, peer.pid);
    server_.disconnect();
    return;
  }
  std::string text;
  // Capped and bounded in time: a client that sends nothing, streams without
  // end or never finishes is dropped, and stop() is seen while waiting.
  if (server_.read(text, WinIpc::agent_pipe_limits(), &stop_) != 0) {
    if (!stop_) LOG_THROTTLED(incompleteLog_, LOG_ERROR, vlog::kDefaultComponent, "failed to recv request");
  } else {
    Json::Value request;
    std::string errors;
    try {
      if (!threadReader.with([&](Json::CharReader& reader) {
            return reader.parse(text.data(), text.data() + text.size(), &request, &errors);
          }))
        request = Json::Value();
    } catch (const std::exception&) {  // pathological nesting
      request = Json::Value();
    }
    std::string().swap(text);
    Json::Value reply(Json::objectValue);
    reply["success"] = dispatch(request);
    const std::string out = writeCompact(reply);
    if (server_.write(out, replyLimits(), &stop_) != 0 && !stop_)
      LOG_ERROR(vlog::kDefaultComponent, "failed to send resp: %s", out.c_str());
  }
  server_.disconnect();
}

bool ServiceIpcServer::dispatch(const Json::Value& request) {
  if (jsonx::has(request, "action")) {
    if (jsonx::get_string(request, "action") == "notifications") {
      emit sigHandleNotifications(request);
      return true;
    }
    LOG_ERROR(vlog::kDefaultComponent, "not support action: %s",
              writeCompact(jsonx::masked(request)).c_str());
    return false;
  }
  LOG_ERROR(vlog::kDefaultComponent, "format invalid: %s", writeCompact(jsonx::masked(request)).c_str());
  return false;
}
