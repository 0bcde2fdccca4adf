#pragma once
// Translation of Windows error codes (GetLastError) into the errno-style codes
// (Microsoft C runtime numbering) that select a ravel::exception class.

#include <cstdint>

namespace ravel::exception {

// The code for `win_error`; 40 for a code the table does not know.
int errno_from_win_error(std::uint32_t win_error);

// Sets the calling thread's errno from `win_error` and returns the new value.
// Called just before a raise, which then picks its class from errno.
int translate_win_error(std::uint32_t win_error);

}  // namespace ravel::exception
