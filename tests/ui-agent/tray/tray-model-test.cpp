// The tray's decision tables: relative ages, the status and progress pages'
// views, page choice, kept entries, menu entries by account, quota usage,
// the tray icon's tool tip and "Back up now".

#include <gtest/gtest.h>

#include "core/service-error-text.h"
#include "string-display.h"
#include "tray-fixture.h"
#include "tray/progress-page-model.h"
#include "tray/quota-model.h"
#include "tray/relative-age.h"
#include "tray/status-page-model.h"
#include "tray/tray-icon-model.h"
#include "tray/tray-menu-model.h"

using tray_test::entry;

namespace {

// ---- relative age ----------------------------------------------------------

struct AgeRow {
  const char* name;
  qint64 d;
  Str key;
  quint64 number;
};
void PrintTo(const AgeRow& r, std::ostream* os) { *os << r.name; }

class RelativeAge : public ::testing::TestWithParam<AgeRow> {};

TEST_P(RelativeAge, RangeGivesKeyAndNumber) {
  const auto& r = GetParam();
  const auto age = tray_text::relative_age(tray_test::kMoment, static_cast<quint64>(tray_test::kMoment - r.d));
  EXPECT_EQ(age.key, r.key);
  EXPECT_EQ(age.number, r.number);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RelativeAge,
    ::testing::Values(AgeRow{"zero", 0, Str::just_now, 0}, AgeRow{"s59", 59, Str::just_now, 0},
                      AgeRow{"s60_falls_to_days", 60, Str::day_ago, 0}, AgeRow{"s61", 61, Str::min_ago, 1},
                      AgeRow{"s119", 119, Str::min_ago, 1}, AgeRow{"s120", 120, Str::mins_ago, 2},
                      AgeRow{"s3599", 3599, Str::mins_ago, 59},
                      AgeRow{"s3600_falls_to_days", 3600, Str::day_ago, 0}, AgeRow{"s3601", 3601, Str::hour_ago, 1},
                      AgeRow{"s7199", 7199, Str::hour_ago, 1}, AgeRow{"s7200", 7200, Str::hours_ago, 2},
                      AgeRow{"s86399", 86399, Str::hours_ago, 23}, AgeRow{"s86400", 86400, Str::day_ago, 1},
                      AgeRow{"s172799", 172799, Str::day_ago, 1}, AgeRow{"s172800", 172800, Str::days_ago, 2},
                      AgeRow{"future_is_just_now", -3600, Str::just_now, 0}),
    [](const ::testing::TestParamInfo<AgeRow>& i) { return std::string(i.param.name); });

TEST(RelativeAgeText, FillsTheNumber) {
  const qint64 now = tray_test::kMoment;
  EXPECT_EQ(tray_text::relative_age_text(now, now - 60), QStringLiteral("0 day ago"));
  EXPECT_EQ(tray_text::relative_age_text(now, now - 300), QStringLiteral("5 minutes ago"));
  EXPECT_EQ(tray_text::relative_age_text(now, now - 5), QStringLiteral("Just now"));
  // A time beyond any clock (hostile input) is not in the past.
  EXPECT_EQ(tray_text::relative_age_text(now, ~0ull), QStringLiteral("Just now"));
}

// ---- status page -------------------------------------------------------------

struct ResultRow {
  const char* name;
  int code;
  bool backed_up;
  Str text;
  const char* picture;
  TrayStatus tray;
};
void PrintTo(const ResultRow& r, std::ostream* os) { *os << r.name; }

class StatusResult : public ::testing::TestWithParam<ResultRow> {};

TEST_P(StatusResult, CodeGivesTextPictureAndTrayState) {
  const auto& r = GetParam();
  Json::Value c(Json::objectValue);
  c["connected"] = true;
  c["last_backup_result"]["last_backup_status"] = r.code;
  if (!r.backed_up) c["last_backup_result"]["backed_up"] = false;
  const auto v = tray_status_page::view_for(c);
  EXPECT_FALSE(v.error);
  EXPECT_EQ(v.result.text, r.text);
  EXPECT_STREQ(v.result.picture, r.picture);
  EXPECT_EQ(v.result.tray, r.tray);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StatusResult,
    ::testing::Values(
        ResultRow{"successful", 2, true, Str::desc_status_complete, "status_m_done", TraySuccess},
        ResultRow{"partial", 3, true, Str::desc_status_partial_success, "status_m_cancel", TrayWarning},
        ResultRow{"failed", 4, true, Str::desc_status_failed, "status_m_error", TrayError},
        ResultRow{"canceled", 5, true, Str::desc_backup_cancel, "status_m_cancel", TrayWarning},
        ResultRow{"other_code_ready", 1, true, Str::desc_status_connected, "status_m_idle", TrayIdle},
        ResultRow{"code_zero_ready", 0, true, Str::desc_status_connected, "status_m_idle", TrayIdle},
        ResultRow{"not_backed_up_wins", 2, false, Str::desc_status_connected, "status_m_idle", TrayIdle},
        ResultRow{"not_backed_up_failed", 4, false, Str::desc_status_connected, "status_m_idle", TrayIdle}),
    [](const ::testing::TestParamInfo<ResultRow>& i) { return std::string(i.param.name); });

class StatusPage : public tray_test::TrayTest {};

TEST_F(StatusPage, ScheduleTexts) {
  auto view = [](const char* json) { return tray_status_page::view_for(agent_test::parse(json)); };
  auto v = view(R"({"connected":true,"last_backup_result":{"last_backup_time":1706745545},"next_backup_time":0})");
  EXPECT_EQ(v.last_backup.value_or("-"), QStringLiteral("2024/01/31 23:59"));
  EXPECT_EQ(v.next_backup.value_or("-"), QStringLiteral("No backup schedule"));
  v = view(R"({"connected":true,"last_backup_result":{"last_backup_time":0},"next_backup_time":1706745545,
               "schedule_type":3})");
  EXPECT_EQ(v.last_backup.value_or("-"), QStringLiteral("Not backed up yet"));
  EXPECT_EQ(v.next_backup.value_or("-"), QStringLiteral("2024/01/31 23:59"));
  // Without a next time the schedule type decides; unknown types leave the label.
  EXPECT_EQ(view(R"({"connected":true,"schedule_type":1})").next_backup.value_or("-"),
            QStringLiteral("No backup schedule"));
  EXPECT_EQ(view(R"({"connected":true,"schedule_type":3})").next_backup.value_or("-"),
            QStringLiteral("Backup by event"));
  EXPECT_EQ(view(R"({"connected":true,"schedule_type":4})").next_backup.value_or("-"),
            QStringLiteral("Automated daily backup"));
  EXPECT_FALSE(view(R"({"connected":true,"schedule_type":2})").next_backup.has_value());
  EXPECT_FALSE(view(R"({"connected":true,"schedule_type":"4"})").next_backup.has_value());
  EXPECT_FALSE(view(R"({"connected":true})").last_backup.has_value());
}

