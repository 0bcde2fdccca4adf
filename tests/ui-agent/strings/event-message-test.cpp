// Activity event messages: every fixed, named and generic type renders its
// key's text, plain and rich, with each value where the listed order puts it;
// the edge cases of eliding, the CBT rule, hostile bodies and unknown types.
#include <gmock/gmock.h>

#include <QApplication>
#include <QFontMetrics>
#include <QRegularExpression>

#include <cmath>

#include "core/log-entry.h"
#include "dpi-info.h"
#include "logger.h"
#include "string-display.h"
#include "strings-fixture.h"
#include "support/temp-dir.h"

using namespace string_display;
using strings_fixture::EventRow;

namespace {

constexpr int kWide = 100000;  // a limit no message reaches
const QChar kEllipsis(0x2026);

Json::Value parse(const char* text) {
  Json::Value v;
  EXPECT_TRUE(jsonx::parse(text, v)) << text;
  return v;
}

Str row_of(const EventRow& row) {
  const std::optional<Str> found = find_row(row.key);
  EXPECT_TRUE(found.has_value()) << row.key.toStdString();
  return found.value_or(Str::btn_cancel);
}

// The English text with its i-th placeholder ({name} or a %n already in the
// text) replaced by the i-th value, each wrapped in `open` / `close`.
QString fill_in_order(const QString& tmpl, const QStringList& values, const QString& open,
                      const QString& close) {
  static const QRegularExpression re(QStringLiteral("\\{[^{}]*\\}|%[0-9]"));
  QString out;
  int pos = 0;
  int i = 0;
  auto it = re.globalMatch(tmpl);
  while (it.hasNext() && i < values.size()) {
    const auto m = it.next();
    out += tmpl.mid(pos, m.capturedStart() - pos) + open + values[i++] + close;
    pos = m.capturedEnd();
  }
  return out + tmpl.mid(pos);
}

std::string type_name(const ::testing::TestParamInfo<EventRow>& info) {
  return std::to_string(info.param.type) + "_" + info.param.key.toStdString();
}

// --- fixed ------------------------------------------------------------------

class FixedEvent : public ::testing::TestWithParam<EventRow> {};

TEST_P(FixedEvent, ShowsItsKeysText) {
  const EventRow& row = GetParam();
  EXPECT_EQ(event_kind(row.type), EventKind::Fixed);
  EXPECT_EQ(event_row(row.type), row_of(row));
  const Json::Value body = parse(R"({"volume_name": "C:", "path": "/x"})");
  const QString expected = text(row_of(row));
  EXPECT_FALSE(expected.isEmpty());
  EXPECT_EQ(render_event_message(row.type, body, false, 449), expected);
  EXPECT_EQ(render_event_message(row.type, body, true, kWide), expected);
}

INSTANTIATE_TEST_SUITE_P(Events, FixedEvent, ::testing::ValuesIn(strings_fixture::event_rows("fixed")),
                         type_name);

// --- named --------------------------------------------------------------------

class NamedEvent : public ::testing::TestWithParam<EventRow> {
 protected:
  // Distinct values per listed member, and the body that carries them.
  void SetUp() override {
    body_ = Json::Value(Json::objectValue);
    for (int i = 0; i < GetParam().values.size(); ++i) {
      const QString member = GetParam().values[i];
      if (member == QLatin1String("-")) {
        values_ << QString();  // the one value that does not come from the body
        continue;
      }
      const QString value = QStringLiteral("V%1-%2").arg(i + 1).arg(member);
      body_[member.toStdString()] = value.toStdString();
      values_ << value;
    }
  }
  Json::Value body_;
  QStringList values_;
};

TEST_P(NamedEvent, ValuesLandInTheListedOrder) {
  const EventRow& row = GetParam();
  EXPECT_EQ(event_kind(row.type), EventKind::Named);
  EXPECT_EQ(event_row(row.type), row_of(row));
  const QString tmpl = text(row_of(row));
  EXPECT_EQ(render_event_message(row.type, body_, false, 449), fill_in_order(tmpl, values_, {}, {}));
  EXPECT_EQ(render_event_message(row.type, body_, true, kWide),
            fill_in_order(tmpl, values_, QStringLiteral("<b>"), QStringLiteral("</b>")));
}

TEST_P(NamedEvent, MissingMembersReadAsEmpty) {
  const EventRow& row = GetParam();
  QStringList empty;
  for (int i = 0; i < values_.size(); ++i) empty << QString();
  const QString tmpl = text(row_of(row));
  EXPECT_EQ(render_event_message(row.type, Json::Value(Json::objectValue), false, 449),
            fill_in_order(tmpl, empty, {}, {}));
  // A body that is not an object, or members of the wrong type, read the same.
  EXPECT_EQ(render_event_message(row.type, parse("[1, 2]"), false, 449), fill_in_order(tmpl, empty, {}, {}));
  Json::Value wrong(Json::objectValue);
  for (const QString& member : row.values) wrong[member.toStdString()] = Json::Value(Json::arrayValue);
  EXPECT_EQ(render_event_message(row.type, wrong, false, 449), fill_in_order(tmpl, empty, {}, {}));
}

INSTANTIATE_TEST_SUITE_P(Events, NamedEvent, ::testing::ValuesIn(strings_fixture::event_rows("named")),
                         type_name);

// --- generic --------------------------------------------------------------------

class GenericEvent : public ::testing::TestWithParam<EventRow> {};

TEST_P(GenericEvent, PlaceholdersTakeTheMembersOfTheirName) {
  const EventRow& row = GetParam();
  EXPECT_EQ(event_kind(row.type), EventKind::Generic);
  EXPECT_EQ(event_row(row.type), row_of(row));
  const QString tmpl = text(row_of(row));
  static const QRegularExpression re(QStringLiteral("\\{([^{}]*)\\}"));
  Json::Value body(Json::objectValue);
  QStringList values;
  auto it = re.globalMatch(tmpl);
  while (it.hasNext()) {
    const QString name = it.next().captured(1);
    const QString value = QStringLiteral("G-") + name;
    body[name.toStdString()] = value.toStdString();
    values << value;
  }
  body["unrelated"] = "ignored";
  EXPECT_EQ(render_event_message(row.type, body, false, 449), fill_in_order(tmpl, values, {}, {}));
  EXPECT_EQ(render_event_message(row.type, body, true, kWide),
            fill_in_order(tmpl, values, QStringLiteral("<b>"), QStringLiteral("</b>")));
  // Not an object: every placeholder is empty.
  QStringList empty;
  for (int i = 0; i < values.size(); ++i) empty << QString();
  EXPECT_EQ(render_event_message(row.type, Json::Value("text"), false, 449),
            fill_in_order(tmpl, empty, {}, {}));
}

INSTANTIATE_TEST_SUITE_P(Events, GenericEvent, ::testing::ValuesIn(strings_fixture::event_rows("generic")),
                         type_name);

TEST(EventTables, SizesAreAsListed) {
  EXPECT_EQ(strings_fixture::event_rows("fixed").size(), 36u);
  EXPECT_EQ(strings_fixture::event_rows("named").size(), 50u);
  EXPECT_EQ(strings_fixture::event_rows("generic").size(), 30u);
}

// --- edge cases ---------------------------------------------------------------------

TEST(EventMessage, SnapshotStart) {
  const Json::Value body = parse(R"({"volume_name": "C:"})");
  EXPECT_EQ(render_event_message(7002, body, false, 449),
            QStringLiteral("Starting to take a snapshot for C:."));
  EXPECT_EQ(render_event_message(7002, body, true, 1313),
            QStringLiteral("Starting to take a snapshot for <b>C:</b>."));
}

TEST(EventMessage, SnapshotErrorValuesTradePlaces) {
  const Json::Value body = parse(R"({"volume_name": "C:", "error_code": "5"})");
  EXPECT_EQ(render_event_message(7004, body, false, 449),
            QStringLiteral("Error code C:: Failed to take a snapshot for 5."));
  EXPECT_EQ(render_event_message(7004, body, true, 1313),
            QStringLiteral("Error code <b>C:</b>: Failed to take a snapshot for <b>5</b>."));
}

TEST(EventMessage, CbtMarkOnlyWhenTrue) {
  const QString sentence = QStringLiteral("Reading and uploading the volume content of C:.");
  EXPECT_EQ(render_event_message(7012, parse(R"({"volume_name": "C:", "cbt": true})"), false, 449),
            sentence + QStringLiteral(" [CBT]"));
  EXPECT_EQ(render_event_message(7012, parse(R"({"volume_name": "C:", "cbt": true})"), true, 1313),
            QStringLiteral("Reading and uploading the volume content of <b>C:</b>. [CBT]"));
  EXPECT_EQ(render_event_message(7012, parse(R"({"volume_name": "C:", "cbt": false})"), false, 449),
            sentence);
  EXPECT_EQ(render_event_message(7012, parse(R"({"volume_name": "C:"})"), false, 449), sentence);
  // Only a JSON true counts.
  EXPECT_EQ(render_event_message(7012, parse(R"({"volume_name": "C:", "cbt": "true"})"), false, 449),
            sentence);
  EXPECT_EQ(render_event_message(7012, parse(R"({"volume_name": "C:", "cbt": 1})"), false, 449), sentence);
  // Other types never get the mark.
  EXPECT_EQ(render_event_message(7013, parse(R"({"volume_name": "C:", "cbt": true})"), false, 449),
            QStringLiteral("Successfully read the content of volume C:."));
}

TEST(EventMessage, RestoreStartIgnoresItsValue) {
  const Json::Value body = parse(R"({"destination": "D:\\restore"})");
  EXPECT_EQ(render_event_message(1201, body, false, 449), QStringLiteral("Restore task started."));
  EXPECT_EQ(render_event_message(1201, body, true, 1313), QStringLiteral("Restore task started."));
}

TEST(EventMessage, SignInFillsTheMarkerOfTheText) {
  EXPECT_EQ(render_event_message(5001, parse(R"({"email": "ann@example.com"})"), false, 449),
            QStringLiteral("Account ann@example.com was signed in."));
  EXPECT_EQ(render_event_message(5001, parse(R"({"email": "ann@example.com"})"), true, 1313),
            QStringLiteral("Account <b>ann@example.com</b> was signed in."));
}

TEST(EventMessage, ScriptTimeoutUsesAnEmptyFixedValue) {
  EXPECT_EQ(render_event_message(7048, parse(R"({"script_result_path": "/tmp/x"})"), false, 449),
            QStringLiteral("Terminated the pre-freeze script  because it timed out."));
}

TEST(EventMessage, TinyLimitEndsInAnEllipsis) {
  const QString full = QStringLiteral("No permissions to the local disk.");
  EXPECT_EQ(render_event_message(8002, Json::Value(), false, 40), full);
  const QString rich = render_event_message(8002, Json::Value(), true, 60);
  ASSERT_FALSE(rich.isEmpty());
  EXPECT_TRUE(rich.endsWith(kEllipsis)) << rich.toStdString();
  EXPECT_LT(rich.size(), full.size());
  EXPECT_TRUE(full.startsWith(rich.chopped(1)));
}

TEST(EventMessage, WidthBudgetHoldsBackTwentyLogicalPixels) {
  nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "1");
  const QString full = text(Str::reason_no_perm);
  const int w = QFontMetrics(QApplication::font()).horizontalAdvance(full);
  ASSERT_GT(w, 0);
  EXPECT_EQ(render_event_message(8002, Json::Value(), true, 20 + w), full);
  EXPECT_TRUE(render_event_message(8002, Json::Value(), true, 19 + w).endsWith(kEllipsis));
}

