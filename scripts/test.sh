#!/usr/bin/env bash
# Passes every check of the project, installing what is missing. With arguments, the stages named:
#   format     clang-format
#   gcc        the tests, built by g++
#   sanitizers the tests, built by clang++ with AddressSanitizer and UndefinedBehaviorSanitizer
#   tidy       clang-tidy
#   threads    many threads at once under ThreadSanitizer
#   fuzz       the fuzz targets, for a short time
#   armhf      the tests on 32-bit ARM (Thumb-2), under qemu
#   s390x      the tests on a big-endian processor, under qemu
#   abi        the binary interface against its baseline
#   coverage   every line and branch of the library
set -euo pipefail
cd "$(dirname "$0")/.."

stage_format() {
    git ls-files -z '*.cpp' '*.c' '*.h' | grep -zv '^include/' |
        xargs -0 clang-format --dry-run --Werror
}

run_preset() {
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" -- --quiet
    ctest --preset "$1" -j "$(nproc)" --progress
}

stage_gcc() { run_preset release; }
stage_sanitizers() { run_preset sanitizers; }
stage_armhf() { run_preset armhf; }
stage_s390x() { run_preset s390x; }

stage_tidy() {
    [ -f build/release/compile_commands.json ] || cmake --preset release >/dev/null
    git ls-files -z 'src/*.cpp' 'host/*.cpp' 'tools/*.cpp' |
        xargs -0 -P "$(nproc)" -n 4 clang-tidy -p build/release --quiet
}

stage_threads() { scripts/threads.sh; }
stage_fuzz() { scripts/fuzz.sh 10; }
stage_abi() { scripts/abi.sh; }
stage_coverage() { scripts/coverage.sh; }

all=(format gcc sanitizers tidy threads fuzz armhf s390x abi coverage)
[ $# -gt 0 ] || set -- "${all[@]}"

scripts/packages.sh test
begun=$SECONDS
passed=0
for stage in "$@"; do
    if ! declare -F "stage_$stage" >/dev/null; then
        echo "no stage '$stage'; there are: ${all[*]}" >&2
        exit 2
    fi
    echo "==== $stage"
    start=$SECONDS
    # In a shell of its own: a function called in a condition would go on after a failed command.
    if ! bash -euo pipefail -c "$(declare -f run_preset "stage_$stage"); stage_$stage"; then
        echo "==== $stage failed after $((SECONDS - start)) s" >&2
        echo "$passed passed, 1 failed"
        exit 1
    fi
    echo "==== $stage passed in $((SECONDS - start)) s"
    passed=$((passed + 1))
done
echo "all stages in $((SECONDS - begun)) s"
echo "$passed passed, 0 failed"
