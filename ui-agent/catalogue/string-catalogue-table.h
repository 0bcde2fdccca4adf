#pragma once
// The catalogue table as data: one row per Str constant, in order. Only
// string-display.cpp and the tests read it directly; everybody else goes
// through string_display::text().

#include "ui-agent/catalogue/string-catalogue.h"

namespace string_display {

struct CatalogueRow {
  Str row;
  const char* key;     // ASCII key, the enumerator's name
  const char* source;  // English source text, UTF-8, escapes not expanded
};

// kStrCount rows, row i at index i.
const CatalogueRow* catalogue_rows();

}  // namespace string_display
