#pragma once
// The about box: a frameless, translucent window (AboutWindowContainer)
// holding one shadowed card (AboutWindow) with the agent's icon, name,
// version, the two legal links, the copyright line and a close button. The
// container is dragged with the mouse.

#include <QFrame>
#include <QMap>
#include <QPoint>
#include <QUrl>
#include <QWidget>

#include <optional>

class QLabel;
class VellIconButton;

// "Version: 3.6.0-0701" in the display language.
QString about_version_text();
// The copyright line with the year filled in.
QString about_copyright_text();

// Where a drag moves the window: nothing unless both stored press
// coordinates are non-zero (a press on the left or top edge starts no
// drag); otherwise scale x (global - press).
std::optional<QPoint> about_drag_target(int pressX, int pressY, QPoint global, double scale);

class AboutWindow : public QFrame {
  Q_OBJECT
 public:
  explicit AboutWindow(QWidget* parent = nullptr);

  static QUrl termsUrl();
  static QUrl privacyUrl();

 signals:
  void sigCloseWindow();

 public slots:
  void slotOpenBrowser();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QMap<const QWidget*, QUrl> links_;
  VellIconButton* close_ = nullptr;
};

class AboutWindowContainer : public QWidget {
  Q_OBJECT
 public:
  explicit AboutWindowContainer(QWidget* parent = nullptr);

  AboutWindow* frame() const { return frame_; }

 public slots:
  void slotCloseWindow();

 protected:
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  AboutWindow* frame_ = nullptr;
  int pressX_ = 0;
  int pressY_ = 0;
};
