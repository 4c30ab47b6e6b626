#!/usr/bin/env bash
# Runs the tests on libraries built with AddressSanitizer and UndefinedBehaviorSanitizer, once with the
# engine built for speed and once with the compact one. The test programs are those of build/release,
# which must be there: their own code would gain nothing, and blocks and copies are watched whoever
# makes them.
set -euo pipefail
cd "$(dirname "$0")/.."

options="-O1 -g1"
build() { # directory, CMake arguments
    cmake -S . -B "$1" -G Ninja -DCMAKE_C_COMPILER=gcc -DCMAKE_CXX_COMPILER=g++ \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS_DEBUG="$options" \
        -DCMAKE_CXX_FLAGS_DEBUG="$options" -DTARN_SANITIZE=address,undefined -DTARN_TESTS=OFF \
        -DTARN_TOOLS=OFF -DTARN_EXAMPLES=OFF "${@:2}" >/dev/null
    cmake --build "$1" --target tarn tarn_host -- --quiet
}

runtime=$(g++ -print-file-name=libasan.so):$(g++ -print-file-name=libubsan.so)
run_tests() { # directory
    # The host counts the library's blocks itself. Programs that are not ours, like the shell, leave
    # some of theirs to their end.
    LD_PRELOAD=$runtime LD_LIBRARY_PATH=$PWD/$1/src:$PWD/$1/host \
        ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
        ctest --test-dir build/release -j "$(nproc)" --progress --output-on-failure -LE files
}

build build/sanitizers-fast
build build/sanitizers-compact -DTARN_COMPACT=ON
run_tests build/sanitizers-fast
run_tests build/sanitizers-compact
