#pragma once
// Helpers shared by the logger tests.

#include <string>
#include <vector>

namespace logtest {

std::wstring wide(const std::string& ascii);
// The file's text with a leading byte-order mark dropped and CR LF read as LF
// (a Windows text stream writes both).
std::string read_log(const std::string& path);
std::vector<std::string> split_lines(const std::string& text);
// A regular expression (ECMAScript) for the time stamp that starts every line.
extern const char* const kStampPattern;

}  // namespace logtest
