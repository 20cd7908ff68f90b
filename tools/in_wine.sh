#!/usr/bin/env bash
# Runs a Windows program in the project's own Wine prefix, making the prefix on first use.
# Usage: tools/in_wine.sh PROGRAM [ARGUMENT...]      WINE_FOLDER: where the prefix is (default build/wine)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
folder=${WINE_FOLDER:-$root/build/wine}
export WINEPREFIX=$folder/prefix WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=d"
if [ ! -f "$folder/ready" ]; then
  mkdir -p "$folder"
  (
    flock 9
    if [ ! -f "$folder/ready" ]; then
      wine wineboot -i >/dev/null 2>&1 9>&-
      # Debian keeps Wine's own fonts apart; without them captions are drawn with stand-ins.
      cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null || true
      touch "$folder/ready"
    fi
  ) 9>"$folder/lock"
fi
# The package's note about 32-bit programs is of no use to anybody here.
exec wine "$@" 2> >(grep -v -E 'wine32 is missing|multiarch needs|^execute |apt-get install wine32' >&2 || true)