TEST_F(StatusPage, ErrorPageCodes) {
  // No "error" but not connected: code 5.
  auto v = tray_status_page::view_for(agent_test::parse(R"({"connected":false})"));
  EXPECT_TRUE(v.error);
  EXPECT_EQ(v.result.tray, TrayError);
  EXPECT_EQ(v.result.text, Str::desc_status_error);
  EXPECT_EQ(v.error_message, service_error::message(5));
  EXPECT_EQ(tray_status_page::error_code_of(agent_test::parse(R"({})")), 5);
  // An error while connected wins over the result.
  v = tray_status_page::view_for(
      agent_test::parse(R"({"connected":true,"error":{"code":13},"last_backup_result":{"last_backup_status":2}})"));
  EXPECT_TRUE(v.error);
  EXPECT_EQ(v.error_message, service_error::message(13));
  // A code of the wrong type or out of range reads as a code without a text.
  EXPECT_EQ(tray_status_page::view_for(agent_test::parse(R"({"error":{"code":"13"}})")).error_message,
            service_error::message(0));
  EXPECT_EQ(tray_status_page::view_for(agent_test::parse(R"({"error":{"code":4294967309}})")).error_message,
            service_error::message(0));
  // "connected" of the wrong type is not true.
  EXPECT_TRUE(tray_status_page::view_for(agent_test::parse(R"({"connected":"true"})")).error);
}

