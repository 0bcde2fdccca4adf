#pragma once
// The decisions of the settings dialog, free of widgets: which bandwidth
// configurations are valid, what a configuration puts into the controls, the
// end times offered after a start time, the rate clamp, the rate-unit text,
// the 100 GB upload estimate, the organisation's note and the save request.
//
// Times are "HH:MM"; combo texts may carry a suffix after the first five
// characters (" Next day", " (Custom)"), which is never sent.

#include <json/value.h>

#include <QString>
#include <QStringList>

#include "ui-agent/catalogue/string-catalogue.h"

namespace settings_rules {

// Lowest and highest rate in Mbps.
constexpr int kMinRate = 5;
constexpr int kMaxRate = 9999;

// Exactly five characters, the first ':' at index 2, hour below 24 and
// minute below 60 (both decimal).
bool is_valid_time(const std::string& time);
// The validity rule of a bandwidth configuration object.
bool is_valid_config(const Json::Value& config);
// No limit, 20 Mbps, range on, 07:00 to 23:00.
Json::Value default_config();

// The hour of an "HH..." text (the integer before ':'), -1 when there is none.
int hour_of(const QString& timeText);

// "00:00", "01:00" ... "23:00".
QStringList start_items();
// The 23 hours after the start: hour (start + i) % 24 for i = 1..23, followed
// by the start's minutes (":00" for a whole hour), with " " + `nextDay` when
// the hour is below the start hour. Empty when the start has no hour.
QStringList end_items(const QString& startText, const QString& nextDay);
// The index of the item whose first five characters equal those of
// `previous`, else 0.
int end_item_index(const QStringList& items, const QString& previous);
// `end` (its first five characters) followed by " " + `nextDay` when its
// hour is below the start's hour.
QString end_display_text(const QString& end, const QString& start, const QString& nextDay);

// What a configuration puts into the controls.
struct LoadedSettings {
  bool limited = false;    // the limit radio, else "Maximum"
  QString rate;            // the rate edit, a decimal number within 5..9999
  bool limitRange = true;  // the range check box
  QString start;           // "HH:MM"
  QString end;             // "HH:MM" (the widget adds the "Next day" suffix)
};
// Fields that are missing, of the wrong type or out of range take the
// defaults (rate clamped); every such fallback is logged.
LoadedSettings load_settings(const Json::Value& config);

// The rate text after leaving the edit: read as a decimal integer (empty or
// no number reads as 0), then kept within 5..9999.
QString clamp_rate(const QString& text);

// A value printed with "%f", cut after the first decimal digit, then trailing
// zeros and a trailing point removed: 2.55 -> "2.5", 1.05 -> "1".
QString format_one_decimal(double value);

// The %1 of the rate-unit label: "--" for an empty rate, else
// rate * 0.125 + 0.05 in MB/s (20 -> "2.5", 8 -> "1", 100 -> "12.5").
QString rate_megabytes_text(const QString& rateText);
// "Mbps (%1 MB/s)" filled.
QString rate_unit_text(const QString& rateText);

// The time to upload 100 GB at a rate in Mbps: a catalogue row (hour(s) or
// minute(s)) and its number.
struct UploadEstimate {
  Str key = Str::tip_estimate_hours;
  QString value;
};
// Rate 0 or below stands for an empty edit: hours with "--".
UploadEstimate upload_estimate(int rateMbps);
// The same for the edit's text, filled into its catalogue text.
QString upload_estimate_text(const QString& rateText);

// The organisation's limit as a note, or hidden when it sets none.
struct ServerNote {
  bool visible = false;
  QString text;  // rich text
};
ServerNote server_note(const Json::Value& serverConfig);

// What the controls hold when "Save" is pressed.
struct SaveInput {
  bool noLimit = true;
  QString rate;
  bool limitRange = false;
  QString startText;
  QString endText;
};
// {"action":"set_bandwidth_control","bandwidth":{...}} with every field,
// the times cut to their first five characters.
Json::Value save_request(const SaveInput& input);

}  // namespace settings_rules
