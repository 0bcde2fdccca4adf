// The framing loops driven through scripted chunk sources and sinks, so that
// chunk boundaries, NUL bytes and errors fall exactly where a case puts them.

#include <gtest/gtest.h>

#include <atomic>
#include <deque>
#include <random>
#include <string>
#include <vector>

#include "log-capture.h"
#include "win-ipc-platform.h"
#include "win-ipc.h"

namespace {

using WinIpc::kEndMarker;
using WinIpc::platform::Result;
using WinIpc::platform::Status;

const std::string kMarker(kEndMarker);

// One scripted answer of the source.
struct Step {
  Status status;
  std::string bytes;
  unsigned error = 0;
};

Step data(const std::string& bytes) {
  return {Status::kOk, bytes};
}
Step retry() {
  return {Status::kRetry, ""};
}
Step failure(unsigned error) {
  return {Status::kFailed, "", error};
}

class ScriptedSource : public WinIpc::framing::ChunkSource {
 public:
  explicit ScriptedSource(std::vector<Step> steps) : steps_(steps.begin(), steps.end()) {}

  Result read_some(char* buffer, std::size_t size) override {
    ++reads;
    EXPECT_EQ(size, WinIpc::platform::kBufferSize - 1) << "a read asks for at most 4095 bytes";
    Result r;
    if (steps_.empty()) {
      ADD_FAILURE() << "read past the end of the script";
      r.error = 9999;  // ends the loop
      return r;
    }
    Step s = steps_.front();
    steps_.pop_front();
    r.status = s.status;
    r.error = s.error;
    if (s.status == Status::kOk) {
      EXPECT_LE(s.bytes.size(), size);
      s.bytes.copy(buffer, s.bytes.size());
      r.count = s.bytes.size();
    }
    return r;
  }
  void wait() override {
    ++waits;
    if (cancel_on_wait != nullptr) cancel_on_wait->store(true);
  }

  std::size_t left() const { return steps_.size(); }

  int reads = 0;
  int waits = 0;
  std::atomic<bool>* cancel_on_wait = nullptr;

