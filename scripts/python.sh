#!/usr/bin/env bash
# Tests the Python module on what build/release holds: its tests, its examples, the lines of its guide,
# and the types of the examples. Debian's interpreter, for which the packages install.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset release >/dev/null
cmake --build --preset release --target tarn tarn_host tarn_info tarn_tool exchange_ap -- --quiet
build=$PWD/build/release
export PYTHONPATH=$PWD/python PYTHONDONTWRITEBYTECODE=1
export TARN_LIBRARY_PATH=$build/src:$build/host:$build/info
/usr/bin/python3 -m pytest -q -p no:cacheprovider tests/bindings/test_python.py python/examples
/usr/bin/python3 -m doctest -o IGNORE_EXCEPTION_DETAIL docs/python.md
MYPYPATH=$PYTHONPATH /usr/bin/python3 -m mypy --strict --no-incremental --cache-dir=/dev/null \
    python/tarn/__init__.pyi python/examples
