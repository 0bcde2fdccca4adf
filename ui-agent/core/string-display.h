#pragma once
// Every text the agent shows: the catalogue lookup, {name} placeholders,
// byte sizes and the rendering of activity-log events.
//
//   label->setText(string_display::text(Str::btn_cancel));
//   auto [number, unit] = string_display::format_size(bytes, false);
//   QString tip = string_display::render_event_message(entry, false, 449);
//
// All functions run on the GUI thread (the event rendering measures text
// with the application font).

#include <json/value.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/catalogue/string-catalogue.h"

class QTranslator;

namespace string_display {

// --- catalogue -----------------------------------------------------------

// The display text of a row: the English source translated in the context
// "global" by the installed translators, then the two-character sequences
// backslash-n and backslash-t turned into a line feed and a tab. A row
// outside the catalogue gives an empty text and a warning line.
QString text(Str row);
// The row's key ("btn_cancel") and its untranslated English source.
QString key(Str row);
QString source_text(Str row);
// The row of a key, if the catalogue has it.
std::optional<Str> find_row(const QString& key);
// text() of the row named `key`; empty (and a warning line) for an unknown key.
QString text_by_key(const QString& key);
// Backslash-n to line feed, then backslash-t to tab (case-sensitive).
QString expand_escapes(QString text);

// --- translations --------------------------------------------------------

// The languages whose translations are built into the program, as the
// resource names use them: ":/" + language + ".qm".
QStringList translation_languages();
QString translation_resource(const QString& language);
// Makes sure the built-in translation resources are registered. Safe to call
// more than once; load_translation() calls it.
void init_resources();
// Loads ":/" + language + ".qm" into `translator` (true on success). The
// caller installs it with QCoreApplication::installTranslator.
bool load_translation(QTranslator& translator, const QString& language);

// --- placeholders and sizes ---------------------------------------------

// Fills every {name} of `tmpl` from `values` and puts each inserted value,
// HTML-escaped, in bold: "<b>" + escaped value + "</b>". Values: strings as
// they are, bools as 1 or 0, numbers in general format with 6 significant
// digits, anything else (absent, null, array, object) empty. Scanning stops at the first "}" that does not
// follow its "{". Inserted values are never scanned again.
QString expand_placeholders(const QString& tmpl, const QJsonObject& values);

struct SizeText {
  QString number;
  QString unit;  // "Bytes", "KB", "MB", "GB" or "TB"
};
// A byte count as number and unit, in steps of 1000 (`decimal`) or 1024. The
// next unit starts at 1000 of the current one in both modes; the number has 3
// significant digits (1536 bytes in 1024 mode: "1.5" "KB").
SizeText format_size(quint64 bytes, bool decimal);
// number + " " + unit
QString format_size_text(quint64 bytes, bool decimal);

// --- activity events ----------------------------------------------------

enum class EventKind {
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
// read as empty, as missing ones do. An unknown type gives an empty text and
// a warning line.
QString render_event_message(const LogEntry& entry, bool rich, int limit);
QString render_event_message(quint32 type, const Json::Value& body, bool rich, int limit);

// What kind of event a type is, and its catalogue row (when known).
EventKind event_kind(quint32 type);
std::optional<Str> event_row(quint32 type);

}  // namespace string_display
