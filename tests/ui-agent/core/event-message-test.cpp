// Activity event messages: every fixed, named and generic type renders its
// key's text, plain and rich, with each value where the listed order puts it;
// the edge cases of eliding, the CBT rule, hostile bodies and unknown types.
#include <gmock/gmock.h>

#include <QApplication>
#include <QFontMetrics>
#include <QRegularExpression>

#include <cmath>
#include <map>

#include "tests/support/table.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"
#include "widgets/dpi-info.h"

using namespace string_display;
using agent_test::parse;

namespace {

constexpr int kWide = 100000;  // a limit no message reaches
const QChar kEllipsis(0x2026);

// The text with its i-th placeholder ({name} or a %n already in the text)
// replaced by the i-th value, bold when `rich`.
QString fill_in_order(const QString& tmpl, const QStringList& values, bool rich) {
  static const QRegularExpression re(QStringLiteral("\\{[^{}]*\\}|%[0-9]"));
  QString out;
  int pos = 0, i = 0;
  for (auto it = re.globalMatch(tmpl); it.hasNext() && i < values.size();) {
    const auto m = it.next();
    out += tmpl.mid(pos, m.capturedStart() - pos) + (rich ? "<b>" + values[i++] + "</b>" : values[i++]);
    pos = m.capturedEnd();
  }
  return out + tmpl.mid(pos);
}

// A value a hostile service might send: a link and a picture.
const QString kMarkup =
    QStringLiteral("<a href=\"http://evil.example/\">Click</a><img src=\"http://evil.example/x.png\">");

// Whether every tag of a rich text is complete (quoted attribute values may
// hold anything) and every element opened is closed, in order.
bool well_formed(const QString& rich) {
  QStringList open;
  static const QRegularExpression name(QStringLiteral("^<\\s*(/?)\\s*([A-Za-z][A-Za-z0-9]*)"));
  for (int i = 0; i < rich.size(); ++i) {
    if (rich.at(i) != QLatin1Char('<')) continue;
    int j = i + 1;
    for (QChar quote; j < rich.size() && (!quote.isNull() || rich.at(j) != QLatin1Char('>')); ++j) {
      if (rich.at(j) == quote)
        quote = QChar();
      else if (quote.isNull() && (rich.at(j) == QLatin1Char('"') || rich.at(j) == QLatin1Char('\'')))
        quote = rich.at(j);
    }
    if (j >= rich.size()) return false;
    const QRegularExpressionMatch m = name.match(rich.mid(i, j - i + 1));
    if (!m.hasMatch()) return false;
    if (m.captured(1).isEmpty()) {
      if (m.captured(2) != QLatin1String("br")) open << m.captured(2);
    } else if (open.isEmpty() || open.takeLast() != m.captured(2)) {
      return false;
    }
    i = j;
  }
  return open.isEmpty();
}

// One activity event type as event-types.txt lists it.
struct EventRow {
  quint32 type = 0;
  event_text::Kind kind = event_text::Kind::Unknown;
  QStringList values;  // named kind: members in the order they are supplied; "-" a fixed value
};
void PrintTo(const EventRow& row, std::ostream* os) {
  *os << row.type;
}

std::vector<EventRow> event_rows() {
  std::vector<EventRow> rows;
  for (const nimbra_test::TableRow& line : nimbra_test::read_table("ui-agent/core/event-types.txt", 2)) {
    const QString kind = QString::fromStdString(line[0]);
    for (const QString& type : QString::fromStdString(line[1]).split(QLatin1Char(' '))) {
      EventRow row{type.toUInt(), event_text::Kind::Generic, {}};
      if (kind == QLatin1String("fixed")) row.kind = event_text::Kind::Fixed;
      if (kind.startsWith(QLatin1String("named:"))) {
        row.kind = event_text::Kind::Named;
        row.values = kind.mid(6).split(QLatin1Char(','));
      }
      rows.push_back(row);
    }
  }
  return rows;
}

// Exactly the listed types are known, each of its kind (a type moved by one
// in the product's table becomes unknown here).
TEST(EventTypes, TheListedOnesAreKnownEveryOtherIsNot) {
  std::map<quint32, event_text::Kind> listed;
  for (const EventRow& row : event_rows()) listed[row.type] = row.kind;
  ASSERT_EQ(listed.size(), 116u);
  for (quint32 type = 0; type < 10000; ++type) {
    const auto it = listed.find(type);
    ASSERT_EQ(event_text::kind_of(type), it == listed.end() ? event_text::Kind::Unknown : it->second) << type;
    ASSERT_EQ(event_text::row_of(type).has_value(), it != listed.end()) << type;
  }
}

class EventTable : public ::testing::TestWithParam<EventRow> {};

TEST_P(EventTable, ValuesLandInTheListedOrderAndWrongTypesReadAsEmpty) {
  const EventRow& row = GetParam();
  ASSERT_TRUE(event_text::row_of(row.type).has_value());
  const QString tmpl = text(*event_text::row_of(row.type));
  ASSERT_FALSE(tmpl.isEmpty());
  // Named: the listed members ("-" the one value not taken from the body);
  // generic: the member named by each placeholder; fixed: none.
  QStringList members = row.values;
  if (row.kind == event_text::Kind::Generic) {
    static const QRegularExpression re(QStringLiteral("\\{([^{}]*)\\}"));
    for (auto it = re.globalMatch(tmpl); it.hasNext();) members << it.next().captured(1);
  }
  Json::Value body = parse(R"({"volume_name": "C:", "unrelated": "ignored"})"), wrong(Json::objectValue);
  QStringList values, empty;
  for (int i = 0; i < members.size(); ++i) {
    const bool fixed_value = members[i] == QLatin1String("-");
    values << (fixed_value ? QString() : QStringLiteral("V%1-%2").arg(i + 1).arg(members[i]));
    empty << QString();
    if (fixed_value) continue;
    body[members[i].toStdString()] = values.last().toStdString();
    wrong[members[i].toStdString()] = Json::Value(Json::arrayValue);
  }
  EXPECT_EQ(event_text::render(row.type, body, false, 449), fill_in_order(tmpl, values, false));
  EXPECT_EQ(event_text::render(row.type, body, true, kWide), fill_in_order(tmpl, values, true));
  for (const Json::Value& hostile :
       {Json::Value(Json::objectValue), wrong, parse("[1, 2]"), Json::Value("x")})
    EXPECT_EQ(event_text::render(row.type, hostile, false, 449), fill_in_order(tmpl, empty, false));

  // Markup in every value is text in the rich rendering (escaped inside the
  // bold) and stays as it is in the plain one.
  Json::Value markup_body(Json::objectValue);
  QStringList raw, escaped;
  for (int i = 0; i < members.size(); ++i) {
    const bool fixed_value = members[i] == QLatin1String("-");
    raw << (fixed_value ? QString() : kMarkup);
    escaped << raw.last().toHtmlEscaped();
    if (!fixed_value) markup_body[members[i].toStdString()] = kMarkup.toStdString();
  }
  EXPECT_EQ(event_text::render(row.type, markup_body, false, 449), fill_in_order(tmpl, raw, false));
  EXPECT_EQ(event_text::render(row.type, markup_body, true, kWide), fill_in_order(tmpl, escaped, true));

  // Every elided rendering is well-formed, down to limits below 0: a cut
  // never falls inside a tag, what it leaves open is closed, and nothing of
  // the markup becomes a live link or picture.
  for (int limit = 1313; limit >= -300; limit -= 7) {
    const QString rich = event_text::render(row.type, markup_body, true, limit);
    ASSERT_TRUE(well_formed(rich)) << limit << ": " << rich.toStdString();
    ASSERT_FALSE(rich.contains(QLatin1String("<img")) ||
                 rich.contains(QLatin1String("<a href=\"http://evil")))
        << limit << ": " << rich.toStdString();
  }
  // A megabyte value is cut to a sane length, ending in an ellipsis.
  Json::Value huge = body;
  for (const QString& member : members)
    if (member != QLatin1String("-")) huge[member.toStdString()] = std::string(1 << 20, 'x');
  const QString plain = event_text::render(row.type, huge, false, 449);
  EXPECT_LE(plain.size(), tmpl.size() + 1100 * members.size());
  if (fill_in_order(tmpl, values, false) != fill_in_order(tmpl, empty, false)) {
    EXPECT_TRUE(plain.contains(QStringLiteral("xxx") + kEllipsis)) << plain.left(80).toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Types, EventTable, ::testing::ValuesIn(event_rows()),
                         [](const ::testing::TestParamInfo<EventRow>& p) {
                           return std::to_string(p.param.type);
                         });

// The edge cases of single messages are rows of text.tsv.

TEST(EventMessageWidth, BudgetHoldsBackTwentyLogicalPixelsAndScalesWithTheDisplay) {
  const QString full = text(Str::reason_no_perm);
  const int w = QFontMetrics(QApplication::font()).horizontalAdvance(full);
  ASSERT_GT(w, 0);
  {
    nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "1");
    EXPECT_EQ(event_text::render(8002, Json::Value(), true, 20 + w), full);
    const QString cut = event_text::render(8002, Json::Value(), true, 19 + w);
    EXPECT_TRUE(cut.endsWith(kEllipsis) && full.startsWith(cut.chopped(1))) << cut.toStdString();
    EXPECT_TRUE(event_text::render(8002, Json::Value(), true, 20 + (w * 2) / 3).endsWith(kEllipsis));
  }
  nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "2");
  EXPECT_EQ(event_text::render(8002, Json::Value(), true, 20 + (w * 2) / 3), full);
}

