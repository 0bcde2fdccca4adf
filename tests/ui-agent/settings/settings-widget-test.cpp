// The settings dialog through its public operations: what a configuration
// shows, what "Save" sends on the bus, the organisation's note, the end list
// after a start, and the keyboard (Escape, Return in the rate edit, Tab).

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "agent-test.h"
#include "core/global-connecter.h"
#include "dialogs/settings-rules.h"
#include "dialogs/settings-widget.h"
#include "json-access.h"
#include "string-display.h"
#include "support/qt-print.h"
#include "vell-button.h"
#include "vell-time-combo-box.h"

using agent_test::parse;

namespace {

const char* const kLimited0700To2300 =
    R"({"bandwidth_type":1,"bandwidth_rate":100,"bandwidth_limit_range":true,
                                           "bandwidth_start_time":"07:00","bandwidth_end_time":"23:00"})";

class SettingsWidgetTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { agent_test::loadLook(); }

  void SetUp() override {
    widget = std::make_unique<SettingsWidget>();
    spy = std::make_unique<QSignalSpy>(&GlobalConnecter::instance(), &GlobalConnecter::sigQueryService);
  }

  template <typename T>
  T* child(const char* name) {
    return agent_test::child<T>(widget.get(), name);
  }
  QRadioButton* noLimitRadio() { return child<QRadioButton>("SettingsNoLimitRadio"); }
  QRadioButton* limitRadio() { return child<QRadioButton>("SettingsLimitRadio"); }
  QLineEdit* rateEdit() { return child<QLineEdit>("SettingsRateEdit"); }
  QCheckBox* rangeCheck() { return child<QCheckBox>("SettingsRangeCheckBox"); }
  QWidget* rangeContainer() { return child<QWidget>("SettingsRangeContainer"); }
  VellTimeComboBox* startCombo() { return child<VellTimeComboBox>("SettingsStartCombo"); }
  VellTimeComboBox* endCombo() { return child<VellTimeComboBox>("SettingsEndCombo"); }
  QLabel* note() { return child<QLabel>("SettingsServerNote"); }
  QLabel* unitLabel() { return child<QLabel>("SettingsRateUnit"); }
  QLabel* estimateIcon() { return child<QLabel>("SettingsEstimateIcon"); }
  VellButton* saveButton() { return child<VellButton>("SettingsSaveButton"); }
  VellButton* cancelButton() { return child<VellButton>("SettingsCancelButton"); }

  // What the tray menu does with a "get_bandwidth_control" answer.
  void open(const Json::Value& answer) {
    const Json::Value& server = jsonx::get_object(answer, "server_config");
    const Json::Value& client = jsonx::get_object(answer, "client_config");
    if (SettingsWidget::isValidConfig(server)) widget->applyServerConfig(server);
    widget->loadClientConfig(SettingsWidget::isValidConfig(client) ? client
                                                                   : SettingsWidget::defaultClientConfig());
    widget->show();
    widget->raise();
    widget->activateWindow();
  }

  void showActive() {
    widget->show();
    QApplication::setActiveWindow(widget.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(widget.get()));
  }

  // The one request sent since SetUp.
  Json::Value sentRequest() {
    EXPECT_EQ(spy->count(), 1);
    if (spy->count() != 1) return Json::Value();
    EXPECT_EQ(spy->first().at(0).value<const QObject*>(), widget.get());
    return spy->first().at(1).value<Json::Value>();
  }

  std::unique_ptr<SettingsWidget> widget;
  std::unique_ptr<QSignalSpy> spy;
};

TEST_F(SettingsWidgetTest, DialogFrameHasOnlyACloseButton) {
  const Qt::WindowFlags flags = widget->windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowContextHelpButtonHint));
  EXPECT_FALSE(note()->isVisibleTo(widget.get()));
}

