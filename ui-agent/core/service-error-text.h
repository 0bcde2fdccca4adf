#pragma once
// The message a user sees for the error code of a service answer
// ("error": {"code": N, ...}). Shared by the wizard's error sheet, the tray's
// error page and the client manager.

#include <json/value.h>

#include <QString>

#include "ui-agent/catalogue/string-catalogue.h"

namespace service_error_text {

// The catalogue row for a code: 4..25 map to their own rows where the
// service defines one; 12, 19, codes without a row and anything outside
// 4..25 give the generic connection error (err_operation_timedout).
Str message_row(int code);

// The display text for a code. For 17 and 18 the console link's %1 is
// filled with "error" -> "base_url" of `response`, HTML-escaped so that an
// address cannot close the attribute or add markup; a missing or non-string
// base_url leaves the link empty.
QString message(int code, const Json::Value& response = Json::Value());

// "error" -> "code" of an answer, read tolerantly (0 when absent or of the
// wrong type).
int code_of(const Json::Value& response);

}  // namespace service_error_text
