# Runs at install time (install(CODE) includes it): writes the desktop files
# with the path of the installed agent, which is known only now (the prefix
# may be given to `cmake --install --prefix`).
#
# In: NIMBRA_DESKTOP_TEMPLATES (folder of the .in files), NIMBRA_APP_NAME,
#     NIMBRA_APPLICATIONS_DIR and NIMBRA_AUTOSTART_DIR (relative to the
#     prefix, or absolute), NIMBRA_STAGE (a scratch folder in the build tree).
#
# Installs into different prefixes may run at the same time from one build
# tree (the install tests do): each stages its files in a folder of its own,
# named after where it installs, so none copies another's Exec line.
string(MD5 nimbra_stage_key "$ENV{DESTDIR}|${CMAKE_INSTALL_PREFIX}")
set(NIMBRA_STAGE "${NIMBRA_STAGE}/${nimbra_stage_key}")

# Exec quoting of the desktop entry format: a path with reserved characters
# is put in double quotes with ", `, $ and \ escaped, and then every \ is
# doubled once more because the value itself is a string.
function(nimbra_exec_argument path out)
  if(path MATCHES "[ \t\n\"'\\\\><~|&;$*?#()`]")
    string(REPLACE "\\" "\\\\" q "${path}")
    string(REPLACE "\"" "\\\"" q "${q}")
    string(REPLACE "`" "\\`" q "${q}")
    string(REPLACE "$" "\\$" q "${q}")
    string(REPLACE "\\" "\\\\" q "${q}")
    set(${out} "\"${q}\"" PARENT_SCOPE)
  else()
    set(${out} "${path}" PARENT_SCOPE)
  endif()
endfunction()

function(nimbra_install_desktop_file template dest_dir name)
  if(IS_ABSOLUTE "${dest_dir}")
    set(dest "${dest_dir}")
  else()
    set(dest "${CMAKE_INSTALL_PREFIX}/${dest_dir}")
  endif()
  set(staged "${NIMBRA_STAGE}/${dest_dir}/${name}")
  configure_file("${NIMBRA_DESKTOP_TEMPLATES}/${template}" "${staged}" @ONLY)
  file(INSTALL DESTINATION "${dest}" TYPE FILE FILES "${staged}")
endfunction()

nimbra_exec_argument("${CMAKE_INSTALL_PREFIX}/bin/nimbra-backup-agent" NIMBRA_AGENT_EXEC)
nimbra_install_desktop_file(nimbra-backup-agent.desktop.in "${NIMBRA_APPLICATIONS_DIR}" nimbra-backup-agent.desktop)
nimbra_install_desktop_file(nimbra-backup-agent-autostart.desktop.in "${NIMBRA_AUTOSTART_DIR}"
                            nimbra-backup-agent.desktop)
file(REMOVE_RECURSE "${NIMBRA_STAGE}")
