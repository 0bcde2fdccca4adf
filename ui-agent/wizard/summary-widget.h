#pragma once
// The framed block of the summary page: the policy, the data centre (a
// chooser, or a plain label for a single site), the schedule and the backup
// scope of the chosen site, and a note when the scope list is shortened.

#include <json/value.h>

#include <QComboBox>
#include <QFrame>

class QLabel;

// The site chooser. Its list view paints items with a plain
// QStyledItemDelegate, so the style sheet governs them.
class SummaryComboBox : public QComboBox {
  Q_OBJECT
 public:
  explicit SummaryComboBox(QWidget* parent = nullptr);
};

class SummaryWidget : public QFrame {
  Q_OBJECT
 public:
  explicit SummaryWidget(QWidget* parent = nullptr);

  // Fills the chooser and the rows from a "get_site_info" answer (policy
  // names already the display names) and announces element 0. An answer
  // without sites changes nothing.
  void setData(const Json::Value& response);

 signals:
  // A site became current: its region code and its console address.
  void sigSiteChange(const QString& site, const QString& url);

 public slots:
  void slotSiteChanaged(int index);

 private:
  void fillRows(const Json::Value& site);

  Json::Value data_;
  QLabel* policy_ = nullptr;
  SummaryComboBox* chooser_ = nullptr;
  QLabel* singleSite_ = nullptr;
  QLabel* schedule_ = nullptr;
  QLabel* scope_ = nullptr;
  QWidget* note_ = nullptr;
};
