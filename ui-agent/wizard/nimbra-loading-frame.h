#pragma once
// A small white strip with an icon and a line of text ("Connecting to
// server...") that the wizard lays over itself while it waits for the
// service. startLoading() shows it and blocks the caller in a local event
// loop (queued answers keep arriving) until stopLoading() ends the wait.

#include <QFrame>
#include <QPixmap>
#include <QPointer>

class QEventLoop;
class QLabel;

// The frame's width for a text whose size hint is `textHintWidth` device
// pixels: the text plus the fixed parts around it (58 logical pixels: the
// leading space, the icon, the gap and a trailing margin), at most
// `maxWidth`.
int loading_frame_width(int textHintWidth, double scale, int maxWidth);

class NimbraLoadingFrame : public QFrame {
  Q_OBJECT
 public:
  explicit NimbraLoadingFrame(QWidget* parent = nullptr);

  void setIcon(const QPixmap& pixmap);
  void setText(const QString& text);
  QString text() const;

  // Fixes the width to the text, shows the frame and waits in a new local
  // loop; returns the loop's exit code.
  int startLoading();
  // Ends the wait (if one runs) and hides the frame.
  void stopLoading();
  bool isLoading() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void place();

  QLabel* icon_ = nullptr;
  QLabel* text_ = nullptr;
  // The loop of the latest startLoading(); each start makes a fresh one.
  QPointer<QEventLoop> loop_;
};
