#include "ui-agent/tray/backup-schedule-info-widget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui-agent/core/string-display.h"
#include "widgets/accessible-text.h"
#include "widgets/dpi-info.h"
#include "widgets/vell-label.h"

namespace {

constexpr auto kFrameStyle =
    "QFrame#BackupScheduleInfoWidget {border-radius: 4px; background-color: rgba(171,181,194,0.1);}";
// The captions and values inside the box: the page's text colours.
constexpr auto kCaptionStyle =
    "QLabel { color: rgba(80,90,100,0.75); font-size: 13px; background: transparent; }";
constexpr auto kValueStyle = "QLabel { color: #1E2832; font-size: 13px; background: transparent; }";

}  // namespace

BackupScheduleInfoWidget::BackupScheduleInfoWidget(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("BackupScheduleInfoWidget"));
  setStyleSheet(DPIinfo::getScaledStyleSheet(QLatin1String(kFrameStyle)));

  auto makeCaption = [this](Str key, const char* name) {
    auto* caption = new VellLabel(this);
    caption->setObjectName(QLatin1String(name));
    caption->setStyleSheet(DPIinfo::getScaledStyleSheet(QLatin1String(kCaptionStyle)));
    caption->setFixedSize(DPIinfo::scaled(160), DPIinfo::scaled(20));
    caption->setElideMode(Qt::ElideRight);  // the full caption becomes the tool tip
    caption->setText(string_display::text(key));
    return caption;
  };
  auto makeValue = [this](const char* name, QLabel* caption) {
    auto* value = new VellLabel(this);
    value->setObjectName(QLatin1String(name));
    value->setStyleSheet(DPIinfo::getScaledStyleSheet(QLatin1String(kValueStyle)));
    value->setFixedSize(DPIinfo::scaled(142), DPIinfo::scaled(20));
    value->setElideMode(Qt::ElideRight);  // the full value becomes the tool tip
    value->setText(QStringLiteral("--"));
    caption->setBuddy(value);
    return value;
  };
  last_caption_ = makeCaption(Str::desc_last_backup_time, "lastBackupCaption");
  next_caption_ = makeCaption(Str::desc_next_backup_time, "nextBackupCaption");
  last_value_ = makeValue("lastBackupValue", last_caption_);
  next_value_ = makeValue("nextBackupValue", next_caption_);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(DPIinfo::scaled(16), DPIinfo::scaled(12), 0, DPIinfo::scaled(12));
  layout->setSpacing(0);
  auto addRow = [&](QLabel* caption, QLabel* value) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(caption);
    row->addSpacing(DPIinfo::scaled(6));
    row->addWidget(value);
    row->addStretch();
    layout->addLayout(row);
  };
  addRow(last_caption_, last_value_);
  layout->addSpacing(DPIinfo::scaled(4));
  addRow(next_caption_, next_value_);
}

void BackupScheduleInfoWidget::setLastBackupText(const QString& text) {
  last_value_->setText(text);
  // Heard whole, with its caption.
  accessible_text::describe_value(last_value_, last_caption_->fullText(), text);
}

void BackupScheduleInfoWidget::setNextBackupText(const QString& text) {
  next_value_->setText(text);
  accessible_text::describe_value(next_value_, next_caption_->fullText(), text);
}
