#!/usr/bin/env bash
# Runs a script or the host while somebody presses on through every window it opens, and checks what was seen on the way.
# Usage: show.sh WINE PRESS_ON SCRIPT.vbs|PROGRAM.exe
set -euo pipefail
wine=$1 press_on=$2 what=$3

case $what in
  *.vbs) seen=$("$wine" "$press_on" cscript //nologo "Z:$what") ;;
  *) shop=$(mktemp -d)
     trap 'rm -rf "$shop"' EXIT
     seen=$("$wine" "$press_on" "$what" --unattended --company 1 --shop 1 --user 1 --date 15/03/2024 --database "Z:${shop//\//\\}\\shop.db") ;;
esac
seen=$(tr -d '\r' <<<"$seen")
echo "$seen"
case $what in
  # A closed connection is reported, the register opens all the same, and the script goes on after it.
  *.vbs) grep -q '^message: ' <<<"$seen" && grep -q '^form: ' <<<"$seen" && grep -q '^script: returned$' <<<"$seen" ;;
  *) grep -q '^form: ' <<<"$seen" && grep -q '^ended: 0$' <<<"$seen" && ! grep -q '^message: ' <<<"$seen" ;;
esac
