# Cross-compiling for 64-bit Windows with Debian's mingw-w64 (posix threads),
# as scripts/check-windows does. Executables are linked statically so that
# they run under Wine without the mingw runtime DLLs, and run through Wine
# wherever CMake or CTest needs to start them (test discovery, ctest), through
# wine-run, which tries again a start that Wine failed before the program ran.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
# Qt for Windows (scripts/lib/build-qt-windows.sh prints its prefix): its
# packages are found like the system's, under the find root.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES NIMBRA_QT_WINDOWS_PREFIX)
if(NIMBRA_QT_WINDOWS_PREFIX)
  list(APPEND CMAKE_FIND_ROOT_PATH ${NIMBRA_QT_WINDOWS_PREFIX})
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine-run)
