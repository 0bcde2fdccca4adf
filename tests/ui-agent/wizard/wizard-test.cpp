// The wizard's operations as the client manager drives them, by keyboard
// where a user would: the sign-in sheet made once and ended from outside,
// the connecting frame ended by an error and deaf to keys, and closing that
// ends the application. (The pages by keyboard to "Done", the account
// kinds, the error sheets and the back-up-now question are the desktop
// stories' FirstRun and WizardVariants.)

#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include "tests/ui-agent/wizard/wizard-fixture.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/wizard/nimbra-loading-frame.h"
#include "ui-agent/wizard/welcome-page.h"
#include "ui-agent/wizard/wizard.h"
#include "widgets/dpi-info.h"

namespace {

using string_display::text;
using wizard_test::later;
using wizard_test::topSheet;

QWidget* focused() {
  return QApplication::focusWidget();
}

class WizardTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { wizard_test::loadLook(); }
  void SetUp() override {
    wizard_.show();
    wizard_.activateWindow();
    QApplication::setActiveWindow(&wizard_);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wizard_));
  }
  Wizard wizard_;
};

TEST_F(WizardTest, BuiltAsADialogOnWhiteWithTheWelcomePageCurrent) {
  EXPECT_EQ(wizard_.windowFlags(), Wizard::windowFlagsOfWizard());
  EXPECT_EQ(wizard_.windowTitle(), text(Str::app_name));
  EXPECT_EQ(wizard_.size(), QSize(DPIinfo::scaled(900), DPIinfo::scaled(540)));
  EXPECT_TRUE(wizard_.autoFillBackground());
  EXPECT_EQ(wizard_.palette().color(QPalette::Inactive, QPalette::Window), QColor(255, 255, 255, 255));
  EXPECT_EQ(wizard_.pageStack()->currentWidget(), wizard_.welcomePage());
  EXPECT_EQ(wizard_.signInSheet(), nullptr);
  EXPECT_EQ(wizard_.connectingFrame(), nullptr);
  wizard_.bringToFront();
  EXPECT_EQ(wizard_.windowFlags(), Wizard::windowFlagsOfWizard());
  EXPECT_FALSE(wizard_.windowState() & Qt::WindowMinimized);
}

TEST_F(WizardTest, FromLetsStartToDoneByKeyboard) {
  auto* start = wizard_.findChild<QPushButton*>("WelcomeStart");
  ASSERT_EQ(focused(), start) << "Let's Start has the focus";
  // The client manager: the sign-in sheet on each ask.
  int asks = 0;
  QMetaObject::Connection auth =
      QObject::connect(&GlobalConnecter::instance(), &GlobalConnecter::sigGetAuthURL, &wizard_, [&] {
        ++asks;
        wizard_.showSignInSheet();
      });
  // Return on the sheet presses its OK.
  bool sheetHadFocus = false;
  later([&] {
    sheetHadFocus = topSheet() && topSheet()->isAncestorOf(focused());
    QTest::keyClick(focused(), Qt::Key_Return);
  });
  QTest::keyClick(focused(), Qt::Key_Return);
  EXPECT_EQ(asks, 1);
  EXPECT_TRUE(sheetHadFocus);
  VellMessageSheet* first = wizard_.signInSheet();
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->text(), text(Str::title_wizard_sign_in));
  EXPECT_EQ(first->size(), QSize(480, 184));
  // Space starts as well, on the same sheet; Escape answers it.
  later([&] { QTest::keyClick(focused(), Qt::Key_Escape); });
  QTest::keyClick(focused(), Qt::Key_Space);
  EXPECT_EQ(asks, 2);
  EXPECT_EQ(wizard_.signInSheet(), first);
  EXPECT_EQ(wizard_.findChildren<VellMessageSheet*>().size(), 1);
  EXPECT_TRUE(VellMessageSheet::runningSheets().isEmpty());
  QObject::disconnect(auth);
}

// As the client manager does it: the message that closes the sign-in sheet
// runs under the sheet's loop and shows the connecting frame there; keys
// reach neither the closed sheet nor the page under the frame.
TEST_F(WizardTest, TheBrowsersReturnHidesTheSignInSheetAndKeysStayInTheConnectingFrame) {
  QSignalSpy asks(&GlobalConnecter::instance(), &GlobalConnecter::sigGetAuthURL);
  bool sheetShown = true, tabReachedSheet = true;
  later([&] {
    VellMessageSheet* signIn = topSheet();
    ASSERT_NE(signIn, nullptr);
    wizard_.closeSignInSheet();
    later([&] {
      sheetShown = signIn->isVisible();
      for (Qt::Key k : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Space})
        QTest::keyClick(focused() ? focused() : &wizard_, k);
      tabReachedSheet = signIn->isAncestorOf(focused());
      wizard_.hideConnecting();
    });
    wizard_.showConnecting();
  });
  wizard_.showSignInSheet();
  EXPECT_FALSE(sheetShown) << "the sign-in sheet stays under the connecting frame";
  EXPECT_FALSE(tabReachedSheet) << "Tab reaches the closed sign-in sheet";
  EXPECT_EQ(asks.count(), 0) << "a key reached Let's Start";
  EXPECT_TRUE(VellMessageSheet::runningSheets().isEmpty());
  wizard_.closeSignInSheet();  // nothing runs: harmless
}

TEST_F(WizardTest, ShowErrorEndsTheConnectingFrameFirst) {
  bool frameDownUnderError = false;
  QString shown;
  later([&] {
    ASSERT_TRUE(wizard_.connectingFrame()->isLoading());
    later([&] {
      frameDownUnderError = !wizard_.connectingFrame()->isVisible();
      shown = topSheet() ? topSheet()->text() : QString();
      topSheet()->button(QMessageBox::Ok)->click();
    });
    wizard_.showError(10);
    wizard_.hideConnecting();  // a frame left up fails below instead of hanging
  });
  EXPECT_EQ(wizard_.showConnecting(), 0);
  EXPECT_TRUE(frameDownUnderError);
  EXPECT_EQ(shown, text(Str::err_device_conflict));
  EXPECT_TRUE(wizard_.connectingFrame()->text().startsWith(text(Str::desc_wizard_connecting).trimmed()));
  EXPECT_TRUE(wizard_.connectingFrame()->text().endsWith(QChar(0x00A0)));
  EXPECT_FALSE(wizard_.connectingFrame()->text().endsWith(QString(2, QChar(0x00A0))));
}

TEST_F(WizardTest, ClosingEndsTheApplicationEvenFromInsideASheet) {
  // Only the wizard's own quit may end the loop here.
  QApplication::setQuitOnLastWindowClosed(false);
  later([this] {
    later([this] { wizard_.close(); });
    wizard_.showSignInSheet();
  });
  QTimer guard;  // a missing quit fails the test instead of hanging it
  guard.setSingleShot(true);
  QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(99); });
  guard.start(10000);
  EXPECT_EQ(QCoreApplication::exec(), 0);
  guard.stop();
  QApplication::setQuitOnLastWindowClosed(true);
  EXPECT_FALSE(wizard_.isVisible());
}

}  // namespace
