#pragma once
// The pop-up's progress page: a running backup's phase, estimated finish,
// processed amount, percentage with its bar, and the latest event.

#include <json/value.h>

#include <QWidget>

#include <memory>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/core/service-status.h"
#include "ui-agent/core/tray-status.h"
#include "ui-agent/tray/relative-age.h"

class QLabel;
class QProgressBar;
class LatestEventLine;
class VellLabel;

class TrayProgressWidget : public QWidget {
  Q_OBJECT

 public:
  explicit TrayProgressWidget(QWidget* parent = nullptr);
  ~TrayProgressWidget() override;

  void updateStatus(ServiceStatus status, const Json::Value& content);
  void setLatestEvent(const LogEntry& entry);
  void setClock(relative_age::Clock clock) { clock_ = std::move(clock); }
  // The remaining seconds last estimated (kept between updates).
  double remainingEstimate() const { return estimate_; }

 signals:
  void sigTrayStatusChanged(TrayStatus status);

 private:
  relative_age::Clock clock_ = relative_age::system_clock();
  double estimate_ = 0;
  QLabel* picture_;
  VellLabel* phase_;
  QLabel* finish_;
  QProgressBar* bar_;
  QLabel* processed_;
  QLabel* percent_;
  QLabel* event_;
  QLabel* age_;
  std::unique_ptr<LatestEventLine> latest_;
};
