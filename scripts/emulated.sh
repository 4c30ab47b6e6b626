#!/usr/bin/env bash
# Builds the codec and its tests for another processor and runs them under qemu-user.
#   scripts/emulated.sh armhf|s390x
set -euo pipefail
cd "$(dirname "$0")/.."

# What takes seconds here takes minutes there; tags and mutations without number say nothing of a
# processor. An emulated program cannot start itself, as some death tests do.
left_out='*MutatedBytes:*EveryTruncation:HostileComposite.*:PackingUnderAnotherTagTest.ASmaller*:*DeathTest.*'
preset=${1:?armhf or s390x}
programs=(core_test primitive_ies_test composite_ies_test messages_test records_test)
# Its size_t of 32 bits matters to the host and the threads as well.
[ "$preset" != armhf ] || programs+=(host_test threads_test)

cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target "${programs[@]}" -- --quiet
GTEST_FILTER=-$left_out ctest --preset "$preset" -j "$(nproc)" --progress \
    -R "$(IFS='|' && echo "^(${programs[*]})$")|Host" -E DeathTest