 private:
  std::deque<Step> steps_;
};

struct ReadCase {
  const char* name;
  std::vector<Step> steps;
  int result;
  std::string out;  // expected on success
};

std::string nul_text(const char* s, std::size_t n) {
  return std::string(s, n);
}

std::vector<ReadCase> read_cases() {
  const std::string m = kMarker;
  return {
      {"WholeMessageInOneChunk", {data("{\"a\":1}" + m)}, 0, "{\"a\":1}"},
      {"EmptyText", {data(m)}, 0, ""},
      {"MarkerInsideTextCutsAtFirst", {data("a" + m + "b" + m)}, 0, "a"},
      {"BytesAfterMarkerDropped", {data("abc" + m + "trailing bytes")}, 0, "abc"},
      {"MarkerSplitAcrossReads", {data("abc^^2552"), data("*1814^^rest")}, 0, "abc"},
      {"MarkerSplitOverThreeReads", {data("x^"), data("^2552*181"), data("4^^")}, 0, "x"},
      {"MarkerBytesOneByOne",
       {data("q"), data("^"), data("^"), data("2"), data("5"), data("5"), data("2"), data("*"), data("1"),
        data("8"), data("1"), data("4"), data("^"), data("^")},
       0,
       "q"},
      {"OverlappingCaretsFindLaterStart", {data("^^^2552*1814^^")}, 0, "^"},
      {"NearMarkerIsText", {data("^^2552*1814^x^^2552*1814^"), data("^")}, 0, "^^2552*1814^x"},
      {"ZeroByteReadFails", {data("abc"), data("")}, -1, ""},
      {"ZeroByteReadAtOnceFails", {data("")}, -1, ""},
      {"RetryThenData", {retry(), retry(), data("ok" + m)}, 0, "ok"},
      {"ErrorFails", {data("part"), failure(109)}, -1, ""},
      {"NulCutsChunkShort", {data(nul_text("ab\0cd", 5)), data("ef" + m)}, 0, "abef"},
      {"MarkerAfterNulInSameChunkIsLost", {data(nul_text("ab\0", 3) + m), data("")}, -1, ""},
      {"NulInsideMarkerHalves", {data(nul_text("ab^^2552\0xx", 11)), data("*1814^^")}, 0, "ab"},
      {"LeadingNulDropsWholeChunk", {data(nul_text("\0zz", 3) + m), data("y" + m)}, 0, "y"},
      {"Exactly4095BytesThenMarker", {data(std::string(4095, 'a')), data(m)}, 0, std::string(4095, 'a')},
      {"MarkerEndsAFullChunk", {data(std::string(4082, 'b') + m)}, 0, std::string(4082, 'b')},
      {"MarkerStraddlesFullChunks",
       {data(std::string(4090, 'c') + "^^255"), data("2*1814^^")},
       0,
       std::string(4090, 'c')},
  };
}

void PrintTo(const ReadCase& c, std::ostream* os) {
  *os << c.name;
}

class ReadFraming : public ::testing::TestWithParam<ReadCase> {};

TEST_P(ReadFraming, ReadsTheFirstMessage) {
  const ReadCase& c = GetParam();
  ScriptedSource source(c.steps);
  std::string out = "stale";
  EXPECT_EQ(WinIpc::framing::read_message(source, out, nullptr), c.result);
  if (c.result == 0) {
    EXPECT_EQ(out, c.out);
  }
  EXPECT_EQ(source.left(), 0u) << "the reader stops at the first marker and not before";
}

INSTANTIATE_TEST_SUITE_P(Cases, ReadFraming, ::testing::ValuesIn(read_cases()),
                         [](const ::testing::TestParamInfo<ReadCase>& i) {
                           return std::string(i.param.name);
                         });

// Every split point of the marker between two reads.
class MarkerSplit : public ::testing::TestWithParam<int> {};

TEST_P(MarkerSplit, IsFound) {
  const std::size_t at = static_cast<std::size_t>(GetParam());
  const std::string text = std::string(30, 't');
  const std::string framed = text + kMarker + "junk";
  const std::size_t cut = text.size() + at;
  ScriptedSource source({data(framed.substr(0, cut)), data(framed.substr(cut))});
  std::string out;
  ASSERT_EQ(WinIpc::framing::read_message(source, out, nullptr), 0);
  EXPECT_EQ(out, text);
}

INSTANTIATE_TEST_SUITE_P(AllPositions, MarkerSplit, ::testing::Range(1, 13));

TEST(ReadFramingLog, FailureLogsErrorCode) {
  ipc_test::LogCapture log;
  ScriptedSource source({failure(109)});
  std::string out;
  EXPECT_EQ(WinIpc::framing::read_message(source, out, nullptr), -1);
  EXPECT_EQ(log.count("read pipe failed, 109"), 1) << log.text();
  EXPECT_EQ(log.count("[win-ipc.cpp:"), 1) << log.text();
}

TEST(ReadFramingLog, ZeroByteReadIsSilent) {
  ipc_test::LogCapture log;
  ScriptedSource source({data("")});
  std::string out;
  EXPECT_EQ(WinIpc::framing::read_message(source, out, nullptr), -1);
  EXPECT_EQ(log.text(), "");
}

TEST(ReadFramingCancel, SetFlagStopsBeforeAnyRead) {
  std::atomic<bool> cancel{true};
  ScriptedSource source({data("x" + kMarker)});
  std::string out;
  EXPECT_EQ(WinIpc::framing::read_message(source, out, &cancel), -1);
  EXPECT_EQ(source.reads, 0);
}

TEST(ReadFramingCancel, FlagRaisedWhileWaitingStopsTheLoop) {
  std::atomic<bool> cancel{false};
  ScriptedSource source({retry(), data("never read" + kMarker)});
  source.cancel_on_wait = &cancel;
  std::string out;
  EXPECT_EQ(WinIpc::framing::read_message(source, out, &cancel), -1);
  EXPECT_EQ(source.reads, 1);
  EXPECT_EQ(source.waits, 1);
}

// The reader as first written: search the whole text from its start after
// every chunk. The linear reader must always agree with it.
int reference_read(const std::vector<std::string>& chunks, std::string& out) {
  out.clear();
  for (const std::string& chunk : chunks) {
    if (chunk.empty()) return -1;
    out.append(chunk.c_str());  // up to the first NUL
    if (out.size() >= 13) {
      const std::size_t p = out.find(kMarker);
      if (p != std::string::npos) {
        out.resize(p);
        return 0;
      }
    }
  }
  return -1;
}

TEST(ReadFramingEquivalence, AgreesWithWholeTextSearchOnRandomChunks) {
  std::mt19937 rng(20261121);
  const std::string alphabet = std::string("^^^^2552*1814ab") + '\0';
  for (int round = 0; round < 3000; ++round) {
    std::vector<std::string> chunks;
    const int n = 1 + static_cast<int>(rng() % 8);
    for (int i = 0; i < n; ++i) {
      std::string chunk;
      const int len = 1 + static_cast<int>(rng() % 20);
      for (int k = 0; k < len; ++k) chunk += alphabet[rng() % alphabet.size()];
      if (rng() % 5 == 0) {
        const std::size_t at = rng() % (chunk.size() + 1);
        chunk.insert(at, kMarker.substr(0, rng() % 14));
      }
      chunks.push_back(chunk);
    }
    chunks.push_back("");  // the end of the stream
    std::string expected;
    const int want = reference_read(chunks, expected);

    std::vector<Step> steps;
    for (const std::string& c : chunks) steps.push_back(data(c));
    ScriptedSource source(steps);
    std::string out;
    ASSERT_EQ(WinIpc::framing::read_message(source, out, nullptr), want) << "round " << round;
    if (want == 0) {
      ASSERT_EQ(out, expected) << "round " << round;
    }
  }
}

// ------------------------------------------------------------------ writing

class ScriptedSink : public WinIpc::framing::ChunkSink {
 public:
  ScriptedSink(std::size_t limit, std::vector<Result> script)
      : limit_(limit), script_(script.begin(), script.end()) {}