TEST_F(SettingsWidgetTest, InvalidClientConfigLoadsTheDefaults) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  startCombo()->setTimeText(QStringLiteral("10:00"));
  open(parse(R"({"action":"get_bandwidth_control","client_config":{"bandwidth_type":1,"bandwidth_rate":300,
                 "bandwidth_limit_range":true,"bandwidth_start_time":"01:00","bandwidth_end_time":"7:00"}})"));
  EXPECT_TRUE(noLimitRadio()->isChecked());
  EXPECT_FALSE(limitRadio()->isChecked());
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("20"));
  EXPECT_TRUE(rangeCheck()->isChecked());
  EXPECT_EQ(startCombo()->currentText(), QStringLiteral("07:00"));
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("23:00"));
  // "Maximum" leaves nothing else to edit.
  EXPECT_FALSE(rateEdit()->isEnabled());
  EXPECT_FALSE(rangeCheck()->isEnabled());
  EXPECT_FALSE(rangeContainer()->isEnabled());
  EXPECT_TRUE(widget->isVisible());
}

TEST_F(SettingsWidgetTest, LimitedConfigEnablesTheControls) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  EXPECT_TRUE(limitRadio()->isChecked());
  EXPECT_TRUE(rateEdit()->isEnabled());
  EXPECT_TRUE(rangeCheck()->isEnabled());
  EXPECT_TRUE(rangeContainer()->isEnabled());
  EXPECT_EQ(unitLabel()->text(), QStringLiteral("Mbps (12.5 MB/s)"));
  EXPECT_EQ(estimateIcon()->toolTip(),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to 2.3 hours"));

  rangeCheck()->setChecked(false);
  EXPECT_FALSE(rangeContainer()->isEnabled());
  rangeCheck()->setChecked(true);
  EXPECT_TRUE(rangeContainer()->isEnabled());

  noLimitRadio()->setChecked(true);
  EXPECT_FALSE(rateEdit()->isEnabled());
  EXPECT_FALSE(rangeCheck()->isEnabled());
  EXPECT_FALSE(rangeContainer()->isEnabled());

  rateEdit()->setText(QString());
  EXPECT_EQ(unitLabel()->text(), QStringLiteral("Mbps (-- MB/s)"));
  EXPECT_EQ(estimateIcon()->toolTip(),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to -- hours"));
}

TEST_F(SettingsWidgetTest, ServerNoteShowsHidesAndSurvivesAnInvalidConfig) {
  widget->applyServerConfig(parse(R"({"bandwidth_type":1,"bandwidth_rate":50,"bandwidth_limit_range":true,
                                      "bandwidth_start_time":"07:00","bandwidth_end_time":"05:00"})"));
  ASSERT_TRUE(note()->isVisibleTo(widget.get()));
  const QString shown = note()->text();
  EXPECT_TRUE(shown.contains(QStringLiteral("<b>50 Mbps between 07:00 and 05:00 Next day</b>")));

  // An invalid server config is not applied: the note stays as it was.
  open(parse(R"({"action":"get_bandwidth_control","server_config":{"bandwidth_type":1,"bandwidth_rate":9,
                 "bandwidth_limit_range":true,"bandwidth_start_time":"07:00","bandwidth_end_time":"7:00"}})"));
  widget->applyServerConfig(parse(R"({"bandwidth_rate":9})"));
  EXPECT_TRUE(note()->isVisibleTo(widget.get()));
  EXPECT_EQ(note()->text(), shown);

  widget->applyServerConfig(parse(R"({"bandwidth_type":0})"));
  EXPECT_FALSE(note()->isVisibleTo(widget.get()));
}

TEST_F(SettingsWidgetTest, Rate3IsSavedAs5) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  widget->show();
  rateEdit()->setText(QStringLiteral("3"));
  QTest::mouseClick(saveButton(), Qt::LeftButton);
  const Json::Value request = sentRequest();
  EXPECT_EQ(
      jsonx::compact(request),
      R"({"action":"set_bandwidth_control","bandwidth":{"bandwidth_end_time":"23:00",)"
      R"("bandwidth_limit_range":true,"bandwidth_rate":5,"bandwidth_start_time":"07:00","bandwidth_type":1}})");
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("5"));
  EXPECT_EQ(unitLabel()->text(), QStringLiteral("Mbps (0.6 MB/s)"));
  EXPECT_FALSE(widget->isVisible());
}

