#pragma once
// The small modal notice shown while the backup service upgrades its
// database, or after the upgrade failed. The client manager owns it, sets
// its message and button and connects finished() to quitting the agent.

#include <QDialog>

class QLabel;
class VellButton;

class UpdateStatusDialog : public QDialog {
  Q_OBJECT
 public:
  explicit UpdateStatusDialog(QWidget* parent = nullptr);

  void setMessage(const QString& message);
  QString message() const;
  // Shows or hides the OK button.
  void setButtonVisible(bool visible);

  // A dialog with title, system menu and close button, nothing else.
  static Qt::WindowFlags baseWindowFlags();

 private:
  QLabel* icon_ = nullptr;
  QLabel* message_ = nullptr;
  VellButton* ok_ = nullptr;
};
