// Counts instructions under callgrind: each measurement becomes one of its dumps, whose trigger is
// the measurement's name.
#ifndef TARN_BENCH_COUNTING_H
#define TARN_BENCH_COUNTING_H

#include <string>

#include <valgrind/callgrind.h>

namespace bench {

// Runs `run` for a dump of its own.
template <class Run>
void count(const std::string &name, const Run &run) {
    CALLGRIND_ZERO_STATS;
    run();
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

} // namespace bench

#endif
