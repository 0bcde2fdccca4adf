#include "ui-agent/tray/tray-icon-model.h"

#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/progress-page-model.h"
#include "ui-agent/tray/status-page-model.h"
#include "ui-agent/tray/tray-menu-model.h"
#include "vantor-core/lib/json-access.h"

namespace tray_icon_model {

namespace {

QString state_line(const Facts& f, bool running) {
  using string_display::text;
  if (f.mode == ConnectionMode::NotConnected) return text(Str::tray_tip_not_set_up);
  if (f.mode != ConnectionMode::Connected) return QString();
  if (!f.reachable) return text(Str::tray_tip_unreachable);
  if (running) {
    const progress_page_model::View p = progress_page_model::view_for(f.status, f.content, 0, 0);
    const QString phase = text(p.phase);
    return p.has_transfer ? phase + QLatin1Char(' ') + p.percent_text : phase;
  }
  const status_page_model::View s = status_page_model::view_for(f.content);
  if (s.error) return text(Str::desc_status_error).trimmed();
  const Json::Value& r = jsonx::get_object(f.content, "last_backup_result");
  const quint64 when = jsonx::get_uint64(r, "last_backup_time");
  if (s.result.tray == TrayIdle || when == 0) return text(Str::desc_no_backup_yet);
  return text(Str::tray_tip_last_result).arg(text(s.result.text), status_page_model::last_backup_text(when));
}

}  // namespace

View view_for(const Facts& f) {
  View v;
  const bool running =
      f.mode == ConnectionMode::Connected && tray_menu_model::shows_progress_page(f.status, f.content);
  const QString line = state_line(f, running);
  v.tool_tip = string_display::text(Str::app_name);
  if (!line.isEmpty()) v.tool_tip += QLatin1Char('\n') + line;
  if (f.mode != ConnectionMode::Connected) {
    v.backup_reason = Str::tray_tip_not_set_up;
  } else if (!f.reachable) {
    v.backup_reason = Str::tray_tip_unreachable;
  } else if (running) {
    v.backup_reason = Str::tray_menu_backup_running;
  } else {
    v.backup_now = true;
  }
  return v;
}

}  // namespace tray_icon_model
