// The desktop locale -> language table and the language -> application font
// table, with the stand-in families a Linux machine uses.

#include <gtest/gtest.h>

#include "tests/support/qt-print.h"
#include "ui-agent/core/language-font.h"

namespace {

using namespace language_font;

// One row per branch: each language, each way of naming Chinese, the
// separators, modifiers and letter case a locale name may carry, and what
// falls back to English.
TEST(LocaleLanguage, MapsToItsLanguage) {
  const char* const rows[][2] = {{"de_DE.UTF-8", "ger"}, {"de_DE@euro", "ger"},  {"DE_de", "ger"},
                                 {"fr-FR", "fre"},       {"es_MX", "spn"},       {"th_TH.UTF-8", "tha"},
                                 {"zh_CN.UTF-8", "chs"}, {"zh", "chs"},          {"zh_TW.UTF-8", "cht"},
                                 {"zh_HK", "cht"},       {"zh_MO", "cht"},       {"zh_Hant_TW", "cht"},
                                 {"ja_JP.eucJP", "jpn"}, {"ko_KR.UTF-8", "krn"}, {"en_US.UTF-8", "enu"},
                                 {"pt_BR", "enu"},       {"C", "enu"},           {"", "enu"},
                                 {"@@..__", "enu"}};
  for (const auto& row : rows)
    EXPECT_EQ(language_for_locale(QString::fromUtf8(row[0])), QString::fromLatin1(row[1])) << row[0];
}

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

TEST(LanguageFont, NinePointFamilyWithAReadableStandIn) {
  // language, family, its first substitute (installed by scripts/setup)
  const char* const rows[][3] = {{"cht", "Microsoft JhengHei", "Noto Sans CJK TC"},
                                 {"chs", "Microsoft YaHei", "Noto Sans CJK SC"},
                                 {"jpn", "Meiryo", "Noto Sans CJK JP"},
                                 {"krn", "Malgun Gothic", "Noto Sans CJK KR"},
                                 {"tha", "Arial", "Liberation Sans"},
                                 {"xyz", "Arial", "Liberation Sans"}};
  for (const auto& row : rows) {
    const QFont font = application_font(QString::fromLatin1(row[0]));
    EXPECT_EQ(font.family(), QString::fromLatin1(row[1])) << row[0];
    EXPECT_EQ(font.pointSize(), 9);
    EXPECT_EQ(font.weight(), QFont::Normal);
    EXPECT_FALSE(font.italic());
    const QStringList subs = font_substitutes(font.family());
    ASSERT_FALSE(subs.isEmpty()) << row[0];
    EXPECT_EQ(subs.first(), QString::fromLatin1(row[2]));
    EXPECT_TRUE(subs.contains(QStringLiteral("DejaVu Sans")));  // always present (fonts-dejavu-core)
  }
}

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

}  // namespace
