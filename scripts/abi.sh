#!/usr/bin/env bash
# Holds the binary interface to its committed baseline, on x86-64 and on 32-bit ARM.
#   scripts/abi.sh           compares; a change fails
#   scripts/abi.sh --accept  makes the interface as it is now the baseline
set -euo pipefail
cd "$(dirname "$0")/.."

# build PROCESSOR CMAKE_ARGUMENT...: the library alone, with debug information. Which form it has is
# nothing to the interface, and unoptimized no function is folded into another of the same code.
build() {
    local directory="build/abi-$1"
    [ -f "$directory/CMakeCache.txt" ] ||
        cmake -S . -B "$directory" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTARN_COMPACT=ON "${@:2}" \
            -DTARN_STATIC=OFF -DTARN_TOOLS=OFF -DTARN_INFO=OFF -DTARN_EXAMPLES=OFF \
            -DTARN_TESTS=OFF >/dev/null
    cmake --build "$directory" --target tarn -- --quiet
}

describe() { # processor, output: the interface as the public headers show it, free of local paths
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --headers-dir include \
        --headers-dir platform --drop-private-types "build/abi-$1/src/libtarn.so.0" >"$2"
}

compare() { # processor
    abidiff --headers-dir2 include --headers-dir2 platform "cmake/abi/$1.abi" \
        "build/abi-$1/src/libtarn.so.0"
}

build x86_64
build armhf --toolchain cmake/toolchains/armhf.cmake

failed=0
for processor in x86_64 armhf; do
    if [ "${1:-}" = --accept ]; then
        describe "$processor" "cmake/abi/$processor.abi"
        echo "cmake/abi/$processor.abi is the interface as it is now"
    else
        compare "$processor" || failed=1
    fi
done
if [ "$failed" -ne 0 ]; then
    echo "the binary interface has changed; if that is meant, accept it with: scripts/abi.sh --accept" >&2
    exit 1
fi