// ---- progress page -----------------------------------------------------------

struct PercentRow {
  const char* name;
  double raw;
  double rounded;
  int bar;
};
void PrintTo(const PercentRow& r, std::ostream* os) { *os << r.name; }
class Percentage : public ::testing::TestWithParam<PercentRow> {};

TEST_P(Percentage, ThreeSignificantDigitsAndBar) {
  const auto& r = GetParam();
  const double p = tray_progress_page::round_three_significant(r.raw);
  EXPECT_DOUBLE_EQ(p, r.rounded);
  EXPECT_EQ(tray_progress_page::bar_value(p), r.bar);
}

INSTANTIATE_TEST_SUITE_P(Rows, Percentage,
                         ::testing::Values(PercentRow{"p12_3456", 12.3456, 12.3, 1230},
                                           PercentRow{"p100", 100, 100, 10000},
                                           PercentRow{"p0_123456", 0.123456, 0.123, 12},
                                           PercentRow{"p1_15", 1.15, 1.15, 115},
                                           PercentRow{"p99_95_rounds_up", 99.95, 100, 10000},
                                           PercentRow{"p9_9996_prints_as_10", 9.9996, 10, 1000},
                                           PercentRow{"p5_55_half_up", 5.555, 5.56, 556},
                                           PercentRow{"p0", 0, 0, 0}),
                         [](const ::testing::TestParamInfo<PercentRow>& i) { return std::string(i.param.name); });

class ProgressPage : public tray_test::TrayTest {};

TEST_F(ProgressPage, PhaseByStatus) {
  using tray_progress_page::phase_for;
  EXPECT_EQ(phase_for(static_cast<ServiceStatus>(0x3001)), Str::desc_backup_preparing);
  EXPECT_EQ(phase_for(static_cast<ServiceStatus>(0x3002)), Str::desc_backup_preparing);
  EXPECT_EQ(phase_for(static_cast<ServiceStatus>(0x3003)), Str::desc_status_backup);
  EXPECT_EQ(phase_for(static_cast<ServiceStatus>(0x3000)), Str::desc_status_backup);
}

TEST_F(ProgressPage, FinishEstimateCountsDownWhenStalled) {
  using tray_progress_page::finish_for;
  const qint64 now = tray_test::kMoment;  // 01/31 23:59:05
  // Nothing transferred, no speed: dashes and the estimate restarts.
  auto f = finish_for({0, 0, 1000, 0}, 50, now);
  EXPECT_EQ(f.text.value_or("-"), QStringLiteral("Est. finish: --/-- --:--"));
  EXPECT_EQ(f.estimate, 0);
  // With a speed: (total - transferred) / speed.
  f = finish_for({400, 0, 1600, 10}, 0, now);
  EXPECT_DOUBLE_EQ(f.estimate, 120);
  EXPECT_EQ(f.text.value_or("-"), QStringLiteral("Est. finish: 02/01 00:01"));
  // Stalled: 119, 118, ... from the last estimate.
  f = finish_for({400, 0, 1600, 0}, f.estimate, now);
  EXPECT_DOUBLE_EQ(f.estimate, 119);
  f = finish_for({400, 0, 1600, 0}, f.estimate, now);
  EXPECT_DOUBLE_EQ(f.estimate, 118);
  EXPECT_EQ(f.text.value_or("-"), QStringLiteral("Est. finish: 02/01 00:01"));
  // Stalled with no estimate: the label keeps what it shows.
  EXPECT_FALSE(finish_for({400, 0, 1600, 0}, 0, now).text.has_value());
  // The count-down stops at 0 instead of showing a time in the past.
  EXPECT_EQ(finish_for({400, 0, 1600, 0}, 0.5, now).estimate, 0);
  // Nothing transferred but a speed: the speed's estimate is shown.
  f = finish_for({0, 0, 600, 10}, 0, now);
  EXPECT_DOUBLE_EQ(f.estimate, 60);
  EXPECT_EQ(f.text.value_or("-"), QStringLiteral("Est. finish: 02/01 00:00"));
  // A speed of 1 byte/s for exabytes: a far date, no overflow.
  EXPECT_TRUE(finish_for({1, 0, ~0ull, 1}, 0, now).text.has_value());
  // More transferred than the total: nothing left.
  EXPECT_EQ(finish_for({700, 0, 600, 10}, 9, now).estimate, 0);
}

