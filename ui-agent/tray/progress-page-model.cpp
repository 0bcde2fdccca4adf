#include "ui-agent/tray/progress-page-model.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"

namespace progress_page_model {

Str phase_for(ServiceStatus status) {
  return service_status::is_preparing(status) ? Str::desc_backup_preparing : Str::desc_status_backup;
}

double round_three_significant(double p) {
  if (!std::isfinite(p)) return 0;
  const QString printed = QString::number(p, 'g', 6);
  const double integral = std::trunc(std::fabs(printed.toDouble()));
  int digits = 0;
  for (double v = integral; v >= 1; v = std::trunc(v / 10)) ++digits;
  const int decimals = std::max(0, 3 - digits);
  const double scale = std::pow(10.0, decimals);
  return std::floor(p * scale + 0.5) / scale;
}

int bar_value(double p) {
  // p carries at most three decimals; the small bias keeps 1.15 x 100 from
  // truncating to 114 through its binary representation.
  const double v = std::trunc(p * 100 + 1e-6);
  if (v <= 0) return 0;
  return v >= 10000 ? 10000 : static_cast<int>(v);
}

Finish finish_for(const Transfer& t, double previous_estimate, qint64 now) {
  const QString prefix =
      string_display::text(Str::estimate_finish) + string_display::text(Str::colon) + QLatin1Char(' ');
  Finish f;
  f.estimate = previous_estimate;
  if (t.transferred == 0) {
    f.text = prefix + QStringLiteral("--/-- --:--");
    f.estimate = 0;
  }
  if (t.speed != 0) {
    // A transfer past its total has nothing left to estimate.
    const quint64 rest = t.total > t.transferred ? t.total - t.transferred : 0;
    f.estimate = static_cast<double>(rest) / static_cast<double>(static_cast<quint64>(t.speed));
  } else if (f.estimate != 0) {
    f.estimate = std::max(0.0, f.estimate - 1);
  }
  if (f.estimate != 0) {
    // A crawling speed can promise centuries; the date shown stops at ~100 years.
    const double secs = std::min(f.estimate, 3.2e9);
    const QDateTime at = QDateTime::fromSecsSinceEpoch(now + static_cast<qint64>(secs));
    f.text = prefix + at.toString(QStringLiteral("MM/dd hh:mm"));
  }
  return f;
}

View view_for(ServiceStatus status, const Json::Value& content, double previous_estimate, qint64 now) {
  View v;
  v.phase = phase_for(status);
  v.finish.estimate = previous_estimate;
  if (!jsonx::has(content, "transfer")) return v;
  v.has_transfer = true;
  const Json::Value& tr = jsonx::member(content, "transfer");
  Transfer t;
  t.transferred = jsonx::get_uint64(tr, "transfer");
  t.upload = jsonx::get_uint64(tr, "delta_upload");
  t.total = jsonx::get_uint64(tr, "total");
  t.speed = jsonx::get_int64(tr, "speed");
  v.finish = finish_for(t, previous_estimate, now);
  // A transfer past its total (the service counts both) shows as done.
  const double raw =
      t.total == 0 ? 0.0
                   : std::min(100.0, static_cast<double>(t.transferred) / static_cast<double>(t.total) * 100);
  v.percent = round_three_significant(raw);
  v.bar = bar_value(v.percent);
  v.percent_text = QStringLiteral("%1%").arg(QString::number(v.percent, 'g', 6));
  v.processed_text =
      string_display::text(Str::desc_progress_handled).arg(string_display::format_size_text(t.upload, false));
  return v;
}

}  // namespace progress_page_model