TEST(EventMessage, WidthBudgetScalesWithTheDisplay) {
  const QString full = text(Str::reason_no_perm);
  const int w = QFontMetrics(QApplication::font()).horizontalAdvance(full);
  const int limit = 20 + (w * 2) / 3;  // two thirds of the text at scale 1, all of it at scale 2
  {
    nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "1");
    EXPECT_TRUE(render_event_message(8002, Json::Value(), true, limit).endsWith(kEllipsis));
  }
  {
    nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "2");
    EXPECT_EQ(render_event_message(8002, Json::Value(), true, limit), full);
  }
}

TEST(EventMessage, ElisionKeepsBoldTagsBalanced) {
  const Json::Value body =
      parse(R"({"volume_name": "A very long volume name that cannot fit", "error_code": "42"})");
  const QFontMetrics fm(QApplication::font());
  const QString plain = render_event_message(7038, body, false, 449);
  // Cut inside the first value ("Error code <volume>..."): the part still shown stays bold.
  const int limit =
      static_cast<int>(fm.horizontalAdvance(QStringLiteral("Error code A very long")) / DPIinfo::getDPI()) +
      20;
  const QString rich = render_event_message(7038, body, true, limit);
  ASSERT_TRUE(rich.endsWith(kEllipsis)) << rich.toStdString();
  EXPECT_EQ(rich.count(QStringLiteral("<b>")), rich.count(QStringLiteral("</b>")));
  EXPECT_TRUE(rich.startsWith(QStringLiteral("Error code <b>A"))) << rich.toStdString();
  EXPECT_FALSE(rich.contains(QStringLiteral("42")));
  QString visible = rich;
  visible.remove(QStringLiteral("<b>")).remove(QStringLiteral("</b>"));
  EXPECT_TRUE(plain.startsWith(visible.chopped(1)));
}

