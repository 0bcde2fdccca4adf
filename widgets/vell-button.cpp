#include "widgets/vell-button.h"

#include <QIcon>
#include <QMenu>

#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"

VellButton::VellButton(QWidget* parent) : VellButton(QString(), Primary, parent) {}

VellButton::VellButton(int kind, QWidget* parent) : VellButton(QString(), kind, parent) {}

VellButton::VellButton(const QString& text, int kind, QWidget* parent) : QPushButton(text, parent) {
  setCursor(Qt::PointingHandCursor);
  setMinimumSize(DPIinfo::scaled(88), DPIinfo::scaled(32));
  setButtonKind(kind);
}

void VellButton::setButtonKind(int kind) {
  kind_ = kind == Secondary ? Secondary : Primary;
  setProperty("buttonKind", kind_);
  setStyleSheet(getStyleSheet(kind_ == Primary ? QStringLiteral("nimbra_button_2")
                                               : QStringLiteral("nimbra_button_normal")));
  setDefault(false);
  setAutoDefault(false);
}

VellIconButton::VellIconButton(QWidget* parent) : QToolButton(parent) {
  setCursor(Qt::PointingHandCursor);
  setAutoRaise(true);
  setToolButtonStyle(Qt::ToolButtonIconOnly);
  setFocusPolicy(Qt::StrongFocus);
  setStyleSheet(getStyleSheet(QStringLiteral("component.icon_button")));
}

VellIconButton::VellIconButton(const QString& imageName, QWidget* parent) : VellIconButton(parent) {
  setImage(imageName);
}

void VellIconButton::setImage(const QString& imageName, QSize logicalSize) {
  image_ = imageName;
  const QPixmap pix = ImageManager::getInstance()->pixmap(imageName, logicalSize);
  if (pix.isNull()) {
    setIcon(QIcon());
    return;
  }
  setIcon(QIcon(pix));
  setIconSize(pix.size() / pix.devicePixelRatio());
}

void VellIconButton::setMenu(QMenu* menu) {
  QToolButton::setMenu(menu);
  setPopupMode(QToolButton::InstantPopup);
}
