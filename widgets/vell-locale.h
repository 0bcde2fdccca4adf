#pragma once
// The agent's language codes. The UI uses three-letter codes (the names of
// its translation files): "enu" English (the fallback), "ger", "fre", "spn",
// "tha" as registered by start-up, and built in "cht" (Chinese, traditional
// script: Taiwan, Hong Kong, Macau or Hant), "chs" (Chinese, simplified),
// "jpn" and "krn". A pair registered with setLanguageMap() takes precedence
// over the built-in table.

#include <QLocale>
#include <QMap>
#include <QMutex>
#include <QString>

class VellLocale {
 public:
  static VellLocale* getInstance();

  static constexpr const char* kFallbackLanguage = "enu";

  // Maps a two-letter ISO 639-1 code ("de") to a three-letter UI code ("ger").
  void setLanguageMap(const QString& twoLetter, const QString& threeLetter);
  // The UI code for the system locale.
  QString getDefaultLanguage() const;
  // The UI code for `locale`: "cht"/"chs" by script and country for Chinese,
  // the registered or built-in code for its language, else "enu".
  QString languageFor(const QLocale& locale) const;
  // Forgets registered pairs (tests).
  void reset();

 private:
  VellLocale() = default;
  mutable QMutex mutex_;
  QMap<QString, QString> map_;
};
