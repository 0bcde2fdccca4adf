# Windows: every program carries the application icon, the application
# manifest (the Windows versions it knows, per-monitor DPI awareness, common
# controls 6) and a version resource. The agent is a GUI program (no console
# window). The icon is made at build time from the same art as the Linux
# icons: the renderer built for the build machine (a cross build cannot run
# its own) draws the PNG sizes, ImageMagick packs them into one .ico.
# Included by packaging/CMakeLists.txt, after every program is defined.

set(NIMBRA_APP_NAME "Nimbra Backup")  # the catalogue's app_name
set(NIMBRA_COMPANY "Corvana Inc.")
set(nimbra_win_dir ${CMAKE_CURRENT_BINARY_DIR}/windows)
set(nimbra_icon_art ${CMAKE_SOURCE_DIR}/resource/images/icon_agent.svg)
set(nimbra_ico ${nimbra_win_dir}/nimbra-backup.ico)
set(nimbra_ico_sizes 16 20 24 32 40 48 64 256)

# --- the icon -------------------------------------------------------------------
find_program(NIMBRA_CONVERT NAMES convert-im6.q16 convert REQUIRED)
if(CMAKE_CROSSCOMPILING)
  find_program(NIMBRA_HOST_CXX NAMES c++ g++ REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  find_program(NIMBRA_PKG_CONFIG NAMES pkg-config REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  execute_process(COMMAND ${NIMBRA_PKG_CONFIG} --cflags --libs Qt5Gui Qt5Svg
                  OUTPUT_VARIABLE host_qt_flags OUTPUT_STRIP_TRAILING_WHITESPACE
                  RESULT_VARIABLE host_qt_result)
  if(NOT host_qt_result EQUAL 0)
    message(FATAL_ERROR "The icon renderer for the build machine needs Qt5Gui and Qt5Svg (scripts/setup)")
  endif()
  separate_arguments(host_qt_flags UNIX_COMMAND "${host_qt_flags}")
  set(icon_render ${nimbra_win_dir}/nimbra-icon-render-host)
  add_custom_command(OUTPUT ${icon_render}
    COMMAND ${NIMBRA_HOST_CXX} -std=c++17 -O1 -fPIC ${CMAKE_SOURCE_DIR}/packaging/icon-render.cpp
            ${host_qt_flags} -o ${icon_render}
    DEPENDS ${CMAKE_SOURCE_DIR}/packaging/icon-render.cpp
    COMMENT "Building the icon renderer for the build machine" VERBATIM)
else()
  add_executable(nimbra-icon-render ${CMAKE_SOURCE_DIR}/packaging/icon-render.cpp)
  target_link_libraries(nimbra-icon-render PRIVATE Qt5::Gui Qt5::Svg)
  set(icon_render $<TARGET_FILE:nimbra-icon-render>)
endif()
set(icon_pngs)
foreach(size IN LISTS nimbra_ico_sizes)
  list(APPEND icon_pngs ${nimbra_win_dir}/icon/${size}x${size}/apps/nimbra-backup-agent.png)
endforeach()
add_custom_command(OUTPUT ${nimbra_ico}
  COMMAND ${icon_render} ${nimbra_icon_art} ${nimbra_win_dir}/icon nimbra-backup-agent ${nimbra_ico_sizes}
  COMMAND ${NIMBRA_CONVERT} ${icon_pngs} ${nimbra_ico}
  DEPENDS ${icon_render} ${nimbra_icon_art}
  COMMENT "Making the application icon (.ico)" VERBATIM)
add_custom_target(nimbra_windows_icon DEPENDS ${nimbra_ico})

# --- per program: manifest, version, icon ---------------------------------------------
string(TIMESTAMP nimbra_year "%Y" UTC)
function(nimbra_windows_program target id description)
  if(NOT TARGET ${target})
    return()
  endif()
  get_target_property(file ${target} OUTPUT_NAME)
  if(NOT file)
    set(file ${target})
  endif()
  set(NIMBRA_RC_NAME "${file}.exe")
  set(NIMBRA_RC_FILE "${file}.exe")
  set(NIMBRA_RC_ID ${id})
  set(NIMBRA_RC_DESCRIPTION "${description}")
  set(NIMBRA_RC_COMPANY "${NIMBRA_COMPANY}")
  set(NIMBRA_RC_YEAR ${nimbra_year})
  set(NIMBRA_RC_ICON ${nimbra_ico})
  set(NIMBRA_RC_MANIFEST ${nimbra_win_dir}/${target}.manifest)
  set(NIMBRA_RC_VERSION_DOTS "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH}.0")
  set(NIMBRA_RC_VERSION_COMMAS "${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0")
  configure_file(${CMAKE_CURRENT_SOURCE_DIR}/windows/app.manifest.in ${NIMBRA_RC_MANIFEST} @ONLY)
  configure_file(${CMAKE_CURRENT_SOURCE_DIR}/windows/program.rc.in ${nimbra_win_dir}/${target}.rc @ONLY)
  set_source_files_properties(${nimbra_win_dir}/${target}.rc TARGET_DIRECTORY ${target} PROPERTIES
                              OBJECT_DEPENDS "${nimbra_ico};${NIMBRA_RC_MANIFEST}")
  target_sources(${target} PRIVATE ${nimbra_win_dir}/${target}.rc)
  add_dependencies(${target} nimbra_windows_icon)
endfunction()

nimbra_windows_program(nimbra-backup-agent Agent "${NIMBRA_APP_NAME}")
nimbra_windows_program(nimbra-service-sim ServiceSimulator "${NIMBRA_APP_NAME} simulated service")
nimbra_windows_program(nimbra-backup-notifier Notifier "${NIMBRA_APP_NAME} notifications")
if(TARGET nimbra-backup-agent)
  set_target_properties(nimbra-backup-agent PROPERTIES WIN32_EXECUTABLE ON)
endif()

# --- the installer (NSIS): `cmake --build <dir> --target windows_installer` ---------
# Lays out the installed tree (cmake --install) in a staging folder and packs
# it into nimbra-backup-setup-<version>.exe.
find_program(NIMBRA_MAKENSIS makensis NO_CMAKE_FIND_ROOT_PATH)
if(NIMBRA_MAKENSIS AND TARGET nimbra-backup-agent AND TARGET nimbra-backup-notifier AND TARGET nimbra-service-sim)
  set(nimbra_stage ${nimbra_win_dir}/stage)
  set(NIMBRA_INSTALLER ${CMAKE_BINARY_DIR}/nimbra-backup-setup-${PROJECT_VERSION}.exe)
  set(NIMBRA_INSTALLER ${NIMBRA_INSTALLER} PARENT_SCOPE)
  add_custom_command(OUTPUT ${NIMBRA_INSTALLER}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${nimbra_stage}
    COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --prefix ${nimbra_stage} --strip
    COMMAND ${NIMBRA_MAKENSIS} -V2 -DVERSION=${PROJECT_VERSION} -DSTAGE=${nimbra_stage} -DICON=${nimbra_ico}
            -DOUTFILE=${NIMBRA_INSTALLER} ${CMAKE_CURRENT_SOURCE_DIR}/windows/installer.nsi
    DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/windows/installer.nsi nimbra-backup-agent nimbra-backup-notifier
            nimbra-service-sim nimbra_resources ${nimbra_ico}
    COMMENT "Building the Windows installer" VERBATIM)
  add_custom_target(windows_installer DEPENDS ${NIMBRA_INSTALLER})
endif()
