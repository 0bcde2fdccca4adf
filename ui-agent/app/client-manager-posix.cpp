// Linux: the notifier always shows pushed notifications (freedesktop
// notifications over D-Bus); it is nimbra-backup-notifier beside the agent.
#include "ui-agent/app/client-manager.h"
#include "widgets/ui-path-manager.h"

namespace client_manager_platform {

QString notifierProgram() {
  return UIPathManager::getInstance()->getPath(QStringLiteral("application_path")) +
         QStringLiteral("/nimbra-backup-notifier");
}

bool useNotifier() {
  return true;
}

}  // namespace client_manager_platform
