// Where the windows open; the update status dialog (flags, modality,
// message, button, finished on every way out) and the about window (version
// line, links, Escape, close, the dragging rule with its edges).

#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <functional>
#include <memory>

#include "tests/support/qt-print.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/dialogs/about-window.h"
#include "ui-agent/dialogs/settings-widget.h"
#include "ui-agent/dialogs/update-status-dialog.h"
#include "ui-agent/tray/log-widget.h"
#include "ui-agent/wizard/wizard.h"
#include "widgets/vell-button.h"
#include "widgets/vell-label.h"
#include "widgets/window-placement.h"

namespace {

using string_display::text;

// Lengths are checked at scale 1, whatever the offscreen screen reports.
class Dialogs : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    qputenv("NIMBRA_UI_SCALE", "1");
    agent_test::loadLook();
  }
};

// Wherever a window manager would put them, the windows open centred in the
// work area of the screen that holds the pointer, kept inside it.
TEST_F(Dialogs, WindowsOpenCentredOnThePointersScreen) {
  using window_placement::centred_in;
  EXPECT_EQ(centred_in(QRect(0, 0, 1280, 800), QSize(700, 442)), QPoint(290, 179));
  EXPECT_EQ(centred_in(QRect(1920, 30, 1280, 770), QSize(400, 230)), QPoint(2360, 300));
  EXPECT_EQ(centred_in(QRect(0, 0, 800, 600), QSize(900, 540)), QPoint(0, 30));
  const std::function<QWidget*()> makers[] = {
      [] { return new Wizard; }, [] { return new LogWidget; }, [] { return new SettingsWidget; },
      [] { return new AboutWindowContainer; }, [] { return new UpdateStatusDialog; }};
  for (const auto& make : makers) {
    std::unique_ptr<QWidget> window(make());
    window->move(7, 7);
    window->show();
    EXPECT_EQ(window->pos(),
              centred_in(window_placement::work_area_at(QCursor::pos()), window->frameGeometry().size()))
        << window->metaObject()->className();
  }
}

