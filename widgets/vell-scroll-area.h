#pragma once
// A scroll area that only scrolls vertically: its content always takes the
// viewport's width, the horizontal bar never shows, the vertical bar has the
// product's thin look ("component.scrollbar").

#include <QScrollArea>

class VellVerticalScrollArea : public QScrollArea {
  Q_OBJECT
 public:
  explicit VellVerticalScrollArea(QWidget* parent = nullptr);

  // Puts the content in and lets it follow the viewport's width.
  void setWidget(QWidget* widget);

 public slots:
  // Re-reads the content's size (after rows were shown or hidden) so the
  // vertical bar appears, disappears or changes its range at once.
  void refreshScrollBar();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitWidth();
};
