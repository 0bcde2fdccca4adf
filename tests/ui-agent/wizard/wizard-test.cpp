// The wizard's operations as the client manager drives them: the sign-in
// sheet made once and ended from outside, the connecting frame ended by an
// error, the error texts, the summary from the store, "Done" on the bus and
// closing that ends the application.

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>

#include "core/global-connecter.h"
#include "core/service-error-text.h"
#include "core/status-store.h"
#include "dpi-info.h"
#include "string-display.h"
#include "wizard-fixture.h"
#include "wizard/nimbra-loading-frame.h"
#include "wizard/summary-page.h"
#include "wizard/welcome-page.h"
#include "wizard/wizard.h"

namespace {

using string_display::text;
using wizard_test::later;
using wizard_test::topSheet;

class WizardTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { wizard_test::loadLook(); }
  void SetUp() override { wizard_.show(); }
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
  EXPECT_TRUE(wizard_.isVisible());
  EXPECT_FALSE(wizard_.windowState() & Qt::WindowMinimized);
}

TEST_F(WizardTest, LetsStartTwiceAsksTwiceAndReusesOneSignInSheet) {
  QSignalSpy asks(&GlobalConnecter::instance(), &GlobalConnecter::sigGetAuthURL);
  // The client manager answers each ask with the sign-in sheet.
  QMetaObject::Connection c =
      QObject::connect(&GlobalConnecter::instance(), &GlobalConnecter::sigGetAuthURL, &wizard_, [this] {
        later([] { topSheet()->quit(); });
        wizard_.showSignInSheet();
      });
  auto* start = wizard_.findChild<QPushButton*>("WelcomeStart");
  start->click();
  VellMessageSheet* first = wizard_.signInSheet();
  start->click();
  QObject::disconnect(c);
  EXPECT_EQ(asks.count(), 2);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(wizard_.signInSheet(), first);
  EXPECT_EQ(wizard_.findChildren<VellMessageSheet*>().size(), 1);
  EXPECT_EQ(first->text(), text(Str::title_wizard_sign_in));
  EXPECT_EQ(first->size(), QSize(480, 184));
}

TEST_F(WizardTest, CloseSignInSheetEndsTheRunningWait) {
  bool wasUp = false;
  later([&] {
    wasUp = wizard_.signInSheet() && wizard_.signInSheet()->isRunning();
    wizard_.closeSignInSheet();
  });
  wizard_.showSignInSheet();
  EXPECT_TRUE(wasUp);
  EXPECT_FALSE(wizard_.signInSheet()->isVisible());
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

struct ErrorRow {
  int code;
  const char* response;
  Str row;
};
void PrintTo(const ErrorRow& r, std::ostream* os) {
  *os << "code " << r.code;
}
class WizardErrorText : public WizardTest, public ::testing::WithParamInterface<ErrorRow> {};

TEST_P(WizardErrorText, SheetShowsTheTableText) {
  const Json::Value response = agent_test::parse(GetParam().response);
  QString shown;
  int type = 0;
  later([&] {
    shown = topSheet()->text();
    type = topSheet()->messageType();
    topSheet()->quit();
  });
  wizard_.showError(GetParam().code, response);
  EXPECT_EQ(type, VellMessageSheet::Error);
  EXPECT_EQ(shown, service_error::message(GetParam().code, response));
  EXPECT_TRUE(shown.startsWith(text(GetParam().row).section('<', 0, 0)));
  EXPECT_TRUE(wizard_.findChildren<VellMessageSheet*>().isEmpty());  // the error sheet is gone
}

INSTANTIATE_TEST_SUITE_P(
    Codes, WizardErrorText,
    ::testing::Values(ErrorRow{12, "{}", Str::err_operation_timedout},
                      ErrorRow{19, "{}", Str::err_operation_timedout},
                      ErrorRow{3, "{}", Str::err_operation_timedout},
                      ErrorRow{26, "{}", Str::err_operation_timedout},
                      ErrorRow{10, "{}", Str::err_device_conflict},
                      ErrorRow{17, R"({"error":{"code":17,"base_url":"https://console.example"}})",
                               Str::master_key_not_set}),
    [](const ::testing::TestParamInfo<ErrorRow>& p) { return "code" + std::to_string(p.param.code); });

TEST_F(WizardTest, Code17LinksTheConsole) {
  QString shown;
  later([&] {
    shown = topSheet()->text();
    topSheet()->quit();
  });
  wizard_.showError(17, agent_test::parse(R"({"error":{"code":17,"base_url":"https://console.example"}})"));
  EXPECT_TRUE(shown.contains("href=\"https://console.example\"")) << shown.toStdString();
}

TEST_F(WizardTest, SummaryFromTheStoreAndDoneCreatesTheDeviceOnTheBus) {
  StatusStore::instance().setStatus(static_cast<ServiceStatus>(0x1002), wizard_test::threeSites());
  QSignalSpy create(&GlobalConnecter::instance(), &GlobalConnecter::sigCreateDevice);
  wizard_.showSummaryPage();
  EXPECT_EQ(wizard_.pageStack()->currentWidget(), wizard_.summaryPage());
  wizard_.findChild<QComboBox*>("SummaryComboBox")->setCurrentIndex(2);
  wizard_.findChild<QPushButton*>("SummaryDone")->click();
  ASSERT_EQ(create.count(), 1);
  EXPECT_EQ(create.at(0).at(0).toString(), "JP");
  EXPECT_EQ(create.at(0).at(1).toString(), "sub-jp");
  EXPECT_EQ(create.at(0).at(2).toString(), "vell");

  wizard_.showWelcomePage();
  EXPECT_EQ(wizard_.pageStack()->currentWidget(), wizard_.welcomePage());
}

TEST_F(WizardTest, NimbraAccountCreatesTheDeviceAtOnce) {
  Json::Value answer = wizard_test::threeSites();
  answer["data"][0]["backup_policy"]["account_type"] = "nimbra";
  StatusStore::instance().setStatus(static_cast<ServiceStatus>(0x1002), answer);
  QSignalSpy create(&GlobalConnecter::instance(), &GlobalConnecter::sigCreateDevice);
  wizard_.showSummaryPage();
  ASSERT_EQ(create.count(), 1);
  EXPECT_EQ(create.at(0).at(0).toString(), "US");
  EXPECT_EQ(create.at(0).at(1).toString(), "sub-us");
  EXPECT_EQ(create.at(0).at(2).toString(), "nimbra");
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
  guard.start(5000);
  EXPECT_EQ(QCoreApplication::exec(), 0);
  guard.stop();
  QApplication::setQuitOnLastWindowClosed(true);
  EXPECT_FALSE(wizard_.isVisible());
}

TEST_F(WizardTest, TabStaysInsideTheSheetThatIsUp) {
  wizard_.activateWindow();
  QApplication::setActiveWindow(&wizard_);
  QWidget* focusUnder = nullptr;
  later([&] {
    QWidget* w = QApplication::focusWidget();
    for (int i = 0; i < 3; ++i) {
      QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
      QApplication::sendEvent(QApplication::focusWidget() ? QApplication::focusWidget() : w, &tab);
      if (QApplication::focusWidget() && !wizard_.signInSheet()->isAncestorOf(QApplication::focusWidget()))
        focusUnder = QApplication::focusWidget();
    }
    wizard_.closeSignInSheet();
  });
  wizard_.showSignInSheet();
  EXPECT_EQ(focusUnder, nullptr) << focusUnder->objectName().toStdString();
}

}  // namespace
