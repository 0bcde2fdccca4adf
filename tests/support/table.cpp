#include "tests/support/table.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace nimbra_test {

void PrintTo(const TableRow& row, std::ostream* os) {
  *os << row.file << ":" << row.line << ":";
  for (const std::string& cell : row.cells) *os << " [" << cell << "]";
}

std::vector<TableRow> read_table(const std::string& name, std::size_t columns) {
  const std::string path = std::string(NIMBRA_TEST_DATA_DIR) + "/" + name;
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("missing test table " + path);
  std::vector<TableRow> rows;
  std::string text;
  for (int line = 1; std::getline(in, text); ++line) {
    if (!text.empty() && text.back() == '\r') text.pop_back();
    if (text.empty() || text[0] == '#') continue;
    TableRow row{name, line, {}};
    std::size_t start = 0;
    for (std::size_t tab; (tab = text.find('\t', start)) != std::string::npos; start = tab + 1)
      row.cells.push_back(text.substr(start, tab - start));
    row.cells.push_back(text.substr(start));
    if (row.cells.size() != columns) {
      std::ostringstream message;
      message << name << ":" << line << ": " << row.cells.size() << " cells, the table has " << columns;
      throw std::runtime_error(message.str());
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string unescape(const std::string& cell) {
  std::string out;
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] == '\\' && i + 1 < cell.size()) {
      const char next = cell[i + 1];
      if (next == 'n' || next == 't' || next == '\\') {
        out += next == 'n' ? '\n' : next == 't' ? '\t' : '\\';
        ++i;
        continue;
      }
    }
    out += cell[i];
  }
  return out;
}

std::string row_name(const ::testing::TestParamInfo<TableRow>& info) {
  return "line_" + std::to_string(info.param.line);
}

}  // namespace nimbra_test
