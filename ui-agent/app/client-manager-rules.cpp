#include "ui-agent/app/client-manager-rules.h"

#include <algorithm>

#include "ui-agent/core/notification-text.h"
#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"

namespace client_manager_rules {

SchemeMessage parse_scheme_message(const QString& message) {
  SchemeMessage out;
  if (!message.startsWith(QLatin1String(kSchemePrefix))) return out;
  out.kind = SchemeMessage::Malformed;
  const QStringList parts = message.split(QLatin1Char('?'), Qt::SkipEmptyParts);
  if (parts.size() != 2) return out;
  const QStringList pair = parts.at(1).split(QLatin1Char('='), Qt::KeepEmptyParts);
  if (pair.size() != 2) return out;
  out.kind = SchemeMessage::Pair;
  out.key = pair.at(0);
  out.value = pair.at(1);
  return out;
}

QList<LogEntry> new_log_entries(const Json::Value& logs, quint64 lastId) {
  QList<LogEntry> out;
  if (!logs.isArray()) return out;
  for (const Json::Value& element : logs) {
    LogEntry entry = LogEntry::fromJson(element);
    if (entry.id > lastId) out.push_back(std::move(entry));
  }
  std::stable_sort(out.begin(), out.end(), [](const LogEntry& a, const LogEntry& b) { return a.id < b.id; });
  return out;
}

Failure count_failure(int& count, bool polling) {
  const int limit = polling ? kPollingFailureLimit : kStartFailureLimit;
  if (count >= limit) return Failure::Fatal;
  ++count;
  return polling ? Failure::Tolerated : Failure::Retry;
}

Json::Value bounded_notifications(const Json::Value& object, int& leftOut) {
  leftOut = 0;
  const Json::Value& list = jsonx::member(object, "notifications");
  if (!list.isArray() || list.size() <= static_cast<Json::ArrayIndex>(kNotificationsPerPush)) return object;
  Json::Value bounded(Json::objectValue);
  for (const std::string& name : object.getMemberNames())
    if (name != "notifications") bounded[name] = object[name];
  Json::Value& kept = bounded["notifications"] = Json::Value(Json::arrayValue);
  const Json::ArrayIndex first = list.size() - static_cast<Json::ArrayIndex>(kNotificationsPerPush);
  for (Json::ArrayIndex i = first; i < list.size(); ++i) kept.append(list[i]);
  leftOut = static_cast<int>(first);
  return bounded;
}

Json::Value balloon_notifications(const Json::Value& list) {
  Json::Value out(Json::arrayValue);
  if (list.isArray() && !list.empty()) out.append(list[list.size() - 1]);
  return out;
}

bool notifier_arguments(const Json::Value& object, QStringList& arguments) {
  arguments.clear();
  const Json::Value& list = jsonx::member(object, "notifications");
  if (!list.isArray()) return false;
  arguments << QStringLiteral("1") << QString::fromStdString(jsonx::get_string(object, "site_path"))
            << QString::number(list.size());
  for (const Json::Value& element : list) {
    const int type = jsonx::get_int32(element, "type");
    const Json::Value& data = jsonx::member(element, "data");
    arguments << notification_text(type, data, true) << notification_text(type, data, false)
              << string_display::text(type == 11 ? Str::notification_btn_settings : Str::notification_btn)
              << QString::number(jsonx::get_int32(element, "action_type"));
  }
  return true;
}

}  // namespace client_manager_rules
