#pragma once
// The quota widget's decisions: the usage line and bar for a billing object,
// and the height of the account line for a measured name.

#include <json/value.h>

#include <QString>

#include <optional>

namespace quota_model {

struct Usage {
  double percent = 0;   // used x 100 / quota; for quota 0, 0 when nothing is used, else 100
  int bar = 0;          // the bar's value (maximum 100)
  bool red = false;     // from 95 % on
  QString style_sheet;  // "tray_usage_blue" or "tray_usage_red"
  QString label;        // "%1 / %2" with the coloured used amount
};

// Usage for the status content's "billing" object; nullopt (nothing
// changes) unless it has both "used_bytes" and "quota".
std::optional<Usage> usage_for(const Json::Value& billing);

// The account line's logical height for a name whose advance width is
// `device_width` pixels at display scale `scale`: 28 for one line, 20 more
// per 172 logical pixels (5 of slack included).
int account_line_height(double device_width, double scale);

}  // namespace quota_model
