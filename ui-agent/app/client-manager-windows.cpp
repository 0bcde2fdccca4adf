// Windows: the notifier on Windows 10 and later, tray balloons before.
#include "client-manager.h"
#include "os-services.h"
#include "ui-path-manager.h"

namespace client_manager_platform {

QString notifierProgram() {
  return UIPathManager::getInstance()->getPath(QStringLiteral("application_path")) +
         QStringLiteral("/Nimbra Backup Notifier.exe");
}

bool useNotifier() {
  return os_services::windows_at_least(10);
}

}  // namespace client_manager_platform
