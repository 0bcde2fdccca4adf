#pragma once
// Shared set-up of the tray tests: local time pinned to UTC (the pop-up's
// times are local), the product's look, and log entries built in one line.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTranslator>

#include <ctime>
#include <string>

#include "tests/support/qt-print.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/language-font.h"
#include "ui-agent/core/log-entry.h"
#include "ui-agent/core/string-display.h"

namespace tray_test {

// 2024/01/31 23:59:05 UTC
constexpr qint64 kMoment = 1706745545;

inline void pinUtc() {
  qputenv("TZ", "UTC");
  tzset();
}

inline LogEntry entry(quint64 id, quint64 time = kMoment, quint32 type = 1101,
                      const std::string& body = "{}") {
  LogEntry e;
  e.id = id;
  e.time = time;
  e.type = type;
  e.body = agent_test::parse(body);
  return e;
}

// The font and translation of `language` ("enu": no translation) while it lives.
class ScopedLanguage {
 public:
  explicit ScopedLanguage(const char* language) : saved_(QApplication::font()) {
    language_font::install_font_substitutions();
    QApplication::setFont(language_font::application_font(QLatin1String(language)));
    if (QLatin1String(language) == QLatin1String("enu")) return;
    EXPECT_TRUE(string_display::load_translation(translator_, QLatin1String(language))) << language;
    QCoreApplication::installTranslator(&translator_);
  }
  ~ScopedLanguage() {
    QCoreApplication::removeTranslator(&translator_);
    QApplication::setFont(saved_);
  }

 private:
  QFont saved_;
  QTranslator translator_;
};

class TrayTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    pinUtc();
    agent_test::loadLook();
  }
};

}  // namespace tray_test
