#!/usr/bin/env bash
# Runs programs of GoogleTest's, each as one process, as many at once as there are processors:
#   scripts/test_programs.sh BUILD LEFT-OUT PROGRAM...
# LEFT-OUT are the tests to leave out, as --gtest_filter takes them. UNDER is put before each command.
set -euo pipefail
build=$1 left_out=$2
shift 2
printf '%s\n' "${@/%/_test}" | GTEST_BRIEF=1 GTEST_FILTER="-$left_out" xargs -P "$(nproc)" -I{} \
    ${UNDER:-env} "$build/tests/{}"
