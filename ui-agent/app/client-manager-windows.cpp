// Windows: the notifier on Windows 10 and later, tray balloons before.
#include "ui-agent/app/client-manager.h"
#include "ui-agent/platform/os-services.h"
#include "widgets/ui-path-manager.h"

namespace client_manager_platform {

QString notifierProgram() {
  return UIPathManager::getInstance()->getPath(QStringLiteral("application_path")) +
         QStringLiteral("/Nimbra Backup Notifier.exe");
}

bool useNotifier() {
  return os_services::windows_at_least(10);
}

}  // namespace client_manager_platform
