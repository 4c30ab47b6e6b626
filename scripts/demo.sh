#!/usr/bin/env bash
# Builds the library and the tool, installing what is missing, and shows on one screen what they do.
set -euo pipefail
cd "$(dirname "$0")/.."
tarn=build/release/tools/tarn/tarn

scripts/packages.sh demo
echo "building in build/release, which takes a minute or two ..."
cmake --preset release -DTARN_TESTS=OFF >/dev/null
cmake --build --preset release --target tarn tarn_host tarn_info tarn_tool exchange -- --quiet

show() { # command...: the command, and the first lines that it prints
    echo
    echo "\$ $*"
    "$@" 2>&1 | sed -n "1,${lines}p" || true
}
lines=6 show $tarn decode examples/messages/SecurityModeReject.hex
lines=7 show $tarn decode examples/messages/refused/out_of_range.hex
lines=9 show build/release/examples/exchange
cat <<END

More to try:
  $tarn decode --summary examples/messages/*.hex   # a line for each message
  $tarn decode --json examples/messages/*.hex      # JSON, which \`tarn encode\` takes
  $tarn describe RabParams                         # what an IE holds, in which order, when
  build/release/examples/exchange                                          # the whole of the exchange
END
