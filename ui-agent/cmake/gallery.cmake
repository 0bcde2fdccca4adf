# The screen gallery: every screen of the agent in each of its states,
# rendered offscreen to PNG contact sheets (scripts/gallery builds and runs
# it). Each area adds its own gallery/<area>-gallery.cpp, which registers its
# pages with NIMBRA_GALLERY_AREA.
if(TARGET nimbra_gallery_kit)
  file(GLOB screen_gallery_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/gallery/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/gallery/*.h)
  add_executable(nimbra-screen-gallery EXCLUDE_FROM_ALL ${screen_gallery_sources})
  target_link_libraries(nimbra-screen-gallery PRIVATE nimbra_gallery_kit)
  if(TARGET agent_ui)
    target_link_libraries(nimbra-screen-gallery PRIVATE agent_ui)
  else()
    target_link_libraries(nimbra-screen-gallery PRIVATE agent_core)
  endif()
endif()
