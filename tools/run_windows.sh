#!/usr/bin/env bash
# Opens the host with the component's real windows through Wine: on the display, or on a virtual one where there is none.
# Usage: tools/run_windows.sh [switches of shophost.exe]
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install.sh windows
tools/build_windows.sh --products x64
folder=build/windows-x64
# A prefix of its own: the tests register and unregister in theirs.
export WINE_FOLDER=$PWD/build/wine_host
for server in tq8v4461 shopsuite; do
  # Registered again only when the file moved or changed: registering starts a program of its own.
  mark=$WINE_FOLDER/$server.registered
  if [ ! -f "$mark" ] || [ "$folder/$server.dll" -nt "$mark" ]; then
    tools/in_wine.sh regsvr32 /s "Z:${PWD//\//\\}\\build\\windows-x64\\$server.dll"
    touch "$mark"
  fi
done
if [ -n "${DISPLAY:-}" ]; then
  exec tools/in_wine.sh "$folder/shophost.exe" "$@"
fi
echo "No display: the windows open on a virtual one (Xvfb); end with Ctrl+C."
exec xvfb-run -a -s "-screen 0 1280x1024x24" tools/in_wine.sh "$folder/shophost.exe" "$@"
