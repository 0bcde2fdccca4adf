#include "ui-agent/tray/tray-menu-model.h"

#include "vantor-core/lib/json-access.h"

namespace tray_menu_model {

bool shows_progress_page(ServiceStatus status, const Json::Value& content) {
  return !service_status::is_idle(status) && !service_status::is_error(status) &&
         jsonx::get_bool(content, "connected");
}

bool keep_entries(QList<LogEntry>& kept, const QList<LogEntry>& incoming) {
  if (incoming.isEmpty()) return false;
  kept.append(incoming);
  if (kept.size() >= kKeptEntries) kept.erase(kept.begin(), kept.end() - kKeptEntries);
  return true;
}

MenuVisibility menu_visibility(bool is_vell_account, bool is_auth_fork, int backup_role) {
  if (is_auth_fork) return {false, false, false};
  if (is_vell_account) return {true, true, true};
  return {backup_role == 3, backup_role >= 2, false};
}

}  // namespace tray_menu_model
