#!/usr/bin/env bash
# Counts what the stack protector costs: the instructions of encoding and decoding the four messages
# of the benchmarks, on the road of objects and by one call: without it, with it in the host, and with
# it in libtarn as well. Fails where what is on by default (the host) costs more than 3 %.
set -euo pipefail
cd "$(dirname "$0")/.."
work=build/protector

mkdir -p $work
for way in with without; do
    unprotected=
    [ $way = with ] || unprotected="tarn;tarn_host"
    cmake -S . -B $work/$way -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARN_TOOLS=OFF -DTARN_INFO=OFF \
        -DTARN_EXAMPLES=OFF -DTARN_TESTS=OFF -DTARN_UNPROTECTED="$unprotected" >$work/$way.log
    cmake --build $work/$way --target tarn tarn_host -- --quiet
done
g++ -std=c++20 -O2 -DROADS=3 -Iinclude -Iplatform -o $work/program bench/four_messages.cpp \
    bench/object_road.cpp bench/samples.cpp \
    -L$work/with/src -L$work/with/host -ltarn -ltarn_host -Wl,-z,now

count() { # name, codec's build, host's build
    LD_LIBRARY_PATH=$work/$2/src:$work/$3/host valgrind -q --tool=callgrind \
        --callgrind-out-file=$work/$1.out $work/program
    callgrind_annotate --inclusive=yes --threshold=100 $work/$1.out |
        sed -nE 's/^ *([0-9,]+) .*[:\/](bench::(en|de)code_\w+|Tarn(Build|Get)\w+Msg).*/\2 \1/p' |
        tr -d , | sort -u >$work/$1.counts
}
count none without without
count host without with
count both with with
printf '%-36s %9s %9s %16s\n' "stack protector in" none "the host" "libtarn as well"
join $work/none.counts $work/host.counts | join - $work/both.counts | awk '
    function line(name, none, host, both) {
        printf "%-36s %9d %+7.1f %% %14.1f %%\n", name, none, 100 * (host / none - 1), 100 * (both / none - 1)
        if (host > 1.03 * none)
            dear = 1
    }
    { line($1, $2, $3, $4); none += $2; host += $3; both += $4 }
    END { line("all", none, host, both); exit dear }'
