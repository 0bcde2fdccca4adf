#include "event-fit.h"

#include <QLabel>

#include "dpi-info.h"
#include "style-manager.h"
#include "relative-age.h"
#include "string-display.h"

namespace event_fit {

int linear(const Series& s, const std::function<bool(int)>& fits) {
  const int n = s.count();
  for (int k = 0; k < n; ++k)
    if (fits(s.at(k))) return s.at(k);
  return s.at(n > 0 ? n - 1 : 0);
}

int search(const Series& s, const std::function<bool(int)>& fits) {
  const int n = s.count();
  if (n <= 0) return s.top;
  if (fits(s.at(0))) return s.at(0);
  // Gallop: indices 1, 2, 4, 8, ... until one fits or the series ends.
  int bad = 0;  // the last index known not to fit
  int good = -1;
  for (int step = 1;; step *= 2) {
    const int k = std::min(bad + step, n - 1);
    if (fits(s.at(k))) {
      good = k;
      break;
    }
    bad = k;
    if (k == n - 1) return s.at(n - 1);  // nothing fits: the last limit
  }
  // Bisect: bad never fits, good does; the answer is the first that does.
  while (good - bad > 1) {
    const int mid = bad + (good - bad) / 2;
    if (fits(s.at(mid)))
      good = mid;
    else
      bad = mid;
  }
  return s.at(good);
}

Fitter::Fitter(Series series, int width, int max_height, QString suffix)
    : series_(series), width_(width), max_height_(max_height), suffix_(std::move(suffix)), label_(new QLabel) {
  label_->setWordWrap(true);
  label_->setFixedWidth(width_);
  label_->setStyleSheet(labelStyleSheet());
  label_->ensurePolished();
}

QString Fitter::labelStyleSheet() {
  return getStyleSheet(QStringLiteral("component.lineedit_label"));
}

Fitter::Fitter(Fitter&&) noexcept = default;
Fitter::~Fitter() = default;

Fitter Fitter::tray() {
  return Fitter({354, 1, 0}, DPIinfo::scaled(177), DPIinfo::scaled(40), QStringLiteral(" ."));
}

Fitter Fitter::activity() {
  // The height limit stays 60: the rows' line height is 20 at any scale.
  return Fitter({1313, 10, 0}, DPIinfo::scaled(441), 60, QString());
}

QString Fitter::labelText(const QString& message) const {
  return tray_text::line_div(message + suffix_);
}

int Fitter::heightOf(const QString& message) {
  auto it = heights_.constFind(message);
  if (it != heights_.constEnd()) return it.value();
  label_->setText(labelText(message));
  const int h = label_->heightForWidth(width_);
  heights_.insert(message, h);
  return h;
}

bool Fitter::fits(const QString& message) {
  return heightOf(message) <= max_height_;
}

Fitter::Result Fitter::fit(const LogEntry& entry) {
  QHash<int, QString> rendered;
  auto render = [&](int limit) -> const QString& {
    auto it = rendered.find(limit);
    if (it == rendered.end()) it = rendered.insert(limit, string_display::render_event_message(entry, true, limit));
    return it.value();
  };
  auto fitsAt = [&](int limit) { return fits(render(limit)); };
  const int limit = search(series_, fitsAt);
  Result r{limit, render(limit)};
  // Layouts are only shared within one entry: the next entry's texts differ.
  heights_.clear();
  return r;
}

Fitter::Result Fitter::fitLinear(const LogEntry& entry) {
  constexpr int kMaxWidth = 1323;  // three lines of 441; the fixed-width labels never reach it
  QString message;
  auto fitsAt = [&](int limit) {
    message = string_display::render_event_message(entry, true, limit);
    label_->setText(labelText(message));
    label_->adjustSize();
    return label_->width() <= kMaxWidth && label_->height() <= max_height_;
  };
  const int limit = linear(series_, fitsAt);
  return {limit, message};
}

}  // namespace event_fit
