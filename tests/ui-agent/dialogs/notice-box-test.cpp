// The message boxes' text broken into lines that fit: the lines rule and
// the boxes as the agent builds them (labels as wide as their widest line).
// What running one returns is the desktop story Session.LogOutAsksFirst's.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>

#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/dialogs/notice-box.h"

namespace {

// Lines that fit (a word wider than the line stays whole), every character
// kept, breaks in the text kept, scripts without spaces broken between
// characters.
TEST(NoticeBox, WrapLinesFitAndKeepEveryCharacter) {
  const QFont font = QApplication::font();
  const QFontMetrics fm(font);
  const struct {
    QString text;
    int width, min_lines, max_lines;
  } rows[] = {
      {"Exit now", 420, 1, 1},
      {"Once log out, connection from this device will be cut off. Are you sure you want to log out?",
       30 * fm.averageCharWidth(), 3, 5},
      {"First line\nSecond line", 420, 2, 2},
      {"Averyveryveryverylongwordthatcannotfit here", 60, 2, 2},
      {QString::fromUtf8("注销后，此设备的连接将被切断。您确定要注销吗？注销后，此设备的连接将被切断。"), 120,
       2, 12},
  };
  for (const auto& row : rows) {
    const QStringList lines = notice_box::wrap_lines(row.text, font, row.width);
    SCOPED_TRACE(lines.join('|').toStdString());
    EXPECT_GE(lines.size(), row.min_lines);
    EXPECT_LE(lines.size(), row.max_lines);
    for (const QString& line : lines)
      EXPECT_TRUE(!line.contains(' ') || fm.horizontalAdvance(line) <= row.width) << line.toStdString();
    QString rest = row.text, joined = lines.join(QString());
    EXPECT_EQ(joined.remove(' '), rest.remove(' ').remove('\n'));
  }
}

TEST(NoticeBox, BoxesWrapInTheStyleSheetsFontAndButtonsLoseThemeIcons) {
  qputenv("NIMBRA_UI_SCALE", "1");
  agent_test::loadLook();
  for (const auto& [box, text] : {std::pair{notice_box::logout_question(), Str::desc_confirm_logout},
                                  std::pair{notice_box::exit_notice(), Str::desc_exit_app}}) {
    auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    ASSERT_NE(label, nullptr);
    const QStringList lines = label->text().split('\n');
    EXPECT_EQ(lines.join(' '), string_display::text(text));
    const QFontMetrics fm(label->font());
    for (const QString& line : lines) {
      EXPECT_LE(fm.horizontalAdvance(line), notice_box::kTextWidth) << line.toStdString();
      EXPECT_LE(fm.horizontalAdvance(line) + 2, label->minimumWidth()) << line.toStdString();
    }
    for (QAbstractButton* b : box->buttons()) EXPECT_TRUE(b->icon().isNull());
  }
}

}  // namespace
