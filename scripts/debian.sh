#!/usr/bin/env bash
# Builds the Debian packages in build/packages, from a copy of the tree, and has lintian judge them.
# Arguments are options of dpkg-buildpackage, and DEB_BUILD_OPTIONS=noopt makes it quicker.
set -euo pipefail
cd "$(dirname "$0")/.."
work=$PWD/build/packages

rm -rf "$work"
mkdir -p "$work/libtarn"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$work/libtarn"
cd "$work/libtarn"
# The tests run elsewhere, and packages of debug information are not asked for.
DEB_CXXFLAGS_APPEND=-g0 DEB_BUILD_OPTIONS="nocheck noautodbgsym parallel=$(nproc) ${DEB_BUILD_OPTIONS:-}" \
    dpkg-buildpackage --build=binary --no-sign "$@" >"$work/log" 2>&1 ||
    { tail -40 "$work/log"; exit 1; }
cd "$work"
ls -1s --block-size=1k ./*.deb
mandoc -T lint -W warning libtarn/man/*

# No licence has been chosen, which is for the owner to do; one finding is about that alone.
lintian --allow-root --fail-on error,warning \
    --suppress-tags copyright-without-copyright-notice ./*.changes
echo "lintian: no errors, no warnings"
