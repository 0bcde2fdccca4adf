#include "ui-agent/dialogs/settings-widget.h"

#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "logging/logger.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/dialogs/settings-rules.h"
#include "widgets/accessible-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"
#include "widgets/vell-check.h"
#include "widgets/vell-label.h"
#include "widgets/vell-scroll-area.h"
#include "widgets/vell-time-combo-box.h"
#include "widgets/web-link.h"
#include "widgets/window-placement.h"

namespace {

using string_display::text;

// Where "Learn more" leads: the help article on the upload speed limit.
const char* const kLearnMoreUrl = "https://www.nimbrabackup.com/help/upload-speed-limit";

const char* const kRadioExtra = " QRadioButton { font-size: 15px; line-height: 24px; border: 4px; }";
const char* const kCheckExtra = " QCheckBox { font-size: 15px; line-height: 24px; border: 10px; }";
const char* const kTimeLabelSheet =
    "QLabel { font-size: 15px; line-height: 24px; border: 4px; } QLabel:disabled {color: #CCCCCC}";

int px(double logical) {
  return DPIinfo::scaled(logical);
}

QString extraSheet(const char* sheet) {
  return DPIinfo::getScaledStyleSheet(QString::fromLatin1(sheet));
}

// Rich text in the house's line-height wrapper.
QString withLineHeight(const QString& html, int logicalLineHeight) {
  return QStringLiteral("<div style=\"line-height:%1px\">").arg(px(logicalLineHeight)) + html +
         QStringLiteral("</div>");
}

}  // namespace

SettingsWidget::SettingsWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("SettingsWidget"));
  window_placement::centre_when_shown(this);
  setWindowFlags(Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
  setWindowTitle(text(Str::act_settings));
  setAccessibleName(text(Str::act_settings));
  accessible_text::set_window_role(this, accessible_text::WindowRole::Dialog);
  setFixedSize(px(700), px(442));
  setAutoFillBackground(true);
  QPalette pal = palette();
  pal.setColor(QPalette::Window, Qt::white);
  setPalette(pal);

  buildUi();

  connect(this, &SettingsWidget::sigQueryService, &GlobalConnecter::instance(),
          &GlobalConnecter::sigQueryService);
  connect(m_limitRadio, &QRadioButton::toggled, this, &SettingsWidget::slotEnableBandWidthBtnClicked);
  // The two radios are one Tab stop, the checked one; arrows move between them.
  for (QRadioButton* radio :
       {static_cast<QRadioButton*>(m_noLimitRadio), static_cast<QRadioButton*>(m_limitRadio)})
    connect(radio, &QRadioButton::toggled, this,
            [radio](bool checked) { radio->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus); });
  connect(m_rateEdit, &QLineEdit::textChanged, this, &SettingsWidget::slotCheckInputBandWidthVaild);
  connect(m_rangeCheckBox, &QCheckBox::stateChanged, this, &SettingsWidget::slotChangeRangeStatus);
  // Every change of the start, picked or typed, rebuilds the end list (a
  // typed time relabels the custom item in place, which no index change shows).
  connect(m_startCombo, &VellTimeComboBox::timeChanged, this, &SettingsWidget::slotUpadteEndTimeItems);
  connect(m_cancelButton, &QPushButton::clicked, this, &QWidget::hide);
  connect(m_saveButton, &QPushButton::clicked, this, &SettingsWidget::slotSaveSettings);
  connect(m_learnMoreLink, &LinkLabel::clicked, this,
          [] { web_link::open(QString::fromLatin1(kLearnMoreUrl), "learn more link"); });

  loadClientConfig(defaultClientConfig());
  setReadingTabOrder();
}

SettingsWidget::~SettingsWidget() = default;

bool SettingsWidget::isValidConfig(const Json::Value& config) {
  return settings_rules::is_valid_config(config);
}

Json::Value SettingsWidget::defaultClientConfig() {
  return settings_rules::default_config();
}

