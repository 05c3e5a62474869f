#!/usr/bin/env bash
# Builds the benchmark programs and runs them: the native ones (Release) directly,
# the Windows ones under Wine. Figures are best-of-N wall times on this machine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tools/bootstrap.sh
cmake -S . -B build/bench -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build/bench -j 2 --target menu_bench
echo "== menu file and folder rules (native)"
build/bench/bench/menus/menu_bench

cmake --preset win64 >/dev/null
cmake --build --preset win64 -j 2 --target folder_bench menu_window_bench hotspot_bench startup_bench
tools/wine-run.sh --prefix build/win64/wineprefix --init
echo "== folder listing against a bare enumeration (Wine)"
bench/win/folder_bench.sh build/win64
echo "== menu window (Wine)"
tools/wine-run.sh --prefix build/win64/wineprefix build/win64/bin/menu_window_bench.exe
echo "== the resident program: idle cost and click to menu (Wine)"
tools/wine-run.sh --prefix build/win64/wineprefix build/win64/bin/hotspot_bench.exe
echo "== start-up with menu files of 10 to 50,000 items (Wine)"
tools/wine-run.sh --prefix build/win64/wineprefix build/win64/bin/startup_bench.exe
