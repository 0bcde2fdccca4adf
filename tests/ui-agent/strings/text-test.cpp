// {name} placeholders, byte sizes and the texts of pushed notifications.
#include <gmock/gmock.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

#include "agent-test.h"
#include "core/notification-text.h"
#include "string-display.h"
#include "style-manager.h"

using namespace string_display;

namespace {

struct PlaceholderCase {
  const char* tmpl;
  const char* values;  // JSON object
  const char* expected;
};
void PrintTo(const PlaceholderCase& c, std::ostream* os) {
  *os << c.tmpl << " " << c.values;
}

class Placeholders : public ::testing::TestWithParam<PlaceholderCase> {};

TEST_P(Placeholders, Expand) {
  const PlaceholderCase& c = GetParam();
  const QJsonObject values = QJsonDocument::fromJson(c.values).object();
  ASSERT_TRUE(QJsonDocument::fromJson(c.values).isObject()) << c.values;
  EXPECT_EQ(expand_placeholders(QString::fromUtf8(c.tmpl), values), QString::fromUtf8(c.expected));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Placeholders,
    ::testing::Values(
        PlaceholderCase{"{a}{b}", R"({"a": "x", "b": true})", "<b>x</b><b>1</b>"},
        PlaceholderCase{"{b}", R"({"b": false})", "<b>0</b>"},
        // A closing brace before the next opening one ends the scan.
        PlaceholderCase{"x} {a}", R"({"a": "v"})", "x} {a}"},
        PlaceholderCase{"{a} } {b}", R"({"a": "1", "b": "2"})", "<b>1</b> } {b}"},
        PlaceholderCase{"a {b", R"({"b": "v"})", "a {b"}, PlaceholderCase{"plain", R"({"a": "v"})", "plain"},
        PlaceholderCase{"", "{}", ""}, PlaceholderCase{"{}", R"({"": "e"})", "<b>e</b>"},
        PlaceholderCase{"{a} and {a}", R"({"a": "v"})", "<b>v</b> and <b>v</b>"},
        // Values are not scanned again.
        PlaceholderCase{"{a}-{b}", R"({"a": "%1 {b} %2", "b": "y"})", "<b>%1 {b} %2</b>-<b>y</b>"},
        // Values are text: markup in them is escaped, the template's is kept.
        PlaceholderCase{"{a}", R"({"a": "<b>}{"})", "<b>&lt;b&gt;}{</b>"},
        PlaceholderCase{"<i>{p}</i>", R"({"p": "<a href='x'>Click</a> & <img src=y>"})",
                        "<i><b>&lt;a href='x'&gt;Click&lt;/a&gt; &amp; &lt;img src=y&gt;</b></i>"},
        // Numbers in general form with 6 significant digits; other kinds empty.
        PlaceholderCase{"{n}{m}{k}", R"({"n": 0, "m": 5, "k": -12})", "<b>0</b><b>5</b><b>-12</b>"},
        PlaceholderCase{"{n}|{m}", R"({"n": 0.5, "m": 123456})", "<b>0.5</b>|<b>123456</b>"},
        PlaceholderCase{"{n}|{m}|{k}", R"({"n": 1234567, "m": 3.14159265, "k": 1e-7})",
                        "<b>1.23457e+06</b>|<b>3.14159</b>|<b>1e-07</b>"},
        PlaceholderCase{"[{n}][{arr}][{obj}][{absent}]", R"({"n": null, "arr": [1, 2], "obj": {"x": 1}})",
                        "[<b></b>][<b></b>][<b></b>][<b></b>]"}));

struct SizeCase {
  quint64 bytes;
  bool decimal;
  const char* shown;  // number, space, unit
};
void PrintTo(const SizeCase& c, std::ostream* os) {
  *os << c.bytes << (c.decimal ? " decimal" : " binary");
}

class FormatSize : public ::testing::TestWithParam<SizeCase> {};

TEST_P(FormatSize, NumberAndUnit) {
  const SizeCase& c = GetParam();
  const SizeText size = format_size(c.bytes, c.decimal);
  EXPECT_EQ(size.number + ' ' + size.unit, QLatin1String(c.shown));
  EXPECT_EQ(format_size_text(c.bytes, c.decimal), QLatin1String(c.shown));
}

constexpr quint64 kMiB = 1024 * 1024, kGiB = kMiB * 1024;

INSTANTIATE_TEST_SUITE_P(
    Units, FormatSize,
    ::testing::Values(SizeCase{0, false, "0 Bytes"}, SizeCase{999, false, "999 Bytes"},
                      SizeCase{1000, false, "0.977 KB"}, SizeCase{1024, false, "1 KB"},
                      SizeCase{1536, false, "1.5 KB"}, SizeCase{1023999, false, "1e+03 KB"},
                      SizeCase{1024000, false, "0.977 MB"}, SizeCase{kMiB * 1000 - 1, false, "1e+03 MB"},
                      SizeCase{kMiB * 1000, false, "0.977 GB"}, SizeCase{kGiB, false, "1 GB"},
                      SizeCase{kGiB * 1000 - 1, false, "1e+03 GB"}, SizeCase{kGiB * 1000, false, "0.977 TB"},
                      SizeCase{kGiB * 1024, false, "1 TB"}, SizeCase{kGiB * 1024 * 999, false, "999 TB"},
                      SizeCase{kGiB * 1024 * 1000, false, "0.977 PB"},
                      SizeCase{std::numeric_limits<quint64>::max(), false, "16 EB"},
                      SizeCase{0, true, "0 Bytes"}, SizeCase{999, true, "999 Bytes"},
                      SizeCase{1000, true, "1 KB"}, SizeCase{1536, true, "1.54 KB"},
                      SizeCase{999999, true, "1e+03 KB"}, SizeCase{1000000, true, "1 MB"},
                      SizeCase{999999999, true, "1e+03 MB"}, SizeCase{1000000000, true, "1 GB"},
                      SizeCase{999999999999ULL, true, "1e+03 GB"}, SizeCase{1000000000000ULL, true, "1 TB"},
                      SizeCase{1500000000000000ULL, true, "1.5 PB"},
                      SizeCase{std::numeric_limits<quint64>::max(), true, "18.4 EB"}));

struct NotificationCase {
  int type;
  const char* data;
  const char* title;
  const char* text;
};
void PrintTo(const NotificationCase& c, std::ostream* os) {
  *os << "type " << c.type << " " << c.data;
}

class Notification : public ::testing::TestWithParam<NotificationCase> {};

TEST_P(Notification, TitleAndText) {
  const NotificationCase& c = GetParam();
  const Json::Value data = agent_test::parse(c.data);
  EXPECT_EQ(notification_text(c.type, data, true), QString::fromUtf8(c.title));
  EXPECT_EQ(notification_text(c.type, data, false), QString::fromUtf8(c.text));
}

const char kFinished[] = "Check the activity logs in the agent for more information.";
const char kAlmostFull[] = "Storage is almost full";

INSTANTIATE_TEST_SUITE_P(
    Types, Notification,
    ::testing::Values(
        NotificationCase{6, "{}", "Backup successful", "Your device was backed up."},
        NotificationCase{10, "{}", "Device removed",
                         "This device has been removed from the account. Go to the Nimbra Backup console for "
                         "more information."},
        NotificationCase{11, R"({"status": 4})", "Full Disk Access required",
                         "Enable Full Disk Access in Privacy & Security."},
        NotificationCase{12, "{}", "System extension required",
                         "Go to Privacy & Security and enable system extensions for Nimbra Backup."},
        // No message for these types.
        NotificationCase{0, R"({"status": 2})", "", ""}, NotificationCase{13, "{}", "", ""},
        NotificationCase{-1, "{}", "", ""}, NotificationCase{5, "{}", "", ""},
        // Backup results by status; anything else (or of the wrong type) has no result word.
        NotificationCase{7, R"({"status": 1})", "Nimbra Backup ", kFinished},
        NotificationCase{7, R"({"status": 2})", "Nimbra Backup Successful", kFinished},
        NotificationCase{7, R"({"status": 3})", "Nimbra Backup Partially Successful", kFinished},
        NotificationCase{7, R"({"status": 4})", "Nimbra Backup Failed", kFinished},
        NotificationCase{7, R"({"status": 5})", "Nimbra Backup Canceled", kFinished},
        NotificationCase{7, R"({"status": 6})", "Nimbra Backup ", kFinished},
        NotificationCase{7, R"({})", "Nimbra Backup ", kFinished},
        NotificationCase{7, R"({"status": "4"})", "Nimbra Backup ", kFinished},
        NotificationCase{7, R"({"status": 4.5})", "Nimbra Backup ", kFinished},
        NotificationCase{7, R"([4])", "Nimbra Backup ", kFinished},
        NotificationCase{7, R"({"status": 4294967300})", "Nimbra Backup ", kFinished},
        // Storage warnings with the binary size of total_size.
        NotificationCase{8, R"({"total_size": 1073741824})", kAlmostFull,
                         "You have used 85% of your total storage (1 GB)."},
        NotificationCase{8, R"({"total_size": 1536})", kAlmostFull,
                         "You have used 85% of your total storage (1.5 KB)."},
        NotificationCase{9, R"({"total_size": 1099511627776})", "Storage is full",
                         "You have used 95% of your total storage (1 TB)."},
        NotificationCase{9, R"({"total_size": 999})", "Storage is full",
                         "You have used 95% of your total storage (999 Bytes)."},
        NotificationCase{9, R"({"total_size": 5368709120.0})", "Storage is full",
                         "You have used 95% of your total storage (5 GB)."},
        NotificationCase{8, R"({})", kAlmostFull, "You have used 85% of your total storage (0 Bytes)."},
        NotificationCase{8, R"({"total_size": "1073741824"})", kAlmostFull,
                         "You have used 85% of your total storage (0 Bytes)."},
        NotificationCase{9, R"({"total_size": -5})", "Storage is full",
                         "You have used 95% of your total storage (0 Bytes)."}));

}  // namespace

// The high-contrast look recolours what a text colours itself, and only then.
TEST(CatalogueText, HighContrastRecoloursTheTextsOwnColours) {
  StyleManager* styles = StyleManager::getInstance();
  styles->loadPalette("#0A9CFF #005FB8", "test");
  const QString normal = string_display::text(Str::desc_progress_handled);
  styles->setHighContrast(true);
  const QString high = string_display::text(Str::desc_progress_handled);
  styles->setHighContrast(false);
  styles->loadPalette("", "test");
  EXPECT_THAT(normal.toStdString(), ::testing::HasSubstr("#0A9CFF"));
  EXPECT_EQ(high, QString(normal).replace("#0A9CFF", "#005FB8"));
}
