#include "ui-agent/wizard/nimbra-loading-frame.h"

#include <QEvent>
#include <QEventLoop>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include <cmath>

#include "widgets/dpi-info.h"

int loading_frame_width(int textHintWidth, double scale, int maxWidth) {
  const int width = textHintWidth + static_cast<int>(std::trunc(58 * scale));
  return qMin(width, maxWidth);
}

NimbraLoadingFrame::NimbraLoadingFrame(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("NimbraLoadingFrame"));
  setStyleSheet(DPIinfo::getScaledStyleSheet(
      QStringLiteral("QFrame#NimbraLoadingFrame { background-color: white; border-radius: 8px;}")));
  setAttribute(Qt::WA_StyledBackground);
  auto* shadow = new QGraphicsDropShadowEffect(this);
  shadow->setOffset(shadow->xOffset(), 4);
  shadow->setBlurRadius(12);
  shadow->setColor(QColor(0, 0, 0, 61));
  setGraphicsEffect(shadow);
  setMaximumSize(DPIinfo::scaled(480), DPIinfo::scaled(40));
  // While it is up the frame holds the keyboard, so nothing under it reacts.
  setFocusPolicy(Qt::StrongFocus);

  icon_ = new QLabel(this);
  icon_->setObjectName(QStringLiteral("NimbraLoadingIcon"));
  text_ = new QLabel(this);
  text_->setObjectName(QStringLiteral("NimbraLoadingText"));
  text_->setStyleSheet(
      DPIinfo::getScaledStyleSheet(QStringLiteral("QLabel { color: #1E2832; font-size: 14px; }")));
  text_->setTextFormat(Qt::PlainText);

  auto* h = new QHBoxLayout(this);
  h->setContentsMargins(0, 0, 0, 0);
  h->setSpacing(0);
  h->addSpacing(DPIinfo::scaled(16));
  h->addWidget(icon_);
  h->addSpacing(DPIinfo::scaled(10));
  h->addWidget(text_);
  h->addStretch(1);

  if (parent) parent->installEventFilter(this);
  hide();
}

void NimbraLoadingFrame::setIcon(const QPixmap& pixmap) {
  icon_->setPixmap(pixmap);
}

void NimbraLoadingFrame::setText(const QString& text) {
  text_->setText(text);
  setAccessibleName(text.trimmed());
}

QString NimbraLoadingFrame::text() const {
  return text_->text();
}

int NimbraLoadingFrame::startLoading() {
  text_->ensurePolished();
  // The width is fixed for each text; the bounds stay 480 x 40.
  setFixedWidth(loading_frame_width(text_->sizeHint().width(), DPIinfo::getDPI(), DPIinfo::scaled(480)));
  setFixedHeight(DPIinfo::scaled(40));
  show();
  raise();
  setFocus(Qt::OtherFocusReason);
  // A fresh loop per wait, owned by the frame; it is released as soon as its
  // wait is over rather than kept until the frame goes.
  QPointer<QEventLoop> loop = new QEventLoop(this);
  loop_ = loop;
  const int rc = loop->exec(QEventLoop::DialogExec);
  if (loop) loop->deleteLater();
  return rc;
}

void NimbraLoadingFrame::stopLoading() {
  if (loop_) loop_->exit(0);
  hide();
}

bool NimbraLoadingFrame::isLoading() const {
  return loop_ && loop_->isRunning();
}

void NimbraLoadingFrame::place() {
  if (QWidget* p = parentWidget()) move((p->width() - width()) / 2, (p->height() - height()) / 2);
}

void NimbraLoadingFrame::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  place();
}

bool NimbraLoadingFrame::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) place();
  return QFrame::eventFilter(watched, event);
}

void NimbraLoadingFrame::keyPressEvent(QKeyEvent* event) {
  // Swallow everything: the wait ends when the service answers, not by key.
  event->accept();
}
