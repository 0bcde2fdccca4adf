# Shell helpers for the scripts that run the agent on a desktop (sourced).
#
#   wait_for SECONDS WHAT COMMAND...   polls COMMAND until it succeeds, or fails
#                                      with "WHAT" once SECONDS have passed
#   start_logged NAME COMMAND...       starts COMMAND in the background, its
#                                      output in $DEMO_DIR/NAME.log
#   stop_started                       ends what start_logged started, newest
#                                      first (TERM, then KILL after 5 s)
#   leftovers                          pids of processes still carrying this
#                                      run's $NIMBRA_PIPE_NAMESPACE
#   demo_plays_headless SCENARIO       true when the demo without a display
#                                      can play SCENARIO
#
# Every wait here is a condition with a deadline; none sleeps a fixed time.

DEMO_PIDS=()
DEMO_NAMES=()

# Without a display the script plays the user through the first-run story
# (sign in, Done, back up now, the result, Exit): only the scenarios that
# start with an unlinked device taking that path can be played so.
DEMO_HEADLESS_SCENARIOS="first-run one-site"
demo_plays_headless() {
  case " $DEMO_HEADLESS_SCENARIOS " in *" ${1%.json} "*) return 0 ;; esac
  return 1
}

now_ms() { echo $(( ${EPOCHREALTIME/./} / 1000 )); }

wait_for() {
  local limit_ms=$(( $1 * 1000 )) what=$2
  shift 2
  local end=$(( $(now_ms) + limit_ms ))
  until "$@" >/dev/null 2>&1; do
    if [ "$(now_ms)" -ge "$end" ]; then
      echo "run-demo: gave up after ${limit_ms} ms waiting for: $what" >&2
      return 1
    fi
    sleep 0.1
  done
}

start_logged() {
  local name=$1
  shift
  "$@" >"$DEMO_DIR/$name.log" 2>&1 &
  DEMO_PIDS+=($!)
  DEMO_NAMES+=("$name")
}

running() { kill -0 "$1" 2>/dev/null && ! grep -qs '^State:.*Z' "/proc/$1/status"; }
none_running() {
  local p
  for p in "$@"; do running "$p" && return 1; done
  return 0
}

stop_started() {
  local i alive=()
  for (( i = ${#DEMO_PIDS[@]} - 1; i >= 0; i-- )); do
    if running "${DEMO_PIDS[i]}"; then
      kill -TERM "${DEMO_PIDS[i]}" 2>/dev/null || true
      alive+=("${DEMO_PIDS[i]}")
    fi
  done
  if [ "${#alive[@]}" -gt 0 ] && ! wait_for 5 "the demo's processes to end" none_running "${alive[@]}"; then
    for i in "${alive[@]}"; do kill -KILL "$i" 2>/dev/null || true; done
  fi
  wait 2>/dev/null || true
  DEMO_PIDS=()
  DEMO_NAMES=()
}

# Processes of this run, whoever started them (the notifier's detached
# helper too): they all inherit the run's pipe namespace. The shells and
# wrappers this script runs in are not counted.
ancestors() {
  local p=$BASHPID
  while [ "$p" -gt 1 ] 2>/dev/null; do
    echo "$p"
    p=$(awk '{ print $4 }' "/proc/$p/stat" 2>/dev/null) || break
  done
}
leftovers() {
  local e p mine
  mine=" $(ancestors | tr '\n' ' ') "
  for e in /proc/[0-9]*/environ; do
    p=${e#/proc/}
    p=${p%/environ}
    case "$mine" in *" $p "*) continue ;; esac
    # The session bus of dbus-run-session, which ends it after the script.
    case "$mine" in *" $(awk '{ print $4 }' "/proc/$p/stat" 2>/dev/null) "*)
      [ "$(cat "/proc/$p/comm" 2>/dev/null)" = dbus-daemon ] && continue ;;
    esac
    if { tr '\0' '\n' <"$e" | grep -qx "NIMBRA_PIPE_NAMESPACE=$NIMBRA_PIPE_NAMESPACE"; } 2>/dev/null; then
      running "$p" && echo "$p"
    fi
  done
  return 0
}
no_leftovers() { [ -z "$(leftovers)" ]; }

# The request record as lines "time  request", a run of get_status collapsed
# to one line with its count; tokens and passwords masked.
print_record() {
  local record=$1
  [ -s "$record" ] || { echo "   (no requests)"; return 0; }
  sed -e 's/"\(token\|password\|access_token\)":"[^"]*"/"\1":"***"/g' "$record" |
    awk '
      {
        action = $0; sub(/.*"action":"/, "", action); sub(/".*/, "", action)
        t = $0; sub(/.*"time":"[0-9-]*T/, "", t); sub(/Z".*/, "", t)
        if (action == "get_status") { if (run == 0) first = t; run++; next }
        req = $0; sub(/^\{"request":/, "", req); sub(/,"time":.*/, "", req)
        flush(); printf "   %s  %s\n", t, req
      }
      function flush() { if (run > 0) printf "   %s  get_status x%d (once a second)\n", first, run; run = 0 }
      END { flush() }'
}
