#!/usr/bin/env bash
# Builds libtarn.a for bare metal, warnings being errors, and reports what a program with four
# messages takes of it, its host left out; fails where that is over its limit.
set -euo pipefail
cd "$(dirname "$0")/.."

mkdir -p build
echo "==== Bare metal, Thumb-2, -Os: a program with four messages, text and constants of libtarn.a"
echo
cmake --preset bare-metal >build/bare-metal.log
cmake --build --preset bare-metal >>build/bare-metal.log
for roads in "1 objects" "2 one call" "3 both roads"; do
    program=build/bare-metal/four_messages_${roads%% *}
    arm-none-eabi-g++ -std=c++20 -Os -mcpu=cortex-m4 -mthumb -ffreestanding -fno-exceptions \
        -fno-rtti -ffunction-sections -fdata-sections "-DROADS=${roads%% *}" -Iinclude -Iplatform \
        -o "$program" bench/four_messages.cpp bench/object_road.cpp bench/samples.cpp \
        build/bare-metal/src/libtarn.a -nostartfiles \
        -Wl,--gc-sections,--entry=main,--unresolved-symbols=ignore-all,-Map="$program.map"
    python3 bench/static_report.py "${roads#* }" 20480 "$program.map"
done
