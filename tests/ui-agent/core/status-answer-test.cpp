// What the log says about a status answer the agent cannot read as meant.

#include <gtest/gtest.h>

#include "agent-test.h"
#include "core/status-answer.h"

namespace {

struct Shape {
  const char* name;
  const char* text;
  const char* problem;  // "" for a sound answer
};
void PrintTo(const Shape& s, std::ostream* os) {
  *os << s.text;
}

class StatusAnswerProblem : public ::testing::TestWithParam<Shape> {};

TEST_P(StatusAnswerProblem, NamesTheFirstMemberOfTheWrongType) {
  EXPECT_EQ(status_answer::problem(agent_test::parse(GetParam().text)), GetParam().problem);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, StatusAnswerProblem,
    ::testing::Values(Shape{"Sound", R"({"status": 8192, "content": {"connected": true}})", ""},
                      Shape{"SoundWithError",
                            R"({"status": 61441, "content": {"connected": true, "error": {"code": 5}}})", ""},
                      Shape{"WholeFraction", R"({"status": 8192.0, "content": {}})", ""},
                      Shape{"ConnectedAbsent", R"({"status": 8194, "content": {}})", ""},
                      Shape{"StatusString", R"({"status": "8192", "content": {"connected": true}})",
                            "status is a string"},
                      Shape{"StatusFraction", R"({"status": 8192.5, "content": {}})", "status is a fraction"},
                      Shape{"StatusBool", R"({"status": true, "content": {}})", "status is a bool"},
                      Shape{"StatusMissing", R"({"content": {}})", "status is missing"},
                      Shape{"ContentMissing", R"({"status": 8192})", "content is missing"},
                      Shape{"ContentArray", R"({"status": 8192, "content": [1]})", "content is an array"},
                      Shape{"ContentNull", R"({"status": 8192, "content": null})", "content is null"},
                      Shape{"ConnectedString", R"({"status": 8192, "content": {"connected": "true"}})",
                            "content.connected is a string"},
                      Shape{"ErrorNumber", R"({"status": 61441, "content": {"connected": true, "error": 5}})",
                            "content.error is an integer"},
                      Shape{"Array", "[]", "the answer is an array"},
                      Shape{"Number", "42", "the answer is an integer"}),
    [](const ::testing::TestParamInfo<Shape>& s) { return std::string(s.param.name); });

}  // namespace
