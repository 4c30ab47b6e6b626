#!/bin/sh
# duckdb.sh TOOL FOLDER FILE...: fetches DuckDB's package into the folder, once, and runs the test.
set -u
tool=$1 folder=$2
shift 2
if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
    echo "skipped: node and npm are needed"
    exit 77
fi
mkdir -p "$folder"
[ -d "$folder/node_modules/@duckdb/node-api" ] ||
    npm install --prefix "$folder" --no-audit --no-fund --silent @duckdb/node-api ||
    echo "npm could not install it"
exec node "$(dirname "$0")/duckdb.mjs" "$tool" "$folder" "$@"
