#!/usr/bin/env bash
# Installs a release build below build/install and uses it there as others would: by pkg-config, by
# find_package, by add_subdirectory and by FetchContent; from a prefix, from one that was moved, and
# from a staging directory.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
work=$root/build/install
program=$root/examples/send_receive.c
expected=$(cat tests/examples/send_receive.txt)

say() { echo "-- $*"; }
fail() {
    echo "install: $*" >&2
    exit 1
}
# runs LIBRARY_DIRECTORY PROGRAM: prints what the example prints.
runs() {
    local printed
    printed=$(LD_LIBRARY_PATH=$1 "$2") || fail "$2 does not run"
    [ "$printed" = "$expected" ] || fail "$2 printed: $printed"
    echo "   $printed"
}
# tool_runs PREFIX: the tool finds its libraries by itself.
tool_runs() {
    env -u LD_LIBRARY_PATH "$1/bin/tarn" decode examples/messages/UeContextRequest.hex >/dev/null ||
        fail "$1/bin/tarn does not run"
    say "the tool runs in ${1#"$root"/}"
}
# by_pkg_config PREFIX MODULE SOURCE...
by_pkg_config() {
    local prefix=$1 module=$2
    shift 2
    PKG_CONFIG_PATH=$prefix/lib/pkgconfig pkg-config --print-errors --exists "$module"
    # shellcheck disable=SC2046 # the words of pkg-config are words of the command
    cc -o "$work/program" "$@" $(PKG_CONFIG_PATH=$prefix/lib/pkgconfig pkg-config --cflags --libs "$module")
    say "pkg-config $module, in ${prefix#"$root"/}"
    runs "$prefix/lib" "$work/program"
}
# by_cmake WAY ARGUMENT...: builds tests/install that way.
by_cmake() {
    local way=$1 build=$work/$1
    shift
    say "$way"
    cmake -S tests/install -B "$build" -G Ninja -DWAY="$way" -DPROGRAM="$program" \
        -DTARN_SOURCE="$root" -DTARN_COMPACT=ON "$@" >"$build.log" 2>&1 ||
        { cat "$build.log"; fail "$way"; }
    cmake --build "$build" -- --quiet
    runs "" "$build/program"
    runs "" "$build/program_reversed"
    [ ! -e "$build/program_static" ] || runs "" "$build/program_static"
}
# builds_alone BUILD: the guest has compiled the libraries that were linked, and nothing of ours else.
builds_alone() {
    local others
    others=$(find "$1" -name '*.o' | grep -vE '/(tarn|tarn_host|program|program_reversed)\.dir/' || true)
    [ -z "$others" ] || fail "compiled for a guest: $others"
    ! grep -q -e -Werror "$1/build.ninja" || fail "a guest's warnings stop its host"
}

# hardened FILE GUARD...: it lies anywhere, nothing that the loader writes stays writable, no stack
# can be executed, and the guards of the C library are called.
hardened() {
    local file=$1 guard
    readelf --wide --file-header --segments --dynamic --dyn-syms "$file" >"$work/elf"
    for guard in 'Type: +DYN' GNU_RELRO 'Flags:.* NOW' 'GNU_STACK .* RW +0x' "${@:2}"; do
        grep -qE "$guard" "$work/elf" || fail "$file is not hardened: no $guard"
    done
}
# marked FILE...: control flow is checked by processors that can. The linker marks what consists of
# marked objects alone, and Debian's start files are not: so the objects are asked.
marked() {
    [ "$(uname -m)" = x86_64 ] || return 0
    local file
    for file in "$@"; do
        readelf --notes "$file" 2>/dev/null | grep -q 'IBT, SHSTK' || fail "$file is not marked"
    done
}

[ -f build/release/CMakeCache.txt ] || cmake --preset release -DTARN_TESTS=OFF >/dev/null
cmake -DTARN_STATIC=ON build/release >/dev/null
cmake --build build/release --target tarn tarn_static tarn_host tarn_info tarn_tool -- --quiet
rm -rf "$work"
mkdir -p "$work"

cmake --install build/release --prefix "$work/prefix" >"$work/log"
# The codec keeps no arrays on its stack and calls nothing but memcpy and its host.
hardened "$work/prefix/lib/libtarn.so"
hardened "$work/prefix/lib/libtarn_host.so" __stack_chk_fail __fprintf_chk
hardened "$work/prefix/lib/libtarn_info.so" __stack_chk_fail
hardened "$work/prefix/bin/tarn" __stack_chk_fail __fprintf_chk 'Flags:.* PIE'
mapfile -t objects < <(find build/release/{src,host,info,tools/tarn}/CMakeFiles -name '*.o')
marked "$work/prefix/lib/libtarn.so" "${objects[@]}"
by_pkg_config "$work/prefix" tarn_host "$program"
by_pkg_config "$work/prefix" tarn "$program" examples/own_host.c
tool_runs "$work/prefix"
mv "$work/prefix" "$work/moved"
by_pkg_config "$work/moved" tarn_host "$program"
by_cmake find_package -DCMAKE_PREFIX_PATH="$work/moved" -DCOMPONENTS="host;info"
tool_runs "$work/moved"
[ ! -e "$work/moved/include/vel_platform.h" ] || fail "vel_platform.h lies among everybody's headers"

DESTDIR=$work/stage cmake --install build/release --prefix /usr >"$work/log"
tool_runs "$work/stage/usr"
by_pkg_config "$work/stage/usr" tarn_host "$program"

# A library directory that was given as a whole path.
cmake -S . -B "$work/absolute" -G Ninja -DTARN_TOOLS=OFF -DTARN_INFO=OFF -DTARN_EXAMPLES=OFF \
    -DTARN_TESTS=OFF -DTARN_COMPACT=ON -DCMAKE_BUILD_TYPE=Debug -DCMAKE_INSTALL_LIBDIR="$work/else/lib" >"$work/log"
cmake --build "$work/absolute" -- --quiet
cmake --install "$work/absolute" --prefix "$work/else" >"$work/log"
by_pkg_config "$work/else" tarn_host "$program"

by_cmake add_subdirectory
builds_alone "$work/add_subdirectory"
by_cmake FetchContent
builds_alone "$work/FetchContent"
