#!/usr/bin/env bash
# Counts the instructions of calls of tarn.hpp beside the C calls that they stand for; fails when one
# takes more than 5 % more.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${TARN_BENCH_BUILD:-build/bench}
mkdir -p build
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_TOOLS=OFF -DTARN_EXAMPLES=OFF \
    -DTARN_TESTS=OFF >"$build.log"
cmake --build "$build" --target tarn tarn_host >>"$build.log"
folders=("$build/src" "$build/host")
g++ -std=c++20 -O2 -Iinclude -Iplatform -Ibench bench/cpp_calls.cpp -o "$build/cpp_calls" \
    "${folders[@]/#/-L}" -Wl,--no-as-needed -ltarn -ltarn_host -Wl,-z,now
rm -f "$build"/cpp_calls.callgrind*
LD_LIBRARY_PATH=$(IFS=:; echo "${folders[*]}") valgrind --tool=callgrind \
    --callgrind-out-file="$build/cpp_calls.callgrind" "$build/cpp_calls" >"$build/cpp_calls.log" 2>&1 ||
    { cat "$build/cpp_calls.log" >&2; exit 1; }

awk -F': ' '
    /^desc: Trigger: Client Request/ { split($4, name, "/"); side = name[2] }
    /^summary/ { count[name[1], side] = $2; if (side == "C++") names[++rows] = name[1] }
    END {
        printf "%-30s %8s %8s %7s\n", "instructions", "C", "C++", "ratio"
        for (i = 1; i <= rows; i++) {
            c = count[names[i], "C"]; cpp = count[names[i], "C++"]
            over = cpp > 1.05 * c
            printf "%-30s %8d %8d %7.3f%s\n", names[i], c, cpp, cpp / c, over ? " !" : ""
            failed += over
        }
        exit failed != 0 || rows == 0
    }' $(ls "$build"/cpp_calls.callgrind.* | sort -V)
