#!/usr/bin/env bash
# Installs the Debian packages that are missing, as root or through sudo.
#   scripts/packages.sh demo   what it takes to build the library and the tool
#   scripts/packages.sh test   that, and all that the tests use
#   scripts/packages.sh bench  that, and what the benchmarks compare with
set -euo pipefail

demo=(cmake ninja-build g++ libcli11-dev nlohmann-json3-dev zlib1g-dev)
tests=(clang clang-format clang-tidy libclang-rt-dev googletest binutils git python3
    abigail-tools gcovr
    g++-arm-linux-gnueabihf g++-s390x-linux-gnu qemu-user)
bench=(libbenchmark-dev nanopb libnanopb-dev libprotobuf-c-dev protobuf-c-compiler
    protobuf-compiler libprotobuf-dev capnproto libcapnp-dev flatbuffers-compiler libflatbuffers-dev
    valgrind python3 libmimalloc2.0 libjemalloc2 libtcmalloc-minimal4)

case "${1:-demo}" in
demo) wanted=("${demo[@]}") ;;
test) wanted=("${demo[@]}" "${tests[@]}") ;;
bench) wanted=("${demo[@]}" "${tests[@]}" "${bench[@]}") ;;
*)
    sed -n '2,5s/^# \{0,1\}//p' "$0"
    exit 2
    ;;
esac

missing=()
for package in "${wanted[@]}"; do
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
