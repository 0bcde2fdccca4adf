#include "ui-agent/dialogs/settings-rules.h"

#include <cerrno>
#include <cstdlib>

#include <QRegularExpression>

#include "logging/logger.h"
#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"

namespace settings_rules {

namespace {

const char* const kType = "bandwidth_type";
const char* const kRate = "bandwidth_rate";
const char* const kRange = "bandwidth_limit_range";
const char* const kStart = "bandwidth_start_time";
const char* const kEnd = "bandwidth_end_time";

constexpr int kDefaultRate = 20;
const char* const kDefaultStart = "07:00";
const char* const kDefaultEnd = "23:00";

// A run of decimal digits read as an integer, or -1 when the text is empty,
// holds anything else or does not fit.
long decimalOrMinusOne(const std::string& digits) {
  if (digits.empty()) return -1;
  for (char c : digits)
    if (c < '0' || c > '9') return -1;
  errno = 0;
  const long value = std::strtol(digits.c_str(), nullptr, 10);
  return errno == 0 ? value : -1;
}

}  // namespace

bool is_valid_time(const std::string& time) {
  if (time.size() != 5 || time.find(':') != 2) return false;
  const long hour = decimalOrMinusOne(time.substr(0, 2));
  const long minute = decimalOrMinusOne(time.substr(3));
  return hour >= 0 && hour < 24 && minute >= 0 && minute < 60;
}

bool is_valid_config(const Json::Value& config) {
  if (!jsonx::has(config, kType)) return false;
  // A type that is not an integer reads as neither 0 nor 1.
  const std::int64_t type = jsonx::get_int64(config, kType, -1);
  if (type == 0) return true;
  if (type != 1 || !jsonx::has(config, kRange)) return false;
  const Json::Value& range = jsonx::member(config, kRange);
  // Only a JSON bool false switches the range off; anything else asks for
  // valid times.
  if (range.isBool() && !jsonx::to_bool(range)) return true;
  return jsonx::has(config, kStart) && is_valid_time(jsonx::get_string(config, kStart)) &&
         jsonx::has(config, kEnd) && is_valid_time(jsonx::get_string(config, kEnd));
}

Json::Value default_config() {
  Json::Value config(Json::objectValue);
  config[kEnd] = kDefaultEnd;
  config[kRange] = true;
  config[kRate] = kDefaultRate;
  config[kStart] = kDefaultStart;
  config[kType] = 0;
  return config;
}

int hour_of(const QString& timeText) {
  const int colon = timeText.indexOf(QLatin1Char(':'));
  if (colon <= 0) return -1;
  bool ok = false;
  const int hour = timeText.leftRef(colon).toInt(&ok, 10);
  return ok && hour >= 0 ? hour : -1;
}

QStringList start_items() {
  QStringList items;
  items.reserve(24);
  for (int hour = 0; hour < 24; ++hour) items << QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0'));
  return items;
}

QStringList end_items(const QString& startText, const QString& nextDay) {
  QStringList items;
  const int start = hour_of(startText);
  if (start < 0) return items;
  // The minutes of the start time (":00" for a whole hour); a suffix such as
  // " (Custom)" after the time is not part of them.
  const QString minutes = startText.left(5).right(3);
  items.reserve(23);
  for (int i = 1; i <= 23; ++i) {
    const int hour = (start + i) % 24;
    QString item = QStringLiteral("%1").arg(hour, 2, 10, QLatin1Char('0')) + minutes;
    if (hour < start) item += QLatin1Char(' ') + nextDay;
    items << item;
  }
  return items;
}

int end_item_index(const QStringList& items, const QString& previous) {
  const QString wanted = previous.left(5);
  for (int i = 0; i < items.size(); ++i)
    if (items.at(i).left(5) == wanted) return i;
  return 0;
}

QString end_display_text(const QString& end, const QString& start, const QString& nextDay) {
  const QString time = end.left(5);
  const int endHour = hour_of(time);
  if (endHour >= 0 && endHour < hour_of(start)) return time + QLatin1Char(' ') + nextDay;
  return time;
}

LoadedSettings load_settings(const Json::Value& config) {
  LoadedSettings out;
  out.limited = jsonx::get_int64(config, kType) != 0;

  const Json::Value& rate = jsonx::member(config, kRate);
  if (!rate.isIntegral() && !rate.isDouble()) {
    LOG_WARN(vlog::kDefaultComponent, "bandwidth config without a usable rate, showing %d", kDefaultRate);
    out.rate = QString::number(kDefaultRate);
  } else {
    const std::int64_t value = jsonx::to_int64(rate, kDefaultRate);
    out.rate = QString::number(value);
    if (value < kMinRate || value > kMaxRate) {
      out.rate = clamp_rate(out.rate);
      LOG_WARN(vlog::kDefaultComponent, "bandwidth rate %lld out of range, showing %s",
               static_cast<long long>(value), out.rate.toUtf8().constData());
    }
  }

  out.limitRange = jsonx::get_bool(config, kRange, true);
  const std::string start = jsonx::get_string(config, kStart);
  const std::string end = jsonx::get_string(config, kEnd);
  const bool startOk = is_valid_time(start);
  const bool endOk = is_valid_time(end);
  if (!startOk || !endOk)
    LOG_INFO(vlog::kDefaultComponent, "bandwidth config without a valid time range, showing %s to %s",
             startOk ? start.c_str() : kDefaultStart, endOk ? end.c_str() : kDefaultEnd);
  out.start = QString::fromStdString(startOk ? start : kDefaultStart);
  out.end = QString::fromStdString(endOk ? end : kDefaultEnd);
  return out;
}

QString clamp_rate(const QString& text) {
  bool ok = false;
  const QString digits = text.trimmed();
  const qlonglong value = digits.toLongLong(&ok, 10);
  // Digits too many for any integer are above the highest rate.
  static const QRegularExpression allDigits(QStringLiteral("^[0-9]+$"));
  if (!ok && allDigits.match(digits).hasMatch()) return QString::number(kMaxRate);
  if (!ok || value < kMinRate) return QString::number(kMinRate);
  if (value > kMaxRate) return QString::number(kMaxRate);
  return QString::number(value);
}

QString format_one_decimal(double value) {
  // QString::asprintf formats in the C locale whatever the user's locale.
  QString text = QString::asprintf("%f", value);
  const int point = text.indexOf(QLatin1Char('.'));
  if (point < 0) return text;
  text.truncate(point + 2);
  while (text.endsWith(QLatin1Char('0'))) text.chop(1);
  if (text.endsWith(QLatin1Char('.'))) text.chop(1);
  return text;
}

QString rate_megabytes_text(const QString& rateText) {
  if (rateText.isEmpty()) return QStringLiteral("--");
  const double rate = rateText.toLongLong(nullptr, 10);
  return format_one_decimal(rate * 0.125 + 0.05);
}

QString rate_unit_text(const QString& rateText) {
  return string_display::text(Str::estimate_mbps).arg(rate_megabytes_text(rateText));
}

UploadEstimate upload_estimate(int rateMbps) {
  UploadEstimate out;
  if (rateMbps <= 0) {
    out.key = Str::tip_estimate_hours;
    out.value = QStringLiteral("--");
    return out;
  }
  // 100 GB = 102400 MB = 102400 * 8 megabits.
  const double seconds = 102400.0 / rateMbps * 8;
  bool hours = false;
  if (seconds < 60) {
    out.value = QStringLiteral("1");
  } else {
    hours = seconds >= 3600;
    out.value = format_one_decimal(seconds / (hours ? 3600 : 60) + 0.05);
  }
  const bool one = out.value == QLatin1String("1");
  if (hours)
    out.key = one ? Str::tip_estimate_hour : Str::tip_estimate_hours;
  else
    out.key = one ? Str::tip_estimate_minute : Str::tip_estimate_minutes;
  return out;
}

QString upload_estimate_text(const QString& rateText) {
  const UploadEstimate estimate = upload_estimate(rateText.isEmpty() ? 0 : rateText.toInt(nullptr, 10));
  return string_display::text(estimate.key).arg(estimate.value);
}

ServerNote server_note(const Json::Value& serverConfig) {
  ServerNote note;
  if (jsonx::get_int64(serverConfig, kType) == 0) return note;
  note.visible = true;
  const QString rate = QString::number(jsonx::get_int64(serverConfig, kRate));
  if (jsonx::get_bool(serverConfig, kRange)) {
    const QString start = QString::fromStdString(jsonx::get_string(serverConfig, kStart));
    const QString end = QString::fromStdString(jsonx::get_string(serverConfig, kEnd));
    const QString shownEnd = end_display_text(end, start, string_display::text(Str::next_day));
    note.text = string_display::text(Str::bandwidth_note_business_with_range)
                    .arg(rate, start.toHtmlEscaped(), shownEnd.toHtmlEscaped());
  } else {
    // Only the rate is filled; the text keeps its %2 and %3.
    note.text = string_display::text(Str::bandwidth_note_business_without_range).arg(rate);
  }
  return note;
}

Json::Value save_request(const SaveInput& input) {
  Json::Value bandwidth(Json::objectValue);
  bandwidth[kEnd] = input.endText.left(5).toStdString();
  bandwidth[kRange] = input.limitRange;
  bandwidth[kRate] = input.rate.toInt(nullptr, 10);
  bandwidth[kStart] = input.startText.left(5).toStdString();
  bandwidth[kType] = input.noLimit ? 0 : 1;
  Json::Value request(Json::objectValue);
  request["action"] = "set_bandwidth_control";
  request["bandwidth"] = bandwidth;
  return request;
}

}  // namespace settings_rules
