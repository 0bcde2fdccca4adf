#pragma once
// The wizard's first page: an illustration, the title, the introduction and
// "Let's Start", which asks the bus for the sign-in address.

#include <QWidget>

class QLabel;
class QPushButton;

class WelcomePage : public QWidget {
  Q_OBJECT
 public:
  explicit WelcomePage(QWidget* parent = nullptr);

  QPushButton* startButton() const { return start_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLabel* illustration_ = nullptr;
  QLabel* title_ = nullptr;
  QLabel* intro_ = nullptr;
  QPushButton* start_ = nullptr;
};
