#include "ui-agent/wizard/welcome-page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/wizard/summary-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"

namespace {

using string_display::text;

// The item alone on its row, centred: leading space, the item, stretch.
void addRow(QVBoxLayout* v, QWidget* w) {
  auto* h = new QHBoxLayout;
  h->setContentsMargins(0, 0, 0, 0);
  h->addStretch(1);
  h->addWidget(w);
  h->addStretch(1);
  v->addLayout(h);
}

}  // namespace

WelcomePage::WelcomePage(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("WelcomePage"));

  illustration_ = new QLabel(this);
  illustration_->setObjectName(QStringLiteral("WelcomeIllustration"));
  const QSize ill(DPIinfo::scaled(320), DPIinfo::scaled(210));
  illustration_->setFixedSize(ill);
  illustration_->setAlignment(Qt::AlignCenter);
  illustration_->setPixmap(ImageManager::getInstance()->pixmap(QStringLiteral("wz_ill_backup_agent"), ill));
  illustration_->setAccessibleName(text(Str::app_name));

  title_ = new QLabel(text(Str::desc_welcome), this);
  title_->setObjectName(QStringLiteral("WelcomeTitle"));
  title_->setStyleSheet(getStyleSheet(QStringLiteral("welcome_title")));
  title_->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);

  intro_ = new QLabel(summary_text::line_height_div(text(Str::desc_welcome_intro), 24), this);
  intro_->setObjectName(QStringLiteral("WelcomeIntro"));
  intro_->setTextFormat(Qt::RichText);
  intro_->setWordWrap(true);
  intro_->setStyleSheet(getStyleSheet(QStringLiteral("welcome_description")));
  intro_->setAlignment(Qt::AlignCenter);
  intro_->setFixedWidth(DPIinfo::scaled(600));

  start_ = new QPushButton(text(Str::btn_get_started), this);
  start_->setObjectName(QStringLiteral("WelcomeStart"));
  start_->setStyleSheet(getStyleSheet(QStringLiteral("nimbra_button")));
  start_->setMinimumWidth(DPIinfo::scaled(200));
  start_->setCursor(Qt::PointingHandCursor);
  start_->setAccessibleName(start_->text());
  // Return starts as well as Space (the page is no QDialog, so say so).
  start_->setAutoDefault(true);
  start_->setDefault(true);

  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(0, 0, 0, 0);
  v->setSpacing(0);
  v->addSpacing(DPIinfo::scaled(72));
  addRow(v, illustration_);
  v->addSpacing(DPIinfo::scaled(28));
  addRow(v, title_);
  v->addSpacing(DPIinfo::scaled(12));
  addRow(v, intro_);
  v->addSpacing(DPIinfo::scaled(40));
  addRow(v, start_);
  v->addStretch(1);

  // The click goes straight to the bus; the client manager asks for the
  // sign-in address and drives the wizard from there.
  connect(start_, SIGNAL(clicked()), &GlobalConnecter::instance(), SIGNAL(sigGetAuthURL()));
}

void WelcomePage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  start_->setFocus(Qt::OtherFocusReason);
}