TEST(EventMessageWidth, MarkupOfTheTemplateIsAllowedFor) {
  // 7077's text holds a link: its tags do not count against the width.
  const Json::Value body = parse(R"({"error_code": "7"})");
  const QString filled = event_text::render(7077, body, false, 449);
  ASSERT_TRUE(filled.contains(QStringLiteral("</a>")));
  const QFontMetrics fm(QApplication::font());
  QString tmpl = text(Str::windows_read_snapshot_error);
  const int allowance = fm.averageCharWidth() *
                        (tmpl.size() - tmpl.remove(QRegularExpression(QStringLiteral("<[^>]*>"))).size());
  ASSERT_GT(allowance, 0);
  const double dpi = DPIinfo::getDPI();
  auto budget = [dpi](int limit) { return static_cast<int>(std::trunc(dpi * (limit - 20))); };
  // The smallest limit whose budget plus allowance holds the whole text.
  const int full_width = fm.horizontalAdvance(filled);
  int limit = 20 + static_cast<int>(std::ceil((full_width - allowance) / dpi));
  while (budget(limit) + allowance < full_width) ++limit;
  const QString rich = event_text::render(7077, body, true, limit);
  EXPECT_FALSE(rich.endsWith(kEllipsis)) << rich.toStdString();
  EXPECT_TRUE(rich.contains(QStringLiteral("</a>")));
  EXPECT_TRUE(rich.contains(QStringLiteral("<b>7</b>")));
  // Without the allowance the same budget would have cut it.
  EXPECT_TRUE(fm.elidedText(filled, Qt::ElideRight, budget(limit), 0).endsWith(kEllipsis));
}

class UnknownEvent : public ::testing::TestWithParam<quint32> {};

TEST_P(UnknownEvent, EmptyTextAndOneWarningLine) {
  const quint32 type = GetParam();
  agent_test::LogCapture log;
  EXPECT_EQ(event_text::kind_of(type), event_text::Kind::Unknown);
  EXPECT_FALSE(event_text::row_of(type).has_value());
  EXPECT_TRUE(event_text::render(type, parse(R"({"volume_name": "C:"})"), true, 449).isEmpty());
  const std::string text = log.text();
  const std::string line = "unknown log type: " + std::to_string(static_cast<int>(type)) + "\n";
  EXPECT_THAT(text, ::testing::HasSubstr("[WARNIN][event-text.cpp:"));
  EXPECT_THAT(text, ::testing::HasSubstr(line));
  EXPECT_EQ(text.find(line), text.rfind(line)) << "one line only";
}

INSTANTIATE_TEST_SUITE_P(Types, UnknownEvent, ::testing::Values(9999u, 4294967295u));

}  // namespace