void SettingsWidget::buildUi() {
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(0);

  m_scrollArea = new VellVerticalScrollArea(this);
  m_scrollArea->setObjectName(QStringLiteral("SettingsScrollArea"));
  m_scrollArea->setFixedHeight(px(382));
  // The controls take the focus, not the area around them.
  m_scrollArea->setFocusPolicy(Qt::NoFocus);
  m_content = buildContent();
  m_scrollArea->setWidget(m_content);
  outer->addWidget(m_scrollArea);

  // A hairline keeps the buttons apart from content scrolled under them.
  auto* divider = new QFrame(this);
  divider->setObjectName(QStringLiteral("SettingsDivider"));
  divider->setFrameShape(QFrame::HLine);
  divider->setFixedHeight(1);
  divider->setStyleSheet(getStyleSheet(QStringLiteral("hline_divider")));
  outer->addWidget(divider);

  auto* buttons = new QHBoxLayout();
  buttons->setContentsMargins(px(40), px(13), px(40), px(14));
  buttons->setSpacing(px(12));
  buttons->addStretch();
  m_cancelButton = new VellButton(text(Str::btn_cancel), VellButton::Secondary, this);
  m_cancelButton->setObjectName(QStringLiteral("SettingsCancelButton"));
  m_cancelButton->setAutoDefault(true);
  buttons->addWidget(m_cancelButton);
  m_saveButton = new VellButton(text(Str::btn_save), VellButton::Primary, this);
  m_saveButton->setObjectName(QStringLiteral("SettingsSaveButton"));
  m_saveButton->setAutoDefault(true);
  buttons->addWidget(m_saveButton);
  outer->addLayout(buttons);
}

