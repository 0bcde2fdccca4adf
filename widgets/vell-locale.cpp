#include "widgets/vell-locale.h"

#include <QStringList>

VellLocale* VellLocale::getInstance() {
  static VellLocale instance;
  return &instance;
}

void VellLocale::setLanguageMap(const QString& twoLetter, const QString& threeLetter) {
  QMutexLocker lock(&mutex_);
  map_.insert(twoLetter.toLower(), threeLetter);
}

QString VellLocale::getDefaultLanguage() const {
  return languageFor(QLocale::system());
}

QString VellLocale::languageFor(const QLocale& locale) const {
  // "de_DE" -> "de"; QLocale::C reads as "C" and falls back to English.
  const QString two = locale.name().section(QLatin1Char('_'), 0, 0).toLower();
  {
    QMutexLocker lock(&mutex_);
    const auto it = map_.constFind(two);
    if (it != map_.constEnd()) return it.value();
  }
  if (locale.language() == QLocale::Chinese) {
    if (locale.script() == QLocale::TraditionalChineseScript) return QStringLiteral("cht");
    if (locale.script() == QLocale::SimplifiedChineseScript) return QStringLiteral("chs");
    const QLocale::Country c = locale.country();
    if (c == QLocale::Taiwan || c == QLocale::HongKong || c == QLocale::Macau) return QStringLiteral("cht");
    return QStringLiteral("chs");
  }
  if (locale.language() == QLocale::Japanese) return QStringLiteral("jpn");
  if (locale.language() == QLocale::Korean) return QStringLiteral("krn");
  return QString::fromLatin1(kFallbackLanguage);
}

void VellLocale::reset() {
  QMutexLocker lock(&mutex_);
  map_.clear();
}
