#pragma once
// The language the agent speaks and the font it speaks it in.
//
//   const QString lang = language_font::desktop_language();      // "ger"
//   language_font::install_font_substitutions();
//   QApplication::setFont(language_font::application_font(lang));
//
// Languages are the three-letter codes of the translation files ("ger",
// "fre", "spn", "tha", "chs", "cht", "jpn", "krn"); English is "enu", for
// which no translation is loaded.

#include <QFont>
#include <QString>
#include <QStringList>

namespace language_font {

// The language for one POSIX locale name as LANG and the LC_* variables
// carry it ("de_DE.UTF-8", "zh_TW", "pt_BR@latin", "C"): de -> ger,
// fr -> fre, es -> spn, th -> tha, zh_CN (and zh, zh_SG, zh_Hans) -> chs,
// zh_TW, zh_HK, zh_MO (and zh_Hant) -> cht, ja -> jpn, ko -> krn; anything
// else, the empty name, "C" and "POSIX" included, -> "enu".
QString language_for_locale(const QString& posixLocale);

// The language of the messages locale: the first non-empty of LC_ALL,
// LC_MESSAGES and LANG decides, as the C library does; when all three are
// empty (Windows) `systemFallback` is returned.
QString language_for_environment(const QString& lcAll, const QString& lcMessages, const QString& lang,
                                 const QString& systemFallback);

// language_for_environment() over this process's environment; the system
// locale (VellLocale::getDefaultLanguage()) when none of the three is set.
QString desktop_language();

// The application font family of a language: "Microsoft JhengHei" (cht),
// "Microsoft YaHei" (chs), "Meiryo" (jpn), "Malgun Gothic" (krn), "Arial"
// for every other language.
QString application_font_family(const QString& language);

// That family at 9 points, normal weight, not italic.
QFont application_font(const QString& language);

// The families that stand in for one of those five on a machine that lacks
// it (Linux): metric-compatible or same-script fonts from Debian's packages,
// then generic ones. Empty for any other family.
QStringList font_substitutes(const QString& family);

// Registers font_substitutes() of the five application families with
// QFont::insertSubstitutions, so that a missing Windows font falls back to
// a readable one with the right glyph shapes (Chinese, Japanese and Korean
// Han characters differ). Safe to call more than once.
void install_font_substitutions();

}  // namespace language_font
