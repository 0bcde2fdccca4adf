// Message sheets (nested loop, buttons, quit) and masks (geometry, life).

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include <functional>

#include "tests/widgets/widgets-fixture.h"
#include "widgets/component-strings.h"
#include "widgets/vell-mask.h"
#include "widgets/vell-message-sheet.h"

namespace {

class WidgetsSheets : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { widgets_test::loadProductLook(); }
  void SetUp() override {
    window_.resize(600, 400);
    window_.show();
  }
  // Runs `action` from inside the sheet's nested loop.
  static void whileUp(std::function<void()> action) { QTimer::singleShot(0, std::move(action)); }
  QWidget window_;
};

TEST_F(WidgetsSheets, QuitEndsTheLoopAndASecondExecWhileRunningIsRefused) {
  VellMessageSheet sheet(1, &window_, true);
  QWidget later(&window_);  // made after the sheet: above it until the sheet is shown
  later.setGeometry(window_.rect());
  later.show();
  QSignalSpy finished(&sheet, &VellMessageSheet::finished);
  QWidget* top = nullptr;
  whileUp([&] {
    top = window_.childAt(sheet.geometry().center());
    sheet.quit();
  });
  EXPECT_EQ(sheet.exec(), QMessageBox::NoButton);
  EXPECT_TRUE(top == &sheet || sheet.isAncestorOf(top));
  EXPECT_EQ(finished.count(), 1);
  int inner = -2;
  whileUp([&] {
    inner = sheet.exec();
    sheet.quit(QMessageBox::Ok);
  });
  EXPECT_EQ(sheet.exec(), QMessageBox::Ok);
  EXPECT_EQ(inner, QMessageBox::NoButton);
  // quit() without a running loop only hides.
  sheet.show();
  sheet.quit();
  EXPECT_FALSE(sheet.isVisible());
}

TEST_F(WidgetsSheets, QuitHidesAtOnceWhenAnotherLoopKeepsItsOwnFromReturning) {
  // The sign-in sheet is quit from a slot that runs under its loop and opens
  // the next wait at once: the loop returns only after that one, but the
  // sheet and its mask must be gone from the screen now.
  VellMessageSheet first(1, &window_, true), next(2, &window_, true);
  VellMask* mask = VellMask::createMask(&first, &window_, QColor(0, 0, 0, 20));
  bool firstShown = true, maskShown = true;
  whileUp([&] {
    first.quit();
    whileUp([&] {
      firstShown = first.isVisible();
      maskShown = mask->isVisible();
      next.quit();
    });
    next.exec();
  });
  EXPECT_EQ(first.exec(), QMessageBox::NoButton);
  EXPECT_FALSE(firstShown) << "the quit sheet stays on screen under the next one";
  EXPECT_FALSE(maskShown);
}

