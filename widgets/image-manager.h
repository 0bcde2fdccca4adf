#pragma once
// Pictures by name. Every picture is an SVG file <resource_path>/images/
// <name>.svg, rendered with QtSvg for the device pixel ratio so that it stays
// sharp at any display scale. Rendered pixmaps are cached by name, logical
// size and pixel ratio. GUI thread only (pixmaps are GUI-thread objects).

#include <QHash>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>

class ImageManager {
 public:
  static ImageManager* getInstance();

  // Indexes the pictures folder. `flags` is reserved (pass 0). Returns the
  // number of pictures found; a missing folder is logged and gives 0.
  int initialize(int flags = 0);
  // Indexes another folder instead (tests, tools).
  int initializeFrom(const QString& folder);

  bool contains(const QString& name) const;
  QStringList names() const;
  // The picture's own size in logical pixels (its SVG default size), or an
  // invalid size when unknown.
  QSize naturalSize(const QString& name) const;
  // The picture rendered at `logicalSize` (its natural size scaled by
  // DPIinfo::getDPI() when empty) for `devicePixelRatio` (DPIinfo::getDPR()
  // when 0): a pixmap of logicalSize x ratio device pixels whose
  // devicePixelRatio() is the ratio. A null pixmap and a log line when unknown.
  QPixmap pixmap(const QString& name, QSize logicalSize = QSize(), qreal devicePixelRatio = 0);

  int cachedCount() const { return cache_.size(); }
  void clearCache() { cache_.clear(); }

 private:
  ImageManager() = default;
  void ensureIndexed();

  bool indexed_ = false;
  QString folder_;
  QHash<QString, QString> files_;
  QHash<QString, QPixmap> cache_;
  QHash<QString, bool> reportedMissing_;
};

// ImageManager::getInstance()->pixmap(name): the picture at its natural size
// times the display scale, for the screen's device pixel ratio.
QPixmap getGlobalImage(const QString& name);
