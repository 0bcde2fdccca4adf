// The portable half of the pipe transport: the framing loops, the connect
// and accept budgets, and every log line of this layer. The system calls are
// in win-ipc-posix.cpp / win-ipc-windows.cpp (see win-ipc-platform.h).

#include "win-ipc.h"

#include <cstring>

#include "logger.h"
#include "win-ipc-platform.h"

namespace WinIpc {

namespace framing {

int read_message(ChunkSource& source, std::string& out, const CancelFlag* cancel) {
  out.clear();
  char buffer[platform::kBufferSize];
  for (;;) {
    if (cancel != nullptr && cancel->load()) return -1;
    const platform::Result r = source.read_some(buffer, platform::kBufferSize - 1);
    switch (r.status) {
      case platform::Status::kOk: {
        if (r.count == 0) return -1;
        const std::size_t count = r.count < platform::kBufferSize ? r.count : platform::kBufferSize - 1;
        buffer[count] = '\0';
        // A NUL inside the data cuts the chunk short.
        const std::size_t text = std::strlen(buffer);
        const std::size_t old_size = out.size();
        out.append(buffer, text);
        if (out.size() >= kEndMarkerSize) {
          const std::size_t p = out.find(kEndMarker, search_start(old_size), kEndMarkerSize);
          if (p != std::string::npos) {
            // Whatever followed the marker in this chunk is dropped.
            out.resize(p);
            return 0;
          }
        }
        break;
      }
      case platform::Status::kRetry:
        source.wait();
        break;
      default:
        LOG_ERROR(vlog::kWinIpc, "read pipe failed, %u", r.error);
        return -1;
    }
  }
}

int write_message(ChunkSink& sink, const std::string& message, const CancelFlag* cancel) {
  std::string framed;
  framed.reserve(message.size() + kEndMarkerSize);
  framed.append(message).append(kEndMarker, kEndMarkerSize);
  const std::size_t limit = sink.piece_limit() > 0 ? sink.piece_limit() : framed.size();
  std::size_t done = 0;
  for (;;) {
    if (cancel != nullptr && cancel->load()) return -1;
    const std::size_t rest = framed.size() - done;
    const std::size_t piece = rest < limit ? rest : limit;
    const platform::Result r = sink.write_some(framed.data() + done, piece);
    switch (r.status) {
      case platform::Status::kOk:
        done += r.count < piece ? r.count : piece;
        if (done == framed.size()) {
          sink.flush();
          return 0;
        }
        // A short write: the rest goes in the next round without a pause.
        break;
      case platform::Status::kRetry:
        sink.wait();
        break;
      default:
        LOG_ERROR(vlog::kWinIpc, "failed to write named pipe: '%s', %u", framed.c_str(), r.error);
        return -1;
    }
  }
}

}  // namespace framing

namespace {

class HandleSource final : public framing::ChunkSource {
 public:
  explicit HandleSource(platform::Native h) : h_(h) {}
  platform::Result read_some(char* buffer, std::size_t size) override {
    return platform::read_some(h_, buffer, size);
  }
  void wait() override { platform::wait_readable(h_); }

 private:
  platform::Native h_;
};

class HandleSink final : public framing::ChunkSink {
 public:
  explicit HandleSink(platform::Native h) : h_(h) {}
  platform::Result write_some(const char* data, std::size_t size) override {
    return platform::write_some(h_, data, size);
  }
  void wait() override { platform::wait_writable(h_); }
  void flush() override { platform::flush(h_); }
  std::size_t piece_limit() const override { return platform::write_piece_limit(); }

