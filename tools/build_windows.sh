#!/usr/bin/env bash
# Builds the Windows products in both widths: build/windows-x64 and build/windows-x86.
# Usage: tools/build_windows.sh [x64|x86]...
set -euo pipefail
cd "$(dirname "$0")/.."

tools/fetch_sqlite.sh
widths=("$@")
[ $# -gt 0 ] || widths=(x64 x86)
for width in "${widths[@]}"; do
  launcher=()
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  cmake --preset "windows-$width" "${launcher[@]}" >/dev/null
  cmake --build --preset "windows-$width" -j "$(nproc)"
done
