#!/usr/bin/env bash
# Measures, with g++ and gcov, what the tests reach of the library, and fails when an exported
# function is never called or a line or branch of src/ never taken. What no test can reach is marked
# where it stands, with the reason.
#
# The library alone is built with counters, in both forms of the engine; the test programs are those
# of build/release, which must be there. Of the form built for speed, in build/coverage, every line
# must run, and of the compact one, in build/coverage-compact, every branch must be taken as well. In
# the former, a branch has a copy in each walk, where most are decided.
#   scripts/coverage.sh             builds, runs the tests, measures
#   scripts/coverage.sh --measure   measures what was run last
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/coverage
compact=build/coverage-compact
run_tests() { # directory, CMake arguments
    cmake -G Ninja -S . -B "$1" -DCMAKE_C_COMPILER=gcc -DCMAKE_CXX_COMPILER=g++ \
        -DCMAKE_BUILD_TYPE=Debug -DTARN_COVERAGE=ON -DTARN_TOOLS=OFF -DTARN_INFO=OFF \
        -DTARN_EXAMPLES=OFF -DTARN_TESTS=OFF "${@:2}" >/dev/null
    find "$1" -name '*.gcda' -delete # what former runs counted
    cmake --build "$1" --target tarn -- --quiet
    LD_LIBRARY_PATH=$PWD/$1/src ctest --test-dir build/release -j "$(nproc)" \
        --output-on-failure --progress -LE files -E '^tool_|^soak|^example|^fuzz'
}
if [ "${1:-}" != --measure ]; then
    run_tests $build
    run_tests $compact -DTARN_COMPACT=ON
fi

# The functions that cmake/exports.txt lists and the lines of src/, each with the number of times
# that gcov counted.
failed=0
python3 - $build/src cmake/exports.txt <<'PYTHON' || failed=1
import json, pathlib, subprocess, sys

objects, exports = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
sources = pathlib.Path("src").resolve()
calls = dict.fromkeys(exports.read_text().split(), 0)
lines = {}
for data in sorted(objects.rglob("*.gcda")):
    gcov = subprocess.run(["gcov", "--json-format", "--stdout", data], capture_output=True, check=True)
    for line in gcov.stdout.splitlines():
        for file in json.loads(line)["files"]:
            for function in file["functions"]:
                if function["name"] in calls:
                    calls[function["name"]] += function["execution_count"]
            path = pathlib.Path(file["file"]).resolve()
            if path.is_relative_to(sources):
                text = path.read_text().splitlines()
                for line in file["lines"]:
                    if "GCOVR_EXCL_LINE" in text[line["line_number"] - 1]:
                        continue
                    place = f"src/{path.relative_to(sources)}:{line['line_number']}"
                    lines[place] = lines.get(place, 0) + line["count"]
missed = sorted(name for name, count in calls.items() if count == 0)
print(f"exported functions called: {len(calls) - len(missed)} of {len(calls)}")
print(*(f"    never called: {name}" for name in missed[:50]), sep="\n", end="\n" if missed else "")
unreached = [place for place, count in lines.items() if count == 0]
print(f"lines, built for speed: {len(lines) - len(unreached)} of {len(lines)}")
print(*(f"    never run: {place}" for place in unreached), sep="\n", end="\n" if unreached else "")
sys.exit(bool(missed or unreached))
PYTHON

# Every door is one line of a macro, so lines and branches speak of the engine.
report() {
    gcovr --root . --filter src/ --object-directory $compact $compact/src --exclude-throw-branches "$@"
}
report --txt $compact/lines.txt --html-details $compact/report.html --print-summary \
    --fail-under-line 100 --fail-under-branch 100 || failed=1
if [ $failed -ne 0 ]; then
    report --branches --txt $compact/branches.txt
    cat $compact/lines.txt $compact/branches.txt
    echo "details: $compact/report.html" >&2
fi
exit $failed
