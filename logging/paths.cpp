#include "logging/paths.h"

#include <vector>

namespace vlog {

std::wstring clean_path(const std::wstring& path) {
  if (path.empty()) return path;
  std::wstring p = path;
  for (auto& c : p)
    if (c == L'\\') c = L'/';
  // Keep a leading "//" (UNC) or "/" root, or a drive letter.
  std::wstring root;
  std::size_t pos = 0;
  if (p.rfind(L"//", 0) == 0) {
    root = L"//";
    pos = 2;
  } else if (p[0] == L'/') {
    root = L"/";
    pos = 1;
  } else if (p.size() >= 2 && p[1] == L':') {
    root = p.substr(0, 2);
    pos = 2;
    if (p.size() > 2 && p[2] == L'/') {
      root += L'/';
      pos = 3;
    }
  }
  std::vector<std::wstring> parts;
  while (pos <= p.size()) {
    std::size_t next = p.find(L'/', pos);
    if (next == std::wstring::npos) next = p.size();
    std::wstring part = p.substr(pos, next - pos);
    if (part.empty() || part == L".") {
      // skip
    } else if (part == L"..") {
      if (!parts.empty() && parts.back() != L"..")
        parts.pop_back();
      else if (root.empty())
        parts.push_back(part);
    } else {
      parts.push_back(part);
    }
    pos = next + 1;
  }
  std::wstring out = root;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i) out += L'/';
    out += parts[i];
  }
  if (out.empty()) out = L".";
  return out;
}

}  // namespace vlog
