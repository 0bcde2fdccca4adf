#include "log-test-util.h"

#include "support/temp-dir.h"

namespace logtest {

// "%Y/%m/%d %H:%M:%S %z ": the zone is a numeric offset with glibc and a zone
// name with the Windows C runtime.
const char* const kStampPattern =
    R"(\d{4}/\d{2}/\d{2} \d{2}:\d{2}:\d{2} (?:[+-]\d{4}|[A-Za-z][A-Za-z ()._-]*) )";

std::wstring wide(const std::string& ascii) {
  return std::wstring(ascii.begin(), ascii.end());
}

std::string read_log(const std::string& path) {
  std::string raw = nimbra_test::read_file(path);
  if (raw.rfind("\xEF\xBB\xBF", 0) == 0) raw.erase(0, 3);
  std::string out;
  out.reserve(raw.size());
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] == '\r' && i + 1 < raw.size() && raw[i + 1] == '\n') continue;
    out.push_back(raw[i]);
  }
  return out;
}

std::vector<std::string> split_lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

}  // namespace logtest
