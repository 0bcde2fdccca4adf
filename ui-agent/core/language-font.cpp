#include "ui-agent/core/language-font.h"

#include <QtGlobal>

#include "widgets/vell-locale.h"

namespace language_font {
namespace {

const char* const kEnglish = "enu";

// "zh_TW.UTF-8@stroke" -> language "zh", rest "tw" (lower case); a
// "-" separator is read like "_".
void split_locale(const QString& name, QString* language, QString* rest) {
  QString n = name.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
  n.replace(QLatin1Char('-'), QLatin1Char('_'));
  *language = n.section(QLatin1Char('_'), 0, 0).toLower();
  *rest = n.section(QLatin1Char('_'), 1).toLower();
}

QString chinese(const QString& rest) {
  const QStringList parts = rest.split(QLatin1Char('_'), Qt::SkipEmptyParts);
  for (const QString& p : parts) {
    if (p == QLatin1String("hant") || p == QLatin1String("tw") || p == QLatin1String("hk") ||
        p == QLatin1String("mo"))
      return QStringLiteral("cht");
    if (p == QLatin1String("hans")) return QStringLiteral("chs");
  }
  return QStringLiteral("chs");
}

}  // namespace

QString language_for_locale(const QString& posixLocale) {
  QString language;
  QString rest;
  split_locale(posixLocale.trimmed(), &language, &rest);
  if (language == QLatin1String("de")) return QStringLiteral("ger");
  if (language == QLatin1String("fr")) return QStringLiteral("fre");
  if (language == QLatin1String("es")) return QStringLiteral("spn");
  if (language == QLatin1String("th")) return QStringLiteral("tha");
  if (language == QLatin1String("zh")) return chinese(rest);
  if (language == QLatin1String("ja")) return QStringLiteral("jpn");
  if (language == QLatin1String("ko")) return QStringLiteral("krn");
  return QString::fromLatin1(kEnglish);
}

QString language_for_environment(const QString& lcAll, const QString& lcMessages, const QString& lang,
                                 const QString& systemFallback) {
  for (const QString* v : {&lcAll, &lcMessages, &lang}) {
    if (!v->trimmed().isEmpty()) return language_for_locale(*v);
  }
  return systemFallback;
}

QString desktop_language() {
  const QString lcAll = qEnvironmentVariable("LC_ALL");
  const QString lcMessages = qEnvironmentVariable("LC_MESSAGES");
  const QString lang = qEnvironmentVariable("LANG");
  if (lcAll.trimmed().isEmpty() && lcMessages.trimmed().isEmpty() && lang.trimmed().isEmpty())
    return VellLocale::getInstance()->getDefaultLanguage();
  return language_for_environment(lcAll, lcMessages, lang, QString::fromLatin1(kEnglish));
}

QString application_font_family(const QString& language) {
  if (language == QLatin1String("cht")) return QStringLiteral("Microsoft JhengHei");
  if (language == QLatin1String("chs")) return QStringLiteral("Microsoft YaHei");
  if (language == QLatin1String("jpn")) return QStringLiteral("Meiryo");
  if (language == QLatin1String("krn")) return QStringLiteral("Malgun Gothic");
  return QStringLiteral("Arial");
}

QFont application_font(const QString& language) {
  QFont font(application_font_family(language), 9, QFont::Normal, false);
  return font;
}

QStringList font_substitutes(const QString& family) {
  // Liberation Sans has Arial's metrics. Thai keeps the Latin application
  // font, so its glyphs come from the next face: Noto Sans Thai UI, whose
  // marks above and below stay within the labels' 20-pixel lines.
  if (family == QLatin1String("Arial"))
    return {QStringLiteral("Liberation Sans"), QStringLiteral("Noto Sans Thai UI"),
            QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans CJK SC")};
  if (family == QLatin1String("Microsoft YaHei"))
    return {QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Liberation Sans"),
            QStringLiteral("DejaVu Sans")};
  if (family == QLatin1String("Microsoft JhengHei"))
    return {QStringLiteral("Noto Sans CJK TC"), QStringLiteral("Liberation Sans"),
            QStringLiteral("DejaVu Sans")};
  if (family == QLatin1String("Meiryo"))
    return {QStringLiteral("Noto Sans CJK JP"), QStringLiteral("Liberation Sans"),
            QStringLiteral("DejaVu Sans")};
  if (family == QLatin1String("Malgun Gothic"))
    return {QStringLiteral("Noto Sans CJK KR"), QStringLiteral("Liberation Sans"),
            QStringLiteral("DejaVu Sans")};
  return {};
}

void install_font_substitutions() {
  for (const char* family : {"Arial", "Microsoft YaHei", "Microsoft JhengHei", "Meiryo", "Malgun Gothic"}) {
    const QString f = QString::fromLatin1(family);
    // insertSubstitutions appends; skip names already registered so a
    // second call leaves the list as it was.
    const QStringList present = QFont::substitutes(f);
    QStringList add;
    for (const QString& s : font_substitutes(f))
      if (!present.contains(s, Qt::CaseInsensitive)) add << s;
    if (!add.isEmpty()) QFont::insertSubstitutions(f, add);
  }
}

}  // namespace language_font