TEST_F(ProgressPage, ViewFromContent) {
  const auto c = agent_test::parse(
      R"({"connected":true,"transfer":{"transfer":123456,"delta_upload":1536,"total":1000000,"speed":0}})");
  const auto v = tray_progress_page::view_for(static_cast<ServiceStatus>(0x3003), c, 0, tray_test::kMoment);
  EXPECT_TRUE(v.has_transfer);
  EXPECT_EQ(v.percent_text, QStringLiteral("12.3%"));
  EXPECT_EQ(v.bar, 1230);
  EXPECT_TRUE(v.processed_text.contains(QStringLiteral(">1.5 KB<"))) << v.processed_text.toStdString();
  // Without "transfer" only the phase is decided, the estimate is kept.
  const auto w = tray_progress_page::view_for(static_cast<ServiceStatus>(0x3001),
                                              agent_test::parse(R"({"connected":true})"), 42, tray_test::kMoment);
  EXPECT_FALSE(w.has_transfer);
  EXPECT_EQ(w.phase, Str::desc_backup_preparing);
  EXPECT_EQ(w.finish.estimate, 42);
  // A total of 0 is 0 %; members of the wrong type read as 0.
  const auto z = tray_progress_page::view_for(
      static_cast<ServiceStatus>(0x3003),
      agent_test::parse(R"({"transfer":{"transfer":"5","total":0,"speed":[1]}})"), 0, tray_test::kMoment);
  EXPECT_EQ(z.percent_text, QStringLiteral("0%"));
  EXPECT_EQ(z.bar, 0);
  // More than the total is 100 %.
  const auto over = tray_progress_page::view_for(
      static_cast<ServiceStatus>(0x3003),
      agent_test::parse(R"({"transfer":{"transfer":18446744073709551615,"total":3,"speed":1}})"), 0,
      tray_test::kMoment);
  EXPECT_EQ(over.percent_text, QStringLiteral("100%"));
  EXPECT_EQ(over.bar, 10000);
}

// ---- page choice, kept entries, menu entries ----------------------------------

struct PageRow {
  const char* name;
  int status;
  bool connected;
  bool progress;
};
void PrintTo(const PageRow& r, std::ostream* os) { *os << r.name; }
class PageChoice : public ::testing::TestWithParam<PageRow> {};

TEST_P(PageChoice, CategoryAndConnected) {
  Json::Value c(Json::objectValue);
  c["connected"] = GetParam().connected;
  EXPECT_EQ(tray_menu_model::shows_progress_page(static_cast<ServiceStatus>(GetParam().status), c),
            GetParam().progress);
}

INSTANTIATE_TEST_SUITE_P(Rows, PageChoice,
                         ::testing::Values(PageRow{"running_connected", 0x3003, true, true},
                                           PageRow{"running_not_connected", 0x3000, false, false},
                                           PageRow{"idle_connected", 0x2001, true, false},
                                           PageRow{"error_connected", 0xF001, true, false},
                                           PageRow{"other_category_connected", 0x4000, true, true},
                                           PageRow{"unknown_zero_connected", 0, true, true},
                                           PageRow{"not_linked_connected", 0x1005, true, true}),
                         [](const ::testing::TestParamInfo<PageRow>& i) { return std::string(i.param.name); });

// The tool tip's second line ("{t}" the local time of 1700000000) and
// "Back up now" with the reason it is disabled.
struct IconRow {
  const char* name;
  int mode;
  bool reachable;
  int status;
  const char* content;
  const char* line;  // "" for the product name alone
  bool backup_now;
  Str reason;  // app_name: none
};
void PrintTo(const IconRow& r, std::ostream* os) {
  *os << r.name;
}
class IconView : public ::testing::TestWithParam<IconRow> {};

