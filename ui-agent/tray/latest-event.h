#pragma once
// The latest-event line of the pop-up's pages: the newest activity entry
// fitted into two lines, its plain text as tool tip, and its age beside it.
// The fitting is done once per entry; later refreshes only renew the age.

#include <QString>

#include <optional>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/tray/event-fit.h"

class QLabel;
class QWidget;

class LatestEventLine {
 public:
  // Builds the two labels as children of `parent`, named
  // `<prefix>LatestEvent` and `<prefix>EventAge`; the page lays them out.
  LatestEventLine(QWidget* parent, const QString& prefix);

  QLabel* eventLabel() const { return event_; }
  QLabel* ageLabel() const { return age_; }

  void setEntry(const LogEntry& entry);
  // Shows the fitted message (fitting it first if the entry changed) and
  // the age at `now`.
  void refresh(qint64 now);
  // Only the age at `now`.
  void refreshAge(qint64 now);

 private:
  QLabel* event_;
  QLabel* age_;
  std::optional<LogEntry> entry_;
  bool fitted_ = false;
  QString message_;
  QString plain_;
  event_fit::Fitter fitter_;
};
