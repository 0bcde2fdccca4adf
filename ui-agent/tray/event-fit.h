#pragma once
// Fitting an activity event into a fixed number of lines.
//
// An event's rich message is elided to a width limit (string_display::
// render_event_message); a label shows it word-wrapped. The text shown is the
// one rendered at the first limit of a descending series, from the top,
// whose label is low enough: limits 354, 353, ... for the pop-up's two
// lines of 177, and 1313, 1303, ... for the activity dialog's three lines of
// 441.
//
// Walking the series one limit at a time lays out hundreds of texts for one
// label. The answer does not need that: a lower limit never gives a longer
// text, and a shorter text never needs more lines, so "fits" turns from
// false to true once along the series. search() finds that point by
// galloping down from the top and bisecting the last step, and lays out
// each distinct elided text once, so its cost grows with the logarithm of
// the distance from the top. linear() is the plain walk, kept as the
// reference the tests and the benchmark compare with.

#include <QHash>
#include <memory>
#include <QString>

#include <functional>

#include "core/log-entry.h"

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
// O(log distance) calls of `fits`.
int search(const Series& s, const std::function<bool(int)>& fits);

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
  // The height of the scratch label for a rendered message.
  int heightOf(const QString& message);

  struct Result {
    int limit;
    QString message;  // rendered at `limit`
  };
  // The fitting limit and its message, found by search().
  Result fit(const LogEntry& entry);
  // The same, by the plain walk: every limit rendered, set on the label and
  // the label resized to its contents, nothing remembered. The reference.
  Result fitLinear(const LogEntry& entry);
  // Drops the remembered layouts.
  void clear() { heights_.clear(); }

 private:
  Fitter(Series series, int width, int max_height, QString suffix);

  Series series_;
  int width_;
  int max_height_;
  QString suffix_;
  std::unique_ptr<QLabel> label_;
  QHash<QString, int> heights_;
};

}  // namespace event_fit
