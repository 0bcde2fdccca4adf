#!/usr/bin/env bash
# scripts/run-demo without a display: every scenario it cannot play there is
# refused at once with one clear line (before any set-up or build), the
# others are the ones it plays.
set -u
root=$(cd "$(dirname "$0")/../.." && pwd)
# shellcheck source=scripts/lib/demo-desktop.sh
. "$root/scripts/lib/demo-desktop.sh"
failed=0
for file in "$root"/service-sim/scenarios/*.json; do
  scenario=$(basename "$file" .json)
  if demo_plays_headless "$scenario"; then
    grep -q '"linked": *false' "$file" || { echo "FAIL $scenario: played headless but starts linked"; failed=1; }
    continue
  fi
  err=$(env -u DISPLAY -u WAYLAND_DISPLAY SCENARIO="$scenario" timeout 20 "$root/scripts/run-demo" 2>&1 >/dev/null)
  code=$?
  if [ "$code" != 2 ] || ! grep -q "^run-demo: without a display only the first-run story is played" <<<"$err"; then
    echo "FAIL $scenario: exit $code, said: $(head -c 300 <<<"$err")"
    failed=1
  fi
done
exit "$failed"
