#!/usr/bin/env bash
# Builds the codec and its tests for another processor and runs them under qemu-user, each test
# program as one process: to start one costs more than most tests do.
#   scripts/emulated.sh armhf|s390x
set -euo pipefail
cd "$(dirname "$0")/.."

# What takes seconds here takes minutes there; tags and mutations without number say nothing of a
# processor. An emulated program cannot start itself, as some death tests do.
left_out='*MutatedBytes:*EveryTruncation:HostileComposite.*:PackingUnderAnotherTagTest.ASmaller*:*DeathTest.*'
preset=$1
programs=(core/core primitive_ies/primitive_ies composite_ies/composite_ies messages/messages
    records/records)
case $preset in
# Its size_t of 32 bits matters to the host and the threads as well.
armhf) UNDER="qemu-arm -L /usr/arm-linux-gnueabihf" programs+=(host/host threads/threads) ;;
s390x) UNDER="qemu-s390x -L /usr/s390x-linux-gnu" ;;
*) sed -n '2,4s/^# \{0,1\}//p' "$0"; exit 2 ;;
esac
export UNDER

targets=("${programs[@]#*/}")
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target "${targets[@]/%/_test}" -- --quiet
scripts/test_programs.sh "build/$preset" "$left_out" "${programs[@]}"
