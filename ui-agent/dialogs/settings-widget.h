#pragma once
// The "Settings" dialog: the upload speed limit that the backup service
// applies to this device (no limit, or a limit in Mbps, optionally only within
// a daily time range).
//
// The dialog keeps no settings of its own. Whoever opens it (the tray menu)
// asks the service for "get_bandwidth_control" and hands the answer over:
//
//   if (SettingsWidget::isValidConfig(server)) settings->applyServerConfig(server);
//   settings->loadClientConfig(SettingsWidget::isValidConfig(client)
//                                  ? client : SettingsWidget::defaultClientConfig());
//   settings->show(); settings->raise(); settings->activateWindow();
//
// "Save" sends "set_bandwidth_control" through the signal bus (sigQueryService
// is forwarded to GlobalConnecter::sigQueryService) and hides the dialog;
// "Cancel", the close button and Escape hide it. It is created once and
// reused, never destroyed while the agent runs.

#include <json/value.h>

#include <QWidget>

class QLabel;
class QLineEdit;
class QWidget;
class LinkLabel;
class VellButton;
class VellCheckBox;
class VellLabel;
class VellRadioButton;
class VellTimeComboBox;
class VellVerticalScrollArea;

class SettingsWidget : public QWidget {
  Q_OBJECT

 public:
  explicit SettingsWidget(QWidget* parent = nullptr);
  ~SettingsWidget() override;

  // A bandwidth configuration the dialog can show: "bandwidth_type" 0, or 1
  // with "bandwidth_limit_range" false, or 1 with a range whose start and end
  // are valid "HH:MM" times.
  static bool isValidConfig(const Json::Value& config);
  // What is shown when the service sends no valid client configuration:
  // no limit, 20 Mbps, range on, 07:00 to 23:00.
  static Json::Value defaultClientConfig();

  // Fills the controls from a configuration (the caller checks it first).
  void loadClientConfig(const Json::Value& config);
  // Shows the limit set by the organisation (server side) as a note above
  // the controls, or hides the note when the server sets no limit.
  void applyServerConfig(const Json::Value& config);

 signals:
  void sigQueryService(const QObject* sender, const Json::Value& request);

 public slots:
  // The limit radio was toggled.
  void slotEnableBandWidthBtnClicked(bool clicked);
  // The rate text changed: refreshes the unit label and the estimate.
  void slotCheckInputBandWidthVaild();
  // The range check box changed (Qt::CheckState as int).
  void slotChangeRangeStatus(int status);
  // The start time changed: offers the 23 hours after it as end times.
  void slotUpadteEndTimeItems();
  // Sends the settings to the service and hides the dialog.
  void slotSaveSettings();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // The title bar's close button hides the dialog like "Cancel".
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildUi();
  QWidget* buildContent();
  void buildTimeRows(QWidget* container);
  void clampRateEdit();
  void refreshRateTexts();
  void applyEnabledStates();
  void setReadingTabOrder();

  VellVerticalScrollArea* m_scrollArea = nullptr;
  QWidget* m_content = nullptr;
  QWidget* m_noteBox = nullptr;
  QLabel* m_noteLabel = nullptr;
  VellLabel* m_titleLabel = nullptr;
  VellLabel* m_descriptionLabel = nullptr;
  LinkLabel* m_learnMoreLink = nullptr;
  VellRadioButton* m_noLimitRadio = nullptr;
  VellRadioButton* m_limitRadio = nullptr;
  QLineEdit* m_rateEdit = nullptr;
  QLabel* m_rateUnitLabel = nullptr;
  QLabel* m_estimateIcon = nullptr;
  VellCheckBox* m_rangeCheckBox = nullptr;
  QWidget* m_rangeContainer = nullptr;
  VellLabel* m_startLabel = nullptr;
  VellLabel* m_endLabel = nullptr;
  VellTimeComboBox* m_startCombo = nullptr;
  VellTimeComboBox* m_endCombo = nullptr;
  VellButton* m_cancelButton = nullptr;
  VellButton* m_saveButton = nullptr;
};
