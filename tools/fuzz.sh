#!/usr/bin/env bash
# Builds the fuzz preset and runs each fuzz target, or those named, for SECONDS each on
# a copy of its inputs (fuzz/inputs/<target>/) under build/fuzz/runs/<target>/, so the
# tree stays clean. Prints per target the run time, executions, the inputs kept and whether
# a crash was found; a crashing input is left in the run's crashes/ folder. Exits
# non-zero when a target crashed.
#   tools/fuzz.sh 1200              every target for 20 minutes
#   tools/fuzz.sh 30 menu_file      one target for 30 seconds
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:?usage: tools/fuzz.sh SECONDS [TARGET...]}
shift
if [ "$#" -gt 0 ]; then
    targets=("$@")
else
    targets=()
    for dir in fuzz/inputs/*/; do targets+=("$(basename "$dir")"); done
fi

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j 2 >/dev/null

passed=0
failed=0
for target in "${targets[@]}"; do
    run=build/fuzz/runs/$target
    rm -rf "$run"
    mkdir -p "$run/inputs" "$run/crashes"
    cp fuzz/inputs/"$target"/* "$run/inputs/"
    # Not niced: on a busy machine a niced fuzzer was starved past its 60-second limit on
    # one input, and a starved input reads as a hang.
    result=ok
    if ! build/fuzz/bin/"${target}"_fuzz -max_total_time="$seconds" -timeout=60 -print_final_stats=1 \
        -artifact_prefix="$run/crashes/" "$run/inputs" >"$run/log" 2>&1; then
        result="CRASH: $(ls "$run"/crashes/{crash,leak,oom,timeout}-* 2>/dev/null | head -n 1 || true) (log: $run/log)"
    fi
    executions=$(sed -nE 's/^stat::number_of_executed_units: *([0-9]+).*/\1/p' "$run/log" | tail -n 1)
    elapsed=$(sed -nE 's/^Done [0-9]+ runs in ([0-9]+) second.*/\1/p' "$run/log" | tail -n 1)
    printf '%-16s %6ss %12s executions %6s inputs kept  %s\n' "$target" "${elapsed:-?}" "${executions:-?}" \
        "$(find "$run/inputs" -type f | wc -l)" "$result"
    if [ "$result" = ok ]; then passed=$((passed + 1)); else failed=$((failed + 1)); fi
done

echo "fuzz: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
