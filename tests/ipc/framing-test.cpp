// The framing reader driven through scripted chunk sources, so that
// chunk boundaries, NUL bytes and errors fall exactly where a case puts them.

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "ipc/win-ipc-platform.h"
#include "ipc/win-ipc.h"
#include "tests/ipc/pipes.h"

namespace {

using WinIpc::platform::Result;
using WinIpc::platform::Status;

const std::string m(WinIpc::kEndMarker);

// One scripted answer of the source: bytes ("" is a zero-byte read) or a status.
struct Step {
  Step(std::string b) : bytes(std::move(b)) {}
  Step(const char* b) : bytes(b) {}
  Step(Status s, unsigned e = 0) : status(s), error(e) {}
  std::string bytes;
  Status status = Status::kOk;
  unsigned error = 0;
};

class Source : public WinIpc::framing::ChunkSource {
 public:
  explicit Source(std::vector<Step> steps) : steps_(std::move(steps)) {}
  Result read_some(char* buffer, std::size_t size) override {
    EXPECT_EQ(size, WinIpc::platform::kBufferSize - 1) << "a read asks for at most 4095 bytes";
    if (next_ == steps_.size()) {
      ADD_FAILURE() << "read past the end of the script";
      return Result{Status::kFailed, 0, 9999, 0};
    }
    const Step& s = steps_[next_++];
    EXPECT_LE(s.bytes.size(), size);
    return Result{s.status, s.bytes.copy(buffer, size), s.error, 0};
  }
  // Every wait passes `tick_ms` on the scripted clock, every chunk `chunk_ms`.
  void wait() override { now_ += tick_ms; }
  std::int64_t now_ms() override { return now_; }
  std::size_t left() const { return steps_.size() - next_; }
  void after_chunk(std::int64_t ms) { now_ += ms; }

  std::int64_t tick_ms = 100;

