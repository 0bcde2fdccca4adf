// The settings dialog shows what settings_rules decides (settings-rules.tsv
// has the decisions): what a configuration shows and enables, what "Save"
// sends on the bus, the organisation's note, the end list after a start,
// and the keyboard (Escape, Return, Tab), names and lengths.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "tests/support/qt-print.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/dialogs/settings-rules.h"
#include "ui-agent/dialogs/settings-widget.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/vell-button.h"
#include "widgets/vell-time-combo-box.h"

using agent_test::parse;

namespace {

const char* const kLimited0700To2300 =
    R"({"bandwidth_type":1,"bandwidth_rate":100,"bandwidth_limit_range":true,
        "bandwidth_start_time":"07:00","bandwidth_end_time":"23:00"})";

class SettingsWidgetTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { agent_test::loadLook(); }
  SettingsWidgetTest() : spy(&GlobalConnecter::instance(), &GlobalConnecter::sigQueryService) {}

  template <typename T = QWidget>
  T* child(const char* name) {
    return agent_test::child<T>(&widget, name);
  }
  QRadioButton* noLimitRadio() { return child<QRadioButton>("SettingsNoLimitRadio"); }
  QLineEdit* rateEdit() { return child<QLineEdit>("SettingsRateEdit"); }
  QCheckBox* rangeCheck() { return child<QCheckBox>("SettingsRangeCheckBox"); }
  VellTimeComboBox* startCombo() { return child<VellTimeComboBox>("SettingsStartCombo"); }
  VellTimeComboBox* endCombo() { return child<VellTimeComboBox>("SettingsEndCombo"); }
  QLabel* note() { return child<QLabel>("SettingsServerNote"); }
  QLabel* unitLabel() { return child<QLabel>("SettingsRateUnit"); }
  VellButton* saveButton() { return child<VellButton>("SettingsSaveButton"); }
  VellButton* cancelButton() { return child<VellButton>("SettingsCancelButton"); }
  // Which of rate edit, range check and range box take input.
  std::vector<bool> enabled() {
    return {rateEdit()->isEnabled(), rangeCheck()->isEnabled(), child("SettingsRangeContainer")->isEnabled()};
  }
  void showActive() {
    widget.show();
    QApplication::setActiveWindow(&widget);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
  }
  // The one request sent since the test began.
  Json::Value sentRequest() {
    EXPECT_EQ(spy.count(), 1);
    if (spy.count() != 1) return Json::Value();
    EXPECT_EQ(spy.first().at(0).value<const QObject*>(), &widget);
    return spy.first().at(1).value<Json::Value>();
  }

  SettingsWidget widget;
  QSignalSpy spy;
};

TEST_F(SettingsWidgetTest, DefaultsThenALimitedConfigEnableWhatTheyMay) {
  const Qt::WindowFlags flags = widget.windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
  EXPECT_FALSE(flags & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint |
                        Qt::WindowContextHelpButtonHint));
  EXPECT_FALSE(note()->isVisibleTo(&widget));

  widget.loadClientConfig(parse(kLimited0700To2300));
  EXPECT_TRUE(child<QRadioButton>("SettingsLimitRadio")->isChecked());
  EXPECT_EQ(enabled(), std::vector<bool>({true, true, true}));
  EXPECT_EQ(unitLabel()->text(), QStringLiteral("Mbps (12.5 MB/s)"));
  EXPECT_EQ(child("SettingsEstimateIcon")->toolTip(),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to 2.3 hours"));
  rangeCheck()->setChecked(false);
  EXPECT_EQ(enabled(), std::vector<bool>({true, true, false}));
  rangeCheck()->setChecked(true);
  EXPECT_EQ(enabled(), std::vector<bool>({true, true, true}));
  noLimitRadio()->setChecked(true);
  EXPECT_EQ(enabled(), std::vector<bool>({false, false, false}));
  rateEdit()->setText(QString());
  EXPECT_EQ(unitLabel()->text(), QStringLiteral("Mbps (-- MB/s)"));
  EXPECT_TRUE(child("SettingsEstimateIcon")->toolTip().endsWith(QStringLiteral("-- hours")));

  // The defaults ("Maximum") after a custom start: everything is reloaded.
  widget.loadClientConfig(parse(kLimited0700To2300));
  startCombo()->setTimeText(QStringLiteral("10:00"));
  widget.loadClientConfig(SettingsWidget::defaultClientConfig());
  EXPECT_TRUE(noLimitRadio()->isChecked());
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("20"));
  EXPECT_TRUE(rangeCheck()->isChecked());
  EXPECT_EQ(startCombo()->currentText(), QStringLiteral("07:00"));
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("23:00"));
  EXPECT_EQ(enabled(), std::vector<bool>({false, false, false}));
}

