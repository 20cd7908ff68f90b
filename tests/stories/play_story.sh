#!/usr/bin/env bash
# Plays a story in a fresh shop folder and compares what the program prints, and its exit status, with it. Its commands are the
# lines after "> ", as the program echoes them. Another file is a plain script: it must end with status 0 and report no error.
# Usage: play_story.sh PROGRAM FILE
# The first command may give options of the program: "> # options: --user 4". Files beside the stories can be named in them.
set -euo pipefail
program=$(readlink -f "$1") told=$(readlink -f "$2") here=$(dirname "$(readlink -f "$0")")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/shop"
cp "$here"/*.sql "$folder" 2>/dev/null || true
cp "$here/../../platform/console/tour/ShopSetting.txt" "$folder/shop"
export XDG_STATE_HOME=$folder/state
cd "$folder"
if [[ $told == *.story ]]; then sed -n 's/^> \?//p' "$told" >script; else cp "$told" script; fi
options=$(sed -n '1s/^# options: //p' script)
status=0
# shellcheck disable=SC2086  # the options are words
"$program" --app-folder shop --now "2024-03-15 09:30:00" --echo $options --script script >printed 2>&1 || status=$?
echo "exit status $status" >>printed

if [[ $told != *.story ]]; then
  if [ "$status" != 0 ] || grep -n '^log:' printed; then
    cat printed
    exit 1
  fi
elif [ -n "${UPDATE:-}" ]; then
  cp printed "$told"
else
  diff --text --unified=4 --label "$(basename "$told")" "$told" --label printed printed
fi
