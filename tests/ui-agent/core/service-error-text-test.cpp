// The console link of the messages of 17 and 18, filled from the answer.
// (The code -> message row table is answers.tsv.)

#include <gtest/gtest.h>

#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/service-error-text.h"
#include "ui-agent/core/string-display.h"

namespace {

TEST(ServiceErrorMessage, ConsoleLinkIsFilledFromBaseUrlAndEscaped) {
  const auto answer =
      agent_test::parse(R"({"error":{"code":17,"base_url":"https://x.example/\"><img src=a>"}})");
  const QString text = service_error_text::message(service_error_text::code_of(answer), answer);
  EXPECT_TRUE(text.contains(QStringLiteral("href=\"https://x.example/&quot;&gt;&lt;img src=a&gt;\"")))
      << text.toStdString();
  EXPECT_FALSE(text.contains(QStringLiteral("<img")));
  EXPECT_FALSE(text.contains(QStringLiteral("%1")));
}

}  // namespace
