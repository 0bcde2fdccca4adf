# Translations of the agent's texts.
#
# resource/translations/<lang>.ts (refreshed from the sources by
# scripts/translations, or `cmake --build <dir> --target translations_update`)
# are compiled by lrelease into <lang>.qm at build time and embedded into
# agent_core as the Qt resources ":/<lang>.qm" that start-up loads.

set(nimbra_ts_dir ${CMAKE_SOURCE_DIR}/resource/translations)

# The languages: resource/translations/languages.txt ("<code> <locale>" lines)
# is the one list; the agent gets it as NIMBRA_TRANSLATION_LANGUAGES
# ("ger,fre,..."), and every listed language has its .ts file and no other.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${nimbra_ts_dir}/languages.txt)
file(STRINGS ${nimbra_ts_dir}/languages.txt nimbra_language_lines REGEX "^[a-z][a-z][a-z][ \t]")
set(NIMBRA_LANGUAGES)
foreach(line IN LISTS nimbra_language_lines)
  string(SUBSTRING "${line}" 0 3 lang)
  list(APPEND NIMBRA_LANGUAGES ${lang})
endforeach()
file(GLOB nimbra_ts_present RELATIVE ${nimbra_ts_dir} CONFIGURE_DEPENDS ${nimbra_ts_dir}/*.ts)
list(TRANSFORM nimbra_ts_present REPLACE "\\.ts$" "")
set(nimbra_ts_expected ${NIMBRA_LANGUAGES})
list(SORT nimbra_ts_present)
list(SORT nimbra_ts_expected)
if(NOT nimbra_ts_present STREQUAL nimbra_ts_expected)
  message(FATAL_ERROR "resource/translations: the .ts files (${nimbra_ts_present}) and "
                      "languages.txt (${nimbra_ts_expected}) name different languages")
endif()
list(JOIN NIMBRA_LANGUAGES "," nimbra_languages_csv)
target_compile_definitions(agent_core PRIVATE "NIMBRA_TRANSLATION_LANGUAGES=\"${nimbra_languages_csv}\"")
set(nimbra_qm_dir ${CMAKE_CURRENT_BINARY_DIR}/translations)
file(MAKE_DIRECTORY ${nimbra_qm_dir})

set(nimbra_ts_files)
set(nimbra_qrc_entries)
foreach(lang IN LISTS NIMBRA_LANGUAGES)
  list(APPEND nimbra_ts_files ${nimbra_ts_dir}/${lang}.ts)
  string(APPEND nimbra_qrc_entries "    <file>${lang}.qm</file>\n")
endforeach()
if(COMMAND qt5_add_translation)
  set_source_files_properties(${nimbra_ts_files} PROPERTIES OUTPUT_LOCATION ${nimbra_qm_dir})
  qt5_add_translation(nimbra_qm_files ${nimbra_ts_files})
else()
  # A cross build (Windows): the build machine's lrelease; .qm files are the
  # same on every platform.
  find_program(NIMBRA_LRELEASE NAMES lrelease-qt5 lrelease HINTS /usr/lib/qt5/bin REQUIRED)
  set(nimbra_qm_files)
  foreach(ts IN LISTS nimbra_ts_files)
    get_filename_component(lang ${ts} NAME_WE)
    set(qm ${nimbra_qm_dir}/${lang}.qm)
    add_custom_command(OUTPUT ${qm} COMMAND ${NIMBRA_LRELEASE} -silent ${ts} -qm ${qm}
                       DEPENDS ${ts} VERBATIM)
    list(APPEND nimbra_qm_files ${qm})
  endforeach()
endif()

# The .qrc lives beside the .qm files it lists; it is rewritten only when the
# language list changes.
set(nimbra_qrc ${nimbra_qm_dir}/nimbra_translations.qrc)
file(CONFIGURE OUTPUT ${nimbra_qrc}
     CONTENT "<RCC>\n  <qresource prefix=\"/\">\n${nimbra_qrc_entries}  </qresource>\n</RCC>\n")
qt5_add_resources(nimbra_translation_sources ${nimbra_qrc} OPTIONS -name nimbra_translations)
set_source_files_properties(${nimbra_translation_sources} PROPERTIES SKIP_AUTOGEN ON)
target_sources(agent_core PRIVATE ${nimbra_translation_sources} ${nimbra_qm_files})

find_program(NIMBRA_LUPDATE NAMES lupdate-qt5 lupdate HINTS /usr/lib/qt5/bin)
if(NIMBRA_LUPDATE)
  add_custom_target(translations_update
    COMMAND ${CMAKE_COMMAND} -E env LUPDATE=${NIMBRA_LUPDATE} ${CMAKE_SOURCE_DIR}/scripts/translations
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
    COMMENT "Refreshing resource/translations/*.ts from the sources"
    VERBATIM)
endif()
