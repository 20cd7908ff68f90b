#!/usr/bin/env bash
# Builds the Windows products and tests, and runs the tests under Wine on a display of their own (label `windows`).
set -euo pipefail
cd "$(dirname "$0")/.."

tools/build_windows.sh
tools/check_dll.sh build/windows-x86/tq8v4461.dll build/windows-x86/shopsuite.dll
# A warm Wine server saves its start at every test; it is let go at the end.
export WINEPREFIX=$PWD/build/wine/prefix
tools/in_wine.sh wineboot >/dev/null 2>&1
trap "wineserver -k 2>/dev/null || true" EXIT
xvfb-run -a -s "-screen 0 1280x1024x24" ctest --test-dir build/windows-x64 -L windows --output-on-failure "$@"