 private:
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  std::int64_t now_ = 1000;
};

// One read of a scripted source: its steps, the limits (none by default),
// the result, the text on success and the one expected log line ("" for none).
struct ReadCase {
  std::string name;
  std::vector<Step> steps;
  int result;
  std::string out;
  std::string log;
  WinIpc::Limits limits{};
};

void PrintTo(const ReadCase& c, std::ostream* os) {
  *os << c.name;
}

std::vector<Step> retries(int n) {
  return std::vector<Step>(static_cast<std::size_t>(n), Step(Status::kRetry));
}

std::vector<Step> join(std::vector<Step> a, const std::vector<Step>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

std::vector<ReadCase> read_cases() {
  const WinIpc::Limits cap10{10, 0, 0};
  const WinIpc::Limits idle{1000, 500, 0};  // each retry waits 100 ms on the scripted clock
  const WinIpc::Limits deadline{1000, 500, 2000};
  const std::string over10 = "read pipe: message over 10 bytes, dropped";
  std::vector<Step> trickle = retries(4);  // a byte every 500 ms: 2000 ms are up after the 20th wait
  for (int i = 0; i < 4; ++i) trickle = join(join(trickle, {"x"}), retries(4));
  return {
      {"EmptyText", {m}, 0, "", ""},
      {"ZeroByteReadFailsSilently", {"abc", ""}, -1, "", ""},
      {"RetryThenData", {Status::kRetry, Status::kRetry, "ok" + m}, 0, "ok", ""},
      {"ErrorFailsWithItsLine", {"part", {Status::kFailed, 109}}, -1, "", "read pipe failed, 109"},
      {"Exactly4095BytesThenMarker", {std::string(4095, 'a'), m}, 0, std::string(4095, 'a'), ""},
      {"MarkerEndsAFullChunk", {std::string(4082, 'b') + m}, 0, std::string(4082, 'b'), ""},
      {"MarkerStraddlesFullChunks",
       {std::string(4090, 'c') + "^^255", "2*1814^^"},
       0,
       std::string(4090, 'c'),
       ""},
      {"TextAtTheCap", {std::string(10, 'a') + m}, 0, std::string(10, 'a'), "", cap10},
      {"TextOneOverTheCap", {std::string(11, 'a') + m}, -1, "", over10, cap10},
      {"MarkerPrefixBeyondTheCapStillCompletes",
       {std::string(10, 'a') + "^^2552*1814", "^^"},
       0,
       std::string(10, 'a'),
       "",
       cap10},
      {"StreamWithoutMarkerStopsOnceOverTheCap",
       {std::string(22, 'a'), std::string(4000, 'b')},
       -1,
       "",
       over10,
       cap10},
      {"QuietJustUnderTheIdleLimit", join(retries(4), {"ok" + m}), 0, "ok", "", idle},
      {"SilentPeerDroppedAtTheIdleLimit", retries(5), -1, "",
       "read pipe: nothing received for 500 ms, dropped", idle},
      {"DataRestartsTheIdleClock", join(join(retries(4), {"a"}), join(retries(4), {"b" + m})), 0, "ab", "",
       idle},
      {"TricklingPeerDroppedAtTheDeadline", trickle, -1, "",
       "read pipe: message not complete after 2000 ms, dropped", deadline},
  };
}

class ReadFraming : public ::testing::TestWithParam<ReadCase> {};

TEST_P(ReadFraming, ReadsTheFirstMessageOrDropsItWithOneLine) {
  const ReadCase& c = GetParam();
  nimbra_test::LogCapture log;
  Source source(c.steps);
  std::string out = "stale";
  EXPECT_EQ(WinIpc::framing::read_message(source, out, c.limits, nullptr), c.result);
  EXPECT_EQ(source.left(), 0u) << "the reader stops at the first marker and not before";
  if (c.result == 0) {
    EXPECT_EQ(out, c.out);
  } else {
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(out.capacity(), std::string().capacity()) << "the memory is given back";
  }
  if (c.log.empty()) {
    EXPECT_EQ(log.text(), "");
  } else {
    EXPECT_EQ(log.count(c.log), 1) << log.text();
    EXPECT_EQ(log.count("[ERROR][win-ipc.cpp:"), 1) << log.text();
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, ReadFraming, ::testing::ValuesIn(read_cases()),
                         [](const ::testing::TestParamInfo<ReadCase>& i) { return i.param.name; });

// Random chunks over a marker-heavy alphabet (NUL bytes, overlapping carets,
// the marker split at every point between reads): the linear reader must
// agree with a search of the whole text from its start after every chunk.
TEST(ReadFraming, AgreesWithWholeTextSearchOnRandomChunks) {
  std::mt19937 rng(20261121);
  const std::string alphabet = std::string("^^^^2552*1814ab") + '\0';
  for (int round = 0; round < 3000; ++round) {
    std::vector<Step> steps;
    std::string text;
    int want = -1;
    for (int i = 1 + static_cast<int>(rng() % 8); i > 0; --i) {
      std::string chunk;
      for (int k = 1 + static_cast<int>(rng() % 20); k > 0; --k) chunk += alphabet[rng() % alphabet.size()];
      if (rng() % 5 == 0) chunk.insert(rng() % (chunk.size() + 1), m.substr(0, rng() % 14));
      steps.push_back(chunk);
      text.append(chunk.c_str());  // up to the first NUL
      if (text.find(m) != std::string::npos) {
        want = 0;
        break;
      }
    }
    if (want != 0) steps.push_back("");  // the end of the stream
    Source source(steps);
    std::string out;
    ASSERT_EQ(WinIpc::framing::read_message(source, out, nullptr), want) << "round " << round;
    if (want == 0) {
      ASSERT_EQ(out, text.substr(0, text.find(m))) << "round " << round;
    }
  }
}

TEST(ReadLimits, MemoryStaysNearTheCapWhateverThePeerStreams) {
  // Endless full chunks without a marker: the reader stops one chunk past the
  // cap and its buffer never grew beyond what the cap can need.
  class Endless : public WinIpc::framing::ChunkSource {
   public:
    Result read_some(char* buffer, std::size_t size) override {
      std::memset(buffer, 'e', size);
      if (out != nullptr && out->capacity() > largest) largest = out->capacity();
      ++reads;
      return Result{Status::kOk, size, 0, 0};
    }
    void wait() override {}
    std::size_t reads = 0;
    std::size_t largest = 0;
    const std::string* out = nullptr;
  } endless;
  nimbra_test::LogCapture log;
  std::string out;
  endless.out = &out;
  const WinIpc::Limits limits{1 << 20, 0, 0};
  EXPECT_EQ(WinIpc::framing::read_message(endless, out, limits, nullptr), -1);
  EXPECT_EQ(endless.reads, (std::size_t{1} << 20) / 4095 + 1);
  EXPECT_LE(endless.largest, (std::size_t{1} << 20) + 2 * 4096) << "capacity of the text buffer";
}

// A sink that takes nothing for its first `stalls` writes (a full pipe in
// non-blocking mode answers "done, 0 bytes"), then everything.
class StallingSink : public WinIpc::framing::ChunkSink {
 public:
  explicit StallingSink(int stalls) : stalls_(stalls) {}
  Result write_some(const char* data, std::size_t size) override {
    ++writes;
    if (stalls_-- > 0) return Result{Status::kOk, 0, 0, 0};
    got.append(data, size);
    return Result{Status::kOk, size, 0, 0};
  }
  void wait() override {
    ++waits;
    now_ += 100;
  }
  void flush() override {}
  std::size_t piece_limit() const override { return 4096; }
  std::int64_t now_ms() override { return now_; }
  int writes = 0;
  int waits = 0;
  std::string got;

 private:
  int stalls_;
  std::int64_t now_ = 0;
};

TEST(WriteFraming, ZeroByteWritesWaitInsteadOfSpinning) {
  nimbra_test::LogCapture log;
  StallingSink sink(3);
  EXPECT_EQ(WinIpc::framing::write_message(sink, "hello", nullptr), 0);
  EXPECT_EQ(sink.got, "hello" + m);
  EXPECT_EQ(sink.waits, 3);
  EXPECT_EQ(log.text(), "");
}

TEST(WriteFraming, PeerThatNeverTakesAnythingIsGivenUpAtTheIdleLimit) {
  nimbra_test::LogCapture log;
  StallingSink sink(1000000);
  EXPECT_EQ(WinIpc::framing::write_message(sink, "secret-body", WinIpc::Limits{0, 500, 0}, nullptr), -1);
  EXPECT_EQ(sink.waits, 5);
  EXPECT_EQ(log.count("write pipe: nothing taken for 500 ms, 0 of 24 bytes written"), 1) << log.text();
  EXPECT_EQ(log.text().find("secret-body"), std::string::npos);
}

}  // namespace
