// Counts every operation's instructions. Run under callgrind by scripts/bench.sh.
//
// Each operation is run some number of times and then twice as often: the difference is free of the
// loop's beginning and end, and by then the host keeps all the blocks that it needs.
#include <cstdio>

#include "counting.h"
#include "operations.h"

namespace {

constexpr unsigned turns = 64;

void repeat(void (*run)(), unsigned count) {
    for (unsigned i = 0; i < count; ++i)
        run();
}

} // namespace

int main() {
    if (!bench::all_agree())
        return 1;
    for (const bench::Operation &operation : bench::operations()) {
        repeat(operation.run, turns);
        bench::count(operation.name + "/1", [&] { repeat(operation.run, turns); });
        bench::count(operation.name + "/2", [&] { repeat(operation.run, 2 * turns); });
    }
    return 0;
}
