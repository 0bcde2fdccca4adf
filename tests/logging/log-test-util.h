#pragma once
// Helpers shared by the logger tests.

#include <string>
#include <vector>

#include "tests/support/temp-dir.h"

namespace logtest {

inline std::wstring wide(const std::string& ascii) {
  return std::wstring(ascii.begin(), ascii.end());
}

// The file's text without a leading byte-order mark and with CR LF read as LF
// (a Windows text stream writes both).
inline std::string read_log(const std::string& path) {
  std::string raw = nimbra_test::read_file(path), out;
  if (raw.rfind("\xEF\xBB\xBF", 0) == 0) raw.erase(0, 3);
  for (std::size_t i = 0; i < raw.size(); ++i)
    if (raw[i] != '\r' || i + 1 == raw.size() || raw[i + 1] != '\n') out.push_back(raw[i]);
  return out;
}

inline std::vector<std::string> split_lines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0, end; start < text.size(); start = end + 1) {
    end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(start, end - start));
  }
  return lines;
}

// The time stamp "YYYY/MM/DD hh:mm:ss +hhmm " that starts every line, with a
// numeric offset from UTC on every system.
inline const std::string kStamp = R"(\d{4}/\d{2}/\d{2} \d{2}:\d{2}:\d{2} [+-]\d{4} )";

}  // namespace logtest
