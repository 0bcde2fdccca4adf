// Stack capture with glibc's backtrace(); the executables are linked with
// -rdynamic so that dladdr() and backtrace_symbols() see their own symbols.
#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>

#include "vantor-core/lib/exception.h"

namespace ravel::exception {
namespace {

constexpr int kMaxFrames = 100;

struct FreeDeleter {
  void operator()(void* p) const { std::free(p); }
};

// The symbol's name (demangled when it is a C++ name) and its address; falls
// back to backtrace_symbols()' text and the frame address itself.
void describe(void* frame, const char* fallback, std::string& name, std::uint64_t& address) {
  Dl_info info{};
  if (::dladdr(frame, &info) != 0 && info.dli_sname) {
    int status = 0;
    std::unique_ptr<char, FreeDeleter> demangled(
        abi::__cxa_demangle(info.dli_sname, nullptr, nullptr, &status));
    name = status == 0 && demangled ? demangled.get() : info.dli_sname;
    address = reinterpret_cast<std::uintptr_t>(info.dli_saddr);
    return;
  }
  name = fallback ? fallback : "?";
  address = reinterpret_cast<std::uintptr_t>(frame);
}

}  // namespace

std::vector<std::string> capture_stack() {
  std::vector<std::string> lines;
  void* frames[kMaxFrames];
  const int count = ::backtrace(frames, kMaxFrames);
  if (count <= 0) return lines;
  // The symbol texts play the part of the symbol record: without them there
  // is no stack.
  std::unique_ptr<char*, FreeDeleter> symbols(::backtrace_symbols(frames, count));
  if (!symbols) return lines;
  try {
    lines.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      std::string name;
      std::uint64_t address = 0;
      describe(frames[i], symbols.get()[i], name, address);
      char line[1024];
      std::snprintf(line, sizeof line, "%i: %s [0x%0" PRIX64 "] \n", count - i - 1, name.c_str(), address);
      lines.emplace_back(line);
    }
  } catch (const std::bad_alloc&) {
    // Keep the lines gathered so far.
  }
  return lines;
}

}  // namespace ravel::exception