// Laid out on screen, the 300 px message keeps a 10 px margin to the right
// edge (10 + 72 + 8 + 300 + 10 = 400), its wrapped lines fit its height and
// the button stays inside the dialog.
TEST_F(Dialogs, UpdateDialogFlagsMessageAndButton) {
  UpdateStatusDialog dialog;
  EXPECT_EQ(dialog.windowFlags(),
            Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
  EXPECT_EQ(dialog.windowModality(), Qt::ApplicationModal);
  EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
  EXPECT_EQ(dialog.windowTitle(), text(Str::app_name));
  EXPECT_EQ(dialog.palette().brush(QPalette::Inactive, dialog.backgroundRole()).color(), QColor(Qt::white));
  auto* ok = agent_test::child<VellButton>(&dialog, "UpdateStatusOk");
  EXPECT_EQ(ok->buttonKind(), VellButton::Secondary);
  const auto* message = agent_test::child<QLabel>(&dialog, "UpdateStatusMessage");
  const auto* icon = agent_test::child<QLabel>(&dialog, "UpdateStatusIcon");
  for (const bool failed : {false, true}) {
    SCOPED_TRACE(failed ? "failed" : "updating");
    const QString shown = text(failed ? Str::desc_update_service_fail : Str::desc_updating_service);
    dialog.setMessage(shown);
    dialog.setButtonVisible(failed);
    dialog.show();
    QApplication::processEvents();
    EXPECT_EQ(message->text(), shown);
    EXPECT_EQ(dialog.message(), shown);
    EXPECT_EQ(ok->isVisible(), failed);
    EXPECT_EQ(message->width(), 300);
    EXPECT_LE(message->geometry().right() + 1, dialog.width() - 10);
    EXPECT_GE(message->x(), icon->geometry().right() + 1 + 8);
    EXPECT_GE(icon->x(), 10);
    EXPECT_GE(message->height(), message->heightForWidth(message->width()));
    if (failed) {
      EXPECT_LE(ok->geometry().right() + 1, dialog.width() - 10);
      EXPECT_LE(ok->geometry().bottom() + 1, dialog.height() - 10);
      EXPECT_GE(ok->y(), message->geometry().bottom());
    }
  }
}

TEST_F(Dialogs, UpdateDialogFinishedOnEveryWayOut) {
  const std::pair<const char*, std::function<void(UpdateStatusDialog&, VellButton*)>> ways[] = {
      // (Return on OK is the desktop story Upgrade.FailureOkEndsTheAgent's.)
      {"ok", [](UpdateStatusDialog&, VellButton* ok) { ok->click(); }},
      {"escape", [](UpdateStatusDialog& d, VellButton*) { QTest::keyClick(&d, Qt::Key_Escape); }},
      {"close", [](UpdateStatusDialog& d, VellButton*) { d.close(); }}};
  for (const auto& [name, leave] : ways) {
    UpdateStatusDialog dialog;
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.setButtonVisible(true);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    leave(dialog, dialog.findChild<VellButton*>("UpdateStatusOk"));
    EXPECT_EQ(finished.count(), 1) << name;
    EXPECT_FALSE(dialog.isVisible()) << name;
  }
}

TEST(AboutDrag, StartsOnlyAwayFromTheLeftAndTopEdges) {
  EXPECT_EQ(about_drag_target(30, 40, QPoint(530, 440), 1.0), QPoint(500, 400));
  EXPECT_EQ(about_drag_target(30, 40, QPoint(530, 440), 2.0), QPoint(1000, 800));
  EXPECT_EQ(about_drag_target(1, 1, QPoint(102, 102), 1.25), QPoint(126, 126));  // truncated
  EXPECT_EQ(about_drag_target(0, 40, QPoint(530, 440), 1.0), std::nullopt);
  EXPECT_EQ(about_drag_target(30, 0, QPoint(530, 440), 1.0), std::nullopt);
}

// Receives what the about window hands to the desktop.
class UrlCatcher : public QObject {
  Q_OBJECT
 public:
  QList<QUrl> urls;
 public slots:
  void open(const QUrl& url) { urls << url; }
};

class AboutWindowTest : public Dialogs {
 protected:
  void SetUp() override { QDesktopServices::setUrlHandler("https", &catcher_, "open"); }
  void TearDown() override { QDesktopServices::unsetUrlHandler("https"); }
  void mouse(QEvent::Type type, QPoint local, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent e(type, local, container_.mapToGlobal(local), button, button, Qt::NoModifier);
    QApplication::sendEvent(&container_, &e);
  }

  UrlCatcher catcher_;
  AboutWindowContainer container_;
};

TEST_F(AboutWindowTest, VersionLooksLinksAndNames) {
  AboutWindow* frame = container_.frame();
  EXPECT_EQ(frame->findChild<QLabel*>("AboutVersion")->text(), "Version: 3.6.0-0701");
  EXPECT_TRUE(frame->findChild<QLabel*>("AboutCopyright")->text().contains("2024"));
  EXPECT_EQ(frame->size(), QSize(480, 243));
  EXPECT_EQ(frame->objectName(), "AboutWindow");
  EXPECT_TRUE(container_.testAttribute(Qt::WA_TranslucentBackground));
  EXPECT_TRUE(container_.windowFlags() & Qt::FramelessWindowHint);
  for (QWidget* w : container_.findChildren<QWidget*>())
    EXPECT_TRUE(!(w->focusPolicy() & Qt::TabFocus) || !w->accessibleName().isEmpty())
        << w->objectName().toStdString();

  container_.show();
  emit container_.findChild<LinkLabel*>("AboutPrivacy")->clicked();
  QTest::keyClick(container_.findChild<LinkLabel*>("AboutTerms"),
                  Qt::Key_Return);  // the keyboard works it too
  EXPECT_EQ(catcher_.urls, QList<QUrl>({AboutWindow::privacyUrl(), AboutWindow::termsUrl()}));
  EXPECT_NE(AboutWindow::termsUrl(), AboutWindow::privacyUrl());
}

TEST_F(AboutWindowTest, EscapeAndCloseHideWithoutDestroying) {
  container_.show();
  QTest::keyClick(container_.frame(), Qt::Key_A);
  EXPECT_TRUE(container_.isVisible()) << "another key closed it";
  QTest::keyClick(container_.frame(), Qt::Key_Escape);
  EXPECT_FALSE(container_.frame()->isVisible() || container_.isVisible());
  container_.show();
  EXPECT_TRUE(container_.frame()->isVisible());
  QSignalSpy closing(container_.frame(), &AboutWindow::sigCloseWindow);
  container_.findChild<VellIconButton*>("AboutClose")->click();
  EXPECT_EQ(closing.count(), 1);
  EXPECT_FALSE(container_.isVisible());
}

TEST_F(AboutWindowTest, DragMovesOnlyAfterALeftPressAwayFromTheEdges) {
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

}  // namespace

#include "about-update-test.moc"
