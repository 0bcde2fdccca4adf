// The whole wizard without a mouse: every step driven by QTest::keyClick on
// the widget that has the focus, with a stand-in for the client manager that
// answers the bus the way the real one does.

#include <QAbstractItemView>
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include "core/global-connecter.h"
#include "core/status-store.h"
#include "wizard-fixture.h"
#include "wizard/summary-page.h"
#include "wizard/wizard.h"

namespace {

using wizard_test::later;
using wizard_test::topSheet;

QWidget* focused() {
  return QApplication::focusWidget();
}

// Tabs forward until `target` has the focus; false after a full round.
bool tabTo(QWidget* target) {
  for (int i = 0; i < 12 && focused() != target; ++i) QTest::keyClick(focused(), Qt::Key_Tab);
  return focused() == target;
}

class WizardKeyboard : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { wizard_test::loadLook(); }
  void SetUp() override {
    wizard_.show();
    wizard_.activateWindow();
    QApplication::setActiveWindow(&wizard_);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wizard_));
    wizard_.showWelcomePage();
  }
  Wizard wizard_;
};

TEST_F(WizardKeyboard, FromLetsStartToDone) {
  auto* start = wizard_.findChild<QPushButton*>("WelcomeStart");
  ASSERT_EQ(focused(), start) << "Let's Start has the focus";

  // The client manager: sign-in sheet on the ask; the browser's return ends
  // it and the site list arrives.
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
  EXPECT_TRUE(VellMessageSheet::runningSheets().isEmpty());

  // Space starts as well; Escape answers the notice.
  later([&] { QTest::keyClick(focused(), Qt::Key_Escape); });
  QTest::keyClick(focused(), Qt::Key_Space);
  EXPECT_EQ(asks, 2);
  EXPECT_TRUE(VellMessageSheet::runningSheets().isEmpty());
  QObject::disconnect(auth);

  StatusStore::instance().setStatus(static_cast<ServiceStatus>(0x1002), wizard_test::threeSites());
  wizard_.showSummaryPage();
  auto* chooser = wizard_.findChild<QComboBox*>("SummaryComboBox");
  auto* done = wizard_.findChild<QPushButton*>("SummaryDone");
  ASSERT_TRUE(tabTo(chooser));
  QTest::keyClick(chooser, Qt::Key_Down);
  QTest::keyClick(chooser, Qt::Key_Down);
  EXPECT_EQ(chooser->currentIndex(), 2);
  QTest::keyClick(chooser, Qt::Key_Up);
  EXPECT_EQ(wizard_.summaryPage()->siteCode(), "EU");

  QSignalSpy create(&GlobalConnecter::instance(), &GlobalConnecter::sigCreateDevice);
  ASSERT_TRUE(tabTo(done));
  QTest::keyClick(done, Qt::Key_Space);
  ASSERT_EQ(create.count(), 1);
  EXPECT_EQ(create.at(0).at(0).toString(), "EU");
  // Return on the chooser is "Done" too.
  ASSERT_TRUE(tabTo(chooser));
  QTest::keyClick(chooser, Qt::Key_Return);
  EXPECT_EQ(create.count(), 2);
}

TEST_F(WizardKeyboard, KeysDuringTheConnectingFrameReachNothingUnderIt) {
  QSignalSpy asks(&GlobalConnecter::instance(), &GlobalConnecter::sigGetAuthURL);
  later([&] {
    for (Qt::Key k : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Space})
      QTest::keyClick(focused(), k);
    wizard_.hideConnecting();
  });
  wizard_.showConnecting();
  EXPECT_EQ(asks.count(), 0);
}

TEST_F(WizardKeyboard, TheBrowsersReturnHidesTheSignInSheetAndKeysStayInTheConnectingFrame) {
  // As the client manager does it: the message that closes the sign-in
  // sheet runs under the sheet's loop and shows the connecting frame there.
  bool sheetShown = true, tabReachedSheet = true;
  later([&] {
    VellMessageSheet* signIn = topSheet();
    ASSERT_NE(signIn, nullptr);
    wizard_.closeSignInSheet();
    later([&] {
      sheetShown = signIn->isVisible();
      for (int i = 0; i < 3; ++i) QTest::keyClick(focused() ? focused() : &wizard_, Qt::Key_Tab);
      tabReachedSheet = signIn->isAncestorOf(focused());
      wizard_.hideConnecting();
    });
    wizard_.showConnecting();
  });
  wizard_.showSignInSheet();
  EXPECT_FALSE(sheetShown) << "the sign-in sheet stays under the connecting frame";
  EXPECT_FALSE(tabReachedSheet) << "Tab reaches the closed sign-in sheet";
}

TEST_F(WizardKeyboard, EveryFocusableControlHasAnAccessibleName) {
  later([&] { wizard_.closeSignInSheet(); });
  wizard_.showSignInSheet();
  StatusStore::instance().setStatus(static_cast<ServiceStatus>(0x1002), wizard_test::threeSites());
  wizard_.showSummaryPage();
  for (QWidget* w : wizard_.findChildren<QWidget*>()) {
    if ((w->focusPolicy() & Qt::TabFocus) && true) {
      EXPECT_FALSE(wizard_test::accessibleName(w).isEmpty())
          << w->metaObject()->className() << " " << w->objectName().toStdString();
    }
  }
}

}  // namespace
