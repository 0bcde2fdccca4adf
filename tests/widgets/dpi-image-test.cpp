// Display scaling of style sheets, and pictures by name for the pixel ratio.
#include <gtest/gtest.h>

#include <ostream>

#include <QBitmap>
#include <QImage>
#include <QPainter>

#include "dpi-info.h"
#include "image-manager.h"
#include "ui-path-manager.h"
#include "widgets-fixture.h"

using nimbra_test::ScopedEnv;
using nimbra_test::TempDir;

namespace {

struct ScaleCase {
  const char* scale;
  const char* in;
  const char* out;
};
void PrintTo(const ScaleCase& c, std::ostream* os) {
  *os << '"' << c.in << '"';
}

class WidgetsScaledStyleSheet : public ::testing::TestWithParam<ScaleCase> {};

TEST_P(WidgetsScaledStyleSheet, ScalesPixelLengthsAndLeavesTheRest) {
  ScopedEnv env("NIMBRA_UI_SCALE", GetParam().scale);
  EXPECT_EQ(DPIinfo::getScaledStyleSheet(QString::fromUtf8(GetParam().in)).toStdString(), GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(
    WidgetsTable, WidgetsScaledStyleSheet,
    ::testing::Values(ScaleCase{"1", "QLabel { font-size: 13px; }", "QLabel { font-size: 13px; }"},
                      ScaleCase{"1.5", "QLabel { font-size: 13px; }", "QLabel { font-size: 19px; }"},
                      ScaleCase{"1.5", "border: 1px solid #EBF0F5; border-radius: 4px;",
                                "border: 1px solid #EBF0F5; border-radius: 6px;"},
                      ScaleCase{"2", "margin: 0.5px -3px 10px 0px;", "margin: 1px -6px 20px 0px;"},
                      ScaleCase{"1.25", "padding: 0.5px;", "padding: 0px;"},
                      ScaleCase{"2", "line-height: 1.5em; width: 50%; font-size: 9pt; weight: 75;",
                                "line-height: 1.5em; width: 50%; font-size: 9pt; weight: 75;"},
                      ScaleCase{"2", "color: #1E2832; rgba(171,181,194,0.1)",
                                "color: #1E2832; rgba(171,181,194,0.1)"},
                      ScaleCase{"2", "QFrame#px12px { border: 2px; }", "QFrame#px12px { border: 4px; }"},
                      ScaleCase{"3", "", ""}));

TEST(WidgetsDpiInfo, ScaledTruncates) {
  ScopedEnv env("NIMBRA_UI_SCALE", "1.5");
  EXPECT_DOUBLE_EQ(DPIinfo::getDPI(), 1.5);
  EXPECT_EQ(DPIinfo::scaled(400), 600);
  EXPECT_EQ(DPIinfo::scaled(13), 19);
  EXPECT_EQ(DPIinfo::scaled(1), 1);
}

TEST(WidgetsDpiInfo, NonsenseOverrideFallsBackToTheScreen) {
  ScopedEnv env("NIMBRA_UI_SCALE", "-2");
  EXPECT_GT(DPIinfo::getDPI(), 0.0);
  ScopedEnv env2("NIMBRA_UI_SCALE", "abc");
  EXPECT_GT(DPIinfo::getDPI(), 0.0);
}

class WidgetsPictures : public ::testing::Test {
 protected:
  void SetUp() override {
    UIPathManager::getInstance()->setPath("resource_path", widgets_test::sourceResources());
    ASSERT_GT(ImageManager::getInstance()->initialize(0), 0);
  }
};

class WidgetsAgentPicture : public WidgetsPictures, public ::testing::WithParamInterface<QString> {};

TEST_P(WidgetsAgentPicture, LoadsAndScalesWithThePixelRatio) {
  ImageManager* images = ImageManager::getInstance();
  ASSERT_TRUE(images->contains(GetParam())) << qPrintable(GetParam());
  const QSize natural = images->naturalSize(GetParam());
  ASSERT_TRUE(natural.isValid() && !natural.isEmpty());
  const QPixmap one = images->pixmap(GetParam(), natural, 1.0);
  const QPixmap two = images->pixmap(GetParam(), natural, 2.0);
  ASSERT_FALSE(one.isNull());
  EXPECT_EQ(one.size(), natural);
  EXPECT_EQ(two.size(), natural * 2);
  EXPECT_DOUBLE_EQ(two.devicePixelRatio(), 2.0);
  // Something is drawn: not a blank picture.
  const QImage img = two.toImage();
  int opaque = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) opaque += qAlpha(img.pixel(x, y)) > 0;
  EXPECT_GT(opaque, img.width() * img.height() / 50) << qPrintable(GetParam());
}

INSTANTIATE_TEST_SUITE_P(WidgetsNames, WidgetsAgentPicture,
                         ::testing::ValuesIn(widgets_test::agentPictureNames()),
                         [](const ::testing::TestParamInfo<QString>& p) { return p.param.toStdString(); });

TEST_F(WidgetsPictures, GlobalImageFollowsUiScale) {
  ScopedEnv env("NIMBRA_UI_SCALE", "1.5");
  ImageManager::getInstance()->clearCache();
  const QPixmap pix = getGlobalImage("icn_list");  // 24 x 24
  const qreal dpr = pix.devicePixelRatio();
  EXPECT_EQ(qRound(pix.width() / dpr), 36);
  EXPECT_EQ(qRound(pix.height() / dpr), 36);
}

TEST_F(WidgetsPictures, RenderingsAreCachedByNameAndSize) {
  ImageManager* images = ImageManager::getInstance();
  images->clearCache();
  const QPixmap a = images->pixmap("app_img", QSize(24, 24), 1.0);
  const QPixmap b = images->pixmap("app_img", QSize(24, 24), 1.0);
  EXPECT_EQ(a.cacheKey(), b.cacheKey());
  const QPixmap c = images->pixmap("app_img", QSize(48, 48), 1.0);
  EXPECT_NE(a.cacheKey(), c.cacheKey());
  EXPECT_EQ(images->cachedCount(), 2);
}

TEST_F(WidgetsPictures, UnknownNameGivesNullPixmapAndOneLogLine) {
  widgets_test::LogCapture log;
  EXPECT_TRUE(getGlobalImage("no_such_picture").isNull());
  EXPECT_TRUE(getGlobalImage("no_such_picture").isNull());
  const std::string text = log.text();
  const auto first = text.find("unknown picture [no_such_picture]");
  ASSERT_NE(first, std::string::npos);
  EXPECT_EQ(text.find("unknown picture [no_such_picture]", first + 1), std::string::npos);
}

TEST(WidgetsPicturesFolder, BrokenFileGivesNullPixmapAndMissingFolderNothing) {
  TempDir dir;
  nimbra_test::write_file(dir.file("broken.svg"), "<svg this is not xml");
  nimbra_test::write_file(
      dir.file("fine.svg"),
      "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'><rect width='8' height='4'/></svg>");
  widgets_test::LogCapture log;
  ImageManager* images = ImageManager::getInstance();
  ASSERT_EQ(images->initializeFrom(QString::fromStdString(dir.path())), 2);
  EXPECT_TRUE(images->pixmap("broken", QSize(), 1.0).isNull());
  EXPECT_EQ(images->pixmap("fine", QSize(), 1.0).size(), QSize(8, 4));
  EXPECT_NE(log.text().find("not a valid SVG"), std::string::npos);
  EXPECT_EQ(images->initializeFrom("/nonexistent/images"), 0);
  EXPECT_TRUE(images->names().isEmpty());
}

// The tray states must not differ by colour alone: their shapes (alpha masks)
// differ from each other at 16 px, in both the light and the dark variant.
class WidgetsTrayShapes : public WidgetsPictures, public ::testing::WithParamInterface<const char*> {};

TEST_P(WidgetsTrayShapes, EveryStateHasItsOwnShapeAt16px) {
  const QStringList states{"connect", "green", "blue", "red", "orange"};
  QList<QImage> masks;
  for (const QString& s : states) {
    QImage img = ImageManager::getInstance()
                     ->pixmap("logo_tray_icn_" + s + GetParam(), QSize(16, 16), 1.0)
                     .toImage()
                     .convertToFormat(QImage::Format_ARGB32);
    // Shape only: opaque or not, and light or dark (a badge's glyph), no hue.
    QImage shape(16, 16, QImage::Format_Grayscale8);
    for (int y = 0; y < 16; ++y)
      for (int x = 0; x < 16; ++x) {
        const QRgb p = img.pixel(x, y);
        const int v = qAlpha(p) < 128 ? 0 : (qGray(p) > 200 ? 255 : 128);
        shape.setPixel(x, y, qRgb(v, v, v));
      }
    masks << shape;
  }
  for (int i = 0; i < masks.size(); ++i)
    for (int j = i + 1; j < masks.size(); ++j) {
      int differing = 0;
      for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) differing += masks[i].pixel(x, y) != masks[j].pixel(x, y);
      EXPECT_GE(differing, 4) << qPrintable(states[i]) << " vs " << qPrintable(states[j]) << GetParam();
    }
}

INSTANTIATE_TEST_SUITE_P(WidgetsVariants, WidgetsTrayShapes, ::testing::Values("", "_dark"),
                         [](const ::testing::TestParamInfo<const char*>& p) {
                           return std::string(*p.param ? "dark" : "light");
                         });

}  // namespace
