#!/usr/bin/env bash
# Runs the tests on sanitized libraries:
#   scripts/sanitizers.sh compact  that form under AddressSanitizer and UndefinedBehaviorSanitizer
#   scripts/sanitizers.sh speed    the one built for speed, of which the compiler makes many copies,
#                                  under AddressSanitizer; scripts/fuzz.sh sees it under most of both
# The test programs are those of build/release, which must be there: their own code would gain
# nothing, and blocks and copies are watched whoever makes them.
set -euo pipefail
cd "$(dirname "$0")/.."

# Calls for the checks instead of code at each access: half the time to compile, and tests run little.
options="-O1 --param=asan-instrumentation-with-call-threshold=0"
# What cannot be told below a sanitizer:
left_out=(
    RunningOut       # a limit on addresses leaves the sanitizer none
    FreeingTwice     # the sanitizer ends the program itself
    AForkAtAnyMoment # the child may find the sanitizer's own lock held
    BurstsOf '^soak' # memory does not grow, where the sanitizer keeps what is freed
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
    # The test host counts the library's blocks itself; other programs leave theirs to their end. To
    # keep more than five callers of each block takes a third of the time.
    LD_PRELOAD=$runtime LD_LIBRARY_PATH=$PWD/$1/src:$PWD/$1/host \
        ASAN_OPTIONS=detect_leaks=0:malloc_context_size=5 UBSAN_OPTIONS=print_stacktrace=1 \
        ctest --test-dir build/release -j "$(nproc)" --progress --output-on-failure \
        -LE 'files|others_programs' \
        -E "$(IFS='|' && echo "${left_out[*]}")"
}
case "${1:-}" in
compact) run_tests build/sanitizers-compact address,undefined -DTARN_COMPACT=ON ;;
speed) run_tests build/sanitizers-speed address ;;
*) sed -n '2,9s/^# \{0,1\}//p' "$0"; exit 2 ;;
esac
