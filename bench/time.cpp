// Times every operation. Run by scripts/bench.sh, which turns the medians into a table.
#include <benchmark/benchmark.h>

#include "operations.h"

int main(int argc, char **argv) {
    if (!bench::all_agree())
        return 1;
    for (const bench::Operation &operation : bench::operations())
        benchmark::RegisterBenchmark(operation.name.c_str(),
                                     [run = operation.run](benchmark::State &state) {
                                         for ([[maybe_unused]] auto turn : state) {
                                             run();
                                             benchmark::ClobberMemory();
                                         }
                                     });
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
