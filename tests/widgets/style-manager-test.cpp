// Named style sheets: the file format, the names the agent asks for, unknown
// names, display scaling, and that every block is a style sheet Qt accepts.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTextEdit>
#include <QToolButton>

#include <memory>

#include "dpi-info.h"
#include "style-manager.h"
#include "ui-path-manager.h"
#include "widgets-fixture.h"

using widgets_test::loadProductLook;
using widgets_test::LogCapture;

namespace {

class WidgetsStyleFormat : public ::testing::Test {
 protected:
  void SetUp() override {
    StyleManager::getInstance()->clear();
    UIPathManager::getInstance()->setPath("resource_path", "/opt/look");
  }
  void TearDown() override { StyleManager::getInstance()->clear(); }
};

TEST_F(WidgetsStyleFormat, BlocksRunToTheNextHeaderAndThePrefaceIsIgnored) {
  const int n = StyleManager::getInstance()->loadFromString(
      "/* preface mentioning @ signs */\nQLabel { color: red; }\n"
      "@@ first\nQLabel { color: #111111; }\n/* kept */\n"
      "  @@   second.name-2  \nQFrame#X { border: 1px solid black; }\n",
      "inline");
  EXPECT_EQ(n, 2);
  EXPECT_EQ(StyleManager::getInstance()->styleSheet("first"), "QLabel { color: #111111; }\n/* kept */");
  EXPECT_EQ(StyleManager::getInstance()->styleSheet("second.name-2"),
            "QFrame#X { border: 1px solid black; }");
  EXPECT_FALSE(StyleManager::getInstance()->contains("preface"));
}

TEST_F(WidgetsStyleFormat, EmptyBlockExistsAndIsEmpty) {
  StyleManager::getInstance()->loadFromString("@@ empty\n@@ next\nQLabel{}\n", "inline");
  EXPECT_TRUE(StyleManager::getInstance()->contains("empty"));
  EXPECT_EQ(StyleManager::getInstance()->styleSheet("empty"), "");
}

TEST_F(WidgetsStyleFormat, ImagesTokenBecomesThePicturesFolder) {
  StyleManager::getInstance()->loadFromString("@@ box\nQCheckBox::indicator { image: url($images/a.svg); }\n",
                                              "inline");
  EXPECT_EQ(StyleManager::getInstance()->styleSheet("box"),
            "QCheckBox::indicator { image: url(/opt/look/images/a.svg); }");
}

TEST_F(WidgetsStyleFormat, LaterDefinitionReplacesEarlierOneWithALogLine) {
  LogCapture log;
  StyleManager::getInstance()->loadFromString("@@ a\nQLabel { color: red; }\n", "one");
  StyleManager::getInstance()->loadFromString("@@ a\nQLabel { color: blue; }\n", "two");
  EXPECT_EQ(StyleManager::getInstance()->styleSheet("a"), "QLabel { color: blue; }");
  EXPECT_NE(log.text().find("replaces an earlier one"), std::string::npos);
}

TEST_F(WidgetsStyleFormat, MalformedHeaderIsSkippedNotTakenAsText) {
  LogCapture log;
  StyleManager::getInstance()->loadFromString("@@ ok\nQLabel { }\n@@ bad name!\nQFrame { }\n", "inline");
  EXPECT_FALSE(StyleManager::getInstance()->contains("bad"));
  EXPECT_EQ(StyleManager::getInstance()->styleSheet("ok"), "QLabel { }\nQFrame { }");
  EXPECT_NE(log.text().find("malformed block header"), std::string::npos);
}

TEST_F(WidgetsStyleFormat, MissingFileIsLoggedAndSkipped) {
  LogCapture log;
  EXPECT_EQ(StyleManager::getInstance()->initialize({"/nonexistent/agent.stylesheet"}), 0);
  EXPECT_NE(log.text().find("cannot open style sheet file"), std::string::npos);
}

TEST_F(WidgetsStyleFormat, UnknownNameGivesEmptySheetAndLogLine) {
  LogCapture log;
  EXPECT_TRUE(getStyleSheet("no_such_style").isEmpty());
  EXPECT_TRUE(getStyleSheet("no_such_style", false).isEmpty());
  EXPECT_NE(log.text().find("unknown style sheet [no_such_style]"), std::string::npos);
}

TEST_F(WidgetsStyleFormat, ScaledFetchMultipliesPixelLengthsOnly) {
  nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "2");
  StyleManager::getInstance()->loadFromString("@@ s\nQLabel { font-size: 13px; line-height: 1.5em; }\n", "x");
  EXPECT_EQ(getStyleSheet("s"), "QLabel { font-size: 26px; line-height: 1.5em; }");
  EXPECT_EQ(getStyleSheet("s", false), "QLabel { font-size: 13px; line-height: 1.5em; }");
}