TEST(EventMessage, MarkupOfTheTemplateIsAllowedFor) {
  // 7077's text holds a link: its tags do not count against the width.
  const Json::Value body = parse(R"({"error_code": "7"})");
  const QString filled = render_event_message(7077, body, false, 449);
  ASSERT_TRUE(filled.contains(QStringLiteral("</a>")));
  const QFontMetrics fm(QApplication::font());
  QString tmpl = text(Str::windows_read_snapshot_error);
  const int tag_chars = tmpl.size() - tmpl.remove(QRegularExpression(QStringLiteral("<[^>]*>"))).size();
  const int allowance = fm.averageCharWidth() * tag_chars;
  ASSERT_GT(allowance, 0);
  const double dpi = DPIinfo::getDPI();
  // The smallest limit whose budget plus allowance holds the whole text.
  const int full_width = fm.horizontalAdvance(filled);
  int limit = 20 + static_cast<int>(std::ceil((full_width - allowance) / dpi));
  while (static_cast<int>(std::trunc(dpi * (limit - 20))) + allowance < full_width) ++limit;
  const QString rich = render_event_message(7077, body, true, limit);
  EXPECT_FALSE(rich.endsWith(kEllipsis)) << rich.toStdString();
  EXPECT_TRUE(rich.contains(QStringLiteral("</a>")));
  EXPECT_TRUE(rich.contains(QStringLiteral("<b>7</b>")));
  // Without the allowance the same budget would have cut it.
  EXPECT_TRUE(fm.elidedText(filled, Qt::ElideRight, static_cast<int>(std::trunc(dpi * (limit - 20))), 0)
                  .endsWith(kEllipsis));
}