TEST_F(SettingsWidgetTest, ZeroCannotBeTyped) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  showActive();
  rateEdit()->setFocus();
  rateEdit()->clear();
  QTest::keyClicks(rateEdit(), QStringLiteral("0"));
  EXPECT_EQ(rateEdit()->text(), QString());
  QTest::keyClicks(rateEdit(), QStringLiteral("123456"));
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("1234"));
}

TEST_F(SettingsWidgetTest, StartAt22OffersTheEndList) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  startCombo()->setTimeText(QStringLiteral("22:00"));
  // The list itself is settings_rules::endItems' (tested there).
  ASSERT_EQ(endCombo()->count(), 23);
  EXPECT_EQ(endCombo()->itemText(1), QStringLiteral("00:00 Next day"));
  // The saved end of 23:00 is still offered, so it stays.
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("23:00"));

  // At 23:00 it no longer is: the first item is taken.
  startCombo()->setTimeText(QStringLiteral("23:00"));
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("00:00 Next day"));
}

// A start typed with the keyboard, then Return: every change of the start
// rebuilds the end list, including a typed time replacing a typed one.
struct TypedStarts {
  std::vector<const char*> typed;
  const char* end;  // the end shown (and saved) afterwards
};

class SettingsTypedStart : public SettingsWidgetTest, public ::testing::WithParamInterface<TypedStarts> {};

TEST_P(SettingsTypedStart, RebuildsTheEndListAndSavesThatRange) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  showActive();
  QLineEdit* edit = startCombo()->lineEdit();
  ASSERT_NE(edit, nullptr);
  QString start;
  for (const char* typed : GetParam().typed) {
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(typed));
    QTest::keyClick(edit, Qt::Key_Return);
    const QString time = VellTimeComboBox::normalizeTime(QString::fromLatin1(typed));
    if (!time.isEmpty()) start = time;  // no time puts the last one back
  }
  EXPECT_EQ(startCombo()->timeText(), start);
  // The start list stays in time order with at most one custom item.
  EXPECT_LE(startCombo()->count(), 25);
  for (int i = 1; i < startCombo()->count(); ++i)
    EXPECT_LT(startCombo()->itemText(i - 1).left(5), startCombo()->itemText(i).left(5));
  const QStringList ends = settings_rules::endItems(start, string_display::text(Str::next_day));
  ASSERT_EQ(endCombo()->count(), ends.size());
  EXPECT_EQ(endCombo()->itemText(0), ends.first());
  EXPECT_EQ(endCombo()->currentText(), QString::fromLatin1(GetParam().end));
  widget->slotSaveSettings();
  const Json::Value bandwidth = sentRequest()["bandwidth"];
  EXPECT_EQ(bandwidth["bandwidth_start_time"], Json::Value(start.toStdString()));
  EXPECT_EQ(bandwidth["bandwidth_end_time"],
            Json::Value(QString::fromLatin1(GetParam().end).left(5).toStdString()));
}

INSTANTIATE_TEST_SUITE_P(Settings, SettingsTypedStart,
                         ::testing::Values(TypedStarts{{"7:30", "22:45"}, "23:45"},
                                           TypedStarts{{"7:30", "8:30"}, "09:30"},
                                           TypedStarts{{"0730", "07:00"}, "08:00"},
                                           TypedStarts{{"22:00"}, "23:00"},
                                           TypedStarts{{"23:15", "later"}, "00:15 Next day"}));

// What counts as valid, and how times load and save, are settings_rules'
// tables; here one configuration through the dialog and back.
TEST_F(SettingsWidgetTest, HalfHourRangeLoadsAsCustomAndNextDayAndSavesBareTimes) {
  widget->loadClientConfig(parse(R"({"bandwidth_type":1,"bandwidth_rate":20,"bandwidth_limit_range":true,
                                     "bandwidth_start_time":"07:30","bandwidth_end_time":"05:30"})"));
  EXPECT_EQ(startCombo()->currentText(), QStringLiteral("07:30 (Custom)"));
  EXPECT_EQ(endCombo()->currentText(), QStringLiteral("05:30 Next day"));
  // The custom start sits where its time falls in the list.
  EXPECT_EQ(startCombo()->currentIndex(), 8);
  widget->slotSaveSettings();
  const Json::Value bandwidth = sentRequest()["bandwidth"];
  EXPECT_EQ(bandwidth["bandwidth_start_time"], Json::Value("07:30"));
  EXPECT_EQ(bandwidth["bandwidth_end_time"], Json::Value("05:30"));
}

