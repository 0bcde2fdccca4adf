// The exception family: class by code, message, stack.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <regex>
#include <string>
#include <typeindex>
#include <typeinfo>

#include "vantor-core/lib/exception.h"

namespace rex = ravel::exception;

namespace {

struct ClassRow {
  int code;
  std::type_index type;
  const char* name;
};
void PrintTo(const ClassRow& c, std::ostream* os) {
  *os << "code " << c.code << " -> " << c.name;
}

class RaiseClassTest : public ::testing::TestWithParam<ClassRow> {};

TEST_P(RaiseClassTest, CodeSelectsTheClass) {
  const int code = GetParam().code;
  try {
    rex::raise(code, "code %d", code);
    FAIL() << "raise returned";
  } catch (const rex::Exception& e) {
    EXPECT_EQ(GetParam().type, std::type_index(typeid(e))) << "got " << typeid(e).name();
    EXPECT_EQ(code, e.code);
    EXPECT_EQ("code " + std::to_string(code), e.what());
  }
}

#define ROW(code, cls)                            \
  ClassRow {                                      \
    code, std::type_index(typeid(rex::cls)), #cls \
  }
INSTANTIATE_TEST_SUITE_P(
    Table, RaiseClassTest,
    ::testing::Values(ROW(1, NoPerm), ROW(13, NoPerm), ROW(2, FileNotExist), ROW(5, IOError),
                      ROW(6, NoSuchAddress), ROW(10, NotFound), ROW(16, ResourceBusy), ROW(17, FileExist),
                      ROW(20, NotDir), ROW(28, NoSpace), ROW(30, FsReadonly), ROW(32, Disconnect),
                      ROW(107, Disconnect), ROW(108, Disconnect), ROW(140, Locked), ROW(0, Exception),
                      ROW(99, Exception), ROW(-1, Exception), ROW(3, Exception), ROW(11, Exception),
                      ROW(40, Exception), ROW(141, Exception)),
    [](const ::testing::TestParamInfo<ClassRow>& p) {
      return (p.param.code < 0 ? "minus" : "") + std::to_string(std::abs(p.param.code)) + "_" + p.param.name;
    });
#undef ROW

// Around any first buffer size and far beyond it; the arguments after the long
// one must survive the buffer growing (a va_list is used once only).
TEST(Raise, MessageOfAnyLengthIsKeptWhole) {
  for (std::size_t n : {0u, 254u, 255u, 256u, 257u, 511u, 512u, 513u, 100000u}) {
    const std::string s(n, 'q');
    try {
      rex::raise(5, "%s|%d(%u)%c", s.c_str(), -3, 42u, 'k');
    } catch (const std::exception& e) {
      EXPECT_EQ(s + "|-3(42)k", e.what()) << n;
      continue;
    }
    ADD_FAILURE() << n;
  }
}

// How the buffer grows after each answer of vsnprintf: a size it reports
// is taken once (up to the limit); an error is never retried in a C99
// runtime (EILSEQ) and at most up to 64 KiB where -1 may mean "too small".
struct GrowthRow {
  const char* name;
  int result;
  std::size_t current;
  int error;
  std::size_t next;
};

void PrintTo(const GrowthRow& r, std::ostream* os) {
  *os << r.name;
}

class FormatGrowth : public ::testing::TestWithParam<GrowthRow> {};

TEST_P(FormatGrowth, NextBufferSize) {
  EXPECT_EQ(rex::next_format_buffer(GetParam().result, GetParam().current, GetParam().error),
            GetParam().next);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FormatGrowth,
    ::testing::Values(GrowthRow{"ReportedSizeTakenAtOnce", 300, 256, 0, 301},
                      GrowthRow{"ReportedSizeCappedAtLimit", 1 << 30, 256, 0, rex::kMaxFormatBytes},
                      GrowthRow{"AtTheLimitStops", 1 << 30, rex::kMaxFormatBytes, 0, 0},
                      GrowthRow{"EncodingErrorStopsAtOnce", -1, 256, EILSEQ, 0},
                      GrowthRow{"UnknownSizeDoubles", -1, 256, 0, 512},
                      GrowthRow{"UnknownSizeStopsAt64KiB", -1, 64 * 1024, 0, 0},
                      GrowthRow{"UnknownSizeNeverPast64KiB", -1, 48 * 1024, 0, 64 * 1024}),
    [](const ::testing::TestParamInfo<GrowthRow>& i) { return std::string(i.param.name); });

TEST(Raise, UnconvertibleWideTextKeepsWhatCameBefore) {
  // In the "C" locale a wide character above 0x7F cannot be converted: the
  // runtime reports an encoding error, which must not grow the buffer.
  EXPECT_EQ(rex::format("before %ls after", L"\u00e9\u6f22").substr(0, 7), "before ");
  EXPECT_LE(rex::format("before %ls after", L"\u00e9\u6f22").size(), 256u);
}

// ---- the stack ----

// Recursion the optimiser cannot turn into a loop: every level has work left
// after the call.
int deep(int depth, const std::function<void()>& at_bottom) {
  volatile int after = depth;
  if (depth == 0)
    at_bottom();
  else
    after = after + deep(depth - 1, at_bottom);
  return after;
}

TEST(Stack, LinesAreNumberedDownToZeroInTheFixedFormatAndCutAtOneHundred) {
  for (const int depth : {5, 150}) {
    std::vector<std::string> stack;
    deep(depth, [&] {
      try {
        rex::raise(2, "missing");
      } catch (const rex::Exception& e) {
        stack = e.stack;
      }
    });
    ASSERT_FALSE(stack.empty());
    ASSERT_LE(stack.size(), 100u);
    const std::regex line(R"((\d+): .* \[0x[0-9A-F]+\] \n)");
    for (std::size_t i = 0; i < stack.size(); ++i) {
      std::smatch m;
      ASSERT_TRUE(std::regex_match(stack[i], m, line)) << "[" << stack[i] << "]";
      EXPECT_EQ(stack.size() - 1 - i, std::stoul(m[1].str())) << stack[i];
    }
#ifndef _WIN32  // (the Windows symbol handler reads no gcc debug information)
    std::string all;
    for (const auto& l : stack) all += l;
    EXPECT_THAT(all, ::testing::HasSubstr("ravel::exception::"));
    EXPECT_TRUE(depth > 5 || all.find("main") != std::string::npos) << all;
#endif
  }
}

}  // namespace
