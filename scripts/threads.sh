#!/usr/bin/env bash
# Runs the tests that use several threads under ThreadSanitizer, in build/threads.
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/threads
# The codec in its compact form, quicker to compile: it shares nothing between threads but constants.
cmake -S . -B $build -G Ninja -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS_DEBUG="-O1 -gline-tables-only" \
    -DCMAKE_CXX_FLAGS_DEBUG="-O1 -gline-tables-only" \
    -DTARN_SANITIZE=thread -DTARN_COMPACT=ON -DTARN_EXAMPLES=OFF >/dev/null
cmake --build $build --target threads_test host_test soak -- --quiet

# ThreadSanitizer maps its shadow memory at fixed addresses, which some kernels' wide address
# randomisation takes first. Its own locks do not outlast a fork beside threads.
run() {
    TSAN_OPTIONS=halt_on_error=1 setarch "$(uname -m)" -R $build/tests/"$@"
}
for check in 0 1; do
    export TARN_HOST_CHECK=$check
    run host/host_test --gtest_brief=1 --gtest_filter=-*AForkAtAnyMoment*
    run threads/threads_test --gtest_brief=1
    run threads/soak 0.05 4 unforked
done
