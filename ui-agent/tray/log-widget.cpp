#include "ui-agent/tray/log-widget.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "logging/logger.h"
#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/relative-age.h"
#include "widgets/accessible-text.h"
#include "widgets/copyable-text.h"
#include "widgets/dpi-info.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"
#include "widgets/web-link.h"
#include "widgets/window-placement.h"

namespace {

constexpr int kMaxRows = 100;
// The two columns, in the header and in the rows alike (not scaled, as the
// rows have them), so that the titles stand over their columns.
constexpr int kTimeColumn = 200;
constexpr int kEventColumn = 449;

constexpr auto kHeaderStyle =
    "QTableWidget { background-color: white; color: rgba(30,40,50,0.60); padding: 0px; margin: 0px; border: "
    "none;"
    " outline: none; }"
    " QTableWidget::item { border-bottom: 1px solid #EBF0F5; }";
constexpr auto kTableStyle =
    "QTableWidget { background-color: white; outline: none; color: #505A64; padding: 0px; margin: 0px;"
    " border: none; }"
    " QTableWidget::item { border-bottom: 1px solid #EBF0F5; }";

void quiet(QTableWidget* t) {
  t->setContentsMargins(0, 0, 0, 0);
  t->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  t->horizontalScrollBar()->setEnabled(false);
  t->horizontalHeader()->hide();
  t->verticalHeader()->hide();
  t->setSelectionMode(QAbstractItemView::NoSelection);
  t->setEditTriggers(QAbstractItemView::NoEditTriggers);
  t->setShowGrid(false);
}

// A named style sheet ("QLabel { ... }") narrowed to the labels of one
// object name, so that the table carries the rules of all its rows once
// instead of every row's labels parsing a sheet of their own.
QString forLabelsNamed(QString sheet, const QString& name) {
  return sheet.replace(QStringLiteral("QLabel"), QStringLiteral("QLabel#") + name);
}

QLabel* cellLabel(const QString& text, const QString& style) {
  auto* label = new QLabel(text);
  label->setStyleSheet(style);
  return label;
}

}  // namespace

LogWidget::LogWidget(QWidget* parent) : QWidget(parent), fitter_(event_fit::Fitter::activity()) {
  setObjectName(QStringLiteral("LogWidget"));
  window_placement::centre_when_shown(this);
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
  setFixedSize(DPIinfo::scaled(700), DPIinfo::scaled(442));
  QPalette pal = palette();
  pal.setBrush(QPalette::All, QPalette::Window, QBrush(QColor(QStringLiteral("white"))));
  setPalette(pal);
  setAutoFillBackground(true);
  setWindowTitle(string_display::text(Str::title_activities));
  setAccessibleName(windowTitle());
  accessible_text::set_window_role(this, accessible_text::WindowRole::Frame);

  header_ = new QTableWidget(1, 2, this);
  header_->setObjectName(QStringLiteral("logHeaderTable"));
  quiet(header_);
  header_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  header_->setFocusPolicy(Qt::NoFocus);
  header_->setColumnWidth(1, kEventColumn);
  header_->setColumnWidth(0, kTimeColumn);
  header_->setRowHeight(0, DPIinfo::scaled(32));
  header_->setFixedHeight(DPIinfo::scaled(30));
  header_->setStyleSheet(DPIinfo::getScaledStyleSheet(QLatin1String(kHeaderStyle)));
  for (int c = 0; c < 2; ++c) header_->setItem(0, c, new QTableWidgetItem);
  header_->item(0, 0)->setData(Qt::AccessibleTextRole, string_display::text(Str::desc_time));
  header_->item(0, 1)->setData(Qt::AccessibleTextRole, string_display::text(Str::desc_event));
  header_->setCellWidget(
      0, 0,
      cellLabel(string_display::text(Str::desc_time), getStyleSheet(QStringLiteral("log_widget_time"))));
  // Both titles in the one look of the time column's.
  header_->setCellWidget(
      0, 1,
      cellLabel(string_display::text(Str::desc_event), getStyleSheet(QStringLiteral("log_widget_time"))));

  auto* divider = new QFrame(this);
  divider->setObjectName(QStringLiteral("logDivider"));
  divider->setFrameShape(QFrame::HLine);
  divider->setStyleSheet(getStyleSheet(QStringLiteral("hline_divider")));

  table_ = new QTableWidget(0, 2, this);
  table_->setObjectName(QStringLiteral("logTable"));
  quiet(table_);
  table_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  table_->setTextElideMode(Qt::ElideLeft);
  table_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Fixed);
  table_->setColumnWidth(0, DPIinfo::scaled(200));
  table_->verticalHeader()->setDefaultSectionSize(DPIinfo::scaled(40));
  table_->setStyleSheet(
      DPIinfo::getScaledStyleSheet(QLatin1String(kTableStyle)) + QLatin1Char('\n') +
      forLabelsNamed(event_fit::Fitter::labelStyleSheet(), QStringLiteral("logEventText")) +
      QLatin1Char('\n') +
      forLabelsNamed(getStyleSheet(QStringLiteral("log_widget_time")), QStringLiteral("logTimeText")));
  table_->verticalScrollBar()->setStyleSheet(getStyleSheet(QStringLiteral("component.scrollbar")));
  table_->setAccessibleName(windowTitle());
  // The columns' names for screen readers (the header itself is hidden).
  table_->setHorizontalHeaderLabels(
      {string_display::text(Str::desc_time), string_display::text(Str::desc_event)});
  copyable_text::enable_rows(table_);

  close_ = new VellButton(string_display::text(Str::btn_close), VellButton::Secondary, this);
  close_->setObjectName(QStringLiteral("logCloseButton"));
  close_->setStyleSheet(getStyleSheet(QStringLiteral("log_close_btn")));
  close_->setFixedHeight(DPIinfo::scaled(32));
  close_->setDefault(true);
  connect(close_, &QPushButton::clicked, this, &LogWidget::slotCloseBtnClicked);

  auto* bottom = new QHBoxLayout;
  bottom->setContentsMargins(0, 0, 0, 0);
  bottom->setSpacing(0);
  bottom->addStretch();
  bottom->addWidget(close_);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(DPIinfo::scaled(24), DPIinfo::scaled(12), DPIinfo::scaled(24),
                             DPIinfo::scaled(14));
  layout->setSpacing(0);
  layout->addWidget(header_);
  layout->addWidget(divider);
  layout->addWidget(table_);
  layout->addSpacing(DPIinfo::scaled(12));
  layout->addLayout(bottom);

  setTabOrder(table_, close_);
}

