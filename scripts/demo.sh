#!/usr/bin/env bash
# Builds the library and the tool, installing what is missing, and shows the sample messages decoded.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/packages.sh demo
cmake --preset release -DTARN_TESTS=OFF >/dev/null
cmake --build --preset release -- --quiet
build/release/tools/tarn/tarn decode examples/messages/*.hex
echo
echo "The tool is build/release/tools/tarn/tarn; see what else it does with --help."
echo "An access point and its controller talking: build/release/examples/exchange"
