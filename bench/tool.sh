#!/bin/bash
# bench/tool.sh TOOL [MESSAGES]: messages a second of the tool's ways in and out, beside tshark on
# the same capture.
#
# How it counts. The capture holds the 47 sample messages over and over, as exported PDUs, a million
# of them by default. A run is a whole process; what counts is its processor time (user and system)
# as bash reports it, so that a busy machine does not tell, and of three runs the best. Output goes
# to a pipe that is read and thrown away. `memory` is the most that the process had resident.
# tshark reads a twentieth of the capture, as it takes so long: once as it comes, and with the
# dissector of this project writing the same messages as JSON (both with -n, no names looked up).
set -euo pipefail
cd "$(dirname "$0")/.."
tool=$1
messages=${2:-1000000}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
TIMEFORMAT='%U %S'

once=$("$tool" decode --json examples/messages/*.hex | tee "$folder/once.json" | wc -l)
"$tool" encode "$folder/once.json" >"$folder/once.hex"

# repeat FILE COPIES
repeat() {
    local whole=$folder/copies i
    cp "$1" "$whole"
    for ((i = 1; i * 2 <= $2; i *= 2)); do cat "$whole" "$whole" >"$whole.2" && mv "$whole.2" "$whole"; done
    for (( ; i < $2; i++)); do cat "$1" >>"$whole"; done
    mv "$whole" "$3"
}
repeat "$folder/once.hex" $((messages / once)) "$folder/all.hex"
repeat "$folder/once.hex" $((messages / once / 20)) "$folder/some.hex"
count=$(wc -l <"$folder/all.hex")
few=$(wc -l <"$folder/some.hex")
"$tool" decode --summary --pcapng "$folder/all.pcapng" "$folder/all.hex" >/dev/null
"$tool" decode --summary --pcapng "$folder/some.pcapng" "$folder/some.hex" >/dev/null
"$tool" decode --json "$folder/all.pcapng" >"$folder/all.json"

# measure WHAT MESSAGES COMMAND...
measure() {
    local what=$1 number=$2 best=
    shift 2
    for run in 1 2 3; do
        local taken
        taken=$({ time "$@" 2>/dev/null | cat >/dev/null; } 2>&1 | awk '{ print $1 + $2 }')
        best=$(awk -v a="${best:-1e9}" -v b="$taken" 'BEGIN { print a < b ? a : b }')
    done
    local memory=-
    [ ! -x /usr/bin/time ] ||
        memory=$(/usr/bin/time -f '%M' "$@" 2>&1 >/dev/null | tail -1)
    awk -v what="$what" -v n="$number" -v s="$best" -v m="$memory" 'BEGIN {
        printf "%-44s %9d messages %8.2f s %10.0f a second %8s KB\n", what, n, s, n / s, m }'
}

measure "decode --json, pcapng" "$count" "$tool" decode --json "$folder/all.pcapng"
measure "decode --summary, pcapng" "$count" "$tool" decode --summary "$folder/all.pcapng"
measure "decode (tree), pcapng" "$count" "$tool" decode "$folder/all.pcapng"
measure "decode --json, hex text" "$count" "$tool" decode --json "$folder/all.hex"
measure "encode" "$count" "$tool" encode "$folder/all.json"
measure "stats, pcapng" "$count" "$tool" stats "$folder/all.pcapng"
if command -v tshark >/dev/null; then
    measure "tshark, one line a packet" "$few" tshark -n -r "$folder/some.pcapng"
    [ ! -f wireshark/tarn.lua ] ||
        measure "tshark -T json with tarn.lua" "$few" \
            tshark -n -X lua_script:wireshark/tarn.lua -r "$folder/some.pcapng" -T json
else
    echo "tshark is not installed: nothing to compare with"
fi
