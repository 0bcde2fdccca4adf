#include "latest-event.h"

#include <QLabel>

#include "relative-age.h"
#include "string-display.h"

LatestEventLine::LatestEventLine(QLabel* event, QLabel* age)
    : event_(event), age_(age), fitter_(event_fit::Fitter::tray()) {}

void LatestEventLine::setEntry(const LogEntry& entry) {
  if (entry_ && entry_->id == entry.id && entry_->type == entry.type && entry_->body == entry.body) {
    entry_->time = entry.time;
    return;
  }
  entry_ = entry;
  fitted_ = false;
}

void LatestEventLine::refresh(qint64 now) {
  if (!entry_) return;
  if (!fitted_) {
    message_ = fitter_.fit(*entry_).message;
    fitted_ = true;
    const QString plain = string_display::render_event_message(*entry_, false, 449);
    event_->setToolTip(plain);
    event_->setAccessibleName(plain);
  }
  event_->setText(tray_text::line_div(message_));
  refreshAge(now);
}

void LatestEventLine::refreshAge(qint64 now) {
  if (!entry_) return;
  const QString age = tray_text::relative_age_text(now, static_cast<qint64>(entry_->time));
  age_->setText(tray_text::line_div(age));
  age_->setAccessibleName(age);
}
