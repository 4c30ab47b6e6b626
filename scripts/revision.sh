#!/usr/bin/env bash
# Builds the library of another revision, unless that was done before, and prints where.
#
#   scripts/revision.sh REVISION speed|compact
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -eq 2 ] || { sed -n '2,4s/^# \{0,1\}//p' "$0" >&2; exit 2; }
revision=$(git rev-parse --short "$1^{commit}")
source=build/revisions/$revision/source
build=build/revisions/$revision/$2
compact=$([ "$2" = compact ] && echo ON || echo OFF)

mkdir -p "$source"
git archive "$revision" | tar -x -C "$source"
cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_TOOLS=OFF \
    -DTARN_EXAMPLES=OFF -DTARN_TESTS=OFF -DTARN_COMPACT="$compact" >"$build.log"
cmake --build "$build" --target tarn >>"$build.log"
echo "$build"
