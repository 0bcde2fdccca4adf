#pragma once
// Tables of test cases kept as data: tab-separated text files beside the
// tests, one case per line, read by one parameterised test per table.
//
// Blank lines and lines starting with '#' are skipped. Cells are separated by
// one tab each and taken as written; `unescape` turns "\n", "\t" and "\\"
// into their characters where a test needs them.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace nimbra_test {

struct TableRow {
  std::string file;  // the file's name, for messages
  int line = 0;      // 1-based
  std::vector<std::string> cells;

  const std::string& operator[](std::size_t i) const { return cells.at(i); }
};
void PrintTo(const TableRow& row, std::ostream* os);

// The rows of `name` (a path relative to the tests' source folder), each
// with exactly `columns` cells; a missing file or a malformed line throws,
// so a broken table fails the test executable loudly instead of testing less.
std::vector<TableRow> read_table(const std::string& name, std::size_t columns);

// "\n", "\t" and "\\" as their characters; other text unchanged.
std::string unescape(const std::string& cell);

// Case names "line_12" for GoogleTest.
std::string row_name(const ::testing::TestParamInfo<TableRow>& info);

// The rows of a table as the parameters of a test suite.
#define NIMBRA_TABLE_SUITE(suite, file, columns)                                                        \
  INSTANTIATE_TEST_SUITE_P(Table, suite, ::testing::ValuesIn(::nimbra_test::read_table(file, columns)), \
                           ::nimbra_test::row_name)

}  // namespace nimbra_test
