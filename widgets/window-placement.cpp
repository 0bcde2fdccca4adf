#include "widgets/window-placement.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace window_placement {

QPoint centred_in(const QRect& area, const QSize& size) {
  const int x = area.x() + (area.width() - size.width()) / 2;
  const int y = area.y() + (area.height() - size.height()) / 2;
  return {std::max(x, area.x()), std::max(y, area.y())};
}

QRect work_area_at(const QPoint& point) {
  QScreen* screen = QGuiApplication::screenAt(point);
  if (!screen) screen = QGuiApplication::primaryScreen();
  return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

namespace {

class CentreOnShow : public QObject {
 public:
  CentreOnShow(QWidget* window, bool firstShowOnly) : QObject(window), firstShowOnly_(firstShowOnly) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && !event->spontaneous() && !(firstShowOnly_ && done_)) {
      auto* window = static_cast<QWidget*>(watched);
      window->move(centred_in(work_area_at(QCursor::pos()), window->frameGeometry().size()));
      done_ = true;
    }
    return false;
  }

 private:
  bool firstShowOnly_;
  bool done_ = false;
};

}  // namespace

void centre_when_shown(QWidget* window, bool firstShowOnly) {
  window->installEventFilter(new CentreOnShow(window, firstShowOnly));
}

void activate(QWidget* window) {
  window->raise();
  if (QGuiApplication::platformName() != QLatin1String("wayland")) window->activateWindow();
}

}  // namespace window_placement
