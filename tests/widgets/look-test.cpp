// The product's look: named style sheets (the file format, the names the
// agent asks for, unknown names, every block a style sheet Qt accepts),
// display scaling, and pictures by name for the pixel ratio.

#include <QLabel>

#include "tests/support/qt-print.h"
#include "tests/widgets/widgets-fixture.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/ui-path-manager.h"

using nimbra_test::ScopedEnv;
using widgets_test::LogCapture;

namespace {

class WidgetsStyleFormat : public ::testing::Test {
 protected:
  void SetUp() override {
    sm_->clear();
    UIPathManager::getInstance()->setPath("resource_path", "/opt/look");
  }
  void TearDown() override { sm_->clear(); }
  StyleManager* sm_ = StyleManager::getInstance();
};

TEST_F(WidgetsStyleFormat, BlocksRunToTheNextHeaderAndThePrefaceIsIgnored) {
  ScopedEnv scale("NIMBRA_UI_SCALE", "2");
  EXPECT_EQ(sm_->loadFromString("/* preface mentioning @ signs */\nQLabel { color: red; }\n"
                                "@@ first\nQLabel { font-size: 13px; }\n/* kept */\n"
                                "  @@   second.name-2  \nQFrame#X { image: url($images/a.svg); }\n"
                                "@@ empty\n",
                                "inline"),
            3);
  EXPECT_EQ(sm_->styleSheet("first"), "QLabel { font-size: 13px; }\n/* kept */");
  EXPECT_EQ(getStyleSheet("first"), "QLabel { font-size: 26px; }\n/* kept */");  // scaled for the display
  EXPECT_EQ(getStyleSheet("first", false), sm_->styleSheet("first"));
  EXPECT_EQ(sm_->styleSheet("second.name-2"), "QFrame#X { image: url(/opt/look/images/a.svg); }");
  EXPECT_TRUE(sm_->contains("empty"));
  EXPECT_EQ(sm_->styleSheet("empty"), "");
  EXPECT_FALSE(sm_->contains("preface"));
}

TEST_F(WidgetsStyleFormat, BadInputIsLoggedAndSkipped) {
  LogCapture log;
  sm_->loadFromString("@@ a\nQLabel { color: red; }\n", "one");
  sm_->loadFromString("@@ a\nQLabel { color: blue; }\n@@ bad name!\nQFrame { }\n", "two");
  EXPECT_EQ(sm_->styleSheet("a"), "QLabel { color: blue; }\nQFrame { }");
  EXPECT_FALSE(sm_->contains("bad"));
  EXPECT_EQ(sm_->initialize({"/nonexistent/agent.stylesheet"}), 0);
  EXPECT_TRUE(getStyleSheet("no_such_style").isEmpty());
  EXPECT_TRUE(getStyleSheet("no_such_style", false).isEmpty());
  const std::string text = log.text();
  for (const char* line : {"replaces an earlier one", "malformed block header",
                           "cannot open style sheet file", "unknown style sheet [no_such_style]"})
    EXPECT_NE(text.find(line), std::string::npos) << line;
}

// Every name the agent uses resolves in the product's own files, and Qt's
// style-sheet parser accepts it.
class WidgetsAgentStyleName : public ::testing::TestWithParam<QString> {
 protected:
  static void SetUpTestSuite() { widgets_test::loadProductLook(); }
};

QStringList g_parseWarnings;
void collectWarnings(QtMsgType, const QMessageLogContext&, const QString& msg) {
  if (msg.contains("parse", Qt::CaseInsensitive)) g_parseWarnings << msg;
}

TEST_P(WidgetsAgentStyleName, IsDefinedAndQtParsesIt) {
  const QString sheet = StyleManager::getInstance()->styleSheet(GetParam());
  EXPECT_TRUE(StyleManager::getInstance()->contains(GetParam()));
  EXPECT_FALSE(sheet.trimmed().isEmpty());
  EXPECT_FALSE(sheet.contains("$images"));
  g_parseWarnings.clear();
  auto previous = qInstallMessageHandler(collectWarnings);
  QLabel widget("x");
  widget.setStyleSheet(getStyleSheet(GetParam()));
  widget.ensurePolished();
  qInstallMessageHandler(previous);
  EXPECT_TRUE(g_parseWarnings.isEmpty()) << qPrintable(g_parseWarnings.join("; "));
}

INSTANTIATE_TEST_SUITE_P(WidgetsNames, WidgetsAgentStyleName,
                         ::testing::ValuesIn(widgets_test::agentStyleNames()),
                         [](const ::testing::TestParamInfo<QString>& p) {
                           return QString(p.param).replace('.', '_').toStdString();
                         });

TEST(WidgetsStyleFiles, NamesFixtureIsReadAndNoNameIsDefinedTwice) {
  EXPECT_GE(widgets_test::agentStyleNames().size(), 40);
  LogCapture log;
  widgets_test::loadProductLook();
  const std::string text = log.text();
  EXPECT_EQ(text.find("defined twice"), std::string::npos);
  EXPECT_EQ(text.find("replaces an earlier one"), std::string::npos);
}

using ScaleCase = std::tuple<std::string, std::string, std::string>;  // scale, sheet, scaled sheet

class WidgetsScaledStyleSheet : public ::testing::TestWithParam<ScaleCase> {};

TEST_P(WidgetsScaledStyleSheet, ScalesPixelLengthsAndLeavesTheRest) {
  const auto [scale, in, out] = GetParam();
  ScopedEnv env("NIMBRA_UI_SCALE", scale.c_str());
  EXPECT_EQ(DPIinfo::getScaledStyleSheet(QString::fromStdString(in)).toStdString(), out);
}

INSTANTIATE_TEST_SUITE_P(
    WidgetsTable, WidgetsScaledStyleSheet,
    ::testing::Values(ScaleCase{"1", "QLabel { font-size: 13px; }", "QLabel { font-size: 13px; }"},
                      ScaleCase{"1.5", "border: 1px solid #EBF0F5; font-size: 13px;",
                                "border: 1px solid #EBF0F5; font-size: 19px;"},
                      ScaleCase{"2", "margin: 0.5px -3px 10px 0px;", "margin: 1px -6px 20px 0px;"},
                      ScaleCase{"1.25", "padding: 0.5px;", "padding: 0px;"},
                      ScaleCase{"2", "line-height: 1.5em; width: 50%; font-size: 9pt; weight: 75;",
                                "line-height: 1.5em; width: 50%; font-size: 9pt; weight: 75;"},
                      ScaleCase{"2", "color: #1E2832; rgba(171,181,194,0.1)",
                                "color: #1E2832; rgba(171,181,194,0.1)"},
                      ScaleCase{"2", "QFrame#px12px { border: 2px; }", "QFrame#px12px { border: 4px; }"},
                      ScaleCase{"3", "", ""}));

TEST(WidgetsDpiInfo, ScaledTruncatesAndNonsenseOverrideFallsBackToTheScreen) {
  {
    ScopedEnv env("NIMBRA_UI_SCALE", "1.5");
    EXPECT_EQ(DPIinfo::scaled(13), 19);
    EXPECT_EQ(DPIinfo::scaled(1), 1);
  }
  for (const char* bad : {"-2", "0", "abc"}) {
    ScopedEnv env("NIMBRA_UI_SCALE", bad);
    EXPECT_GT(DPIinfo::getDPI(), 0.0) << bad;
  }
}

class WidgetsPictures : public ::testing::Test {
 protected:
  void SetUp() override {
    UIPathManager::getInstance()->setPath("resource_path", widgets_test::sourceResources());
    ASSERT_GT(images_->initialize(0), 0);
  }
  ImageManager* images_ = ImageManager::getInstance();
};

TEST_F(WidgetsPictures, GlobalImageFollowsUiScaleAndRenderingsAreCachedBySize) {
  ScopedEnv env("NIMBRA_UI_SCALE", "1.5");
  images_->clearCache();
  const QPixmap pix = getGlobalImage("icn_list");  // 24 x 24
  EXPECT_EQ(pix.size() / pix.devicePixelRatio(), QSize(36, 36));
  images_->clearCache();
  const QPixmap a = images_->pixmap("app_img", QSize(24, 24), 1.0);
  EXPECT_EQ(images_->pixmap("app_img", QSize(24, 24), 1.0).cacheKey(), a.cacheKey());
  EXPECT_NE(images_->pixmap("app_img", QSize(48, 48), 1.0).cacheKey(), a.cacheKey());
  EXPECT_EQ(images_->cachedCount(), 2);
}

TEST_F(WidgetsPictures, UnknownNameGivesNullPixmapAndOneLogLine) {
  LogCapture log;
  EXPECT_TRUE(getGlobalImage("no_such_picture").isNull());
  EXPECT_TRUE(getGlobalImage("no_such_picture").isNull());
  const std::string text = log.text();
  const auto first = text.find("unknown picture [no_such_picture]");
  ASSERT_NE(first, std::string::npos);
  EXPECT_EQ(text.find("unknown picture [no_such_picture]", first + 1), std::string::npos);
}

TEST(WidgetsPicturesFolder, BrokenFileGivesNullPixmapAndMissingFolderNothing) {
  nimbra_test::TempDir dir;
  nimbra_test::write_file(dir.file("broken.svg"), "<svg this is not xml");
  nimbra_test::write_file(
      dir.file("fine.svg"),
      "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'><rect width='8' height='4'/></svg>");
  LogCapture log;
  ImageManager* images = ImageManager::getInstance();
  ASSERT_EQ(images->initializeFrom(QString::fromStdString(dir.path())), 2);
  EXPECT_TRUE(images->pixmap("broken", QSize(), 1.0).isNull());
  EXPECT_EQ(images->pixmap("fine", QSize(), 1.0).size(), QSize(8, 4));
  EXPECT_NE(log.text().find("not a valid SVG"), std::string::npos);
  EXPECT_EQ(images->initializeFrom("/nonexistent/images"), 0);
  EXPECT_TRUE(images->names().isEmpty());
}

}  // namespace
