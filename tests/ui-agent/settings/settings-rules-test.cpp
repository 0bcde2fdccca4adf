// The settings dialog's decisions, row by row: validity of a bandwidth
// configuration, what a configuration loads, the end times after a start,
// the rate clamp, the rate-unit and upload-estimate texts, the organisation's
// note and the save request.

#include <gtest/gtest.h>

#include <cctype>
#include <ostream>
#include <string>

#include "agent-test.h"
#include "dialogs/settings-rules.h"
#include "json-access.h"
#include "string-display.h"
#include "support/qt-print.h"

using agent_test::parse;
namespace rules = settings_rules;

namespace {

// Test names from free text: letters and digits kept, everything else "_".
std::string caseName(const std::string& text) {
  std::string out;
  for (char c : text) out += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
  return out;
}

// --- validity -----------------------------------------------------------

struct ValidityRow {
  const char* name;
  const char* config;
  bool valid;
};
void PrintTo(const ValidityRow& row, std::ostream* os) {
  *os << row.config;
}

class Validity : public ::testing::TestWithParam<ValidityRow> {};

TEST_P(Validity, FollowsTheRule) {
  EXPECT_EQ(rules::isValidConfig(parse(GetParam().config)), GetParam().valid);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, Validity,
    ::testing::Values(
        ValidityRow{"no_type", R"({"bandwidth_rate":20})", false},
        ValidityRow{"empty_object", R"({})", false}, ValidityRow{"not_an_object", R"([1,2])", false},
        ValidityRow{"null", R"(null)", false}, ValidityRow{"type_0_alone", R"({"bandwidth_type":0})", true},
        ValidityRow{"type_0_with_bad_times", R"({"bandwidth_type":0,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"7:00","bandwidth_end_time":"x"})",
                    true},
        ValidityRow{"type_2", R"({"bandwidth_type":2,"bandwidth_limit_range":false})", false},
        ValidityRow{"type_as_string", R"({"bandwidth_type":"1","bandwidth_limit_range":false})", false},
        ValidityRow{"type_1_without_range", R"({"bandwidth_type":1,"bandwidth_rate":20})", false},
        ValidityRow{"type_1_range_off", R"({"bandwidth_type":1,"bandwidth_limit_range":false})", true},
        ValidityRow{"type_1_range_with_times", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"07:00","bandwidth_end_time":"23:00"})",
                    true},
        ValidityRow{"end_7_00_short", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"07:00","bandwidth_end_time":"7:00"})",
                    false},
        ValidityRow{"end_missing", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"07:00"})",
                    false},
        ValidityRow{"start_missing", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_end_time":"07:00"})",
                    false},
        ValidityRow{"start_hour_24", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"24:00","bandwidth_end_time":"05:00"})",
                    false},
        ValidityRow{"end_minute_60", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"22:00","bandwidth_end_time":"23:60"})",
                    false},
        ValidityRow{"end_23_59", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"00:00","bandwidth_end_time":"23:59"})",
                    true},
        ValidityRow{"end_a_number", R"({"bandwidth_type":1,"bandwidth_limit_range":true,
                     "bandwidth_start_time":"07:00","bandwidth_end_time":700})",
                    false},
        ValidityRow{"range_not_a_bool_needs_times", R"({"bandwidth_type":1,"bandwidth_limit_range":0})",
                    false}),
    [](const auto& row) { return std::string(row.param.name); });

struct TimeRow {
  const char* time;
  bool valid;
};
void PrintTo(const TimeRow& row, std::ostream* os) {
  *os << '"' << row.time << '"';
}

class TimeValidity : public ::testing::TestWithParam<TimeRow> {};

TEST_P(TimeValidity, FiveCharactersColonAtTwoHourAndMinuteInRange) {
  EXPECT_EQ(rules::isValidTime(GetParam().time), GetParam().valid);
}

INSTANTIATE_TEST_SUITE_P(Settings, TimeValidity,
                         ::testing::Values(TimeRow{"00:00", true}, TimeRow{"23:59", true},
                                           TimeRow{"07:30", true}, TimeRow{"24:00", false},
                                           TimeRow{"12:60", false}, TimeRow{"7:00", false},
                                           TimeRow{"07:000", false}, TimeRow{"0700", false},
                                           TimeRow{"07-00", false}, TimeRow{":0700", false},
                                           TimeRow{"ab:cd", false}, TimeRow{" 7:00", false},
                                           TimeRow{"-1:00", false}, TimeRow{"", false}),
                         [](const auto& row) { return "t" + caseName(row.param.time) + "_"; });

