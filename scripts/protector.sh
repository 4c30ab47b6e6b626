#!/usr/bin/env bash
# Counts what the stack protector costs: the instructions of libtarn and its host in encoding and
# decoding the four messages of the benchmarks, with and without it in each of the two.
set -euo pipefail
cd "$(dirname "$0")/.."
work=build/protector

build() { # directory, unprotected targets
    cmake -S . -B "$work/$1" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_TOOLS=OFF -DTARN_INFO=OFF \
        -DTARN_EXAMPLES=OFF -DTARN_TESTS=OFF -DTARN_UNPROTECTED="$2" >"$work/$1.log"
    cmake --build "$work/$1" --target tarn tarn_host -- --quiet
}
# instructions ROADS CODEC HOST: within the library's functions, its host's included.
instructions() {
    LD_LIBRARY_PATH=$work/$2/src:$work/$3/host valgrind --tool=callgrind --toggle-collect='Tarn*' \
        --callgrind-out-file=$work/out "$work/program_$1" 2>&1 |
        sed -n 's/.*Collected : //p'
}

mkdir -p $work
build without "tarn;tarn_host"
build with ""
for roads in 1 2; do
    g++ -std=c++20 -O2 "-DROADS=$roads" -Iinclude -Iplatform -o $work/program_$roads \
        bench/four_messages.cpp bench/object_road.cpp bench/samples.cpp \
        -L$work/without/src -L$work/without/host -ltarn -ltarn_host
done
printf '%-24s %14s %14s\n' "stack protector in" objects "one call"
for way in "neither without without" "codec with without" "host without with"; do
    read -r name codec host <<<"$way"
    printf '%-24s' "$name"
    for roads in 1 2; do
        count=$(instructions $roads "$codec" "$host")
        [ "$name" != neither ] || declare "none_$roads=$count"
        none=none_$roads
        printf ' %6d %6s%%' "$count" "$(awk "BEGIN { printf \"%+.1f\", 100 * ($count / ${!none} - 1) }")"
    done
    echo
done
