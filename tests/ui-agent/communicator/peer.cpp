#include "peer.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include "logger.h"

namespace comm_test {

ScriptedPeer::ScriptedPeer(std::string pipe, Script script)
    : pipe_(std::move(pipe)), script_(std::move(script)) {
  server_.set_timeout_ms(50);
}

ScriptedPeer::~ScriptedPeer() {
  stop();
}

bool ScriptedPeer::start() {
  if (server_.create(pipe_) != 0) return false;
  thread_ = std::thread([this] { loop(); });
  return true;
}

void ScriptedPeer::stop() {
  stop_ = true;
  if (thread_.joinable()) thread_.join();
  server_.close();
}

std::vector<std::string> ScriptedPeer::requests() const {
  std::lock_guard<std::mutex> g(mutex_);
  return requests_;
}

void ScriptedPeer::loop() {
  while (!stop_) {
    if (!server_.accept()) continue;
    ++connections_;
    std::string request;
    if (server_.read(request) == 0) {
      {
        std::lock_guard<std::mutex> g(mutex_);
        requests_.push_back(request);
      }
      if (auto reply = script_(request)) server_.write(*reply);
    }
    server_.disconnect();
  }
}

LogFile::LogFile() : path_(dir_.file("ui.txt")) {
  const std::string settings = dir_.file("agent.debug");
  nimbra_test::write_file(settings, "default_component = 7\nwin_ipc = 7\n");
  vlog::init(vlog::kRotatingFile, std::wstring(path_.begin(), path_.end()),
             std::wstring(settings.begin(), settings.end()), "", 5, 1);
}

LogFile::~LogFile() {
  vlog::shutdown();
}

void LogFile::mark() {
  offset_ = nimbra_test::read_file(path_).size();
}

std::string LogFile::text() const {
  const std::string all = nimbra_test::read_file(path_);
  return all.size() > offset_ ? all.substr(offset_) : std::string();
}

bool LogFile::waitFor(const std::string& needle, int timeout_ms) const {
  QDeadlineTimer deadline(timeout_ms);
  while (text().find(needle) == std::string::npos) {
    if (deadline.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QThread::msleep(5);
  }
  return true;
}

Isolation::Isolation() {
  static std::atomic<int> counter{0};
  const std::string ns =
      "nimbra-comm-test-" + std::to_string(::getpid()) + "-" + std::to_string(++counter) + "-";
  pipe_ns_ = std::make_unique<nimbra_test::ScopedEnv>("NIMBRA_PIPE_NAMESPACE", ns.c_str());
  working_space_ = std::make_unique<nimbra_test::ScopedEnv>("NIMBRA_WORKING_SPACE", dir_.path().c_str());
}

}  // namespace comm_test
