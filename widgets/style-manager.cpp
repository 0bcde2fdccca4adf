#include "widgets/style-manager.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>
#include <QWidget>

#include "logging/logger.h"
#include "widgets/dpi-info.h"
#include "widgets/resource-paths.h"

StyleManager* StyleManager::getInstance() {
  static StyleManager instance;
  return &instance;
}

int StyleManager::initialize(const QStringList& files) {
  int read = 0;
  for (const QString& path : files) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
      LOG_ERROR(vlog::kDefaultComponent, "cannot open style sheet file [%s]: %s", qUtf8Printable(path),
                qUtf8Printable(file.errorString()));
      continue;
    }
    QTextStream in(&file);
    in.setCodec("UTF-8");
    if (path.endsWith(QLatin1String(".palette"))) {
      loadPalette(in.readAll(), path);
      ++read;
      continue;
    }
    const int blocks = loadFromString(in.readAll(), path);
    LOG_INFO(vlog::kDefaultComponent, "loaded %d style sheets from [%s]", blocks, qUtf8Printable(path));
    ++read;
  }
  return read;
}

int StyleManager::loadFromString(const QString& text, const QString& origin) {
  static const QRegularExpression header(QStringLiteral("^\\s*@@\\s*([A-Za-z0-9_.\\-]+)\\s*$"));
  static const QRegularExpression badHeader(QStringLiteral("^\\s*@@"));
  const QString images = resource_paths::images_folder();

  QHash<QString, QString> parsed;
  QStringList order;
  QString current;
  QString body;
  bool inBlock = false;
  auto finish = [&]() {
    if (!inBlock) return;
    body.replace(QStringLiteral("$images"), images);
    if (parsed.contains(current))
      LOG_WARN(vlog::kDefaultComponent, "style sheet [%s] defined twice in [%s], the later one is kept",
               qUtf8Printable(current), qUtf8Printable(origin));
    else
      order << current;
    parsed.insert(current, body.trimmed());
  };

  const QStringList lines = text.split(QLatin1Char('\n'));
  for (int i = 0; i < lines.size(); ++i) {
    const QString& line = lines[i];
    const auto m = header.match(line);
    if (m.hasMatch()) {
      finish();
      current = m.captured(1);
      body.clear();
      inBlock = true;
      continue;
    }
    if (badHeader.match(line).hasMatch()) {
      LOG_WARN(vlog::kDefaultComponent, "[%s] line %d: malformed block header skipped",
               qUtf8Printable(origin), i + 1);
      continue;
    }
    if (inBlock) {
      body += line;
      body += QLatin1Char('\n');
    }
  }
  finish();

  QMutexLocker lock(&mutex_);
  for (const QString& name : order) {
    if (sheets_.contains(name))
      LOG_WARN(vlog::kDefaultComponent, "style sheet [%s] from [%s] replaces an earlier one",
               qUtf8Printable(name), qUtf8Printable(origin));
    sheets_.insert(name, parsed.value(name));
  }
  return order.size();
}

bool StyleManager::contains(const QString& name) const {
  QMutexLocker lock(&mutex_);
  return sheets_.contains(name);
}

QString StyleManager::styleSheet(const QString& name) const {
  QMutexLocker lock(&mutex_);
  return highContrast_ ? high_contrast::apply(sheets_.value(name), palette_) : sheets_.value(name);
}

QStringList StyleManager::names() const {
  QMutexLocker lock(&mutex_);
  QStringList out = sheets_.keys();
  out.sort();
  return out;
}

void StyleManager::clear() {
  QMutexLocker lock(&mutex_);
  sheets_.clear();
}

// ---- the high-contrast look ----------------------------------------------------

