#!/usr/bin/env bash
# Builds tarvex2.exe and runs it under Wine in a 1024x768 virtual desktop window,
# from a program folder with the default menus and the shipped themes
# (build/win64/run). The program keeps running until it is told to exit from its
# tray icon's menu.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tools/bootstrap.sh
cmake --preset win64 >/dev/null
cmake --build --preset win64 -j 2 --target tarvex2

run_dir=build/win64/run
mkdir -p "$run_dir"
cp build/win64/bin/tarvex2.exe "$run_dir/"
if [ -f build/win64/bin/DefMenu.ini ]; then
    cp build/win64/bin/DefMenu.ini "$run_dir/"
fi
# The shipped themes, for BitmapsFolder to point at (Themes\Aurora).
cp -r build/win64/bin/Themes "$run_dir/"
cd "$run_dir"
exec ../../../tools/wine-run.sh --prefix ../wineprefix-run tarvex2.exe "$@"
