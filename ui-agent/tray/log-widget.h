#pragma once
// The "Activity" dialog: the latest backup events (date and time, event
// text), newest at the top, with a Close button. Filled from the pop-up's
// kept entries each time it opens; rows are only added at the top (entries
// newer than the top row) and cut at 100 at the bottom. Closing hides it.

#include <QList>
#include <QWidget>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/tray/event-fit.h"

class QTableWidget;
class VellButton;

class LogWidget : public QWidget {
  Q_OBJECT

 public:
  explicit LogWidget(QWidget* parent = nullptr);
  ~LogWidget() override;

  // Adds the entries (oldest first) that are newer than the top row.
  void fillEntries(const QList<LogEntry>& entries);
  int rowCount() const;
  // The id stored in a row (0 for a row that does not exist).
  quint64 rowId(int row) const;

 public slots:
  void slotCloseBtnClicked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fillRow(int row, const LogEntry& entry);

  QTableWidget* header_;
  QTableWidget* table_;
  VellButton* close_;
  event_fit::Fitter fitter_;
};
