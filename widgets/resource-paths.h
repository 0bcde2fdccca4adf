#pragma once
// Where the widget layer finds its resources: the "resource_path" registered
// in UIPathManager, or, before start-up registered it, the folder
// "../resource" beside the executable (the layout of both the build and the
// install tree).

#include <QString>

namespace resource_paths {

QString resource_folder();
// resource_folder() + "/images"
QString images_folder();

}  // namespace resource_paths
