#!/usr/bin/env bash
# "Nimbra Backup Notifier.exe" under Wine, on check-windows' private display:
# malformed arguments exit 2 with a line on standard error; a notification
# returns 0 at once while a detached copy keeps its balloon up, and that copy
# ends by itself once the time to linger has passed; nothing to say exits 0
# and leaves nothing running.
#   notifier-test.sh <Nimbra Backup Notifier.exe>
set -uo pipefail
notifier=$1
: "${WINEPREFIX:?run by scripts/check-windows, in its Wine prefix}"
: "${DISPLAY:?run by scripts/check-windows, on its private display}"
fail() { echo "notifier-test: $*" >&2; exit 1; }
# Polls a command until it succeeds, for up to $1 tenths of a second.
wait_for() {
  local tenths=$1
  shift
  for _ in $(seq "$tenths"); do
    "$@" && return 0
    sleep 0.1
  done
  return 1
}
# The detached copy shows up among the processes with its arguments.
title="Backup done $$-$RANDOM"
running() { pgrep -f -- "$title" >/dev/null; }
stopped() { ! running; }

err=$(wine "$notifier" 2 x 2>&1 >/dev/null)
rc=$?
[ "$rc" = 2 ] || fail "malformed arguments exited $rc, not 2"
[[ "$err" == *"expected at least 3 arguments"* ]] || fail "malformed arguments said [$err]"

export NIMBRA_NOTIFIER_LINGER_MS=3000
wine "$notifier" 1 'C:\site' 1 "" "" "" 0
rc=$?
[ "$rc" = 0 ] || fail "a notification with nothing to say exited $rc"

wine "$notifier" 1 'C:\site' 1 "$title" "Your backup finished" "Open Nimbra Backup" 3
rc=$?
[ "$rc" = 0 ] || fail "the notification was not shown (exit $rc)"
running || fail "no process stayed for the balloon"
wait_for 600 stopped || fail "the balloon's process did not end after its time to linger"
echo "notifier-test: shown, lingered and ended"
