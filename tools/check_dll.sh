#!/usr/bin/env bash
# Looks at server DLLs from outside, whichever their width: the four entry points and no others, imports from the system only,
# "OLESelfRegister" in the version block, the icon, the component's type library, and the size.
# Usage: tools/check_dll.sh DLL...
set -euo pipefail

system='ADVAPI32|COMCTL32|COMDLG32|GDI32|KERNEL32|MSVCRT|OLE32|OLEAUT32|SHELL32|SHLWAPI|USER32|UXTHEME|WINSPOOL\.DRV|api-ms-win-.*'
failed=0
fail() { echo "$1: $2" >&2; failed=1; }

for dll in "$@"; do
  name=$(basename "$dll")
  tools=x86_64-w64-mingw32
  headers=$($tools-objdump -p "$dll")
  # The magic of the optional header: 020b is the wide one.
  grep -q '^Magic.*020b' <<<"$headers" || tools=i686-w64-mingw32
  exports=$(sed -n '/Ordinal\/Name Pointer/,/^$/p' <<<"$headers" | awk '/\[ *[0-9]+\]/ {print $NF}' | sort | tr '\n' ' ')
  [ "$exports" = "DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer " ] || fail "$name" "exports are: $exports"
  foreign=$(sed -n 's/.*DLL Name: //p' <<<"$headers" | grep -vixE "($system)(\.dll)?" | tr '\n' ' ' || true)
  [ -z "$foreign" ] || fail "$name" "imports from $foreign"
  resources=$($tools-windres -J coff -O rc "$dll" 2>/dev/null)
  grep -qi "GROUP_ICON\|[0-9] ICON" <<<"$resources" || fail "$name" "no icon"
  grep -q OLESelfRegister <<<"$resources" || fail "$name" "no OLESelfRegister in the version block"
  if [ "$name" = tq8v4461.dll ]; then
    grep -qi TYPELIB <<<"$resources" || fail "$name" "no type library"
    # The library's own marks: its signature, and its name.
    grep -qa MSFT "$dll" && grep -qa tq8v4461 "$dll" || fail "$name" "no readable type library"
    if grep -qa sqlite3 "$dll"; then fail "$name" "contains the embedded database"; fi
  fi
  size=$(stat -c %s "$dll")
  [ "$size" -le $((3 * 1024 * 1024)) ] || fail "$name" "is $size bytes, more than 3 MB"
done
exit $failed
