#!/usr/bin/env bash
# Installs what the named parts need on a bare Debian 12, and nothing that is there already.
# Usage: tools/install.sh [native] [tests] [windows] [checks]
set -euo pipefail

packages=()
for part in "$@"; do
  case $part in
    native) packages+=(g++ cmake ninja-build libsqlite3-dev libncurses-dev) ;;
    tests) packages+=(libgtest-dev googletest tmux) ;;
    windows) packages+=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine wine64 libwine-dev
                        xvfb xauth imagemagick xdotool fonts-wine npm googletest debootstrap) ;;
    checks) packages+=(clang-format clang-tidy) ;;
    *) echo "install.sh: no such part: $part" >&2; exit 2 ;;
  esac
done

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
# A machine may have npm from elsewhere than Debian's package.
if command -v npm >/dev/null; then
  kept=()
  for package in "${missing[@]:-}"; do [ "$package" = npm ] || kept+=("$package"); done
  missing=("${kept[@]:-}")
fi
[ -n "${missing[*]:-}" ] || exit 0

as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo)
export DEBIAN_FRONTEND=noninteractive
echo "Installing ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
