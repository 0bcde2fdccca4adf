#include "service-communicator.h"

#include <json/reader.h>
#include <json/writer.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "core/global-connecter.h"
#include "env.h"
#include "json-access.h"
#include "logger.h"

namespace {

// Budget for reaching the service's pipe while it is busy with another client.
constexpr int kConnectBudgetMs = 3000;

const char* const kMaskedKeys[] = {"password", "otp", "proxy_password"};

}  // namespace

// ---------------------------------------------------------------------------
// ServiceCommunicator

ServiceCommunicator::ServiceCommunicator(QObject* parent) : QObject(parent) {
  GlobalConnecter* bus = &GlobalConnecter::instance();
  connect(bus, SIGNAL(sigQueryService(const QObject*, Json::Value)), this,
          SLOT(slotQueryService(const QObject*, Json::Value)));
  connect(this, SIGNAL(sigQueryServiceDone(const QObject*, Json::Value)), bus,
          SIGNAL(sigQueryServiceDone(const QObject*, Json::Value)));
  connect(this, SIGNAL(sigQueryServiceFailed()), bus, SIGNAL(sigQueryServiceFailed()));
}

std::string ServiceCommunicator::maskedForLog(const Json::Value& request) {
  Json::Value copy = request;
  if (copy.isObject() && copy.isMember("content") && copy["content"].isObject()) {
    Json::Value& content = copy["content"];
    for (const char* key : kMaskedKeys) {
      if (!content.isMember(key)) continue;
      const Json::Value& v = content[key];
      // An empty (or null) value stays visible: it tells the reader of the log
      // that nothing was entered. Anything else, of whatever type, is hidden.
      if (v.isNull() || (v.isString() && jsonx::to_string(v).empty())) continue;
      content[key] = "***";
    }
  }
  return copy.toStyledString();
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

void ServiceCommunicator::slotQueryService(const QObject* sender, Json::Value request) {
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
      LOG_ERROR(vlog::kDefaultComponent, "Failed to query service '%s'", maskedForLog(request).c_str());
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
    emit sigQueryServiceDone(sender, response);
  } else {
    emit sigQueryServiceFailed();
  }
}

int ServiceCommunicator::query(const Json::Value& request, Json::Value& response) {
  WinIpc::IpcClient client;
  if (client.connect(WinIpc::kServicePipe, kConnectBudgetMs) != 0) {
    LOG_ERROR(vlog::kDefaultComponent, "Failed to connect to service");
    return -1;
  }
  if (client.write(request.toStyledString()) != 0) {
    LOG_ERROR(vlog::kDefaultComponent, "Failed to send request to service '%s'",
              maskedForLog(request).c_str());
    return -1;
  }
  std::string text;
  if (client.read(text) != 0) {
    LOG_ERROR(vlog::kDefaultComponent, "Failed to recv response from service");
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

// One reader and one writer per thread, made on first use.
Json::CharReader& threadReader() {
  thread_local std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
  return *reader;
}

Json::StreamWriter& threadWriter() {
  thread_local std::unique_ptr<Json::StreamWriter> writer([] {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["commentStyle"] = "None";
    return builder.newStreamWriter();
  }());
  return *writer;
}

std::string writeCompact(const Json::Value& v) {
  std::ostringstream out;
  threadWriter().write(v, &out);
  return out.str();
}

}  // namespace

ServiceIpcServer::ServiceIpcServer(QObject* parent) : QThread(parent) {}

ServiceIpcServer::~ServiceIpcServer() {
  if (isRunning()) {
    stop();
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
  if (server_.create(WinIpc::kAgentPipe) != 0) {
    throw std::runtime_error("can't open port or socket, ipc broken");
  }
}

void ServiceIpcServer::stop() {
  stop_ = true;
}

void ServiceIpcServer::run() {
  LOG_INFO(vlog::kDefaultComponent, "ipc server thread start");
  while (!stop_) {
    if (server_.accept()) handleConnection();
  }
  server_.close();
  LOG_INFO(vlog::kDefaultComponent, "ipc server thread stop");
}

void ServiceIpcServer::handleConnection() {
  std::string text;
  if (server_.read(text) != 0) {
    LOG_ERROR(vlog::kDefaultComponent, "failed to recv request");
  } else {
    Json::Value request;
    std::string errors;
    try {
      if (!threadReader().parse(text.data(), text.data() + text.size(), &request, &errors))
        request = Json::Value();
    } catch (const std::exception&) {  // pathological nesting
      request = Json::Value();
    }
    Json::Value reply(Json::objectValue);
    reply["success"] = dispatch(request);
    const std::string out = writeCompact(reply);
    if (server_.write(out) != 0) LOG_ERROR(vlog::kDefaultComponent, "failed to send resp: %s", out.c_str());
  }
  server_.disconnect();
}

bool ServiceIpcServer::dispatch(const Json::Value& request) {
  if (jsonx::has(request, "action")) {
    if (jsonx::get_string(request, "action") == "notifications") {
      emit sigHandleNotifications(request);
      return true;
    }
    LOG_ERROR(vlog::kDefaultComponent, "not support action: %s", writeCompact(request).c_str());
    return false;
  }
  LOG_ERROR(vlog::kDefaultComponent, "format invalid: %s", writeCompact(request).c_str());
  return false;
}
