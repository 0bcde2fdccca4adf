// Language codes from locales, component strings and the path registry.
#include <gtest/gtest.h>

#include <ostream>

#include <QLocale>

#include "component-strings.h"
#include "ui-path-manager.h"
#include "vell-locale.h"
#include "widgets-fixture.h"

namespace {

struct LocaleCase {
  const char* locale;
  const char* code;
};
void PrintTo(const LocaleCase& c, std::ostream* os) {
  *os << '"' << c.locale << '"';
}

class WidgetsLocaleMapping : public ::testing::TestWithParam<LocaleCase> {
 protected:
  void SetUp() override {
    VellLocale* l = VellLocale::getInstance();
    l->reset();
    // As start-up registers them.
    l->setLanguageMap("de", "ger");
    l->setLanguageMap("fr", "fre");
    l->setLanguageMap("es", "spn");
    l->setLanguageMap("th", "tha");
  }
  void TearDown() override { VellLocale::getInstance()->reset(); }
};

TEST_P(WidgetsLocaleMapping, GivesTheThreeLetterCode) {
  EXPECT_EQ(VellLocale::getInstance()->languageFor(QLocale(GetParam().locale)).toStdString(), GetParam().code)
      << GetParam().locale;
}

INSTANTIATE_TEST_SUITE_P(
    WidgetsTable, WidgetsLocaleMapping,
    ::testing::Values(LocaleCase{"de_DE", "ger"}, LocaleCase{"de_AT", "ger"}, LocaleCase{"fr_FR", "fre"},
                      LocaleCase{"fr_CA", "fre"}, LocaleCase{"es_ES", "spn"}, LocaleCase{"es_MX", "spn"},
                      LocaleCase{"th_TH", "tha"}, LocaleCase{"zh_TW", "cht"}, LocaleCase{"zh_HK", "cht"},
                      LocaleCase{"zh_Hant_CN", "cht"}, LocaleCase{"zh_CN", "chs"}, LocaleCase{"zh_SG", "chs"},
                      LocaleCase{"ja_JP", "jpn"}, LocaleCase{"ko_KR", "krn"}, LocaleCase{"en_US", "enu"},
                      LocaleCase{"en_GB", "enu"}, LocaleCase{"pt_BR", "enu"}, LocaleCase{"it_IT", "enu"},
                      LocaleCase{"C", "enu"}),
    [](const ::testing::TestParamInfo<LocaleCase>& p) { return std::string(p.param.locale); });

TEST(WidgetsVellLocaleRegistry, UnregisteredLanguageFallsBackToEnglish) {
  VellLocale::getInstance()->reset();
  EXPECT_EQ(VellLocale::getInstance()->languageFor(QLocale("de_DE")), "enu");
  VellLocale::getInstance()->setLanguageMap("DE", "ger");
  EXPECT_EQ(VellLocale::getInstance()->languageFor(QLocale("de_DE")), "ger");
  VellLocale::getInstance()->reset();
}

TEST(WidgetsVellLocaleRegistry, RegisteredPairOverridesBuiltIn) {
  VellLocale::getInstance()->reset();
  VellLocale::getInstance()->setLanguageMap("ja", "jap");
  EXPECT_EQ(VellLocale::getInstance()->languageFor(QLocale("ja_JP")), "jap");
  VellLocale::getInstance()->reset();
}

TEST(WidgetsVellLocaleRegistry, DefaultLanguageFollowsTheSystemLocale) {
  EXPECT_EQ(VellLocale::getInstance()->getDefaultLanguage(),
            VellLocale::getInstance()->languageFor(QLocale::system()));
}

TEST(WidgetsComponentStringsTable, InstalledTextsWinAndDefaultsRemain) {
  ComponentStrings* s = ComponentStrings::getInstance();
  s->reset();
  EXPECT_EQ(s->string("ok"), "OK");
  EXPECT_EQ(s->string("cancel"), "Cancel");
  s->installStrings({{"ok", "Bestätigen"}});
  s->installStrings({{"cancel", "Abbrechen"}});
  EXPECT_EQ(s->string("ok"), "Bestätigen");
  EXPECT_EQ(s->string("cancel"), "Abbrechen");
  EXPECT_EQ(s->string("unknown_key"), "unknown_key");
  s->reset();
  EXPECT_EQ(s->string("ok"), "OK");
}

TEST(WidgetsPathRegistry, StoresReplacesAndReportsMissingKeys) {
  UIPathManager* p = UIPathManager::getInstance();
  p->clear();
  widgets_test::LogCapture log;
  p->setPath("log_path", "/a");
  p->setPath("log_path", "/b");
  EXPECT_EQ(p->getPath("log_path"), "/b");
  EXPECT_TRUE(p->getPath("appdata_path").isEmpty());
  EXPECT_NE(log.text().find("no path registered under key [appdata_path]"), std::string::npos);
  p->clear();
}

}  // namespace
