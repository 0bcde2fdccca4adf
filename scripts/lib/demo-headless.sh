#!/usr/bin/env bash
# The demo without a display, run by scripts/run-demo inside its own session
# bus (dbus-run-session): a virtual display with a window manager, a panel
# with a notification area and a notification service; the simulated
# service; the agent; and this script in the user's place. It goes through
# the wizard with the keyboard, signs in through the demo's browser, says
# yes to backing up now, follows the backup by the tray icon's colour and
# ends the agent from its tray menu, with a screenshot after every step.
#
# Environment (from run-demo): DEMO_DIR, DEMO_PREFIX, DEMO_SCENARIO_FILE,
# NIMBRA_PIPE_NAMESPACE, NIMBRA_WORKING_SPACE, XDG_STATE_HOME, XDG_DATA_HOME.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=scripts/lib/demo-desktop.sh
. "$here/demo-desktop.sh"

bin="$DEMO_PREFIX/bin"
shots="$DEMO_DIR/shots"
record="$DEMO_DIR/requests.jsonl"
agent_log="$XDG_STATE_HOME/NimbraBackupAgent/log/ui.txt"
mkdir -p "$shots"
SHOTS=()
agent_pid=""
result=1

step() { echo "== $*"; }
fail() {
  echo "run-demo: $*" >&2
  if [ -n "$agent_pid" ] && [ -n "${DISPLAY-}" ]; then
    local w
    for w in $(xdotool search --onlyvisible --pid "$agent_pid" 2>/dev/null); do
      echo "   agent window $w '$(xdotool getwindowname "$w" 2>/dev/null)' $(xdotool getwindowgeometry "$w" 2>/dev/null | tr '\n' ' ')" >&2
    done
    shot failed
  fi
  exit 1
}

# ---- what the script looks at --------------------------------------------------
agent_logged() { grep -qF -- "$1" "$agent_log" 2>/dev/null; }
recorded() { grep -qF -- "\"action\":\"$1\"" "$record" 2>/dev/null; }
agent_windows() { xdotool search --onlyvisible --pid "$agent_pid" 2>/dev/null | wc -l; }
more_agent_windows_than() { [ "$(agent_windows)" -gt "$1" ]; }
agent_ended() { ! running "$agent_pid"; }
result_icon() { grep 'tray icon:' "$agent_log" | tail -n 1 | grep -qE 'icn_(green|red|orange)'; }
notification_service() {
  dbus-send --session --print-reply=literal --dest=org.freedesktop.DBus /org/freedesktop/DBus \
    org.freedesktop.DBus.NameHasOwner string:org.freedesktop.Notifications | grep -q true
}
notified() { [ "$(dunstctl count history)" -gt 0 ] || [ "$(dunstctl count displayed)" -gt 0 ]; }
wizard_window() { xdotool search --all --onlyvisible --pid "$agent_pid" --name '^Nimbra Backup$' 2>/dev/null | head -n 1; }
has_wizard_window() { [ -n "$(wizard_window)" ]; }
no_popup() { ! has_wizard_window; }

# The icon's window in the panel: the agent's small window inside tint2.
tray_icon_geometry() {
  local w
  for w in $(xdotool search --onlyvisible --classname '^nimbra-backup-agent$' 2>/dev/null); do
    local g
    g=$(xdotool getwindowgeometry --shell "$w" 2>/dev/null) || continue
    local X Y WIDTH HEIGHT
    eval "$g"
    if [ "$WIDTH" -le 64 ] && [ "$HEIGHT" -le 64 ] && [ "$Y" -gt 600 ]; then
      echo "$X $Y $WIDTH $HEIGHT"
      return 0
    fi
  done
  return 1
}
has_tray_icon() { tray_icon_geometry >/dev/null; }

# The screen has stopped changing: two captures 100 ms apart are the same.
screen_sum() { import -window root -depth 8 gray:- 2>/dev/null | md5sum; }
screen_same_twice() {
  local a b
  a=$(screen_sum)
  sleep 0.1
  b=$(screen_sum)
  [ "$a" = "$b" ]
}
settled() { wait_for 5 "the screen to settle" screen_same_twice || true; }

