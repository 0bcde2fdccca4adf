#include "relative-age.h"

#include <QDateTime>

#include "string-display.h"

namespace tray_text {

Clock system_clock() {
  return [] { return QDateTime::currentSecsSinceEpoch(); };
}

Age relative_age(qint64 now, qint64 t) {
  const qint64 d = now - t;
  if (d < 60) return {Str::just_now, 0};
  const quint64 u = static_cast<quint64>(d);
  if (u >= 61 && u <= 3599) {
    const quint64 minutes = u / 60;
    return {minutes < 2 ? Str::min_ago : Str::mins_ago, minutes};
  }
  if (u >= 3601 && u <= 86399) {
    const quint64 hours = u / 3600;
    return {hours < 2 ? Str::hour_ago : Str::hours_ago, hours};
  }
  const quint64 days = u / 86400;
  return {days < 2 ? Str::day_ago : Str::days_ago, days};
}

QString relative_age_text(qint64 now, qint64 t) {
  const Age age = relative_age(now, t);
  const QString text = string_display::text(age.key);
  if (age.key == Str::just_now) return text;
  return text.arg(age.number);
}

QString minute_time(qint64 secs) {
  return QDateTime::fromSecsSinceEpoch(secs).toString(QStringLiteral("yyyy/MM/dd HH:mm"));
}

QString second_time(qint64 secs) {
  return QDateTime::fromSecsSinceEpoch(secs).toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
}

QString line_div(const QString& html) {
  return QStringLiteral("<div style=\"line-height:20px\">") + html + QStringLiteral("</div>");
}

}  // namespace tray_text
