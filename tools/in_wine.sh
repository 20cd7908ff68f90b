#!/usr/bin/env bash
# Runs a Windows program in the project's own Wine prefix, making the prefix on first use.
# Usage: tools/in_wine.sh PROGRAM [ARGUMENT...]      WINE_FOLDER: where the prefix is (default build/wine)
#        tools/in_wine.sh --serve                    starts the prefix's Wine server and services; they stay until `wineserver -k`
# WINE_WIDTH=32 is tools/in_wine32.sh's: a prefix for 32-bit programs alone.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
folder=${WINE_FOLDER:-$root/build/wine}
export WINEPREFIX=$folder/prefix WINEARCH=win${WINE_WIDTH:-64} WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=d"
# Without a locale Wine makes no files whose names are beyond ASCII; this one is there on every Debian.
export LC_ALL=C.UTF-8
if [ ! -f "$folder/ready" ]; then
  mkdir -p "$folder"
  (
    flock 9
    if [ ! -f "$folder/ready" ]; then
      if ! wine wineboot -i >"$folder/log" 2>&1 9>&-; then
        echo "in_wine.sh: no Wine prefix could be made in $WINEPREFIX" >&2
        cat "$folder/log" >&2
        exit 1
      fi
      # Debian keeps Wine's own fonts apart; without them captions are drawn with stand-ins.
      cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null || true
      touch "$folder/ready"
    fi
  ) 9>"$folder/lock"
fi
if [ "$1" = --serve ]; then
  # One that runs already ends soon after its last program; where it does not, it is as good. Not with the caller's output: whoever
  # reads that from a pipe would wait for the server's end.
  serve() { wineserver -p </dev/null >/dev/null 2>&1; }
  serve || { timeout 10 wineserver -w; serve; } || [ $? = 2 ]
  # The services start here: from a test they would hold its output open as long as they live.
  exec wine wineboot >/dev/null 2>&1
fi
# Not by exec: a program whose server ends as it starts dies without a word, and somebody must name it.
wine "$@" <&0 &
program=$!
trap 'kill "$program" 2>/dev/null || true' INT TERM
status=0
wait "$program" || status=$?
[ $status = 0 ] || echo "in_wine.sh: $1 ended with $status" >&2
exit $status
