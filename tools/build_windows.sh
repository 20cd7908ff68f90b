#!/usr/bin/env bash
# Builds the Windows products and their tests: build/windows-x64 and build/windows-x86.
# Usage: tools/build_windows.sh [--products] [x64|x86]...      --products: without the tests
set -euo pipefail
cd "$(dirname "$0")/.."

targets=()
if [ "${1:-}" = --products ]; then
  targets=(--target tq8v4461 shopsuite shophost)
  shift
fi
tools/fetch_sqlite.sh
widths=("$@")
[ $# -gt 0 ] || widths=(x64 x86)
for width in "${widths[@]}"; do
  launcher=()
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  cmake --preset "windows-$width" "${launcher[@]}" >/dev/null
  cmake --build --preset "windows-$width" "${targets[@]}" -j "$(nproc)"
done
