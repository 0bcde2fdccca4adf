// The yardstick of the agent's desktop benchmark: the least a Qt tray
// application does. It shows an icon in the notification area and, on a
// click, a small white pop-up beside it; a press outside closes the pop-up.
// Like any tray application that shows another program's state, it looks
// once a second (here at a value of its own, so that the figure is the
// least such polling costs: the wake-up and the event loop's round).
#include <QApplication>
#include <QCursor>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);

  QPixmap picture(22, 22);
  picture.fill(Qt::transparent);
  {
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor(0x1E, 0x96, 0xF0));
    p.setPen(Qt::NoPen);
    p.drawEllipse(2, 2, 18, 18);
  }

  QWidget popup(nullptr, Qt::Popup | Qt::FramelessWindowHint);
  popup.setStyleSheet(QStringLiteral("background: white;"));
  popup.setFixedSize(400, 232);

  QSystemTrayIcon tray{QIcon(picture)};
  QObject::connect(&tray, &QSystemTrayIcon::activated, &popup, [&](QSystemTrayIcon::ActivationReason r) {
    if (r != QSystemTrayIcon::Trigger || popup.isVisible()) return;
    const QPoint at = tray.geometry().center();
    popup.move(at.x() - popup.width() / 2, at.y() - popup.height() - 8);
    popup.show();
  });
  tray.show();

  // What a real application would ask its service for; here it never changes.
  QString shown = QStringLiteral("idle");
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &tray, [&] {
    const QString state = QStringLiteral("idle");
    if (state == shown) return;
    shown = state;
    tray.setToolTip(state);
  });
  poll.start(1000);
  return app.exec();
}
