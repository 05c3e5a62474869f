#!/usr/bin/env bash
# Runs the folder benchmark under Wine:
#     bench/win/folder_bench.sh [BUILD_DIR] [--rounds N] [--keep]
# BUILD_DIR defaults to build/win64. Wine makes a new file only after reading through
# the whole folder it goes into (it looks for the name in every case), so
# folder_bench.exe would take half an hour here to make its 100,000 files. This script
# makes the folders the program plans with the Linux file system instead, in seconds;
# the program finds them complete, times them and removes them at the end.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$root/build/win64
if [ $# -gt 0 ] && [ "${1#--}" = "$1" ]; then
    build=$1
    shift
fi
prefix=$build/wineprefix
bench=$build/bin/folder_bench.exe
[ -f "$bench" ] || { echo "folder_bench.sh: $bench is not built" >&2; exit 1; }

wine_run() { "$root/tools/wine-run.sh" --prefix "$prefix" "$@" 2>/dev/null; }

plan=$(mktemp)
trap 'rm -f "$plan"' EXIT
wine_run "$bench" --print-plan | tr -d '\r' >"$plan"

benchroot=
folder=
marker= # set while a folder is being made; written once its last entry is there
finish_folder() {
    if [ -n "$marker" ]; then
        : >"$marker"
        marker=
    fi
}
while IFS= read -r line; do
    kind=${line%% *}
    rest=${line#* }
    case $kind in
    root) benchroot=$(wine_run winepath -u "$rest" | tr -d '\r') ;;
    folder)
        finish_folder
        folder=$benchroot/${rest%% *}
        if [ ! -e "$benchroot/${rest#* }" ]; then
            marker=$benchroot/${rest#* }
            echo "making $folder ..."
            rm -rf "$folder"
            mkdir -p "$folder"
        fi
        ;;
    file) [ -z "$marker" ] || : >"$folder/$rest" ;;
    sub) [ -z "$marker" ] || mkdir "$folder/$rest" ;;
    esac
done <"$plan"
finish_folder

wine_run "$bench" "$@"
