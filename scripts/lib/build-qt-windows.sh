#!/usr/bin/env bash
# Builds Qt 5 (qtbase and qtsvg) static for 64-bit Windows with mingw-w64,
# from Debian's own source packages, and prints the install prefix.
#
#   scripts/lib/build-qt-windows.sh     prints the prefix on standard output;
#                                       progress goes to standard error
#
# The prefix is a cache outside the repository,
#   ${XDG_CACHE_HOME:-~/.cache}/nimbra-backup/qt-windows/<version>-<hash>,
# where <hash> covers the configure options and the compiler, so a later run
# (from any clone on this machine) returns at once, and changed options build
# a new prefix beside the old one. apt-get source checks the sources' hashes
# against the signed package lists. The build takes 10 to 20 minutes of two
# cores and runs at low priority (NIMBRA_QT_NICE, default 15); its full output
# is in <prefix>.log. Runs from several clones wait for each other.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=deb-src.sh
source "$here/deb-src.sh"

say() { echo "build-qt-windows: $*" >&2; }
jobs=${NIMBRA_JOBS:-$(nproc)}
niceness=${NIMBRA_QT_NICE:-15}
cache_root="${XDG_CACHE_HOME:-$HOME/.cache}/nimbra-backup/qt-windows"

# Debian's +dfsg source drops src/3rdparty/wintab: without tablet events (and
# Direct2D) the Windows platform plugin needs no wintab.h.
configure_options=(
  -xplatform win32-g++ -opensource -confirm-license -release -static -optimize-size
  -nomake examples -nomake tests -no-opengl -no-direct2d -no-feature-tabletevent -no-dbus
  -no-icu -no-sql-sqlite -no-sql-odbc -qt-zlib -qt-libpng -qt-libjpeg -qt-freetype
  -qt-harfbuzz -qt-pcre -platform linux-g++
  # As cmake/mingw-w64-toolchain.cmake says: interprocedural register
  # allocation is unsafe where programs link copies of Qt's templates.
  'QMAKE_CFLAGS+=-fno-ipa-ra' 'QMAKE_CXXFLAGS+=-fno-ipa-ra'
)

nimbra_deb_src_ready qtbase-opensource-src
base_version=$(nimbra_deb_src_version qtbase-opensource-src)
svg_version=$(nimbra_deb_src_version qtsvg-opensource-src)
[ -n "$base_version" ] && [ -n "$svg_version" ] || { say "apt has no version of the Qt sources"; exit 1; }
compiler=$(x86_64-w64-mingw32-g++-posix --version | head -n 1)
key=$(printf '%s\n' "$base_version" "$svg_version" "$compiler" "${configure_options[@]}" |
  sha256sum | cut -c1-12)
upstream=${base_version%%+*}
prefix="$cache_root/$upstream-$key"
stamp="$prefix/.nimbra-complete"

if [ -f "$stamp" ]; then
  echo "$prefix"
  exit 0
fi

mkdir -p "$cache_root"
exec 8>"$cache_root/.lock"
if ! flock -n 8; then
  say "another run is building Qt in $cache_root; waiting for it"
  flock 8
fi
if [ -f "$stamp" ]; then
  echo "$prefix"
  exit 0
fi

work="$cache_root/work-$key"
log="$prefix.log"
rm -rf "$work" "$prefix"
mkdir -p "$work/src" "$work/links"
: >"$log"
say "Qt $upstream for Windows is not in the cache: building it into $prefix"
say "(10 to 20 minutes; the full output goes to $log)"

# apt-get source verifies every file it downloads against the hashes in the
# signed Sources index; the upstream tarballs are all the build needs.
say "fetching qtbase-opensource-src $base_version and qtsvg-opensource-src $svg_version"
(cd "$work/src" &&
  apt-get source -qq --download-only "qtbase-opensource-src=$base_version" \
    "qtsvg-opensource-src=$svg_version" >>"$log" 2> >(grep -v unsandboxed >&2))
base_tar=$(find "$work/src" -maxdepth 1 -name 'qtbase-opensource-src_*.orig.tar.*' | head -n 1)
svg_tar=$(find "$work/src" -maxdepth 1 -name 'qtsvg-opensource-src_*.orig.tar.*' | head -n 1)
[ -n "$base_tar" ] && [ -n "$svg_tar" ] || { say "apt-get source gave no upstream tarballs"; exit 1; }
say "unpacking the sources"
mkdir -p "$work/qtbase" "$work/qtsvg"
tar -xf "$base_tar" -C "$work/qtbase" --strip-components=1
tar -xf "$svg_tar" -C "$work/qtsvg" --strip-components=1

# Qt's win32-g++ mkspec calls <CROSS_COMPILE>gcc and friends: point those names
# at the posix-thread variants, as the project's toolchain file does.
for tool in gcc g++ ar ranlib strip windres objcopy nm ld; do
  target=$(command -v "x86_64-w64-mingw32-$tool-posix" || command -v "x86_64-w64-mingw32-$tool")
  ln -sf "$target" "$work/links/x86_64-w64-mingw32-$tool"
done

# Prints how far a long step has come, once a minute, while it runs.
run_step() {
  local what=$1 count_dir=$2
  shift 2
  local started=$SECONDS
  nice -n "$niceness" "$@" >>"$log" 2>&1 &
  local pid=$!
  while kill -0 "$pid" 2>/dev/null; do
    for _ in $(seq 60); do
      kill -0 "$pid" 2>/dev/null || break
      sleep 1
    done
    if kill -0 "$pid" 2>/dev/null; then
      local objects
      objects=$(find "$count_dir" -name '*.obj' -o -name '*.o' 2>/dev/null | wc -l)
      say "$what: $((SECONDS - started)) s, $objects objects compiled"
    fi
  done
  if ! wait "$pid"; then
    say "$what failed; the end of $log:"
    tail -n 30 "$log" >&2
    exit 1
  fi
  say "$what: done in $((SECONDS - started)) s"
}

say "configuring qtbase (about 1 to 2 minutes)"
mkdir -p "$work/qtbase-build"
(cd "$work/qtbase-build" &&
  run_step "configuring qtbase" "$work/qtbase-build" "$work/qtbase/configure" \
    "${configure_options[@]}" -device-option "CROSS_COMPILE=$work/links/x86_64-w64-mingw32-" \
    -prefix "$prefix")
say "building qtbase with $jobs jobs (the long step)"
(cd "$work/qtbase-build" && run_step "building qtbase" "$work/qtbase-build" make -j "$jobs")
(cd "$work/qtbase-build" && run_step "installing qtbase" "$work/qtbase-build" make install)
say "building qtsvg"
mkdir -p "$work/qtsvg-build"
(cd "$work/qtsvg-build" &&
  run_step "configuring qtsvg" "$work/qtsvg-build" "$prefix/bin/qmake" "$work/qtsvg" &&
  run_step "building qtsvg" "$work/qtsvg-build" make -j "$jobs" &&
  run_step "installing qtsvg" "$work/qtsvg-build" make install)

printf 'qtbase-opensource-src %s\nqtsvg-opensource-src %s\n%s\n' \
  "$base_version" "$svg_version" "$compiler" >"$stamp"
rm -rf "$work"
say "Qt for Windows is ready in $prefix"
echo "$prefix"
