// The tray's decision tables, row by row from tray-model.tsv, and the
// decisions that are stories rather than rows: the finish estimate counting
// down, the progress view from content, the kept entries.

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include <QRegularExpression>

#include "tests/support/table.h"
#include "tests/ui-agent/tray/tray-fixture.h"
#include "ui-agent/core/service-error-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/progress-page-model.h"
#include "ui-agent/tray/quota-model.h"
#include "ui-agent/tray/relative-age.h"
#include "ui-agent/tray/status-page-model.h"
#include "ui-agent/tray/tray-icon-model.h"
#include "ui-agent/tray/tray-menu-model.h"

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
       return relative_age::relative_age_text(tray_test::kMoment, then);
     }},
    {"result",
     [](const QStringList& in) {
       Json::Value c = parse(R"({"connected":true})");
       c["last_backup_result"]["last_backup_status"] = in[0].toInt();
       if (in[1] == QLatin1String("0")) c["last_backup_result"]["backed_up"] = false;
       const auto v = status_page_model::view_for(c);
       return QStringList{v.error ? "error page" : text(v.result.text), v.result.picture, tray(v.result.tray)}
           .join('|');
     }},
    {"schedule",
     [](const QStringList& in) {
       const auto v = status_page_model::view_for(parse(in.join('|').toStdString()));
       return opt(v.last_backup) + '|' + opt(v.next_backup);
     }},
    {"error",
     [](const QStringList& in) {
       const auto v = status_page_model::view_for(parse(in.join('|').toStdString()));
       if (!v.error) return "0|" + tray(v.result.tray) + "|-";
       int code = -1;
       for (int c : {0, 5, 13})
         if (v.error_message == service_error_text::message(c)) code = c;
       const QString shown =
           v.result.text == Str::desc_status_error ? tray(v.result.tray) : "not the error text";
       return "1|" + shown + '|' + QString::number(code);
     }},
    {"percent",
     [](const QStringList& in) {
       const double p = progress_page_model::round_three_significant(in[0].toDouble());
       return QString::number(p) + '|' + QString::number(progress_page_model::bar_value(p));
     }},
    {"finish",
     [](const QStringList& in) {
       const auto f =
           progress_page_model::finish_for({in[0].toULongLong(), 0, in[1].toULongLong(), in[2].toLongLong()},
                                           in[3].toDouble(), tray_test::kMoment);
       return QString::number(f.estimate) + '|' + opt(f.text);
     }},
    {"progress",
     [](const QStringList& in) {
       const auto v = progress_page_model::view_for(status(in[0]), parse(in.mid(2).join('|').toStdString()),
                                                    in[1].toDouble(), tray_test::kMoment);
       return QStringList{yes(v.has_transfer),
                          v.percent_text,
                          QString::number(v.bar),
                          text(v.phase),
                          QString::number(v.finish.estimate),
                          QString(v.processed_text).remove(QRegularExpression(QStringLiteral("<[^>]*>")))}
           .join('|');
     }},
    {"phase", [](const QStringList& in) { return text(progress_page_model::phase_for(status(in[0]))); }},
    {"page",
     [](const QStringList& in) {
       Json::Value c(Json::objectValue);
       c["connected"] = in[1] == QLatin1String("1");
       return yes(tray_menu_model::shows_progress_page(status(in[0]), c));
     }},
    {"icon",
     [](const QStringList& in) {
       const auto v =
           tray_icon_model::view_for({static_cast<ConnectionMode>(in[0].toInt()), in[1] == QLatin1String("1"),
                                      status(in[2]), parse(in.mid(3).join('|').toStdString())});
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
