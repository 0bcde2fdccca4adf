#pragma once
// The wizard's second page: the sites the account may use, with the policy,
// schedule and scope a new device gets there, and "Done".

#include <json/value.h>

#include <QMap>
#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;
class SummaryWidget;

class SummaryPage : public QWidget {
  Q_OBJECT
 public:
  explicit SummaryPage(QWidget* parent = nullptr);

  // Loads a "get_site_info" answer. An account of type "nimbra" never sees
  // the summary: the page hides its content, takes element 0's site and
  // emits sigReviewSummaryDone at once.
  void setSiteInfo(const Json::Value& response);

  // The values of "create_device": the chosen site code, its subscription
  // (empty when the site map has none) and the account type.
  QString siteCode() const { return siteCode_; }
  QString subIdForSite() const { return siteMap_.value(siteCode_); }
  QString accountType() const { return accountType_; }

 signals:
  void sigReviewSummaryDone();

 public slots:
  void slotSiteChanged(const QString& site, const QString& url);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void setIntro(const QString& url);
  void setContentVisible(bool visible);

  QLabel* header_ = nullptr;
  QLabel* intro_ = nullptr;
  SummaryWidget* summary_ = nullptr;
  QPushButton* done_ = nullptr;
  QString siteCode_;
  QString accountType_ = QStringLiteral("vell");
  QMap<QString, QString> siteMap_;
};
