// The update status dialog (flags, modality, message, button, finished on
// every way out) and the about window (version line, links, Escape, close,
// the dragging rule with its edges).

#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <functional>
#include <memory>

#include "agent-test.h"
#include "dialogs/about-window.h"
#include "dialogs/settings-widget.h"
#include "dialogs/update-status-dialog.h"
#include "string-display.h"
#include "support/qt-print.h"
#include "tray/log-widget.h"
#include "vell-button.h"
#include "vell-label.h"
#include "window-placement.h"
#include "wizard/wizard.h"

namespace {

using string_display::text;

// Lengths are checked at scale 1, whatever the offscreen screen reports.
void loadLook() {
  qputenv("NIMBRA_UI_SCALE", "1");
  agent_test::loadLook();
}

// --- where the windows open -------------------------------------------------

TEST(WindowPlacement, CentredInTheWorkAreaAndKeptInsideIt) {
  using window_placement::centredIn;
  EXPECT_EQ(centredIn(QRect(0, 0, 1280, 800), QSize(700, 442)), QPoint(290, 179));
  EXPECT_EQ(centredIn(QRect(1920, 30, 1280, 770), QSize(400, 230)), QPoint(2360, 300));
  EXPECT_EQ(centredIn(QRect(0, 0, 800, 600), QSize(900, 540)), QPoint(0, 30));
}

struct WindowRow {
  const char* name;
  std::function<QWidget*()> make;
};
void PrintTo(const WindowRow& r, std::ostream* os) {
  *os << r.name;
}
class WindowsOpen : public ::testing::TestWithParam<WindowRow> {
 protected:
  static void SetUpTestSuite() { loadLook(); }
};

// Wherever a window manager would put them, the windows open centred on the
// screen that holds the pointer.
TEST_P(WindowsOpen, CentredOnThePointersScreen) {
  std::unique_ptr<QWidget> window(GetParam().make());
  window->move(7, 7);
  window->show();
  const QRect area = window_placement::workAreaAt(QCursor::pos());
  EXPECT_EQ(window->pos(), window_placement::centredIn(area, window->frameGeometry().size()));
  window->hide();
}

INSTANTIATE_TEST_SUITE_P(
    Windows, WindowsOpen,
    ::testing::Values(WindowRow{"wizard", [] { return static_cast<QWidget*>(new Wizard); }},
                      WindowRow{"activity", [] { return static_cast<QWidget*>(new LogWidget); }},
                      WindowRow{"settings", [] { return static_cast<QWidget*>(new SettingsWidget); }},
                      WindowRow{"about", [] { return static_cast<QWidget*>(new AboutWindowContainer); }},
                      WindowRow{"update", [] { return static_cast<QWidget*>(new UpdateStatusDialog); }}),
    [](const ::testing::TestParamInfo<WindowRow>& i) { return std::string(i.param.name); });

// --- update status dialog --------------------------------------------------

class UpdateDialog : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { loadLook(); }
  VellButton* ok() { return dialog_.findChild<VellButton*>("UpdateStatusOk"); }
  UpdateStatusDialog dialog_;
};

