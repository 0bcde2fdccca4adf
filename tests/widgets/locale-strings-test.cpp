// Language codes from locales, component strings and the path registry.

#include <QLocale>

#include "component-strings.h"
#include "support/qt-print.h"
#include "ui-path-manager.h"
#include "vell-locale.h"
#include "widgets-fixture.h"

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

INSTANTIATE_TEST_SUITE_P(
    WidgetsTable, WidgetsLocaleMapping,
    ::testing::Values(LocaleCase{"de_DE", "ger"}, LocaleCase{"de_AT", "ger"}, LocaleCase{"fr_FR", "fre"},
                      LocaleCase{"fr_CA", "fre"}, LocaleCase{"es_ES", "spn"}, LocaleCase{"es_MX", "spn"},
                      LocaleCase{"th_TH", "tha"}, LocaleCase{"zh_TW", "cht"}, LocaleCase{"zh_HK", "cht"},
                      LocaleCase{"zh_Hant_CN", "cht"}, LocaleCase{"zh_CN", "chs"}, LocaleCase{"zh_SG", "chs"},
                      LocaleCase{"ja_JP", "jpn"}, LocaleCase{"ko_KR", "krn"}, LocaleCase{"en_US", "enu"},
                      LocaleCase{"en_GB", "enu"}, LocaleCase{"pt_BR", "enu"}, LocaleCase{"it_IT", "enu"},
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

}  // namespace