TEST_F(SettingsWidgetTest, ServerNoteShowsHidesAndSurvivesAnInvalidConfig) {
  widget.applyServerConfig(parse(R"({"bandwidth_type":1,"bandwidth_rate":50,"bandwidth_limit_range":true,
                                     "bandwidth_start_time":"07:00","bandwidth_end_time":"05:00"})"));
  ASSERT_TRUE(note()->isVisibleTo(&widget));
  const QString shown = note()->text();
  EXPECT_TRUE(shown.contains(QStringLiteral("<b>50 Mbps between 07:00 and 05:00 Next day</b>")));
  widget.applyServerConfig(parse(R"({"bandwidth_rate":9})"));
  EXPECT_TRUE(note()->isVisibleTo(&widget));
  EXPECT_EQ(note()->text(), shown);
  widget.applyServerConfig(parse(R"({"bandwidth_type":0})"));
  EXPECT_FALSE(note()->isVisibleTo(&widget));
}

TEST_F(SettingsWidgetTest, SaveSendsTheClampedRateAndHides) {
  widget.loadClientConfig(parse(kLimited0700To2300));
  showActive();
  rateEdit()->setFocus();
  rateEdit()->clear();
  QTest::keyClicks(rateEdit(), QStringLiteral("0"));
  EXPECT_EQ(rateEdit()->text(), QString()) << "a zero could be typed";
  QTest::keyClicks(rateEdit(), QStringLiteral("123456"));
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("1234"));
  rateEdit()->clearFocus();  // Save clamps too, not only leaving the edit
  rateEdit()->setText(QStringLiteral("3"));
  QTest::mouseClick(saveButton(), Qt::LeftButton);
  EXPECT_EQ(
      jsonx::compact(sentRequest()),
      R"({"action":"set_bandwidth_control","bandwidth":{"bandwidth_end_time":"23:00",)"
      R"("bandwidth_limit_range":true,"bandwidth_rate":5,"bandwidth_start_time":"07:00","bandwidth_type":1}})");
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("5"));
  EXPECT_EQ(unitLabel()->text(), QStringLiteral("Mbps (0.6 MB/s)"));
  EXPECT_FALSE(widget.isVisible());
}

// The list itself is settings_rules::end_items'; here the end kept while
// offered, else the first item, and custom times where they fall.
TEST_F(SettingsWidgetTest, TheEndListFollowsTheStart) {
  widget.loadClientConfig(parse(kLimited0700To2300));
  startCombo()->setTimeText(QStringLiteral("22:00"));
  ASSERT_EQ(endCombo()->count(), 23);
  EXPECT_EQ(endCombo()->itemText(1), QStringLiteral("00:00 Next day"));
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("23:00"));
  startCombo()->setTimeText(QStringLiteral("23:00"));
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("00:00 Next day"));

  widget.loadClientConfig(parse(R"({"bandwidth_type":1,"bandwidth_rate":20,"bandwidth_limit_range":true,
                                    "bandwidth_start_time":"07:30","bandwidth_end_time":"05:30"})"));
  EXPECT_EQ(startCombo()->currentText(), QStringLiteral("07:30 (Custom)"));
  EXPECT_EQ(startCombo()->currentIndex(), 8);
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("05:30 Next day"));
  widget.loadClientConfig(parse(R"({"bandwidth_type":1,"bandwidth_rate":20,"bandwidth_limit_range":true,
                                    "bandwidth_start_time":"07:00","bandwidth_end_time":"05:30"})"));
  ASSERT_EQ(endCombo()->currentText(), QStringLiteral("05:30 Next day"));
  EXPECT_EQ(endCombo()->itemText(endCombo()->currentIndex() - 1), QStringLiteral("05:00 Next day"));
  EXPECT_EQ(endCombo()->itemText(endCombo()->currentIndex() + 1), QStringLiteral("06:00 Next day"));
  widget.slotSaveSettings();
  EXPECT_EQ(sentRequest()["bandwidth"]["bandwidth_end_time"], Json::Value("05:30"));
}

// A start typed with the keyboard, then Return, twice: each typed time
// rebuilds the end list (how the combo takes typed times is its own test's).
TEST_F(SettingsWidgetTest, TypedStartsRebuildTheEndListAndSaveThatRange) {
  widget.loadClientConfig(parse(kLimited0700To2300));
  showActive();
  QLineEdit* edit = startCombo()->lineEdit();
  for (const char* typed : {"7:30", "23:15"}) {
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(typed));
    QTest::keyClick(edit, Qt::Key_Return);
  }
  EXPECT_EQ(startCombo()->count(), 25) << "more than one custom start";
  EXPECT_EQ(endCombo()->count(),
            settings_rules::end_items("23:15", string_display::text(Str::next_day)).size());
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("00:15 Next day"));
  widget.slotSaveSettings();
  const Json::Value bandwidth = sentRequest()["bandwidth"];
  EXPECT_EQ(bandwidth["bandwidth_start_time"], Json::Value("23:15"));
  EXPECT_EQ(bandwidth["bandwidth_end_time"], Json::Value("00:15"));
}

