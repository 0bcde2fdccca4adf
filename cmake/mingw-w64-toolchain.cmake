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
# No interprocedural register allocation. With it, GCC lets a caller keep
# values in call-clobbered registers across a call to an inline function or
# template whose own copy it has just compiled and seen leave them alone. On
# Windows such functions are COMDATs, and the linker keeps one copy of each,
# often another object's, compiled elsewhere, which may clobber them. Qt's
# static libraries and our objects both carry copies of Qt's templates
# (QList<QObject*>::indexOf, ...), so this broke Qt's own code at random,
# depending on what a program linked. Qt for Windows is built with it too
# (scripts/lib/build-qt-windows.sh).
set(NIMBRA_MINGW_CODEGEN_FLAGS "-fno-ipa-ra")
set(CMAKE_C_FLAGS_INIT "${NIMBRA_MINGW_CODEGEN_FLAGS}")
set(CMAKE_CXX_FLAGS_INIT "${NIMBRA_MINGW_CODEGEN_FLAGS}")
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine-run)