TEST_F(UpdateDialog, ExactFlagsApplicationModalFixedSize) {
  EXPECT_EQ(dialog_.windowFlags(),
            Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
  EXPECT_EQ(dialog_.windowModality(), Qt::ApplicationModal);
  EXPECT_EQ(dialog_.minimumSize(), dialog_.maximumSize());
  EXPECT_EQ(dialog_.windowTitle(), text(Str::app_name));
  EXPECT_EQ(dialog_.palette().brush(QPalette::Inactive, dialog_.backgroundRole()).color(), QColor(Qt::white));
  ASSERT_NE(ok(), nullptr);
  EXPECT_EQ(ok()->buttonKind(), VellButton::Secondary);
}

TEST_F(UpdateDialog, MessageAndButton) {
  dialog_.setMessage(text(Str::desc_updating_service));
  dialog_.setButtonVisible(false);
  dialog_.show();
  EXPECT_EQ(dialog_.findChild<QLabel*>("UpdateStatusMessage")->text(), text(Str::desc_updating_service));
  EXPECT_FALSE(ok()->isVisible());
  dialog_.setMessage(text(Str::desc_update_service_fail));
  dialog_.setButtonVisible(true);
  EXPECT_TRUE(ok()->isVisible());
  EXPECT_EQ(dialog_.message(), text(Str::desc_update_service_fail));
}

// Laid out on screen, the 300 px message keeps a 10 px margin to the right
// edge (the row is 10 + 72 + 8 + 300 + 10 = 400 wide), its wrapped lines fit
// its height and the button stays inside the dialog.
TEST_F(UpdateDialog, MessageAndButtonKeepTheirMarginsOnceShown) {
  for (const bool failed : {false, true}) {
    dialog_.setMessage(text(failed ? Str::desc_update_service_fail : Str::desc_updating_service));
    dialog_.setButtonVisible(failed);
    dialog_.show();
    QApplication::processEvents();
    const auto* message = dialog_.findChild<QLabel*>("UpdateStatusMessage");
    const auto* icon = dialog_.findChild<QLabel*>("UpdateStatusIcon");
    ASSERT_NE(message, nullptr);
    ASSERT_NE(icon, nullptr);
    SCOPED_TRACE(failed ? "failed" : "updating");
    EXPECT_EQ(message->width(), 300);
    EXPECT_LE(message->geometry().right() + 1, dialog_.width() - 10);
    EXPECT_GE(message->x(), icon->geometry().right() + 1 + 8);
    EXPECT_GE(icon->x(), 10);
    EXPECT_GE(message->height(), message->heightForWidth(message->width()));
    if (failed) {
      EXPECT_LE(ok()->geometry().right() + 1, dialog_.width() - 10);
      EXPECT_LE(ok()->geometry().bottom() + 1, dialog_.height() - 10);
      EXPECT_GE(ok()->y(), message->geometry().bottom());
    }
    dialog_.hide();
  }
}

enum class Way { OkButton, OkByReturn, Escape, CloseButton };
void PrintTo(Way w, std::ostream* os) {
  *os << (w == Way::OkButton     ? "ok"
          : w == Way::OkByReturn ? "return"
          : w == Way::Escape     ? "escape"
                                 : "close");
}
class UpdateDialogFinished : public UpdateDialog, public ::testing::WithParamInterface<Way> {};

TEST_P(UpdateDialogFinished, FiresOnEveryWayOut) {
  QSignalSpy finished(&dialog_, &QDialog::finished);
  dialog_.setButtonVisible(true);
  dialog_.show();
  QApplication::setActiveWindow(&dialog_);
  switch (GetParam()) {
    case Way::OkButton:
      ok()->click();
      break;
    case Way::OkByReturn:
      ok()->setFocus();
      QTest::keyClick(ok(), Qt::Key_Return);
      break;
    case Way::Escape:
      QTest::keyClick(&dialog_, Qt::Key_Escape);
      break;
    case Way::CloseButton:
      dialog_.close();
      break;
  }
  EXPECT_EQ(finished.count(), 1);
  EXPECT_FALSE(dialog_.isVisible());
}
INSTANTIATE_TEST_SUITE_P(Ways, UpdateDialogFinished,
                         ::testing::Values(Way::OkButton, Way::OkByReturn, Way::Escape, Way::CloseButton),
                         [](const ::testing::TestParamInfo<Way>& p) {
                           std::ostringstream os;
                           PrintTo(p.param, &os);
                           return os.str();
                         });

// --- about window -------------------------------------------------------------

struct DragRow {
  const char* name;
  int pressX, pressY;
  QPoint global;
  double scale;
  bool moves;
  QPoint to;
};
void PrintTo(const DragRow& r, std::ostream* os) {
  *os << r.name;
}
class AboutDrag : public ::testing::TestWithParam<DragRow> {};
TEST_P(AboutDrag, StartsOnlyAwayFromTheLeftAndTopEdges) {
  const DragRow& r = GetParam();
  const auto to = about_drag_target(r.pressX, r.pressY, r.global, r.scale);
  EXPECT_EQ(to.has_value(), r.moves);
  if (to) {
    EXPECT_EQ(*to, r.to);
  }
}
INSTANTIATE_TEST_SUITE_P(
    Rows, AboutDrag,
    ::testing::Values(DragRow{"inside", 30, 40, QPoint(530, 440), 1.0, true, QPoint(500, 400)},
                      DragRow{"scaled", 30, 40, QPoint(530, 440), 2.0, true, QPoint(1000, 800)},
                      DragRow{"fractional_scale_truncates", 1, 1, QPoint(102, 102), 1.25, true,
                              QPoint(126, 126)},
                      DragRow{"left_edge", 0, 40, QPoint(530, 440), 1.0, false, QPoint()},
                      DragRow{"top_edge", 30, 0, QPoint(530, 440), 1.0, false, QPoint()},
                      DragRow{"corner", 0, 0, QPoint(530, 440), 1.0, false, QPoint()}),
    [](const ::testing::TestParamInfo<DragRow>& p) { return std::string(p.param.name); });

// Receives what the about window hands to the desktop.
class UrlCatcher : public QObject {
  Q_OBJECT
 public:
  QList<QUrl> urls;
 public slots:
  void open(const QUrl& url) { urls << url; }
};

class AboutWindowTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { loadLook(); }
  void SetUp() override { QDesktopServices::setUrlHandler("https", &catcher_, "open"); }
  void TearDown() override { QDesktopServices::unsetUrlHandler("https"); }

  void mouse(QEvent::Type type, QPoint local, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent e(type, local, container_.mapToGlobal(local), button,
                  type == QEvent::MouseMove ? Qt::MouseButtons(button) : Qt::MouseButtons(button),
                  Qt::NoModifier);
    QApplication::sendEvent(&container_, &e);
  }

  UrlCatcher catcher_;
  AboutWindowContainer container_;
};

