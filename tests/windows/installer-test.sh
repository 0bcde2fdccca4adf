#!/usr/bin/env bash
# The Windows installer under Wine (in check-windows' prefix): a silent
# install puts the programs and resources into the user's application folder,
# registers nimbrabackup:// with the installed agent, starts it at sign-in
# and adds a Start-menu entry; the silent uninstall takes all of it away.
#   installer-test.sh <nimbra-backup-setup-x.y.z.exe>
set -euo pipefail
setup=$1
: "${WINEPREFIX:?run by scripts/check-windows, in its Wine prefix}"
fail() { echo "installer-test: $*" >&2; exit 1; }
win_var() { wine cmd.exe /c echo "%$1%" 2>/dev/null | tr -d '\r'; }
# Prints the registry value, or nothing when the key or value is missing.
reg_value() { wine reg query "$1" "${@:2}" 2>/dev/null | tr -d '\r' | sed -n 's/^ *[^ ].*REG_SZ *//p'; }

folder_win="$(win_var LOCALAPPDATA)\\Programs\\Nimbra Backup"
folder=$(winepath -u "$folder_win" 2>/dev/null)
menu=$(winepath -u "$(win_var APPDATA)\\Microsoft\\Windows\\Start Menu\\Programs\\Nimbra Backup.lnk" 2>/dev/null)
agent_win="$folder_win\\bin\\nimbra-backup-agent.exe"
url_key='HKCU\Software\Classes\nimbrabackup'
run_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Run'
[ ! -e "$folder" ] || fail "$folder exists before the install"

wine "$setup" /S
for f in "bin/nimbra-backup-agent.exe" "bin/Nimbra Backup Notifier.exe" "bin/nimbra-service-sim.exe" \
  "resource/agent.stylesheet" "resource/images/icon_agent.svg" "uninstall.exe"; do
  [ -f "$folder/$f" ] || fail "the install has no $f"
done
command=$(reg_value "$url_key\\shell\\open\\command" /ve)
[ "$command" = "\"$agent_win\" \"%1\"" ] || fail "nimbrabackup:// opens [$command], not the installed agent"
wine reg query "$url_key" /v "URL Protocol" >/dev/null 2>&1 || fail "nimbrabackup is no URL protocol"
[ "$(reg_value "$run_key" /v "Nimbra Backup")" = "\"$agent_win\"" ] || fail "the agent does not start at sign-in"
[ -f "$menu" ] || fail "no Start-menu entry at $menu"

wine "$folder/uninstall.exe" /S
# The uninstaller copies itself away and runs from there: wait for its work.
for _ in $(seq 600); do
  [ -e "$folder" ] || [ -e "$menu" ] || break
  sleep 0.1
done
[ ! -e "$folder" ] || fail "the uninstall left $(cd "$folder" && find . | head -n 5 | tr '\n' ' ')"
[ ! -e "$menu" ] || fail "the uninstall left the Start-menu entry"
[ -z "$(reg_value "$url_key\\shell\\open\\command" /ve)" ] || fail "the uninstall left nimbrabackup://"
[ -z "$(reg_value "$run_key" /v "Nimbra Backup")" ] || fail "the uninstall left the start at sign-in"
echo "installer-test: installed, registered and uninstalled cleanly"
