#include "style-manager.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include "dpi-info.h"
#include "logger.h"
#include "resource-paths.h"

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
    const int blocks = loadFromString(in.readAll(), path);
    LOG_INFO(vlog::kDefaultComponent, "loaded %d style sheets from [%s]", blocks, qUtf8Printable(path));
    ++read;
  }
  return read;
}

int StyleManager::loadFromString(const QString& text, const QString& origin) {
  static const QRegularExpression header(QStringLiteral("^\\s*@@\\s*([A-Za-z0-9_.\\-]+)\\s*$"));
  static const QRegularExpression badHeader(QStringLiteral("^\\s*@@"));
  const QString images = resource_paths::imagesFolder();

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
  return sheets_.value(name);
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

QString getStyleSheet(const QString& name, bool scaled) {
  StyleManager* manager = StyleManager::getInstance();
  if (!manager->contains(name)) {
    LOG_WARN(vlog::kDefaultComponent, "unknown style sheet [%s], using none", qUtf8Printable(name));
    return QString();
  }
  const QString sheet = manager->styleSheet(name);
  return scaled ? DPIinfo::getScaledStyleSheet(sheet) : sheet;
}
