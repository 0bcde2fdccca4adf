// Language codes from locales, component strings, the path registry, what
// screen readers are told (window roles, values with their captions) and
// the one way links open (web addresses only, read tolerantly).

#include <QAccessible>
#include <QDesktopServices>
#include <QLabel>
#include <QLocale>

#include "tests/support/qt-print.h"
#include "tests/widgets/widgets-fixture.h"
#include "widgets/accessible-text.h"
#include "widgets/component-strings.h"
#include "widgets/ui-path-manager.h"
#include "widgets/vell-locale.h"
#include "widgets/web-link.h"

namespace {

using LocaleCase = std::pair<std::string, std::string>;

class WidgetsLocale : public ::testing::Test {
 protected:
  void SetUp() override {
    l_->reset();
    // As start-up registers them.
    l_->setLanguageMap("de", "ger");
    l_->setLanguageMap("fr", "fre");
    l_->setLanguageMap("es", "spn");
    l_->setLanguageMap("th", "tha");
  }
  void TearDown() override { l_->reset(); }
  VellLocale* l_ = VellLocale::getInstance();
};
class WidgetsLocaleMapping : public WidgetsLocale, public ::testing::WithParamInterface<LocaleCase> {};

TEST_P(WidgetsLocaleMapping, GivesTheThreeLetterCode) {
  EXPECT_EQ(l_->languageFor(QLocale(QString::fromStdString(GetParam().first))).toStdString(),
            GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(WidgetsTable, WidgetsLocaleMapping,
                         ::testing::Values(LocaleCase{"de_AT", "ger"}, LocaleCase{"zh_TW", "cht"},
                                           LocaleCase{"zh_HK", "cht"}, LocaleCase{"zh_Hant_CN", "cht"},
                                           LocaleCase{"zh_CN", "chs"}, LocaleCase{"zh_SG", "chs"},
                                           LocaleCase{"ja_JP", "jpn"}, LocaleCase{"ko_KR", "krn"},
                                           LocaleCase{"en_GB", "enu"}, LocaleCase{"pt_BR", "enu"},
                                           LocaleCase{"C", "enu"}),
                         [](const ::testing::TestParamInfo<LocaleCase>& p) { return p.param.first; });

TEST_F(WidgetsLocale, UnregisteredFallsBackToEnglishAndRegisteredPairsWin) {
  l_->reset();
  EXPECT_EQ(l_->languageFor(QLocale("de_DE")), "enu");
  l_->setLanguageMap("DE", "ger");
  l_->setLanguageMap("ja", "jap");
  EXPECT_EQ(l_->languageFor(QLocale("de_DE")), "ger");
  EXPECT_EQ(l_->languageFor(QLocale("ja_JP")), "jap");
}

TEST(WidgetsComponentStringsTable, InstalledTextsWinAndDefaultsRemain) {
  ComponentStrings* s = ComponentStrings::getInstance();
  s->reset();
  s->installStrings({{"ok", "Bestätigen"}});
  s->installStrings({{"cancel", "Abbrechen"}});
  EXPECT_EQ(s->string("ok"), "Bestätigen");
  EXPECT_EQ(s->string("cancel"), "Abbrechen");
  EXPECT_EQ(s->string("unknown_key"), "unknown_key");
  s->reset();
  EXPECT_EQ(s->string("ok"), "OK");
}

TEST(WidgetsPathRegistry, MissingKeyIsEmptyWithALogLine) {
  widgets_test::LogCapture log;
  EXPECT_TRUE(UIPathManager::getInstance()->getPath("appdata_path").isEmpty());
  EXPECT_NE(log.text().find("no path registered under key [appdata_path]"), std::string::npos);
}

struct ValueRow {
  const char* name;
  const char* caption;
  const char* value;
  const char* spokenName;
  const char* spokenDescription;
};
void PrintTo(const ValueRow& r, std::ostream* os) {
  *os << r.name;
}

class SpokenValue : public ::testing::TestWithParam<ValueRow> {};

TEST_P(SpokenValue, WholeTextAsNameCaptionAsDescription) {
  const ValueRow& r = GetParam();
  const accessible_text::Spoken s =
      accessible_text::for_value(QString::fromUtf8(r.caption), QString::fromUtf8(r.value));
  EXPECT_EQ(s.name.toStdString(), r.spokenName);
  EXPECT_EQ(s.description.toStdString(), r.spokenDescription);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SpokenValue,
    ::testing::Values(
        ValueRow{"Plain", "Backup schedule: ", "Daily at 21:00", "Daily at 21:00", "Backup schedule"},
        ValueRow{"FullWidthColon", "バックアップ：", "毎日", "毎日", "バックアップ"},
        ValueRow{"NoColon", "Next backup", "--", "--", "Next backup"},
        // The scope line as the summary shows it: markup around escaped text.
        ValueRow{"Markup",
                 "Backup scope:", "<div style=\"line-height:24px\">C:\\ &amp; D:\\, <b>3</b> more</div>",
                 "C:\\ & D:\\, 3 more", "Backup scope"},
        ValueRow{"LinesAndRunsOfSpaces", "Policy:", "  Office\n  laptops   ", "Office laptops", "Policy"},
        // A plain value that only looks like markup stays as it is.
        ValueRow{"LessThanInPlainText", "Policy:", "a < b", "a < b", "Policy"},
        ValueRow{"Empty", "Policy:", "", "", "Policy"}),
    [](const ::testing::TestParamInfo<ValueRow>& i) { return std::string(i.param.name); });

// A plain QWidget window is a "filler" to AT-SPI; given a role it is a
// frame or a dialog, also when Qt made its interface before (a name set
// while accessibility was on).
TEST(WindowRole, FrameOrDialogWhateverTheClass) {
  for (const bool madeBefore : {false, true}) {
    QWidget frame, dialog;
    if (madeBefore) {
      ASSERT_NE(QAccessible::queryAccessibleInterface(&frame), nullptr);
      ASSERT_NE(QAccessible::queryAccessibleInterface(&dialog), nullptr);
    }
    accessible_text::set_window_role(&frame, accessible_text::WindowRole::Frame);
    accessible_text::set_window_role(&dialog, accessible_text::WindowRole::Dialog);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&frame)->role(), QAccessible::Window) << madeBefore;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&dialog)->role(), QAccessible::Dialog) << madeBefore;
  }
  QWidget plain;
  EXPECT_NE(QAccessible::queryAccessibleInterface(&plain)->role(), QAccessible::Window);
}

