#!/usr/bin/env bash
# Installs the Debian packages that are missing, as root or through sudo.
#   scripts/packages.sh [GROUP...]
# Groups:
#   demo      what it takes to build the library and the tool; taken where none is named
#   test      that, and what the tests are built with
#   bench     that, and what the benchmarks compare with
# and, for single stages of scripts/test.sh: format, clang, tidy, coverage, cross, abi, python,
# install, wireshark, pack, bare (bare metal).
set -euo pipefail

declare -A packages=(
    [build]="cmake ninja-build g++"
    [demo]="@build pkg-config libcli11-dev nlohmann-json3-dev zlib1g-dev"
    [test]="@demo libgtest-dev python3"
    [format]="clang-format git"
    [clang]="@build clang libclang-rt-dev"
    [tidy]="@demo clang-tidy git"
    [coverage]="gcovr"
    [cross]="@build googletest g++-arm-linux-gnueabihf g++-s390x-linux-gnu qemu-user"
    [abi]="@cross abigail-tools"
    [python]="python3 python3-pytest mypy"
    [pack]="build-essential @demo debhelper dh-python dpkg-dev lintian mandoc python3"
    [bare]="@build gcc-arm-none-eabi libnewlib-arm-none-eabi libstdc++-arm-none-eabi-newlib python3"
    [install]="pkg-config git"
    [wireshark]="python3 lua5.2 lua5.4 tshark"
    [bench]="@test libbenchmark-dev nanopb libnanopb-dev libprotobuf-c-dev protobuf-c-compiler
        protobuf-compiler libprotobuf-dev capnproto libcapnp-dev flatbuffers-compiler
        libflatbuffers-dev valgrind libmimalloc2.0 libjemalloc2 libtcmalloc-minimal4"
)

wanted=()
want() { # group
    local package
    for package in ${packages[$1]}; do
        if [ "${package#@}" != "$package" ]; then
            want "${package#@}"
        else
            wanted+=("$package")
        fi
    done
}
for group in "${@:-demo}"; do
    if [ -z "${packages[$group]:-}" ]; then
        sed -n '2,/^set /s/^# \{0,1\}//p' "$0"
        exit 2
    fi
    want "$group"
done

missing=()
for package in $(printf '%s\n' "${wanted[@]}" | sort -u); do
    if ! dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
echo "installing from Debian, with what they depend on: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
if ! "${as_root[@]}" apt-get install -q -y --no-remove --no-install-recommends "${missing[@]}"; then
    cat >&2 <<END

Not all of them could be installed. Nothing was removed: a package that would have to make room is
yours to decide about. To see which one it is:
    apt-get install --simulate ${missing[*]}
Where this machine must stay as it is, build in a container of Debian 12.
END
    exit 1
fi
