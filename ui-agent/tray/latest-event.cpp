#include "ui-agent/tray/latest-event.h"

#include <QLabel>

#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/relative-age.h"
#include "widgets/dpi-info.h"
#include "widgets/web-link.h"

LatestEventLine::LatestEventLine(QWidget* parent, const QString& prefix)
    : event_(new QLabel(parent)), age_(new QLabel(parent)), fitter_(event_fit::Fitter::tray()) {
  // Two lines of 177 for the message, its age right-aligned beside it.
  event_->setObjectName(prefix + QStringLiteral("LatestEvent"));
  event_->setStyleSheet(event_fit::Fitter::labelStyleSheet());
  event_->setFixedSize(DPIinfo::scaled(177), DPIinfo::scaled(40));
  event_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  event_->setWordWrap(true);
  event_->setTextFormat(Qt::RichText);
  web_link::route(event_, "activity link");
  age_->setObjectName(prefix + QStringLiteral("EventAge"));
  age_->setStyleSheet(DPIinfo::getScaledStyleSheet(
      QStringLiteral("QLabel { color: rgba(80,90,100,0.65); font-size: 12px; }")));
  age_->setFixedSize(DPIinfo::scaled(119), DPIinfo::scaled(40));
  age_->setAlignment(Qt::AlignRight | Qt::AlignTop);
}

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
    plain_ = event_text::render(*entry_, false, 449);
    fitted_ = true;
  }
  // Said again whenever the line is shown: the error page puts its own
  // text in the same label.
  if (event_->toolTip() != plain_) event_->setToolTip(plain_);
  if (event_->accessibleName() != plain_) event_->setAccessibleName(plain_);
  event_->setText(relative_age::line_div(message_));
  refreshAge(now);
}

void LatestEventLine::refreshAge(qint64 now) {
  if (!entry_) return;
  const QString age = relative_age::relative_age_text(now, entry_->time);
  age_->setText(relative_age::line_div(age));
  // Said again every second: a name set again is announced again.
  if (age_->accessibleName() != age) age_->setAccessibleName(age);
}
