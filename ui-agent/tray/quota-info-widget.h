#pragma once
// The head of the pop-up's user drop-down: the signed-in account and, for
// accounts that have one, the used and total cloud storage with its bar.

#include <json/value.h>

#include <QWidget>

class QLabel;
class QProgressBar;
class QTextEdit;

class QuotaInfoWidget : public QWidget {
  Q_OBJECT

 public:
  explicit QuotaInfoWidget(QWidget* parent = nullptr);

  // The account line; the pop-up's user button shows its first letter.
  void setAccount(const QString& account);
  QString account() const { return account_; }
  // The status content's "billing" object; acts only when it has both
  // "used_bytes" and "quota".
  void setUsage(const Json::Value& billing);
  // The usage label and bar (hidden for accounts without a quota).
  void setUsageAreaVisible(bool visible);
  bool usageAreaVisible() const;

 signals:
  // Each time the drop-down opens, so that fresh numbers are asked for.
  void sigUpdateQuota();
  // A non-empty account was set.
  void sigAccountChanged(const QString& account);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QString account_;
  QTextEdit* account_line_;
  QWidget* usage_area_;
  QLabel* usage_label_;
  QProgressBar* usage_bar_;
  QString shownStyle_;  // the bar's style sheet by name
};
