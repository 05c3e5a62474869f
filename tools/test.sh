#!/usr/bin/env bash
# Builds every preset and runs every test tier: the native unit tests (ASan and
# UBSan), each fuzz target for a short while on its inputs, then the shell and
# end-to-end tests of the 64-bit build under Wine. The 32-bit release build is
# compiled with its tests. Exits non-zero on any failure.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tools/bootstrap.sh

# One X server for the whole run instead of one per Wine test.
. tools/xvfb.sh
ensure_display

for preset in native fuzz win64 win32; do
    echo "== build $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" -j 2
done

tools/wine-run.sh --prefix build/win64/wineprefix --init

passed=0
failed=0
status=0
run_tier() {
    local log
    log=$(mktemp)
    echo "== test $1"
    ctest --preset "$1" "${@:2}" | tee "$log" || status=1
    local line
    line=$(grep -E 'tests passed, [0-9]+ tests? failed out of [0-9]+' "$log" | tail -n 1 || true)
    if [ -n "$line" ]; then
        local total bad
        total=$(sed -E 's/.*out of ([0-9]+).*/\1/' <<<"$line")
        bad=$(sed -E 's/.*tests passed, ([0-9]+) tests? failed.*/\1/' <<<"$line")
        passed=$((passed + total - bad))
        failed=$((failed + bad))
    else
        status=1
    fi
    rm -f "$log"
}

# Each fuzz target for 15 seconds on its inputs, where the inputs that once crashed it
# are kept, so a fault that comes back shows. A target counts as one test.
run_fuzz_tier() {
    local log
    log=$(mktemp)
    echo "== test fuzz"
    tools/fuzz.sh 15 | tee "$log" || status=1
    local line
    line=$(grep -E '^fuzz: [0-9]+ passed, [0-9]+ failed$' "$log" | tail -n 1 || true)
    if [ -n "$line" ]; then
        passed=$((passed + $(sed -E 's/^fuzz: ([0-9]+) passed.*/\1/' <<<"$line")))
        failed=$((failed + $(sed -E 's/.* ([0-9]+) failed$/\1/' <<<"$line")))
    else
        status=1
    fi
    rm -f "$log"
}

run_tier native -j 2
run_fuzz_tier
# A Wine test that fails is run once more before it counts: windows under Wine on a
# loaded machine sometimes paint or move a moment late. A real fault fails twice.
run_tier win64 --repeat until-pass:2

echo "all tiers: $passed passed, $failed failed"
exit $status
