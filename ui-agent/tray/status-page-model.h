#pragma once
// What the status page shows for one status content: the result (text,
// picture, tray state), the schedule box's two values and, when the service
// reports an error or the device is not connected, the error message.

#include <json/value.h>

#include <QString>

#include <optional>

#include "ui-agent/catalogue/string-catalogue.h"
#include "ui-agent/core/tray-status.h"

namespace status_page_model {

struct Result {
  Str text;
  const char* picture;
  TrayStatus tray;
};

// The result row of a last backup status code; `backed_up` false is Ready
// whatever the code says.
Result result_for(int last_status, bool backed_up);

struct View {
  bool error = false;  // the error page: error_message instead of the latest event
  Result result{Str::desc_status_connected, "status_m_idle", TrayIdle};
  QString error_message;  // error page only
  // The schedule box's values; nullopt leaves the label as it is.
  std::optional<QString> last_backup;
  std::optional<QString> next_backup;
};

// The page for a status content. The error page is taken when the content
// has an "error" member or "connected" is not true; its code is error.code,
// or 5 when there is no "error" at all.
View view_for(const Json::Value& content);

// The error code the error page shows for a content (5 without "error").
int error_code_of(const Json::Value& content);

// The schedule value texts: 0 is "Not backed up yet" / "No backup schedule",
// any other time is local "yyyy/MM/dd HH:mm".
QString last_backup_text(quint64 secs);
QString next_backup_text(quint64 secs);
// The next-backup text for a schedule type without a next time: 1, 3 and 4
// have their own texts, any other type leaves the label unchanged.
std::optional<QString> schedule_type_text(qint64 type);

}  // namespace status_page_model
