#!/usr/bin/env bash
# Builds the benchmark programs in Release and runs them: the native ones directly,
# the Windows ones under Wine. Figures are best-of-N wall times on this machine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tools/bootstrap.sh
cmake -S . -B build/bench -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build/bench -j 2 --target menu_bench
echo "== menu file and folder rules (native)"
build/bench/bench/menus/menu_bench