 private:
  platform::Native h_;
};

int read_on(platform::Native h, std::string& out, const CancelFlag* cancel) {
  HandleSource source(h);
  return framing::read_message(source, out, cancel);
}

int write_on(platform::Native h, const std::string& message, const CancelFlag* cancel) {
  HandleSink sink(h);
  return framing::write_message(sink, message, cancel);
}

}  // namespace

std::string platform_pipe_name(const std::string& name) {
  return platform::native_name(name);
}

// ---------------------------------------------------------------- client end

struct IpcClient::Handle {
  platform::Native native = platform::kInvalid;
};

IpcClient::IpcClient() : handle_(new Handle) {}

IpcClient::~IpcClient() {
  close();
  delete handle_;
}

int IpcClient::connect(const std::string& name, int timeout_ms) {
  if (timeout_ms == 0) return -1;
  close();
  int elapsed = 0;
  for (;;) {
    const int remaining = timeout_ms - elapsed;
    const platform::Result r = platform::connect_client(name, remaining > 0 ? remaining : 0, handle_->native);
    switch (r.status) {
      case platform::Status::kOk:
        return 0;
      case platform::Status::kBusy:
        // A busy pipe is retried silently until the budget is spent.
        elapsed += r.waited_ms;
        if (elapsed >= timeout_ms) return -1;
        break;
      default:
        LOG_ERROR(vlog::kWinIpc, "Failed to connect named pipe '%s'", name.c_str());
        return -1;
    }
  }
}

int IpcClient::read(std::string& out, const CancelFlag* cancel) {
  return read_on(handle_->native, out, cancel);
}

int IpcClient::write(const std::string& message, const CancelFlag* cancel) {
  return write_on(handle_->native, message, cancel);
}

void IpcClient::close() {
  platform::close_handle(handle_->native);
}

bool IpcClient::is_open() const {
  return handle_->native != platform::kInvalid;
}

// ---------------------------------------------------------------- server end

struct IpcServer::Handle {
  platform::ServerEnds ends;
};

IpcServer::IpcServer() : handle_(new Handle) {}

IpcServer::~IpcServer() {
  close();
  delete handle_;
}

int IpcServer::create(const std::string& name) {
  close();
  const platform::CreateResult r = platform::create_server(name, handle_->ends);
  switch (r.step) {
    case platform::CreateStep::kDone:
      return 0;
    case platform::CreateStep::kAllocSid:
      LOG_ERROR(vlog::kWinIpc, "Fail to allocate memory for sid");
      break;
    case platform::CreateStep::kEveryoneSid:
      LOG_ERROR(vlog::kWinIpc, "Fail to create everyone sid, err = %u", r.error);
      break;
    case platform::CreateStep::kAce:
      LOG_ERROR(vlog::kWinIpc, "Fail to install ace entry, err = %u", r.error);
      break;
    case platform::CreateStep::kInitDescriptor:
      LOG_ERROR(vlog::kWinIpc, "Fail to initialize security descriptor, err = %u", r.error);
      break;
    case platform::CreateStep::kSetDescriptor:
      LOG_ERROR(vlog::kWinIpc, "Fail to set security descriptor, err = %u", r.error);
      break;
    case platform::CreateStep::kPipe:
      LOG_ERROR(vlog::kWinIpc, "Failed to create named pipe '%s', %u", name.c_str(), r.error);
      break;
  }
  platform::close_server(handle_->ends);
  return -1;
}

bool IpcServer::accept() {
  if (timeout_ms_ <= 0) return false;
  int elapsed = 0;
  for (;;) {
    const platform::Result r = platform::accept_client(handle_->ends, timeout_ms_ - elapsed);
    switch (r.status) {
      case platform::Status::kOk:
        return true;
      case platform::Status::kGone:
        // A client came and already left: drop it and keep waiting.
        disconnect();
        break;
      case platform::Status::kRetry:
        break;
      default:
        LOG_ERROR(vlog::kWinIpc, "connect pipe failed, %u", r.error);
        return false;
    }
    elapsed += r.waited_ms;
    if (elapsed >= timeout_ms_) return false;
  }
}

bool IpcServer::disconnect() {
  const platform::Result r = platform::disconnect_client(handle_->ends);
  if (r.status != platform::Status::kOk) {
    LOG_ERROR(vlog::kWinIpc, "disconnect pipe failed, %u", r.error);
    return false;
  }
  return true;
}

int IpcServer::read(std::string& out, const CancelFlag* cancel) {
  return read_on(handle_->ends.client, out, cancel);
}

int IpcServer::write(const std::string& message, const CancelFlag* cancel) {
  return write_on(handle_->ends.client, message, cancel);
}

void IpcServer::close() {
  platform::close_server(handle_->ends);
}

bool IpcServer::is_open() const {
  return handle_->ends.listener != platform::kInvalid;
}

}  // namespace WinIpc
