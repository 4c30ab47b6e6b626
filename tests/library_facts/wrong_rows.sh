#!/usr/bin/env bash
# Wrong rows do not compile: each fault is put into a copy of the rows, and the check that is there
# for it has to speak. wrong_rows.sh COMPILER PROJECT
set -euo pipefail
compiler=$1
project=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

# refused CHECK FILE EDIT: the file with this edit fails this check.
refused() {
    rm -rf "$work/catalogue"
    cp -r "$project/src/catalogue" "$work"
    sed -i -E "$3" "$work/catalogue/$2"
    if "$compiler" -std=c++20 -fsyntax-only -DTARN_COMPACT -I"$work" -I"$project/src" \
        -I"$project/include" -I"$project/platform" "$work/catalogue/catalogue.cpp" \
        2>"$work/said" || ! grep -F "static_assert($1" "$work/said" >/dev/null; then
        echo "not refused by $1: $2 after $3"
        failed=1
    fi
}

refused are_distinct messages.def 's/^(MESSAGE\(UeContextAccept, )2/\11/'
refused are_distinct primitive_ies.def 's/^(SCALAR\(RabId, +)23/\13/'
refused ranges_hold primitive_ies.def '/^SCALAR\(RabId,/s/0xFF/0x100/'
refused ranges_hold primitive_ies.def '/^LIST\(RabIdList,/s/1,( +)3,/4,\13,/'
refused all_slots_hold messages.def 's/^MANDATORY( +\(UeContextRelease, Srnti)/OPTIONAL\1/'
refused all_slots_hold messages.def '/^OPTIONAL +\(RelocationRequired/{p;p;p;p}'
refused all_tables_hold composite_ies.def 's/OPTIONAL +\(RabParams, Pdp/OPTIONAL_AGAIN(RabParams, TransDelay, Pdp/'
refused all_tables_hold messages.def '/^MESSAGE\(RelocationRequired/s/24, \w+/24, none/'
refused all_tables_hold messages.def 's/^MANDATORY( +\(RelocationRequired, RelocationType)/OPTIONAL\1/'
refused all_tables_hold composite_ies.def '/^SEQUENCE\(RabParams/s/refuseUncalled/dropUncalled/'
refused conditions_ask_code_words conditions.def 's/TrafficClass, /RabId, /'
refused '(values_) <= UINT8_MAX' conditions.def 's/1U << 3/1U << 8/'
refused 'always <= 8' conditions.def '/(interactive)/{p;s/interactive/more/;p;s/more/still/;p;s/still/yet/}'
refused tokens_are_distinct messages.def 's/0x7A0200A1/0x7A0100A1/'
exit $failed