QWidget* SettingsWidget::buildContent() {
  auto* content = new QWidget();
  content->setObjectName(QStringLiteral("SettingsContent"));
  auto* layout = new QVBoxLayout(content);
  layout->setContentsMargins(px(40), px(20), px(40), px(12));
  layout->setSpacing(0);

  m_titleLabel = new VellLabel(withLineHeight(text(Str::bandwidth_control).toHtmlEscaped(), 24), content);
  m_titleLabel->setObjectName(QStringLiteral("SettingsTitle"));
  m_titleLabel->setStyleSheet(getStyleSheet(QStringLiteral("settings_section_title")));
  layout->addWidget(m_titleLabel);
  layout->addSpacing(px(4));

  m_descriptionLabel = new VellLabel(text(Str::bandwidth_description), content);
  m_descriptionLabel->setObjectName(QStringLiteral("SettingsDescription"));
  m_descriptionLabel->setTextFormat(Qt::PlainText);
  m_descriptionLabel->setWordWrap(true);
  m_descriptionLabel->setStyleSheet(getStyleSheet(QStringLiteral("settings_description")));
  layout->addWidget(m_descriptionLabel);
  layout->addSpacing(px(2));

  m_learnMoreLink = new LinkLabel(text(Str::label_learn_more), content);
  m_learnMoreLink->setObjectName(QStringLiteral("SettingsLearnMore"));
  m_learnMoreLink->setAccessibleName(text(Str::label_learn_more));
  m_learnMoreLink->setToolTip(QString::fromLatin1(kLearnMoreUrl));
  // Its focus frame would otherwise push the text off the description's edge.
  m_learnMoreLink->setIndent(0);
  layout->addWidget(m_learnMoreLink, 0, Qt::AlignLeft);
  layout->addSpacing(px(12));

  // The organisation's note, with the gap below it, shows only when set.
  m_noteBox = new QWidget(content);
  m_noteBox->setObjectName(QStringLiteral("SettingsServerNoteBox"));
  auto* noteLayout = new QVBoxLayout(m_noteBox);
  noteLayout->setContentsMargins(0, 0, 0, px(12));
  m_noteLabel = new QLabel(m_noteBox);
  m_noteLabel->setObjectName(QStringLiteral("SettingsServerNote"));
  m_noteLabel->setTextFormat(Qt::RichText);
  m_noteLabel->setWordWrap(true);
  m_noteLabel->setStyleSheet(getStyleSheet(QStringLiteral("settings_server_note")));
  noteLayout->addWidget(m_noteLabel);
  m_noteBox->hide();
  layout->addWidget(m_noteBox);

  const QString radioSheet =
      getStyleSheet(QStringLiteral("component.radio_button")) + extraSheet(kRadioExtra);
  m_noLimitRadio = new VellRadioButton(text(Str::bandwidth_no_limit), content);
  m_noLimitRadio->setObjectName(QStringLiteral("SettingsNoLimitRadio"));
  m_noLimitRadio->setStyleSheet(radioSheet);
  layout->addWidget(m_noLimitRadio);
  layout->addSpacing(px(12));

  auto* rateRow = new QHBoxLayout();
  rateRow->setContentsMargins(0, 0, 0, 0);
  rateRow->setSpacing(0);
  m_limitRadio = new VellRadioButton(text(Str::bandwidth_enable_speed_limit), content);
  m_limitRadio->setObjectName(QStringLiteral("SettingsLimitRadio"));
  m_limitRadio->setStyleSheet(radioSheet);
  rateRow->addWidget(m_limitRadio);
  rateRow->addSpacing(px(12));

  m_rateEdit = new QLineEdit(content);
  m_rateEdit->setObjectName(QStringLiteral("SettingsRateEdit"));
  m_rateEdit->setFixedSize(px(80), px(32));
  m_rateEdit->setMaxLength(4);
  m_rateEdit->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[1-9]{1}[0-9]{0,3}")), m_rateEdit));
  m_rateEdit->setPlaceholderText(text(Str::retention_bandwidth_rate_placeholder));
  // The common look first, so that the focus and disabled looks win.
  m_rateEdit->setStyleSheet(getStyleSheet(QStringLiteral("component.lineedit")) +
                            getStyleSheet(QStringLiteral("lineedit_focus_green")) +
                            getStyleSheet(QStringLiteral("lineedit_disable_gray")));
  m_rateEdit->setAccessibleName(text(Str::bandwidth_enable_speed_limit));
  m_rateEdit->setAccessibleDescription(text(Str::retention_bandwidth_rate_placeholder));
  m_rateEdit->installEventFilter(this);
  rateRow->addWidget(m_rateEdit);
  rateRow->addSpacing(px(8));

  m_rateUnitLabel = new QLabel(content);
  m_rateUnitLabel->setObjectName(QStringLiteral("SettingsRateUnit"));
  m_rateUnitLabel->setTextFormat(Qt::PlainText);
  m_rateUnitLabel->setStyleSheet(getStyleSheet(QStringLiteral("settings_rate_unit")));
  rateRow->addWidget(m_rateUnitLabel);
  rateRow->addSpacing(px(6));

  m_estimateIcon = new QLabel(content);
  m_estimateIcon->setObjectName(QStringLiteral("SettingsEstimateIcon"));
  m_estimateIcon->setFixedSize(px(24), px(24));
  m_estimateIcon->setAlignment(Qt::AlignCenter);
  m_estimateIcon->setPixmap(getGlobalImage(QStringLiteral("icn_imsg")));
  rateRow->addWidget(m_estimateIcon);
  rateRow->addStretch();
  layout->addLayout(rateRow);
  layout->addSpacing(px(14));

  // The check box and the time rows sit under the text of "Limit to".
  const int indent = px(24);
  m_rangeCheckBox = new VellCheckBox(text(Str::retention_bandwidth_enable_range), content);
  m_rangeCheckBox->setObjectName(QStringLiteral("SettingsRangeCheckBox"));
  m_rangeCheckBox->setStyleSheet(getStyleSheet(QStringLiteral("component.checkbox")) +
                                 extraSheet(kCheckExtra));
  auto* checkRow = new QHBoxLayout();
  checkRow->setContentsMargins(indent, 0, 0, 0);
  checkRow->addWidget(m_rangeCheckBox);
  checkRow->addStretch();
  layout->addLayout(checkRow);
  layout->addSpacing(px(12));

  m_rangeContainer = new QWidget(content);
  m_rangeContainer->setObjectName(QStringLiteral("SettingsRangeContainer"));
  buildTimeRows(m_rangeContainer);
  auto* rangeRow = new QHBoxLayout();
  rangeRow->setContentsMargins(indent * 2, 0, 0, 0);
  rangeRow->addWidget(m_rangeContainer);
  rangeRow->addStretch();
  layout->addLayout(rangeRow);
  layout->addStretch();
  return content;
}

