// The translation sources resource/translations/<lang>.ts against the
// catalogue: every text translated, none left over, and every translation
// carrying exactly the placeholders, markers, tags and escapes of its source.

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTextBoundaryFinder>
#include <QXmlStreamReader>

#include <map>

#include "tests/support/qt-print.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"

namespace {

using namespace string_display;

struct Message {
  QString source;
  QString translation;
  QString type;  // "" when finished; "unfinished", "vanished", "obsolete"
};

std::vector<Message> read_ts(const QString& language) {
  QFile file(QStringLiteral(NIMBRA_TRANSLATIONS_DIR "/") + language + QStringLiteral(".ts"));
  if (!file.open(QIODevice::ReadOnly))
    throw std::runtime_error("cannot open " + language.toStdString() + ".ts");
  QXmlStreamReader xml(&file);
  std::vector<Message> messages;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("message")) {
      messages.emplace_back();
    } else if (xml.name() == QLatin1String("source") && !messages.empty()) {
      messages.back().source = xml.readElementText();
    } else if (xml.name() == QLatin1String("translation") && !messages.empty()) {
      messages.back().type = xml.attributes().value(QLatin1String("type")).toString();
      messages.back().translation = xml.readElementText();
    }
  }
  if (xml.hasError())
    throw std::runtime_error(language.toStdString() + ".ts: " + xml.errorString().toStdString());
  return messages;
}

// Everything a translation must carry over from its source, each as often:
// {name} placeholders, %1-style markers, HTML tags with their attributes,
// the two-character escapes \n and \t, no-break spaces and ellipses.
QMap<QString, int> markers(const QString& text) {
  static const QRegularExpression re(
      QStringLiteral(R"(\{[A-Za-z_][A-Za-z0-9_]*\}|%\d+|<[^>]*>|\\n|\\t|\x{00a0}|\.\.\.)"));
  QMap<QString, int> found;
  auto it = re.globalMatch(text);
  while (it.hasNext()) ++found[it.next().captured()];
  return found;
}

QStringList placeholders_in_order(const QString& text) {
  static const QRegularExpression re(QStringLiteral(R"(\{[A-Za-z_][A-Za-z0-9_]*\})"));
  QStringList found;
  auto it = re.globalMatch(text);
  while (it.hasNext()) found << it.next().captured();
  return found;
}

QString describe(const QMap<QString, int>& m) {
  QStringList parts;
  for (auto it = m.begin(); it != m.end(); ++it)
    parts << QStringLiteral("%1 x%2").arg(it.key()).arg(it.value());
  return parts.join(QStringLiteral(", "));
}

class TranslationFile : public ::testing::TestWithParam<QString> {};

TEST_P(TranslationFile, HoldsEveryCatalogueTextOnceAndNothingElse) {
  std::map<QString, int> catalogue;
  for (int row = 0; row < kStrCount; ++row) catalogue[source_text(Str(row))] = 0;
  for (const Message& m : read_ts(GetParam())) {
    auto it = catalogue.find(m.source);
    if (it == catalogue.end()) {
      ADD_FAILURE() << "not in the catalogue: " << m.source.toStdString();
      continue;
    }
    EXPECT_EQ(++it->second, 1) << "twice: " << m.source.toStdString();
  }
  for (const auto& [source, count] : catalogue) EXPECT_EQ(count, 1) << "missing: " << source.toStdString();
}

TEST_P(TranslationFile, EveryMessageIsFinished) {
  for (const Message& m : read_ts(GetParam())) {
    EXPECT_TRUE(m.type.isEmpty()) << m.type.toStdString() << ": " << m.source.toStdString();
    EXPECT_FALSE(m.translation.trimmed().isEmpty()) << "empty: " << m.source.toStdString();
  }
}

TEST_P(TranslationFile, TranslationsCarryTheMarkersOfTheirSource) {
  for (const Message& m : read_ts(GetParam())) {
    const auto want = markers(m.source);
    const auto got = markers(m.translation);
    EXPECT_EQ(got, want) << m.source.toStdString() << "\n  wants: " << describe(want).toStdString()
                         << "\n  has:   " << describe(got).toStdString();
    EXPECT_EQ(m.translation.count(QLatin1String("Nimbra Backup")),
              m.source.count(QLatin1String("Nimbra Backup")))
        << "the product name: " << m.source.toStdString();
  }
}

// A named event fills its placeholders by position, so a translation of one
// with two or more placeholders keeps them in the source's order.
TEST_P(TranslationFile, NamedEventsKeepTheOrderOfTheirPlaceholders) {
  QMap<QString, QString> translations;
  for (const Message& m : read_ts(GetParam())) translations.insert(m.source, m.translation);
  int checked = 0;
  for (quint32 type = 1000; type <= 8300; ++type) {
    if (event_text::kind_of(type) != event_text::Kind::Named) continue;
    const QString source = source_text(*event_text::row_of(type));
    const QStringList order = placeholders_in_order(source);
    if (order.size() < 2) continue;
    ++checked;
    EXPECT_EQ(placeholders_in_order(translations.value(source)), order)
        << type << ": " << source.toStdString();
  }
  EXPECT_GE(checked, 10);
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationFile, ::testing::ValuesIn(translation_languages()),
                         [](const ::testing::TestParamInfo<QString>& p) { return p.param.toStdString(); });

// Words a line must not be broken inside. Qt breaks Thai lines at
// libthai's dictionary words and splits the loanwords it does not know by
// syllable, whatever joiner stands between them (so those words are not
// used); Japanese katakana words are kept whole by word joiners (U+2060).
struct WholeWords {
  const char* language;
  QRegularExpression words;
};
void PrintTo(const WholeWords& w, std::ostream* os) {
  *os << w.language;
}
class LineBreaks : public ::testing::TestWithParam<WholeWords> {};

TEST_P(LineBreaks, NeverFallInsideAWord) {
  for (const Message& m : read_ts(QString::fromLatin1(GetParam().language))) {
    QString text = m.translation;
    text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text);
    for (auto it = GetParam().words.globalMatch(text); it.hasNext();) {
      const QRegularExpressionMatch word = it.next();
      for (int at = word.capturedStart() + 1; at < word.capturedEnd(); ++at) {
        breaks.setPosition(at);
        EXPECT_FALSE(breaks.isAtBoundary()) << word.captured().toStdString() << " broken at "
                                            << at - word.capturedStart() << " in: " << text.toStdString();
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Languages, LineBreaks,
    ::testing::Values(
        WholeWords{"tha", QRegularExpression(QStringLiteral(
                              "โวลุ่ม|เอเจนต์|รีสตาร์ท|รีบูต|รีเซ็ต|ไดรฟ์|สแนปช็อต|สแนปชอต|โปรแกรม|เซิร์ฟเวอร์|คอนโซล"))},
        WholeWords{"jpn", QRegularExpression(QStringLiteral("[\\x{30a1}-\\x{30fa}\\x{30fc}\\x{2060}]{2,}"))}),
    [](const ::testing::TestParamInfo<WholeWords>& i) { return std::string(i.param.language); });

}  // namespace
