#pragma once
// One activity-log entry as the service reports it in the "logs" array of
// its status answer: shared by the client manager (which fills it), the
// tray's kept list and the pages that render it (string_display).

#include <json/value.h>

#include <QMetaType>
#include <QtGlobal>

#include "vantor-core/lib/json-access.h"

struct LogEntry {
  quint64 id = 0;    // increasing identifier of the event
  quint64 time = 0;  // seconds since the Unix epoch
  quint32 type = 0;  // event type, selects the message
  Json::Value body;  // the event's parameters

  // Reads one element of "logs". Members of the wrong type read as 0 / an
  // empty body, as missing ones do; a body that is not an object is kept as
  // sent (the renderer treats it as empty).
  static LogEntry fromJson(const Json::Value& element) {
    LogEntry entry;
    entry.id = jsonx::get_uint64(element, "id");
    entry.time = jsonx::get_uint64(element, "time");
    entry.type = jsonx::get_uint32(element, "type");
    entry.body = jsonx::member(element, "body");
    return entry;
  }
};

Q_DECLARE_METATYPE(LogEntry)
