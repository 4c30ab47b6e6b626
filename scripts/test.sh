#!/usr/bin/env bash
# Checks the project, installing what is missing.
#   scripts/test.sh            what each change has to pass: gcc, sanitizers, format
#   scripts/test.sh all        every stage but those that have passed before on the very same sources
#   scripts/test.sh STAGE...   the stages named
#
# Stages:
#   gcc        the tests, built by g++
#   sanitizers the same tests with AddressSanitizer and UndefinedBehaviorSanitizer in the libraries,
#              the engine in its compact form
#   format     clang-format
#   coverage   every line and branch of the library
#   speed      the same tests with AddressSanitizer in the form built for speed
#   tidy       clang-tidy
#   threads    many threads at once under ThreadSanitizer
#   fuzz       the fuzz targets of the codec, built by clang, for a short time
#   armhf      the tests on 32-bit ARM (Thumb-2), under qemu
#   s390x      the tests on a big-endian processor, under qemu
#   abi        the binary interface against its baseline
#   python     the Python module, its examples and its guide
#   install    what is installed, used by pkg-config and in three ways by CMake
#   bare       the static library for bare metal, and what a program takes of it
#   packages   the Debian packages, judged by lintian; built in another place, they hold what
#              build/release does, bit by bit
#   wireshark  Wireshark's plugin against the tool, and the tool's captures and output in the programs
#              that read them
#   soak       library and host under load for some seconds
set -euo pipefail
cd "$(dirname "$0")/.."

quick=(gcc sanitizers format)
all=(gcc sanitizers speed coverage packages install python wireshark soak
    format threads armhf s390x abi bare fuzz tidy)
# Those that do not touch build/release: one of them runs beside one of the others.
own_builds="format threads armhf s390x abi bare fuzz tidy"

# The groups of scripts/packages.sh that a stage needs; `test` where none is named.
declare -A needs=([format]=format [tidy]=tidy [threads]="test clang" [fuzz]="test clang"
    [coverage]="test coverage" [armhf]=cross [s390x]=cross [abi]="cross abi"
    [python]="test python" [install]="test install" [bare]=bare [packages]=pack
    [wireshark]="test wireshark")

stage_gcc() {
    cmake --preset release >/dev/null
    cmake --build --preset release -- --quiet
    ctest --preset release -j "$(nproc)" --progress -LE others_programs
}
stage_sanitizers() { scripts/sanitizers.sh compact; }
stage_speed() { scripts/sanitizers.sh speed; }
stage_format() {
    git ls-files -z '*.cpp' '*.c' '*.h' | grep -zv '^include/' |
        xargs -0 clang-format --dry-run --Werror
}
stage_coverage() { scripts/coverage.sh; }
stage_tidy() {
    # The compact form: the other one is the same code, compiled once more for each type, and takes
    # minutes for a file of doors.
    cmake -S . -B build/tidy -G Ninja -DTARN_COMPACT=ON -DTARN_STATIC=OFF -DTARN_TESTS=OFF \
        -DTARN_EXAMPLES=OFF -DCMAKE_UNITY_BUILD_BATCH_SIZE=100 >/dev/null
    # Sources that are compiled together, those of the tools, are read together. The analyzer of
    # paths takes what is linked into users' programs: in the parser of the tool's arguments alone it
    # is busy for a minute. The longest are started first.
    sed -n 's/^ *"file": "\(.*\)"$/\1/p' build/tidy/compile_commands.json |
        grep -v /info/protocol/ | sort -ru |
        xargs -P "$(nproc)" -I {} bash -c 'checks=-bugprone-suspicious-include
            case {} in */tools/*) checks+=,-clang-analyzer-*,-performance-unnecessary-value-param ;; esac
            clang-tidy -p build/tidy --quiet --checks="$checks" {}'
}
stage_threads() { scripts/threads.sh; }
# The compact form, which looks over everything; the tool's targets are replayed by the tests.
stage_fuzz() { scripts/fuzz.sh --compact 3 decode record ie calls; }
stage_armhf() { scripts/emulated.sh armhf; }
stage_s390x() { scripts/emulated.sh s390x; }
stage_abi() { scripts/abi.sh; }
stage_python() { scripts/python.sh; }
stage_install() { scripts/install.sh; }
stage_bare() { scripts/bare_metal.sh; }
stage_packages() { scripts/reproducible.sh; }
stage_wireshark() {
    scripts/wireshark.sh
    ctest --preset release --progress -L others_programs
}
stage_soak() { scripts/soak.sh 0.2; }

usage() { # exit status
    sed -n '2,/^set /{/^#/s/^# \{0,1\}//p}' "$0"
    exit "$1"
}

# What is checked: each file that git knows or would take, as it is now.
sources() {
    git ls-files -z --cached --others --exclude-standard | xargs -0 sha256sum 2>/dev/null | sha256sum
}

again=yes
case "${1:-}" in
-h | --help) usage 0 ;;
all) set -- "${all[@]}" && again=no ;;
'') set -- "${quick[@]}" ;;
esac
groups=()
on_release=()
apart=()
for stage in "$@"; do
    if ! declare -F "stage_$stage" >/dev/null; then
        echo "no stage '$stage'; there are: ${all[*]}" >&2
        exit 2
    fi
    groups+=(${needs[$stage]:-test})
    case " $own_builds " in
    *" $stage "*) apart+=("$stage") ;;
    *) on_release+=("$stage") ;;
    esac
done
scripts/packages.sh "${groups[@]}"

export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}
marks=build/passed # for each stage, the sources that it has passed on
mkdir -p $marks
: >$marks/results
TIMEFORMAT='==== %0R s, %0U s of processor time'

# run STAGE...: one after the other. What a stage prints is shown when it has ended.
run() {
    local stage end
    for stage in "$@"; do
        echo "==== $stage begins"
        end=passed
        if [ $again = no ] && [ "$(cat "$marks/$stage" 2>/dev/null)" = "$(sources)" ]; then
            echo "on these sources, before" >"$marks/$stage.log"
        # In a shell of its own: a function called in a condition would go on after a failed command.
        elif { time bash -euo pipefail -c "$(declare -f "stage_$stage"); stage_$stage"; } \
            >"$marks/$stage.log" 2>&1; then
            sources >"$marks/$stage"
        else
            end=failed
        fi
        echo "$stage $end" >>$marks/results
        flock $marks cat <(echo "==== $stage") "$marks/$stage.log" <(echo "==== $stage $end")
    done
}

# Two at a time: none keeps all processors busy from its beginning to its end.
trap 'kill 0' INT
if [ "${on_release[0]:-}" = gcc ]; then
    run gcc
    on_release=("${on_release[@]:1}")
fi
if ! grep -q failed $marks/results; then
    run "${apart[@]}" &
    run "${on_release[@]}"
    wait
fi
passed=$(grep -c passed $marks/results || true)
echo "all in $SECONDS s"
grep failed $marks/results || true
echo "$passed passed, $(grep -c failed $marks/results || true) failed"
[ "$passed" -eq $# ]
