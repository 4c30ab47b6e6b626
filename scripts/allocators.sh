#!/usr/bin/env bash
# What the host's memory costs beside other allocators: instructions (callgrind) of an allocation
# with its release, of three messages decoded and encoded, and of 12,000 blocks taken and released;
# processor time of a RabAssignmentRequest on 1, 2 and 4 threads at once; MB resident with a gigabyte
# of small blocks, after their release, with a gigabyte of larger ones, after theirs, and after 5,000
# threads.
#   ships      the host as it is built: a cache for each thread, before malloc
#   pool       the pool of blocks that the host had before
#   the others each block from that allocator in malloc's place, by a host that does no more than
#              mark and count blocks (bench/thin_host.cpp)
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/allocators
formerPool=dd79005
cmake -S . -B $build -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_TESTS=OFF -DTARN_EXAMPLES=OFF \
    -DTARN_TOOLS=OFF >$build.log
cmake --build $build --target tarn tarn_host >>$build.log
g++ -std=c++20 -O2 -DNDEBUG -Iinclude -Iplatform bench/{memory,samples,object_road}.cpp \
    -L$build/src -L$build/host -ltarn -ltarn_host -pthread -Wl,-rpath,$PWD/$build/src \
    -o $build/memory

host() { # NAME, DIRECTORY of host and platform, SOURCE...
    mkdir -p $build/$1
    g++ -std=c++20 -O2 -DNDEBUG -fPIC -shared -fvisibility=hidden -fno-plt -pthread \
        -I"$2"/platform -I"$2"/host -I"$2"/host/include -Wl,-soname,libtarn_host.so.0 \
        -o $build/$1/libtarn_host.so.0 "${@:3}"
}
mkdir -p $build/former
git archive $formerPool host platform | tar -x -C $build/former
host ships . host/*.cpp
host pool $build/former $build/former/host/*.cpp
host thin $build/former bench/thin_host.cpp $build/former/host/{lists,reports}.cpp

libraries=/usr/lib/$(gcc -dumpmachine)
declare -A preload=([ships]= [pool]= [glibc]= [mimalloc]=libmimalloc.so.2
    [jemalloc]=libjemalloc.so.2 [tcmalloc]=libtcmalloc_minimal.so.4)
hosts=(ships pool glibc mimalloc jemalloc tcmalloc)

run() { # HOST COMMAND...
    local directory=thin
    [[ $1 != ships && $1 != pool ]] || directory=$1
    LD_LIBRARY_PATH=$build/$directory \
        LD_PRELOAD=${preload[$1]:+$libraries/${preload[$1]}} "${@:2}"
}

collected() { # HOST OPERATION TURNS
    run "$1" valgrind --tool=callgrind --callgrind-out-file=/dev/null \
        $build/memory count "$2" "$3" 2>&1 | sed -n 's/.*Collected : //p'
}

row() { # TITLE, and a command that is called with each host
    printf '%-34s' "$1"
    for each in "${hosts[@]}"; do printf '%11s' "$("${@:2}" "$each")"; done
    echo
}
instructions() { # OPERATION TURNS HOST
    echo $((($(collected "$3" "$1" $((2 * $2))) - $(collected "$3" "$1" "$2")) / $2))
}
# The best of several, in turns with the others.
nanoseconds() { sort -n $build/"$2"."$1" | head -1; }
resident() { # bursts or threads, COLUMN HOST
    local seen=$build/$3.$1
    [ -s "$seen" ] || run "$3" $build/memory "$1" >"$seen"
    cut -d' ' -f"$2" "$seen"
}

row "" echo
row "instructions: one block" instructions pair 10000
row "  SecurityModeReject" instructions SecurityModeReject 200
row "  UlDirectTransfer" instructions UlDirectTransfer 200
row "  RabAssignmentRequest" instructions RabAssignmentRequest 30
row "  12,000 blocks" instructions "12000 blocks" 3
rm -f $build/*.{1,2,4,bursts,threads}
for _ in 1 2 3 4 5; do
    for threads in 1 2 4; do
        for each in "${hosts[@]}"; do
            run "$each" $build/memory time RabAssignmentRequest $threads \
                >>$build/"$each".$threads
        done
    done
done
for threads in 1 2 4; do row "ns: RabAssignmentRequest, x $threads" nanoseconds $threads; done
row "MB: a gigabyte of 24 bytes each" resident bursts 1
row "  released" resident bursts 2
row "  a gigabyte of 300 bytes each" resident bursts 3
row "  released" resident bursts 4
row "  5,000 threads" resident threads 1
