// The desktop locale -> language table and the language -> application font
// table, with the stand-in families a Linux machine uses.

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>

#include "core/language-font.h"
#include "support/qt-print.h"

namespace {

using namespace language_font;

struct LocaleRow {
  const char* name;  // also the test's name
  const char* locale;
  const char* language;
};
void PrintTo(const LocaleRow& row, std::ostream* os) {
  *os << row.name;
}

class LocaleLanguage : public ::testing::TestWithParam<LocaleRow> {};

TEST_P(LocaleLanguage, MapsToItsLanguage) {
  EXPECT_EQ(language_for_locale(QString::fromUtf8(GetParam().locale)),
            QString::fromLatin1(GetParam().language));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LocaleLanguage,
    ::testing::Values(
        LocaleRow{"German", "de_DE.UTF-8", "ger"}, LocaleRow{"SwissGerman", "de_CH", "ger"},
        LocaleRow{"BareGerman", "de", "ger"}, LocaleRow{"French", "fr_FR.UTF-8", "fre"},
        LocaleRow{"CanadianFrench", "fr_CA", "fre"}, LocaleRow{"Spanish", "es_ES.UTF-8", "spn"},
        LocaleRow{"MexicanSpanish", "es_MX", "spn"}, LocaleRow{"Thai", "th_TH.UTF-8", "tha"},
        LocaleRow{"ChinaChinese", "zh_CN.UTF-8", "chs"}, LocaleRow{"SingaporeChinese", "zh_SG", "chs"},
        LocaleRow{"BareChinese", "zh", "chs"}, LocaleRow{"TaiwanChinese", "zh_TW.UTF-8", "cht"},
        LocaleRow{"HongKongChinese", "zh_HK.UTF-8", "cht"}, LocaleRow{"MacauChinese", "zh_MO", "cht"},
        LocaleRow{"HantScript", "zh_Hant_TW", "cht"}, LocaleRow{"Japanese", "ja_JP.UTF-8", "jpn"},
        LocaleRow{"EucJapanese", "ja_JP.eucJP", "jpn"}, LocaleRow{"Korean", "ko_KR.UTF-8", "krn"},
        LocaleRow{"EuroModifier", "de_DE@euro", "ger"}, LocaleRow{"BcpDash", "fr-FR", "fre"},
        LocaleRow{"UpperCase", "DE_de", "ger"}, LocaleRow{"English", "en_US.UTF-8", "enu"},
        LocaleRow{"Portuguese", "pt_BR.UTF-8", "enu"}, LocaleRow{"Danish", "da_DK", "enu"},
        LocaleRow{"CLocale", "C", "enu"}, LocaleRow{"CUtf8", "C.UTF-8", "enu"},
        LocaleRow{"Posix", "POSIX", "enu"}, LocaleRow{"Empty", "", "enu"},
        LocaleRow{"Garbage", "@@..__", "enu"}),
    [](const ::testing::TestParamInfo<LocaleRow>& p) { return std::string(p.param.name); });

TEST(EnvironmentLanguage, FirstSetVariableDecidesInTheOrderOfTheCLibrary) {
  const QString sys = QStringLiteral("sys");
  EXPECT_EQ(language_for_environment("ja_JP.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", sys),
            QStringLiteral("jpn"));
  EXPECT_EQ(language_for_environment("", "de_DE.UTF-8", "fr_FR.UTF-8", sys), QStringLiteral("ger"));
  EXPECT_EQ(language_for_environment("", "", "fr_FR.UTF-8", sys), QStringLiteral("fre"));
  // A set variable naming an unknown or the C locale means English, not the
  // next variable and not the system's language.
  EXPECT_EQ(language_for_environment("C", "de_DE.UTF-8", "", sys), QStringLiteral("enu"));
  EXPECT_EQ(language_for_environment("", "", "  ", sys), sys);
  EXPECT_EQ(language_for_environment("", "", "", sys), sys);
}

TEST(EnvironmentLanguage, ReadsTheProcessEnvironment) {
  const QByteArray all = qgetenv("LC_ALL"), messages = qgetenv("LC_MESSAGES"), lang = qgetenv("LANG");
  qunsetenv("LC_ALL");
  qputenv("LC_MESSAGES", "ko_KR.UTF-8");
  qputenv("LANG", "de_DE.UTF-8");
  EXPECT_EQ(desktop_language(), QStringLiteral("krn"));
  qputenv("LC_ALL", "zh_HK.UTF-8");
  EXPECT_EQ(desktop_language(), QStringLiteral("cht"));
  qputenv("LC_ALL", all);
  qputenv("LC_MESSAGES", messages);
  qputenv("LANG", lang);
  if (all.isNull()) qunsetenv("LC_ALL");
  if (messages.isNull()) qunsetenv("LC_MESSAGES");
  if (lang.isNull()) qunsetenv("LANG");
}

struct FontRow {
  const char* language;
  const char* family;
  const char* standIn;  // the first substitute, installed by scripts/setup
};
void PrintTo(const FontRow& row, std::ostream* os) {
  *os << row.language;
}

class LanguageFontRow : public ::testing::TestWithParam<FontRow> {};

TEST_P(LanguageFontRow, NinePointFamilyWithAReadableStandIn) {
  const QFont font = application_font(QString::fromLatin1(GetParam().language));
  EXPECT_EQ(font.family(), QString::fromLatin1(GetParam().family));
  EXPECT_EQ(font.pointSize(), 9);
  EXPECT_EQ(font.weight(), QFont::Normal);
  EXPECT_FALSE(font.italic());
  const QStringList subs = font_substitutes(font.family());
  ASSERT_FALSE(subs.isEmpty());
  EXPECT_EQ(subs.first(), QString::fromLatin1(GetParam().standIn));
  EXPECT_TRUE(subs.contains(QStringLiteral("DejaVu Sans")));  // always present (fonts-dejavu-core)
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LanguageFontRow,
    ::testing::Values(FontRow{"cht", "Microsoft JhengHei", "Noto Sans CJK TC"},
                      FontRow{"chs", "Microsoft YaHei", "Noto Sans CJK SC"},
                      FontRow{"jpn", "Meiryo", "Noto Sans CJK JP"},
                      FontRow{"krn", "Malgun Gothic", "Noto Sans CJK KR"},
                      FontRow{"ger", "Arial", "Liberation Sans"}, FontRow{"fre", "Arial", "Liberation Sans"},
                      FontRow{"spn", "Arial", "Liberation Sans"}, FontRow{"tha", "Arial", "Liberation Sans"},
                      FontRow{"enu", "Arial", "Liberation Sans"}, FontRow{"xyz", "Arial", "Liberation Sans"}),
    [](const ::testing::TestParamInfo<FontRow>& p) { return std::string(p.param.language); });

TEST(FontSubstitutions, OtherFamiliesHaveNoneAndInstallingTwiceAddsNothing) {
  EXPECT_TRUE(font_substitutes(QStringLiteral("Liberation Sans")).isEmpty());
  install_font_substitutions();
  const QStringList once = QFont::substitutes(QStringLiteral("Meiryo"));
  install_font_substitutions();
  EXPECT_EQ(QFont::substitutes(QStringLiteral("Meiryo")), once);
  ASSERT_FALSE(once.isEmpty());
  EXPECT_EQ(once.first().compare(QStringLiteral("Noto Sans CJK JP"), Qt::CaseInsensitive), 0)
      << once.first().toStdString();
}

// With the packages of scripts/setup, the Windows families resolve to the
// stand-ins rather than to whatever the font matcher picks.
TEST(FontSubstitutions, ResolveToTheInstalledStandIns) {
  install_font_substitutions();
  for (const char* lang : {"chs", "cht", "jpn", "krn", "ger"}) {
    const QFont font = application_font(QString::fromLatin1(lang));
    const QString standIn = font_substitutes(font.family()).first();
    if (!QFontDatabase().families().contains(standIn))
      GTEST_SKIP() << standIn.toStdString() << " not installed";
    EXPECT_EQ(QFontInfo(font).family(), standIn) << lang;
  }
}

}  // namespace
