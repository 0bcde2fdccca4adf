// The Vell controls: time combo box, buttons, labels, links, scroll area.

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtMath>

#include "tests/support/qt-print.h"
#include "tests/widgets/widgets-fixture.h"
#include "widgets/dpi-info.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"
#include "widgets/vell-check.h"
#include "widgets/vell-label.h"
#include "widgets/vell-scroll-area.h"
#include "widgets/vell-time-combo-box.h"

namespace {

class WidgetsControls : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { widgets_test::loadProductLook(); }
};

using TimeCase = std::pair<std::string, std::string>;  // typed, normalised ("" = no time)
class WidgetsNormalizeTime : public ::testing::TestWithParam<TimeCase> {};

TEST_P(WidgetsNormalizeTime, WidgetsTable) {
  EXPECT_EQ(VellTimeComboBox::normalizeTime(QString::fromStdString(GetParam().first)).toStdString(),
            GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(WidgetsTable, WidgetsNormalizeTime,
                         ::testing::Values(TimeCase{"07:30", "07:30"}, TimeCase{"7:30", "07:30"},
                                           TimeCase{" 7:05 ", "07:05"}, TimeCase{"0730", "07:30"},
                                           TimeCase{"730", "07:30"}, TimeCase{"23:59", "23:59"},
                                           TimeCase{"00:00", "00:00"}, TimeCase{"24:00", ""},
                                           TimeCase{"12:60", ""}, TimeCase{"7:3", ""}, TimeCase{"ab:cd", ""},
                                           TimeCase{"", ""}, TimeCase{"-1:00", ""}, TimeCase{"123:00", ""}));

class WidgetsTimeCombo : public WidgetsControls {
 protected:
  void SetUp() override {
    for (int h = 0; h < 24; ++h) combo_.addItem(QStringLiteral("%1:00").arg(h, 2, 10, QLatin1Char('0')));
    combo_.setCustomText("(Custom)");
  }
  VellTimeComboBox combo_;
};

TEST_F(WidgetsTimeCombo, TimeNotInTheListKeepsTheCustomText) {
  QSignalSpy changed(&combo_, QOverload<int>::of(&QComboBox::currentIndexChanged));
  ASSERT_TRUE(combo_.setTimeText("7:30"));
  EXPECT_EQ(combo_.currentText(), "07:30 (Custom)");
  EXPECT_EQ(combo_.timeText(), "07:30");
  EXPECT_TRUE(combo_.isCustomSelected());
  EXPECT_EQ(combo_.count(), 25);
  EXPECT_GE(changed.count(), 1);
  // A second custom time replaces the first, never piles up.
  ASSERT_TRUE(combo_.setTimeText("08:15"));
  EXPECT_EQ(combo_.count(), 25);
  EXPECT_EQ(combo_.currentText(), "08:15 (Custom)");
  // Relabelling the custom words keeps the time.
  combo_.setCustomText("(Benutzerdefiniert)");
  EXPECT_EQ(combo_.currentText(), "08:15 (Benutzerdefiniert)");
  // Choosing a listed time again drops the custom item.
  ASSERT_TRUE(combo_.setTimeText("09:00"));
  EXPECT_EQ(combo_.count(), 24);
  EXPECT_EQ(combo_.currentIndex(), 9);
  EXPECT_FALSE(combo_.isCustomSelected());
  // No time changes nothing.
  EXPECT_FALSE(combo_.setTimeText("25:00"));
  EXPECT_FALSE(combo_.setTimeText("soon"));
  EXPECT_EQ(combo_.timeText(), "09:00");
  EXPECT_EQ(combo_.count(), 24);
}

TEST_F(WidgetsTimeCombo, DecoratedItemsAreFoundByTheirTime) {
  combo_.clear();
  combo_.addItem("23:00");
  combo_.addItem("00:00 Next day");
  combo_.addItem("05:00 Next day");
  EXPECT_TRUE(combo_.setTimeText("05:00 Next day"));
  EXPECT_EQ(combo_.currentIndex(), 2);
  EXPECT_TRUE(combo_.setTimeText("00:00"));
  EXPECT_EQ(combo_.currentText(), "00:00 Next day");
  EXPECT_EQ(combo_.timeText(), "00:00");
}

TEST_F(WidgetsTimeCombo, TypedTimeIsCommittedWhenEditingEnds) {
  combo_.setEditable(true);
  combo_.setTimeText("07:00");
  ASSERT_NE(combo_.lineEdit(), nullptr);
  auto type = [&](const char* text) {
    combo_.lineEdit()->setText(text);
    emit combo_.lineEdit()->editingFinished();
  };
  type("6:45");
  EXPECT_EQ(combo_.currentText(), "06:45 (Custom)");
  EXPECT_EQ(combo_.timeText(), "06:45");
  type("later");  // rubbish puts back the selection
  EXPECT_EQ(combo_.currentText(), "06:45 (Custom)");
  type("10:00");  // a listed time selects the item itself
  EXPECT_EQ(combo_.currentIndex(), 10);
  EXPECT_FALSE(combo_.isCustomSelected());
}

TEST_F(WidgetsControls, ControlsCarryTheirNamedLook) {
  VellButton primary("Save", 0), secondary("Cancel", 1), odd("X", 9);
  EXPECT_EQ(odd.buttonKind(), VellButton::Primary);
  EXPECT_EQ(primary.styleSheet(), getStyleSheet("nimbra_button_2"));
  EXPECT_EQ(secondary.styleSheet(), getStyleSheet("nimbra_button_normal"));
  secondary.setButtonKind(0);
  EXPECT_EQ(secondary.styleSheet(), primary.styleSheet());
  EXPECT_EQ(VellCheckBox("a").styleSheet(), getStyleSheet("component.checkbox"));
  EXPECT_EQ(VellRadioButton("b").styleSheet(), getStyleSheet("component.radio_button"));
}

TEST_F(WidgetsControls, IconButtonFromPictureOrTextWithMenu) {
  VellIconButton pic("icn_list");
  EXPECT_EQ(pic.iconSize(), QSize(DPIinfo::scaled(24), DPIinfo::scaled(24)));
  EXPECT_FALSE(pic.icon().isNull());
  EXPECT_TRUE(VellIconButton("no_such_picture").icon().isNull());
  VellIconButton text;
  QMenu menu;
  text.setMenu(&menu);
  EXPECT_EQ(text.popupMode(), QToolButton::InstantPopup);
}

TEST_F(WidgetsControls, LinkLabelClicksOnReleaseInsideAndOnKeys) {
  LinkLabel link("Terms of Service");
  link.resize(120, 20);
  QSignalSpy clicked(&link, &LinkLabel::clicked);
  auto mouse = [&](QEvent::Type t, QPoint p) {
    QMouseEvent e(t, p, link.mapToGlobal(p), Qt::LeftButton,
                  t == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&link, &e);
  };
  mouse(QEvent::MouseButtonPress, {5, 5});
  mouse(QEvent::MouseButtonRelease, {6, 6});
  EXPECT_EQ(clicked.count(), 1);
  // Pressed, dragged off and released outside: no click.
  mouse(QEvent::MouseButtonPress, {5, 5});
  mouse(QEvent::MouseButtonRelease, {500, 6});
  EXPECT_EQ(clicked.count(), 1);
  // A release without a press is no click either.
  mouse(QEvent::MouseButtonRelease, {6, 6});
  EXPECT_EQ(clicked.count(), 1);
  QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
  QApplication::sendEvent(&link, &space);
  EXPECT_EQ(clicked.count(), 2);
  // Other keys go on to the window (Escape closes the dialog the link is in).
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(&link, &escape);
  EXPECT_FALSE(escape.isAccepted());
  EXPECT_FALSE(getStyleSheet("about_link_label").contains("underline"));
}

TEST_F(WidgetsControls, LabelElidesToItsWidthWithFullTextAsToolTip) {
  VellLabel label;
  label.setFixedWidth(60);
  label.setElideMode(Qt::ElideRight);
  label.setText("A rather long text that cannot fit");
  EXPECT_NE(label.text(), label.fullText());
  EXPECT_TRUE(label.text().endsWith(QChar(0x2026)));
  EXPECT_EQ(label.toolTip(), "A rather long text that cannot fit");
  label.setFixedWidth(2000);
  label.setText("short");
  EXPECT_EQ(label.text(), "short");
  EXPECT_TRUE(label.toolTip().isEmpty());
  // Exactly as wide as its text it stays whole; an indent of one pixel on
  // each side leaves too little room.
  for (const int indent : {-1, 1}) {
    VellLabel fitted;
    fitted.setIndent(indent);
    fitted.setElideMode(Qt::ElideRight);
    fitted.setFixedWidth(qCeil(QFontMetricsF(fitted.font(), &fitted).horizontalAdvance("Backed up")));
    fitted.setText("Backed up");
    EXPECT_EQ(fitted.text() == "Backed up", indent < 0) << "indent " << indent;
  }
}

// In a layout that may give it up to 296 px (a stretch beside it), a label
// elides against the width it ends up with once shown, and asks the layout
// for its whole text: it must not shrink to the first letter.
TEST_F(WidgetsControls, LabelInALayoutGetsRoomForItsWholeTextOnceShown) {
  QWidget page;
  auto* row = new QHBoxLayout(&page);
  auto* label = new VellLabel(&page);
  label->setStyleSheet("QLabel { font-size: 16px; font-weight: bold; }");
  label->setMaximumWidth(296);
  label->setElideMode(Qt::ElideRight);
  label->setText("Backing up...");
  row->addWidget(label);
  row->addStretch();
  page.resize(400, 60);
  page.show();
  QApplication::processEvents();
  EXPECT_EQ(label->text(), "Backing up...");
  EXPECT_TRUE(label->toolTip().isEmpty());
  // A longer text takes the room up to the maximum, and only then elides.
  label->setText(QString(60, QLatin1Char('m')));
  QApplication::processEvents();
  EXPECT_EQ(label->width(), 296);
  EXPECT_TRUE(label->text().endsWith(QChar(0x2026)));
  label->setText("Backed up");
  QApplication::processEvents();
  EXPECT_EQ(label->text(), "Backed up");
  // Squeezed by its window, it elides instead of overflowing.
  page.resize(80, 60);
  QApplication::processEvents();
  EXPECT_LE(label->width(), 80);
  EXPECT_TRUE(label->text().endsWith(QChar(0x2026)));
}

// The elision follows the label's font: a style sheet's font arrives after
// the text was set (when the label is polished).
TEST_F(WidgetsControls, LabelElidesAgainWhenItsFontChanges) {
  VellLabel label;
  QFont big = label.font();
  big.setPixelSize(40);
  label.setFont(big);
  label.setElideMode(Qt::ElideRight);
  QFont small = big;
  small.setPixelSize(10);
  label.setFixedWidth(QFontMetrics(small).horizontalAdvance("Backing up...") + 8);
  label.setText("Backing up...");
  EXPECT_NE(label.text(), "Backing up...");
  label.setFont(small);
  EXPECT_EQ(label.text(), "Backing up...");
  label.setFont(big);
  EXPECT_NE(label.text(), "Backing up...");
  label.setStyleSheet("QLabel { font-size: 10px; }");
  label.ensurePolished();
  EXPECT_EQ(label.text(), "Backing up...");
}

TEST_F(WidgetsControls, LabelShowsAnUnchangedTextAgainAfterClear) {
  VellLabel label;
  label.setElideMode(Qt::ElideRight);
  label.setText("Ready");
  label.clear();
  label.setText("Ready");
  EXPECT_EQ(label.text(), "Ready");
}

TEST_F(WidgetsControls, ScrollAreaContentFollowsTheViewportWidth) {
  VellVerticalScrollArea area;
  area.resize(300, 100);
  auto* content = new QWidget;
  auto* row = new QWidget;
  row->setMinimumHeight(600);
  (new QVBoxLayout(content))->addWidget(row);
  area.setWidget(content);
  area.show();
  QApplication::processEvents();
  EXPECT_EQ(content->width(), area.viewport()->width());
  EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
  row->hide();
  area.refreshScrollBar();
  QApplication::processEvents();
  EXPECT_EQ(area.verticalScrollBar()->maximum(), 0);
}

}  // namespace
