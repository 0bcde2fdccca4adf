#pragma once
// What the progress page shows for one status update: the phase, the
// estimated finish (with the stalled count-down), the percentage and the
// processed amount. Pure: the caller passes the previous estimate and "now".

#include <json/value.h>

#include <QString>

#include <optional>

#include "ui-agent/catalogue/string-catalogue.h"
#include "ui-agent/core/service-status.h"

namespace progress_page_model {

// "Preparing for backup..." for 0x3001 and 0x3002, else "Backing up...".
Str phase_for(ServiceStatus status);

// p rounded half up to three significant digits: the decimals kept are 3
// minus the digits of p's integer part (as printed with 6 significant
// digits; 0 has none), never below 0. 12.3456 -> 12.3, 0.123456 -> 0.123.
double round_three_significant(double p);
// The bar's value for a rounded percentage: p x 100 truncated (10000 full).
int bar_value(double p);

struct Transfer {
  quint64 transferred = 0;
  quint64 upload = 0;
  quint64 total = 0;
  qint64 speed = 0;  // bytes per second
};

struct Finish {
  double estimate = 0;          // remaining seconds, kept for the next update
  std::optional<QString> text;  // the finish label; nullopt leaves it
};

// The estimated finish for one update. Without progress (transferred 0) the
// label shows "--/-- --:--" and the estimate restarts; with a speed the
// estimate is the rest over the speed; a stalled transfer (speed 0) counts
// the last estimate down by one second per update, never below 0.
Finish finish_for(const Transfer& t, double previous_estimate, qint64 now);

struct View {
  Str phase = Str::desc_status_backup;
  bool has_transfer = false;  // without "transfer" only the phase changes
  Finish finish;
  double percent = 0;
  int bar = 0;
  QString percent_text;    // "12.3%"
  QString processed_text;  // the rich "... processed" line
};

View view_for(ServiceStatus status, const Json::Value& content, double previous_estimate, qint64 now);

}  // namespace progress_page_model
