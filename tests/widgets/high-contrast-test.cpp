// The high-contrast look: computed from the style sheets and the palette,
// every text reaches 4.5:1 against its background (3:1 for large text and
// focus rings); the look switches live, each widget's own sheet included.

#include <QFile>
#include <QLabel>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include "tests/support/qt-print.h"
#include "tests/widgets/widgets-fixture.h"
#include "widgets/style-manager.h"

namespace {

const QString kResources = QStringLiteral(WIDGETS_TEST_DIR "/../../resource/");

QString read(const QString& name) {
  QFile f(kResources + name);
  return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

// "#RRGGBB", "rgb(a)(r,g,b[,a])", "white": over `under` when translucent.
bool colourOf(const QString& text, const QColor& under, QColor& out) {
  static const QRegularExpression rgba(QStringLiteral(
      "^rgba?\\(\\s*([\\d.]+)\\s*,\\s*([\\d.]+)\\s*,\\s*([\\d.]+)\\s*(?:,\\s*([\\d.]+)\\s*)?\\)$"));
  const QString t = text.trimmed();
  const auto m = rgba.match(t);
  if (!m.hasMatch()) {
    out = QColor(t);
    return out.isValid() && t != QLatin1String("transparent");
  }
  double a = m.captured(4).isEmpty() ? 1.0 : m.captured(4).toDouble();
  if (a > 1) a /= 255;
  auto mix = [&](int i, int u) {
    return static_cast<int>(std::lround(m.captured(i).toDouble() * a + u * (1 - a)));
  };
  out = QColor(mix(1, under.red()), mix(2, under.green()), mix(3, under.blue()));
  return true;
}

double luminance(const QColor& c) {
  auto ch = [](int v) {
    const double s = v / 255.0;
    return s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * ch(c.red()) + 0.7152 * ch(c.green()) + 0.0722 * ch(c.blue());
}

double ratio(const QColor& a, const QColor& b) {
  const double x = luminance(a), y = luminance(b);
  return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

struct Pair {
  QString where;
  double ratio;
  double need;
};

// Every rule's text colour against its background (the rule's, else the
// same selector's base rule's, else the white of the agent's surfaces), and
// every focus ring against its background; disabled states are exempt, as
// are the decorative divider lines.
std::vector<Pair> pairsOf(const QString& file) {
  std::vector<Pair> pairs;
  static const QRegularExpression header(QStringLiteral("^\\s*@@\\s*(\\S+)"));
  static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^{}]*)\\}"));
  static const QRegularExpression ringColour(QStringLiteral("(#[0-9A-Fa-f]{6}|rgba?\\([^)]*\\))"));
  QString name, body;
  const QStringList lines = (file + "\n@@ end").split('\n');
  for (const QString& line : lines) {
    const auto h = header.match(line);
    if (!h.hasMatch()) {
      body += line + '\n';
      continue;
    }
    body.remove(
        QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    QHash<QString, QHash<QString, QString>> base;
    for (auto it = rule.globalMatch(body); it.hasNext() && name != "hline_divider";) {
      const auto r = it.next();
      QHash<QString, QString> decl;
      for (const QString& d : r.captured(2).split(';')) {
        const int colon = d.indexOf(':');
        if (colon > 0) decl.insert(d.left(colon).trimmed().toLower(), d.mid(colon + 1).trimmed());
      }
      for (QString sel : r.captured(1).split(',')) {
        sel = sel.trimmed();
        const QString root = sel.section(QRegularExpression(QStringLiteral(":(?!:)")), 0, 0);
        QHash<QString, QString> merged = base[root];
        if (sel == root) base[root].insert(decl);
        merged.insert(decl);
        if (sel.contains(":disabled")) continue;
        QColor bg(Qt::white);
        const QString bgText = merged.value("background-color", merged.value("background"));
        if (!bgText.isEmpty() && !colourOf(bgText, Qt::white, bg)) bg = Qt::white;
        QColor fg;
        if ((decl.contains("color") || decl.contains("background-color")) && merged.contains("color") &&
            colourOf(merged.value("color"), bg, fg)) {
          const double px = QString(merged.value("font-size")).remove("px").toDouble();
          const bool large = px >= 24 || (merged.value("font-weight") == "bold" && px >= 18.66);
          pairs.push_back({name + " " + sel, ratio(fg, bg), large ? 3.0 : 4.5});
        }
        const auto ring = ringColour.match(decl.value("border"));
        QColor ringC;
        if (sel.contains(":focus") && ring.hasMatch() && colourOf(ring.captured(1), bg, ringC))
          pairs.push_back(
              {name + " " + sel + " ring", std::min(ratio(ringC, bg), ratio(ringC, Qt::white)), 3.0});
      }
    }
    name = h.captured(1);
    body.clear();
  }
  return pairs;
}

std::vector<Pair> lookPairs(bool high) {
  const auto swaps = high_contrast::parsePalette(read("high-contrast.palette"), "palette");
  std::vector<Pair> all;
  for (const char* f : {"agent.stylesheet", "component.business.stylesheet"}) {
    const QString text = read(f);
    const auto pairs = pairsOf(high ? high_contrast::apply(text, swaps) : text);
    all.insert(all.end(), pairs.begin(), pairs.end());
  }
  return all;
}

TEST(HighContrast, EveryTextAndFocusRingReachesItsRatio) {
  const auto high = lookPairs(true);
  ASSERT_GT(high.size(), 40u);
  for (const Pair& p : high) EXPECT_GE(p.ratio, p.need) << p.where.toStdString();
}

TEST(HighContrast, ThePaletteIsReadAndStable) {
  widgets_test::LogCapture log;
  const auto swaps = high_contrast::parsePalette(
      "// c\n#0A9CFF #005FB8\n\nrgba(1, 2, 3, 0.5) #000000\nbad\n#1 #2 #3\n#0A9CFF 12px\n", "t");
  ASSERT_EQ(swaps.size(), 2);
  EXPECT_EQ(swaps[1].from, "rgba(1, 2, 3, 0.5)");
  EXPECT_EQ(log.count("[t] line 5: not two colours"), 1) << log.text();
  EXPECT_EQ(log.count("[t] line 6: not two colours"), 1) << log.text();
  EXPECT_EQ(high_contrast::apply("a { color: #0a9cff; }", swaps), "a { color: #005FB8; }");
  // No colour it puts in is one it takes out: converting twice changes nothing.
  const auto real = high_contrast::parsePalette(read("high-contrast.palette"), "palette");
  for (const auto& s : real)
    for (const auto& t : real) EXPECT_NE(s.to.toLower(), t.from.toLower()) << s.to.toStdString();
}

TEST(HighContrast, SwitchesLiveAndGivesEachWidgetItsOwnSheetBack) {
  StyleManager* sm = StyleManager::getInstance();
  sm->loadPalette("#0A9CFF #005FB8", "t");
  QLabel before, later;
  before.setStyleSheet("QLabel { color: #0A9CFF; }");
  sm->setHighContrast(true);
  EXPECT_EQ(before.styleSheet(), "QLabel { color: #005FB8; }");
  later.setStyleSheet("QLabel { background: #0a9cff; }");  // set while on
  EXPECT_EQ(later.styleSheet(), "QLabel { background: #005FB8; }");
  before.setStyleSheet("QLabel { color: red; }");  // its own new sheet, nothing to swap
  sm->setHighContrast(false);
  EXPECT_EQ(before.styleSheet(), "QLabel { color: red; }");
  EXPECT_EQ(later.styleSheet(), "QLabel { background: #0a9cff; }");
  sm->loadPalette("", "t");
}

}  // namespace