TEST_P(IconView, ToolTipAndBackUpNow) {
  const IconRow& r = GetParam();
  const tray_icon_model::View v = tray_icon_model::view_for(
      {r.mode, r.reachable, static_cast<ServiceStatus>(r.status), agent_test::parse(r.content)});
  QString line = QString::fromUtf8(r.line);
  line.replace("{t}", tray_status_page::last_backup_text(1700000000));
  EXPECT_EQ(v.tool_tip, line.isEmpty() ? QString("Nimbra Backup") : "Nimbra Backup\n" + line);
  EXPECT_EQ(v.backup_now, r.backup_now);
  EXPECT_EQ(v.backup_reason.value_or(Str::app_name), r.reason);
}

constexpr const char* kDone =
    R"({"connected":true,"last_backup_result":{"last_backup_status":2,"last_backup_time":1700000000}})";
constexpr const char* kRun = R"({"connected":true,"transfer":{"transfer":1,"total":8}})";
INSTANTIATE_TEST_SUITE_P(
    Rows, IconView,
    ::testing::Values(
        IconRow{"starting", 0, true, 0, "{}", "", false, Str::tray_tip_not_set_up},
        IconRow{"not_set_up", 2, true, 0x1000, "{}", "Not set up", false, Str::tray_tip_not_set_up},
        IconRow{"idle_success", 1, true, 0x2000, kDone, "Last backup: Successful, {t}", true, Str::app_name},
        IconRow{
            "idle_failed", 1, true, 0x2000,
            R"({"connected":true,"last_backup_result":{"last_backup_status":4,"last_backup_time":1700000000}})",
            "Last backup: Failed, {t}", true, Str::app_name},
        IconRow{"never_backed_up", 1, true, 0x2000, R"({"connected":true})", "Not backed up yet", true,
                Str::app_name},
        IconRow{"running_percent", 1, true, 0x3000, kRun, "Backing up... 12.5%", false,
                Str::tray_menu_backup_running},
        IconRow{"preparing_no_transfer", 1, true, 0x3001, R"({"connected":true})", "Preparing for backup...",
                false, Str::tray_menu_backup_running},
        IconRow{"service_error", 1, true, 0xF000, R"({"connected":true,"error":{"code":3}})", "Error", true,
                Str::app_name},
        IconRow{"unreachable_while_running", 1, false, 0x3000, kRun, "Service not reachable", false,
                Str::tray_tip_unreachable},
        IconRow{"unreachable_idle", 1, false, 0x2000, kDone, "Service not reachable", false,
                Str::tray_tip_unreachable}),
    [](const ::testing::TestParamInfo<IconRow>& i) { return std::string(i.param.name); });

QList<LogEntry> entries(quint64 first, quint64 last) {
  QList<LogEntry> list;
  for (quint64 id = first; id <= last; ++id) list << entry(id);
  return list;
}

TEST(KeptEntries, TrimmedToTheLast100) {
  QList<LogEntry> kept = entries(1, 99);
  EXPECT_TRUE(tray_menu_model::keep_entries(kept, entries(100, 102)));
  ASSERT_EQ(kept.size(), 100);
  EXPECT_EQ(kept.front().id, 3u);
  EXPECT_EQ(kept.back().id, 102u);

  QList<LogEntry> fresh;
  tray_menu_model::keep_entries(fresh, entries(1, 150));
  ASSERT_EQ(fresh.size(), 100);
  EXPECT_EQ(fresh.front().id, 51u);

  EXPECT_FALSE(tray_menu_model::keep_entries(fresh, {}));
  EXPECT_EQ(fresh.size(), 100);
}

struct MenuRow {
  const char* name;
  bool vell, fork;
  int role;
  bool console, portal, area;
};
void PrintTo(const MenuRow& r, std::ostream* os) { *os << r.name; }
class MenuEntries : public ::testing::TestWithParam<MenuRow> {};

TEST_P(MenuEntries, VisibilityByAccount) {
  const auto& r = GetParam();
  const auto v = tray_menu_model::menu_visibility(r.vell, r.fork, r.role);
  EXPECT_EQ(v.web_console, r.console);
  EXPECT_EQ(v.recovery_portal, r.portal);
  EXPECT_EQ(v.quota_area, r.area);
}

