// The exception family: class by code, message, stack, copies.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <string>
#include <typeindex>
#include <typeinfo>

#include "exception.h"

namespace rex = ravel::exception;

namespace {

struct ClassCase {
  int code;
  std::type_index type;
  const char* name;
};

void PrintTo(const ClassCase& c, std::ostream* os) {
  *os << c.code << " -> " << c.name;
}

class RaiseClassTest : public ::testing::TestWithParam<ClassCase> {};

TEST_P(RaiseClassTest, CodeSelectsTheClass) {
  const ClassCase& c = GetParam();
  try {
    rex::raise(c.code, "code %d", c.code);
    FAIL() << "raise returned";
  } catch (const rex::Exception& e) {
    EXPECT_EQ(c.type, std::type_index(typeid(e))) << "got " << typeid(e).name();
    EXPECT_EQ(c.code, e.code);
    EXPECT_EQ("code " + std::to_string(c.code), e.what());
  }
}

#define ROW(code, cls)                            \
  ClassCase {                                     \
    code, std::type_index(typeid(rex::cls)), #cls \
  }
INSTANTIATE_TEST_SUITE_P(Table, RaiseClassTest,
                         ::testing::Values(ROW(1, NoPerm), ROW(13, NoPerm), ROW(2, FileNotExist),
                                           ROW(5, IOError), ROW(6, NoSuchAddress), ROW(10, NotFound),
                                           ROW(16, ResourceBusy), ROW(17, FileExist), ROW(20, NotDir),
                                           ROW(28, NoSpace), ROW(30, FsReadonly), ROW(32, Disconnect),
                                           ROW(107, Disconnect), ROW(108, Disconnect), ROW(140, Locked),
                                           ROW(0, Exception), ROW(99, Exception), ROW(-1, Exception),
                                           ROW(3, Exception), ROW(11, Exception), ROW(40, Exception),
                                           ROW(141, Exception)),
                         [](const ::testing::TestParamInfo<ClassCase>& p) {
                           const int code = p.param.code;
                           return std::string(code < 0 ? "minus" : "") +
                                  std::to_string(code < 0 ? -code : code) + "_" + p.param.name;
                         });
#undef ROW

TEST(Raise, EveryClassIsCaughtAsStdException) {
  try {
    rex::raise(28, "disk %s is full", "D:");
  } catch (const std::exception& e) {
    EXPECT_STREQ("disk D: is full", e.what());
    return;
  }
  FAIL();
}

TEST(Raise, MessageLongerThanAnyFirstBufferIsKeptWhole) {
  const std::string long_part(100000, 'z');
  try {
    rex::raise(5, "head %s tail %d", long_part.c_str(), 7);
  } catch (const rex::IOError& e) {
    EXPECT_EQ("head " + long_part + " tail 7", e.message);
    EXPECT_EQ(e.message, std::string(e.what()));
    return;
  }
  FAIL();
}

TEST(Raise, MessageJustAroundTheFirstBufferSize) {
  for (std::size_t n : {254u, 255u, 256u, 257u, 511u, 512u, 513u}) {
    const std::string s(n, 'q');
    try {
      rex::raise(0, "%s", s.c_str());
    } catch (const rex::Exception& e) {
      EXPECT_EQ(s, e.message) << n;
      continue;
    }
    ADD_FAILURE() << n;
  }
}

TEST(Raise, FormatWithAllFiveArgumentsOfDifferentKinds) {
  try {
    rex::raise(17, "%s:%d(%u) [x: %ld] %c", "file.cpp", -3, 42u, 123456789L, 'k');
  } catch (const rex::FileExist& e) {
    EXPECT_STREQ("file.cpp:-3(42) [x: 123456789] k", e.what());
    return;
  }
  FAIL();
}

TEST(ExceptionObject, ConstructorFormatsAndStartsWithAnEmptyObject) {
  const rex::NotDir e(20, "not a folder: %s", "/tmp/x");
  EXPECT_STREQ("not a folder: /tmp/x", e.what());
  EXPECT_EQ(20, e.code);
  EXPECT_TRUE(e.data.isObject());
  EXPECT_EQ(0u, e.data.size());
}

TEST(ExceptionObject, CopyCarriesAllFourFieldsByValue) {
  rex::Locked original(140, "held by %d", 7);
  original.data["holder"] = 7;
  rex::Locked copy = original;
  original.data["holder"] = 8;
  original.message = "changed";
  EXPECT_STREQ("held by 7", copy.what());
  EXPECT_EQ(140, copy.code);
  EXPECT_EQ(7, copy.data["holder"].asInt());
  EXPECT_EQ(original.stack, copy.stack);
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

TEST(Stack, LinesAreNumberedDownToZeroInTheFixedFormat) {
  std::vector<std::string> stack;
  deep(5, [&] {
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
  EXPECT_EQ(0, stack.back().rfind("0: ", 0));
}

#ifndef _WIN32
// Symbol names are only readable here: the Windows symbol handler reads no
// gcc debug information.
TEST(Stack, NamesTheFunctionsOnTheWay) {
  std::vector<std::string> stack;
  deep(3, [&] { stack = rex::capture_stack(); });
  std::string all;
  for (const auto& l : stack) all += l;
  EXPECT_THAT(all, ::testing::HasSubstr("ravel::exception::capture_stack"));
  EXPECT_THAT(all, ::testing::HasSubstr("main"));
}
#endif

TEST(Stack, DeepRecursionIsCutAtOneHundredFrames) {
  std::vector<std::string> stack;
  deep(150, [&] { stack = rex::capture_stack(); });
  EXPECT_FALSE(stack.empty());
  EXPECT_LE(stack.size(), 100u);
  EXPECT_EQ(0, stack.back().rfind("0: ", 0));
  EXPECT_EQ(0, stack.front().rfind(std::to_string(stack.size() - 1) + ": ", 0));
}

TEST(Format, GrowsPastAnyFixedSize) {
  const std::string big(5000, 'a');
  EXPECT_EQ(big + "|" + big, rex::format("%s|%s", big.c_str(), big.c_str()));
  EXPECT_EQ("", rex::format("%s", ""));
}

}  // namespace
