// The portable half of the pipe transport: the framing loops, the connect
// and accept budgets, and every log line of this layer. The system calls are
// in win-ipc-posix.cpp / win-ipc-windows.cpp (see win-ipc-platform.h).

#include "ipc/win-ipc.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <thread>

#include "ipc/win-ipc-platform.h"
#include "logging/log-throttle.h"
#include "logging/logger.h"

namespace WinIpc {

namespace framing {

namespace {

// Where a time limit stands after `now`: 0 within both limits, else the
// limit that was passed (its length in milliseconds, negative for idle).
int passed_limit(const Limits& limits, std::int64_t start, std::int64_t last, std::int64_t now) {
  if (limits.idle_ms > 0 && now - last >= limits.idle_ms) return -limits.idle_ms;
  if (limits.deadline_ms > 0 && now - start >= limits.deadline_ms) return limits.deadline_ms;
  return 0;
}

bool has_time_limit(const Limits& limits) {
  return limits.idle_ms > 0 || limits.deadline_ms > 0;
}

// Empties `out` and gives its memory back.
void give_back(std::string& out) {
  std::string().swap(out);
}

}  // namespace

int read_message(ChunkSource& source, std::string& out, const CancelFlag* cancel) {
  return read_message(source, out, Limits(), cancel);
}

int read_message(ChunkSource& source, std::string& out, const Limits& limits, const CancelFlag* cancel) {
  give_back(out);
  char buffer[platform::kBufferSize];
  const bool timed = has_time_limit(limits);
  const std::int64_t start = timed ? source.now_ms() : 0;
  std::int64_t last = start;
  // The text may reach max_bytes; up to 12 more bytes may still turn out to
  // be the start of the marker. One chunk more is never needed.
  const std::size_t keep_at_most = limits.max_bytes + (kEndMarkerSize - 1);
  const std::size_t capacity_limit = keep_at_most + platform::kBufferSize;
  for (;;) {
    if (cancel != nullptr && cancel->load()) {
      give_back(out);
      return -1;
    }
    if (timed) {
      const int passed = passed_limit(limits, start, last, source.now_ms());
      if (passed < 0) {
        LOG_ERROR(vlog::kWinIpc, "read pipe: nothing received for %d ms, dropped", -passed);
      } else if (passed > 0) {
        LOG_ERROR(vlog::kWinIpc, "read pipe: message not complete after %d ms, dropped", passed);
      }
      if (passed != 0) {
        give_back(out);
        return -1;
      }
    }
    const platform::Result r = source.read_some(buffer, platform::kBufferSize - 1);
    switch (r.status) {
      case platform::Status::kOk: {
        if (r.count == 0) {
          give_back(out);
          return -1;
        }
        const std::size_t count = r.count < platform::kBufferSize ? r.count : platform::kBufferSize - 1;
        buffer[count] = '\0';
        // A NUL inside the data cuts the chunk short.
        const std::size_t text = std::strlen(buffer);
        const std::size_t old_size = out.size();
        // Grow by doubling, but never past what the cap can need. (reserve()
        // on the string itself may round up to twice its capacity.)
        if (old_size + text > out.capacity()) {
          std::size_t want = out.capacity() * 2;
          if (want < old_size + text) want = old_size + text;
          if (want > capacity_limit) want = capacity_limit;
          std::string bigger;
          bigger.reserve(want);
          bigger.append(out);
          out.swap(bigger);
        }
        out.append(buffer, text);
        if (timed && count > 0) last = source.now_ms();
        std::size_t p = std::string::npos;
        if (out.size() >= kEndMarkerSize) p = out.find(kEndMarker, search_start(old_size), kEndMarkerSize);
        if (p != std::string::npos && p <= limits.max_bytes) {
          // Whatever followed the marker in this chunk is dropped.
          out.resize(p);
          return 0;
        }
        if (p != std::string::npos || out.size() > keep_at_most) {
          LOG_ERROR(vlog::kWinIpc, "read pipe: message over %llu bytes, dropped",
                    static_cast<unsigned long long>(limits.max_bytes));
          give_back(out);
          return -1;
        }
        break;
      }
      case platform::Status::kRetry:
        source.wait();
        break;
      default:
        LOG_ERROR(vlog::kWinIpc, "read pipe failed, %u", r.error);
        give_back(out);
        return -1;
    }
  }
}

int write_message(ChunkSink& sink, const std::string& message, const CancelFlag* cancel) {
  return write_message(sink, message, Limits(), cancel);
}

int write_message(ChunkSink& sink, const std::string& message, const Limits& limits,
                  const CancelFlag* cancel) {
  std::string framed;
  framed.reserve(message.size() + kEndMarkerSize);
  framed.append(message).append(kEndMarker, kEndMarkerSize);
  const std::size_t limit = sink.piece_limit() > 0 ? sink.piece_limit() : framed.size();
  const bool timed = has_time_limit(limits);
  const std::int64_t start = timed ? sink.now_ms() : 0;
  std::int64_t last = start;
  std::size_t done = 0;
  for (;;) {
    if (cancel != nullptr && cancel->load()) return -1;
    if (timed) {
      const int passed = passed_limit(limits, start, last, sink.now_ms());
      if (passed < 0) {
        LOG_ERROR(vlog::kWinIpc, "write pipe: nothing taken for %d ms, %llu of %llu bytes written", -passed,
                  static_cast<unsigned long long>(done), static_cast<unsigned long long>(framed.size()));
      } else if (passed > 0) {
        LOG_ERROR(vlog::kWinIpc, "write pipe: not done after %d ms, %llu of %llu bytes written", passed,
                  static_cast<unsigned long long>(done), static_cast<unsigned long long>(framed.size()));
      }
      if (passed != 0) return -1;
    }
    const std::size_t rest = framed.size() - done;
    const std::size_t piece = rest < limit ? rest : limit;
    const platform::Result r = sink.write_some(framed.data() + done, piece);
    switch (r.status) {
      case platform::Status::kOk:
        if (r.count == 0) {
          // Nothing taken (a full pipe in non-blocking mode): wait, never spin.
          sink.wait();
          break;
        }
        done += r.count < piece ? r.count : piece;
        if (timed) last = sink.now_ms();
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
        // Sizes only: the message may carry what a log must not show.
        LOG_ERROR(vlog::kWinIpc, "failed to write named pipe: %llu bytes, %u",
                  static_cast<unsigned long long>(framed.size()), r.error);
        return -1;
    }
  }
}

}  // namespace framing

namespace {

// Longest wait inside one connect attempt when the caller has a cancel flag.
constexpr int kCancelSliceMs = 100;

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
  HandleSink(platform::Native h, bool flush) : h_(h), flush_(flush) {}
  platform::Result write_some(const char* data, std::size_t size) override {
    return platform::write_some(h_, data, size);
  }
  void wait() override { platform::wait_writable(h_); }
  void flush() override {
    if (flush_) platform::flush(h_);
  }
  std::size_t piece_limit() const override { return platform::write_piece_limit(); }

