#!/usr/bin/env bash
# Holds Wireshark's plugin to the tool: its reading part in plain Lua over mutated messages, and all
# of it in tshark over captures of every kind.
#   scripts/wireshark.sh          checks; takes 30 seconds
#   scripts/wireshark.sh speed    messages a second, with the plugin and without
set -euo pipefail
cd "$(dirname "$0")/.."

plugin=wireshark/tarn.lua
build=build/release
tool=$build/tools/tarn/tarn

case "${1:-check}" in
check)
    [ -x "$tool" ] && [ -x $build/examples/exchange ] || {
        cmake --preset release >/dev/null
        cmake --build $build --target tarn_tool exchange -- --quiet
    }
    lua5.4 tests/wireshark/differential.lua $plugin $tool examples/messages 60000
    # Wireshark 4.0 has Lua 5.2.
    lua5.2 tests/wireshark/differential.lua $plugin $tool examples/messages 6000
    python3 tests/wireshark/capture_test.py $plugin $tool $build/examples/exchange examples/messages
    ;;
speed) python3 tests/wireshark/speed.py $plugin examples/messages ;;
*)
    sed -n '2,6s/^# \{0,1\}//p' "$0"
    exit 2
    ;;
esac
