#pragma once
// The pop-up's status page: the result of the last backup, the latest event
// with its age, and the schedule box; or, while the service reports an error
// or the device is not connected, the error message.

#include <json/value.h>

#include <QWidget>

#include <memory>
#include <optional>

#include "ui-agent/core/log-entry.h"
#include "ui-agent/core/tray-status.h"
#include "ui-agent/tray/relative-age.h"

class QLabel;
class BackupScheduleInfoWidget;
class LatestEventLine;
class VellLabel;

class TrayStatusWidget : public QWidget {
  Q_OBJECT

 public:
  explicit TrayStatusWidget(QWidget* parent = nullptr);
  ~TrayStatusWidget() override;

  void updateStatus(const Json::Value& content);
  void setLatestEvent(const LogEntry& entry);
  // Where "now" comes from (the system clock by default).
  void setClock(relative_age::Clock clock) { clock_ = std::move(clock); }

 signals:
  void sigTrayStatusChanged(TrayStatus status);

 private:
  void setPicture(const char* name);

  relative_age::Clock clock_ = relative_age::system_clock();
  QLabel* picture_;
  // The picture now shown: the status arrives every second and mostly
  // keeps its picture, which is then not drawn again.
  QString pictureName_;
  VellLabel* result_;
  QLabel* event_;
  QLabel* age_;
  BackupScheduleInfoWidget* schedule_;
  std::unique_ptr<LatestEventLine> latest_;
  bool error_shown_ = false;
  // The content last shown and the tray state it gave.
  Json::Value shownContent_;
  std::optional<TrayStatus> shownTray_;
};
