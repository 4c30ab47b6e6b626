#!/bin/sh
# Builds the smallest library for 32-bit ARM (Thumb-2) and for this machine, and reports how large
# it is, how much of it the engine is, and how much stack it takes; and how large the library is
# that is built for speed. `!` marks what is over its limit.
set -eu
cd "$(dirname "$0")/.."

# measure TITLE BUILD_DIRECTORY TOOL_PREFIX CMAKE_ARGUMENT...
measure() {
    title=$1
    build=$2
    tools=$3
    shift 3
    rm -rf "$build" # else objects of files that are gone are counted as well
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=MinSizeRel -DTARN_TOOLS=OFF \
        -DTARN_EXAMPLES=OFF -DTARN_TESTS=OFF "$@" \
        -DCMAKE_CXX_FLAGS_MINSIZEREL="-Os -DNDEBUG -fcallgraph-info=su" >"$build.log"
    cmake --build "$build" --target tarn >>"$build.log"
    "${tools}strip" -o "$build/libtarn_stripped.so" "$build/src/libtarn.so.0"
    python3 bench/size_report.py "$title" "$build/libtarn_stripped.so" \
        "$build/src/CMakeFiles/tarn.dir" "$tools"
}

mkdir -p build
measure "32-bit ARM, Thumb-2, -Os" build/size-armhf arm-linux-gnueabihf- \
    -DCMAKE_TOOLCHAIN_FILE=cmake/toolchains/armhf.cmake
measure "This machine, -Os" build/size-native ""

cmake -S . -B build/size-speed -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_TOOLS=OFF \
    -DTARN_EXAMPLES=OFF -DTARN_TESTS=OFF >build/size-speed.log
cmake --build build/size-speed --target tarn >>build/size-speed.log
python3 bench/size_report.py "This machine, -O2" build/size-speed/src/libtarn.so.0

scripts/bare_metal.sh
