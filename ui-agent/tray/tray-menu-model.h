#pragma once
// The tray pop-up's decisions: which page a status shows, how many event-log
// entries are kept and which drop-down entries an account sees.

#include <json/value.h>

#include <QList>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/core/service-status.h"

namespace tray_menu_model {

constexpr int kKeptEntries = 100;

// The progress page for a running (or any other non-idle, non-error)
// category while "connected" is true; the status page otherwise.
bool shows_progress_page(ServiceStatus status, const Json::Value& content);

// Appends `incoming` to `kept` and keeps only the last 100. Returns false
// (and changes nothing) for an empty `incoming`.
bool keep_entries(QList<LogEntry>& kept, const QList<LogEntry>& incoming);

struct MenuVisibility {
  bool web_console;
  bool recovery_portal;
  bool quota_area;  // the quota widget's lower area (usage label and bar)
};
// An auth-fork account sees neither link nor the quota area; a "vell"
// account sees all three; any other account the links its role allows.
MenuVisibility menu_visibility(bool is_vell_account, bool is_auth_fork, int backup_role);

}  // namespace tray_menu_model
