#pragma once
// What one answer of the service may hold, by action. An answer beyond its
// action's cap is refused before it is parsed: parsing a text of small
// elements takes about 50 bytes of memory per byte, so the cap on the text
// alone would still let one answer cost hundreds of megabytes. The caps are
// far above anything a real service sends (a status with its 100 newest
// activity entries is about 20 KB and 2,000 elements).

#include <cstddef>
#include <string>

namespace answer_limits {

struct Cap {
  std::size_t max_bytes;
  std::size_t max_elements;
};

Cap for_action(const std::string& action);

// An upper bound of the number of JSON values in `text` (every comma and
// every opened array or object outside strings counts), counted until it
// passes `stop_after`. Linear, and reads the text only.
std::size_t count_elements(const std::string& text, std::size_t stop_after);

}  // namespace answer_limits
