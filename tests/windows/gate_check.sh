#!/usr/bin/env bash
# The system's headers come in through one gate, and only the Windows side knows that there is a Windows.
# Usage: gate_check.sh SOURCE_FOLDER
set -euo pipefail
cd "$1"

failed=0
refuse() { if [ -n "$2" ]; then printf '%s\n%s\n' "$1" "$2" >&2; failed=1; fi; }
sources=(--include=*.h --include=*.cpp)
refuse "windows.h outside of its gate:" \
  "$(grep -rnE '# *include *<(windows|objbase|oleauto|ocidl|oaidl|unknwn)\.h>' "${sources[@]}" base src suite platform tests bench |
     grep -v '^platform/windows/windows_gate.h:' || true)"
refuse "the portable rooms reach for the Windows side:" \
  "$(grep -rnE '# *include *("platform/|<(commctrl|shlobj|shellapi|winuser)\.h>)|_WIN32' "${sources[@]}" base src suite || true)"
exit $failed
