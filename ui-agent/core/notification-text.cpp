#include "ui-agent/core/notification-text.h"

#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"

namespace {

struct NotificationRows {
  int type;
  Str title;
  Str text;
};

constexpr NotificationRows kNotifications[] = {
    {6, Str::notification_backup_success_title, Str::notification_backup_success_desc},
    {7, Str::notification_backup_finish_title, Str::notification_backup_finish_desc},
    {8, Str::notification_storage_nearly_full_title, Str::notification_storage_nearly_full_desc},
    {9, Str::notification_storage_full_title, Str::notification_storage_full_desc},
    {10, Str::notification_auth_failed_title, Str::notification_auth_failed_desc},
    {11, Str::notification_need_fda_title, Str::notification_need_fda_desc},
    {12, Str::notification_reallow_kext_title, Str::notification_reallow_kext_desc},
};

// "1 GB": the storage total in 1024 steps.
QString size_text(const Json::Value& data) {
  return string_display::format_size_text(jsonx::get_uint64(data, "total_size"), false);
}

}  // namespace

QString notification_result_text(int status) {
  switch (status) {
    case 2:
      return string_display::text(Str::desc_status_complete);
    case 3:
      return string_display::text(Str::desc_status_partial_success);
    case 4:
      return string_display::text(Str::desc_status_failed);
    case 5:
      return string_display::text(Str::desc_backup_cancel);
    default:
      return QString();
  }
}

QString notification_text(int type, const Json::Value& data, bool title) {
  for (const NotificationRows& n : kNotifications) {
    if (n.type != type) continue;
    QString out = string_display::text(title ? n.title : n.text);
    // Type 7 names the result in its title, types 8 and 9 the total storage
    // in their text; the others have no parameters.
    if (type == 7 && title) out = out.arg(notification_result_text(jsonx::get_int32(data, "status")));
    if ((type == 8 || type == 9) && !title) out = out.arg(size_text(data));
    return out;
  }
  return QString();
}
