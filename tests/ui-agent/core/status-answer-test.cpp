// What the agent reads from the service's answers, row by row from
// answers.tsv: the message row of an error code, and what the log says about
// a status answer it cannot read as meant.

#include <gtest/gtest.h>

#include "tests/support/table.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/service-error-text.h"
#include "ui-agent/core/status-answer.h"
#include "ui-agent/core/string-display.h"

namespace {

class Answers : public ::testing::TestWithParam<nimbra_test::TableRow> {};

TEST_P(Answers, ReadAsTheTableSays) {
  const auto& row = GetParam();
  if (row[0] == "error") {
    const std::optional<Str> expected = string_display::find_row(QString::fromStdString(row[2]));
    ASSERT_TRUE(expected.has_value()) << "no catalogue row " << row[2];
    EXPECT_EQ(static_cast<int>(service_error_text::message_row(std::stoi(row[1]))),
              static_cast<int>(*expected));
  } else if (row[0] == "problem") {
    const std::string problem = status_answer::problem(agent_test::parse(row[1]));
    EXPECT_EQ(problem.empty() ? "-" : problem, row[2]);
  } else {
    FAIL() << "no function " << row[0];
  }
}

NIMBRA_TABLE_SUITE(Answers, "ui-agent/core/answers.tsv", 3);

}  // namespace
