#include "ui-agent/core/service-error-text.h"

#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"

namespace service_error_text {

Str message_row(int code) {
  switch (code) {
    case 4:
      return Str::err_general_server_error;
    case 5:
      return Str::err_connection;
    case 6:
      return Str::err_version_too_low;
    case 7:
      return Str::err_http_forbidden;
    case 8:
      return Str::err_certificate_verified_failed;
    case 9:
      return Str::err_device_removed;
    case 10:
      return Str::err_device_conflict;
    case 13:
      return Str::err_quota;
    case 15:
      return Str::err_auth_failed;
    case 16:
      return Str::err_time_skew;
    case 17:
      return Str::master_key_not_set;
    case 18:
      return Str::dedup_key_not_set;
    case 25:
      return Str::err_backup_role_invalid;
    default:
      return Str::err_operation_timedout;
  }
}

QString message(int code, const Json::Value& response) {
  const Str row = message_row(code);
  QString text = string_display::text(row);
  if (row == Str::master_key_not_set || row == Str::dedup_key_not_set) {
    const Json::Value& error = jsonx::get_object(response, "error");
    const QString url = QString::fromStdString(jsonx::get_string(error, "base_url"));
    text = text.arg(url.toHtmlEscaped());
  }
  return text;
}

int code_of(const Json::Value& response) {
  return jsonx::get_int32(jsonx::get_object(response, "error"), "code");
}

}  // namespace service_error_text
