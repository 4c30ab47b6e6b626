#!/bin/bash
# Drives the library of another revision and this tree's through the same cases and shows the first
# one that they answer differently, in both forms of the engine. A change of the engine should leave
# all answers as they are; fuzz/answers.cpp says what belongs to an answer.
#
#   scripts/compare.sh REVISION [CASES [FIRST]]     200,000 cases unless told
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || { sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 2; }
cases=${2:-200000}
first=${3:-0}
group=1000
new=build/compare/tree

# configure BUILD ARGUMENT...
configure() {
    cmake -S . -B "$1" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_TOOLS=OFF -DTARN_EXAMPLES=OFF \
        "${@:2}" >"$1.log"
}

# answers LIBRARY ARGUMENT...: a crash ends the output, which is a difference as any other.
answers() {
    LD_PRELOAD=$PWD/$1/src/libtarn.so.0 "$new/fuzz/tarn_answers" "${@:2}" 2>&1 || echo "status $?"
}

# first_difference: the number of the first case or group whose lines differ.
first_difference() {
    { diff "$new.expected" "$new.answers" || true; } |
        sed -n 's/^[<>] \([0-9]*\) .*/\1/p' | sort -n | sed -n 1p
}

# both OLD NEW ARGUMENT...: runs both at once; false if they differ.
both() {
    answers "$1" "${@:3}" >"$new.expected" &
    answers "$2" "${@:3}" >"$new.answers"
    wait $!
    cmp -s "$new.expected" "$new.answers"
}

mkdir -p build/compare
configure "$new" -DTARN_TESTS=ON
cmake --build "$new" --target tarn_answers >>"$new.log"
for form in speed compact; do
    old=$(scripts/revision.sh "$1" $form)
    configure "$new-$form" -DTARN_TESTS=OFF \
        -DTARN_COMPACT="$([ $form = compact ] && echo ON || echo OFF)"
    cmake --build "$new-$form" --target tarn >>"$new-$form.log"
    if both "$old" "$new-$form" "$first" "$cases" $group; then
        echo "$form: $cases cases alike"
        continue
    fi
    from=$(first_difference)
    both "$old" "$new-$form" "$from" $group 1 || true
    case=$(first_difference)
    both "$old" "$new-$form" "$case" || true
    echo "$form: case $case, $1 (-) and this tree (+):"
    diff --unified=20 "$new.expected" "$new.answers" | cut -c1-200 || true
    exit 1
done
