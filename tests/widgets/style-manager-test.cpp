// Named style sheets: the file format, the names the agent asks for, unknown
// names, display scaling, and that every block is a style sheet Qt accepts.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLabel>

#include "style-manager.h"
#include "support/qt-print.h"
#include "ui-path-manager.h"
#include "widgets-fixture.h"

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
  nimbra_test::ScopedEnv scale("NIMBRA_UI_SCALE", "2");
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
  EXPECT_GE(widgets_test::agentPictureNames().size(), 25);
  LogCapture log;
  widgets_test::loadProductLook();
  const std::string text = log.text();
  EXPECT_EQ(text.find("defined twice"), std::string::npos);
  EXPECT_EQ(text.find("replaces an earlier one"), std::string::npos);
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
    ASSERT_TRUE(b.open(QIODevice::ReadOnly) && a.open(QIODevice::ReadOnly)) << "missing: " << qPrintable(rel);
    EXPECT_EQ(a.readAll(), b.readAll()) << "stale copy: " << qPrintable(rel);
  }
  EXPECT_GT(files, 30);
}

}  // namespace
