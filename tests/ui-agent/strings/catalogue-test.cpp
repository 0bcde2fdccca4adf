// The string catalogue: every named key with its English text, the row
// order, escapes, lookups and the translation round trip through a .qm
// resource.
#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include "string-catalogue-table.h"
#include "string-display.h"
#include "strings-fixture.h"

using namespace string_display;
using strings_fixture::KeyRow;
using ::testing::HasSubstr;

namespace {

// {name} and %n placeholders of a text, in order of appearance.
QString placeholders_of(const QString& text) {
  static const QRegularExpression re(QStringLiteral("\\{[^{}]*\\}|%[0-9]+"));
  QString out;
  for (auto it = re.globalMatch(text); it.hasNext();) out += it.next().captured(0);
  return out;
}

class CatalogueKey : public ::testing::TestWithParam<KeyRow> {};

TEST_P(CatalogueKey, IsPresentWithItsText) {
  const KeyRow& row = GetParam();
  const std::optional<Str> found = find_row(row.key);
  ASSERT_TRUE(found.has_value()) << row.key.toStdString() << " is missing";
  EXPECT_EQ(key(*found), row.key);
  const QString shown = text(*found);
  const char check = row.check.toLatin1();
  if (check == '=' || check == '+') {
    EXPECT_EQ(shown, row.text);
  } else if (check == '*') {
    EXPECT_FALSE(shown.isEmpty());
    EXPECT_EQ(placeholders_of(shown), row.text) << shown.toStdString();
  } else {
    ASSERT_TRUE(check == '^' || check == 'L') << "unknown check " << check;
    EXPECT_THAT(shown.toStdString(), HasSubstr("href=\"https://www.nimbrabackup.com/"));
    EXPECT_THAT(shown.toStdString(), HasSubstr("</a>"));
    if (check == '^') {
      EXPECT_TRUE(shown.startsWith(row.text)) << shown.toStdString();
    } else {
      EXPECT_EQ(placeholders_of(shown), row.text) << shown.toStdString();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Named, CatalogueKey, ::testing::ValuesIn(strings_fixture::key_rows()),
                         [](const ::testing::TestParamInfo<KeyRow>& p) { return p.param.key.toStdString(); });

TEST(Catalogue, HoldsExactlyTheListedKeysOnceEachNumberedRowsFirst) {
  const std::vector<KeyRow> listed_rows = strings_fixture::key_rows();
  QSet<QString> listed, keys;
  for (const KeyRow& row : listed_rows) {
    EXPECT_FALSE(listed.contains(row.key)) << "listed twice: " << row.key.toStdString();
    listed.insert(row.key);
  }
  for (int i = 0; i < kStrCount; ++i) {
    const QString k = QString::fromLatin1(catalogue_rows()[i].key);
    EXPECT_FALSE(keys.contains(k)) << "duplicate key " << k.toStdString();
    EXPECT_TRUE(listed.contains(k)) << "row without a listed key: " << k.toStdString();
    keys.insert(k);
  }
  EXPECT_EQ(keys.size(), listed.size());
  // The fixture lists rows 0 to 7 first, in their order.
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(QString::fromLatin1(catalogue_rows()[i].key), listed_rows[i].key) << "row " << i;
    EXPECT_EQ(find_row(listed_rows[i].key), Str(i));
  }
}

TEST(Catalogue, EscapesAndLookups) {
  EXPECT_EQ(expand_escapes(QStringLiteral("a\\tb\\n")), QStringLiteral("a\tb\n"));
  EXPECT_EQ(expand_escapes(QStringLiteral("\\N \\T \\")), QStringLiteral("\\N \\T \\"));  // case-sensitive
  EXPECT_TRUE(source_text(Str::desc_about_msg).contains(QLatin1String("\\n")));
  EXPECT_EQ(text(Str::desc_about_msg).arg(QStringLiteral("2024")).split(QLatin1Char('\n')).size(), 2);
  EXPECT_EQ(text_by_key(QStringLiteral("region_taiwan")), QStringLiteral("APAC - Taiwan"));
  EXPECT_TRUE(text_by_key(QStringLiteral("no_such_key")).isEmpty());
  EXPECT_TRUE(text_by_key(QString()).isEmpty());
  EXPECT_FALSE(find_row(QStringLiteral("BTN_CANCEL")).has_value());
  // Rows outside the table are empty.
  EXPECT_TRUE(text(Str(kStrCount)).isEmpty());
  EXPECT_TRUE(text(Str(-1)).isEmpty());
  EXPECT_TRUE(key(Str(kStrCount)).isEmpty());
}

TEST(Translations, EveryLanguageIsBuiltInAndUnknownOnesDoNotLoad) {
  init_resources();
  ASSERT_EQ(translation_languages().size(), 8);
  for (const QString& lang : translation_languages()) {
    QTranslator translator;
    EXPECT_TRUE(load_translation(translator, lang)) << lang.toStdString();
  }
  EXPECT_EQ(translation_resource(QStringLiteral("ger")), QStringLiteral(":/ger.qm"));
  QTranslator translator;
  EXPECT_FALSE(load_translation(translator, QStringLiteral("xyz")));
}

TEST(Translations, GermanRoundTrip) {
  QTranslator translator;
  ASSERT_TRUE(load_translation(translator, QStringLiteral("ger")));
  ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
  EXPECT_EQ(text(Str::btn_cancel), QStringLiteral("Abbrechen"));
  EXPECT_EQ(text(Str::act_tray_quit), QStringLiteral("Beenden"));
  EXPECT_EQ(text(Str::monday), QStringLiteral("Montag"));
  // Escapes are expanded after translating.
  EXPECT_EQ(text(Str::desc_about_msg).arg(QStringLiteral("2024")),
            QStringLiteral("Copyright © 2024 Corvana Inc.\nAlle Rechte vorbehalten."));
  // The no-break space after the status word survives the translation.
  EXPECT_EQ(text(Str::desc_status_error), QStringLiteral("Fehler") + QChar(0x00a0));
  ASSERT_TRUE(QCoreApplication::removeTranslator(&translator));
  EXPECT_EQ(text(Str::btn_cancel), QStringLiteral("Cancel"));
}

}  // namespace
