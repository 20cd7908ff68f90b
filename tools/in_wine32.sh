#!/usr/bin/env bash
# Runs a 32-bit Windows program as tools/in_wine.sh runs a 64-bit one: by the Wine of a 32-bit Debian in build/wine32_root, in a
# prefix of its own. The machine's packages stay of one architecture: a second one breaks apt where the repositories differ.
# Usage: tools/in_wine32.sh PROGRAM [ARGUMENT...]   WINE_FOLDER: where the prefix is (default build/wine32)
#        tools/in_wine32.sh --prepare               makes build/wine32_root when it is not there (1 to 2 minutes, once)
# Where 32-bit programs cannot run it says why in one line and ends with 77.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
debian=$root/build/wine32_root

cannot() {
  echo "32-bit Windows programs do not run on this machine: $1" >&2
  exit 77
}

as_root=()
own=(unshare --mount)
if [ "$(id -u)" != 0 ]; then
  as_root=(sudo)
  own=(unshare --map-root-user --mount)
fi

# A static program that only exits, as the kernel loads it: the header, one segment, and exit(0).
kernel_runs_it() {
  local program status=0
  program=$(mktemp)
  printf '\x7fELF\1\1\1\0\0\0\0\0\0\0\0\0\2\0\3\0\1\0\0\0\x54\x80\4\x08\x34\0\0\0\0\0\0\0\0\0\0\0\x34\0\x20\0\1\0\0\0\0\0\0\0' >"$program"
  printf '\1\0\0\0\0\0\0\0\0\x80\4\x08\0\x80\4\x08\x5b\0\0\0\x5b\0\0\0\5\0\0\0\0\x10\0\0' >>"$program"
  printf '\x31\xc0\x40\x31\xdb\xcd\x80' >>"$program"
  chmod +x "$program"
  "$program" 2>/dev/null || status=$?
  rm -f "$program"
  return $status
}

may_mount() { "${own[@]}" sh -c 'mount --rbind /proc /proc && chroot / true' 2>/dev/null; }

# The machine's own source of Debian's packages: its address and the release's name.
repository() {
  apt-get indextargets --format '$(REPO_URI) $(CODENAME)' 'Identifier: Packages' 'Origin: Debian' 'Component: main' 2>/dev/null |
    grep -E ' [a-z]+$' | head -1
}

make_debian() {
  local address release part log=$root/build/wine32_root.log
  read -r address release < <(repository) || cannot "apt knows no repository of Debian"
  command -v debootstrap >/dev/null || cannot "debootstrap is not installed"
  [ ${#as_root[@]} = 0 ] || command -v sudo >/dev/null || cannot "only root can install a 32-bit Debian"
  echo "Installing a 32-bit Wine into build/wine32_root (once)"
  "${as_root[@]}" rm -rf "$debian".[0-9]*
  part=$debian.$$
  # In a mount namespace of its own nothing stays mounted below the folder when it is broken off.
  if ! "${as_root[@]}" unshare --mount debootstrap --arch=i386 --variant=minbase --include=wine,wine32,fonts-wine \
    "$release" "$part" "$address" >"$log" 2>&1; then
    "${as_root[@]}" rm -rf "$part"
    cannot "no 32-bit Debian from $address ($(tail -1 "$log"))"
  fi
  "${as_root[@]}" sh -c "rm -f '$part'/var/cache/apt/archives/*.deb; mv '$part' '$debian'"
}

kernel_runs_it || cannot "the kernel does not start them"
may_mount || cannot "no right to mount"
if [ "${1:-}" = --prepare ]; then
  mkdir -p "$root/build"
  exec 9>"$root/build/wine32_root.lock"
  flock 9
  [ -d "$debian" ] || make_debian
  [ -d "$debian$root" ] || "${as_root[@]}" mkdir -p "$debian$root"  # the checkout's place inside
  exit 0
fi
[ -d "$debian$root" ] || cannot "tools/in_wine32.sh --prepare has not been run"

export WINE_FOLDER=${WINE_FOLDER:-$root/build/wine32} WINE_WIDTH=32
# Inside there is one locale; the machine's might be unknown there.
export LC_ALL=C.UTF-8
exec "${own[@]}" bash -c '
  set -e
  debian=$1 root=$2 folder=$3
  shift 3
  for shared in /proc /dev /tmp; do mount --rbind "$shared" "$debian$shared"; done
  mount --bind "$root" "$debian$root"
  exec linux32 chroot "$debian" /bin/bash -c "cd \"\$0\" && exec \"\$@\"" "$folder" "$root/tools/in_wine.sh" "$@"
' in_wine32 "$debian" "$root" "$PWD" "$@"