shot() {
  local file
  settled
  file=$(printf '%s/%02d-%s.png' "$shots" $(( ${#SHOTS[@]} + 1 )) "$1")
  import -window root "$file"
  SHOTS+=("$file")
  echo "   screenshot $file"
}

# The mean colour of the tray icon's pixels that are not the panel's grey,
# read from the screen, as a word.
icon_colour() {
  local X Y W H
  read -r X Y W H < <(tray_icon_geometry) || { echo "no icon"; return; }
  import -window root -crop "${W}x${H}+${X}+${Y}" -depth 8 rgb:- 2>/dev/null | od -An -v -tu1 -w3 |
    awk '{ r = $1; g = $2; b = $3; mx = r; if (g > mx) mx = g; if (b > mx) mx = b
           mn = r; if (g < mn) mn = g; if (b < mn) mn = b
           if (mx - mn > 60) { R += r; G += g; B += b; n++ } }
         END { if (n < 5) { print "white/grey"; exit }
               R /= n; G /= n; B /= n
               if (B > R + 40 && B >= G) c = "blue"; else if (G > R + 30 && G > B) c = "green";
               else if (R > B + 40 && G > B + 20) c = "orange"; else if (R > G + 40) c = "red"; else c = "mixed";
               printf "%s (mean of %d coloured pixels: %d,%d,%d)\n", c, n, R, G, B }'
}
tray_picture() { grep -o 'tray icon: [a-z_]*' "$agent_log" 2>/dev/null | tail -n 1 | cut -d' ' -f3; }

press() {
  local w
  w=$(wizard_window)
  [ -n "$w" ] || fail "no agent window to type into"
  xdotool windowactivate --sync "$w" >/dev/null 2>&1 || true
  xdotool key --clearmodifiers "$@"
}

# ---- the end, however it comes ------------------------------------------------
finish() {
  local code=$?
  set +e
  [ "$result" = 0 ] || [ "$code" != 0 ] || code=1
  step "Ending the demo"
  dunstctl close-all >/dev/null 2>&1
  stop_started
  if ! wait_for 10 "every process of the demo to end" no_leftovers; then
    local p
    for p in $(leftovers); do
      echo "   still running, ended now: $(tr '\0' ' ' </proc/"$p"/cmdline 2>/dev/null) (pid $p)"
      kill -KILL "$p" 2>/dev/null
    done
  else
    echo "   every process of the demo has ended"
  fi
  step "Screenshots"
  local f
  for f in "${SHOTS[@]}"; do echo "   $f"; done
  step "Requests the simulated service received ($record)"
  print_record "$record"
  exit "$code"
}
trap finish EXIT
trap 'exit 130' INT TERM

# ---- the desktop ---------------------------------------------------------------
step "Virtual display (Xvfb) with openbox, a tint2 panel and dunst"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$DEMO_DIR/display" >"$DEMO_DIR/xvfb.log" 2>&1 &
DEMO_PIDS+=($!)
DEMO_NAMES+=(xvfb)
wait_for 15 "Xvfb to take a display" test -s "$DEMO_DIR/display" || fail "Xvfb did not start (xvfb.log)"
export DISPLAY=":$(head -n 1 "$DEMO_DIR/display")"
# On a loaded machine the display may not take clients the moment its number is out.
wait_for 15 "the display to answer" xprop -root || fail "the display $DISPLAY does not answer (xvfb.log)"
echo "   display $DISPLAY, session bus $DBUS_SESSION_BUS_ADDRESS"
start_logged openbox openbox
wait_for 10 "openbox" sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"' || fail "openbox did not start"
start_logged tint2 tint2
wait_for 20 "tint2's panel" xdotool search --onlyvisible --classname '^tint2$' || fail "tint2 did not start"
# Services the bus starts on demand see the display too.
dbus-update-activation-environment DISPLAY XDG_CONFIG_HOME XDG_DATA_HOME >/dev/null 2>&1 || true
start_logged dunst dunst
wait_for 10 "dunst on the session bus" notification_service || fail "dunst did not start"

step "Simulated service: scenario $(basename "$DEMO_SCENARIO_FILE")"
start_logged sim "$bin/nimbra-service-sim" serve --scenario "$DEMO_SCENARIO_FILE" --state "$DEMO_DIR/sim" \
  --record "$record" --fresh
wait_for 15 "the simulator" grep -q '^ready' "$DEMO_DIR/sim.log" || fail "the simulator did not start (sim.log)"
grep '^ready' "$DEMO_DIR/sim.log" | sed 's/^/   /'

step "The agent starts"
export BROWSER="$here/demo-browser"
export NIMBRA_DEMO_AGENT="$bin/nimbra-backup-agent"
export NIMBRA_DEMO_BROWSER_GATE="$DEMO_DIR/browser-go"
start_logged agent "$bin/nimbra-backup-agent"
agent_pid=${DEMO_PIDS[-1]}
wait_for 20 "the tray icon in the panel" has_tray_icon || fail "no tray icon (agent.log, $agent_log)"
echo "   tray icon at $(tray_icon_geometry | awk '{print $1 "," $2 ", " $3 "x" $4}'): $(tray_picture)"
wait_for 20 "the wizard's welcome page" agent_logged "wizard: welcome page" || fail "no wizard"
wait_for 10 "the wizard's window" has_wizard_window || fail "the wizard's window is not on screen"
shot welcome

step "Let's Start (it has the focus): Return"
press Return
wait_for 10 "the request for the sign-in page" recorded get_auth || fail "Let's Start sent nothing"
wait_for 10 "the sign-in sheet" agent_logged "wizard: sign-in sheet" || fail "no sign-in sheet"
wait_for 15 "the browser to open the sign-in page" grep -q "opening http" "$DEMO_DIR/browser.log" ||
  fail "the agent did not open the browser"
wait_for 15 "the sign-in page to load" grep -q "shows" "$DEMO_DIR/browser.log" || fail "the sign-in page did not load"
shot sign-in-sheet

step "In the browser: Sign in (the page returns to the agent)"
touch "$NIMBRA_DEMO_BROWSER_GATE"
wait_for 15 "the token to reach the service" recorded get_token || fail "the token did not reach the service"
wait_for 15 "the wizard's summary page" agent_logged "wizard: summary page" || fail "no summary page"
shot summary

step "Done (it has the focus): Return"
press Return
wait_for 15 "the device to be created" recorded create_device || fail "Done sent nothing"
wait_for 15 "the back-up-now question" agent_logged "asking whether to back up now" || fail "no back-up-now question"
shot backup-now-question

step "Back up now? OK: Return"
press Return
wait_for 10 "the answer" agent_logged "back up now:" || fail "the question did not close"
agent_logged "back up now: yes" || fail "Return answered 'Not now'"
wait_for 10 "the backup request" recorded backup_now || fail "no backup_now request"
icons_before=$(grep -c 'tray icon:' "$agent_log")
wait_for 20 "the tray icon to turn blue (backup running)" agent_logged "tray icon: logo_tray_icn_blue" ||
  fail "the tray icon did not change to running"
echo "   tray picture $(tray_picture); on screen: $(icon_colour)"
shot backup-running

step "Following the backup to its result"
wait_for 60 "the backup's result on the tray icon" result_icon ||
  fail "no result on the tray icon"
echo "   tray picture $(tray_picture); on screen: $(icon_colour)"
echo "   the icon changed $(( $(grep -c 'tray icon:' "$agent_log") - icons_before )) times during the backup"
shot backup-result
wait_for 10 "the notification of the result" notified ||
  echo "   (no desktop notification arrived)"
dunstctl close-all >/dev/null 2>&1 || true
dunstctl history 2>/dev/null | tr -d '\n' | grep -o '"summary" *: *{[^}]*}' |
  sed 's/.*"data" *: *"\(.*\)".*/   notification: \1/' || true

step "A click on the desktop closes the pop-up"
xdotool mousemove 400 300 click 1
wait_for 5 "the pop-up to close" no_popup || fail "the pop-up stayed open"
shot popup-closed

step "Tray menu: right click on the icon, Exit"
read -r ix iy iw ih < <(tray_icon_geometry)
before=$(agent_windows)
xdotool mousemove $(( ix + iw / 2 )) $(( iy + ih / 2 )) click 3
wait_for 5 "the tray menu" more_agent_windows_than "$before" || fail "no tray menu"
shot tray-menu
xdotool key Down Return
wait_for 10 "the exit notice" agent_logged "exit chosen" || fail "Exit did nothing"
wait_for 10 "the exit notice's window" has_wizard_window || fail "no exit notice"
shot exit-notice
press Return
wait_for 10 "the agent to end" agent_ended || fail "the agent did not end"
wait "$agent_pid" && agent_status=0 || agent_status=$?
echo "   the agent ended with exit status $agent_status"
[ "$agent_status" = 0 ] || fail "the agent's exit status is $agent_status"
shot desktop-after
result=0
