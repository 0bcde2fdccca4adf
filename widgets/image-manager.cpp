#include "widgets/image-manager.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

#include "logging/logger.h"
#include "widgets/dpi-info.h"
#include "widgets/resource-paths.h"

ImageManager* ImageManager::getInstance() {
  static ImageManager instance;
  return &instance;
}

int ImageManager::initialize(int flags) {
  Q_UNUSED(flags);
  return initializeFrom(resource_paths::images_folder());
}

int ImageManager::initializeFrom(const QString& folder) {
  indexed_ = true;
  folder_ = folder;
  files_.clear();
  cache_.clear();
  reportedMissing_.clear();
  const QDir dir(folder);
  if (!dir.exists()) {
    LOG_ERROR(vlog::kDefaultComponent, "pictures folder [%s] does not exist", qUtf8Printable(folder));
    return 0;
  }
  const QFileInfoList entries = dir.entryInfoList({QStringLiteral("*.svg")}, QDir::Files | QDir::Readable);
  for (const QFileInfo& info : entries) files_.insert(info.completeBaseName(), info.absoluteFilePath());
  LOG_INFO(vlog::kDefaultComponent, "%d pictures in [%s]", files_.size(), qUtf8Printable(folder));
  return files_.size();
}

void ImageManager::ensureIndexed() {
  if (!indexed_) initialize(0);
}

bool ImageManager::contains(const QString& name) const {
  const_cast<ImageManager*>(this)->ensureIndexed();
  return files_.contains(name);
}

QStringList ImageManager::names() const {
  const_cast<ImageManager*>(this)->ensureIndexed();
  QStringList out = files_.keys();
  out.sort();
  return out;
}

QSize ImageManager::naturalSize(const QString& name) const {
  if (!contains(name)) return QSize();
  QSvgRenderer renderer(files_.value(name));
  return renderer.isValid() ? renderer.defaultSize() : QSize();
}

QPixmap ImageManager::pixmap(const QString& name, QSize logicalSize, qreal devicePixelRatio) {
  ensureIndexed();
  const auto file = files_.constFind(name);
  if (file == files_.constEnd()) {
    if (!reportedMissing_.contains(name)) {
      reportedMissing_.insert(name, true);
      LOG_WARN(vlog::kDefaultComponent, "unknown picture [%s]", qUtf8Printable(name));
    }
    return QPixmap();
  }
  const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : DPIinfo::getDPR();
  QSvgRenderer renderer(file.value());
  if (!renderer.isValid()) {
    if (!reportedMissing_.contains(name)) {
      reportedMissing_.insert(name, true);
      LOG_ERROR(vlog::kDefaultComponent, "picture [%s] is not a valid SVG file",
                qUtf8Printable(file.value()));
    }
    return QPixmap();
  }
  if (logicalSize.isEmpty()) {
    const QSize natural = renderer.defaultSize();
    logicalSize = QSize(DPIinfo::scaled(natural.width()), DPIinfo::scaled(natural.height()));
    if (logicalSize.isEmpty()) logicalSize = natural;
  }
  const QString key =
      QStringLiteral("%1|%2x%3|%4").arg(name).arg(logicalSize.width()).arg(logicalSize.height()).arg(ratio);
  const auto cached = cache_.constFind(key);
  if (cached != cache_.constEnd()) return cached.value();

  const QSize device(static_cast<int>(std::ceil(logicalSize.width() * ratio)),
                     static_cast<int>(std::ceil(logicalSize.height() * ratio)));
  QPixmap out(device);
  out.fill(Qt::transparent);
  {
    QPainter painter(&out);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(device)));
  }
  out.setDevicePixelRatio(ratio);
  cache_.insert(key, out);
  return out;
}

QPixmap getGlobalImage(const QString& name) {
  return ImageManager::getInstance()->pixmap(name);
}
