#!/usr/bin/env bash
# Builds what is installed in a copy of the tree somewhere else, and compares it with build/release,
# bit by bit.
set -euo pipefail
cd "$(dirname "$0")/.."
targets=(tarn tarn_host tarn_info tarn_tool)
copy=$PWD/build/reproducible/a/copy/elsewhere

rm -rf build/reproducible
mkdir -p "$copy"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$copy"
[ -f build/release/CMakeCache.txt ] || cmake --preset release -DTARN_TESTS=OFF >/dev/null
(cd "$copy" && cmake --preset release -DTARN_TESTS=OFF -DTARN_EXAMPLES=OFF >/dev/null)
for tree in . "$copy"; do
    cmake --build "$tree/build/release" --target "${targets[@]}" -- --quiet
done

different=0
for file in src/libtarn.so.0 host/libtarn_host.so.0 info/libtarn_info.so.0 tools/tarn/tarn; do
    if cmp "build/release/$file" "$copy/build/release/$file"; then
        echo "$file: the same $(stat -c %s "build/release/$file") bytes"
    else
        different=1
    fi
done
# No path of either tree is left in what users get.
if grep -l -F "$PWD" build/release/{src,host,info}/*.so.0 build/release/tools/tarn/tarn; then
    echo "the files above name the directory in which they were built" >&2
    different=1
fi
exit $different
