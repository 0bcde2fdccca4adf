#include "event-message-fit.h"

#include <QLabel>

#include "dpi-info.h"
#include "string-display.h"

namespace event_fit {

QString line_height_div(const QString& message) {
  return QStringLiteral("<div style=\"line-height:20px\">") + message + QStringLiteral("</div>");
}

Fitted fit_popup(const LogEntry& entry) {
  QLabel scratch;
  scratch.setWordWrap(true);
  scratch.setTextFormat(Qt::RichText);
  const int width = DPIinfo::scaled(177);
  const int maxHeight = DPIinfo::scaled(40);
  Fitted fitted;
  for (int limit = 354; limit > 20; --limit) {
    fitted = {string_display::render_event_message(entry, true, limit), limit, false};
    scratch.setText(line_height_div(fitted.message + QStringLiteral(" .")));
    fitted.fits = scratch.heightForWidth(width) <= maxHeight;
    if (fitted.fits) break;
  }
  return fitted;
}

Fitted fit_activity_dialog(const LogEntry& entry) {
  QLabel label;
  label.setWordWrap(true);
  label.setTextFormat(Qt::RichText);
  label.setFixedWidth(DPIinfo::scaled(441));
  Fitted fitted;
  for (int limit = 1313; limit > 20; limit -= 10) {
    fitted = {string_display::render_event_message(entry, true, limit), limit, false};
    label.setText(line_height_div(fitted.message));
    label.adjustSize();
    fitted.fits = label.width() <= 1323 && label.height() <= 60;
    if (fitted.fits) break;
  }
  return fitted;
}

}  // namespace event_fit