// --- end items ----------------------------------------------------------

TEST(SettingsEndItems, StartAt22OffersTheNext23HoursWithNextDay) {
  const QStringList items = rules::endItems(QStringLiteral("22:00"), QStringLiteral("Next day"));
  ASSERT_EQ(items.size(), 23);
  EXPECT_EQ(items.first(), QStringLiteral("23:00"));
  EXPECT_EQ(items.at(1), QStringLiteral("00:00 Next day"));
  EXPECT_EQ(items.last(), QStringLiteral("21:00 Next day"));
}

TEST(SettingsEndItems, MidnightStartHasNoNextDayAndEndsAt23) {
  const QStringList items = rules::endItems(QStringLiteral("00:00"), QStringLiteral("Next day"));
  ASSERT_EQ(items.size(), 23);
  EXPECT_EQ(items.first(), QStringLiteral("01:00"));
  EXPECT_EQ(items.last(), QStringLiteral("23:00"));
  for (const QString& item : items) EXPECT_EQ(item.size(), 5) << item.toStdString();
}

TEST(SettingsEndItems, CustomStartKeepsItsMinutesNotItsSuffix) {
  const QStringList items = rules::endItems(QStringLiteral("07:30 (Custom)"), QStringLiteral("Next day"));
  ASSERT_EQ(items.size(), 23);
  EXPECT_EQ(items.first(), QStringLiteral("08:30"));
  EXPECT_EQ(items.at(16), QStringLiteral("00:30 Next day"));
  EXPECT_EQ(items.last(), QStringLiteral("06:30 Next day"));
}

TEST(SettingsEndItems, StartWithoutAnHourOffersNothing) {
  EXPECT_TRUE(rules::endItems(QString(), QStringLiteral("Next day")).isEmpty());
  EXPECT_TRUE(rules::endItems(QStringLiteral("xx:00"), QStringLiteral("Next day")).isEmpty());
}

TEST(SettingsEndItems, StartItemsAreTheWholeHours) {
  const QStringList items = rules::startItems();
  ASSERT_EQ(items.size(), 24);
  EXPECT_EQ(items.first(), QStringLiteral("00:00"));
  EXPECT_EQ(items.at(7), QStringLiteral("07:00"));
  EXPECT_EQ(items.last(), QStringLiteral("23:00"));
}

struct EndIndexRow {
  const char* name;
  const char* start;
  const char* previous;
  int index;
};
void PrintTo(const EndIndexRow& row, std::ostream* os) {
  *os << row.start << " keeps " << row.previous;
}

class EndItemIndex : public ::testing::TestWithParam<EndIndexRow> {};

