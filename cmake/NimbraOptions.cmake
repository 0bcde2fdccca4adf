# Compiler flags shared by every target of the project.

add_compile_options(-Wall -Wextra -Wshadow -Wnon-virtual-dtor -Wcast-align
                    -Wunused -Woverloaded-virtual -Wnull-dereference
                    -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough)
if(NIMBRA_WERROR)
  add_compile_options(-Werror)
endif()

if(NIMBRA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
  # gcc 12 reports false "may be used uninitialized" warnings in libstdc++
  # (std::regex, std::function) once the sanitizers' instrumentation is in.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

if(NOT WIN32)
  # backtrace_symbols() needs the symbols in the dynamic table.
  add_link_options(-rdynamic)
endif()

if(WIN32)
  # Wine's dbghelp reads DWARF 4, not gcc 12's default DWARF 5.
  add_compile_options(-gdwarf-4)
  add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
endif()

find_program(NIMBRA_CCACHE ccache)
if(NIMBRA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${NIMBRA_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${NIMBRA_CCACHE})
endif()

# Platform twins: a source "x.cpp" may have "x-posix.cpp" / "x-windows.cpp"
# beside it; nimbra_platform_sources(out a b ...) picks the right ones.
function(nimbra_platform_sources out)
  set(result)
  foreach(base IN LISTS ARGN)
    if(WIN32)
      list(APPEND result ${base}-windows.cpp)
    else()
      list(APPEND result ${base}-posix.cpp)
    endif()
  endforeach()
  set(${out} ${result} PARENT_SCOPE)
endfunction()
