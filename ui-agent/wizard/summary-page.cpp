#include "ui-agent/wizard/summary-page.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui-agent/core/string-display.h"
#include "ui-agent/wizard/summary-text.h"
#include "ui-agent/wizard/summary-widget.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/dpi-info.h"
#include "widgets/style-manager.h"
#include "widgets/web-link.h"

namespace {

using string_display::text;

// Centres `w` in its own row of `v`.
void centred(QVBoxLayout* v, QWidget* w) {
  auto* h = new QHBoxLayout;
  h->addStretch(1);
  h->addWidget(w);
  h->addStretch(1);
  v->addLayout(h);
}

}  // namespace

SummaryPage::SummaryPage(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("SummaryPage"));
  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(0, 0, 0, 0);
  v->setSpacing(0);

  header_ = new QLabel(text(Str::desc_summary), this);
  header_->setObjectName(QStringLiteral("SummaryHeader"));
  header_->setStyleSheet(getStyleSheet(QStringLiteral("summary_header")));
  header_->setFixedSize(DPIinfo::scaled(700), DPIinfo::scaled(32));
  header_->setAlignment(Qt::AlignCenter);

  intro_ = new QLabel(this);
  intro_->setObjectName(QStringLiteral("SummaryIntro"));
  intro_->setStyleSheet(getStyleSheet(QStringLiteral("summary_intro")));
  intro_->setFixedWidth(DPIinfo::scaled(750));
  intro_->setWordWrap(true);
  intro_->setAlignment(Qt::AlignCenter);
  intro_->setTextFormat(Qt::RichText);
  web_link::route(intro_, "summary page link");
  intro_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  intro_->setFocusPolicy(Qt::StrongFocus);
  intro_->setAccessibleName(text(Str::desc_summary));
  setIntro(QString());

  summary_ = new SummaryWidget(this);
  summary_->setFixedWidth(DPIinfo::scaled(750));
  summary_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

  done_ = new QPushButton(text(Str::btn_done), this);
  done_->setObjectName(QStringLiteral("SummaryDone"));
  done_->setStyleSheet(getStyleSheet(QStringLiteral("nimbra_button_2")));
  done_->setFixedSize(DPIinfo::scaled(100), DPIinfo::scaled(32));
  done_->setAutoDefault(true);
  done_->setAccessibleName(done_->text());
  done_->setCursor(Qt::PointingHandCursor);

  v->addSpacing(DPIinfo::scaled(72));
  centred(v, header_);
  v->addSpacing(DPIinfo::scaled(6));
  centred(v, intro_);
  v->addSpacing(DPIinfo::scaled(42));
  auto* summaryRow = new QHBoxLayout;
  summaryRow->addStretch(1);
  summaryRow->addWidget(summary_, 0, Qt::AlignTop);
  summaryRow->addStretch(1);
  auto* holder = new QWidget(this);
  holder->setMinimumHeight(DPIinfo::scaled(96));
  holder->setLayout(summaryRow);
  summaryRow->setContentsMargins(0, 0, 0, 0);
  v->addWidget(holder);
  v->addSpacing(DPIinfo::scaled(32));
  centred(v, done_);
  v->addStretch(1);

  // Tab follows the page top to bottom: the console link, the chooser, "Done".
  connect(summary_, &SummaryWidget::sigSiteChange, this, &SummaryPage::slotSiteChanged);
  connect(done_, &QPushButton::clicked, this, &SummaryPage::sigReviewSummaryDone);
}

void SummaryPage::setSiteInfo(const Json::Value& response) {
  siteMap_ = summary_text::site_map(response);
  accountType_ = summary_text::account_type(response);
  if (summary_text::skips_summary(response)) {
    setContentVisible(false);
    siteCode_ = summary_text::site_code(summary_text::site(response, 0));
    emit sigReviewSummaryDone();
    return;
  }
  setContentVisible(true);
  const Json::Value shown = summary_text::with_display_policy_names(response);
  setIntro(QString::fromStdString(jsonx::get_string(summary_text::site(response, 0), "web_console_link")));
  summary_->setData(shown);
}

void SummaryPage::slotSiteChanged(const QString& site, const QString& url) {
  siteCode_ = site;
  setIntro(url);
}

void SummaryPage::setIntro(const QString& url) {
  intro_->setText(summary_text::line_height_div(text(Str::desc_summary_intro).arg(url.toHtmlEscaped()), 24));
}

void SummaryPage::setContentVisible(bool visible) {
  for (QWidget* w : {static_cast<QWidget*>(header_), static_cast<QWidget*>(intro_),
                     static_cast<QWidget*>(summary_), static_cast<QWidget*>(done_)})
    w->setVisible(visible);
}

void SummaryPage::keyPressEvent(QKeyEvent* event) {
  // Return anywhere on the page (the chooser included) means "Done".
  if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && done_->isVisible()) {
    done_->click();
    return;
  }
  QWidget::keyPressEvent(event);
}

void SummaryPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (done_->isVisible()) done_->setFocus(Qt::OtherFocusReason);
}
