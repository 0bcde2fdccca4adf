#pragma once
// The schedule box of the status page: the time of the last backup and of
// the next one.

#include <QFrame>

class VellLabel;

class BackupScheduleInfoWidget : public QFrame {
  Q_OBJECT

 public:
  explicit BackupScheduleInfoWidget(QWidget* parent = nullptr);

  // The values as the status page words them (status-page-model.h). A value
  // wider than its label is elided, with the whole text as tool tip; screen
  // readers hear it whole, with its caption.
  void setLastBackupText(const QString& text);
  void setNextBackupText(const QString& text);

 private:
  VellLabel* last_caption_;
  VellLabel* next_caption_;
  VellLabel* last_value_;
  VellLabel* next_value_;
};
