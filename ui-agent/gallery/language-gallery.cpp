// The longest texts of the current language in the sizes the screens give
// them, each inside a dashed outline of its room: what runs past the outline
// overflows. Buttons at 100 x 32, the status word at 296 x 28, summary
// labels at 180, the sign-in sheet's texts, the welcome title and intro, and
// the longest activity messages fitted to the pop-up (177 x 40) and the
// activity dialog (441 x 60).

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <memory>

#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/gallery/screen-gallery.h"
#include "ui-agent/tray/event-fit.h"
#include "ui-agent/tray/relative-age.h"
#include "widgets/dpi-info.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"

namespace {

using gallery::Cell;

// The grab of `w` on white with the room it has outlined (dashed red).
QImage in_room(QWidget* w, QSize room) {
  const QImage grab = gallery::grabWidget(w);
  const int dpr = qMax(1, static_cast<int>(grab.devicePixelRatio()));
  const QSize shown(grab.width() / dpr, grab.height() / dpr);
  QImage out(qMax(shown.width(), room.width()) + 2, qMax(shown.height(), room.height()) + 2,
             QImage::Format_ARGB32);
  out.fill(Qt::white);
  QPainter p(&out);
  p.drawImage(QRect(QPoint(1, 1), shown), grab);
  p.setPen(QPen(QColor(220, 60, 60), 1, Qt::DashLine));
  p.drawRect(QRect(0, 0, room.width() + 1, room.height() + 1));
  return out;
}

QLabel* label(const QString& text, const QString& sheet, int width, bool wrap) {
  auto* l = new QLabel;
  l->setTextFormat(Qt::RichText);
  l->setText(text);
  l->setStyleSheet(getStyleSheet(sheet));
  l->setWordWrap(wrap);
  if (width > 0) l->setFixedWidth(width);
  return l;
}

Cell text_cell(Str row, const QString& sheet, int width, int height, bool wrap) {
  std::unique_ptr<QLabel> l(label(string_display::text(row), sheet, DPIinfo::scaled(width), wrap));
  return {string_display::key(row), in_room(l.get(), {DPIinfo::scaled(width), DPIinfo::scaled(height)})};
}

std::vector<Cell> buttons() {
  std::vector<Cell> cells;
  for (Str row : {Str::btn_ok, Str::btn_cancel, Str::btn_not_now, Str::btn_save, Str::btn_close,
                  Str::btn_done, Str::btn_get_started}) {
    VellButton b(string_display::text(row),
                 row == Str::btn_cancel ? VellButton::Secondary : VellButton::Primary);
    b.setMinimumSize(DPIinfo::scaled(100), DPIinfo::scaled(32));
    cells.push_back({string_display::key(row), in_room(&b, {DPIinfo::scaled(100), DPIinfo::scaled(32)})});
  }
  return cells;
}

// The activity messages whose plain text is widest in this language, with
// realistic values.
std::vector<LogEntry> longest_events(size_t count) {
  Json::Value body;
  body["volume_name"] = "C:";
  body["error_code"] = "0x80070005";
  body["inode_number"] = "1048577";
  body["path"] = "C:\\Users\\Anna\\Documents\\receipts.pdf";
  body["parent_path"] = "C:\\Users\\Anna\\Documents";
  body["task"] = body["task_name"] = "Daily backup";
  body["interval_start"] = "409600";
  body["interval_end"] = "413696";
  body["exit_code"] = "2";
  std::vector<std::pair<int, LogEntry>> all;
  const QFontMetrics fm(QApplication::font());
  for (quint32 type = 1000; type <= 8300; ++type) {
    if (event_text::kind_of(type) == event_text::Kind::Unknown) continue;
    LogEntry e;
    e.type = type;
    e.body = body;
    all.push_back({fm.horizontalAdvance(event_text::render(e, false, 449)), e});
  }
  std::sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  std::vector<LogEntry> out;
  for (size_t i = 0; i < all.size() && i < count; ++i) out.push_back(all[i].second);
  return out;
}

std::vector<std::vector<Cell>> event_rows() {
  std::vector<std::vector<Cell>> rows;
  std::vector<Cell> popup, dialog;
  event_fit::Fitter tray_fit = event_fit::Fitter::tray();
  event_fit::Fitter activity_fit = event_fit::Fitter::activity();
  for (const LogEntry& e : longest_events(8)) {
    const QString caption = QString::number(e.type);
    // The pop-up's label has a fixed size: what does not fit is cut off.
    std::unique_ptr<QLabel> p(
        label(relative_age::line_div(tray_fit.fit(e).message), QString(), DPIinfo::scaled(177), true));
    p->setFixedHeight(DPIinfo::scaled(40));
    p->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    popup.push_back({caption, in_room(p.get(), {DPIinfo::scaled(177), DPIinfo::scaled(40)})});
    std::unique_ptr<QLabel> d(label(relative_age::line_div(activity_fit.fit(e).message),
                                    QStringLiteral("component.lineedit_label"), DPIinfo::scaled(441), true));
    dialog.push_back({caption, in_room(d.get(), {DPIinfo::scaled(441), 60})});
    if (popup.size() == 4) {
      rows.push_back(std::move(popup));
      popup.clear();
    }
    if (dialog.size() == 2) {
      rows.push_back(std::move(dialog));
      dialog.clear();
    }
  }
  return rows;
}

void renderLanguage() {
  using string_display::text;
  std::vector<std::vector<Cell>> rows;
  rows.push_back(buttons());
  rows.push_back(
      {text_cell(Str::desc_status_partial_success, QStringLiteral("tray_status_display"), 296, 28, false),
       text_cell(Str::desc_status_snapshot, QStringLiteral("tray_status_display"), 296, 28, false),
       text_cell(Str::desc_backup_preparing, QStringLiteral("tray_status_display"), 296, 28, false)});
  rows.push_back({text_cell(Str::desc_backup_source, QStringLiteral("summary_label"), 180, 20, false),
                  text_cell(Str::desc_backup_policy, QStringLiteral("summary_label"), 180, 20, false),
                  text_cell(Str::desc_data_center, QStringLiteral("summary_label"), 180, 20, false),
                  text_cell(Str::backup_schedule, QStringLiteral("summary_label"), 180, 20, false)});
  rows.push_back(
      {text_cell(Str::title_wizard_sign_in, QStringLiteral("wizard_text_17px_1E2832"), 456, 28, true),
       text_cell(Str::desc_wizard_sign_in, QStringLiteral("wizard_informative_text_15px_1E2832"), 456, 72,
                 true)});
  rows.push_back({text_cell(Str::desc_welcome, QStringLiteral("welcome_title"), 700, 40, false)});
  {
    std::unique_ptr<QLabel> intro(label(QStringLiteral("<div style=\"line-height:24px;\">") +
                                            text(Str::desc_welcome_intro) + QStringLiteral("</div>"),
                                        QStringLiteral("welcome_description"), DPIinfo::scaled(560), true));
    intro->setAlignment(Qt::AlignHCenter);
    rows.push_back({{QStringLiteral("desc_welcome_intro"),
                     in_room(intro.get(), {DPIinfo::scaled(560), DPIinfo::scaled(72)})}});
  }
  rows.push_back(
      {text_cell(Str::retention_bandwidth_enable_range, QStringLiteral("component.checkbox"), 560, 20, false),
       text_cell(Str::tip_estimate_minutes, QString(), 560, 20, false)});
  for (auto& r : event_rows()) rows.push_back(std::move(r));
  gallery::save(gallery::sheet(QStringLiteral("Longest texts (%1)").arg(screen_gallery::language()), rows),
                QStringLiteral("language-texts.png"));
}

}  // namespace

NIMBRA_GALLERY_AREA("language", renderLanguage)