 private:
  platform::Native h_;
  bool flush_;
};

int read_on(platform::Native h, std::string& out, const Limits& limits, const CancelFlag* cancel) {
  HandleSource source(h);
  return framing::read_message(source, out, limits, cancel);
}

// Only the server end flushes: it drops the client right after the reply,
// which would discard what the client has not read yet. A client's bytes stay
// readable after it closes, and flushing there would wait for as long as a
// hung server does not read.
int write_on(platform::Native h, const std::string& message, const Limits& limits, const CancelFlag* cancel,
             bool server_end) {
  HandleSink sink(h, server_end);
  return framing::write_message(sink, message, limits, cancel);
}

}  // namespace

std::string platform_pipe_name(const std::string& name) {
  return platform::native_name(name);
}

bool trusted_peer(const Peer& peer) {
  if (!peer.known) return platform::unknown_peer_trusted();
  return peer.uid == 0 || peer.uid == platform::current_user();
}

unsigned long current_user() {
  return platform::current_user();
}

Peer pipe_holder(const std::string& name) {
  platform::Native h = platform::kInvalid;
  Peer holder;
  if (platform::connect_client(name, 0, h).status == platform::Status::kOk) holder = platform::peer_of(h);
  platform::close_handle(h);
  return holder;
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

int IpcClient::connect(const std::string& name, int timeout_ms, const CancelFlag* cancel) {
  if (timeout_ms == 0) return -1;
  close();
  int elapsed = 0;
  for (;;) {
    if (cancel != nullptr && cancel->load()) return -1;
    int remaining = timeout_ms - elapsed;
    if (remaining < 0) remaining = 0;
    // With a cancel flag the kernel's wait for room is cut into slices.
    if (cancel != nullptr && remaining > kCancelSliceMs) remaining = kCancelSliceMs;
    const platform::Result r = platform::connect_client(name, remaining, handle_->native);
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
  return read_on(handle_->native, out, Limits(), cancel);
}

int IpcClient::read(std::string& out, const Limits& limits, const CancelFlag* cancel) {
  return read_on(handle_->native, out, limits, cancel);
}

int IpcClient::write(const std::string& message, const CancelFlag* cancel) {
  return write_on(handle_->native, message, Limits(), cancel, false);
}

int IpcClient::write(const std::string& message, const Limits& limits, const CancelFlag* cancel) {
  return write_on(handle_->native, message, limits, cancel, false);
}

Peer IpcClient::peer() const {
  return handle_->native == platform::kInvalid ? Peer() : platform::server_of(handle_->native);
}

void IpcClient::close() {
  platform::close_handle(handle_->native);
}

bool IpcClient::is_open() const {
  return handle_->native != platform::kInvalid;
}

// ---------------------------------------------------------------- server end

namespace {
constexpr int kFirstBackoffMs = 50;
constexpr int kLongestBackoffMs = 1000;
}  // namespace

struct IpcServer::Handle {
  platform::ServerEnds ends;
  // A failing accept (file handles exhausted, ...) fails again at once: the
  // round waits before it returns, longer each time up to a second, and the
  // line is written once per interval.
  int backoff_ms = 0;
  vlog::LogThrottle failed_log;
};

IpcServer::IpcServer() : handle_(new Handle) {}

IpcServer::~IpcServer() {
  close();
  delete handle_;
}

int IpcServer::create(const std::string& name) {
  close();
  const platform::CreateResult r = platform::create_server(name, handle_->ends, backlog_);
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
        handle_->backoff_ms = 0;
        return true;
      case platform::Status::kGone:
        // A client came and already left: drop it and keep waiting.
        disconnect();
        break;
      case platform::Status::kRetry:
        break;
      default: {
        LOG_THROTTLED(handle_->failed_log, LOG_ERROR, vlog::kWinIpc, "connect pipe failed, %u", r.error);
        handle_->backoff_ms =
            std::min(handle_->backoff_ms == 0 ? kFirstBackoffMs : handle_->backoff_ms * 2, kLongestBackoffMs);
        const int rest = timeout_ms_ - elapsed;
        std::this_thread::sleep_for(std::chrono::milliseconds(std::min(handle_->backoff_ms, rest)));
        return false;
      }
    }
    elapsed += r.waited_ms;
    if (elapsed >= timeout_ms_) return false;
  }
}

