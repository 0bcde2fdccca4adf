#include "ui-agent/tray/tray-progress-widget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/latest-event.h"
#include "ui-agent/tray/progress-page-model.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-label.h"

namespace {

constexpr auto kTextStyle = "QLabel { color: #505A64; font-size: 13px; }";

// The processed line's amount is coloured in place: a block element would
// put "processed" on a second line of a one-line label.
QString inline_blocks(QString html) {
  html.replace(QStringLiteral("<div"), QStringLiteral("<span"));
  html.replace(QStringLiteral("</div>"), QStringLiteral("</span>"));
  return html;
}

}  // namespace

TrayProgressWidget::TrayProgressWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("TrayProgressWidget"));
  const QString text_style = DPIinfo::getScaledStyleSheet(QLatin1String(kTextStyle));
  picture_ = new QLabel(this);
  picture_->setObjectName(QStringLiteral("progressPicture"));
  const int side = DPIinfo::scaled(48);
  picture_->setFixedSize(side, side);
  picture_->setPixmap(
      ImageManager::getInstance()->pixmap(QStringLiteral("status_m_backing_up"), QSize(side, side)));

  phase_ = new VellLabel(this);
  phase_->setObjectName(QStringLiteral("progressPhase"));
  phase_->setStyleSheet(getStyleSheet(QStringLiteral("tray_status_display")));
  phase_->setFixedWidth(DPIinfo::scaled(296));
  phase_->setElideMode(Qt::ElideRight);
  phase_->setFullTextToolTip(true);
  phase_->setText(string_display::text(Str::desc_status_backup));

  finish_ = new QLabel(this);
  finish_->setObjectName(QStringLiteral("progressFinish"));
  finish_->setStyleSheet(getStyleSheet(QStringLiteral("tray_finish_time_display")));

  bar_ = new QProgressBar(this);
  bar_->setObjectName(QStringLiteral("progressBar"));
  bar_->setRange(0, 10000);
  bar_->setValue(0);
  bar_->setTextVisible(false);
  bar_->setStyleSheet(getStyleSheet(QStringLiteral("tray_progressbar")));
  bar_->setFixedSize(DPIinfo::scaled(296), DPIinfo::scaled(6));
  bar_->setAccessibleName(phase_->fullText());

  processed_ = new QLabel(this);
  processed_->setObjectName(QStringLiteral("progressProcessed"));
  processed_->setStyleSheet(text_style);
  percent_ = new QLabel(this);
  percent_->setObjectName(QStringLiteral("progressPercent"));
  percent_->setStyleSheet(text_style);
  percent_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

  latest_ = std::make_unique<LatestEventLine>(this, QStringLiteral("progress"));
  event_ = latest_->eventLabel();
  age_ = latest_->ageLabel();

  auto row = [] {
    auto* r = new QHBoxLayout;
    r->setContentsMargins(0, 0, 0, 0);
    r->setSpacing(0);
    return r;
  };
  auto* column = new QVBoxLayout;
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* phaseRow = row();
  phaseRow->addWidget(phase_);
  phaseRow->addStretch();
  column->addLayout(phaseRow);
  column->addSpacing(DPIinfo::scaled(4));
  column->addWidget(finish_);
  column->addSpacing(DPIinfo::scaled(8));
  column->addWidget(bar_);
  column->addSpacing(DPIinfo::scaled(8));
  auto* amounts = row();
  amounts->addWidget(processed_);
  amounts->addStretch();
  amounts->addWidget(percent_);
  column->addLayout(amounts);
  column->addSpacing(DPIinfo::scaled(12));
  auto* eventRow = row();
  eventRow->setContentsMargins(0, DPIinfo::scaled(4), 0, DPIinfo::scaled(4));
  eventRow->addWidget(event_);
  eventRow->addWidget(age_);
  column->addLayout(eventRow);
  column->addStretch();

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, DPIinfo::scaled(6), 0, 0);
  layout->setSpacing(DPIinfo::scaled(16));
  layout->addWidget(picture_, 0, Qt::AlignTop);
  layout->addLayout(column);
  layout->addStretch();
}

TrayProgressWidget::~TrayProgressWidget() = default;

void TrayProgressWidget::updateStatus(ServiceStatus status, const Json::Value& content) {
  const qint64 now = clock_();
  const auto view = progress_page_model::view_for(status, content, estimate_, now);
  phase_->setText(string_display::text(view.phase));
  phase_->setAccessibleName(phase_->fullText());
  picture_->setAccessibleName(phase_->fullText());
  if (view.has_transfer) {
    estimate_ = view.finish.estimate;
    if (view.finish.text) finish_->setText(*view.finish.text);
    bar_->setValue(view.bar);
    bar_->setAccessibleName(phase_->fullText());
    bar_->setAccessibleDescription(view.percent_text);
    percent_->setText(view.percent_text);
    processed_->setText(inline_blocks(view.processed_text));
    emit sigTrayStatusChanged(TrayRunning);
  }
  latest_->refresh(now);
}

void TrayProgressWidget::setLatestEvent(const LogEntry& entry) {
  latest_->setEntry(entry);
  latest_->refresh(clock_());
}
