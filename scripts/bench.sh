#!/bin/sh
# Builds the benchmarks, runs them, and prints instructions and time of each operation beside its
# floors and peers, and instructions per IE as messages grow; draws the peers as a chart.
#
#   scripts/bench.sh                   all of it
#   scripts/bench.sh profile NAME      where an operation's instructions go, by function, e.g.
#                                      "RabAssignmentRequest/decode/objects"
#   scripts/bench.sh against REVISION [LAYOUTS]
#                                      the time beside that of another revision's library, each
#                                      linked in several orders, since where code lies tells
#   scripts/bench.sh tool              the tool's messages a second, beside tshark
#   scripts/bench.sh cpp               tarn.hpp beside the C calls that it stands for
set -eu
cd "$(dirname "$0")/.."
[ "${1:-}" != cpp ] || exec scripts/bench_cpp.sh
build=${TARN_BENCH_BUILD:-build/bench}

mkdir -p build
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_BENCH=ON -DTARN_EXAMPLES=OFF \
    -DTARN_TESTS=OFF >"$build.log"
if [ "${1:-}" = tool ]; then
    cmake --build "$build" --target tarn_tool >>"$build.log"
    exec bench/tool.sh "$build/tools/tarn/tarn"
fi
cmake --build "$build" --target tarn_time tarn_count tarn_linearity >>"$build.log"
if [ "${1:-}" = against ]; then
    other=$(scripts/revision.sh "${2:?the revision is missing}" speed)
    exec python3 bench/layouts.py "$build/bench/tarn_time" "$other" "$build" ${3:-}
fi

# count PROGRAM: runs it under callgrind, which leaves one dump for each of its measurements.
count() {
    rm -f "$build/$1.callgrind"*
    valgrind --tool=callgrind --callgrind-out-file="$build/$1.callgrind" "$build/bench/$1" \
        >"$build/$1.log" 2>&1 || { cat "$build/$1.log" >&2; exit 1; }
}

count tarn_count
if [ "${1:-}" = profile ]; then
    callgrind_annotate --threshold=100 \
        "$(grep -lx "desc: Trigger: Client Request: $2/2" "$build"/tarn_count.callgrind*)" |
        grep -v "below main\|:main \[\|libc_start_main\|ld-linux"
    exit
fi
# Repetitions in random order, so that a busy moment does not fall on one operation alone; several
# processes, since how the buffers lie against each other in memory tells on the copies.
for process in 1 2 3 4 5; do
    "$build/bench/tarn_time" --benchmark_repetitions=7 --benchmark_min_time=0.02 \
        --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true \
        --benchmark_out_format=json --benchmark_out="$build/times.$process.json" \
        >"$build/tarn_time.log" 2>&1
done
count tarn_linearity
python3 bench/compare.py operations "$build/tarn_count.callgrind" "$build"/times.?.json
python3 bench/compare.py linearity "$build/tarn_linearity.callgrind"
python3 bench/chart.py "$build/tarn_count.callgrind" "$build/one_call.svg"
echo "The first table as a chart: $build/one_call.svg, of which docs/one_call.svg is a copy."