INSTANTIATE_TEST_SUITE_P(Rows, MenuEntries,
                         ::testing::Values(MenuRow{"auth_fork_first", true, true, 3, false, false, false},
                                           MenuRow{"vell", true, false, 0, true, true, true},
                                           MenuRow{"role3", false, false, 3, true, true, false},
                                           MenuRow{"role2", false, false, 2, false, true, false},
                                           MenuRow{"role1", false, false, 1, false, false, false},
                                           MenuRow{"role4", false, false, 4, false, true, false}),
                         [](const ::testing::TestParamInfo<MenuRow>& i) { return std::string(i.param.name); });

// ---- quota -------------------------------------------------------------------

struct QuotaRow {
  const char* name;
  const char* billing;
  int bar;
  bool red;
};
void PrintTo(const QuotaRow& r, std::ostream* os) { *os << r.name; }
class QuotaUsage : public ::testing::TestWithParam<QuotaRow> {};

TEST_P(QuotaUsage, PercentColourAndBar) {
  const auto u = quota_model::usage_for(agent_test::parse(GetParam().billing));
  ASSERT_TRUE(u.has_value());
  EXPECT_EQ(u->bar, GetParam().bar);
  EXPECT_EQ(u->red, GetParam().red);
  EXPECT_EQ(u->style_sheet, GetParam().red ? "tray_usage_red" : "tray_usage_blue");
  EXPECT_TRUE(u->label.contains(GetParam().red ? "#E64040" : "#0A9CFF")) << u->label.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QuotaUsage,
    ::testing::Values(QuotaRow{"quota_zero", R"({"used_bytes":0,"quota":0})", 0, false},
                      QuotaRow{"used_of_quota_zero_full", R"({"used_bytes":500,"quota":0})", 100, true},
                      QuotaRow{"max_of_quota_zero_full", R"({"used_bytes":18446744073709551615,"quota":0})",
                               100, true},
                      QuotaRow{"u95_of_100_red", R"({"used_bytes":95,"quota":100})", 95, true},
                      QuotaRow{"u94_99_blue", R"({"used_bytes":9499,"quota":10000})", 94, false},
                      QuotaRow{"over_quota_full", R"({"used_bytes":300,"quota":100})", 100, true}),
    [](const ::testing::TestParamInfo<QuotaRow>& i) { return std::string(i.param.name); });

TEST(QuotaUsageText, SizesAndMissingMembers) {
  const auto u = quota_model::usage_for(agent_test::parse(R"({"used_bytes":1536,"quota":1073741824})"));
  ASSERT_TRUE(u.has_value());
  EXPECT_EQ(u->label, QStringLiteral("<span style=\"color: #0A9CFF\">1.5 KB</span> / 1 GB"));
  const auto most =
      quota_model::usage_for(agent_test::parse(R"({"used_bytes":18446744073709551615,"quota":0})"));
  ASSERT_TRUE(most.has_value());
  EXPECT_EQ(most->label, QStringLiteral("<span style=\"color: #E64040\">16 EB</span> / 0 Bytes"));
  EXPECT_FALSE(quota_model::usage_for(agent_test::parse(R"({"used_bytes":1536})")).has_value());
  EXPECT_FALSE(quota_model::usage_for(agent_test::parse(R"({"quota":1})")).has_value());
  EXPECT_FALSE(quota_model::usage_for(agent_test::parse(R"([1,2])")).has_value());
}

TEST(AccountLine, HeightByMeasuredWidth) {
  EXPECT_EQ(quota_model::account_line_height(166, 1), 28);
  EXPECT_EQ(quota_model::account_line_height(167, 1), 48);        // 167 + 5 = 172: n = 1
  EXPECT_EQ(quota_model::account_line_height(167 * 2, 2), 48);    // measured in scaled pixels
  EXPECT_EQ(quota_model::account_line_height(166 * 2, 2), 28);
  EXPECT_EQ(quota_model::account_line_height(338, 1), 48);
  EXPECT_EQ(quota_model::account_line_height(339, 1), 68);
}

}  // namespace
