#!/usr/bin/env bash
# Plays a console script in a fresh shop folder and compares what it prints, and its exit status, with the expected file; without
# an expected file it must end with status 0 and report no error.
# Usage: play_story.sh PROGRAM SCRIPT [EXPECTED]
# A script's first line may give options of the program: "# options: --user 4". Files beside the scripts can be named in them.
set -euo pipefail
program=$(readlink -f "$1") script=$(readlink -f "$2") expected=${3:+$(readlink -m "$3")} here=$(dirname "$(readlink -f "$0")")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/shop"
cp "$here"/*.sql "$folder" 2>/dev/null || true
cp "$here/../../platform/console/tour/ShopSetting.txt" "$folder/shop"
options=$(sed -n '1s/^# options: //p' "$script")
export XDG_STATE_HOME=$folder/state
cd "$folder"
status=0
# shellcheck disable=SC2086  # the options are words
"$program" --app-folder shop --now "2024-03-15 09:30:00" --echo $options --script "$script" >printed 2>&1 || status=$?
echo "exit status $status" >>printed

if [ -z "$expected" ]; then
  if [ "$status" != 0 ] || grep -n '^log:' printed; then
    cat printed
    exit 1
  fi
elif [ -n "${UPDATE:-}" ]; then
  cp printed "$expected"
else
  diff --text --unified=4 --label expected "$expected" --label printed printed
fi