TEST_F(SettingsWidgetTest, EscapeCancelAndReturnAsAUserExpects) {
  widget.loadClientConfig(parse(kLimited0700To2300));
  // Escape from any control, the Cancel button and the title bar's close
  // button hide without a request; the dialog lives on.
  showActive();
  rateEdit()->setFocus();
  QTest::keyClick(rateEdit(), Qt::Key_Escape);
  EXPECT_FALSE(widget.isVisible());
  showActive();
  QTest::keyClick(&widget, Qt::Key_Escape);
  EXPECT_FALSE(widget.isVisible());
  showActive();
  QTest::mouseClick(cancelButton(), Qt::LeftButton);
  EXPECT_FALSE(widget.isVisible());
  showActive();
  widget.close();
  EXPECT_FALSE(widget.isVisible() || widget.testAttribute(Qt::WA_DeleteOnClose));

  // Return (and Enter) in the rate edit only clears the focus and clamps;
  // leaving it clamps too.
  showActive();
  rateEdit()->setFocus();
  rateEdit()->setText(QStringLiteral("3"));
  QTest::keyClick(rateEdit(), Qt::Key_Return);
  EXPECT_FALSE(rateEdit()->hasFocus());
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("5"));
  rateEdit()->setFocus();
  rateEdit()->setText(QStringLiteral("9"));
  QTest::keyClick(rateEdit(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_FALSE(rateEdit()->hasFocus());
  rateEdit()->setFocus();
  rateEdit()->setText(QStringLiteral("4"));
  rangeCheck()->setFocus();
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("5"));
  EXPECT_TRUE(widget.isVisible());
  EXPECT_EQ(spy.count(), 0);

  // Return presses the focused button.
  cancelButton()->setFocus();
  QTest::keyClick(cancelButton(), Qt::Key_Return);
  EXPECT_FALSE(widget.isVisible());
  EXPECT_EQ(spy.count(), 0);
  showActive();
  saveButton()->setFocus();
  QTest::keyClick(saveButton(), Qt::Key_Return);
  EXPECT_FALSE(widget.isVisible());
  EXPECT_EQ(sentRequest()["bandwidth"]["bandwidth_rate"], Json::Value(5));
}

TEST_F(SettingsWidgetTest, AccessibleNamesAndTabOrder) {
  widget.loadClientConfig(parse(kLimited0700To2300));
  showActive();
  using agent_test::accessibleName;
  EXPECT_EQ(accessibleName(&widget), QStringLiteral("Settings"));
  EXPECT_EQ(accessibleName(rateEdit()), QStringLiteral("Limit to"));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(rateEdit())->text(QAccessible::Description),
            QStringLiteral("Minimum: 5; Maximum: 9,999"));
  EXPECT_EQ(accessibleName(child("SettingsEstimateIcon")),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to 2.3 hours"));
  // A combo's name is its value on this platform; its label comes as the
  // "labelled by" relation.
  for (auto [combo, label] : {std::pair(startCombo(), "Start at"), std::pair(endCombo(), "End at")}) {
    const auto relations = QAccessible::queryAccessibleInterface(combo)->relations(QAccessible::Label);
    ASSERT_EQ(relations.size(), 1);
    EXPECT_EQ(relations.first().first->text(QAccessible::Name), QLatin1String(label));
    EXPECT_EQ(combo->accessibleName(), QLatin1String(label));
  }
  for (QWidget* w : widget.findChildren<QWidget*>()) {
    if (w->focusPolicy() == Qt::NoFocus || !w->isVisibleTo(&widget) || w->focusProxy()) continue;
    if (qobject_cast<QLineEdit*>(w) && qobject_cast<QComboBox*>(w->parentWidget())) continue;
    if (w->inherits("QScrollBar") || w->inherits("QAbstractScrollArea")) continue;
    EXPECT_FALSE(accessibleName(w).isEmpty())
        << w->metaObject()->className() << " " << w->objectName().toStdString();
  }

  // Tab walks in reading order; the radios are one stop (the checked one).
  child("SettingsLearnMore")->setFocus();
  QStringList walked;
  for (int i = 0; i < 9; ++i) {
    QWidget* focus = QApplication::focusWidget();
    while (focus && focus->objectName().isEmpty()) focus = focus->parentWidget();  // a combo's line edit
    walked << (focus ? focus->objectName() : QStringLiteral("?"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(walked, QStringList({"SettingsLearnMore", "SettingsLimitRadio", "SettingsRateEdit",
                                 "SettingsRangeCheckBox", "SettingsStartCombo", "SettingsEndCombo",
                                 "SettingsCancelButton", "SettingsSaveButton", "SettingsLearnMore"}));
  // Up moves to "Maximum" and checks it; the disabled controls drop out.
  child("SettingsLimitRadio")->setFocus();
  QTest::keyClick(child("SettingsLimitRadio"), Qt::Key_Up);
  EXPECT_TRUE(noLimitRadio()->hasFocus() && noLimitRadio()->isChecked());
  QTest::keyClick(noLimitRadio(), Qt::Key_Tab);
  EXPECT_TRUE(cancelButton()->hasFocus());
}

}  // namespace
