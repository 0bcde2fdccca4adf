// Stack capture with the debug help library: every captured return address is
// looked up with SymFromAddr.
#include <windows.h>

#include <dbghelp.h>

#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include "vantor-core/lib/exception.h"

namespace ravel::exception {
namespace {

constexpr ULONG kMaxFrames = 100;
constexpr DWORD kMaxName = 255;

}  // namespace

std::vector<std::string> capture_stack() {
  std::vector<std::string> lines;
  HANDLE process = ::GetCurrentProcess();
  // A second initialisation in the same process fails harmlessly; the
  // handler set up by the first one stays usable.
  ::SymInitialize(process, nullptr, TRUE);

  void* frames[kMaxFrames] = {};
  USHORT captured = ::RtlCaptureStackBackTrace(0, kMaxFrames, frames, nullptr);
  // Some implementations report entries past the thread's start as null
  // addresses: the stack ends at the first of them.
  USHORT count = 0;
  while (count < captured && frames[count] != nullptr) ++count;

  auto* symbol =
      static_cast<SYMBOL_INFO*>(std::calloc(sizeof(SYMBOL_INFO) + (kMaxName + 1) * sizeof(char), 1));
  if (!symbol) return lines;
  symbol->MaxNameLen = kMaxName;
  symbol->SizeOfStruct = sizeof(SYMBOL_INFO);
  try {
    lines.reserve(count);
    for (USHORT i = 0; i < count; ++i) {
      const char* name = "?";
      DWORD64 address = reinterpret_cast<DWORD64>(frames[i]);
      if (::SymFromAddr(process, reinterpret_cast<DWORD64>(frames[i]), nullptr, symbol)) {
        name = symbol->Name;
        address = symbol->Address;
      }
      char line[1024];
      // The Microsoft runtime's own formatter, which reads the I64 size prefix.
      ::sprintf_s(line, sizeof line, "%i: %s [0x%0I64X] \n", static_cast<int>(count - i - 1), name, address);
      lines.emplace_back(line);
    }
  } catch (const std::bad_alloc&) {
    // Keep the lines gathered so far.
  }
  std::free(symbol);
  return lines;
}

}  // namespace ravel::exception
