#include "strings-fixture.h"

#include <QFile>

#include <stdexcept>

namespace strings_fixture {
namespace {

QStringList data_lines(const char* name) {
  QFile file(QStringLiteral(NIMBRA_STRINGS_FIXTURE_DIR "/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(std::string("missing fixture ") + name);
  QStringList lines;
  for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
    if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
    lines.append(line);
  }
  return lines;
}

}  // namespace

std::vector<KeyRow> key_rows() {
  std::vector<KeyRow> rows;
  for (const QString& line : data_lines("catalogue-keys.txt")) {
    const QStringList cols = line.split(QLatin1Char('\t'));
    if (cols.size() != 3 || cols[1].size() != 1) throw std::runtime_error("bad catalogue fixture line");
    QString text = cols[2];
    text.replace(QLatin1String("\\u00a0"), QString(QChar(0x00a0)));
    rows.push_back({cols[0], cols[1].at(0), text});
  }
  return rows;
}

std::vector<EventRow> event_rows(const QString& kind) {
  std::vector<EventRow> rows;
  for (const QString& line : data_lines("event-types.txt")) {
    const QStringList cols = line.split(QLatin1Char('\t'));
    if (cols.size() != 4) throw std::runtime_error("bad event fixture line");
    if (!kind.isEmpty() && cols[1] != kind) continue;
    EventRow row;
    row.type = cols[0].toUInt();
    row.kind = cols[1];
    row.key = cols[2];
    if (!cols[3].isEmpty()) row.values = cols[3].split(QLatin1Char(','));
    rows.push_back(row);
  }
  return rows;
}

}  // namespace strings_fixture
