# libFuzzer target for the frame reader (clang only; scripts/fuzz builds it
# with the whole tree instrumented).
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  add_executable(ipc_frame_reader_fuzz ${CMAKE_CURRENT_LIST_DIR}/frame-reader-fuzz.cpp)
  target_link_libraries(ipc_frame_reader_fuzz PRIVATE ipc)
  target_compile_options(ipc_frame_reader_fuzz PRIVATE -fsanitize=fuzzer)
  target_link_options(ipc_frame_reader_fuzz PRIVATE -fsanitize=fuzzer)
  set_target_properties(ipc_frame_reader_fuzz PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/fuzz/bin)
else()
  message(WARNING "NIMBRA_FUZZ needs clang; the fuzz targets are skipped")
endif()
