#include "ui-agent/dialogs/update-status-dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui-agent/core/string-display.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"
#include "widgets/window-placement.h"

Qt::WindowFlags UpdateStatusDialog::baseWindowFlags() {
  return Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
}

UpdateStatusDialog::UpdateStatusDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("UpdateStatusDialog"));
  window_placement::centre_when_shown(this);
  using string_display::text;

  icon_ = new QLabel(this);
  icon_->setObjectName(QStringLiteral("UpdateStatusIcon"));
  const QSize iconSize(DPIinfo::scaled(72), DPIinfo::scaled(72));
  icon_->setFixedSize(iconSize);
  icon_->setPixmap(ImageManager::getInstance()->pixmap(QStringLiteral("icon_agent"), iconSize));
  icon_->setAccessibleName(text(Str::app_name));

  message_ = new QLabel(this);
  message_->setObjectName(QStringLiteral("UpdateStatusMessage"));
  message_->setWordWrap(true);
  message_->setStyleSheet(getStyleSheet(QStringLiteral("about_version")));
  message_->setFixedWidth(DPIinfo::scaled(300));

  ok_ = new VellButton(text(Str::btn_ok), VellButton::Secondary, this);
  ok_->setObjectName(QStringLiteral("UpdateStatusOk"));
  ok_->setAccessibleName(ok_->text());
  ok_->setAutoDefault(true);
  connect(ok_, &QPushButton::clicked, this, &QDialog::reject);

  auto* top = new QHBoxLayout;
  top->setContentsMargins(DPIinfo::scaled(10), 0, DPIinfo::scaled(10), 0);
  top->setSpacing(0);
  top->addWidget(icon_);
  top->addSpacing(DPIinfo::scaled(8));
  top->addWidget(message_);
  top->addStretch(1);
  auto* bottom = new QHBoxLayout;
  const int m = DPIinfo::scaled(10);
  bottom->setContentsMargins(m, m, m, m);
  bottom->setSpacing(0);
  bottom->addStretch(1);
  bottom->addWidget(ok_);
  // The rows bring their own side margins: 10 + 72 + 8 + 300 + 10 is the
  // dialog's whole width, so the outer box adds none beside them (the
  // style's default would push the text to the right edge).
  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(0, DPIinfo::scaled(16), 0, 0);
  v->setSpacing(0);
  v->addLayout(top);
  v->addStretch(1);
  v->addLayout(bottom);

  setFixedSize(DPIinfo::scaled(400), DPIinfo::scaled(148));
  QPalette pal = palette();
  pal.setBrush(QPalette::All, backgroundRole(), QBrush(QColor(Qt::white)));
  setPalette(pal);
  setWindowTitle(text(Str::app_name));
  setWindowIcon(QIcon(getGlobalImage(QStringLiteral("app_img"))));
  setWindowFlags(baseWindowFlags());
  setWindowModality(Qt::ApplicationModal);
}

void UpdateStatusDialog::setMessage(const QString& message) {
  message_->setText(message);
  setAccessibleDescription(message);
}

QString UpdateStatusDialog::message() const {
  return message_->text();
}

void UpdateStatusDialog::setButtonVisible(bool visible) {
  ok_->setVisible(visible);
  if (visible) ok_->setFocus(Qt::OtherFocusReason);
}
