#!/usr/bin/env bash
# Soaks library and host: scripts/soak.sh MINUTES [THREADS]
# Passes valid and hostile messages through them on so many threads (4 by default), which end and
# begin anew while the process forks. Prints messages, refusals and resident memory every minute, and
# fails when memory grows after warming up or a block stays live.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ "${1:-}" =~ ^[0-9.]+$ ]] || { sed -n '2,5s/^# \{0,1\}//p' "$0"; exit 2; }

cmake --preset release >/dev/null
cmake --build --preset release --target soak -- --quiet
build/release/tests/threads/soak "$1" "${2:-4}"
