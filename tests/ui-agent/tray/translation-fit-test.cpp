// In every language, the activity messages with values fit the pop-up's two
// lines and the activity dialog's three lines with each value shown whole and
// in bold; the longest ones are only shortened at their end.

#include <gtest/gtest.h>

#include <QApplication>
#include <QRegularExpression>
#include <QTranslator>

#include <map>

#include "tests/support/qt-print.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/language-font.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/event-fit.h"

namespace {

using namespace string_display;

// One body for every event: realistic values, the long ones as long as a
// user's paths get.
Json::Value sample_body() {
  return agent_test::parse(R"({
    "volume_name": "C:", "error_code": "0x80070005", "inode_number": "1048577",
    "path": "C:\\Users\\Anna\\Documents\\Taxes 2024\\receipts.pdf", "parent_path": "C:\\Users\\Anna\\Documents",
    "email": "anna.keller@example.com", "trigger_event": "Screen lock", "task_name": "Daily backup",
    "task": "Daily backup", "destination": "D:\\Restore", "plan_name": "Default policy",
    "interval_start": "409600", "interval_end": "413696", "exit_code": "2", "cbt": true
  })");
}

std::vector<quint32> types_with_values() {
  std::vector<quint32> types;
  for (quint32 type = 1000; type <= 8300; ++type) {
    const event_text::Kind kind = event_text::kind_of(type);
    if (kind != event_text::Kind::Named && kind != event_text::Kind::Generic) continue;
    if (!source_text(*event_text::row_of(type)).contains(QLatin1Char('{'))) continue;
    types.push_back(type);
  }
  return types;
}

QStringList bold_values(const QString& rich) {
  static const QRegularExpression re(QStringLiteral("<b>(.*?)</b>"));
  QStringList values;
  auto it = re.globalMatch(rich);
  while (it.hasNext()) values << it.next().captured(1);
  return values;
}

int whole_values(const QString& fitted, const QStringList& values) {
  int kept = 0;
  for (const QString& v : bold_values(fitted)) kept += !v.isEmpty() && values.contains(v) ? 1 : 0;
  return kept;
}

struct Fitted {
  QString message;  // rich text at the limit found
  int limit = 0;
  bool fits = false;  // false: even the smallest limit overflows
};

Fitted fit_with(event_fit::Fitter& fitter, const LogEntry& entry) {
  const auto found = fitter.fit(entry);
  return {found.message, found.limit, fitter.fits(found.message)};
}

struct Fit {
  QStringList values;  // the bold values of the unshortened message
  Fitted popup;
  Fitted dialog;
};

// Every message with values fitted in the current language and font.
std::map<quint32, Fit> fit_all() {
  std::map<quint32, Fit> fits;
  event_fit::Fitter popup = event_fit::Fitter::tray();
  event_fit::Fitter dialog = event_fit::Fitter::activity();
  LogEntry entry;
  entry.body = sample_body();
  for (quint32 type : types_with_values()) {
    entry.type = type;
    const QStringList values = bold_values(event_text::render(entry, true, 100000));
    if (values.isEmpty()) continue;  // placeholders whose members never hold text
    fits[type] = {values, fit_with(popup, entry), fit_with(dialog, entry)};
  }
  return fits;
}

class LanguageFit : public ::testing::TestWithParam<QString> {
 protected:
  static void SetUpTestSuite() {
    language_font::install_font_substitutions();
    const QFont saved = QApplication::font();
    QApplication::setFont(language_font::application_font(QStringLiteral("enu")));
    english_ = new std::map<quint32, Fit>(fit_all());
    QApplication::setFont(saved);
  }
  static void TearDownTestSuite() {
    delete english_;
    english_ = nullptr;
  }
  void SetUp() override {
    saved_font_ = QApplication::font();
    QApplication::setFont(language_font::application_font(GetParam()));
    ASSERT_TRUE(load_translation(translator_, GetParam()));
    QCoreApplication::installTranslator(&translator_);
  }
  void TearDown() override {
    QCoreApplication::removeTranslator(&translator_);
    QApplication::setFont(saved_font_);
  }

  static std::map<quint32, Fit>* english_;
  QTranslator translator_;
  QFont saved_font_;
};
std::map<quint32, Fit>* LanguageFit::english_ = nullptr;

// The dialog's three lines hold every value whole. The pop-up's two lines
// cannot always (a long path does not fit in English either): there a
// translation keeps at least the values the English text keeps.
TEST_P(LanguageFit, EventValuesStayWholeAndBoldInThePopupAndTheDialog) {
  const std::map<quint32, Fit> fits = fit_all();
  ASSERT_EQ(fits.size(), english_->size());
  int shortened = 0;
  for (const auto& [type, fit] : fits) {
    const Fit& english = english_->at(type);
    ASSERT_EQ(fit.values.size(), english.values.size()) << type;
    EXPECT_EQ(bold_values(fit.dialog.message), fit.values)
        << type << " dialog: " << fit.dialog.message.toStdString();
    EXPECT_GE(whole_values(fit.popup.message, fit.values),
              whole_values(english.popup.message, english.values))
        << type << " pop-up: " << fit.popup.message.toStdString()
        << "\n  English: " << english.popup.message.toStdString();
    // Every message fits both labels: the limits go on below 0 until it does.
    EXPECT_TRUE(fit.popup.fits) << type << " overflows the pop-up: " << fit.popup.message.toStdString();
    EXPECT_TRUE(fit.dialog.fits) << type << " overflows the dialog: " << fit.dialog.message.toStdString();
    // What is shown of a value stays bold: tags come in pairs.
    EXPECT_EQ(fit.popup.message.count(QLatin1String("<b>")), fit.popup.message.count(QLatin1String("</b>")))
        << type;
    if (!fit.popup.message.endsWith(fit.values.last() + QLatin1String("</b>")) && fit.popup.limit < 354)
      ++shortened;
  }
  // The longest messages did need the loop.
  EXPECT_GT(shortened, 0);
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageFit,
                         ::testing::Values(QStringLiteral("ger"), QStringLiteral("fre"),
                                           QStringLiteral("spn"), QStringLiteral("tha"),
                                           QStringLiteral("chs"), QStringLiteral("cht"),
                                           QStringLiteral("jpn"), QStringLiteral("krn")),
                         [](const ::testing::TestParamInfo<QString>& p) { return p.param.toStdString(); });

}  // namespace
