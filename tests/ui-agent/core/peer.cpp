#include "tests/ui-agent/core/peer.h"

ScriptedPeer::ScriptedPeer(const std::string& name, Script script) : script_(std::move(script)) {
  server_.set_timeout_ms(50);
  if (server_.create(name) != 0) return;
  thread_ = std::thread([this] {
    while (!stop_) {
      if (!server_.accept()) continue;
      ++connections_;
      std::string request;
      if (server_.read(request) == 0)
        if (auto reply = script_(request)) server_.write(*reply);
      server_.disconnect();
    }
  });
}

ScriptedPeer::~ScriptedPeer() {
  stop_ = true;
  if (thread_.joinable()) thread_.join();
  server_.close();
}
