#include "notifier/notifier-args.h"

#include <limits>

namespace notifier {
namespace {

constexpr int kFixedArguments = 3;  // version, site path, count
constexpr int kPerElement = 4;      // title, text, button, action type

ParseResult failure(const QString& why) {
  ParseResult r;
  r.error = why;
  return r;
}

QString quoted(const QString& s) {
  // Long or multi-line arguments would make the one error line unreadable.
  QString shown = s.left(40);
  shown.replace('\n', ' ');
  return "'" + shown + (s.size() > 40 ? "...'" : "'");
}

}  // namespace

bool parse_decimal_int(const QString& text, int& out) {
  if (text.isEmpty() || text.size() > 11) return false;
  int i = 0;
  bool negative = false;
  if (text[0] == '-' || text[0] == '+') {
    negative = text[0] == '-';
    i = 1;
    if (text.size() == 1) return false;
  }
  qint64 value = 0;
  for (; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c < '0' || c > '9') return false;
    value = value * 10 + (c.unicode() - '0');
  }
  if (negative) value = -value;
  if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) return false;
  out = static_cast<int>(value);
  return true;
}

ParseResult parse_notifier_args(const QStringList& args) {
  if (args.size() < kFixedArguments)
    return failure(QString("expected at least %1 arguments (version, site path, count), got %2")
                       .arg(kFixedArguments)
                       .arg(args.size()));
  if (args[0] != kArgumentsVersion)
    return failure(QString("unsupported argument layout %1 (this notifier reads %2)")
                       .arg(quoted(args[0]), kArgumentsVersion));
  int count = 0;
  if (!parse_decimal_int(args[2], count) || count < 0)
    return failure(QString("the notification count %1 is not a number of 0 or more").arg(quoted(args[2])));
  const qint64 expected = qint64(kFixedArguments) + qint64(count) * kPerElement;
  if (args.size() != expected)
    return failure(QString("%1 notifications need %2 arguments after the count, got %3")
                       .arg(count)
                       .arg(qint64(count) * kPerElement)
                       .arg(args.size() - kFixedArguments));

  ParseResult r;
  r.request.site_path = args[1];
  r.request.elements.reserve(static_cast<std::size_t>(count));
  for (int e = 0; e < count; ++e) {
    const int at = kFixedArguments + e * kPerElement;
    NotificationElement el;
    el.title = args[at];
    el.text = args[at + 1];
    el.button = args[at + 2];
    if (!parse_decimal_int(args[at + 3], el.action_type))
      return failure(QString("the action type of notification %1 is not a number: %2")
                         .arg(e + 1)
                         .arg(quoted(args[at + 3])));
    r.request.elements.push_back(el);
  }
  r.ok = true;
  return r;
}

}  // namespace notifier
