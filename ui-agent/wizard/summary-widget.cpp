#include "ui-agent/wizard/summary-widget.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "ui-agent/core/string-display.h"
#include "ui-agent/wizard/summary-text.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/accessible-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"

namespace {

using string_display::text;

// Longest policy name shown before it is elided.
constexpr int kPolicyWidth = 478;

QLabel* dot(const QString& image, QWidget* parent) {
  auto* l = new QLabel(parent);
  const int s = DPIinfo::scaled(16);
  l->setFixedSize(s, s);
  l->setAlignment(Qt::AlignCenter);
  l->setPixmap(ImageManager::getInstance()->pixmap(image, QSize(s, s)));
  return l;
}

QLabel* rowLabel(Str key, QWidget* parent) {
  auto* l = new QLabel(text(key) + text(Str::colon) + QLatin1Char(' '), parent);
  l->setStyleSheet(getStyleSheet(QStringLiteral("summary_label")));
  l->setFixedWidth(DPIinfo::scaled(180));
  return l;
}

QFrame* separator(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Plain);
  line->setStyleSheet(QStringLiteral("QFrame {color: rgba(171,181,194,0.20);}"));
  return line;
}

// A row: dot, label, value, stretch; the value tells its caption to screen
// readers (fillRows() gives it its text).
QHBoxLayout* row(QLabel* label, QWidget* value, QVBoxLayout* into, QWidget* parent) {
  auto* h = new QHBoxLayout;
  h->setContentsMargins(0, 0, 0, 0);
  h->setSpacing(DPIinfo::scaled(8));
  h->addWidget(dot(QStringLiteral("icn_dot"), parent), 0, Qt::AlignVCenter);
  h->addWidget(label, 0, Qt::AlignVCenter);
  h->addWidget(value, 0, Qt::AlignVCenter);
  h->addStretch(1);
  label->setBuddy(value);
  accessible_text::describe_value(value, label->text(), QString());
  into->addLayout(h);
  return h;
}

}  // namespace

SummaryComboBox::SummaryComboBox(QWidget* parent) : QComboBox(parent) {
  view()->setItemDelegate(new QStyledItemDelegate(this));
}

SummaryWidget::SummaryWidget(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("SummaryWidget"));
  setStyleSheet(DPIinfo::getScaledStyleSheet(QStringLiteral(
      "QFrame#SummaryWidget {background-color: rgba(171, 181, 194, 25);border-radius: 4px;}")));
  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(DPIinfo::scaled(20), DPIinfo::scaled(16), DPIinfo::scaled(20), DPIinfo::scaled(16));
  v->setSpacing(DPIinfo::scaled(12));
  const QString valueSheet = getStyleSheet(QStringLiteral("summary_value"));

  policy_ = new QLabel(this);
  policy_->setObjectName(QStringLiteral("SummaryPolicy"));
  policy_->setStyleSheet(valueSheet);
  policy_->setTextFormat(Qt::PlainText);
  row(rowLabel(Str::desc_backup_policy, this), policy_, v, this);
  v->addWidget(separator(this));

  auto* site = new QWidget(this);
  auto* siteLayout = new QHBoxLayout(site);
  siteLayout->setContentsMargins(0, 0, 0, 0);
  chooser_ = new SummaryComboBox(site);
  chooser_->setObjectName(QStringLiteral("SummaryComboBox"));
  chooser_->setStyleSheet(getStyleSheet(QStringLiteral("summary_combobox")));
  chooser_->setMinimumWidth(DPIinfo::scaled(240));
  chooser_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  singleSite_ = new QLabel(site);
  singleSite_->setObjectName(QStringLiteral("SummarySingleSite"));
  singleSite_->setStyleSheet(valueSheet);
  singleSite_->setTextFormat(Qt::PlainText);
  singleSite_->hide();
  siteLayout->addWidget(chooser_);
  siteLayout->addWidget(singleSite_);
  QLabel* siteLabel = rowLabel(Str::desc_data_center, this);
  row(siteLabel, site, v, this);
  chooser_->setAccessibleName(siteLabel->text().trimmed());
  // On Linux Qt gives a combo box its chosen item as name: the caption then
  // comes as description, as with the labels.
  chooser_->setAccessibleDescription(accessible_text::for_value(siteLabel->text(), QString()).description);
  chooser_->view()->setAccessibleName(siteLabel->text().trimmed());
  accessible_text::describe_value(singleSite_, siteLabel->text(), QString());
  siteLabel->setBuddy(chooser_);
  v->addWidget(separator(this));

  schedule_ = new QLabel(this);
  schedule_->setObjectName(QStringLiteral("SummarySchedule"));
  schedule_->setStyleSheet(valueSheet);
  schedule_->setTextFormat(Qt::PlainText);
  row(rowLabel(Str::backup_schedule, this), schedule_, v, this);
  v->addWidget(separator(this));

  scope_ = new QLabel(this);
  scope_->setObjectName(QStringLiteral("SummaryScope"));
  scope_->setStyleSheet(valueSheet);
  scope_->setWordWrap(true);
  scope_->setFixedWidth(DPIinfo::scaled(280));
  row(rowLabel(Str::desc_backup_source, this), scope_, v, this);

  note_ = new QWidget(this);
  note_->setObjectName(QStringLiteral("SummaryMoreInfo"));
  auto* noteLayout = new QHBoxLayout(note_);
  noteLayout->setContentsMargins(0, 0, 0, 0);
  noteLayout->setSpacing(DPIinfo::scaled(8));
  noteLayout->addWidget(dot(QStringLiteral("icn_imsg"), note_));
  auto* noteText = new QLabel(text(Str::desc_more_info), note_);
  noteText->setStyleSheet(getStyleSheet(QStringLiteral("summary_label")));
  noteLayout->addWidget(noteText);
  noteLayout->addStretch(1);
  note_->setAccessibleName(noteText->text());
  note_->hide();
  v->addWidget(note_);

  connect(chooser_, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &SummaryWidget::slotSiteChanaged);
}

