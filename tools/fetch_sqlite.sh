#!/usr/bin/env bash
# Fetches SQLite's amalgamation for the Windows builds into build/sqlite, once: pinned version, checked by hash.
set -euo pipefail
cd "$(dirname "$0")/.."

package=better-sqlite3@11.10.0
hash=71e2d66a44dafc35649ff82742cf4908557fc31841108d19703b74b7065c0293
target=build/sqlite

[ -f "$target/$hash" ] && exit 0
mkdir -p build
work=$(mktemp -d build/sqlite.XXXXXX)
trap 'rm -rf "$work"' EXIT
archive=$(cd "$work" && npm pack --silent "$package")
echo "$hash  $work/$archive" | sha256sum --check --quiet
tar -xzf "$work/$archive" -C "$work" --strip-components=3 package/deps/sqlite3
rm "$work/$archive"
touch "$work/$hash"
rm -rf "$target"
mv "$work" "$target"
