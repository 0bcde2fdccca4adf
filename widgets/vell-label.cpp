#include "widgets/vell-label.h"

#include <cmath>

#include <QEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>

#include "widgets/style-manager.h"

VellLabel::VellLabel(QWidget* parent) : QLabel(parent) {}

VellLabel::VellLabel(const QString& text, QWidget* parent) : QLabel(parent) {
  setText(text);
}

void VellLabel::setElideMode(Qt::TextElideMode mode) {
  elide_ = mode;
  applyElide();
}

void VellLabel::setFullTextToolTip(bool on) {
  fullTip_ = on;
  applyElide();
}

void VellLabel::setText(const QString& text) {
  // Texts are often set again unchanged (the tray's, every second): eliding
  // lays the text out, so an unchanged text is left as it is.
  if (text == full_ && QLabel::text() == shown_) return;
  full_ = text;
  applyElide();
  // The shown text may stay the same (elided alike) while the whole one changed.
  updateGeometry();
}

bool VellLabel::elides() const {
  return elide_ != Qt::ElideNone && !Qt::mightBeRichText(full_) && !wordWrap();
}

QSize VellLabel::withText(QSize hint, const QString& wanted) const {
  // Whole pixels at least as wide as the text, so that it then fits.
  const QFontMetricsF fm(font(), this);
  const int shown = static_cast<int>(std::ceil(fm.horizontalAdvance(text())));
  hint.setWidth(qMax(0, hint.width() - shown + static_cast<int>(std::ceil(fm.horizontalAdvance(wanted)))));
  return hint;
}

QSize VellLabel::sizeHint() const {
  const QSize hint = QLabel::sizeHint();
  return elides() ? withText(hint, full_) : hint;
}

QSize VellLabel::minimumSizeHint() const {
  const QSize hint = QLabel::minimumSizeHint();
  if (!elides() || full_.isEmpty()) return hint;
  return withText(hint, QString(QChar(0x2026)));
}

void VellLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  if (elide_ != Qt::ElideNone) applyElide();
}

void VellLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (elide_ != Qt::ElideNone &&
      (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
    applyElide();
}

void VellLabel::applyElide() {
  if (!elides()) {
    QLabel::setText(full_);
    shown_ = full_;
    if (fullTip_) setToolTip(full_);
    return;
  }
  const int room = contentsRect().width() - 2 * margin() - (indent() > 0 ? 2 * indent() : 0);
  // A text exactly as wide as the room stays whole (elidedText would cut
  // it over a fraction of a pixel, and the layout gives just that width).
  const QFontMetricsF fm(font(), this);
  const QString shown =
      fm.horizontalAdvance(full_) <= room ? full_ : fm.elidedText(full_, elide_, qMax(room, 0));
  QLabel::setText(shown);
  shown_ = shown;
  setToolTip(shown == full_ && !fullTip_ ? QString() : full_);
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
