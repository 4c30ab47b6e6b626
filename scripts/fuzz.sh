#!/usr/bin/env bash
# Fuzzes the library: scripts/fuzz.sh [--compact] [SECONDS-PER-TARGET] [TARGET...]
# Builds it, or its compact form, with clang, AddressSanitizer and UndefinedBehaviorSanitizer in
# build/fuzz or build/fuzz-compact and runs each target for so long (60 s by default), as many at once
# as there are processors, going on from what earlier runs have found there. A finding ends a target's
# run with the file that shows it; kept in fuzz/regressions, it is replayed by the tests.
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/fuzz
compact=OFF
seconds=60
if [ "${1:-}" = --compact ]; then
    build=build/fuzz-compact
    compact=ON
    shift
fi
if [[ "${1:-}" == -* ]]; then
    sed -n '2,6s/^# \{0,1\}//p' "$0"
    exit 2
fi
if [[ "${1:-}" =~ ^[0-9]+$ ]]; then
    seconds=$1
    shift
fi
[ $# -gt 0 ] || set -- decode record ie calls input json

cmake -S . -B $build -G Ninja -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS_DEBUG="-O1 -gline-tables-only" \
    -DCMAKE_CXX_FLAGS_DEBUG="-O1 -gline-tables-only" \
    -DTARN_SANITIZE=address,undefined -DTARN_FUZZ=ON -DTARN_COMPACT=$compact \
    -DTARN_TESTS=OFF -DTARN_EXAMPLES=OFF >/dev/null
cmake --build $build --target "${@/%/_fuzz}" -- --quiet

fuzz() { # target
    local found=$build/found/$1 log=$build/$1.log failed=0
    mkdir -p "$found" $build/findings
    # The longest inputs that corpora begin with take some 4,100 bytes. Inputs take microseconds, but
    # a machine that does other things as well may stand still for long.
    $build/fuzz/"$1"_fuzz -max_total_time="$seconds" -max_len=5000 -timeout=120 \
        -rss_limit_mb=1024 -dict=$build/fuzz/corpus/dictionary -print_final_stats=1 \
        -artifact_prefix="$build/findings/$1-" \
        "$found" $build/fuzz/corpus/"$1" fuzz/regressions/"$1" >"$log" 2>&1 || failed=1
    awk -v target="$1" '
        /^INFO: Loaded/ && match($0, /\([0-9]+ inline/) { edges = substr($0, RSTART + 1, RLENGTH - 8) }
        match($0, / cov: [0-9]+/) { reached = substr($0, RSTART + 6, RLENGTH - 6) }
        /^stat::number_of_executed_units/ { executions = $2 }
        /^stat::new_units_added/ { added = $2 }
        END { printf "%-7s %9d executions, %5d of %d edges of the library, %d new inputs\n",
                     target, executions, reached, edges, added }' "$log"
    if [ $failed -ne 0 ]; then
        grep -v '^#' "$log" | tail -40
        echo "to see it again: $build/fuzz/$1_fuzz FILE, with the file written above" >&2
        return 1
    fi
}

export build seconds
export -f fuzz
if ! printf '%s\n' "$@" | xargs -P "$(nproc)" -n 1 bash -euo pipefail -c 'fuzz "$0"'; then
    echo "there are findings"
    exit 1
fi
echo "$# targets without findings"
