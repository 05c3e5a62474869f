#!/usr/bin/env bash
# Runs one Windows program under Wine the way the tests need it:
#   wine-run.sh [--prefix DIR] [--dpi N] PROGRAM.exe [ARGS...]
#   wine-run.sh [--prefix DIR] [--dpi N] --init        (only make the prefix)
# The prefix is private to the build (created once, then reused) and shows a
# 1024x768 virtual desktop, so that input sent by one process is seen by another.
# --dpi makes a prefix whose screen has that many dots per inch (96 otherwise), with
# the desktop grown to match (up to 1536x1152); give such a prefix a folder of its own.
# Xvfb is started when there is no display. Runs are serialised on the prefix, and
# the prefix's wineserver is stopped after each run.
set -uo pipefail

TOOLS_DIR=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/xvfb.sh
. "$TOOLS_DIR/xvfb.sh"

prefix=${TARVEX_WINEPREFIX:-$PWD/wineprefix}
if [ "${1:-}" = "--prefix" ]; then
    prefix=$2
    shift 2
fi
dpi=96
if [ "${1:-}" = "--dpi" ]; then
    dpi=$2
    shift 2
fi
mkdir -p "$prefix"
export WINEPREFIX=$(cd "$prefix" && pwd)
export WINEDEBUG=${WINEDEBUG:--all}
# No Mono or Gecko installers: nothing here uses .NET or HTML.
export WINEDLLOVERRIDES="mscoree=;mshtml=${WINEDLLOVERRIDES:+;$WINEDLLOVERRIDES}"

ensure_display

exec 9>"$WINEPREFIX.lock"
flock 9

make_prefix() {
    [ -f "$WINEPREFIX/.tarvex-ready" ] && return 0
    wineboot --init >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null 2>&1
    # The desktop grows with the DPI up to 144, the largest the X screen holds.
    local grown=$((dpi < 144 ? dpi : 144))
    wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d "$((1024 * grown / 96))x$((768 * grown / 96))" /f \
        >/dev/null 2>&1
    if [ "$dpi" != 96 ]; then
        wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null 2>&1
    fi
    wineserver -w
    touch "$WINEPREFIX/.tarvex-ready"
}

make_prefix || { echo "wine-run: could not create the prefix $WINEPREFIX" >&2; exit 1; }
if [ "${1:-}" = "--init" ]; then
    exit 0
fi

wine "$@"
status=$?
wineserver -k 2>/dev/null
wineserver -w 2>/dev/null
exit $status
