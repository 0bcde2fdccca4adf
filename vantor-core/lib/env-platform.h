#pragma once
// The few system calls under env.cpp; env-posix.cpp and env-windows.cpp
// implement them.

#include <cstdint>
#include <string>

namespace vantor::platform {

// The value of an environment variable; false when it is not set.
bool get_env(const wchar_t* name, std::wstring& value);
// The separator put between the application-data folder and the agent's folder.
wchar_t separator();
// The OS error as the translation table knows it: a Windows error code on
// Windows; on POSIX errno, whose values already are errno codes.
std::uint32_t last_error();
void set_last_error(std::uint32_t error);
// Sets errno for the raise from the last OS error and returns it.
int errno_from_last_error(std::uint32_t error);
unsigned process_id();
std::string to_utf8(const std::wstring& text);

}  // namespace vantor::platform
