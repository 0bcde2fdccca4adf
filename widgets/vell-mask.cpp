#include "widgets/vell-mask.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "logging/logger.h"

VellMask* VellMask::createMask(QWidget* sheet, QWidget* widget, const QColor& color) {
  if (!sheet || !widget) {
    LOG_ERROR(vlog::kDefaultComponent, "cannot create a mask without %s", sheet ? "a widget" : "a sheet");
    return nullptr;
  }
  for (VellMask* existing : widget->findChildren<VellMask*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (existing->sheet_ == sheet) {
      existing->color_ = color;
      existing->update();
      return existing;
    }
  }
  return new VellMask(sheet, widget, color);
}

VellMask::VellMask(QWidget* sheet, QWidget* widget, const QColor& color)
    : QWidget(widget), sheet_(sheet), color_(color) {
  setObjectName(QStringLiteral("VellMask"));
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  widget->installEventFilter(this);
  sheet->installEventFilter(this);
  // The mask lives exactly as long as its sheet.
  connect(sheet, &QObject::destroyed, this, &QObject::deleteLater);
  cover();
  if (sheet->isVisible()) {
    show();
    raise();
    if (sheet->parentWidget() == widget) sheet->raise();
  } else {
    hide();
  }
}

void VellMask::cover() {
  if (QWidget* target = parentWidget()) setGeometry(target->rect());
}

bool VellMask::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) {
    cover();
  } else if (QWidget* sheet = sheet_.data(); sheet && watched == sheet) {
    if (event->type() == QEvent::Show) {
      cover();
      show();
      raise();
      // A sheet that shares the parent stays above its mask.
      if (sheet->parentWidget() == parentWidget()) sheet->raise();
    } else if (event->type() == QEvent::Hide) {
      hide();
    }
  }
  return QWidget::eventFilter(watched, event);
}

void VellMask::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.fillRect(rect(), color_);
}

void VellMask::mousePressEvent(QMouseEvent* event) {
  event->accept();
}
void VellMask::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}
void VellMask::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
}
void VellMask::wheelEvent(QWheelEvent* event) {
  event->accept();
}
