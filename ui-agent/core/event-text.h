#pragma once
// The message of an activity-log entry: the type's catalogue text with the
// values from the entry's body, plain for tool tips or rich (values in bold,
// elided to a width) for labels.
//
//   QString tip = event_text::render(entry, false, 449);
//
// All functions run on the GUI thread (the rich rendering measures text with
// the application font).

#include <json/value.h>

#include <QString>

#include <optional>

#include "ui-agent/catalogue/string-catalogue.h"
#include "ui-agent/core/log-entry.h"

namespace event_text {

enum class Kind {
  Fixed,    // the catalogue text of one key, no parameters
  Named,    // placeholders filled from named body members in a fixed order
  Generic,  // {name} placeholders filled from the body members of that name
  Unknown,
};

// The message of one activity-log entry. Plain (rich false): the sentence
// with its values, for tool tips; `limit` is ignored. Rich: the values
// HTML-escaped (they are text, whatever markup they hold) in bold and the
// sentence elided at the right to DPI * (limit - 20) pixels of
// the application font (plus an allowance for the template's markup); a
// value cut by the ellipsis stays bold as far as it is shown. The i-th value
// a type lists lands on the i-th placeholder of its text, in one pass: a
// value holding "%2" or braces is shown as it is. Members of the wrong type
// read as empty, as missing ones do. A string member longer than 1 KB is cut
// there with an ellipsis first. An unknown type gives an empty text and a
// warning line.
QString render(const LogEntry& entry, bool rich, int limit);
QString render(quint32 type, const Json::Value& body, bool rich, int limit);

// What kind of event a type is, and its catalogue row (when known).
Kind kind_of(quint32 type);
std::optional<Str> row_of(quint32 type);

}  // namespace event_text
