#pragma once
// Small text decisions shared by the tray pages and their widgets: the age of
// an event ("5 minutes ago") and the time formats of the pop-up.

#include <QString>
#include <QtGlobal>

#include <functional>

#include "ui-agent/catalogue/string-catalogue.h"

namespace relative_age {

// "Now" in seconds since the epoch; widgets take one so tests can set it.
using Clock = std::function<qint64()>;
Clock system_clock();

struct Age {
  Str key;
  quint64 number;  // the %1 of the key; 0 for just_now
};

// The age of an event at time `t` seen at `now` (both seconds since the
// epoch). The ranges are tested as the service agent always has: the exact
// values 60 and 3600 seconds belong to no range of their own and fall
// through to the day rows ("0 day ago"). A time ahead of `now` (clock skew
// between service and desktop) is "Just now".
Age relative_age(qint64 now, quint64 t);
// The catalogue text of relative_age, with its number filled in.
QString relative_age_text(qint64 now, quint64 t);

// Local date and time for the pop-up: "yyyy/MM/dd HH:mm".
QString minute_time(qint64 secs);
// Local date and time with seconds for the activity list: "yyyy/MM/dd hh:mm:ss".
QString second_time(qint64 secs);
// "<div style=\"line-height:20px\">" + html + "</div>"
QString line_div(const QString& html);

}  // namespace relative_age
