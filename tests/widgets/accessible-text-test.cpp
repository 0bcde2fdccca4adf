// What screen readers are told: window roles, and values with their captions.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QWidget>

#include "accessible-text.h"

namespace {

struct ValueRow {
  const char* name;
  const char* caption;
  const char* value;
  const char* spokenName;
  const char* spokenDescription;
};
void PrintTo(const ValueRow& r, std::ostream* os) {
  *os << r.name;
}

class SpokenValue : public ::testing::TestWithParam<ValueRow> {};

TEST_P(SpokenValue, WholeTextAsNameCaptionAsDescription) {
  const ValueRow& r = GetParam();
  const accessible_text::Spoken s =
      accessible_text::forValue(QString::fromUtf8(r.caption), QString::fromUtf8(r.value));
  EXPECT_EQ(s.name.toStdString(), r.spokenName);
  EXPECT_EQ(s.description.toStdString(), r.spokenDescription);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SpokenValue,
    ::testing::Values(
        ValueRow{"Plain", "Backup schedule: ", "Daily at 21:00", "Daily at 21:00", "Backup schedule"},
        ValueRow{"FullWidthColon", "バックアップ：", "毎日", "毎日", "バックアップ"},
        ValueRow{"NoColon", "Next backup", "--", "--", "Next backup"},
        // The scope line as the summary shows it: markup around escaped text.
        ValueRow{"Markup",
                 "Backup scope:", "<div style=\"line-height:24px\">C:\\ &amp; D:\\, <b>3</b> more</div>",
                 "C:\\ & D:\\, 3 more", "Backup scope"},
        ValueRow{"LinesAndRunsOfSpaces", "Policy:", "  Office\n  laptops   ", "Office laptops", "Policy"},
        // A plain value that only looks like markup stays as it is.
        ValueRow{"LessThanInPlainText", "Policy:", "a < b", "a < b", "Policy"},
        ValueRow{"Empty", "Policy:", "", "", "Policy"}),
    [](const ::testing::TestParamInfo<ValueRow>& i) { return std::string(i.param.name); });

// A plain QWidget window is a "filler" to AT-SPI; given a role it is a
// frame or a dialog, also when Qt made its interface before (a name set
// while accessibility was on).
TEST(WindowRole, FrameOrDialogWhateverTheClass) {
  for (const bool madeBefore : {false, true}) {
    QWidget frame, dialog;
    if (madeBefore) {
      ASSERT_NE(QAccessible::queryAccessibleInterface(&frame), nullptr);
      ASSERT_NE(QAccessible::queryAccessibleInterface(&dialog), nullptr);
    }
    accessible_text::setWindowRole(&frame, accessible_text::WindowRole::Frame);
    accessible_text::setWindowRole(&dialog, accessible_text::WindowRole::Dialog);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&frame)->role(), QAccessible::Window) << madeBefore;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&dialog)->role(), QAccessible::Dialog) << madeBefore;
  }
  QWidget plain;
  EXPECT_NE(QAccessible::queryAccessibleInterface(&plain)->role(), QAccessible::Window);
}

}  // namespace
