#pragma once
// What the tray icon tells without a click: the tool tip's state line and the
// right-click menu's "Back up now" (enabled or not, and why). Pure: the tray
// passes its mode, whether the service answers and the latest status.

#include <json/value.h>

#include <QString>

#include <cstdint>
#include <optional>

#include "ui-agent/catalogue/string-catalogue.h"
#include "ui-agent/core/service-status.h"

// The tray's connection mode, set by the client manager; the numbers are the
// ones the mode has always carried (logs and the tests' tables show them).
enum class ConnectionMode : std::int32_t {
  Inactive = 0,      // a click does nothing: before the connection record, and after "Exit"
  Connected = 1,     // a click opens the pop-up; the right-click menu exists
  NotConnected = 2,  // the device is not linked: a click asks for the wizard
};

namespace tray_icon_model {

struct Facts {
  ConnectionMode mode = ConnectionMode::Inactive;
  bool reachable = true;  // the latest request reached the service
  ServiceStatus status = StatusUnknown;
  Json::Value content;  // the latest status content
};

struct View {
  QString tool_tip;                  // the product name, then the state on a second line
  bool backup_now = false;           // "Back up now" enabled
  std::optional<Str> backup_reason;  // why it is not (shown under it), nullopt when enabled
};

// Not set up; the service unreachable; backing up with the percentage;
// the error the pop-up shows; idle with the last result and its time.
View view_for(const Facts& facts);

}  // namespace tray_icon_model
