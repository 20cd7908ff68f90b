#!/usr/bin/env bash
# A room includes its own headers and those of the rooms below it, no others.
# Usage: arrows.sh SOURCE_FOLDER
set -euo pipefail
cd "$1"

# Each room, then the rooms right below it; what is below those is below it too. A room comes after the rooms it knows.
rooms='
base/vb
base/late                             base/vb
base/ado                              base/late
base/controls                         base/late
base/workstation                      base/vb

src/faces                             base/ado base/controls
src/module                            src/faces base/workstation
src/records                           src/module
src/lists                             src/records
src/counter                           src/lists
src/printing                          src/lists
src/fetch                             src/counter
src/itementry                         src/fetch
src/editor                            src/itementry
src/register                          src/editor src/printing
src/entry                             src/register

suite/engine/values                   base/ado
suite/engine/language                 suite/engine/values
suite/engine/functions                suite/engine/values
suite/engine/translation              suite/engine/language
suite/engine/store                    suite/engine/translation suite/engine/functions
suite/engine/objects                  suite/engine/store
suite/shop                            suite/engine/objects
suite/helpers                         base/ado base/controls base/workstation
suite/host                            base/ado base/controls

platform/text/drawing                 base/controls
platform/text                         platform/text/drawing base/workstation
platform/terminal                     platform/text
platform/console                      platform/text
platform/console/program              platform/console platform/terminal src/entry suite/shop suite/helpers suite/host

platform/windows
platform/windows/com                  platform/windows base/late
platform/windows/workstation          platform/windows base/workstation
platform/windows/desktop              platform/windows/com base/controls
platform/windows/products/common      platform/windows/desktop
platform/windows/products/tq8v4461    platform/windows/products/common platform/windows/workstation src/entry
platform/windows/products/shopsuite   platform/windows/products/common platform/windows/workstation suite/shop suite/helpers
platform/windows/products/shophost    platform/windows/products/common platform/windows/workstation suite/host
'

grep -rnE --include=*.h --include=*.cpp --include=*.rc '^ *# *include *"' base src suite platform | awk -v rooms="$rooms" '
  function fail(text) { print text > "/dev/stderr"; failed = 1 }
  BEGIN {
    count = split(rooms, lines, "\n")
    for (i = 1; i <= count; ++i) {
      words = split(lines[i], word, " ")
      if (words == 0) continue
      known[word[1]] = below[word[1], word[1]] = 1
      for (w = 2; w <= words; ++w) {
        if (!(word[w] in known)) fail("arrows.sh: " word[1] " comes before " word[w])
        for (room in known) if ((word[w], room) in below) below[word[1], room] = 1
      }
    }
  }
  {
    place = $0; sub(/:.*/, "", place); from = place; sub(/\/[^\/]*$/, "", from)
    to = $0; sub(/^[^"]*"/, "", to); sub(/".*/, "", to); sub(/\/[^\/]*$/, "", to)
    if (!(from in known)) fail(place ": " from " is no room of tests/arrows.sh")
    else if (!((from, to) in below)) fail(place ": " from " is not above " to)
    ++includes
  }
  END {
    if (includes == 0) fail("arrows.sh: no includes here")
    exit failed
  }'
