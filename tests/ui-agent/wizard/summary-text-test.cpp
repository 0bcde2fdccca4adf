// The summary page's tables, row by row from summary-text.tsv (site and
// policy names, scope and schedule lines, the account type), and the site
// map, the display copy and the line height.

#include <gtest/gtest.h>

#include <QMap>

#include <functional>
#include <map>

#include "tests/support/qt-print.h"
#include "tests/support/table.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/wizard/summary-text.h"

namespace {

using agent_test::parse;
using string_display::text;

const std::map<std::string, std::function<QString(const Json::Value&)>> kFunctions = {
    {"site", &summary_text::site_display_name},
    {"policy", &summary_text::policy_display_name},
    {"scope",
     [](const Json::Value& v) {
       const auto scope = summary_text::scope_text(v);
       return scope.text + (scope.shortened ? "|1" : "|0");
     }},
    {"schedule",
     [](const Json::Value& v) { return summary_text::schedule_text(v).value_or(QStringLiteral("-")); }},
    {"account", &summary_text::account_type},
};

class SummaryText : public ::testing::TestWithParam<nimbra_test::TableRow> {};

TEST_P(SummaryText, GivesWhatTheTableSays) {
  const auto& row = GetParam();
  const auto function = kFunctions.find(row[0]);
  ASSERT_NE(function, kFunctions.end()) << "no function " << row[0];
  EXPECT_EQ(function->second(parse(row[1])), QString::fromStdString(row[2]));
}

NIMBRA_TABLE_SUITE(SummaryText, "ui-agent/wizard/summary-text.tsv", 3);

// --- site map, display copy ------------------------------------

TEST(SummarySiteMap, RepeatedCodeMapsToTheLaterSubscription) {
  const auto answer = parse(R"({"data":[
      {"billing":{"region":{"code":"US"},"subscription_id":"first"}},
      {"billing":{"region":{"code":"EU"},"subscription_id":"eu"}},
      {"billing":{"region":{"code":"US"},"subscription_id":"later"}}]})");
  const QMap<QString, QString> expected{{"US", "later"}, {"EU", "eu"}};
  EXPECT_EQ(summary_text::site_map(answer), expected);
  EXPECT_TRUE(summary_text::site_map(parse(R"({"data":{"billing":{}}})")).isEmpty());
  EXPECT_EQ(summary_text::site_map(
                parse(R"({"data":["x",{"billing":{"region":{"code":"TW"},"subscription_id":3}}]})")),
            (QMap<QString, QString>{{"", ""}, {"TW", ""}}));
}

TEST(SummaryDisplayCopy, PolicyNamesReplacedElementsOfWrongTypeKept) {
  const auto answer = parse(R"({"data":[
      {"backup_policy":{"is_default":true,"backup_type":2,"policy_name":"raw"}},
      "not a site",
      {"backup_policy":"not a policy"},
      {"backup_policy":{"policy_name":"Named"}}]})");
  const Json::Value copy = summary_text::with_display_policy_names(answer);
  EXPECT_EQ(copy["data"][0]["backup_policy"]["policy_name"].asString(),
            text(Str::default_policy_physical_server).toStdString());
  EXPECT_EQ(copy["data"][1], answer["data"][1]);
  EXPECT_EQ(copy["data"][2], answer["data"][2]);
  EXPECT_EQ(copy["data"][3]["backup_policy"]["policy_name"].asString(), "Named");
  EXPECT_EQ(answer["data"][0]["backup_policy"]["policy_name"].asString(),
            "raw");  // the original is untouched
}

TEST(SummaryLineHeight, DivWithAndWithoutSemicolonScaledWithTheDisplay) {
  nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "1");
  EXPECT_EQ(summary_text::line_height_div("a", 24),
            QStringLiteral("<div style=\"line-height:24px;\">a</div>"));
  EXPECT_EQ(summary_text::line_height_div("a", 24, false),
            QStringLiteral("<div style=\"line-height:24px\">a</div>"));
  nimbra_test::ScopedEnv doubled("NIMBRA_UI_SCALE", "2");
  EXPECT_EQ(summary_text::line_height_div("a", 24),
            QStringLiteral("<div style=\"line-height:48px;\">a</div>"));
}

}  // namespace
