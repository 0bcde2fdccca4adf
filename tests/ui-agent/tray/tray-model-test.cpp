// The tray's decision tables, row by row from tray-model.tsv, and the
// decisions that are stories rather than rows: the finish estimate counting
// down, the progress view from content, the kept entries.

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "core/service-error-text.h"
#include "string-display.h"
#include "support/table.h"
#include "tray-fixture.h"
#include "tray/progress-page-model.h"
#include "tray/quota-model.h"
#include "tray/relative-age.h"
#include "tray/status-page-model.h"
#include "tray/tray-icon-model.h"
#include "tray/tray-menu-model.h"

using agent_test::parse;
using nimbra_test::TableRow;
using tray_test::entry;

namespace {

QStringList parts(const std::string& cell) {
  return QString::fromStdString(cell).split(QLatin1Char('|'));
}
ServiceStatus status(const QString& text) {
  return static_cast<ServiceStatus>(text.toLongLong(nullptr, 0));
}
QString opt(const std::optional<QString>& text) {
  return text.value_or(QStringLiteral("-"));
}
QString tray(TrayStatus t) {
  static const char* const names[] = {"idle", "success", "running", "error", "warning"};
  return QLatin1String(names[tray_status::from_int(t)]);
}
QString yes(bool b) {
  return b ? QStringLiteral("1") : QStringLiteral("0");
}
QString text(Str row) {
  return string_display::text(row);
}

const std::map<std::string, std::function<QString(const QStringList&)>> kFunctions = {
    {"age",
     [](const QStringList& in) {
       const quint64 then =
           in[0] == QLatin1String("max") ? ~0ull : quint64(tray_test::kMoment - in[0].toLongLong());
       return tray_text::relative_age_text(tray_test::kMoment, then);
     }},
    {"result",
     [](const QStringList& in) {
       Json::Value c = parse(R"({"connected":true})");
       c["last_backup_result"]["last_backup_status"] = in[0].toInt();
       if (in[1] == QLatin1String("0")) c["last_backup_result"]["backed_up"] = false;
       const auto v = tray_status_page::view_for(c);
       return QStringList{v.error ? "error page" : text(v.result.text), v.result.picture, tray(v.result.tray)}
           .join('|');
     }},
    {"schedule",
     [](const QStringList& in) {
       const auto v = tray_status_page::view_for(parse(in.join('|').toStdString()));
       return opt(v.last_backup) + '|' + opt(v.next_backup);
     }},
    {"error",
     [](const QStringList& in) {
       const auto v = tray_status_page::view_for(parse(in.join('|').toStdString()));
       if (!v.error) return "0|" + tray(v.result.tray) + "|-";
       int code = -1;
       for (int c : {0, 5, 13})
         if (v.error_message == service_error::message(c)) code = c;
       const QString shown =
           v.result.text == Str::desc_status_error ? tray(v.result.tray) : "not the error text";
       return "1|" + shown + '|' + QString::number(code);
     }},
    {"percent",
     [](const QStringList& in) {
       const double p = tray_progress_page::round_three_significant(in[0].toDouble());
       return QString::number(p) + '|' + QString::number(tray_progress_page::bar_value(p));
     }},
    {"phase", [](const QStringList& in) { return text(tray_progress_page::phase_for(status(in[0]))); }},
    {"page",
     [](const QStringList& in) {
       Json::Value c(Json::objectValue);
       c["connected"] = in[1] == QLatin1String("1");
       return yes(tray_menu_model::shows_progress_page(status(in[0]), c));
     }},
    {"icon",
     [](const QStringList& in) {
       const auto v = tray_icon_model::view_for({in[0].toInt(), in[1] == QLatin1String("1"), status(in[2]),
                                                 parse(in.mid(3).join('|').toStdString())});
       QString line = v.tool_tip;
       if (!line.startsWith(QLatin1String("Nimbra Backup"))) return "tool tip without the product: " + line;
       line = line.mid(14);
       return QStringList{line, yes(v.backup_now), v.backup_reason ? text(*v.backup_reason) : "-"}.join('|');
     }},
    {"menu",
     [](const QStringList& in) {
       const auto v = tray_menu_model::menu_visibility(in[0] == "1", in[1] == "1", in[2].toInt());
       return QStringList{yes(v.web_console), yes(v.recovery_portal), yes(v.quota_area)}.join('|');
     }},
    {"quota",
     [](const QStringList& in) {
       const auto u = quota_model::usage_for(parse(in.join('|').toStdString()));
       if (!u) return QStringLiteral("-");
       if (u->style_sheet != (u->red ? "tray_usage_red" : "tray_usage_blue"))
         return "style " + u->style_sheet;
       return QString::number(u->bar) + '|' + yes(u->red) + '|' + u->label;
     }},
    {"account_line",
     [](const QStringList& in) {
       return QString::number(quota_model::account_line_height(in[0].toInt(), in[1].toInt()));
     }},
};

class TrayModel : public tray_test::TrayTest, public ::testing::WithParamInterface<TableRow> {};

TEST_P(TrayModel, GivesWhatTheTableSays) {
  const TableRow& row = GetParam();
  const auto function = kFunctions.find(row[0]);
  ASSERT_NE(function, kFunctions.end()) << "no function " << row[0];
  EXPECT_EQ(function->second(parts(row[1])), QString::fromStdString(row[2]));
}

NIMBRA_TABLE_SUITE(TrayModel, "ui-agent/tray/tray-model.tsv", 3);

class ProgressPage : public tray_test::TrayTest {};

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
  const auto w = tray_progress_page::view_for(
      static_cast<ServiceStatus>(0x3001), agent_test::parse(R"({"connected":true})"), 42, tray_test::kMoment);
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
  EXPECT_FALSE(tray_menu_model::keep_entries(kept, {}));
  EXPECT_EQ(kept.size(), 100);
}

}  // namespace
