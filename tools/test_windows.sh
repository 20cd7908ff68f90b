#!/usr/bin/env bash
# Builds the Windows products and tests in both widths and runs the tests under Wine, each width on a display and in prefixes of
# its own (label `windows`). Where 32-bit programs do not run, their entries are skipped and the DLLs looked at from outside alone.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/build_windows.sh x64
served=(tools/in_wine.sh)
if tools/in_wine32.sh --prepare; then
  served+=(tools/in_wine32.sh)
  tools/build_windows.sh x86
else
  tools/build_windows.sh --products x86
fi

# A server that stays saves its start at every test, and cannot end while a test starts.
trap 'for folder in wine wine32; do WINEPREFIX=$PWD/build/$folder/prefix wineserver -k 2>/dev/null || true; done' EXIT
for wine in "${served[@]}"; do "$wine" --serve; done
run() {
  local width=$1
  shift
  echo "Tests as $width programs"
  xvfb-run -a -s "-screen 0 1280x1024x24" ctest --test-dir "build/windows-$width" -L windows --output-on-failure "$@"
}
# Side by side: the tests wait for windows more than they compute. What the second says comes after the first.
run x86 "$@" >build/windows-x86/tests.log 2>&1 &
status=0
run x64 "$@" || status=$?
wait $! || status=$?
cat build/windows-x86/tests.log
exit $status
