#pragma once
// The two text files beside these tests: every catalogue key named for the
// agent with its English text, and the table of activity event types.

#include <QString>
#include <QStringList>

#include <ostream>
#include <vector>

namespace strings_fixture {

struct KeyRow {
  QString key;
  QChar check;  // '=', '^', 'L', '*' or '+' (see catalogue-keys.txt)
  QString text;
};
std::vector<KeyRow> key_rows();
inline void PrintTo(const KeyRow& row, std::ostream* os) {
  *os << row.key.toStdString();
}

struct EventRow {
  quint32 type = 0;
  QString kind;  // "fixed", "named" or "generic"
  QString key;
  QStringList values;  // named kind: members in the order they are supplied; "-" a fixed value
};
std::vector<EventRow> event_rows(const QString& kind = QString());
inline void PrintTo(const EventRow& row, std::ostream* os) {
  *os << row.type << " " << row.key.toStdString();
}

}  // namespace strings_fixture
