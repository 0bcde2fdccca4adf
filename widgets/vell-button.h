#pragma once
// Push buttons and icon buttons in the product's look.

#include <QPushButton>
#include <QToolButton>

class QMenu;

// A push button of one of two kinds: 0 primary (filled blue, for the main
// action of a page) or 1 secondary (outlined, for Cancel and the like). The
// look comes from the style sheets "nimbra_button_2" (primary) and
// "nimbra_button_normal" (secondary); a style sheet set by the caller
// replaces it.
class VellButton : public QPushButton {
  Q_OBJECT
 public:
  enum Kind { Primary = 0, Secondary = 1 };

  explicit VellButton(QWidget* parent = nullptr);
  VellButton(const QString& text, int kind, QWidget* parent = nullptr);
  // The kind is taken as primary for any value other than 1.
  VellButton(int kind, QWidget* parent);

  void setButtonKind(int kind);
  int buttonKind() const { return kind_; }

 private:
  int kind_ = Primary;
};

// A flat tool button showing a picture (by name, see getGlobalImage) or a
// short text, optionally with a drop-down menu that opens on click.
class VellIconButton : public QToolButton {
  Q_OBJECT
 public:
  explicit VellIconButton(QWidget* parent = nullptr);
  // A button showing the picture `imageName` at its natural size.
  explicit VellIconButton(const QString& imageName, QWidget* parent = nullptr);

  // Shows the picture `imageName` at `logicalSize` (its natural size when
  // empty). An unknown name leaves the button without icon (and logs).
  void setImage(const QString& imageName, QSize logicalSize = QSize());
  QString imageName() const { return image_; }
  // The drop-down opens on a click of the button itself, without an arrow.
  void setMenu(QMenu* menu);

 private:
  QString image_;
};