// Every name the agent uses resolves in the product's own files.
class WidgetsAgentStyleName : public ::testing::TestWithParam<QString> {
 protected:
  static void SetUpTestSuite() { loadProductLook(); }
};

TEST_P(WidgetsAgentStyleName, IsDefinedAndNotEmpty) {
  EXPECT_TRUE(StyleManager::getInstance()->contains(GetParam())) << qPrintable(GetParam());
  EXPECT_FALSE(StyleManager::getInstance()->styleSheet(GetParam()).trimmed().isEmpty());
  EXPECT_FALSE(StyleManager::getInstance()->styleSheet(GetParam()).contains("$images"));
}

// The widget a block is meant for, so Qt parses and applies it.
std::unique_ptr<QWidget> widgetFor(const QString& name) {
  if (name.contains("button") && name != "tray_user_icon" && name != "component.icon_button" &&
      name != "component.radio_button")
    return std::make_unique<QPushButton>("x");
  if (name == "tray_user_icon" || name == "component.icon_button") return std::make_unique<QToolButton>();
  if (name.contains("combobox")) return std::make_unique<QComboBox>();
  if (name.contains("lineedit") && !name.contains("label")) return std::make_unique<QLineEdit>();
  if (name.contains("progressbar") || name.startsWith("tray_usage")) return std::make_unique<QProgressBar>();
  if (name.contains("menu") && name != "tray_menu") return std::make_unique<QMenu>();
  if (name.contains("message_box")) return std::make_unique<QMessageBox>();
  if (name == "component.checkbox") return std::make_unique<QCheckBox>("x");
  if (name == "component.radio_button") return std::make_unique<QRadioButton>("x");
  if (name == "component.scrollbar") return std::make_unique<QScrollBar>(Qt::Vertical);
  if (name == "tray_email") return std::make_unique<QTextEdit>();
  if (name == "tray_menu" || name == "about_window" || name == "hline_divider" ||
      name == "component.message_sheet")
    return std::make_unique<QFrame>();
  return std::make_unique<QLabel>("x");
}

QStringList g_parseWarnings;
void collectWarnings(QtMsgType, const QMessageLogContext&, const QString& msg) {
  if (msg.contains("parse", Qt::CaseInsensitive)) g_parseWarnings << msg;
}

TEST_P(WidgetsAgentStyleName, QtParsesIt) {
  g_parseWarnings.clear();
  auto previous = qInstallMessageHandler(collectWarnings);
  auto widget = widgetFor(GetParam());
  widget->setStyleSheet(getStyleSheet(GetParam()));
  widget->ensurePolished();
  widget->resize(120, 40);
  widget->grab();
  qInstallMessageHandler(previous);
  EXPECT_TRUE(g_parseWarnings.isEmpty())
      << qPrintable(GetParam()) << ": " << qPrintable(g_parseWarnings.join("; "));
}

INSTANTIATE_TEST_SUITE_P(WidgetsNames, WidgetsAgentStyleName,
                         ::testing::ValuesIn(widgets_test::agentStyleNames()),
                         [](const ::testing::TestParamInfo<QString>& p) {
                           QString n = p.param;
                           return n.replace('.', '_').toStdString();
                         });

// Both files come first in their own order, and nothing in them is defined twice.
TEST(WidgetsStyleFiles, NoNameIsDefinedTwice) {
  LogCapture log;
  loadProductLook();
  EXPECT_EQ(log.text().find("defined twice"), std::string::npos);
  EXPECT_EQ(log.text().find("replaces an earlier one"), std::string::npos);
}

// The build tree holds the resource folder beside bin/, as installed.
TEST(WidgetsResourceFolder, BuildTreeMirrorsTheSourceFolder) {
  const QDir source(widgets_test::sourceResources());
  const QDir built(qEnvironmentVariable("NIMBRA_BUILD_DIR") + QStringLiteral("/resource"));
  ASSERT_TRUE(built.exists()) << qPrintable(built.path());
  QDirIterator it(source.path(), QDir::Files, QDirIterator::Subdirectories);
  int files = 0;
  while (it.hasNext()) {
    const QString rel = source.relativeFilePath(it.next());
    if (rel == QLatin1String("CMakeLists.txt")) continue;
    ++files;
    QFile a(source.filePath(rel)), b(built.filePath(rel));
    ASSERT_TRUE(b.open(QIODevice::ReadOnly)) << "missing in the build tree: " << qPrintable(rel);
    ASSERT_TRUE(a.open(QIODevice::ReadOnly));
    EXPECT_EQ(a.readAll(), b.readAll()) << "stale copy: " << qPrintable(rel);
  }
  EXPECT_GT(files, 30);
}

}  // namespace
