#pragma once
// The error family of the foundation library.
//
// Every class is an `Exception` with nothing of its own but its type; the type
// is chosen from an errno-style code (Microsoft C runtime numbering) by
// `raise`. Each exception records the call stack at the moment it is made.
//
//   ravel::exception::raise(13, "cannot open %s", path);   // throws NoPerm
//
//   try { ... } catch (const ravel::exception::NoPerm& e) {
//     LOG_ERROR(vlog::kDefaultComponent, "%s", e.what());
//   }

#include <json/value.h>

#include <cstdarg>
#include <cstdint>
#include <exception>
#include <string>
#include <vector>

#if defined(__GNUC__)
#define RAVEL_PRINTF_FORMAT(fmt_index, first_arg) __attribute__((format(printf, fmt_index, first_arg)))
#else
#define RAVEL_PRINTF_FORMAT(fmt_index, first_arg)
#endif

namespace ravel::exception {

// Tag for the constructors that take a message already formatted.
struct Formatted {};

class Exception : public std::exception {
 public:
  // Formats the message with printf rules and records the stack.
  Exception(std::int32_t error_code, const char* format, ...) RAVEL_PRINTF_FORMAT(3, 4);
  Exception(Formatted, std::int32_t error_code, std::string text);

  const char* what() const noexcept override { return message.c_str(); }

  std::string message;             // the formatted message
  std::vector<std::string> stack;  // one line per frame, the innermost first, numbered down to 0
  std::int32_t code = 0;           // the errno-style code it was raised with
  Json::Value data;                // extra details for the catcher; an empty object at first

 protected:
  // For the derived classes: records the stack, leaves the message empty.
  Exception(Formatted, std::int32_t error_code);
  void set_message(const char* format, va_list args);
};

// The derived classes add nothing but their type.
#define RAVEL_EXCEPTION_CLASS(Name)                                                   \
  class Name : public Exception {                                                     \
   public:                                                                            \
    Name(std::int32_t error_code, const char* format, ...) RAVEL_PRINTF_FORMAT(3, 4); \
    Name(Formatted tag, std::int32_t error_code, std::string text)                    \
        : Exception(tag, error_code, std::move(text)) {}                              \
  };

RAVEL_EXCEPTION_CLASS(NoPerm)         // 1, 13
RAVEL_EXCEPTION_CLASS(FileNotExist)   // 2
RAVEL_EXCEPTION_CLASS(IOError)        // 5
RAVEL_EXCEPTION_CLASS(NoSuchAddress)  // 6
RAVEL_EXCEPTION_CLASS(NotFound)       // 10
RAVEL_EXCEPTION_CLASS(ResourceBusy)   // 16
RAVEL_EXCEPTION_CLASS(FileExist)      // 17
RAVEL_EXCEPTION_CLASS(NotDir)         // 20
RAVEL_EXCEPTION_CLASS(NoSpace)        // 28
RAVEL_EXCEPTION_CLASS(FsReadonly)     // 30
RAVEL_EXCEPTION_CLASS(Disconnect)     // 32, 107, 108
RAVEL_EXCEPTION_CLASS(Locked)         // 140

#undef RAVEL_EXCEPTION_CLASS

// printf into a buffer that grows until the text fits, up to kMaxFormatBytes
// (a longer text is cut there). A formatting error (an unconvertible wide
// character, say) gives what was formatted before it.
std::string vformat(const char* format, va_list args);
inline constexpr std::size_t kMaxFormatBytes = std::size_t{16} << 20;
// The next buffer size after vsnprintf returned `result` into a buffer of
// `current` bytes with errno `error`; 0 when there is no point in trying
// again. A negative result is an error in C99 runtimes but "too small" in
// some older ones: those get a few doublings up to 64 KiB, never more.
std::size_t next_format_buffer(int result, std::size_t current, int error);
std::string format(const char* format, ...) RAVEL_PRINTF_FORMAT(1, 2);

// Formats the message, picks the class that `code` selects (any code outside
// the table gives Exception itself) and throws it.
[[noreturn]] void raise(std::int32_t error_code, const char* format, ...) RAVEL_PRINTF_FORMAT(2, 3);
// The same with a message already formatted.
[[noreturn]] void raise_message(std::int32_t code, std::string text);

// The call stack of the calling thread, one line per frame in the form
// "%i: %s [0x%0I64X] \n" (number, symbol name, symbol address), the innermost
// frame first and numbered highest, the outermost numbered 0. At most 100
// frames. Empty when the symbol lookup cannot be set up.
std::vector<std::string> capture_stack();

}  // namespace ravel::exception