TEST_F(SettingsWidgetTest, CustomEndSitsWhereItsTimeFallsInTheList) {
  widget->loadClientConfig(parse(R"({"bandwidth_type":1,"bandwidth_rate":20,"bandwidth_limit_range":true,
                                     "bandwidth_start_time":"07:00","bandwidth_end_time":"05:30"})"));
  ASSERT_EQ(endCombo()->currentText(), QStringLiteral("05:30 Next day"));
  EXPECT_EQ(endCombo()->itemText(endCombo()->currentIndex() - 1), QStringLiteral("05:00 Next day"));
  EXPECT_EQ(endCombo()->itemText(endCombo()->currentIndex() + 1), QStringLiteral("06:00 Next day"));
}

TEST_F(SettingsWidgetTest, CancelHidesWithoutARequest) {
  widget->show();
  QTest::mouseClick(cancelButton(), Qt::LeftButton);
  EXPECT_FALSE(widget->isVisible());
  EXPECT_EQ(spy->count(), 0);
}

TEST_F(SettingsWidgetTest, EscapeClosesFromAnyControl) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  showActive();
  rateEdit()->setFocus();
  QTest::keyClick(rateEdit(), Qt::Key_Escape);
  EXPECT_FALSE(widget->isVisible());
  EXPECT_EQ(spy->count(), 0);

  showActive();
  QTest::keyClick(widget.get(), Qt::Key_Escape);
  EXPECT_FALSE(widget->isVisible());

  // The title bar's close button hides too; the dialog lives on.
  showActive();
  widget->close();
  EXPECT_FALSE(widget->isVisible());
  EXPECT_FALSE(widget->testAttribute(Qt::WA_DeleteOnClose));
}

TEST_F(SettingsWidgetTest, ReturnInTheRateEditOnlyClearsTheFocusAndClamps) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  showActive();
  rateEdit()->setFocus();
  ASSERT_TRUE(rateEdit()->hasFocus());
  rateEdit()->setText(QStringLiteral("3"));
  QTest::keyClick(rateEdit(), Qt::Key_Return);
  EXPECT_FALSE(rateEdit()->hasFocus());
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("5"));
  EXPECT_TRUE(widget->isVisible());
  EXPECT_EQ(spy->count(), 0);

  rateEdit()->setFocus();
  rateEdit()->setText(QStringLiteral("9"));
  QTest::keyClick(rateEdit(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_FALSE(rateEdit()->hasFocus());
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("9"));
  EXPECT_EQ(spy->count(), 0);
}

TEST_F(SettingsWidgetTest, ReturnPressesTheFocusedButton) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  showActive();
  cancelButton()->setFocus();
  QTest::keyClick(cancelButton(), Qt::Key_Return);
  EXPECT_FALSE(widget->isVisible());
  EXPECT_EQ(spy->count(), 0);

  showActive();
  saveButton()->setFocus();
  QTest::keyClick(saveButton(), Qt::Key_Return);
  EXPECT_FALSE(widget->isVisible());
  EXPECT_EQ(sentRequest()["bandwidth"]["bandwidth_rate"], Json::Value(100));
}

TEST_F(SettingsWidgetTest, LeavingTheRateEditClamps) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  showActive();
  rateEdit()->setFocus();
  rateEdit()->setText(QStringLiteral("4"));
  rangeCheck()->setFocus();
  EXPECT_EQ(rateEdit()->text(), QStringLiteral("5"));
}

