#pragma once
// Text a person can copy, for instance into a support request: Ctrl+C and a
// context menu entry "Copy" (the widget layer's word "copy") put plain text
// on the clipboard, never markup.
//
//   copyable_text::enable_label(errorLabel);   // select with mouse or keys
//   copyable_text::enable_rows(table);         // rows from kPlainRole

#include <QString>
#include <Qt>

class QLabel;
class QTableWidget;

namespace copyable_text {

// The role of a table item holding the plain text its cell gives to a copy.
constexpr int kPlainRole = Qt::UserRole + 40;

// The text of `html` without its markup; paragraph and line separators as
// line breaks.
QString plain_text(const QString& html);

// The label's text becomes selectable by mouse (links stay as they are). A copy gives the selection, or
// without one the whole text: the label's accessible name when it has one (the full plain text of an elided
// label), else its text (without markup when it is rich).
void enable_label(QLabel* label);

// The table's rows become selectable; a copy gives each selected row as
// one line, its cells' kPlainRole texts joined by a tab.
void enable_rows(QTableWidget* table);

}  // namespace copyable_text
