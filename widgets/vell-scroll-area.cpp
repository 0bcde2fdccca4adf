#include "widgets/vell-scroll-area.h"

#include <QEvent>
#include <QLayout>
#include <QScrollBar>

#include "widgets/style-manager.h"

VellVerticalScrollArea::VellVerticalScrollArea(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  verticalScrollBar()->setStyleSheet(getStyleSheet(QStringLiteral("component.scrollbar")));
  viewport()->setAutoFillBackground(false);
}

void VellVerticalScrollArea::setWidget(QWidget* widget) {
  QScrollArea::setWidget(widget);
  if (widget) {
    widget->installEventFilter(this);
    widget->setAutoFillBackground(false);
  }
  fitWidth();
}

void VellVerticalScrollArea::refreshScrollBar() {
  if (QWidget* content = widget()) {
    if (content->layout()) content->layout()->activate();
    content->updateGeometry();
  }
  fitWidth();
  updateGeometry();
}

bool VellVerticalScrollArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize))
    fitWidth();
  return QScrollArea::eventFilter(watched, event);
}

void VellVerticalScrollArea::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  fitWidth();
}

void VellVerticalScrollArea::fitWidth() {
  QWidget* content = widget();
  if (!content) return;
  const int width = viewport()->width();
  if (content->minimumWidth() != width || content->maximumWidth() != width) content->setFixedWidth(width);
}