// Every control, read through the accessibility interface as a screen
// reader would.
TEST_F(SettingsWidgetTest, AccessibleNames) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  widget->show();
  using agent_test::accessibleName;
  EXPECT_EQ(accessibleName(widget.get()), QStringLiteral("Settings"));
  EXPECT_EQ(accessibleName(rateEdit()), QStringLiteral("Limit to"));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(rateEdit())->text(QAccessible::Description),
            QStringLiteral("Minimum: 5; Maximum: 9,999"));
  EXPECT_EQ(accessibleName(estimateIcon()),
            QStringLiteral("Attention: Uploading 100 GB of data can take up to 2.3 hours"));
  // A combo's name is its value on this platform; its label comes as the
  // "labelled by" relation.
  auto labelOf = [](QObject* object) {
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(object);
    QStringList labels;
    for (const auto& relation : iface->relations(QAccessible::Label))
      labels << relation.first->text(QAccessible::Name);
    return labels;
  };
  EXPECT_EQ(labelOf(startCombo()), QStringList{QStringLiteral("Start at")});
  EXPECT_EQ(labelOf(endCombo()), QStringList{QStringLiteral("End at")});
  EXPECT_EQ(startCombo()->accessibleName(), QStringLiteral("Start at"));
  EXPECT_EQ(endCombo()->accessibleName(), QStringLiteral("End at"));
  EXPECT_EQ(accessibleName(child<QLabel>("SettingsLearnMore")), QStringLiteral("Learn more"));

  // Every control that takes the focus has a name.
  for (QWidget* w : widget->findChildren<QWidget*>()) {
    if (w->focusPolicy() == Qt::NoFocus || !w->isVisibleTo(widget.get()) || w->focusProxy()) continue;
    if (qobject_cast<QLineEdit*>(w) && qobject_cast<QComboBox*>(w->parentWidget())) continue;
    if (w->inherits("QScrollBar") || w->inherits("QAbstractScrollArea")) continue;
    EXPECT_FALSE(accessibleName(w).isEmpty()) << w->metaObject()->className() << " " << w->objectName().toStdString();
  }
}

TEST_F(SettingsWidgetTest, TabWalksInReadingOrder) {
  widget->loadClientConfig(parse(kLimited0700To2300));
  showActive();
  child<QWidget>("SettingsLearnMore")->setFocus();
  QStringList walked;
  for (int i = 0; i < 10; ++i) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    // The editable combo's line edit stands for the combo.
    while (focus && focus->objectName().isEmpty()) focus = focus->parentWidget();
    walked << (focus ? focus->objectName() : QStringLiteral("?"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  // The radios are one stop: the checked one.
  EXPECT_EQ(walked, QStringList({"SettingsLearnMore", "SettingsLimitRadio", "SettingsRateEdit",
                                 "SettingsRangeCheckBox", "SettingsStartCombo", "SettingsEndCombo",
                                 "SettingsCancelButton", "SettingsSaveButton", "SettingsLearnMore",
                                 "SettingsLimitRadio"}));

  // Up moves to "Maximum" and checks it; the disabled controls drop out.
  limitRadio()->setFocus();
  QTest::keyClick(limitRadio(), Qt::Key_Up);
  EXPECT_TRUE(noLimitRadio()->hasFocus());
  EXPECT_TRUE(noLimitRadio()->isChecked());
  QTest::keyClick(noLimitRadio(), Qt::Key_Tab);
  EXPECT_TRUE(cancelButton()->hasFocus());
}

TEST(SettingsWidgetScale, LengthsFollowTheDisplayScale) {
  qputenv("NIMBRA_UI_SCALE", "2");
  SettingsWidget widget;
  qunsetenv("NIMBRA_UI_SCALE");
  EXPECT_EQ(widget.size(), QSize(1400, 884));
  EXPECT_EQ(widget.findChild<QLineEdit*>(QStringLiteral("SettingsRateEdit"))->width(), 160);
  EXPECT_EQ(widget.findChild<QWidget*>(QStringLiteral("SettingsScrollArea"))->height(), 764);
  EXPECT_EQ(widget.findChild<QWidget*>(QStringLiteral("SettingsStartCombo"))->size(), QSize(400, 64));
  EXPECT_EQ(widget.findChild<QWidget*>(QStringLiteral("SettingsEndLabel"))->width(), 280);
}

}  // namespace