void SummaryWidget::setData(const Json::Value& response) {
  const int count = summary_text::site_count(response);
  if (count == 0) return;
  data_ = response;
  {
    // The rows and the announcement follow below, once, for element 0.
    const QSignalBlocker block(chooser_);
    chooser_->clear();
    for (int i = 0; i < count; ++i)
      chooser_->addItem(
          summary_text::site_display_name(jsonx::get_object(summary_text::site(data_, i), "billing")));
    chooser_->setCurrentIndex(0);
  }
  singleSite_->setText(chooser_->itemText(0));
  accessible_text::describe_value(singleSite_, text(Str::desc_data_center), singleSite_->text());
  singleSite_->setVisible(count == 1);
  chooser_->setVisible(count != 1);
  const Json::Value& first = summary_text::site(data_, 0);
  fillRows(first);
  emit sigSiteChange(summary_text::site_code(first), summary_text::console_url(first));
}

void SummaryWidget::slotSiteChanaged(int index) {
  if (index < 0 || index >= summary_text::site_count(data_)) return;
  const Json::Value& s = summary_text::site(data_, index);
  fillRows(s);
  emit sigSiteChange(summary_text::site_code(s), summary_text::console_url(s));
}

void SummaryWidget::fillRows(const Json::Value& site) {
  const Json::Value& policy = jsonx::get_object(site, "backup_policy");
  const QString name = QString::fromStdString(jsonx::get_string(policy, "policy_name"));
  policy_->ensurePolished();
  policy_->setText(policy_->fontMetrics().elidedText(name, Qt::ElideRight, DPIinfo::scaled(kPolicyWidth)));
  policy_->setToolTip(name);
  if (const auto schedule = summary_text::schedule_text(policy)) schedule_->setText(*schedule);
  const summary_text::Scope scope = summary_text::scope_text(policy);
  scope_->setText(summary_text::line_height_div(scope.text.toHtmlEscaped(), 24, false));
  // Screen readers hear the whole name (elided on screen); the other values'
  // names are their texts (row()).
  accessible_text::describe_value(policy_, text(Str::desc_backup_policy), name);
  note_->setVisible(scope.shortened);
}
