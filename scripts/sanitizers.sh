#!/usr/bin/env bash
# Runs the tests on sanitized libraries: the compact form of the engine under AddressSanitizer and
# UndefinedBehaviorSanitizer, and the one built for speed, of which the compiler makes many copies,
# under AddressSanitizer; the fuzz targets see that one under most of both. The test programs are
# those of build/release, which must be there: their own code would gain nothing, and blocks and
# copies are watched whoever makes them.
set -euo pipefail
cd "$(dirname "$0")/.."

# Calls for the checks instead of code at each access: half the time to compile, and tests run little.
options="-O1 --param=asan-instrumentation-with-call-threshold=0"
# What cannot be told below a sanitizer:
left_out=(
    RunningOut       # a limit on addresses leaves the sanitizer none
    FreeingTwice     # the sanitizer ends the program itself
    AForkAtAnyMoment # the child may find the sanitizer's own lock held
    BurstsOf         # the sanitizer keeps what is freed
)
runtime=$(g++ -print-file-name=libasan.so):$(g++ -print-file-name=libubsan.so)
run_tests() { # directory, sanitizers, CMake arguments
    cmake -S . -B "$1" -G Ninja -DCMAKE_C_COMPILER=gcc -DCMAKE_CXX_COMPILER=g++ \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS_DEBUG="$options" \
        -DCMAKE_CXX_FLAGS_DEBUG="$options" -DTARN_SANITIZE="$2" -DTARN_TESTS=OFF \
        -DTARN_TOOLS=OFF -DTARN_INFO=OFF -DTARN_EXAMPLES=OFF "${@:3}" >/dev/null
    cmake --build "$1" --target tarn tarn_host -- --quiet
    # Whatever the form, a library without a host is refused when it is loaded.
    LD_PRELOAD=$runtime build/release/tests/library_facts/refused_without_host "$1/src/libtarn.so.0"
    # The test host counts the library's blocks itself; other programs leave theirs to their end.
    export LD_LIBRARY_PATH=$PWD/$1/src:$PWD/$1/host
    export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
    UNDER="env LD_PRELOAD=$runtime" scripts/test_programs.sh build/release \
        "$(printf '*%s*:' "${left_out[@]}")" core/core primitive_ies/primitive_ies \
        composite_ies/composite_ies messages/messages records/records info/info host/host \
        threads/threads
    LD_PRELOAD=$runtime ctest --test-dir build/release -j "$(nproc)" --progress \
        --output-on-failure -R '^fuzz_|^jumping|^checked|^Exchange' \
        -E "$(IFS='|' && echo "${left_out[*]}")"
}
run_tests build/sanitizers-compact address,undefined -DTARN_COMPACT=ON
run_tests build/sanitizers-fast address
