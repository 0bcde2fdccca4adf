#include "widgets/resource-paths.h"

#include <QCoreApplication>
#include <QDir>

#include "widgets/ui-path-manager.h"

namespace resource_paths {

QString resource_folder() {
  UIPathManager* paths = UIPathManager::getInstance();
  if (paths->hasPath(QStringLiteral("resource_path"))) return paths->getPath(QStringLiteral("resource_path"));
  return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../resource"));
}

QString images_folder() {
  return resource_folder() + QStringLiteral("/images");
}

}  // namespace resource_paths
