#include "ui-agent/tray/event-fit.h"

#include <QLabel>

#include <algorithm>
#include <cmath>

#include "ui-agent/core/event-text.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/tray/relative-age.h"
#include "widgets/dpi-info.h"
#include "widgets/style-manager.h"

namespace event_fit {

int linear(const Series& s, const std::function<bool(int)>& fits) {
  const int n = s.count();
  for (int k = 0; k < n; ++k)
    if (fits(s.at(k))) return s.at(k);
  return s.at(n > 0 ? n - 1 : 0);
}

int search(const Series& s, const std::function<bool(int)>& fits, int hint) {
  const int n = s.count();
  if (n <= 0) return s.top;
  if (fits(s.at(0))) return s.at(0);
  if (n == 1) return s.at(0);
  int bad = 0;    // an index known not to fit (the top does not)
  int good = -1;  // an index known to fit
  const int start = std::clamp(hint, 1, n - 1);
  if (fits(s.at(start))) {
    // Gallop back towards the top until a limit does not fit.
    good = start;
    for (int step = 1;; step *= 2) {
      const int k = std::max(good - step, 0);
      if (k == 0) break;  // the top is known not to fit
      if (!fits(s.at(k))) {
        bad = k;
        break;
      }
      good = k;
    }
  } else {
    // Gallop away from the top until a limit fits or the series ends.
    bad = start;
    for (int step = 1;; step *= 2) {
      if (bad == n - 1) return s.at(n - 1);  // nothing fits: the last limit
      const int k = std::min(bad + step, n - 1);
      if (fits(s.at(k))) {
        good = k;
        break;
      }
      bad = k;
    }
  }
  // Bisect: bad does not fit, good does; the answer is the first that does.
  while (good - bad > 1) {
    const int mid = bad + (good - bad) / 2;
    if (fits(s.at(mid)))
      good = mid;
    else
      bad = mid;
  }
  return s.at(good);
}

Fitter::Fitter(Series series, int width, int max_width, int max_height, QString suffix, Measure measure)
    : series_(series),
      width_(width),
      max_width_(max_width),
      max_height_(max_height),
      suffix_(std::move(suffix)),
      measure_(measure),
      label_(new QLabel) {
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

namespace {
// The series goes on below 0 until a text fits: a text with a link carries a
// markup allowance of up to a few thousand pixels, so limits far below 0
// still show words. At this floor every rendering is its ellipsis alone.
constexpr int kFloor = -20000;
}  // namespace

Fitter Fitter::tray() {
  const int width = DPIinfo::scaled(177);
  return Fitter({354, 1, kFloor}, width, width, DPIinfo::scaled(40), QStringLiteral(" ."),
                Measure::HeightForWidth);
}

Fitter Fitter::activity() {
  // Three lines of 441 wide; the height limit stays 60: the rows' line
  // height is 20 at any scale.
  return Fitter({1313, 10, kFloor}, DPIinfo::scaled(441), 1323, 60, QString(), Measure::AdjustSize);
}

QString Fitter::labelText(const QString& message) const {
  return relative_age::line_div(message + suffix_);
}

QSize Fitter::measure(const QString& message) {
  label_->setText(labelText(message));
  if (measure_ == Measure::AdjustSize) {
    label_->adjustSize();
    return label_->size();
  }
  return QSize(width_, label_->heightForWidth(width_));
}

QSize Fitter::sizeOf(const QString& message) {
  auto it = sizes_.constFind(message);
  if (it != sizes_.constEnd()) return it.value();
  const QSize size = measure(message);
  sizes_.insert(message, size);
  return size;
}

bool Fitter::fits(const QString& message) {
  return within(sizeOf(message));
}

Fitter::Result Fitter::fit(const LogEntry& entry) {
  QHash<int, QString> rendered;
  auto render = [&](int limit) -> const QString& {
    auto it = rendered.find(limit);
    if (it == rendered.end()) it = rendered.insert(limit, event_text::render(entry, true, limit));
    return it.value();
  };
  auto fitsAt = [&](int limit) { return fits(render(limit)); };
  // The guess: the text's width shrunk by the share of lines that the top
  // text overflows (a text's width is its limit less 20).
  int hint = 1;
  const int top_height = sizeOf(render(series_.top)).height();
  if (top_height > max_height_) {
    const double guess = 20 + (series_.top - 20) * static_cast<double>(max_height_) / top_height;
    hint = static_cast<int>(std::ceil((series_.top - guess) / series_.step));
  }
  const int limit = search(series_, fitsAt, hint);
  const QString& message = render(limit);
  Result r{limit, message, sizeOf(message)};
  // Layouts are only shared within one entry: the next entry's texts differ.
  sizes_.clear();
  return r;
}

Fitter::Result Fitter::fitLinear(const LogEntry& entry) {
  QString message;
  QSize size;
  auto fitsAt = [&](int limit) {
    message = event_text::render(entry, true, limit);
    size = measure(message);
    return within(size);
  };
  const int limit = linear(series_, fitsAt);
  return {limit, message, size};
}

}  // namespace event_fit
