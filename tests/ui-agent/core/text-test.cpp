// {name} placeholders, byte sizes, the texts of pushed notifications and
// single activity messages, row by row from text.tsv, and the high-contrast colours of a catalogue text.
#include <gmock/gmock.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <string>

#include "tests/support/table.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/notification-text.h"
#include "ui-agent/core/string-display.h"
#include "widgets/style-manager.h"

using namespace string_display;

namespace {

// One parameterised test over text.tsv.
class Texts : public ::testing::TestWithParam<nimbra_test::TableRow> {};

TEST_P(Texts, AreWhatTheTableSays) {
  const auto& row = GetParam();
  QString got;
  if (row[0] == "placeholder") {
    const QJsonDocument values = QJsonDocument::fromJson(QByteArray::fromStdString(row[2]));
    ASSERT_TRUE(values.isObject()) << row[2];
    got = expand_placeholders(QString::fromStdString(row[1]), values.object());
  } else if (row[0] == "size") {
    const bool decimal = row[2] == "decimal";
    const quint64 bytes = std::stoull(row[1]);
    const SizeText size = format_size(bytes, decimal);
    got = size.number + ' ' + size.unit;
    EXPECT_EQ(format_size_text(bytes, decimal), got);
  } else if (row[0] == "notification") {
    const Json::Value data = agent_test::parse(row[2]);
    const int type = std::stoi(row[1]);
    got = notification_text(type, data, true) + '|' + notification_text(type, data, false);
  } else if (row[0] == "event") {
    const QStringList how = QString::fromStdString(row[1]).split('|');
    ASSERT_EQ(how.size(), 3);
    got = event_text::render(how[0].toUInt(), agent_test::parse(row[2]), how[1] == "1", how[2].toInt());
  } else {
    FAIL() << "no function " << row[0];
  }
  EXPECT_EQ(got, QString::fromStdString(row[3]));
}

NIMBRA_TABLE_SUITE(Texts, "ui-agent/core/text.tsv", 4);

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
