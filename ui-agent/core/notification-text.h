#pragma once
// Title and text of a notification that the service pushes to the agent
// (one element of the "notifications" array), for the notifier program and
// the tray balloons.

#include <json/value.h>

#include <QString>

// The title (title true) or the text (title false) of a notification of
// `type` with its parameters `data`. Types without a message give empty
// texts. Members of `data` of the wrong type read as missing ones do.
QString notification_text(int type, const Json::Value& data, bool title);

// The words for a backup result `status` (2 to 5) in a notification title;
// empty for any other value.
QString notification_result_text(int status);