LogWidget::~LogWidget() = default;

void LogWidget::slotCloseBtnClicked() {
  hide();
}

void LogWidget::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      hide();
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

int LogWidget::rowCount() const {
  return table_->rowCount();
}

quint64 LogWidget::rowId(int row) const {
  const QTableWidgetItem* item = row >= 0 && row < table_->rowCount() ? table_->item(row, 1) : nullptr;
  return item ? item->data(Qt::UserRole).toULongLong() : 0;
}

void LogWidget::fillEntries(const QList<LogEntry>& entries) {
  // The entries that go on top, oldest first: each must be newer than the
  // row above it at the time it comes.
  QList<const LogEntry*> fresh;
  bool any = table_->rowCount() > 0;
  quint64 top = rowId(0);
  for (const LogEntry& entry : entries) {
    if (any && top >= entry.id) continue;
    fresh.append(&entry);
    top = entry.id;
    any = true;
  }
  // Rows that would be cut at once are not built.
  if (fresh.size() > kMaxRows) fresh.erase(fresh.begin(), fresh.end() - kMaxRows);
  if (!fresh.isEmpty()) {
    table_->setUpdatesEnabled(false);
    // One block of rows at the top; the newest entry lands in row 0.
    table_->model()->insertRows(0, fresh.size());
    for (int i = 0; i < fresh.size(); ++i) fillRow(fresh.size() - 1 - i, *fresh.at(i));
    if (table_->rowCount() > kMaxRows) table_->setRowCount(kMaxRows);
    table_->setUpdatesEnabled(true);
  }
  table_->setColumnWidth(0, kTimeColumn);
  table_->setColumnWidth(1, kEventColumn);
  LOG_DEBUG(vlog::kDefaultComponent, "activity dialog: %d rows", static_cast<int>(table_->rowCount()));
}

void LogWidget::fillRow(int row, const LogEntry& entry) {
  const auto fitted = fitter_.fit(entry);
  auto* label = new QLabel;
  label->setObjectName(QStringLiteral("logEventText"));  // styled by the table
  label->setWordWrap(true);
  label->setFixedWidth(DPIinfo::scaled(441));
  label->setText(fitter_.labelText(fitted.message));
  web_link::route(label, "activity link");
  label->resize(fitted.size);  // what adjustSize() gives, measured by the fit

  const QString plain = event_text::render(entry, false, 449);
  label->setAccessibleName(plain);
  LOG_DEBUG(vlog::kDefaultComponent, "activity row: %s", qUtf8Printable(plain));
  auto* item = new QTableWidgetItem;
  item->setToolTip(plain);
  item->setData(copyable_text::kPlainRole, plain);
  // What a screen reader reads of the cell (the label on it is not reached).
  item->setData(Qt::AccessibleTextRole, plain);
  item->setData(Qt::UserRole, QVariant::fromValue<qulonglong>(entry.id));
  table_->setItem(row, 1, item);
  table_->setCellWidget(row, 1, label);
  if (fitted.size.height() > 20)
    table_->setRowHeight(row, static_cast<int>(DPIinfo::getDPI() * (fitted.size.height() + 20)));

  const QString when = relative_age::second_time(static_cast<qint64>(entry.time));
  auto* time = new QLabel(when);
  time->setObjectName(QStringLiteral("logTimeText"));  // styled by the table
  time->setToolTip(when);
  table_->setItem(row, 0, new QTableWidgetItem);
  table_->item(row, 0)->setData(copyable_text::kPlainRole, when);
  table_->item(row, 0)->setData(Qt::AccessibleTextRole, when);
  table_->setCellWidget(row, 0, time);
}