TEST(EventMessage, ValuesAreNotFilledAgain) {
  const Json::Value body = parse(R"({"volume_name": "%2 {x}", "error_code": "%1"})");
  EXPECT_EQ(render_event_message(7004, body, false, 449),
            QStringLiteral("Error code %2 {x}: Failed to take a snapshot for %1."));
  const Json::Value generic =
      parse(R"({"volume_name": "{interval_start}", "interval_start": "1", "interval_end": 2.5})");
  EXPECT_EQ(render_event_message(7044, generic, false, 449),
            QStringLiteral("{interval_start} has a bad cluster in 1 - 2.5. The interval is skipped."));
}

TEST(EventMessage, WrongTypedMembers) {
  // error_code as a number is not a string: it reads as empty.
  EXPECT_EQ(render_event_message(7020, parse(R"({"error_code": 5})"), false, 449),
            QStringLiteral("Error code : Failed to read the snapshot. Check and fix the disk errors."));
  // Generic members follow the placeholder value rules: bools 1/0, numbers with 6 digits, objects empty.
  EXPECT_EQ(
      render_event_message(7046, parse(R"({"exit_code": 1234567, "script_result_path": {"a": 1}})"), false,
                           449),
      QStringLiteral("Exit code 1.23457e+06: Ignored the unsuccessful execution of pre-freeze script ."));
  EXPECT_EQ(
      render_event_message(7046, parse(R"({"exit_code": true, "script_result_path": null})"), true, kWide),
      QStringLiteral("Exit code <b>1</b>: Ignored the unsuccessful execution of pre-freeze script <b></b>."));
}

