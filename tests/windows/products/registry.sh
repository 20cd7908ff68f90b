#!/usr/bin/env bash
# Registers the two servers, or takes them out and compares the registry with what it was before.
# Usage: registry.sh register|unregister WINE PRODUCTS WORK
set -euo pipefail
step=$1 wine=$2 products=$3 work=$4

classes() {
  for root in HKLM HKCU; do
    : >"$work/export.reg"
    "$wine" reg export "$root\\Software\\Classes" "$(winepath_of "$work/export.reg")" /y >/dev/null 2>&1 || true  # no such key
    iconv -f utf-16 -t utf-8 "$work/export.reg" >"$work/$1.$root.reg"
  done
}
winepath_of() { echo "Z:${1//\//\\}"; }
server() { "$wine" regsvr32 /s $1 "$(winepath_of "$products/$2.dll")"; }

case $step in
  register)
    server /u tq8v4461 || true
    server /u shopsuite || true
    # Without a window manager a window waits seconds to be shown; in Wine's own desktop it does not.
    "$wine" reg add 'HKCU\Software\Wine\Explorer\Desktops' /v tests /d 1280x1000 /f >/dev/null
    for program in press_on test_windows_products test_windows_shop_day test_windows_server_trial test_windows_report \
                   test_windows_bad_hosts; do
      "$wine" reg add "HKCU\\Software\\Wine\\AppDefaults\\$program.exe\\Explorer" /v Desktop /d tests /f >/dev/null
    done
    # The script host registers itself when it is first used; that is none of ours.
    : >"$work/empty.vbs"
    "$wine" cscript //nologo "$(winepath_of "$work/empty.vbs")"
    classes before
    server "" tq8v4461
    server "" shopsuite
    classes registered
    for wanted in tq8v4461.clsGoodsRequest ShopCommon.clsCommonDB ShopCommon.clsCommonGen Lookup.clsFetch Theme.clsFormcolor \
                  Audit.clsUserAuditing GridPrefs.clsMasterGridSetting ErrLog.ErrorDetails ShopSuite.Database; do
      grep -q "\\\\$wanted\\\\CLSID\\]" "$work/registered.HKLM.reg" || { echo "$wanted is not registered" >&2; exit 1; }
    done
    ;;
  unregister)
    server /u tq8v4461
    server /u shopsuite
    classes after
    for root in HKLM HKCU; do
      diff "$work/before.$root.reg" "$work/after.$root.reg"
    done
    ;;
esac
