// The yardstick of the agent's desktop benchmark: the least a Qt tray
// application does. It shows an icon in the notification area and, on a
// click, a small white pop-up beside it; a press outside closes the pop-up.
#include <QApplication>
#include <QCursor>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>
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
  return app.exec();
}
