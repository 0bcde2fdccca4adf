#pragma once
// The longest rich rendering of an activity message that fits the label
// showing it, found the way the screens look for it:
//
//   - the pop-up's latest event: a word-wrapped label 177 wide, two lines of
//     20 (height at most 40), limits from 354 down by 1, measured with " ."
//     after the message;
//   - the activity dialog: a word-wrapped label 441 wide, three lines of 20
//     (at most 1323 wide and 60 high), limits from 1313 down by 10.
//
// Each returns the message (without the line-height wrapper) and the limit
// that made it fit. Lengths are logical and scaled with DPIinfo, except the
// dialog's height and width bounds, which are not.

#include <QString>

#include "core/log-entry.h"

namespace event_fit {

struct Fitted {
  QString message;  // rich text, values in bold
  int limit = 0;    // the width limit it was rendered with
  bool fits = false;  // false: even the smallest limit overflows (a message
                      // whose markup allowance exceeds the room, such as one
                      // with a long link); `message` is then the last try
};

// Wraps a message the way the labels show it: a div with a 20 px line height.
QString line_height_div(const QString& message);

Fitted fit_popup(const LogEntry& entry);
Fitted fit_activity_dialog(const LogEntry& entry);

}  // namespace event_fit
