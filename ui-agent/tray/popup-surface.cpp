#include "ui-agent/tray/popup-surface.h"

#include <QApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "logging/logger.h"

namespace popup_surface {

namespace {

class FocusLossCloser : public QObject {
 public:
  explicit FocusLossCloser(QWidget* popup) : QObject(popup), popup_(popup) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == popup_ && event->type() == QEvent::WindowDeactivate && kind() == Kind::Layer)
      // Once the window that took the focus is known.
      QTimer::singleShot(0, this, &FocusLossCloser::check);
    return false;
  }

 private:
  void check() {
    if (!popup_->isVisible() || popup_->isActiveWindow()) return;
    // The pop-up's own menu (the user drop-down) has it.
    QWidget* menu = QApplication::activePopupWidget();
    if (menu && menu != popup_) return;
    LOG_DEBUG(vlog::kDefaultComponent, "tray pop-up: the focus went elsewhere, closing");
    popup_->hide();
  }

  QWidget* popup_;
};

}  // namespace

bool place_on_layer(QWidget* popup, QPoint anchor) {
  if (kind() != Kind::Layer) return false;
  QScreen* screen = QGuiApplication::screenAt(anchor);
  if (!screen) screen = QGuiApplication::primaryScreen();
  if (!screen) {
    LOG_WARN(vlog::kDefaultComponent, "tray pop-up: no screen to anchor the layer surface to");
    return false;
  }
  const layer_placement::Placement placement =
      layer_placement::anchored_at(screen->geometry(), popup->sizeHint(), anchor);
  popup->createWinId();
  QWindow* window = popup->windowHandle();
  window->setScreen(screen);
  mark_layer(window, placement);
  popup->move(placement.topLeft);
  LOG_DEBUG(vlog::kDefaultComponent, "tray pop-up: layer surface for (%d, %d) at (%d, %d), anchors 0x%x",
            anchor.x(), anchor.y(), placement.topLeft.x(), placement.topLeft.y(),
            static_cast<unsigned>(placement.anchors));
  return true;
}

void close_on_focus_loss(QWidget* popup) {
  popup->installEventFilter(new FocusLossCloser(popup));
}

}  // namespace popup_surface