TEST(EventMessage, LogEntryOverload) {
  LogEntry entry = LogEntry::fromJson(
      parse(R"({"id": 9, "time": 1700000000, "type": 7002, "body": {"volume_name": "E:"}})"));
  EXPECT_EQ(entry.id, 9u);
  EXPECT_EQ(entry.time, 1700000000u);
  EXPECT_EQ(render_event_message(entry, false, 449), QStringLiteral("Starting to take a snapshot for E:."));
  // Wrong types read as zero / null.
  entry = LogEntry::fromJson(parse(R"({"id": "9", "time": -1, "type": "7002", "body": 3})"));
  EXPECT_EQ(entry.id, 0u);
  EXPECT_EQ(entry.time, 0u);
  EXPECT_EQ(entry.type, 0u);
  EXPECT_TRUE(entry.body.isInt());
  EXPECT_TRUE(render_event_message(entry, false, 449).isEmpty());
}

// --- unknown types and the warning line -----------------------------------------

class UnknownEvent : public ::testing::TestWithParam<quint32> {
 protected:
  void SetUp() override {
    const std::string path = dir_.file("ui.txt");
    ASSERT_EQ(vlog::init(vlog::kRotatingFile, std::wstring(path.begin(), path.end()), L"", "", 50, 1), 0);
    log_ = path;
  }
  void TearDown() override { vlog::shutdown(); }
  nimbra_test::TempDir dir_;
  std::string log_;
};

TEST_P(UnknownEvent, EmptyTextAndOneWarningLine) {
  const quint32 type = GetParam();
  EXPECT_EQ(event_kind(type), EventKind::Unknown);
  EXPECT_FALSE(event_row(type).has_value());
  EXPECT_TRUE(render_event_message(type, parse(R"({"volume_name": "C:"})"), true, 449).isEmpty());
  vlog::shutdown();
  const std::string log = nimbra_test::read_file(log_);
  const std::string line = "unknown log type: " + std::to_string(static_cast<int>(type)) + "\n";
  EXPECT_THAT(log, ::testing::HasSubstr("[WARNIN][string-display.cpp:"));
  EXPECT_THAT(log, ::testing::HasSubstr(line));
  EXPECT_EQ(log.find(line), log.rfind(line)) << "one line only";
}

INSTANTIATE_TEST_SUITE_P(Types, UnknownEvent,
                         ::testing::Values(9999u, 7008u, 0u, 1001u, 6007u, 8007u, 4294967295u));

}  // namespace