struct IpcConnection::Handle {
  platform::Native native = platform::kInvalid;
};

IpcConnection::IpcConnection() : handle_(new Handle) {}

IpcConnection::~IpcConnection() {
  platform::close_handle(handle_->native);
  delete handle_;
}

int IpcConnection::read(std::string& out, const Limits& limits, const CancelFlag* cancel) {
  return read_on(handle_->native, out, limits, cancel);
}

int IpcConnection::write(const std::string& message, const Limits& limits, const CancelFlag* cancel) {
  return write_on(handle_->native, message, limits, cancel, true);
}

bool IpcConnection::is_open() const {
  return handle_->native != platform::kInvalid;
}

Peer IpcConnection::peer() const {
  return is_open() ? platform::peer_of(handle_->native) : Peer();
}

bool IpcServer::take_client(IpcConnection& into) {
  platform::close_handle(into.handle_->native);
  return platform::detach_client(handle_->ends, into.handle_->native);
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
  return read_on(handle_->ends.client, out, Limits(), cancel);
}

int IpcServer::read(std::string& out, const Limits& limits, const CancelFlag* cancel) {
  return read_on(handle_->ends.client, out, limits, cancel);
}

int IpcServer::write(const std::string& message, const CancelFlag* cancel) {
  return write_on(handle_->ends.client, message, Limits(), cancel, true);
}

int IpcServer::write(const std::string& message, const Limits& limits, const CancelFlag* cancel) {
  return write_on(handle_->ends.client, message, limits, cancel, true);
}

Peer IpcServer::peer() const {
  return handle_->ends.client == platform::kInvalid ? Peer() : platform::peer_of(handle_->ends.client);
}

void IpcServer::close() {
  platform::close_server(handle_->ends);
}

bool IpcServer::is_open() const {
  return handle_->ends.listener != platform::kInvalid;
}

}  // namespace WinIpc
