#include "ui-agent/tray/quota-model.h"

#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"

namespace quota_model {

std::optional<Usage> usage_for(const Json::Value& billing) {
  if (!jsonx::has(billing, "used_bytes") || !jsonx::has(billing, "quota")) return std::nullopt;
  const quint64 used = jsonx::get_uint64(billing, "used_bytes");
  const quint64 quota = jsonx::get_uint64(billing, "quota");
  Usage u;
  u.percent = quota == 0 ? 0.0 : static_cast<double>(used) * 100 / static_cast<double>(quota);
  // Anything stored against no storage at all is over the quota: a full red
  // bar, not an empty blue one.
  if (quota == 0 && used > 0) u.percent = 100;
  u.bar = u.percent >= 100 ? 100 : static_cast<int>(u.percent);
  u.red = u.percent >= 95;
  u.style_sheet = u.red ? QStringLiteral("tray_usage_red") : QStringLiteral("tray_usage_blue");
  const QString colour = u.red ? QStringLiteral("#E64040") : QStringLiteral("#0A9CFF");
  // A span, not a block: the label is one line high.
  const QString used_text = QStringLiteral("<span style=\"color: %1\">%2</span>")
                                .arg(colour, string_display::format_size_text(used, false));
  u.label = QStringLiteral("%1 / %2").arg(used_text, string_display::format_size_text(quota, false));
  return u;
}

int account_line_height(double device_width, double scale) {
  if (scale <= 0) scale = 1;
  const int n = static_cast<int>(device_width / scale + 5) / 172;
  return n == 0 ? 28 : n * 20 + 28;
}

}  // namespace quota_model
