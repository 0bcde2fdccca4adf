#include "widgets/gallery/gallery-kit.h"

#include <QApplication>
#include <QLayout>
#include <QPainter>

#include <cstdio>

namespace gallery {

QString g_out;

namespace {

int g_layoutFaults = 0;

bool holds(const QLayout* layout, const QWidget* w) {
  for (int i = 0; i < layout->count(); ++i) {
    QLayoutItem* item = layout->itemAt(i);
    if (item->widget() == w || (item->layout() && holds(item->layout(), w))) return true;
  }
  return false;
}

QString pathOf(const QWidget* w, const QWidget* root) {
  QStringList names;
  for (; w && w != root; w = w->parentWidget())
    names.prepend(w->objectName().isEmpty() ? QString::fromLatin1(w->metaObject()->className())
                                            : w->objectName());
  return names.join(QLatin1Char('/'));
}

}  // namespace

int layoutFaults() {
  return g_layoutFaults;
}

QImage grabShown(QWidget* w) {
  for (QWidget* child : w->findChildren<QWidget*>()) {
    const QWidget* parent = child->parentWidget();
    if (child->isWindow() || !parent || !parent->layout() || !child->isVisibleTo(w)) continue;
    // Overlays (a mask, a sheet, a busy frame) float centred over their
    // parent by design.
    if ((child->geometry().center() - parent->rect().center()).manhattanLength() <= 2) continue;
    if (holds(parent->layout(), child)) continue;
    std::fprintf(stderr, "layout: %s/%s is shown but not in its parent's layout\n",
                 w->metaObject()->className(), qPrintable(pathOf(child, w)));
    ++g_layoutFaults;
  }
  return w->grab().toImage();
}

QWidget* firstFocusable(QWidget* w) {
  if (w->focusPolicy() & Qt::TabFocus) return w;
  for (QWidget* child : w->findChildren<QWidget*>())
    if ((child->focusPolicy() & Qt::TabFocus) && child->isVisibleTo(w)) return child;
  return w;
}

QImage grabWidget(QWidget* w, bool focus, bool hover) {
  w->adjustSize();
  w->show();
  QApplication::processEvents();
  QWidget* target = firstFocusable(w);
  if (focus) {
    w->activateWindow();
    QApplication::setActiveWindow(w);
    target->setFocus(Qt::TabFocusReason);
  } else if (QWidget* f = QApplication::focusWidget()) {
    f->clearFocus();
  }
  if (hover) {
    target->setAttribute(Qt::WA_UnderMouse, true);
    target->update();
  }
  QApplication::processEvents();
  QImage img = grabShown(w);
  w->hide();
  return img;
}

QImage sheet(const QString& title, const std::vector<std::vector<Cell>>& rows, const QColor& bg,
             int minCell) {
  const int pad = 18, gap = 16, captionH = 18, titleH = 44;
  int width = 0, height = titleH + pad;
  std::vector<int> rowH;
  for (const auto& row : rows) {
    int w = pad, h = 0;
    for (const auto& c : row) {
      w += qMax(minCell, c.image.width() / qMax(1, static_cast<int>(c.image.devicePixelRatio()))) + gap;
      h = qMax(h, c.image.height() / qMax(1, static_cast<int>(c.image.devicePixelRatio())));
    }
    width = qMax(width, w + pad);
    rowH.push_back(h + captionH);
    height += h + captionH + gap;
  }
  height += pad;
  QImage out(qMax(width, 480), height, QImage::Format_ARGB32);
  out.fill(bg);
  QPainter p(&out);
  p.setRenderHint(QPainter::Antialiasing);
  QFont tf = p.font();
  tf.setPixelSize(18);
  tf.setBold(true);
  p.setFont(tf);
  p.setPen(bg.lightness() > 128 ? QColor("#1E2832") : QColor("#E6EAEE"));
  p.drawText(QRect(pad, 0, out.width(), titleH), Qt::AlignVCenter, title);
  QFont cf = p.font();
  cf.setPixelSize(11);
  cf.setBold(false);
  p.setFont(cf);
  int y = titleH;
  for (size_t r = 0; r < rows.size(); ++r) {
    int x = pad;
    for (const auto& c : rows[r]) {
      const int dpr = qMax(1, static_cast<int>(c.image.devicePixelRatio()));
      const int w = c.image.width() / dpr;
      p.drawImage(QRect(x, y, w, c.image.height() / dpr), c.image);
      p.setPen(bg.lightness() > 128 ? QColor(80, 90, 100) : QColor(200, 208, 216));
      p.drawText(QRect(x - 4, y + rowH[r] - captionH, qMax(minCell, w) + 8, captionH),
                 Qt::AlignLeft | Qt::AlignBottom, c.caption);
      x += qMax(minCell, w) + gap;
    }
    y += rowH[r] + gap;
  }
  return out;
}

void save(const QImage& img, const QString& name) {
  const QString path = g_out + QLatin1Char('/') + name;
  if (!img.save(path))
    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
  else
    std::printf("%s\n", qPrintable(path));
}

}  // namespace gallery
