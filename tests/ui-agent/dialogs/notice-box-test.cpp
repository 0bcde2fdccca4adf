// The message boxes' text broken into lines that fit: the lines rule, and a
// finished box whose label is as wide as its widest line.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "agent-test.h"
#include "dialogs/notice-box.h"
#include "string-display.h"
#include "style-manager.h"

namespace {

struct WrapRow {
  const char* name;
  QString text;
  int width;  // pixels, or with `in_chars` average characters of the font
  int min_lines, max_lines;
  bool in_chars = false;
};
void PrintTo(const WrapRow& r, std::ostream* os) {
  *os << r.name;
}

class WrapLines : public ::testing::TestWithParam<WrapRow> {};

TEST_P(WrapLines, LinesFitAndKeepEveryCharacter) {
  const WrapRow& row = GetParam();
  const QFont font = QApplication::font();
  const QFontMetrics fm(font);
  const int width = row.in_chars ? row.width * fm.averageCharWidth() : row.width;
  const QStringList lines = notice_box::wrap_lines(row.text, font, width);
  EXPECT_GE(lines.size(), row.min_lines) << lines.join('|').toStdString();
  EXPECT_LE(lines.size(), row.max_lines) << lines.join('|').toStdString();
  QString rest = row.text;
  rest.remove(' ').remove('\n');
  for (const QString& line : lines) {
    if (!line.contains(' ') && fm.horizontalAdvance(line) > width) continue;  // one word, kept whole
    EXPECT_LE(fm.horizontalAdvance(line), width) << line.toStdString();
  }
  QString joined = lines.join(QString());
  EXPECT_EQ(joined.remove(' '), rest);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrapLines,
    ::testing::Values(
        WrapRow{"ShortTextOneLine", "Exit now", 420, 1, 1},
        WrapRow{
            "LongSentenceBreaksBetweenWords",
            "Once log out, connection from this device will be cut off. Are you sure you want to log out?",
            30, 3, 5, true},
        WrapRow{"BreaksInTheTextStay", "First line\nSecond line", 420, 2, 2},
        WrapRow{"WordWiderThanTheLineStaysWhole", "Averyveryveryverylongwordthatcannotfit here", 60, 2, 2},
        WrapRow{
            "ScriptWithoutSpacesBreaksBetweenCharacters",
            QString::fromUtf8("注销后，此设备的连接将被切断。您确定要注销吗？注销后，此设备的连接将被切断。"),
            120, 2, 12}),
    [](const ::testing::TestParamInfo<WrapRow>& p) { return std::string(p.param.name); });

TEST(NoticeBox, LongQuestionWrapsInTheStyleSheetsFontAndButtonsLoseThemeIcons) {
  qputenv("NIMBRA_UI_SCALE", "1");
  agent_test::loadLook();
  QMessageBox box;
  box.setText(string_display::text(Str::desc_confirm_logout));
  box.setStyleSheet(getStyleSheet(QStringLiteral("component.confirm_message_box")));
  QPushButton* cancel = box.addButton(QMessageBox::Cancel);
  notice_box::finish(box);

  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  ASSERT_NE(label, nullptr);
  const QStringList lines = label->text().split('\n');
  ASSERT_GE(lines.size(), 2) << "the question is wider than a box line";
  const QFontMetrics fm(label->font());
  for (const QString& line : lines) {
    EXPECT_LE(fm.horizontalAdvance(line), notice_box::kTextWidth) << line.toStdString();
    EXPECT_LE(fm.horizontalAdvance(line) + 2, label->minimumWidth()) << line.toStdString();
  }
  EXPECT_TRUE(cancel->icon().isNull());
}

}  // namespace