  Result write_some(const char* bytes, std::size_t size) override {
    pieces.push_back(size);
    Result r;
    r.status = Status::kOk;
    r.count = size;
    if (!script_.empty()) {
      r = script_.front();
      script_.pop_front();
      if (r.status == Status::kOk && r.count > size) r.count = size;
    }
    if (r.status == Status::kOk) received.append(bytes, r.count);
    return r;
  }
  void wait() override {
    ++waits;
    if (cancel_on_wait != nullptr) cancel_on_wait->store(true);
  }
  void flush() override {
    ++flushes;
    flushed_at = received.size();
  }
  std::size_t piece_limit() const override { return limit_; }

  std::string received;
  std::vector<std::size_t> pieces;
  int waits = 0;
  int flushes = 0;
  std::size_t flushed_at = 0;
  std::atomic<bool>* cancel_on_wait = nullptr;

 private:
  std::size_t limit_;
  std::deque<Result> script_;
};

Result ok(std::size_t n) {
  Result r;
  r.status = Status::kOk;
  r.count = n;
  return r;
}
Result again() {
  Result r;
  r.status = Status::kRetry;
  return r;
}
Result broken(unsigned e) {
  Result r;
  r.status = Status::kFailed;
  r.error = e;
  return r;
}

TEST(WriteFraming, AppendsMarkerAndFlushesOnceAtTheEnd) {
  ScriptedSink sink(4096, {});
  EXPECT_EQ(WinIpc::framing::write_message(sink, "{\"x\":true}", nullptr), 0);
  EXPECT_EQ(sink.received, "{\"x\":true}" + kMarker);
  EXPECT_EQ(sink.flushes, 1);
  EXPECT_EQ(sink.flushed_at, sink.received.size());
}

TEST(WriteFraming, LargeMessageGoesInPiecesNoLargerThanTheBuffer) {
  const std::string message(10000, 'z');
  ScriptedSink sink(4096, {});
  ASSERT_EQ(WinIpc::framing::write_message(sink, message, nullptr), 0);
  EXPECT_EQ(sink.received, message + kMarker);
  for (std::size_t p : sink.pieces) EXPECT_LE(p, 4096u);
  EXPECT_EQ(sink.pieces.size(), 3u);
}

TEST(WriteFraming, ShortAndEmptyWritesContinueWithTheRest) {
  // A non-blocking pipe may take part of a piece, or nothing at all.
  ScriptedSink sink(4096, {ok(3), ok(0), ok(0), ok(5), again(), ok(1)});
  ASSERT_EQ(WinIpc::framing::write_message(sink, "0123456789", nullptr), 0);
  EXPECT_EQ(sink.received, "0123456789" + kMarker);
  EXPECT_EQ(sink.waits, 1) << "only a retry status pauses; short writes go on at once";
  EXPECT_EQ(sink.flushes, 1);
}

TEST(WriteFraming, FailureLogsTheFramedTextAndError) {
  ipc_test::LogCapture log;
  ScriptedSink sink(4096, {ok(2), broken(232)});
  EXPECT_EQ(WinIpc::framing::write_message(sink, "hello", nullptr), -1);
  EXPECT_EQ(sink.flushes, 0);
  EXPECT_EQ(log.count("failed to write named pipe: 'hello" + kMarker + "', 232"), 1) << log.text();
}

TEST(WriteFraming, CancelBeforeWritingSendsNothing) {
  std::atomic<bool> cancel{true};
  ScriptedSink sink(4096, {});
  EXPECT_EQ(WinIpc::framing::write_message(sink, "hello", &cancel), -1);
  EXPECT_TRUE(sink.pieces.empty());
}

TEST(WriteFraming, CancelWhileWaitingForRoom) {
  std::atomic<bool> cancel{false};
  ScriptedSink sink(4096, {again(), ok(100)});
  sink.cancel_on_wait = &cancel;
  EXPECT_EQ(WinIpc::framing::write_message(sink, "hello", &cancel), -1);
  EXPECT_EQ(sink.pieces.size(), 1u);
  EXPECT_EQ(sink.flushes, 0);
}

}  // namespace