TEST_F(WidgetsSheets, KeysStayWithTheSheetWhileItIsUp) {
  // A control of the window under the sheet that takes the focus (a sheet
  // hidden above it, the window activated again) gives it back.
  auto* under = new QPushButton(QStringLiteral("Let's Start"), &window_);
  under->show();
  window_.activateWindow();
  QApplication::setActiveWindow(&window_);
  VellMessageSheet sheet(2, &window_, true);
  QWidget* focusAfter = nullptr;
  int pressed = 0;
  QObject::connect(under, &QPushButton::clicked, [&] { ++pressed; });
  whileUp([&] {
    under->setFocus();
    QApplication::processEvents();
    focusAfter = QApplication::focusWidget();
    QKeyEvent ret(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(focusAfter ? focusAfter : &sheet, &ret);
    // Should the key have gone astray, the sheet still ends.
    QTimer::singleShot(2000, &sheet, [&] {
      if (sheet.isRunning()) sheet.quit();
    });
  });
  EXPECT_EQ(sheet.exec(), QMessageBox::Ok) << "Return does not answer the sheet";
  EXPECT_EQ(focusAfter, sheet.button(QMessageBox::Ok));
  EXPECT_EQ(pressed, 0) << "a key reached the control under the sheet";
  // Afterwards the window's controls take the focus again.
  under->setFocus();
  EXPECT_EQ(QApplication::focusWidget(), under);
}

TEST_F(WidgetsSheets, DestroyedWhileUpReturnsNoButton) {
  auto* sheet = new VellMessageSheet(2, &window_, true);
  QPointer<VellMessageSheet> guard(sheet);
  whileUp([sheet] { delete sheet; });
  EXPECT_EQ(sheet->exec(), QMessageBox::NoButton);
  EXPECT_TRUE(guard.isNull());
  EXPECT_TRUE(VellMessageSheet::runningSheets().isEmpty());
}

TEST_F(WidgetsSheets, DefaultButtonsByTypeUseInstalledWordsAndCanBeReplaced) {
  ComponentStrings::getInstance()->installStrings({{"ok", "Okay"}});
  VellMessageSheet notice(1, &window_, true), error(2, &window_, true), odd(7, &window_, true);
  EXPECT_EQ(notice.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
  EXPECT_EQ(error.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
  EXPECT_EQ(notice.button(QMessageBox::Ok)->text(), "Okay");
  EXPECT_EQ(odd.messageType(), VellMessageSheet::Notice);
  ComponentStrings::getInstance()->reset();
  notice.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
  whileUp([&] { notice.button(QMessageBox::Cancel)->click(); });
  EXPECT_EQ(notice.exec(), QMessageBox::Cancel);
  widgets_test::LogCapture log;
  odd.setStandardButtons(QMessageBox::Help);
  EXPECT_EQ(log.count("message sheet given no button it knows (0x1000000)"), 1) << log.text();
  odd.setInformativeText("More");
  EXPECT_EQ(odd.informativeText(), "More");
}

using WidgetsMasks = WidgetsSheets;

TEST_F(WidgetsMasks, CoversTheWidgetAndBothFollowItsSize) {
  VellMessageSheet sheet(1, &window_, true);
  sheet.setFixedSize(480, 184);
  VellMask* mask = VellMask::createMask(&sheet, &window_, QColor(0, 0, 0, 20));
  ASSERT_NE(mask, nullptr);
  EXPECT_FALSE(mask->isVisible());  // not before the sheet is up
  whileUp([&] {
    EXPECT_TRUE(mask->isVisible());
    EXPECT_EQ(mask->geometry(), window_.rect());
    window_.resize(777, 333);
    QApplication::processEvents();
    EXPECT_EQ(mask->geometry(), QRect(0, 0, 777, 333));
    EXPECT_NEAR(sheet.geometry().center().x(), window_.rect().center().x(), 1);  // the sheet stays centred
    EXPECT_NEAR(sheet.geometry().center().y(), window_.rect().center().y(), 1);
    // It takes the clicks meant for what lies under it, and the sheet stays above it.
    EXPECT_NE(qobject_cast<VellMask*>(window_.childAt(1, 1)), nullptr);
    const QObjectList& kids = window_.children();
    EXPECT_GT(kids.indexOf(&sheet), kids.indexOf(mask));
    sheet.quit();
  });
  sheet.exec();
  EXPECT_FALSE(mask->isVisible());
}

TEST_F(WidgetsMasks, OneMaskPerSheetNoneWithoutBothAndItGoesWithTheSheet) {
  auto* sheet = new VellMessageSheet(1, &window_, true);
  widgets_test::LogCapture log;
  EXPECT_EQ(VellMask::createMask(nullptr, &window_, Qt::black), nullptr);
  EXPECT_EQ(VellMask::createMask(sheet, nullptr, Qt::black), nullptr);
  EXPECT_NE(log.text().find("cannot create a mask"), std::string::npos);
  QPointer<VellMask> first = VellMask::createMask(sheet, &window_, QColor(0, 0, 0, 20));
  VellMask* again = VellMask::createMask(sheet, &window_, QColor(0, 0, 0, 60));
  EXPECT_EQ(first.data(), again);
  EXPECT_EQ(again->color(), QColor(0, 0, 0, 60));
  EXPECT_EQ(window_.findChildren<VellMask*>().size(), 1);
  delete sheet;
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(first.isNull());
}

}  // namespace
