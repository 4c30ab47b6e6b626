#!/usr/bin/env bash
# Builds the Debian packages, and compares what they are made of with build/release, bit by bit: the
# same sources, built in another directory. The flags are those of build/release, Debian's left out.
set -euo pipefail
cd "$(dirname "$0")/.."

[ -f build/release/CMakeCache.txt ] || cmake --preset release -DTARN_TESTS=OFF >/dev/null
cmake --build build/release --target tarn tarn_host tarn_info tarn_tool -- --quiet
DEB_CPPFLAGS_SET='' DEB_CFLAGS_SET='' DEB_CXXFLAGS_SET='' DEB_LDFLAGS_SET='' scripts/debian.sh

other=$(echo build/packages/libtarn/obj-*)
different=0
for file in src/libtarn.so.0 host/libtarn_host.so.0 info/libtarn_info.so.0 tools/tarn/tarn; do
    if cmp "build/release/$file" "$other/$file"; then
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
