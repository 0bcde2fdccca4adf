#include "widgets/dpi-info.h"
#include "logging/per-thread.h"

#include <QGuiApplication>
#include <QHash>
#include <QRegularExpression>
#include <QScreen>

#include <cmath>

double DPIinfo::getDPI() {
  bool ok = false;
  const double forced = qEnvironmentVariable("NIMBRA_UI_SCALE").toDouble(&ok);
  if (ok && forced > 0.0) return forced;
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return 1.0;
  const double dpi = screen->logicalDotsPerInch();
  return dpi > 0.0 ? dpi / 96.0 : 1.0;
}

double DPIinfo::getDPR() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->devicePixelRatio() : 1.0;
}

int DPIinfo::scaled(double length) {
  return static_cast<int>(std::trunc(length * getDPI()));
}

QString DPIinfo::getScaledStyleSheet(const QString& sheet) {
  // A length is a number on its own followed by "px": not the tail of a name
  // such as "#item12px".
  static const QRegularExpression px(QStringLiteral("(?<![\\w.#-])(-?\\d+(?:\\.\\d+)?)px\\b"));
  const double scale = getDPI();
  // Widgets ask for the same few sheets again and again (every label of a
  // kind, every page built): each is worked out once per scale and thread
  // (kept per thread, not in thread_local objects: see per-thread.h).
  struct Cache {
    QHash<QString, QString> done;
    double scale = 0.0;
  };
  static vlog::PerThread<Cache> caches(+[]() { return new Cache; });
  return caches.with([&](Cache& cache) {
    if (cache.scale != scale) {
      cache.done.clear();
      cache.scale = scale;
    }
    const auto known = cache.done.constFind(sheet);
    if (known != cache.done.constEnd()) return known.value();
    QString out;
    out.reserve(sheet.size());
    int last = 0;
    auto it = px.globalMatch(sheet);
    while (it.hasNext()) {
      const auto m = it.next();
      out += sheet.midRef(last, m.capturedStart() - last);
      const double value = m.captured(1).toDouble();
      out += QString::number(static_cast<int>(std::trunc(value * scale))) + QStringLiteral("px");
      last = m.capturedEnd();
    }
    out += sheet.midRef(last);
    // Bounded: the sheets are the style sheet file's and a few literals.
    if (cache.done.size() < 512) cache.done.insert(sheet, out);
    return out;
  });
}
