#pragma once
// A translucent cover over a widget while a sheet is up: it takes the
// widget's whole area, follows its size, swallows clicks meant for what is
// under it, shows and hides with the sheet and goes away with it.

#include <QColor>
#include <QPointer>
#include <QWidget>

class VellMask : public QWidget {
  Q_OBJECT
 public:
  // Covers `widget` with `color` whenever `sheet` is shown. Calling it again
  // for the same sheet and widget recolours and returns the existing mask.
  // Returns nullptr (and logs) when either is null.
  static VellMask* createMask(QWidget* sheet, QWidget* widget, const QColor& color);

  QColor color() const { return color_; }
  QWidget* sheet() const { return sheet_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  VellMask(QWidget* sheet, QWidget* widget, const QColor& color);
  void cover();

  QPointer<QWidget> sheet_;
  QColor color_;
};
