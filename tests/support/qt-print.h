#pragma once
// Lets GoogleTest print Qt strings (test parameters, failed expectations) as
// text instead of as raw bytes.

#include <QString>

#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) {
  *os << '"' << s.toStdString() << '"';
}
