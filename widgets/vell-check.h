#pragma once
// Check box and radio button in the product's look ("component.checkbox" and
// "component.radio_button"); a style sheet set by the caller replaces it.

#include <QCheckBox>
#include <QRadioButton>

class VellCheckBox : public QCheckBox {
  Q_OBJECT
 public:
  explicit VellCheckBox(QWidget* parent = nullptr);
  explicit VellCheckBox(const QString& text, QWidget* parent = nullptr);
};

class VellRadioButton : public QRadioButton {
  Q_OBJECT
 public:
  explicit VellRadioButton(QWidget* parent = nullptr);
  explicit VellRadioButton(const QString& text, QWidget* parent = nullptr);
};
