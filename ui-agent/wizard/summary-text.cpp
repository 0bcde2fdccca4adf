#include "ui-agent/wizard/summary-text.h"

#include <QStringList>
#include <QTime>

#include "logging/logger.h"
#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/dpi-info.h"

namespace summary_text {
namespace {

using string_display::text;

QString str(const Json::Value& obj, const char* key) {
  return QString::fromStdString(jsonx::get_string(obj, key));
}

// "HH:mm" of the schedule's run time; a time that is no clock time is shown
// as "--:--" rather than as something the service did not mean.
QString run_time(const Json::Value& time) {
  const int hour = jsonx::get_int32(time, "run_hour");
  const int minute = jsonx::get_int32(time, "run_min");
  const QTime t(hour, minute);
  if (!t.isValid()) {
    LOG_WARN(vlog::kDefaultComponent, "schedule run time %d:%d is no clock time", hour, minute);
    return QStringLiteral("--:--");
  }
  return t.toString(QStringLiteral("HH:mm"));
}

QString weekday_name(int index) {
  static const Str days[] = {Str::sunday,   Str::monday, Str::tuesday, Str::wednesday,
                             Str::thursday, Str::friday, Str::saturday};
  return text(days[index]);
}

}  // namespace

QString site_display_name(const Json::Value& billing) {
  const Json::Value& region = jsonx::get_object(billing, "region");
  const QString code = str(region, "code");
  if (code == QLatin1String("US")) return text(Str::region_us);
  if (code == QLatin1String("EU")) return text(Str::region_europe);
  if (code == QLatin1String("TW")) return text(Str::region_taiwan);
  return str(region, "i18n") + QLatin1Char('-') + str(jsonx::get_object(billing, "city"), "i18n");
}

QString policy_display_name(const Json::Value& policy) {
  if (!jsonx::get_bool(policy, "is_default")) return str(policy, "policy_name");
  switch (jsonx::get_int32(policy, "backup_type")) {
    case 1:
      return text(Str::default_policy_endpoint);
    case 2:
      return text(Str::default_policy_physical_server);
    default:
      return QString();
  }
}

Scope scope_text(const Json::Value& policy) {
  switch (jsonx::get_int32(policy, "source_type")) {
    case 1:
      return {text(jsonx::get_bool(policy, "enable_backup_external")
                       ? Str::desc_backup_source_bare_metal_external_device
                       : Str::desc_backup_source_bare_metal),
              false};
    case 2:
      return {text(Str::desc_backup_source_system_vol), false};
    case 3: {
      QStringList names;
      for (const Json::Value& v : jsonx::get_array(policy, "custom_volume"))
        if (v.isString()) names << QString::fromStdString(jsonx::to_string(v));
      const bool shortened = names.size() > 3;
      QString list = names.mid(0, 3).join(QStringLiteral(", "));
      if (shortened) list += QStringLiteral("...");
      return {text(Str::desc_backup_source_custom_vol).arg(list), shortened};
    }
    default:
      return {};
  }
}

std::optional<QString> schedule_text(const Json::Value& policy) {
  const Json::Value& sched = jsonx::get_object(policy, "sched_content");
  switch (jsonx::get_int32(policy, "schedule_setting_type")) {
    case 4:
      return text(Str::auto_daily_backup);
    case 1:
      return text(Str::desc_no_schedule);
    case 2: {
      const Json::Value& time = jsonx::get_object(sched, "time");
      const QString at = run_time(time);
      if (jsonx::get_int32(time, "day_choose_by") == 1) return text(Str::daily_backup).arg(at);
      QStringList days;
      for (const Json::Value& v : jsonx::get_array(time, "run_weekday")) {
        const int index = jsonx::to_int32(v, -1);
        if (index >= 0 && index < 7) days << weekday_name(index);
      }
      return text(Str::weekly_backup).arg(days.join(QStringLiteral(", ")), at);
    }
    case 3: {
      QStringList events;
      for (const Json::Value& v : jsonx::get_array(jsonx::get_object(sched, "event"), "types")) {
        switch (jsonx::to_int32(v)) {
          case 1:
            events << text(Str::event_screen_lock);
            break;
          case 2:
            events << text(Str::event_log_off);
            break;
          case 3:
            events << text(Str::event_startup);
            break;
          default:
            break;
        }
      }
      return text(Str::event_backup).arg(events.join(QStringLiteral(", ")));
    }
    default:
      return std::nullopt;
  }
}

const Json::Value& site(const Json::Value& response, int index) {
  static const Json::Value null;
  const Json::Value& data = jsonx::get_array(response, "data");
  if (index < 0 || index >= static_cast<int>(data.size())) return null;
  return data[static_cast<Json::ArrayIndex>(index)];
}

int site_count(const Json::Value& response) {
  return static_cast<int>(jsonx::get_array(response, "data").size());
}

QString site_code(const Json::Value& s) {
  return str(jsonx::get_object(jsonx::get_object(s, "billing"), "region"), "code");
}

QString console_url(const Json::Value& s) {
  return str(s, "web_console_url");
}

QMap<QString, QString> site_map(const Json::Value& response) {
  QMap<QString, QString> map;
  for (const Json::Value& s : jsonx::get_array(response, "data"))
    map.insert(site_code(s), str(jsonx::get_object(s, "billing"), "subscription_id"));
  return map;
}

QString account_type(const Json::Value& response) {
  const Json::Value& policy = jsonx::get_object(site(response, 0), "backup_policy");
  return jsonx::get_string(policy, "account_type") == "nimbra" ? QStringLiteral("nimbra")
                                                               : QStringLiteral("vell");
}

Json::Value with_display_policy_names(const Json::Value& response) {
  Json::Value copy = response;
  if (!jsonx::get_array(response, "data").size()) return copy;
  for (Json::Value& s : copy["data"]) {
    if (!jsonx::is_object(s) || !jsonx::is_object(jsonx::member(s, "backup_policy"))) continue;
    Json::Value& policy = s["backup_policy"];
    policy["policy_name"] = policy_display_name(policy).toStdString();
  }
  return copy;
}

QString line_height_div(const QString& body, int logicalPx, bool semicolon) {
  const QString open = QStringLiteral("<div style=\"line-height:%1px%2\">")
                           .arg(logicalPx)
                           .arg(semicolon ? QStringLiteral(";") : QString());
  return DPIinfo::getScaledStyleSheet(open) + body + QStringLiteral("</div>");
}

}  // namespace summary_text
