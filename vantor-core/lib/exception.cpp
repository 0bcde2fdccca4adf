#include "vantor-core/lib/exception.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <new>
#include <utility>

namespace ravel::exception {

std::size_t next_format_buffer(int result, std::size_t current, int error) {
  constexpr std::size_t kUnknownSizeLimit = 64 * 1024;
  if (result < 0) {
    if (error == EILSEQ || current >= kUnknownSizeLimit) return 0;
    return std::min(current * 2, kUnknownSizeLimit);
  }
  const std::size_t want = static_cast<std::size_t>(result) + 1;
  if (want <= current || current >= kMaxFormatBytes) return 0;
  return std::min(want, kMaxFormatBytes);
}

std::string vformat(const char* format, va_list args) {
  if (!format) return std::string();
  std::vector<char> buf(256);
  for (;;) {
    va_list copy;
    va_copy(copy, args);
    errno = 0;
    const int n = std::vsnprintf(buf.data(), buf.size(), format, copy);
    const int error = errno;
    va_end(copy);
    if (n >= 0 && static_cast<std::size_t>(n) < buf.size())
      return std::string(buf.data(), static_cast<std::size_t>(n));
    const std::size_t next = next_format_buffer(n, buf.size(), error);
    if (next == 0) {
      // Keep what was formatted (the runtime may leave the buffer without
      // its terminator after an error).
      buf.back() = '\0';
      return std::string(buf.data());
    }
    buf.assign(next, '\0');
  }
}

std::string format(const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string out = vformat(format, args);
  va_end(args);
  return out;
}

Exception::Exception(Formatted, std::int32_t c) : stack(capture_stack()), code(c), data(Json::objectValue) {}

Exception::Exception(Formatted tag, std::int32_t c, std::string text) : Exception(tag, c) {
  message = std::move(text);
}

Exception::Exception(std::int32_t c, const char* format, ...) : Exception(Formatted{}, c) {
  va_list args;
  va_start(args, format);
  set_message(format, args);
  va_end(args);
}

void Exception::set_message(const char* format, va_list args) {
  message = vformat(format, args);
}

#define RAVEL_EXCEPTION_CTOR(Name)                                                  \
  Name::Name(std::int32_t c, const char* format, ...) : Exception(Formatted{}, c) { \
    va_list args;                                                                   \
    va_start(args, format);                                                         \
    set_message(format, args);                                                      \
    va_end(args);                                                                   \
  }

RAVEL_EXCEPTION_CTOR(NoPerm)
RAVEL_EXCEPTION_CTOR(FileNotExist)
RAVEL_EXCEPTION_CTOR(IOError)
RAVEL_EXCEPTION_CTOR(NoSuchAddress)
RAVEL_EXCEPTION_CTOR(NotFound)
RAVEL_EXCEPTION_CTOR(ResourceBusy)
RAVEL_EXCEPTION_CTOR(FileExist)
RAVEL_EXCEPTION_CTOR(NotDir)
RAVEL_EXCEPTION_CTOR(NoSpace)
RAVEL_EXCEPTION_CTOR(FsReadonly)
RAVEL_EXCEPTION_CTOR(Disconnect)
RAVEL_EXCEPTION_CTOR(Locked)

#undef RAVEL_EXCEPTION_CTOR

void raise_message(std::int32_t code, std::string text) {
  const Formatted f;
  switch (code) {
    case 1:
    case 13:
      throw NoPerm(f, code, std::move(text));
    case 2:
      throw FileNotExist(f, code, std::move(text));
    case 5:
      throw IOError(f, code, std::move(text));
    case 6:
      throw NoSuchAddress(f, code, std::move(text));
    case 10:
      throw NotFound(f, code, std::move(text));
    case 16:
      throw ResourceBusy(f, code, std::move(text));
    case 17:
      throw FileExist(f, code, std::move(text));
    case 20:
      throw NotDir(f, code, std::move(text));
    case 28:
      throw NoSpace(f, code, std::move(text));
    case 30:
      throw FsReadonly(f, code, std::move(text));
    case 32:
    case 107:
    case 108:
      throw Disconnect(f, code, std::move(text));
    case 140:
      throw Locked(f, code, std::move(text));
    default:
      throw Exception(f, code, std::move(text));
  }
}

void raise(std::int32_t code, const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string text = vformat(format, args);
  va_end(args);
  raise_message(code, std::move(text));
}

}  // namespace ravel::exception
