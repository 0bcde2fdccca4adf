#pragma once
// What screen readers are told about the agent's windows and the values they
// show (AT-SPI on Linux, UI Automation on Windows, through Qt's bridges).
//
// Qt names a top-level QWidget a "filler" (a screen reader looks for a frame
// or a dialog), and over AT-SPI Qt 5 gives labels no text interface: a
// label's name is all a screen reader reads of it, so a value label whose
// name is its caption is never heard. Values therefore carry their whole text
// as name and the caption as description.

#include <QString>

class QWidget;

namespace accessible_text {

enum class WindowRole {
  Frame,   // an application window (the wizard, the pop-up, the activity list)
  Dialog,  // a window that asks or tells something and is then closed
};

// The roles below, and the application's list of windows with the tray
// pop-up in it (Qt lists no pop-up window). Before the application object
// is made, so that its interface is ours from the start; set_window_role()
// calls it too.
void install();

// Announces `window` (a top-level widget, before it is first shown) with
// `role`, whatever its class; a pop-up window so announced is listed among
// the application's windows.
void set_window_role(QWidget* window, WindowRole role);

struct Spoken {
  QString name;
  QString description;
  bool operator==(const Spoken& o) const { return name == o.name && description == o.description; }
};

// A value shown beside its caption: its whole text (plain text when it is
// markup, runs of white space as one space) as name; the caption without its
// colon as description.
Spoken for_value(const QString& caption, const QString& value);

// Applies for_value() to `value`.
void describe_value(QWidget* value, const QString& caption, const QString& text);

}  // namespace accessible_text