void SettingsWidget::buildTimeRows(QWidget* container) {
  auto* rows = new QVBoxLayout(container);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(px(12));
  const QString labelSheet = extraSheet(kTimeLabelSheet);

  auto makeRow = [&](VellLabel*& label, VellTimeComboBox*& combo, Str key, const char* name,
                     const char* sheet) {
    auto* row = new QHBoxLayout();
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    label = new VellLabel(text(key), container);
    label->setObjectName(QStringLiteral("%1Label").arg(QLatin1String(name)));
    label->setFixedWidth(px(140));
    label->setStyleSheet(labelSheet);
    combo = new VellTimeComboBox(container);
    combo->setObjectName(QStringLiteral("%1Combo").arg(QLatin1String(name)));
    combo->setFixedSize(px(200), px(32));
    combo->setStyleSheet(getStyleSheet(QLatin1String(sheet)));
    combo->setAccessibleName(text(key));
    label->setBuddy(combo);
    row->addWidget(label);
    row->addWidget(combo);
    row->addStretch();
    rows->addLayout(row);
  };
  makeRow(m_startLabel, m_startCombo, Str::bandwidth_start_time, "SettingsStart", "editable_combobox");
  makeRow(m_endLabel, m_endCombo, Str::bandwidth_end_time, "SettingsEnd", "non_editable_combobox");

  m_startCombo->setEditable(true);
  m_startCombo->setMaxVisibleItems(5);
  m_startCombo->setCustomText(text(Str::bandwidth_custom));
  {
    const QSignalBlocker block(m_startCombo);
    m_startCombo->addItems(settings_rules::start_items());
    m_startCombo->setTimeText(QStringLiteral("07:00"));
  }
  m_endCombo->setMaxVisibleItems(5);
}

void SettingsWidget::loadClientConfig(const Json::Value& config) {
  Json::Value usable = config;
  if (!settings_rules::is_valid_config(config)) {
    LOG_WARN(vlog::kDefaultComponent, "invalid bandwidth client config, showing the defaults");
    usable = defaultClientConfig();
  }
  const settings_rules::LoadedSettings loaded = settings_rules::load_settings(usable);

  (loaded.limited ? static_cast<QRadioButton*>(m_limitRadio) : m_noLimitRadio)->setChecked(true);

  m_startCombo->setTimeText(loaded.start);
  slotUpadteEndTimeItems();

  const QString nextDay = text(Str::next_day);
  const QString endText = settings_rules::end_display_text(loaded.end, m_startCombo->timeText(), nextDay);
  // A time that is not one of the offered hours shows as its own item, with
  // "Next day" when it falls after midnight.
  m_endCombo->setCustomText(endText.size() > 5 ? nextDay : QString());
  if (loaded.end == m_startCombo->timeText()) {
    LOG_WARN(vlog::kDefaultComponent, "bandwidth range %s to %s is empty, showing the next hour as end",
             loaded.start.toUtf8().constData(), loaded.end.toUtf8().constData());
    m_endCombo->setCurrentIndex(0);
  } else {
    m_endCombo->setTimeText(endText);
  }

  m_rateEdit->setText(loaded.rate);
  m_rangeCheckBox->setChecked(loaded.limitRange);
  applyEnabledStates();
  refreshRateTexts();
}

void SettingsWidget::applyServerConfig(const Json::Value& config) {
  if (!settings_rules::is_valid_config(config)) {
    LOG_WARN(vlog::kDefaultComponent, "invalid bandwidth server config, note left as it is");
    return;
  }
  const settings_rules::ServerNote note = settings_rules::server_note(config);
  if (note.visible) m_noteLabel->setText(withLineHeight(note.text, 20));
  m_noteBox->setVisible(note.visible);
  m_noteLabel->setAccessibleName(note.visible ? m_noteLabel->text() : QString());
  m_scrollArea->refreshScrollBar();
}

