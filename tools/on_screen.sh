#!/usr/bin/env bash
# Runs a Windows program under Wine on a screen of its own, in a Wine prefix whose windows need no window manager.
# Usage: tools/on_screen.sh WINE PROGRAM [ARGUMENT...]      WINE: tools/in_wine.sh or tools/in_wine32.sh
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
wine=$1
shift
name=$(basename "$wine" .sh)
export WINE_FOLDER=${WINE_FOLDER:-$root/build/${name#in_}_screen}
if [ ! -f "$WINE_FOLDER/screen" ]; then
  # A managed window waits seconds for a manager that is not there.
  "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
  # What was started without a screen must be gone before the first window.
  WINEPREFIX=$WINE_FOLDER/prefix wineserver -k -w 2>/dev/null || true
  touch "$WINE_FOLDER/screen"
fi
exec xvfb-run -a -s "-screen 0 1280x900x24" "$wine" "$@"
