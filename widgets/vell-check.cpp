#include "widgets/vell-check.h"

#include "widgets/style-manager.h"

VellCheckBox::VellCheckBox(QWidget* parent) : VellCheckBox(QString(), parent) {}

VellCheckBox::VellCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
  setCursor(Qt::PointingHandCursor);
  setStyleSheet(getStyleSheet(QStringLiteral("component.checkbox")));
}

VellRadioButton::VellRadioButton(QWidget* parent) : VellRadioButton(QString(), parent) {}

VellRadioButton::VellRadioButton(const QString& text, QWidget* parent) : QRadioButton(text, parent) {
  setCursor(Qt::PointingHandCursor);
  setStyleSheet(getStyleSheet(QStringLiteral("component.radio_button")));
}
