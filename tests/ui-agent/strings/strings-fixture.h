#pragma once
// The two text files beside these tests: every catalogue key named for the
// agent with its English text, and the table of activity event types.

#include <QString>
#include <QStringList>

#include <ostream>
#include <string>
#include <vector>

#include "support/table.h"

namespace strings_fixture {

struct KeyRow {
  QString key;
  QChar check;  // '=', '^', 'L', '*' or '+' (see catalogue-keys.txt)
  QString text;
};
inline void PrintTo(const KeyRow& row, std::ostream* os) {
  *os << row.key.toStdString();
}

struct EventRow {
  quint32 type = 0;
  QString kind;  // "fixed", "named" or "generic"
  QString key;
  QStringList values;  // named kind: members in the order they are supplied; "-" a fixed value
};
inline void PrintTo(const EventRow& row, std::ostream* os) {
  *os << row.type << " " << row.key.toStdString();
}

// The tab-separated columns of every data line of a fixture file.
inline std::vector<QStringList> columns(const char* name, int count) {
  std::vector<QStringList> rows;
  for (const nimbra_test::TableRow& row :
       nimbra_test::read_table(std::string("ui-agent/strings/") + name, static_cast<std::size_t>(count))) {
    QStringList cells;
    for (const std::string& cell : row.cells) cells << QString::fromStdString(cell);
    rows.push_back(cells);
  }
  return rows;
}

inline std::vector<KeyRow> key_rows() {
  std::vector<KeyRow> rows;
  for (const QStringList& c : columns("catalogue-keys.txt", 3))
    rows.push_back({c[0], c[1].at(0), QString(c[2]).replace(QLatin1String("\\u00a0"), QChar(0x00a0))});
  return rows;
}

inline std::vector<EventRow> event_rows(const QString& kind) {
  std::vector<EventRow> rows;
  for (const QStringList& c : columns("event-types.txt", 4)) {
    if (c[1] != kind) continue;
    rows.push_back(
        {c[0].toUInt(), c[1], c[2], c[3].isEmpty() ? QStringList() : c[3].split(QLatin1Char(','))});
  }
  return rows;
}

}  // namespace strings_fixture
