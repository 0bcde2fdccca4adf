// Catalogue lookup, translations, placeholders and sizes.
#include "ui-agent/core/string-display.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonValue>
#include <QTranslator>

#include <algorithm>
#include <mutex>
#include <vector>

#include "logging/logger.h"
#include "ui-agent/catalogue/string-catalogue-table.h"
#include "widgets/style-manager.h"

// The translations are compiled into a resource of agent_core; the resource
// object is always linked because init_resources() refers to it.
static void nimbra_init_translation_resources() {
  Q_INIT_RESOURCE(nimbra_translations);
}

namespace string_display {
namespace {

constexpr char kContext[] = "global";

// ---- placeholder helpers -----------------------------------------------------

// One {name} of a template: the braces' positions.
struct Placeholder {
  int open;
  int close;
};

// First "{" and first "}" from the current start; stop unless both exist and
// the "}" comes after the "{"; continue after the "}".
std::vector<Placeholder> scan_placeholders(const QString& tmpl) {
  std::vector<Placeholder> found;
  int start = 0;
  for (;;) {
    const int open = tmpl.indexOf(QLatin1Char('{'), start);
    const int close = tmpl.indexOf(QLatin1Char('}'), start);
    if (open < 0 || close < 0 || close < open) break;
    found.push_back({open, close});
    start = close + 1;
  }
  return found;
}

QString json_value_text(const QJsonValue& v) {
  switch (v.type()) {
    case QJsonValue::String:
      return v.toString();
    case QJsonValue::Bool:
      return v.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QJsonValue::Double:
      return QString::number(v.toDouble(), 'g', 6);
    default:
      return QString();
  }
}

}  // namespace

// ---- placeholders with their places ------------------------------------------

QString fill_placeholders(const QString& tmpl, const QJsonObject& values, std::vector<Span>& spans) {
  const std::vector<Placeholder> found = scan_placeholders(tmpl);
  QString out;
  out.reserve(tmpl.size() + 16 * static_cast<int>(found.size()));
  int pos = 0;
  for (const Placeholder& p : found) {
    out.append(tmpl.midRef(pos, p.open - pos));
    const QString value = json_value_text(values.value(tmpl.mid(p.open + 1, p.close - p.open - 1)));
    spans.push_back({out.size(), value.size()});
    out.append(value);
    pos = p.close + 1;
  }
  out.append(tmpl.midRef(pos));
  return out;
}

QString wrap_bold(const QString& text, const std::vector<Span>& spans, int visible, bool whole) {
  QString out;
  out.reserve(text.size() + 7 * static_cast<int>(spans.size()));
  int pos = 0;
  for (const Span& s : spans) {
    const bool present = s.start < visible || (whole && s.start <= visible);
    if (!present) break;
    const int end = std::min(s.start + s.length, visible);
    out.append(text.midRef(pos, s.start - pos));
    out.append(QLatin1String("<b>"));
    // A value is text, never markup: it comes from the service.
    out.append(text.mid(s.start, end - s.start).toHtmlEscaped());
    out.append(QLatin1String("</b>"));
    pos = end;
  }
  out.append(text.midRef(pos));
  return out;
}

// ---- catalogue -------------------------------------------------------------------

QString expand_escapes(QString text) {
  text.replace(QLatin1String("\\n"), QLatin1String("\n"));
  text.replace(QLatin1String("\\t"), QLatin1String("\t"));
  return text;
}

QString text(Str row) {
  const int index = static_cast<int>(row);
  if (index < 0 || index >= kStrCount) {
    LOG_WARN(vlog::kDefaultComponent, "no catalogue row %d", index);
    return QString();
  }
  const QString out = expand_escapes(QCoreApplication::translate(kContext, catalogue_rows()[index].source));
  // The high-contrast look also recolours the links and values a text colours itself.
  const StyleManager* styles = StyleManager::getInstance();
  return styles->highContrast() ? high_contrast::apply(out, styles->palette()) : out;
}

QString key(Str row) {
  const int index = static_cast<int>(row);
  if (index < 0 || index >= kStrCount) return QString();
  return QString::fromLatin1(catalogue_rows()[index].key);
}

QString source_text(Str row) {
  const int index = static_cast<int>(row);
  if (index < 0 || index >= kStrCount) return QString();
  return QString::fromUtf8(catalogue_rows()[index].source);
}

std::optional<Str> find_row(const QString& key) {
  static const QHash<QString, Str> by_key = [] {
    QHash<QString, Str> map;
    map.reserve(kStrCount);
    for (int i = 0; i < kStrCount; ++i) map.insert(QString::fromLatin1(catalogue_rows()[i].key), Str(i));
    return map;
  }();
  const auto it = by_key.constFind(key);
  if (it == by_key.constEnd()) return std::nullopt;
  return *it;
}

QString text_by_key(const QString& key) {
  const std::optional<Str> row = find_row(key);
  if (!row) {
    LOG_WARN(vlog::kDefaultComponent, "no catalogue text for key '%s'", key.toUtf8().constData());
    return QString();
  }
  return text(*row);
}

// ---- translations --------------------------------------------------------------------

QStringList translation_languages() {
  // From resource/translations/languages.txt, by ui-agent/core/translations.cmake.
  return QString::fromLatin1(NIMBRA_TRANSLATION_LANGUAGES).split(QLatin1Char(','));
}

QString translation_resource(const QString& language) {
  return QStringLiteral(":/") + language + QStringLiteral(".qm");
}

void init_resources() {
  static std::once_flag once;
  std::call_once(once, [] { nimbra_init_translation_resources(); });
}

bool load_translation(QTranslator& translator, const QString& language) {
  init_resources();
  const QString resource = translation_resource(language);
  if (translator.load(resource)) return true;
  LOG_WARN(vlog::kDefaultComponent, "cannot load translation %s", resource.toUtf8().constData());
  return false;
}

// ---- placeholders and sizes ------------------------------------------------------------

QString expand_placeholders(const QString& tmpl, const QJsonObject& values) {
  std::vector<Span> spans;
  const QString filled = fill_placeholders(tmpl, values, spans);
  return wrap_bold(filled, spans, filled.size(), true);
}

SizeText format_size(quint64 bytes, bool decimal) {
  const quint64 b = decimal ? 1000 : 1024;
  const double bd = static_cast<double>(b);
  const double value = static_cast<double>(bytes);
  auto number = [](double x) { return QString::number(x, 'g', 3); };
  // Past 1000 TB the units go on (PB, EB), so that no amount up to 2^64
  // shows in exponent notation.
  if (bytes >= b * b * b * b * b * 1000)
    return {number(value / (bd * bd * bd * bd * bd * bd)), QStringLiteral("EB")};
  if (bytes >= b * b * b * b * 1000) return {number(value / (bd * bd * bd * bd * bd)), QStringLiteral("PB")};
  if (bytes >= b * b * b * 1000) return {number(value / (bd * bd * bd * bd)), QStringLiteral("TB")};
  if (bytes >= b * b * 1000) return {number(value / (bd * bd * bd)), QStringLiteral("GB")};
  if (bytes >= b * 1000) return {number(value / (bd * bd)), QStringLiteral("MB")};
  if (bytes < 1000) return {QString::number(bytes), QStringLiteral("Bytes")};
  return {number(value / bd), QStringLiteral("KB")};
}

QString format_size_text(quint64 bytes, bool decimal) {
  const SizeText size = format_size(bytes, decimal);
  return size.number + QLatin1Char(' ') + size.unit;
}

}  // namespace string_display
