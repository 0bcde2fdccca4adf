# shellcheck shell=bash
# The preamble every script under scripts/ (and .ci/run) shares. Source it
# first thing:
#
#   source "$(dirname "$0")/lib/common.sh"
#
# It sets bash's strict mode, moves to the repository's root and sets:
#   root                        the repository's root (absolute)
#   jobs                        parallel build jobs (NIMBRA_JOBS, default: every core)
#   say TEXT...                 "<script>: TEXT" on standard output
#   die TEXT...                 "<script>: TEXT" on standard error, exit 1
#   find_tool VAR PACKAGE CANDIDATE...
#                               VAR (unless already set) = the first candidate
#                               on the PATH, or die naming the Debian package
#   configure_build FOLDER [CMAKE-ARGS...]
#                               cmake -S root -B FOLDER -G Ninja, quietly;
#                               warnings are errors when CI is set
#   languages                   the translated languages' codes, one per line
#   language_locale CODE        the locale a language's translation is for
# Both language functions read resource/translations/languages.txt, the one
# list of the languages the agent is translated into.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
cd "$root"
script_name=$(basename "$0")
# shellcheck disable=SC2034 # (for the scripts that source this)
jobs=${NIMBRA_JOBS:-$(nproc)}

say() { echo "$script_name: $*"; }
die() {
  echo "$script_name: $*" >&2
  exit 1
}

find_tool() {
  local var=$1 package=$2 candidate
  shift 2
  [ -n "${!var-}" ] && return 0
  for candidate in "$@"; do
    if command -v "$candidate" >/dev/null 2>&1; then
      printf -v "$var" '%s' "$candidate"
      return 0
    fi
  done
  die "${!#} not found (Debian package $package)"
}

configure_build() {
  local folder=$1
  shift
  local args=("$@")
  [ -n "${CI-}" ] && args+=(-DNIMBRA_WERROR=ON)
  cmake -S "$root" -B "$folder" -G Ninja "${args[@]}" >/dev/null
}

languages() { sed -n 's/^\([a-z]\{3\}\)[[:space:]].*/\1/p' "$root/resource/translations/languages.txt"; }
language_locale() {
  sed -n "s/^$1[[:space:]]\{1,\}\([A-Za-z_]*\).*/\1/p" "$root/resource/translations/languages.txt"
}