TEST_F(AboutWindowTest, VersionLineAndLooks) {
  AboutWindow* frame = container_.frame();
  EXPECT_EQ(frame->findChild<QLabel*>("AboutVersion")->text(), "Version: 3.6.0-0701");
  EXPECT_EQ(about_version_text(), "Version: 3.6.0-0701");
  EXPECT_TRUE(frame->findChild<QLabel*>("AboutCopyright")->text().contains("2024"));
  EXPECT_EQ(frame->size(), QSize(480, 243));
  EXPECT_EQ(frame->objectName(), "AboutWindow");
  EXPECT_TRUE(container_.testAttribute(Qt::WA_TranslucentBackground));
  EXPECT_TRUE(container_.windowFlags() & Qt::FramelessWindowHint);
}

TEST_F(AboutWindowTest, EachLinkOpensItsOwnAddress) {
  container_.show();
  auto* terms = container_.findChild<LinkLabel*>("AboutTerms");
  auto* privacy = container_.findChild<LinkLabel*>("AboutPrivacy");
  emit privacy->clicked();
  QTest::keyClick(terms, Qt::Key_Return);  // keyboard works the link too
  ASSERT_EQ(catcher_.urls.size(), 2);
  EXPECT_EQ(catcher_.urls.at(0), AboutWindow::privacyUrl());
  EXPECT_EQ(catcher_.urls.at(1), AboutWindow::termsUrl());
  EXPECT_NE(AboutWindow::termsUrl(), AboutWindow::privacyUrl());
}

TEST_F(AboutWindowTest, EscapeClosesTheFrameAndTheWindowAndShowingAgainBringsItBack) {
  container_.show();
  QTest::keyClick(container_.frame(), Qt::Key_Escape);
  EXPECT_FALSE(container_.frame()->isVisible());
  EXPECT_FALSE(container_.isVisible());
  container_.show();
  EXPECT_TRUE(container_.frame()->isVisible());
  // Other keys do nothing.
  QTest::keyClick(container_.frame(), Qt::Key_A);
  EXPECT_TRUE(container_.isVisible());
}

TEST_F(AboutWindowTest, CloseButtonHidesWithoutDestroying) {
  container_.show();
  QSignalSpy closing(container_.frame(), &AboutWindow::sigCloseWindow);
  container_.findChild<VellIconButton*>("AboutClose")->click();
  EXPECT_EQ(closing.count(), 1);
  EXPECT_FALSE(container_.isVisible());
  EXPECT_NE(container_.frame(), nullptr);
}

TEST_F(AboutWindowTest, DragMovesOnlyAfterAPressAwayFromTheEdges) {
  container_.show();
  container_.move(100, 100);
  mouse(QEvent::MouseButtonPress, QPoint(0, 20));
  mouse(QEvent::MouseMove, QPoint(50, 60));
  EXPECT_EQ(container_.pos(), QPoint(100, 100)) << "press on the left edge";
  mouse(QEvent::MouseButtonPress, QPoint(20, 30), Qt::RightButton);
  mouse(QEvent::MouseMove, QPoint(50, 60));
  EXPECT_EQ(container_.pos(), QPoint(100, 100)) << "a right press stores nothing";
  mouse(QEvent::MouseButtonPress, QPoint(20, 30));
  const QPoint global = container_.mapToGlobal(QPoint(70, 90));
  mouse(QEvent::MouseMove, QPoint(70, 90));
  EXPECT_EQ(container_.pos(), global - QPoint(20, 30));
}

TEST_F(AboutWindowTest, EveryControlHasAnAccessibleName) {
  for (QWidget* w : container_.findChildren<QWidget*>()) {
    if (w->focusPolicy() & Qt::TabFocus) {
      EXPECT_FALSE(w->accessibleName().isEmpty()) << w->objectName().toStdString();
    }
  }
}

}  // namespace

#include "about-update-test.moc"
