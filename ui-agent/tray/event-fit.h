#pragma once
// Fitting an activity event into a fixed number of lines.
//
// An event's rich message is elided to a width limit (event_text::render);
// a label shows it word-wrapped. The text shown is the
// one rendered at the first limit of a descending series, from the top,
// whose label is low enough: limits 354, 353, ... for the pop-up's two
// lines of 177, and 1313, 1303, ... for the activity dialog's three lines of
// 441, going on below 0 until one fits (a text with a link is granted its
// markup's width on top of the limit).
//
// Walking the series one limit at a time lays out hundreds of texts for one
// label. The answer does not need that: a lower limit never gives a longer
// text, and a shorter text never needs more lines, so "fits" turns from
// false to true once along the series. search() finds that point by
// galloping from a guess (the share of the lines that the top text
// overflows) and bisecting the last step, and lays out each distinct elided
// text once, so its cost grows with the logarithm of the guess's error. linear() is the plain walk, kept as
// the reference the tests and the benchmark compare with.

#include <QHash>
#include <QSize>
#include <QString>
#include <memory>

#include <functional>

#include "ui-agent/core/log-entry.h"

class QLabel;

namespace event_fit {

// The limits top, top - step, ... down to no lower than `floor`.
struct Series {
  int top;
  int step;
  int floor;
  int count() const { return top < floor ? 0 : (top - floor) / step + 1; }
  int at(int k) const { return top - k * step; }
};

// The first limit of `s` (from the top) for which `fits` holds; the last
// limit of the series when none does.
int linear(const Series& s, const std::function<bool(int)>& fits);
// The same limit, for a `fits` that turns true once along the series, with
// O(log distance) calls of `fits`. After the top, the search starts at the
// index `hint` (a guess of the answer) and gallops from there: towards the
// top while limits fit, away from it while they do not; then it bisects the
// last step. Any hint gives the same answer; a good one saves calls.
int search(const Series& s, const std::function<bool(int)>& fits, int hint = 1);

// A scratch label that measures rendered messages the way the pop-up or
// the activity dialog shows them. GUI thread only.
class Fitter {
 public:
  // The pop-up's latest-event label: 177 wide, at most 40 high (both
  // scaled), the message tested with " ." after it.
  static Fitter tray();
  // An activity row: 441 wide (scaled), at most 60 high (not scaled).
  static Fitter activity();

  Fitter(Fitter&&) noexcept;
  ~Fitter();

  // The style sheet of the labels that show the messages (and of the
  // scratch label, so that both lay out alike).
  static QString labelStyleSheet();

  const Series& series() const { return series_; }
  // The text the label is given for a rendered message.
  QString labelText(const QString& message) const;
  // Whether a rendered message fits (its layout is remembered by text).
  bool fits(const QString& message);
  // The size the scratch label takes for a rendered message.
  QSize sizeOf(const QString& message);

  struct Result {
    int limit;
    QString message;  // rendered at `limit`
    QSize size;       // the label's size for it
  };
  // The fitting limit and its message, found by search().
  Result fit(const LogEntry& entry);
  // The same, by the plain walk: every limit rendered and measured, nothing
  // remembered. The reference.
  Result fitLinear(const LogEntry& entry);
  // Drops the remembered layouts.
  void clear() { sizes_.clear(); }

 private:
  // How a text is measured: the pop-up asks the label's height for its
  // width; the activity dialog resizes the label to its contents (as its
  // rows are built), which measures a text with an over-long word at the
  // label's preferred width.
  enum class Measure { HeightForWidth, AdjustSize };
  Fitter(Series series, int width, int max_width, int max_height, QString suffix, Measure measure);
  QSize measure(const QString& message);
  bool within(QSize size) const { return size.width() <= max_width_ && size.height() <= max_height_; }

  Series series_;
  int width_;
  int max_width_;
  int max_height_;
  QString suffix_;
  Measure measure_;
  std::unique_ptr<QLabel> label_;
  QHash<QString, QSize> sizes_;
};

}  // namespace event_fit
