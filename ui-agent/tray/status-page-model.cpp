#include "ui-agent/tray/status-page-model.h"

#include <limits>

#include "ui-agent/core/service-error-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/relative-age.h"
#include "vantor-core/lib/json-access.h"

namespace status_page_model {

Result result_for(int last_status, bool backed_up) {
  if (backed_up) {
    switch (last_status) {
      case 2:
        return {Str::desc_status_complete, "status_m_done", TraySuccess};
      case 3:
        return {Str::desc_status_partial_success, "status_m_cancel", TrayWarning};
      case 4:
        return {Str::desc_status_failed, "status_m_error", TrayError};
      case 5:
        return {Str::desc_backup_cancel, "status_m_cancel", TrayWarning};
      default:
        break;
    }
  }
  return {Str::desc_status_connected, "status_m_idle", TrayIdle};
}

QString last_backup_text(quint64 secs) {
  if (secs == 0) return string_display::text(Str::desc_no_backup_yet);
  return relative_age::minute_time(static_cast<qint64>(secs));
}

QString next_backup_text(quint64 secs) {
  if (secs == 0) return string_display::text(Str::desc_no_schedule);
  return relative_age::minute_time(static_cast<qint64>(secs));
}

std::optional<QString> schedule_type_text(qint64 type) {
  switch (type) {
    case 1:
      return string_display::text(Str::desc_no_schedule);
    case 3:
      return string_display::text(Str::desc_event_backup);
    case 4:
      return string_display::text(Str::auto_daily_backup);
    default:
      return std::nullopt;
  }
}

int error_code_of(const Json::Value& content) {
  if (!jsonx::has(content, "error")) return 5;
  const std::int64_t code = jsonx::get_int64(jsonx::member(content, "error"), "code");
  // Codes beyond an int have no message of their own: the generic one.
  if (code < std::numeric_limits<int>::min() || code > std::numeric_limits<int>::max()) return -1;
  return static_cast<int>(code);
}

View view_for(const Json::Value& content) {
  View view;
  if (jsonx::has(content, "error") || !jsonx::get_bool(content, "connected")) {
    view.error = true;
    view.result = {Str::desc_status_error, "status_m_error", TrayError};
    view.error_message = service_error_text::message(error_code_of(content), content);
    return view;
  }
  const Json::Value& r = jsonx::get_object(content, "last_backup_result");
  if (jsonx::has(r, "last_backup_time"))
    view.last_backup = last_backup_text(jsonx::get_uint64(r, "last_backup_time"));
  const bool backed_up = !jsonx::has(r, "backed_up") || jsonx::get_bool(r, "backed_up", true);
  view.result = result_for(jsonx::get_int32(r, "last_backup_status"), backed_up);
  if (jsonx::has(content, "next_backup_time"))
    view.next_backup = next_backup_text(jsonx::get_uint64(content, "next_backup_time"));
  else
    view.next_backup = schedule_type_text(jsonx::get_int64(content, "schedule_type"));
  return view;
}

}  // namespace status_page_model
