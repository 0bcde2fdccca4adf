// The string catalogue: every named key with its English text, the row
// order, escapes, lookups and the translation round trip through a .qm
// resource.
#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include "string-catalogue-table.h"
#include "string-display.h"
#include "strings-fixture.h"

using namespace string_display;
using strings_fixture::KeyRow;

namespace {

// {name} and %n placeholders of a text, in order of appearance.
QString placeholders_of(const QString& text) {
  static const QRegularExpression re(QStringLiteral("\\{[^{}]*\\}|%[0-9]+"));
  QString out;
  auto it = re.globalMatch(text);
  while (it.hasNext()) out += it.next().captured(0);
  return out;
}

class CatalogueKey : public ::testing::TestWithParam<KeyRow> {};

TEST_P(CatalogueKey, IsPresentWithItsText) {
  const KeyRow& row = GetParam();
  const std::optional<Str> found = find_row(row.key);
  ASSERT_TRUE(found.has_value()) << row.key.toStdString() << " is missing";
  EXPECT_EQ(key(*found), row.key);
  const QString shown = text(*found);
  switch (row.check.toLatin1()) {
    case '=':
    case '+':
      EXPECT_EQ(shown, row.text) << row.key.toStdString();
      break;
    case '^':
      EXPECT_TRUE(shown.startsWith(row.text)) << shown.toStdString();
      EXPECT_THAT(shown.toStdString(), ::testing::HasSubstr("href=\"https://www.nimbrabackup.com/"));
      break;
    case 'L':
      EXPECT_THAT(shown.toStdString(), ::testing::HasSubstr("href=\"https://www.nimbrabackup.com/"));
      EXPECT_THAT(shown.toStdString(), ::testing::HasSubstr("</a>"));
      EXPECT_EQ(placeholders_of(shown), row.text) << shown.toStdString();
      break;
    case '*':
      EXPECT_FALSE(shown.isEmpty());
      EXPECT_EQ(placeholders_of(shown), row.text) << shown.toStdString();
      break;
    default:
      FAIL() << "unknown check " << row.check.toLatin1();
  }
}

std::string key_name(const ::testing::TestParamInfo<KeyRow>& info) {
  return info.param.key.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Named, CatalogueKey, ::testing::ValuesIn(strings_fixture::key_rows()), key_name);

TEST(Catalogue, HoldsExactlyTheListedKeysOnceEach) {
  QSet<QString> listed;
  for (const KeyRow& row : strings_fixture::key_rows()) {
    EXPECT_FALSE(listed.contains(row.key)) << "listed twice: " << row.key.toStdString();
    listed.insert(row.key);
  }
  QSet<QString> keys;
  for (int i = 0; i < kStrCount; ++i) {
    const QString k = QString::fromLatin1(catalogue_rows()[i].key);
    EXPECT_FALSE(keys.contains(k)) << "duplicate key " << k.toStdString();
    keys.insert(k);
    EXPECT_TRUE(listed.contains(k)) << "row without a listed key: " << k.toStdString();
  }
  EXPECT_EQ(keys.size(), listed.size());
}

TEST(Catalogue, FirstEightRowsAreFixed) {
  const char* expected[][2] = {
      {"btn_cancel", "Cancel"},         {"act_tray_quit", "Exit"}, {"desc_about_msg", nullptr},
      {"desc_confirm_logout", nullptr}, {"btn_ok", "OK"},          {"act_help", "Help"},
      {"act_tray_logout", "Log out"},   {"act_about", "About"}};
  for (int i = 0; i < 8; ++i) {
    EXPECT_STREQ(catalogue_rows()[i].key, expected[i][0]) << "row " << i;
    if (expected[i][1]) {
      EXPECT_EQ(text(Str(i)), QString::fromUtf8(expected[i][1]));
    }
  }
  EXPECT_EQ(static_cast<int>(Str::btn_ok), 4);
  EXPECT_EQ(static_cast<int>(Str::act_about), 7);
}

TEST(Catalogue, KeysAreAsciiIdentifiers) {
  static const QRegularExpression re(QStringLiteral("^[a-z][a-z0-9_]*$"));
  for (int i = 0; i < kStrCount; ++i) {
    EXPECT_TRUE(re.match(QString::fromLatin1(catalogue_rows()[i].key)).hasMatch()) << catalogue_rows()[i].key;
  }
}

TEST(Catalogue, BackslashNInADefaultTextBecomesALineBreak) {
  EXPECT_TRUE(source_text(Str::desc_about_msg).contains(QLatin1String("\\n")));
  const QString shown = text(Str::desc_about_msg);
  EXPECT_TRUE(shown.contains(QLatin1Char('\n')));
  EXPECT_FALSE(shown.contains(QLatin1String("\\n")));
  EXPECT_EQ(shown.arg(QStringLiteral("2024")).split(QLatin1Char('\n')).size(), 2);
}

TEST(Catalogue, ExpandEscapes) {
  EXPECT_EQ(expand_escapes(QStringLiteral("a\\nb")), QStringLiteral("a\nb"));
  EXPECT_EQ(expand_escapes(QStringLiteral("a\\tb\\n")), QStringLiteral("a\tb\n"));
  EXPECT_EQ(expand_escapes(QStringLiteral("\\N \\T")), QStringLiteral("\\N \\T"));  // case-sensitive
  EXPECT_EQ(expand_escapes(QStringLiteral("no escapes")), QStringLiteral("no escapes"));
  EXPECT_EQ(expand_escapes(QStringLiteral("\\")), QStringLiteral("\\"));
}

TEST(Catalogue, NoBreakSpacesAreKept) {
  EXPECT_EQ(text(Str::desc_status_error), QStringLiteral("Error") + QChar(0x00a0));
  EXPECT_TRUE(text(Str::desc_wizard_connecting).endsWith(QStringLiteral("...") + QChar(0x00a0)));
}

TEST(Catalogue, LookupByKey) {
  EXPECT_EQ(text_by_key(QStringLiteral("btn_cancel")), QStringLiteral("Cancel"));
  EXPECT_EQ(text_by_key(QStringLiteral("region_taiwan")), QStringLiteral("APAC - Taiwan"));
  EXPECT_TRUE(text_by_key(QStringLiteral("no_such_key")).isEmpty());
  EXPECT_TRUE(text_by_key(QString()).isEmpty());
  EXPECT_FALSE(find_row(QStringLiteral("BTN_CANCEL")).has_value());
  EXPECT_EQ(find_row(QStringLiteral("sunday")), Str::sunday);
}

TEST(Catalogue, RowOutsideTheTableIsEmpty) {
  EXPECT_TRUE(text(Str(kStrCount)).isEmpty());
  EXPECT_TRUE(text(Str(-1)).isEmpty());
  EXPECT_TRUE(key(Str(kStrCount)).isEmpty());
}

// --- translations ---------------------------------------------------------

TEST(Translations, EveryLanguageIsBuiltIn) {
  init_resources();
  ASSERT_EQ(translation_languages().size(), 8);
  for (const QString& lang : translation_languages()) {
    EXPECT_TRUE(QFile::exists(translation_resource(lang))) << lang.toStdString();
    QTranslator translator;
    EXPECT_TRUE(load_translation(translator, lang)) << lang.toStdString();
  }
  EXPECT_EQ(translation_resource(QStringLiteral("ger")), QStringLiteral(":/ger.qm"));
}

TEST(Translations, UnknownLanguageDoesNotLoad) {
  QTranslator translator;
  EXPECT_FALSE(load_translation(translator, QStringLiteral("xyz")));
}

TEST(Translations, GermanRoundTrip) {
  QTranslator translator;
  ASSERT_TRUE(load_translation(translator, QStringLiteral("ger")));
  ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
  EXPECT_EQ(text(Str::btn_cancel), QStringLiteral("Abbrechen"));
  EXPECT_EQ(text(Str::act_tray_quit), QStringLiteral("Beenden"));
  EXPECT_EQ(text(Str::act_help), QStringLiteral("Hilfe"));
  EXPECT_EQ(text(Str::act_tray_logout), QStringLiteral("Abmelden"));
  EXPECT_EQ(text(Str::act_about), QStringLiteral("Info"));
  EXPECT_EQ(text(Str::btn_ok), QStringLiteral("OK"));
  EXPECT_EQ(text(Str::monday), QStringLiteral("Montag"));
  // Escapes are expanded after translating.
  EXPECT_EQ(text(Str::desc_about_msg).arg(QStringLiteral("2024")),
            QStringLiteral("Copyright © 2024 Corvana Inc.\nAlle Rechte vorbehalten."));
  // A row without a translation shows its English text.
  EXPECT_EQ(text(Str::desc_status_idle), QStringLiteral("Idle"));
  ASSERT_TRUE(QCoreApplication::removeTranslator(&translator));
  EXPECT_EQ(text(Str::btn_cancel), QStringLiteral("Cancel"));
  EXPECT_EQ(text(Str::act_tray_quit), QStringLiteral("Exit"));
}

}  // namespace
