# Sourced by the Windows build scripts: makes `apt-get source` work.
#
#   nimbra_deb_src_ready SOURCE-PACKAGE
#
# When apt knows no source package of that name (a machine with only deb
# entries), adds a deb-src entry beside the machine's deb entries and
# refreshes the package lists once.
nimbra_deb_src_ready() {
  local pkg=$1 sudo=""
  [ "$(id -u)" = 0 ] || sudo="sudo"
  if [ -n "$(apt-cache showsrc "$pkg" 2>/dev/null)" ]; then
    return 0
  fi
  echo "adding Debian source package entries (for $pkg)" >&2
  if [ -f /etc/apt/sources.list.d/debian.sources ]; then
    sed 's/^Types: deb$/Types: deb-src/' /etc/apt/sources.list.d/debian.sources |
      $sudo tee /etc/apt/sources.list.d/nimbra-deb-src.sources >/dev/null
  else
    # One-line format (/etc/apt/sources.list).
    sed -n 's/^deb \(.*\)$/deb-src \1/p' /etc/apt/sources.list |
      $sudo tee /etc/apt/sources.list.d/nimbra-deb-src.list >/dev/null
  fi
  $sudo apt-get update -qq
  if [ -z "$(apt-cache showsrc "$pkg" 2>/dev/null)" ]; then
    echo "apt knows no source package '$pkg', even with deb-src entries" >&2
    return 1
  fi
}

# The newest version of a source package apt can fetch.
nimbra_deb_src_version() {
  apt-cache showsrc --only-source "$1" 2>/dev/null |
    awk '/^Version:/ {print $2}' |
    sort -u | while read -r v; do echo "$v"; done |
    { best=""; while read -r v; do
        if [ -z "$best" ] || dpkg --compare-versions "$v" gt "$best"; then best=$v; fi
      done; echo "$best"; }
}
