#include "vell-label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>

#include "style-manager.h"

VellLabel::VellLabel(QWidget* parent) : QLabel(parent) {}

VellLabel::VellLabel(const QString& text, QWidget* parent) : QLabel(parent) {
  setText(text);
}

void VellLabel::setElideMode(Qt::TextElideMode mode) {
  elide_ = mode;
  applyElide();
}

void VellLabel::setText(const QString& text) {
  // Texts are often set again unchanged (the tray's, every second): eliding
  // lays the text out, so an unchanged text is left as it is.
  if (text == full_ && QLabel::text() == shown_) return;
  full_ = text;
  applyElide();
}

void VellLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  if (elide_ != Qt::ElideNone) applyElide();
}

void VellLabel::applyElide() {
  if (elide_ == Qt::ElideNone || Qt::mightBeRichText(full_) || wordWrap()) {
    QLabel::setText(full_);
    shown_ = full_;
    return;
  }
  const int room = contentsRect().width() - 2 * margin() - (indent() > 0 ? 2 * indent() : 0);
  const QString shown = fontMetrics().elidedText(full_, elide_, qMax(room, 0));
  QLabel::setText(shown);
  shown_ = shown;
  setToolTip(shown == full_ ? QString() : full_);
}

LinkLabel::LinkLabel(QWidget* parent) : LinkLabel(QString(), parent) {}

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setTextFormat(Qt::PlainText);
  setAttribute(Qt::WA_Hover);
  setStyleSheet(getStyleSheet(QStringLiteral("component.link_label")));
}

void LinkLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    pressed_ = true;
    event->accept();
    return;
  }
  QLabel::mousePressEvent(event);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && pressed_) {
    pressed_ = false;
    // A press dragged off the link and released elsewhere is no click.
    if (rect().contains(event->pos())) emit clicked();
    event->accept();
    return;
  }
  QLabel::mouseReleaseEvent(event);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      emit clicked();
      event->accept();
      return;
    default:
      QLabel::keyPressEvent(event);
  }
}