namespace high_contrast {

QVector<Swap> parsePalette(const QString& text, const QString& origin) {
  static const QRegularExpression colour(QStringLiteral("^(#[0-9A-Fa-f]{6}|rgba?\\([0-9., ]+\\)|[a-z]+)$"));
  QVector<Swap> swaps;
  const QStringList lines = text.split(QLatin1Char('\n'));
  for (int i = 0; i < lines.size(); ++i) {
    const QString line = lines[i].trimmed();
    if (line.isEmpty() || line.startsWith(QLatin1String("//"))) continue;
    const QStringList parts = line.split(QRegularExpression(QStringLiteral("\\s+(?![^(]*\\))")));
    if (parts.size() != 2 || !colour.match(parts[0]).hasMatch() || !colour.match(parts[1]).hasMatch()) {
      LOG_WARN(vlog::kDefaultComponent, "[%s] line %d: not two colours, skipped", qUtf8Printable(origin),
               i + 1);
      continue;
    }
    swaps.push_back({parts[0], parts[1]});
  }
  return swaps;
}

QString apply(const QString& sheet, const QVector<Swap>& swaps) {
  QString out = sheet;
  for (const Swap& s : swaps) out.replace(s.from, s.to, Qt::CaseInsensitive);
  return out;
}

}  // namespace high_contrast

namespace {

const char* const kOwnSheet = "nimbraOwnStyleSheet";

// Converts the sheet of every widget that sets one while the look is on:
// the widget's own sheet is kept in a property, so that it comes back when
// the look goes off.
class ContrastRestyler : public QObject {
 public:
  static ContrastRestyler* instance() {
    static ContrastRestyler* restyler = nullptr;
    if (!restyler && qApp) {
      restyler = new ContrastRestyler(qApp);
      qApp->installEventFilter(restyler);
    }
    return restyler;
  }

  void restyleAll() {
    for (QWidget* w : QApplication::allWidgets()) restyle(w);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::StyleChange && watched->isWidgetType() && !busy_)
      restyle(static_cast<QWidget*>(watched));
    return QObject::eventFilter(watched, event);
  }

 private:
  using QObject::QObject;

  void restyle(QWidget* w) {
    const QString current = w->styleSheet();
    const QVariant kept = w->property(kOwnSheet);
    StyleManager* manager = StyleManager::getInstance();
    const QVector<high_contrast::Swap> swaps = manager->palette();
    // A sheet set since the last conversion is the widget's own now.
    QString own =
        kept.isValid() && current == high_contrast::apply(kept.toString(), swaps) ? kept.toString() : current;
    const QString wanted = manager->highContrast() ? high_contrast::apply(own, swaps) : own;
    busy_ = true;
    if (wanted != current) w->setStyleSheet(wanted);
    w->setProperty(kOwnSheet, wanted != own ? QVariant(own) : QVariant());
    busy_ = false;
  }

  bool busy_ = false;
};

}  // namespace

void StyleManager::loadPalette(const QString& text, const QString& origin) {
  const QVector<high_contrast::Swap> swaps = high_contrast::parsePalette(text, origin);
  LOG_INFO(vlog::kDefaultComponent, "loaded %d high-contrast colours from [%s]",
           static_cast<int>(swaps.size()), qUtf8Printable(origin));
  QMutexLocker lock(&mutex_);
  palette_ = swaps;
}

QVector<high_contrast::Swap> StyleManager::palette() const {
  QMutexLocker lock(&mutex_);
  return palette_;
}

void StyleManager::setHighContrast(bool on) {
  {
    QMutexLocker lock(&mutex_);
    if (highContrast_ == on) return;
    highContrast_ = on;
  }
  LOG_INFO(vlog::kDefaultComponent, "high contrast %s", on ? "on" : "off");
  if (ContrastRestyler* restyler = ContrastRestyler::instance()) restyler->restyleAll();
}

bool StyleManager::highContrast() const {
  QMutexLocker lock(&mutex_);
  return highContrast_;
}

QString getStyleSheet(const QString& name, bool scaled) {
  StyleManager* manager = StyleManager::getInstance();
  if (!manager->contains(name)) {
    LOG_WARN(vlog::kDefaultComponent, "unknown style sheet [%s], using none", qUtf8Printable(name));
    return QString();
  }
  const QString sheet = manager->styleSheet(name);
  return scaled ? DPIinfo::getScaledStyleSheet(sheet) : sheet;
}
