#pragma once
// Labels: VellLabel (a label that can elide its text to its width, with the
// full text as tool tip) and LinkLabel (a text link that emits clicked()).

#include <QLabel>

class VellLabel : public QLabel {
  Q_OBJECT
 public:
  explicit VellLabel(QWidget* parent = nullptr);
  explicit VellLabel(const QString& text, QWidget* parent = nullptr);

  // With a mode other than Qt::ElideNone, plain text wider than the label is
  // shortened with an ellipsis and the whole text becomes the tool tip.
  void setElideMode(Qt::TextElideMode mode);
  Qt::TextElideMode elideMode() const { return elide_; }
  // With `on`, the tool tip is the whole text whether or not it is elided
  // (by default it is the whole text only while elided).
  void setFullTextToolTip(bool on);
  void setText(const QString& text);
  // The text as set, before any eliding.
  QString fullText() const { return full_; }

  // While eliding, a layout is asked for room for the whole text and may
  // squeeze the label down to the ellipsis: the shown text follows the
  // width the label really gets, not the other way round.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  // A style sheet's font reaches the label when it is polished, after the
  // text was set: the text is elided again for it.
  void changeEvent(QEvent* event) override;

 private:
  bool elides() const;
  // `hint` made for the shown text, with `wanted` in its place.
  QSize withText(QSize hint, const QString& wanted) const;
  void applyElide();
  Qt::TextElideMode elide_ = Qt::ElideNone;
  bool fullTip_ = false;
  QString full_;
  QString shown_;  // what applyElide() last put on the label
};

// A clickable text. It shows a pointing hand, takes keyboard focus (Return,
// Enter and Space click it), changes colour on hover and is never
// underlined on hover.
class LinkLabel : public QLabel {
  Q_OBJECT
 public:
  explicit LinkLabel(QWidget* parent = nullptr);
  explicit LinkLabel(const QString& text, QWidget* parent = nullptr);

 signals:
  void clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool pressed_ = false;
};
