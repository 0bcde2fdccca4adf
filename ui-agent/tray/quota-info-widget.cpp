#include "ui-agent/tray/quota-info-widget.h"

#include <QFontMetrics>
#include <QLabel>
#include <QProgressBar>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QVBoxLayout>

#include "logging/logger.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/tray/quota-model.h"
#include "ui-agent/tray/relative-age.h"
#include "widgets/dpi-info.h"
#include "widgets/style-manager.h"

QuotaInfoWidget::QuotaInfoWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("QuotaInfoWidget"));
  account_line_ = new QTextEdit(this);
  account_line_->setObjectName(QStringLiteral("accountLine"));
  account_line_->setReadOnly(true);
  account_line_->setTextInteractionFlags(Qt::NoTextInteraction);
  account_line_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  account_line_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  account_line_->setFocusPolicy(Qt::NoFocus);
  QFont bold = account_line_->font();
  bold.setWeight(75);
  account_line_->setFont(bold);
  account_line_->setStyleSheet(getStyleSheet(QStringLiteral("tray_email")));
  account_line_->viewport()->setCursor(Qt::ArrowCursor);
  account_line_->setFixedWidth(DPIinfo::scaled(172));
  account_line_->setFixedHeight(DPIinfo::scaled(28));
  account_line_->document()->setDocumentMargin(0);

  usage_area_ = new QWidget(this);
  usage_area_->setObjectName(QStringLiteral("quotaUsageArea"));
  usage_label_ =
      new QLabel(QStringLiteral("%1 / %2").arg(QStringLiteral("--"), QStringLiteral("--")), usage_area_);
  usage_label_->setObjectName(QStringLiteral("quotaUsageLabel"));
  usage_label_->setFixedSize(DPIinfo::scaled(105), DPIinfo::scaled(20));
  usage_bar_ = new QProgressBar(usage_area_);
  usage_bar_->setObjectName(QStringLiteral("quotaUsageBar"));
  usage_bar_->setRange(0, 100);
  usage_bar_->setValue(0);
  usage_bar_->setTextVisible(false);
  usage_bar_->setFixedSize(DPIinfo::scaled(172), DPIinfo::scaled(6));
  usage_bar_->setStyleSheet(getStyleSheet(QStringLiteral("tray_usage_blue")));

  auto* area = new QVBoxLayout(usage_area_);
  area->setContentsMargins(0, 0, 0, 0);
  area->setSpacing(0);
  area->addSpacing(DPIinfo::scaled(12));
  area->addWidget(usage_label_);
  area->addSpacing(DPIinfo::scaled(4));
  area->addWidget(usage_bar_);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(DPIinfo::scaled(14), DPIinfo::scaled(13), DPIinfo::scaled(14), 0);
  layout->setSpacing(0);
  layout->addWidget(account_line_);
  layout->addWidget(usage_area_);

  connect(this, &QuotaInfoWidget::sigUpdateQuota, &GlobalConnecter::instance(),
          &GlobalConnecter::sigUpdateQuota);
}

void QuotaInfoWidget::setAccount(const QString& account) {
  account_ = account;
  const double scale = DPIinfo::getDPI();
  account_line_->ensurePolished();  // the style sheet's font is the one shown
  const double w = QFontMetrics(account_line_->font()).horizontalAdvance(account);
  account_line_->setFixedHeight(DPIinfo::scaled(quota_model::account_line_height(w, scale)));
  account_line_->setHtml(relative_age::line_div(account.toHtmlEscaped()));
  account_line_->setAccessibleName(account);
  if (!account.isEmpty()) emit sigAccountChanged(account);
}

void QuotaInfoWidget::setUsage(const Json::Value& billing) {
  const auto usage = quota_model::usage_for(billing);
  if (!usage) return;
  usage_bar_->setValue(usage->bar);
  // The status comes every second with the same usage mostly: a style sheet
  // set again polishes the bar again, so only a change is applied.
  if (usage->style_sheet != shownStyle_) {
    shownStyle_ = usage->style_sheet;
    usage_bar_->setStyleSheet(getStyleSheet(usage->style_sheet));
  }
  if (usage->label != usage_label_->text()) {
    usage_label_->setText(usage->label);
    usage_bar_->setAccessibleName(QTextDocumentFragment::fromHtml(usage->label).toPlainText());
    LOG_DEBUG(vlog::kDefaultComponent, "quota usage: %s (%s)", qUtf8Printable(usage_bar_->accessibleName()),
              qUtf8Printable(usage->style_sheet));
  }
}

void QuotaInfoWidget::setUsageAreaVisible(bool visible) {
  usage_area_->setVisible(visible);
}

bool QuotaInfoWidget::usageAreaVisible() const {
  return !usage_area_->isHidden();
}

void QuotaInfoWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  emit sigUpdateQuota();
}
