#!/usr/bin/env bash
# Builds the Windows products and tests in both widths and runs the tests under Wine, each width on a display and in prefixes of
# its own (label `windows`). Where 32-bit programs do not run, their entries are skipped and the DLLs looked at from outside alone.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/build_windows.sh x64
if tools/in_wine32.sh --prepare; then
  tools/build_windows.sh x86
else
  tools/build_windows.sh --products x86
fi

# A server that stays saves its start at every test, and cannot end while a test starts.
trap 'for folder in wine wine32; do WINEPREFIX=$PWD/build/$folder/prefix wineserver -k 2>/dev/null || true; done' EXIT
run() {
  local width=$1 wine=$2
  shift 2
  "$wine" --serve || [ $? = 77 ]
  echo "Tests as $width programs"
  xvfb-run -a -s "-screen 0 1280x1024x24" ctest --test-dir "build/windows-$width" -L windows --output-on-failure "$@"
}
run x64 tools/in_wine.sh "$@"
run x86 tools/in_wine32.sh "$@"
