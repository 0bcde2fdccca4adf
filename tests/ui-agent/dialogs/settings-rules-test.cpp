// The settings dialog's decisions, row by row from settings-rules.tsv.

#include <gtest/gtest.h>

#include <QStringList>

#include <functional>
#include <map>
#include <string>

#include "tests/support/table.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/dialogs/settings-rules.h"
#include "vantor-core/lib/json-access.h"

using agent_test::parse;
using nimbra_test::TableRow;
namespace rules = settings_rules;

namespace {

QString q(const std::string& s) {
  return QString::fromStdString(s);
}
std::string s(const QString& q) {
  return q.toStdString();
}
std::string yes(bool b) {
  return b ? "true" : "false";
}
QStringList split(const std::string& cell) {
  return q(cell).split(QLatin1Char('|'));
}
const QString kNextDay = QStringLiteral("Next day");

const std::map<std::string, std::function<std::string(const std::string&)>> kFunctions = {
    {"valid", [](const std::string& in) { return yes(rules::is_valid_config(parse(in))); }},
    {"time", [](const std::string& in) { return yes(rules::is_valid_time(in)); }},
    {"start_items", [](const std::string&) { return s(rules::start_items().join(QLatin1Char(','))); }},
    {"end_items",
     [](const std::string& in) { return s(rules::end_items(q(in), kNextDay).join(QLatin1Char(','))); }},
    {"end_index",
     [](const std::string& in) {
       const QStringList a = split(in);
       return std::to_string(rules::end_item_index(rules::end_items(a[0], kNextDay), a[1]));
     }},
    {"end_text",
     [](const std::string& in) {
       const QStringList a = split(in);
       return s(rules::end_display_text(a[0], a[1], kNextDay));
     }},
    {"load",
     [](const std::string& in) {
       const rules::LoadedSettings l = rules::load_settings(parse(in));
       return s(QStringLiteral("%1 %2 %3 %4 %5")
                    .arg(int(l.limited))
                    .arg(l.rate)
                    .arg(int(l.limitRange))
                    .arg(l.start, l.end));
     }},
    {"default", [](const std::string&) { return jsonx::compact(rules::default_config()); }},
    {"clamp", [](const std::string& in) { return s(rules::clamp_rate(q(in))); }},
    {"decimal", [](const std::string& in) { return s(rules::format_one_decimal(std::stod(in))); }},
    {"rate_unit", [](const std::string& in) { return s(rules::rate_unit_text(q(in))); }},
    {"estimate",
     [](const std::string& in) {
       const QString full = rules::upload_estimate_text(q(in));
       const QString lead = QStringLiteral("Attention: Uploading 100 GB of data can take up to ");
       return full.startsWith(lead) ? s(full.mid(lead.size())) : "unexpected: " + s(full);
     }},
    {"note",
     [](const std::string& in) {
       const rules::ServerNote note = rules::server_note(parse(in));
       return note.visible ? s(note.text) : "hidden";
     }},
    {"save",
     [](const std::string& in) {
       const QStringList a = split(in);
       rules::SaveInput input;
       input.noLimit = a[0] == QLatin1String("1");
       input.rate = a[1];
       input.limitRange = a[2] == QLatin1String("1");
       input.startText = a[3];
       input.endText = a[4];
       return jsonx::compact(rules::save_request(input));
     }},
};

class SettingsRules : public ::testing::TestWithParam<TableRow> {};

TEST_P(SettingsRules, GiveWhatTheTableSays) {
  const TableRow& row = GetParam();
  const auto function = kFunctions.find(row[0]);
  ASSERT_NE(function, kFunctions.end()) << "no function " << row[0];
  const std::string got = function->second(row[1]);
  if (!row[2].empty() && row[2][0] == '~')
    EXPECT_NE(got.find(row[2].substr(1)), std::string::npos) << got;
  else
    EXPECT_EQ(got, row[2]);
}

NIMBRA_TABLE_SUITE(SettingsRules, "ui-agent/dialogs/settings-rules.tsv", 3);

}  // namespace
