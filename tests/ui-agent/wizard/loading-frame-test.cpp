// The connecting frame: its width rule, and the local wait that only
// stopLoading() ends, on a fresh loop for every start.

#include <QLabel>

#include "tests/ui-agent/wizard/wizard-fixture.h"
#include "ui-agent/wizard/nimbra-loading-frame.h"
#include "widgets/dpi-info.h"

namespace {

using wizard_test::later;

// The text's width plus the fixed parts, up to the maximum; scaled, truncated.
TEST(LoadingFrameWidth, TextPlusFixedPartsUpToTheMaximum) {
  EXPECT_EQ(loading_frame_width(150, 1.0, 480), 208);
  EXPECT_EQ(loading_frame_width(422, 1.0, 480), 480);
  EXPECT_EQ(loading_frame_width(900, 1.0, 480), 480);
  EXPECT_EQ(loading_frame_width(300, 2.0, 960), 416);
  EXPECT_EQ(loading_frame_width(100, 1.5, 720), 187);
}

class LoadingFrameTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { wizard_test::loadLook(); }
  void SetUp() override {
    parent_.resize(900, 540);
    parent_.show();
    frame_ = new NimbraLoadingFrame(&parent_);
    frame_->setText(QStringLiteral("Connecting to server..."));
  }
  QWidget parent_;
  NimbraLoadingFrame* frame_ = nullptr;
};

TEST_F(LoadingFrameTest, StartWaitsUntilStoppedAndCentresOverItsParent) {
  bool upWhileWaiting = false;
  QRect geometry;
  later([&] {
    upWhileWaiting = frame_->isVisible() && frame_->isLoading();
    geometry = frame_->geometry();
    frame_->stopLoading();
  });
  EXPECT_EQ(frame_->startLoading(), 0);
  EXPECT_TRUE(upWhileWaiting);
  EXPECT_FALSE(frame_->isVisible());
  EXPECT_EQ(geometry.center(), parent_.rect().center());
  EXPECT_LE(geometry.height(), DPIinfo::scaled(40));
}

TEST_F(LoadingFrameTest, TwoStartsAfterOneStopEachWaitOnAFreshLoop) {
  frame_->show();
  frame_->stopLoading();  // before any start it only hides
  EXPECT_FALSE(frame_->isVisible() || frame_->isLoading());
  frame_->stopLoading();  // stale stops must not end a later wait
  for (int round = 0; round < 2; ++round) {
    bool stillWaiting = false;
    later([&] { stillWaiting = frame_->isLoading(); }, 30);
    later([&] { frame_->stopLoading(); }, 60);
    EXPECT_EQ(frame_->startLoading(), 0) << "round " << round;
    EXPECT_TRUE(stillWaiting) << "round " << round;
  }
}

TEST_F(LoadingFrameTest, LongTextWidensTheFrameUpToTheMaximum) {
  int shortWidth = 0, shortHint = 0, longWidth = 0;
  later([&] {
    shortWidth = frame_->width();
    shortHint = frame_->findChild<QLabel*>("NimbraLoadingText")->sizeHint().width();
    frame_->stopLoading();
  });
  frame_->startLoading();
  frame_->setText(QString(200, QLatin1Char('x')));
  later([&] {
    longWidth = frame_->width();
    frame_->stopLoading();
  });
  frame_->startLoading();
  EXPECT_EQ(shortWidth, shortHint + DPIinfo::scaled(58));
  EXPECT_EQ(longWidth, DPIinfo::scaled(480));
}

}  // namespace
