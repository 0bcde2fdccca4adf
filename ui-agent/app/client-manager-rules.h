#pragma once
// The client manager's decisions as pure functions: the sign-in return
// message, the new activity-log entries of a status, the failure count, the
// notifier's arguments.

#include <json/value.h>

#include <QList>
#include <QString>
#include <QStringList>

#include "ui-agent/core/log-entry.h"

namespace client_manager_rules {

// The prefix of the browser's return to the agent (case-sensitive).
inline constexpr const char* kSchemePrefix = "nimbrabackup://nimbrabackupprotocol";

struct SchemeMessage {
  enum Kind {
    NotScheme,  // not the scheme: "open", "open_log", anything else
    Malformed,  // the scheme without exactly one "?" part and one "=" pair
    Pair,       // key and value below
  };
  Kind kind = NotScheme;
  QString key;
  QString value;
};
// Splits "nimbrabackup://nimbrabackupprotocol?key=value": the text split at
// "?" without empty parts must give two parts, the second split at "=" with
// empty parts two parts as well.
SchemeMessage parse_scheme_message(const QString& message);

// The elements of `logs` whose id is above `lastId`, ascending by id.
QList<LogEntry> new_log_entries(const Json::Value& logs, quint64 lastId);

// What a failed exchange means with `count` failures counted so far.
enum class Failure {
  Tolerated,  // counted; polling goes on
  Retry,      // counted; ask for the connection record again in a second
  Fatal,      // the limit was reached: warn and end the agent
};
inline constexpr int kPollingFailureLimit = 30;
inline constexpr int kStartFailureLimit = 120;
// Counts one failure into `count` (unless it is fatal).
Failure count_failure(int& count, bool polling);

// At most this many notifications of one push are shown: the newest ones
// (the last of the array). A push of thousands would otherwise keep the
// desktop busy for minutes and overflow the notifier's argument list.
inline constexpr int kNotificationsPerPush = 5;
// The object the service pushed with its "notifications" array cut to the
// last kNotificationsPerPush elements; `leftOut` tells how many went.
Json::Value bounded_notifications(const Json::Value& object, int& leftOut);
// The tray balloons for a push's (bounded) "notifications" array: its last
// element only. A balloon replaces the one before it (one per icon), so the
// others would be built, at several milliseconds of the GUI thread each, to
// be gone at once. An empty array when `list` holds nothing.
Json::Value balloon_notifications(const Json::Value& list);

// The notifier's arguments for the object the service pushed: "1", its
// site_path, the number of notifications, then title, text, button label
// and action type of each. False (and no arguments) when the object has no
// "notifications" array.
bool notifier_arguments(const Json::Value& object, QStringList& arguments);

}  // namespace client_manager_rules
