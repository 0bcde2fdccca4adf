// The summary page's tables: site and policy names, scope and schedule
// lines, the site map and the account type, with rows from the page's
// tables and members of the wrong type.

#include <gtest/gtest.h>

#include <QMap>

#include "agent-test.h"
#include "string-display.h"
#include "support/qt-print.h"
#include "wizard/summary-text.h"

namespace {

using agent_test::parse;
using string_display::text;

struct Row {
  const char* name;
  const char* json;
  QString expected;
};
void PrintTo(const Row& r, std::ostream* os) {
  *os << r.name;
}
std::string rowName(const ::testing::TestParamInfo<Row>& p) {
  return p.param.name;
}

// --- site display name ---------------------------------------------------

class SiteName : public ::testing::TestWithParam<Row> {};
TEST_P(SiteName, FromBilling) {
  EXPECT_EQ(summary_text::site_display_name(parse(GetParam().json)), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(
    Rows, SiteName,
    ::testing::Values(
        Row{"US", R"({"region":{"code":"US","i18n":"x"},"city":{"i18n":"y"}})", text(Str::region_us)},
        Row{"EU", R"({"region":{"code":"EU"}})", text(Str::region_europe)},
        Row{"TW", R"({"region":{"code":"TW"}})", text(Str::region_taiwan)},
        Row{"lower_case_us_is_not_built_in", R"({"region":{"code":"us","i18n":"N"},"city":{"i18n":"S"}})",
            QStringLiteral("N-S")},
        Row{"other_region_bare_hyphen",
            R"({"region":{"code":"JP","i18n":"Asia Pacific"},"city":{"code":"jp-1","i18n":"Tokyo"}})",
            QStringLiteral("Asia Pacific-Tokyo")},
        Row{"nothing_known", R"({})", QStringLiteral("-")},
        Row{"wrong_types", R"({"region":"US","city":{"i18n":7}})", QStringLiteral("-")},
        Row{"code_of_wrong_type", R"({"region":{"code":1,"i18n":"R"},"city":{"i18n":"C"}})",
            QStringLiteral("R-C")}),
    rowName);

// --- policy display name -------------------------------------------------

class PolicyName : public ::testing::TestWithParam<Row> {};
TEST_P(PolicyName, FromPolicy) {
  EXPECT_EQ(summary_text::policy_display_name(parse(GetParam().json)), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(
    Rows, PolicyName,
    ::testing::Values(Row{"default_personal_computer",
                          R"({"is_default":true,"backup_type":1,"policy_name":"P"})",
                          text(Str::default_policy_endpoint)},
                      Row{"default_physical_server",
                          R"({"is_default":true,"backup_type":2,"policy_name":"P"})",
                          text(Str::default_policy_physical_server)},
                      Row{"default_other_type_empty",
                          R"({"is_default":true,"backup_type":3,"policy_name":"P"})", QString()},
                      Row{"named", R"({"is_default":false,"backup_type":1,"policy_name":"Finance laptops"})",
                          QStringLiteral("Finance laptops")},
                      Row{"is_default_as_string_is_not_default",
                          R"({"is_default":"true","backup_type":1,"policy_name":"N"})", QStringLiteral("N")},
                      Row{"name_of_wrong_type", R"({"policy_name":["x"]})", QString()}),
    rowName);

// --- scope -----------------------------------------------------------------

struct ScopeRow {
  const char* name;
  const char* json;
  QString expected;
  bool shortened;
};
void PrintTo(const ScopeRow& r, std::ostream* os) {
  *os << r.name;
}

class Scope : public ::testing::TestWithParam<ScopeRow> {};
TEST_P(Scope, TextAndNote) {
  const auto scope = summary_text::scope_text(parse(GetParam().json));
  EXPECT_EQ(scope.text, GetParam().expected);
  EXPECT_EQ(scope.shortened, GetParam().shortened);
}
const QString kVolumes = text(Str::desc_backup_source_custom_vol);
INSTANTIATE_TEST_SUITE_P(
    Rows, Scope,
    ::testing::Values(ScopeRow{"entire_device_external", R"({"source_type":1,"enable_backup_external":true})",
                               text(Str::desc_backup_source_bare_metal_external_device), false},
                      ScopeRow{"entire_device", R"({"source_type":1,"enable_backup_external":false})",
                               text(Str::desc_backup_source_bare_metal), false},
                      ScopeRow{"system_volume", R"({"source_type":2,"custom_volume":["C:","D:","E:","F:"]})",
                               text(Str::desc_backup_source_system_vol), false},
                      ScopeRow{"three_volumes", R"({"source_type":3,"custom_volume":["C:","D:","E:"]})",
                               kVolumes.arg("C:, D:, E:"), false},
                      ScopeRow{"four_volumes", R"({"source_type":3,"custom_volume":["C:","D:","E:","F:"]})",
                               kVolumes.arg("C:, D:, E:..."), true},
                      ScopeRow{"no_volumes", R"({"source_type":3})", kVolumes.arg(QString()), false},
                      ScopeRow{"names_of_wrong_type_skipped",
                               R"({"source_type":3,"custom_volume":["C:",4,null,"D:"]})",
                               kVolumes.arg("C:, D:"), false},
                      ScopeRow{"unknown_source_type", R"({"source_type":9})", QString(), false},
                      ScopeRow{"source_type_as_string", R"({"source_type":"1"})", QString(), false}),
    [](const ::testing::TestParamInfo<ScopeRow>& p) { return std::string(p.param.name); });

// --- schedule ----------------------------------------------------------------

class Schedule : public ::testing::TestWithParam<Row> {};
TEST_P(Schedule, Text) {
  const auto sched = summary_text::schedule_text(parse(GetParam().json));
  if (GetParam().expected.isNull()) {
    EXPECT_FALSE(sched.has_value()) << sched.value_or(QString()).toStdString();
  } else {
    ASSERT_TRUE(sched.has_value());
    EXPECT_EQ(*sched, GetParam().expected);
  }
}
const QString kWeekly = text(Str::weekly_backup);
const QString kEvent = text(Str::event_backup);
INSTANTIATE_TEST_SUITE_P(
    Rows, Schedule,
    ::testing::Values(
        Row{"type4_automated_daily", R"({"schedule_setting_type":4})", text(Str::auto_daily_backup)},
        Row{"type1_none", R"({"schedule_setting_type":1,"sched_content":{"time":{"run_hour":3}}})",
            text(Str::desc_no_schedule)},
        Row{"type2_daily",
            R"({"schedule_setting_type":2,"sched_content":{"time":{"run_hour":2,"run_min":5,"day_choose_by":1,"run_weekday":[1]}}})",
            text(Str::daily_backup).arg("02:05")},
        Row{"type2_weekly",
            R"({"schedule_setting_type":2,"sched_content":{"time":{"run_hour":21,"run_min":30,"day_choose_by":2,"run_weekday":[1,3,5]}}})",
            kWeekly.arg(QStringLiteral("Monday, Wednesday, Friday"), QStringLiteral("21:30"))},
        Row{"type2_weekly_index_7_and_more_skipped",
            R"({"schedule_setting_type":2,"sched_content":{"time":{"run_hour":8,"run_min":0,"run_weekday":[6,7,0,12,-1,"2"]}}})",
            kWeekly.arg(QStringLiteral("Saturday, Sunday"), QStringLiteral("08:00"))},
        Row{"type2_without_schedule_object", R"({"schedule_setting_type":2})",
            kWeekly.arg(QString(), QStringLiteral("00:00"))},
        Row{"type2_time_out_of_range",
            R"({"schedule_setting_type":2,"sched_content":{"time":{"run_hour":25,"run_min":0,"day_choose_by":1}}})",
            text(Str::daily_backup).arg("--:--")},
        Row{"type3_events_in_order_unknown_add_nothing",
            R"({"schedule_setting_type":3,"sched_content":{"event":{"types":[3,9,1,2,"1"]}}})",
            kEvent.arg(QStringLiteral("Device power on, Screen lock, Signout"))},
        Row{"type3_no_events", R"({"schedule_setting_type":3,"sched_content":{"event":{}}})",
            kEvent.arg(QString())},
        Row{"sched_content_of_wrong_type",
            R"({"schedule_setting_type":3,"sched_content":[{"event":{"types":[1]}}]})",
            kEvent.arg(QString())},
        Row{"type0_leaves_row", R"({"schedule_setting_type":0})", QString()},
        Row{"type5_leaves_row", R"({"schedule_setting_type":5})", QString()},
        Row{"type_as_string_leaves_row", R"({"schedule_setting_type":"4"})", QString()}),
    rowName);

// --- site map, account type, display copy ------------------------------------

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

struct AccountRow {
  const char* name;
  const char* json;
  const char* expected;
};
void PrintTo(const AccountRow& r, std::ostream* os) {
  *os << r.name;
}
class AccountType : public ::testing::TestWithParam<AccountRow> {};
TEST_P(AccountType, OnlyElementZeroSaysNimbra) {
  EXPECT_EQ(summary_text::account_type(parse(GetParam().json)), QString::fromLatin1(GetParam().expected));
}
INSTANTIATE_TEST_SUITE_P(
    Rows, AccountType,
    ::testing::Values(
        AccountRow{"nimbra", R"({"data":[{"backup_policy":{"account_type":"nimbra"}}]})", "nimbra"},
        AccountRow{"vell", R"({"data":[{"backup_policy":{"account_type":"vell"}}]})", "vell"},
        AccountRow{"capitalised", R"({"data":[{"backup_policy":{"account_type":"Nimbra"}}]})", "vell"},
        AccountRow{"only_element_1", R"({"data":[{},{"backup_policy":{"account_type":"nimbra"}}]})", "vell"},
        AccountRow{"wrong_type", R"({"data":[{"backup_policy":{"account_type":1}}]})", "vell"},
        AccountRow{"no_data", R"({"error":{"code":4}})", "vell"}),
    [](const ::testing::TestParamInfo<AccountRow>& p) { return std::string(p.param.name); });

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
