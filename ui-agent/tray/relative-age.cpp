#include "ui-agent/tray/relative-age.h"

#include <QDateTime>

#include <array>
#include <chrono>

#include "logging/per-thread.h"
#include "ui-agent/core/string-display.h"

namespace relative_age {

Clock system_clock() {
  return [] { return QDateTime::currentSecsSinceEpoch(); };
}

Age relative_age(qint64 now, quint64 t) {
  if (now < 0 || t >= static_cast<quint64>(now)) return {Str::just_now, 0};
  const quint64 u = static_cast<quint64>(now) - t;
  if (u < 60) return {Str::just_now, 0};
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

QString relative_age_text(qint64 now, quint64 t) {
  const Age age = relative_age(now, t);
  const QString text = string_display::text(age.key);
  if (age.key == Str::just_now) return text;
  return text.arg(age.number);
}

QString minute_time(qint64 secs) {
  // Every conversion to local time reads the time zone again (a stat of
  // /etc/localtime each), and the pop-up and the tool tip ask for the same
  // few times at every status, once a second. A text is kept for a minute,
  // so a change of time zone shows within one.
  // (Kept per thread, not in thread_local objects: see per-thread.h.)
  struct Kept {
    qint64 secs = 0;
    qint64 until = -1;
    QString text;
  };
  struct Cache {
    std::array<Kept, 4> kept;
    std::size_t next = 0;
  };
  static vlog::PerThread<Cache> cache(+[]() { return new Cache; });
  const qint64 now = std::chrono::duration_cast<std::chrono::milliseconds>(
                         std::chrono::steady_clock::now().time_since_epoch())
                         .count();
  return cache.with([&](Cache& c) {
    for (const Kept& k : c.kept)
      if (k.secs == secs && now < k.until) return k.text;
    Kept& k = c.kept[c.next++ % c.kept.size()];
    k = {secs, now + 60000, QDateTime::fromSecsSinceEpoch(secs).toString(QStringLiteral("yyyy/MM/dd HH:mm"))};
    return k.text;
  });
}

QString second_time(qint64 secs) {
  return QDateTime::fromSecsSinceEpoch(secs).toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
}

QString line_div(const QString& html) {
  return QStringLiteral("<div style=\"line-height:20px\">") + html + QStringLiteral("</div>");
}

}  // namespace relative_age
