// The string catalogue: every row reachable by its key, the fixed first rows,
// escapes, lookups and the translation round trip through a .qm resource.
// (Every English text is pinned by the translation files: translation-files-test.cpp.)
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSet>
#include <QTranslator>

#include "ui-agent/catalogue/string-catalogue-table.h"
#include "ui-agent/core/string-display.h"

using namespace string_display;

namespace {

TEST(Catalogue, EveryRowHasAUniqueKeyThatFindsItAndATextTheFirstEightFixed) {
  QSet<QString> keys;
  for (int i = 0; i < kStrCount; ++i) {
    const QString k = key(Str(i));
    EXPECT_EQ(k, QString::fromLatin1(catalogue_rows()[i].key));
    EXPECT_FALSE(keys.contains(k)) << "duplicate key " << k.toStdString();
    keys.insert(k);
    EXPECT_EQ(find_row(k), Str(i)) << k.toStdString();
    EXPECT_FALSE(text(Str(i)).isEmpty()) << k.toStdString();
    EXPECT_EQ(text_by_key(k), text(Str(i))) << k.toStdString();
  }
  const char* const first[] = {"btn_cancel", "act_tray_quit", "desc_about_msg",  "desc_confirm_logout",
                               "btn_ok",     "act_help",      "act_tray_logout", "act_about"};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(key(Str(i)), QLatin1String(first[i])) << i;
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

TEST(Translations, EveryLanguageIsBuiltInUnknownOnesDoNotLoadAndGermanRoundTrips) {
  init_resources();
  ASSERT_EQ(translation_languages().size(), 8);
  for (const QString& lang : translation_languages()) {
    QTranslator translator;
    EXPECT_TRUE(load_translation(translator, lang)) << lang.toStdString();
  }
  EXPECT_EQ(translation_resource(QStringLiteral("ger")), QStringLiteral(":/ger.qm"));
  QTranslator unknown;
  EXPECT_FALSE(load_translation(unknown, QStringLiteral("xyz")));

  QTranslator translator;
  ASSERT_TRUE(load_translation(translator, QStringLiteral("ger")));
  ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
  EXPECT_EQ(text(Str::btn_cancel), QStringLiteral("Abbrechen"));
  // Escapes are expanded after translating.
  EXPECT_EQ(text(Str::desc_about_msg).arg(QStringLiteral("2024")),
            QStringLiteral("Copyright © 2024 Corvana Inc.\nAlle Rechte vorbehalten."));
  // The no-break space after the status word survives the translation.
  EXPECT_EQ(text(Str::desc_status_error), QStringLiteral("Fehler") + QChar(0x00a0));
  ASSERT_TRUE(QCoreApplication::removeTranslator(&translator));
  EXPECT_EQ(text(Str::btn_cancel), QStringLiteral("Cancel"));
}

}  // namespace
