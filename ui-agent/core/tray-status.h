#pragma once
// What the tray icon shows. Values outside 1..4 show like TrayIdle.

#include <QMetaType>

enum TrayStatus : int {
  TrayIdle = 0,     // connected, no last result to show
  TraySuccess = 1,  // last backup successful
  TrayRunning = 2,  // a backup is running
  TrayError = 3,    // last backup failed, or an error is shown
  TrayWarning = 4,  // last backup partly successful or cancelled
};

namespace tray_status {

// Any number as a tray status: 1..4 as themselves, everything else idle.
constexpr TrayStatus from_int(int v) {
  return v >= TraySuccess && v <= TrayWarning ? static_cast<TrayStatus>(v) : TrayIdle;
}

// Name of the tray icon picture for a status.
constexpr const char* icon_name(TrayStatus s) {
  switch (from_int(static_cast<int>(s))) {
    case TraySuccess:
      return "logo_tray_icn_green";
    case TrayRunning:
      return "logo_tray_icn_blue";
    case TrayError:
      return "logo_tray_icn_red";
    case TrayWarning:
      return "logo_tray_icn_orange";
    case TrayIdle:
      break;
  }
  return "logo_tray_icn_connect";
}

}  // namespace tray_status

Q_DECLARE_METATYPE(TrayStatus)
