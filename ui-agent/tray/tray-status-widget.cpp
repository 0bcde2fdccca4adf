#include "ui-agent/tray/tray-status-widget.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/backup-schedule-info-widget.h"
#include "ui-agent/tray/latest-event.h"
#include "ui-agent/tray/status-page-model.h"
#include "widgets/copyable-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-label.h"

TrayStatusWidget::TrayStatusWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("TrayStatusWidget"));
  picture_ = new QLabel(this);
  picture_->setObjectName(QStringLiteral("statusPicture"));
  picture_->setFixedSize(DPIinfo::scaled(48), DPIinfo::scaled(48));

  result_ = new VellLabel(this);
  result_->setObjectName(QStringLiteral("statusResult"));
  result_->setStyleSheet(getStyleSheet(QStringLiteral("tray_status_display")));
  result_->setFixedSize(DPIinfo::scaled(296), DPIinfo::scaled(28));
  result_->setElideMode(Qt::ElideRight);

  latest_ = std::make_unique<LatestEventLine>(this, QStringLiteral("status"));
  event_ = latest_->eventLabel();
  copyable_text::enable_label(event_);  // the error message, for a support request
  age_ = latest_->ageLabel();

  schedule_ = new BackupScheduleInfoWidget(this);
  // The page's width (the 376 of the box's design would stick 16 out of the
  // pages' 360) and one less than 68, so that it stands 16 under the event
  // line inside the pages' 160.
  schedule_->setFixedSize(DPIinfo::scaled(360), DPIinfo::scaled(67));

  // picture | column (result, latest event + age); the schedule box below.
  auto* column = new QVBoxLayout;
  column->setContentsMargins(0, DPIinfo::scaled(5), 0, 0);
  column->setSpacing(0);
  column->addWidget(result_);
  column->addSpacing(DPIinfo::scaled(4));
  auto* eventRow = new QHBoxLayout;
  eventRow->setContentsMargins(0, 0, 0, 0);
  eventRow->setSpacing(0);
  eventRow->addWidget(event_);
  eventRow->addWidget(age_);
  eventRow->addStretch();
  column->addLayout(eventRow);

  auto* top = new QHBoxLayout;
  top->setContentsMargins(0, 0, 0, 0);
  top->setSpacing(DPIinfo::scaled(16));
  top->addWidget(picture_, 0, Qt::AlignTop);
  top->addLayout(column);
  top->addStretch();

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(top);
  layout->addSpacing(DPIinfo::scaled(16));
  layout->addWidget(schedule_);
  layout->addStretch();

  const auto ready = status_page_model::result_for(0, true);
  setPicture(ready.picture);
  result_->setText(string_display::text(ready.text));
  result_->setAccessibleName(result_->fullText());
}

TrayStatusWidget::~TrayStatusWidget() = default;

void TrayStatusWidget::setPicture(const char* name) {
  if (pictureName_ == QLatin1String(name)) return;
  pictureName_ = QLatin1String(name);
  const int side = DPIinfo::scaled(48);
  picture_->setPixmap(ImageManager::getInstance()->pixmap(QLatin1String(name), QSize(side, side)));
}

void TrayStatusWidget::updateStatus(const Json::Value& content) {
  // The service answers every second, mostly with what it said before: the
  // page then only moves its age on (laying the texts out again is most of
  // the agent's work while idle).
  if (shownTray_ && content == shownContent_) {
    if (!error_shown_) latest_->refresh(clock_());
    emit sigTrayStatusChanged(*shownTray_);
    return;
  }
  shownContent_ = content;
  const auto view = status_page_model::view_for(content);
  shownTray_ = view.error ? TrayError : view.result.tray;
  setPicture(view.result.picture);
  result_->setText(string_display::text(view.result.text));
  result_->setAccessibleName(result_->fullText());
  picture_->setAccessibleName(result_->fullText());

  if (view.error) {
    error_shown_ = true;
    event_->setFixedWidth(DPIinfo::scaled(296));
    const QString& message = view.error_message;
    // Plain messages are cut to two lines; one with a link is shown whole.
    const QString shown = Qt::mightBeRichText(message)
                              ? message
                              : QFontMetrics(event_->font())
                                    .elidedText(message, Qt::ElideRight, DPIinfo::scaled(556))
                                    .toHtmlEscaped();
    event_->setText(relative_age::line_div(shown));
    const QString plain = QTextDocumentFragment::fromHtml(message).toPlainText();
    event_->setToolTip(message);
    event_->setAccessibleName(plain);
    age_->hide();
    emit sigTrayStatusChanged(TrayError);
    return;
  }

  if (error_shown_) {
    error_shown_ = false;
    event_->setFixedWidth(DPIinfo::scaled(177));
    event_->clear();
    event_->setToolTip(QString());
  }
  if (view.last_backup) schedule_->setLastBackupText(*view.last_backup);
  if (view.next_backup) schedule_->setNextBackupText(*view.next_backup);
  age_->show();
  latest_->refresh(clock_());
  emit sigTrayStatusChanged(view.result.tray);
}

void TrayStatusWidget::setLatestEvent(const LogEntry& entry) {
  latest_->setEntry(entry);
  if (!error_shown_) latest_->refresh(clock_());
}
