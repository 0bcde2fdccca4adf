// Feeds the frame reader arbitrary chunk sequences and the frame writer
// arbitrary partial-write patterns, through scripted sources and sinks.
//
// Input layout, repeated until the bytes run out:
//   0xFF            the pipe has nothing yet (retry)
//   0xFE b          the read fails with error b
//   lo hi bytes...  a chunk of ((lo | hi << 8) % 4096) bytes, taken from
//                   what follows (a zero length is a zero-byte read)
// When the input ends the source reports the end of the stream.
//
// Checked: no crash, no hang, the text never longer than the bytes fed, and
// the same answer as searching the whole text from its start after every
// chunk. The input is read a second time with a cap taken from its first
// byte: the capped read must agree with the uncapped one whenever the text
// fits, fail whenever it does not, and never hold more than the cap plus one
// chunk. The writer must deliver the text and the marker exactly once.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "ipc/win-ipc-platform.h"
#include "ipc/win-ipc.h"

namespace {

using WinIpc::platform::Result;
using WinIpc::platform::Status;

const std::string kMarker(WinIpc::kEndMarker);

class FuzzSource : public WinIpc::framing::ChunkSource {
 public:
  FuzzSource(const std::uint8_t* data, std::size_t size) : p_(data), end_(data + size) {}

  Result read_some(char* buffer, std::size_t size) override {
    Result r;
    if (size != WinIpc::platform::kBufferSize - 1) std::abort();
    if (p_ == end_) {
      r.status = Status::kOk;  // end of stream
      return r;
    }
    const std::uint8_t c = *p_++;
    if (c == 0xFF) {
      r.status = Status::kRetry;
      return r;
    }
    if (c == 0xFE) {
      r.error = p_ != end_ ? *p_++ : 0;
      return r;
    }
    const std::size_t hi = p_ != end_ ? *p_++ : 0;
    std::size_t n = (c | hi << 8) % WinIpc::platform::kBufferSize;
    if (n > size) n = size;
    if (n > static_cast<std::size_t>(end_ - p_)) n = static_cast<std::size_t>(end_ - p_);
    if (out_ != nullptr && out_->capacity() > max_size_) max_size_ = out_->capacity();
    std::memcpy(buffer, p_, n);
    p_ += n;
    fed_ += n;
    chunks_.emplace_back(reinterpret_cast<const char*>(p_ - n), n);
    r.status = Status::kOk;
    r.count = n;
    return r;
  }
  void wait() override {}

  std::size_t fed() const { return fed_; }
  std::size_t max_size() const { return max_size_; }
  void track(const std::string* out) { out_ = out; }
  const std::vector<std::string>& chunks() const { return chunks_; }

 private:
  const std::uint8_t* p_;
  const std::uint8_t* end_;
  std::size_t fed_ = 0;
  std::vector<std::string> chunks_;
  const std::string* out_ = nullptr;
  std::size_t max_size_ = 0;
};

class FuzzSink : public WinIpc::framing::ChunkSink {
 public:
  FuzzSink(const std::uint8_t* data, std::size_t size) : p_(data), end_(data + size) {}

  Result write_some(const char* bytes, std::size_t size) override {
    if (size > WinIpc::platform::kBufferSize) std::abort();
    Result r;
    r.status = Status::kOk;
    r.count = size;
    // Take part of the piece, nothing, or ask to wait, as the input says;
    // once the input is spent every piece goes whole so the loop ends.
    if (p_ != end_) {
      const std::uint8_t c = *p_++;
      if (c == 0xFF) {
        r.status = Status::kRetry;
        r.count = 0;
        return r;
      }
      r.count = size * c / 254;
    }
    got.append(bytes, r.count);
    return r;
  }
  void wait() override {}
  void flush() override { ++flushes; }
  std::size_t piece_limit() const override { return WinIpc::platform::kBufferSize; }

  std::string got;
  int flushes = 0;

 private:
  const std::uint8_t* p_;
  const std::uint8_t* end_;
};

int whole_text_search(const FuzzSource& source, std::string& out) {
  out.clear();
  for (const std::string& chunk : source.chunks()) {
    if (chunk.empty()) return -1;
    out.append(chunk.c_str());
    if (out.size() >= kMarker.size()) {
      const std::size_t p = out.find(kMarker);
      if (p != std::string::npos) {
        out.resize(p);
        return 0;
      }
    }
  }
  return -1;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzSource source(data, size);
  std::string out;
  const int rc = WinIpc::framing::read_message(source, out, nullptr);
  if (out.size() > source.fed()) std::abort();
  if (rc == 0 && out.find(kMarker) != std::string::npos) std::abort();
  std::string expected;
  if (whole_text_search(source, expected) != rc) std::abort();
  if (rc == 0 && expected != out) std::abort();

  // The same chunks under a cap of 0 to 8190 bytes.
  if (size >= 2) {
    WinIpc::Limits limits;
    limits.max_bytes = (static_cast<std::size_t>(data[0]) << 5 | data[1] >> 3) % 8191;
    FuzzSource capped_source(data, size);
    std::string capped;
    capped_source.track(&capped);
    const int capped_rc = WinIpc::framing::read_message(capped_source, capped, limits, nullptr);
    const bool fits = rc == 0 && out.size() <= limits.max_bytes;
    if (fits != (capped_rc == 0)) std::abort();
    if (fits && capped != out) std::abort();
    if (capped_rc != 0 && !capped.empty()) std::abort();
    if (capped_source.max_size() > limits.max_bytes + 2 * WinIpc::platform::kBufferSize) std::abort();
  }

  // The writer: the bytes as the message, the same bytes as the pattern of
  // partial writes. Messages stay small enough for a quick round.
  const std::size_t text_size = size < 9000 ? size : 9000;
  const std::string message(reinterpret_cast<const char*>(data), text_size);
  FuzzSink sink(data, size);
  if (WinIpc::framing::write_message(sink, message, nullptr) != 0) std::abort();
  if (sink.got != message + kMarker || sink.flushes != 1) std::abort();
  return 0;
}