struct LinkRow {
  const char* name;
  const char* address;
  const char* opened;  // what goes to the browser; "" when nothing does
};

void PrintTo(const LinkRow& r, std::ostream* os) {
  *os << r.name;
}

class WebLink : public ::testing::TestWithParam<LinkRow> {};

TEST_P(WebLink, OnlyHttpAndHttpsAddressesWithAHostOpen) {
  const QUrl url = web_link::parse(QString::fromUtf8(GetParam().address));
  EXPECT_EQ(url.isValid() ? url.toString(QUrl::FullyEncoded).toStdString() : std::string(),
            GetParam().opened);
  if (*GetParam().opened) return;
  widgets_test::LogCapture log;
  EXPECT_FALSE(web_link::open(QString::fromUtf8(GetParam().address), "test link"));
  EXPECT_EQ(log.count("test link: not a web address, not opened"), 1) << log.text();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WebLink,
    ::testing::Values(LinkRow{"https", "https://console.example/k?x=1", "https://console.example/k?x=1"},
                      LinkRow{"HttpUpperCase", "HTTP://Console.Example/", "http://console.example/"},
                      LinkRow{"PipeAndSpaceInSignIn", " https://s.example/a?r=x|y&n=a b ",
                              "https://s.example/a?r=x%7Cy&n=a%20b"},
                      LinkRow{"File", "file:///etc/passwd", ""}, LinkRow{"NoScheme", "/etc/passwd", ""},
                      LinkRow{"Javascript", "javascript:alert(1)", ""},
                      LinkRow{"NoHost", "https:///path", ""}, LinkRow{"Empty", "", ""}),
    [](const ::testing::TestParamInfo<LinkRow>& i) { return std::string(i.param.name); });

// Catches what would go to the desktop.
class Catcher : public QObject {
  Q_OBJECT
 public:
  QList<QUrl> urls;
 public slots:
  void open(const QUrl& url) { urls << url; }
};

TEST(WebLinkLabel, ALabelsLinksGoThroughTheCheck) {
  Catcher catcher;
  for (const char* scheme : {"file", "https"}) QDesktopServices::setUrlHandler(scheme, &catcher, "open");
  QLabel label;
  web_link::route(&label, "test link");
  EXPECT_FALSE(label.openExternalLinks());
  emit label.linkActivated(QStringLiteral("file:///etc/passwd"));
  emit label.linkActivated(QStringLiteral("https://console.example/"));
  for (const char* scheme : {"file", "https"}) QDesktopServices::unsetUrlHandler(scheme);
  ASSERT_EQ(catcher.urls.size(), 1);
  EXPECT_EQ(catcher.urls.first().host(), QStringLiteral("console.example"));
}

}  // namespace

#include "text-test.moc"
