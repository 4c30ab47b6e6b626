#!/bin/bash
# captures.sh TOOL EXCHANGE SAMPLES: the tool on what Wireshark's own programs write, and they on
# what it writes. Exits with 77 where they are not installed.
set -euo pipefail
tool=$1 exchange=$2 samples=$3
for program in text2pcap tshark; do
    command -v $program >/dev/null || { echo "skipped: no $program"; exit 77; }
done
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
failures=0

same() { # what expected found
    cmp -s "$2" "$3" && return
    echo "$1: not the same"
    diff "$2" "$3" | head -5
    failures=$((failures + 1))
}

# Without what only a capture tells.
messages() { sed 's/^{"packet":.*"verdict":/{"verdict":/'; }

"$tool" decode --json "$samples"/*.hex | messages >wanted
"$tool" encode wanted | tr -d ' ' | sed 's/../ &/g; s/^/0000/' >dump

# The tool reads the dump, and what text2pcap makes of it in every kind of packet.
"$tool" decode --json dump | messages >found
same "the dump" wanted found
for kind in "-P tarn" "-l 147" "-u 5000,5001" "-S 5000,5001,0" "-T 5000,5001"; do
    text2pcap -q $kind dump packets.pcapng >text2pcap.log 2>&1
    # TCP has a length in front of each message; dumps have none, so none is to be found there.
    [ "$kind" = "-T 5000,5001" ] && continue
    "$tool" decode --json packets.pcapng | messages >found
    same "text2pcap $kind" wanted found
done

# The exported PDUs that the tool writes have the same bytes as those of text2pcap.
text2pcap -q -P tarn dump theirs.pcapng >text2pcap.log 2>&1
"$tool" decode --summary --pcapng ours.pcapng dump >/dev/null
for file in ours theirs; do
    tshark -r $file.pcapng -x 2>/dev/null | grep '^[0-9a-f]\{4\} ' >$file.bytes
done
same "exported PDUs" theirs.bytes ours.bytes
[ "$(tshark -r ours.pcapng -Y 'frame.comment == "valid"' 2>/dev/null | wc -l)" -eq "$(wc -l <wanted)" ] ||
    { echo "comments are missing"; failures=$((failures + 1)); }

# The exchange on the loopback interface, where this user may capture there.
"${exchange}_ac" >port &
controller=$!
until [ -s port ]; do sleep 0.1; done
if dumpcap -q -i lo -a duration:4 -f "tcp port $(cat port)" -w lo.pcapng >dumpcap.log 2>&1 & then
    capturing=$!
    sleep 2
    "${exchange}_ap" "$(cat port)" >ladder
    wait $capturing || true
fi
wait $controller || true
if [ -s lo.pcapng ]; then
    arrows=$(grep -c -- '-->\|<--' ladder)
    found=$("$tool" decode --json --where verdict==valid lo.pcapng | wc -l)
    [ "$arrows" -eq "$found" ] ||
        { echo "the exchange has $arrows messages, found $found"; failures=$((failures + 1)); }
else
    echo "not captured on the loopback interface: $(tail -1 dumpcap.log)"
fi
echo "$(wc -l <wanted) messages, $failures failures"
[ $failures -eq 0 ]
