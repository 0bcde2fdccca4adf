#pragma once
// The schedule box of the status page: the time of the last backup and of
// the next one.

#include <QFrame>

class VellLabel;

class BackupScheduleInfoWidget : public QFrame {
  Q_OBJECT

 public:
  explicit BackupScheduleInfoWidget(QWidget* parent = nullptr);

  // Seconds since the epoch; 0 shows "Not backed up yet" / "No backup schedule".
  void setLastBackupTime(quint64 secs);
  void setNextBackupTime(quint64 secs);
  // The status page writes the schedule-type texts straight into the value.
  // A value wider than its label is elided, with the whole text as tool tip.
  // The values as shown (and as screen readers hear them, with the captions).
  void setLastBackupText(const QString& text);
  void setNextBackupText(const QString& text);
  VellLabel* nextBackupLabel() const { return next_value_; }
  VellLabel* lastBackupLabel() const { return last_value_; }

 private:
  VellLabel* last_caption_;
  VellLabel* next_caption_;
  VellLabel* last_value_;
  VellLabel* next_value_;
};
