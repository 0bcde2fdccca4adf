#include "ui-agent/core/answer-limits.h"

namespace answer_limits {

Cap for_action(const std::string& action) {
  // The poll's answer carries up to 100 activity entries; the site list a
  // few dozen sites; everything else a handful of members.
  if (action == "get_status") return Cap{std::size_t{2} << 20, 100000};
  if (action == "get_site_info") return Cap{std::size_t{1} << 20, 50000};
  return Cap{std::size_t{256} << 10, 10000};
}

std::size_t count_elements(const std::string& text, std::size_t stop_after) {
  std::size_t count = 0;
  bool in_string = false;
  bool escaped = false;
  for (const char c : text) {
    if (in_string) {
      if (escaped)
        escaped = false;
      else if (c == '\\')
        escaped = true;
      else if (c == '"')
        in_string = false;
      continue;
    }
    if (c == '"') {
      in_string = true;
    } else if (c == ',' || c == '[' || c == '{') {
      if (++count > stop_after) break;
    }
  }
  return count;
}

}  // namespace answer_limits
