// The fast event-text fit against the plain walk of every limit: the same
// limit and text for every event type, with short and very long bodies, in
// the pop-up (scale 1 and 2) and in the activity dialog; and every event's
// text within the pop-up's two lines in every language.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include <QLabel>

#include "tests/support/temp-dir.h"
#include "tests/ui-agent/tray/tray-fixture.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/event-fit.h"
#include "ui-agent/tray/latest-event.h"

namespace {

TEST(FitSearch, FindsTheFirstFittingLimitOfAnyThreshold) {
  const event_fit::Series s{354, 1, 0};
  for (int threshold = -5; threshold <= 360; ++threshold) {
    const int expected = event_fit::linear(s, [&](int limit) { return limit <= threshold; });
    for (int hint : {-3, 1, 2, 17, 120, 354, 400}) {
      int calls = 0;
      auto fits = [&](int limit) {
        ++calls;
        return limit <= threshold;
      };
      EXPECT_EQ(event_fit::search(s, fits, hint), expected) << "threshold " << threshold << " hint " << hint;
      EXPECT_LE(calls, 22) << "threshold " << threshold << " hint " << hint;  // logarithmic, not a walk
    }
    // A hint on the answer: the top, the hint and its neighbour.
    const int k = (354 - expected);
    if (expected < 354 && expected > 0) {
      int calls = 0;
      event_fit::search(
          s, [&](int limit) { return ++calls, limit <= threshold; }, k);
      EXPECT_LE(calls, 3) << "threshold " << threshold;
    }
  }
  // The dialog's series: 1313, 1303, ... 3; nothing fitting gives the last.
  const event_fit::Series d{1313, 10, 0};
  EXPECT_EQ(d.count(), 132);
  EXPECT_EQ(event_fit::search(d, [](int) { return false; }), 3);
  EXPECT_EQ(event_fit::linear(d, [](int) { return false; }), 3);
  EXPECT_EQ(event_fit::search(d, [](int limit) { return limit < 1000; }), 993);
}

// Every event type the catalogue knows.
std::vector<quint32> eventTypes() {
  std::vector<quint32> types;
  for (quint32 type = 1000; type <= 8300; ++type)
    if (event_text::kind_of(type) != event_text::Kind::Unknown) types.push_back(type);
  return types;
}

// A body whose every member a message can name holds `value`.
Json::Value bodyOf(const std::string& value) {
  Json::Value b(Json::objectValue);
  for (const char* key : {"volume_name", "error_code", "inode_number", "path", "email", "trigger_event",
                          "task_name", "destination", "plan_name", "parent_path", "interval_start",
                          "interval_end", "exit_code", "script_result_path"})
    b[key] = value;
  b["cbt"] = true;
  return b;
}

struct FitCase {
  const char* scale;
  bool tray;
  int minCut;  // how many texts at least the walk must have cut below the top limit
};

class FastFitMatchesWalk : public tray_test::TrayTest, public ::testing::WithParamInterface<FitCase> {};

TEST_P(FastFitMatchesWalk, EveryTypeShortAndLong) {
  nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", GetParam().scale);
  const auto types = eventTypes();
  ASSERT_GE(types.size(), 100u);
  const std::string longValue =
      "\\\\?\\GLOBALROOT\\Device\\HarddiskVolumeShadowCopy12\\Users\\Administrator\\Documents\\Quarterly "
      "reports and their many appendices for the whole financial year\\final-final-v7.xlsx";
  std::string words;
  for (int i = 0; i < 40; ++i) words += "Volume" + std::to_string(i) + " ";
  const std::vector<Json::Value> bodies{bodyOf("C:"), bodyOf(longValue), bodyOf(std::string(300, 'W')),
                                        bodyOf(words)};
  auto fast = GetParam().tray ? event_fit::Fitter::tray() : event_fit::Fitter::activity();
  auto walk = GetParam().tray ? event_fit::Fitter::tray() : event_fit::Fitter::activity();
  int belowTop = 0;
  for (quint32 type : types) {
    for (std::size_t b = 0; b < bodies.size(); ++b) {
      const LogEntry e = tray_test::entry(1, tray_test::kMoment, type);
      LogEntry withBody = e;
      withBody.body = bodies[b];
      const auto quick = fast.fit(withBody);
      const auto slow = walk.fitLinear(withBody);
      EXPECT_EQ(quick.limit, slow.limit) << "type " << type << " body " << b;
      EXPECT_EQ(quick.message, slow.message) << "type " << type << " body " << b;
      if (slow.limit != fast.series().top) ++belowTop;
    }
  }
  // The long bodies must really have been cut: the comparison is not only
  // about texts that fit at once.
  EXPECT_GE(belowTop, GetParam().minCut);
}

INSTANTIATE_TEST_SUITE_P(Cases, FastFitMatchesWalk,
                         ::testing::Values(FitCase{"1", true, 100}, FitCase{"2", true, 100},
                                           FitCase{"1", false, 20}));

// Every event type, with an empty body, in every language the agent offers:
// the pop-up's latest-event label holds its text within its two lines.
class EveryEventFitsThePopUp : public tray_test::TrayTest,
                               public ::testing::WithParamInterface<std::tuple<const char*, const char*>> {};

TEST_P(EveryEventFitsThePopUp, LabelHeightStaysWithinItsTwoLines) {
  tray_test::ScopedLanguage language(std::get<0>(GetParam()));
  nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", std::get<1>(GetParam()));
  QWidget page;
  LatestEventLine line(&page, QStringLiteral("fit"));
  QLabel* label = line.eventLabel();
  for (quint32 type : eventTypes()) {
    line.setEntry(tray_test::entry(type, tray_test::kMoment, type));
    line.refresh(tray_test::kMoment);
    EXPECT_LE(label->heightForWidth(label->width()), label->height())
        << "type " << type << ": " << label->text().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryEventFitsThePopUp,
                         ::testing::Combine(::testing::Values("enu", "ger", "fre", "spn", "tha", "chs", "cht",
                                                              "jpn", "krn"),
                                            ::testing::Values("1", "2")));

}  // namespace