void SettingsWidget::slotEnableBandWidthBtnClicked(bool clicked) {
  m_rateEdit->setEnabled(clicked);
  m_rangeCheckBox->setEnabled(clicked);
  m_rangeContainer->setEnabled(clicked && m_rangeCheckBox->isChecked());
  refreshRateTexts();
  m_scrollArea->refreshScrollBar();
}

void SettingsWidget::slotCheckInputBandWidthVaild() {
  refreshRateTexts();
}

void SettingsWidget::slotChangeRangeStatus(int status) {
  // The time rows only matter while a limit is chosen.
  m_rangeContainer->setEnabled(status != Qt::Unchecked && m_limitRadio->isChecked());
}

void SettingsWidget::slotUpadteEndTimeItems() {
  const QString previous = m_endCombo->currentText().left(5);
  const QStringList items = settings_rules::end_items(m_startCombo->timeText(), text(Str::next_day));
  const QSignalBlocker block(m_endCombo);
  m_endCombo->clear();
  m_endCombo->addItems(items);
  m_endCombo->setCurrentIndex(items.isEmpty() ? -1 : settings_rules::end_item_index(items, previous));
}

void SettingsWidget::slotSaveSettings() {
  clampRateEdit();
  refreshRateTexts();
  settings_rules::SaveInput input;
  input.noLimit = m_noLimitRadio->isChecked();
  input.rate = m_rateEdit->text();
  input.limitRange = m_rangeCheckBox->isChecked();
  input.startText = m_startCombo->currentText();
  input.endText = m_endCombo->currentText();
  const Json::Value request = settings_rules::save_request(input);
  LOG_INFO(vlog::kDefaultComponent, "saving bandwidth settings: type %d, rate %s, range %d, %s to %s",
           input.noLimit ? 0 : 1, input.rate.toUtf8().constData(), input.limitRange ? 1 : 0,
           input.startText.left(5).toUtf8().constData(), input.endText.left(5).toUtf8().constData());
  emit sigQueryService(this, request);
  hide();
}

bool SettingsWidget::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_rateEdit) {
    if (event->type() == QEvent::FocusOut) {
      clampRateEdit();
    } else if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        // Return only leaves the edit (which clamps the rate); it never saves.
        m_rateEdit->clearFocus();
        return true;
      }
    }
  }
  return QWidget::eventFilter(watched, event);
}

void SettingsWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
    hide();
    event->accept();
    return;
  }
  QWidget::keyPressEvent(event);
}

void SettingsWidget::closeEvent(QCloseEvent* event) {
  // Hidden, never closed: the dialog is reused for the next opening.
  event->ignore();
  hide();
}

void SettingsWidget::clampRateEdit() {
  const QString clamped = settings_rules::clamp_rate(m_rateEdit->text());
  if (clamped != m_rateEdit->text()) m_rateEdit->setText(clamped);
}

void SettingsWidget::refreshRateTexts() {
  const QString rate = m_rateEdit->text();
  m_rateUnitLabel->setText(settings_rules::rate_unit_text(rate));
  const QString estimate = settings_rules::upload_estimate_text(rate);
  m_estimateIcon->setToolTip(estimate);
  m_estimateIcon->setAccessibleName(estimate);
}

void SettingsWidget::applyEnabledStates() {
  const bool limited = m_limitRadio->isChecked();
  m_rateEdit->setEnabled(limited);
  m_rangeCheckBox->setEnabled(limited);
  m_rangeContainer->setEnabled(limited && m_rangeCheckBox->isChecked());
}

void SettingsWidget::setReadingTabOrder() {
  QWidget* order[] = {m_learnMoreLink, m_noLimitRadio, m_limitRadio,   m_rateEdit,  m_rangeCheckBox,
                      m_startCombo,    m_endCombo,     m_cancelButton, m_saveButton};
  for (std::size_t i = 0; i + 1 < sizeof(order) / sizeof(order[0]); ++i)
    QWidget::setTabOrder(order[i], order[i + 1]);
  m_estimateIcon->setFocusPolicy(Qt::NoFocus);
}
