#pragma once
// Every text the agent shows: the catalogue lookup, the translations,
// {name} placeholders and byte sizes. The activity-log event messages are
// rendered by event-text.h on top of these.
//
//   label->setText(string_display::text(Str::btn_cancel));
//   auto [number, unit] = string_display::format_size(bytes, false);
//
// All functions run on the GUI thread.

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

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

// --- placeholders with their places (the event texts build on these) ---

// A value inserted into a text: its position and length in the result.
struct Span {
  int start;
  int length;
};
// The template with every placeholder replaced by its value as
// expand_placeholders reads it, plain (neither escaped nor bold), and where
// each value went appended to `spans`. The template's own text is copied as it
// is and values are not looked at again, so a value holding "%1" or braces
// stays literal.
QString fill_placeholders(const QString& tmpl, const QJsonObject& values, std::vector<Span>& spans);
// Wraps the spans in bold, HTML-escaped, keeping only the part of each span
// that lies before `visible` (a span starting right at `visible` too when
// `whole`); everything after is copied unchanged, the template's own text is
// markup and stays as it is.
QString wrap_bold(const QString& text, const std::vector<Span>& spans, int visible, bool whole);

}  // namespace string_display