TEST_P(EndItemIndex, KeepsTheEndWhileOfferedElseTheFirst) {
  const QStringList items = rules::endItems(QLatin1String(GetParam().start), QStringLiteral("Next day"));
  EXPECT_EQ(rules::endItemIndex(items, QLatin1String(GetParam().previous)), GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(Settings, EndItemIndex,
                         ::testing::Values(EndIndexRow{"end_23_kept_after_22", "22:00", "23:00", 0},
                                           EndIndexRow{"end_23_kept_after_07", "07:00", "23:00", 15},
                                           EndIndexRow{"next_day_suffix_ignored", "07:00", "05:00 Next day",
                                                       21},
                                           EndIndexRow{"suffix_added_when_now_next_day", "22:00", "05:00", 6},
                                           EndIndexRow{"end_equal_to_new_start", "23:00", "23:00", 0},
                                           EndIndexRow{"nothing_selected_before", "07:00", "", 0}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SettingsEndItems, EndBeforeStartShowsNextDay) {
  const QString nextDay = QStringLiteral("Next day");
  EXPECT_EQ(rules::endDisplayText(QStringLiteral("05:00"), QStringLiteral("07:00"), nextDay),
            QStringLiteral("05:00 Next day"));
  EXPECT_EQ(rules::endDisplayText(QStringLiteral("23:00"), QStringLiteral("07:00"), nextDay),
            QStringLiteral("23:00"));
  EXPECT_EQ(rules::endDisplayText(QStringLiteral("07:30"), QStringLiteral("07:00"), nextDay),
            QStringLiteral("07:30"));
  EXPECT_EQ(
      rules::endDisplayText(QStringLiteral("05:00 Next day"), QStringLiteral("07:00 (Custom)"), nextDay),
      QStringLiteral("05:00 Next day"));
}

// --- load -----------------------------------------------------------------

TEST(SettingsLoad, DefaultsAreNoLimit20From07To23) {
  const Json::Value defaults = rules::defaultConfig();
  EXPECT_TRUE(rules::isValidConfig(defaults));
  EXPECT_EQ(defaults, parse(R"({"bandwidth_end_time":"23:00","bandwidth_limit_range":true,"bandwidth_rate":20,
                                "bandwidth_start_time":"07:00","bandwidth_type":0})"));
  const rules::LoadedSettings loaded = rules::loadSettings(defaults);
  EXPECT_FALSE(loaded.limited);
  EXPECT_EQ(loaded.rate, QStringLiteral("20"));
  EXPECT_TRUE(loaded.limitRange);
  EXPECT_EQ(loaded.start, QStringLiteral("07:00"));
  EXPECT_EQ(loaded.end, QStringLiteral("23:00"));
}

TEST(SettingsLoad, LimitedConfigLoadsAsItIs) {
  const rules::LoadedSettings loaded = rules::loadSettings(parse(
      R"({"bandwidth_type":1,"bandwidth_rate":350,"bandwidth_limit_range":false,
          "bandwidth_start_time":"07:00","bandwidth_end_time":"05:00"})"));
  EXPECT_TRUE(loaded.limited);
  EXPECT_EQ(loaded.rate, QStringLiteral("350"));
  EXPECT_FALSE(loaded.limitRange);
  EXPECT_EQ(loaded.start, QStringLiteral("07:00"));
  EXPECT_EQ(loaded.end, QStringLiteral("05:00"));
}

struct LoadRateRow {
  const char* name;
  const char* rate;  // JSON
  const char* shown;
};
void PrintTo(const LoadRateRow& row, std::ostream* os) {
  *os << row.rate;
}

class LoadRate : public ::testing::TestWithParam<LoadRateRow> {};

TEST_P(LoadRate, ShowsARateTheEditCanHold) {
  const Json::Value config = parse(std::string(R"({"bandwidth_type":1,"bandwidth_limit_range":false,)") +
                                   R"("bandwidth_rate":)" + GetParam().rate + "}");
  EXPECT_EQ(rules::loadSettings(config).rate, QLatin1String(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(
    Settings, LoadRate,
    ::testing::Values(LoadRateRow{"in_range", "5", "5"}, LoadRateRow{"highest", "9999", "9999"},
                      LoadRateRow{"below", "3", "5"}, LoadRateRow{"zero", "0", "5"},
                      LoadRateRow{"negative", "-40", "5"}, LoadRateRow{"above", "12000", "9999"},
                      LoadRateRow{"text", R"("50")", "20"}, LoadRateRow{"null", "null", "20"},
                      LoadRateRow{"whole_double", "64.0", "64"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(SettingsLoad, TimesThatAreNoTimesFallBackToTheDefaultRange) {
  const rules::LoadedSettings loaded =
      rules::loadSettings(parse(R"({"bandwidth_type":0,"bandwidth_start_time":"7","bandwidth_end_time":5})"));
  EXPECT_EQ(loaded.start, QStringLiteral("07:00"));
  EXPECT_EQ(loaded.end, QStringLiteral("23:00"));
}

// --- rate clamp -----------------------------------------------------------

struct ClampRow {
  const char* name;
  const char* text;
  const char* clamped;
};
void PrintTo(const ClampRow& row, std::ostream* os) {
  *os << '"' << row.text << '"';
}

class RateClamp : public ::testing::TestWithParam<ClampRow> {};

TEST_P(RateClamp, KeepsTheRateWithin5And9999) {
  EXPECT_EQ(rules::clampRate(QLatin1String(GetParam().text)), QLatin1String(GetParam().clamped));
}

INSTANTIATE_TEST_SUITE_P(
    Settings, RateClamp,
    ::testing::Values(ClampRow{"empty", "", "5"}, ClampRow{"three", "3", "5"}, ClampRow{"four", "4", "5"},
                      ClampRow{"five", "5", "5"}, ClampRow{"zero", "0", "5"}, ClampRow{"twenty", "20", "20"},
                      ClampRow{"highest", "9999", "9999"}, ClampRow{"above", "10000", "9999"},
                      ClampRow{"huge", "99999999999999999999999", "9999"}, ClampRow{"letters", "abc", "5"}),
    [](const auto& row) { return std::string(row.param.name); });

// --- texts ------------------------------------------------------------------

struct DecimalRow {
  const char* name;
  double value;
  const char* text;
};
void PrintTo(const DecimalRow& row, std::ostream* os) {
  *os << row.value;
}

class OneDecimal : public ::testing::TestWithParam<DecimalRow> {};

TEST_P(OneDecimal, CutsAfterTheFirstDecimalAndDropsZeros) {
  EXPECT_EQ(rules::formatOneDecimal(GetParam().value), QLatin1String(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Settings, OneDecimal,
                         ::testing::Values(DecimalRow{"cut_not_rounded", 2.59, "2.5"},
                                           DecimalRow{"whole", 1.05, "1"}, DecimalRow{"ten", 10.0, "10"},
                                           DecimalRow{"hundred", 100.04, "100"},
                                           DecimalRow{"below_one", 0.675, "0.6"},
                                           DecimalRow{"zero", 0.05, "0"},
                                           // "%f" rounds to six digits first.
                                           DecimalRow{"six_digit_rounding", 2.9999999, "3"}),
                         [](const auto& row) { return std::string(row.param.name); });

struct RateUnitRow {
  const char* rate;
  const char* megabytes;
};
void PrintTo(const RateUnitRow& row, std::ostream* os) {
  *os << '"' << row.rate << '"';
}

class RateUnit : public ::testing::TestWithParam<RateUnitRow> {};

TEST_P(RateUnit, MegabytesPerSecond) {
  EXPECT_EQ(rules::rateMegabytesText(QLatin1String(GetParam().rate)), QLatin1String(GetParam().megabytes));
  EXPECT_EQ(rules::rateUnitText(QLatin1String(GetParam().rate)),
            QStringLiteral("Mbps (%1 MB/s)").arg(QLatin1String(GetParam().megabytes)));
}

INSTANTIATE_TEST_SUITE_P(Settings, RateUnit,
                         ::testing::Values(RateUnitRow{"", "--"}, RateUnitRow{"20", "2.5"},
                                           RateUnitRow{"8", "1"}, RateUnitRow{"100", "12.5"},
                                           RateUnitRow{"5", "0.6"}, RateUnitRow{"3", "0.4"},
                                           RateUnitRow{"9999", "1249.9"}),
                         [](const auto& row) { return "rate_" + caseName(row.param.rate) + "_"; });

struct EstimateRow {
  const char* name;
  int rate;
  const char* text;
};
void PrintTo(const EstimateRow& row, std::ostream* os) {
  *os << row.rate << " Mbps";
}

class UploadEstimate : public ::testing::TestWithParam<EstimateRow> {};

TEST_P(UploadEstimate, TimeFor100GB) {
  const rules::UploadEstimate estimate = rules::uploadEstimate(GetParam().rate);
  EXPECT_EQ(string_display::text(estimate.key).arg(estimate.value),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to %1")
                .arg(QLatin1String(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(Settings, UploadEstimate,
                         ::testing::Values(EstimateRow{"empty_edit", 0, "-- hours"},
                                           EstimateRow{"rate_20", 20, "11.4 hours"},
                                           EstimateRow{"rate_9999", 9999, "1.4 minutes"},
                                           EstimateRow{"rate_1", 1, "227.6 hours"},
                                           EstimateRow{"rate_5", 5, "45.5 hours"},
                                           // 3775 s: 1.049 hours, cut to "1".
                                           EstimateRow{"one_hour_singular", 217, "1 hour"},
                                           EstimateRow{"one_hour_lowest_rate_above", 227, "1 hour"},
                                           // 3593 s is still minutes.
                                           EstimateRow{"just_below_an_hour", 228, "59.9 minutes"},
                                           EstimateRow{"one_hour_point_one", 207, "1.1 hours"},
                                           // 60.0015 s: 1 minute.
                                           EstimateRow{"one_minute_singular", 13653, "1 minute"},
                                           EstimateRow{"below_60_seconds", 20000, "1 minute"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SettingsTexts, EstimateTextOfTheEdit) {
  EXPECT_EQ(rules::uploadEstimateText(QString()),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to -- hours"));
  EXPECT_EQ(rules::uploadEstimateText(QStringLiteral("20")),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to 11.4 hours"));
}

// --- organisation note -------------------------------------------------------

TEST(SettingsServerNote, NoLimitHidesTheNote) {
  EXPECT_FALSE(rules::serverNote(parse(R"({"bandwidth_type":0,"bandwidth_rate":50})")).visible);
}

TEST(SettingsServerNote, RangeFillsRateStartAndEndWithNextDay) {
  const rules::ServerNote note = rules::serverNote(parse(
      R"({"bandwidth_type":1,"bandwidth_rate":50,"bandwidth_limit_range":true,
          "bandwidth_start_time":"07:00","bandwidth_end_time":"05:00"})"));
  ASSERT_TRUE(note.visible);
  EXPECT_EQ(note.text,
            string_display::text(Str::bandwidth_note_business_with_range)
                .arg(QStringLiteral("50"), QStringLiteral("07:00"), QStringLiteral("05:00 Next day")));
  EXPECT_TRUE(
      note.text.contains(QStringLiteral("<b>50 Mbps between 07:00 and 05:00 Next day</b> every day")));
}

TEST(SettingsServerNote, WithoutRangeOnlyTheRateIsFilled) {
  const rules::ServerNote note =
      rules::serverNote(parse(R"({"bandwidth_type":1,"bandwidth_rate":80,"bandwidth_limit_range":false})"));
  ASSERT_TRUE(note.visible);
  EXPECT_TRUE(note.text.contains(QStringLiteral("<b>80 Mbps between %2 and %3</b>.")))
      << note.text.toStdString();
}

TEST(SettingsServerNote, TimesFromTheServiceAreEscaped) {
  const rules::ServerNote note = rules::serverNote(parse(
      R"({"bandwidth_type":1,"bandwidth_rate":50,"bandwidth_limit_range":true,
          "bandwidth_start_time":"<img src=x>","bandwidth_end_time":"%1"})"));
  EXPECT_FALSE(note.text.contains(QStringLiteral("<img")));
  EXPECT_TRUE(note.text.contains(QStringLiteral("&lt;img src=x&gt; and %1</b>"))) << note.text.toStdString();
}

// --- save request -------------------------------------------------------------

TEST(SettingsSave, RequestHoldsEveryFieldWithTimesCutToFive) {
  rules::SaveInput input;
  input.noLimit = false;
  input.rate = QStringLiteral("5");
  input.limitRange = true;
  input.startText = QStringLiteral("07:00");
  input.endText = QStringLiteral("05:00 Next day");
  EXPECT_EQ(
      jsonx::compact(rules::saveRequest(input)),
      R"({"action":"set_bandwidth_control","bandwidth":{"bandwidth_end_time":"05:00",)"
      R"("bandwidth_limit_range":true,"bandwidth_rate":5,"bandwidth_start_time":"07:00","bandwidth_type":1}})");
}

TEST(SettingsSave, NoLimitStillSendsTheUnusedFields) {
  rules::SaveInput input;
  input.noLimit = true;
  input.rate = QStringLiteral("20");
  input.limitRange = false;
  input.startText = QStringLiteral("07:30 (Custom)");
  input.endText = QStringLiteral("23:30");
  const Json::Value request = rules::saveRequest(input);
  const Json::Value& bandwidth = request["bandwidth"];
  EXPECT_EQ(bandwidth["bandwidth_type"], Json::Value(0));
  EXPECT_EQ(bandwidth["bandwidth_rate"], Json::Value(20));
  EXPECT_EQ(bandwidth["bandwidth_limit_range"], Json::Value(false));
  EXPECT_EQ(bandwidth["bandwidth_start_time"], Json::Value("07:30"));
  EXPECT_EQ(bandwidth["bandwidth_end_time"], Json::Value("23:30"));
  EXPECT_EQ(request.size(), 2u);
  EXPECT_EQ(bandwidth.size(), 5u);
}

}  // namespace
