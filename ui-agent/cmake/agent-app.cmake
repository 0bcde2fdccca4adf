# agent_app: start-up (and the controller that start-up creates), and the
# executable nimbra-backup-agent, whose main() only calls start-up.
if(TARGET agent_ui)
  # The screens' platform halves (agent_ui's glob leaves -posix/-windows out).
  nimbra_platform_sources(agent_ui_platform_sources ${CMAKE_CURRENT_SOURCE_DIR}/tray/tray-theme
                          ${CMAKE_CURRENT_SOURCE_DIR}/tray/status-notifier-item
                          ${CMAKE_CURRENT_SOURCE_DIR}/tray/popup-surface)
  target_sources(agent_ui PRIVATE ${agent_ui_platform_sources})
  if(NOT WIN32)
    # The pop-up as a layer surface on Wayland (tray/popup-surface-posix.cpp):
    # a shell integration of our own, compiled in as a static Qt plugin, over
    # Qt's private Wayland client interfaces and LayerShellQt.
    find_package(Qt5WaylandClient 5.15 REQUIRED)
    find_package(LayerShellQt REQUIRED)
    # Qt's Wayland display header also reads the private keyboard-map support.
    list(GET Qt5Core_INCLUDE_DIRS 0 qt_include_root)
    target_include_directories(agent_ui SYSTEM PRIVATE ${Qt5WaylandClient_PRIVATE_INCLUDE_DIRS}
                               ${Qt5Gui_PRIVATE_INCLUDE_DIRS} ${Qt5Core_PRIVATE_INCLUDE_DIRS}
                               ${qt_include_root}/QtXkbCommonSupport/${Qt5Core_VERSION})
    target_link_libraries(agent_ui PRIVATE Qt5::WaylandClient LayerShellQt::Interface)
    set_source_files_properties(${CMAKE_CURRENT_SOURCE_DIR}/tray/popup-surface-posix.cpp
                                PROPERTIES COMPILE_DEFINITIONS QT_STATICPLUGIN)
  endif()
  target_link_libraries(agent_ui PUBLIC agent_platform)
  if(TARGET Qt5::DBus)
    # The panel's colour from the settings portal; the StatusNotifierItem
    # and its menu (com.canonical.dbusmenu, exported by libdbusmenu-qt5).
    find_package(dbusmenu-qt5 CONFIG REQUIRED)
    target_link_libraries(agent_ui PUBLIC Qt5::DBus PRIVATE dbusmenu-qt5)
  endif()

  file(GLOB agent_app_sources CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/agent-app*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/client-manager*.cpp)
  list(FILTER agent_app_sources EXCLUDE REGEX "-(posix|windows)\\.cpp$")
  file(GLOB agent_app_headers CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/agent-app*.h ${CMAKE_CURRENT_SOURCE_DIR}/client-manager*.h)
  set(agent_app_twins agent-app)
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/client-manager-posix.cpp)
    list(APPEND agent_app_twins client-manager)
  endif()
  nimbra_platform_sources(agent_app_platform_sources ${agent_app_twins})
  add_library(agent_app STATIC ${agent_app_sources} ${agent_app_headers} ${agent_app_platform_sources})
  target_include_directories(agent_app PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(agent_app PUBLIC agent_ui agent_platform)
  if(NOT WIN32)
    # Start-up loads the font configuration early (agent-app-posix.cpp).
    find_package(Fontconfig REQUIRED)
    target_link_libraries(agent_app PRIVATE Fontconfig::Fontconfig)
  endif()

  add_executable(nimbra-backup-agent main.cpp)
  target_link_libraries(nimbra-backup-agent PRIVATE agent_app)
  if(WIN32)
    # A static Qt links its default plugins (Windows platform, SVG); the
    # offscreen platform too, as on Linux, for the tests and headless runs
    # (QT_QPA_PLATFORM=offscreen).
    set_property(TARGET nimbra-backup-agent APPEND PROPERTY QT_PLUGINS Qt5::QOffscreenIntegrationPlugin)
  endif()
  install(TARGETS nimbra-backup-agent RUNTIME DESTINATION bin)
endif()
