#!/usr/bin/env bash
# Measures, with g++ and gcov in build/coverage, what the tests reach of the library, and fails when
# an exported function is never called or a line or branch of src/ never taken. What no test can
# reach is marked where it stands, with the reason.
#   scripts/coverage.sh             builds, runs the tests, measures
#   scripts/coverage.sh --measure   measures what was run last
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/coverage
if [ "${1:-}" != --measure ]; then
    cmake -S . -B $build -G Ninja -DCMAKE_C_COMPILER=gcc -DCMAKE_CXX_COMPILER=g++ \
        -DCMAKE_BUILD_TYPE=Debug -DTARN_COVERAGE=ON >/dev/null
    find $build -name '*.gcda' -delete # what former builds counted
    cmake --build $build -- --quiet
    find $build -name '*.gcda' -delete # what programs counted that run during the build
    ctest --test-dir $build -j "$(nproc)" --output-on-failure --progress
fi

# The functions that cmake/exports.txt lists, each with the number of calls that gcov counted.
failed=0
python3 - $build/src cmake/exports.txt <<'PYTHON' || failed=1
import json, pathlib, subprocess, sys

objects, exports = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
calls = dict.fromkeys(exports.read_text().split(), 0)
for data in sorted(objects.rglob("*.gcda")):
    gcov = subprocess.run(["gcov", "--json-format", "--stdout", data], capture_output=True, check=True)
    for line in gcov.stdout.splitlines():
        for file in json.loads(line)["files"]:
            for function in file["functions"]:
                if function["name"] in calls:
                    calls[function["name"]] += function["execution_count"]
missed = sorted(name for name, count in calls.items() if count == 0)
print(f"exported functions called: {len(calls) - len(missed)} of {len(calls)}")
print(*(f"    never called: {name}" for name in missed[:50]), sep="\n", end="\n" if missed else "")
sys.exit(bool(missed))
PYTHON

# Every door is one line of a macro, so lines and branches speak of the engine.
report() {
    gcovr --root . --filter src/ --object-directory $build $build/src --exclude-throw-branches "$@"
}
report --txt $build/lines.txt --html-details $build/report.html --print-summary \
    --fail-under-line 100 --fail-under-branch 100 || failed=1
if [ $failed -ne 0 ]; then
    report --branches --txt $build/branches.txt
    cat $build/lines.txt $build/branches.txt
    echo "details: $build/report.html" >&2
fi
exit $failed
