// What the host's memory costs, for scripts/allocators.sh:
//   count OPERATION TURNS   runs an operation so often, for callgrind to count
//   time OPERATION THREADS  processor time of one turn in ns, on so many threads at once
//   bursts, threads         megabytes that stay resident, after two bursts and after 5,000 threads
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#include "object_road.h"
#include "samples.h"

namespace {

void *take(unsigned size) {
    void *block = nullptr;
    velAllocMemoryWithIds(size, &block, "bench", __LINE__);
    return block;
}

void put(void *block) {
    velFreeMemoryWithIds(&block, "bench", __LINE__);
}

// Decoded from bytes to a record and encoded again, object by object.
template <class Record, auto build, auto encode, auto decode>
void pass_messages(unsigned turns) {
    static thread_local Record record;
    std::uint8_t bytes[8192];
    std::memset(static_cast<void *>(&record), 0, sizeof record);
    bench::fill(&record);
    const std::uint32_t length = build(bytes, sizeof bytes, &record);
    for (unsigned i = 0; i < turns; ++i)
        if (decode(bytes, length, &record) == 0 || encode(bytes, sizeof bytes, &record) == 0)
            std::abort();
}

void pass_pairs(unsigned turns) {
    for (unsigned i = 0; i < turns; ++i)
        put(take(32));
}

// As many blocks at once as the largest messages take.
void pass_many(unsigned turns) {
    std::vector<void *> blocks(12000);
    for (unsigned i = 0; i < turns; ++i) {
        for (void *&block : blocks)
            block = take(28);
        for (void *block : blocks)
            put(block);
    }
}

#define ROAD(message_)                                                                             \
    pass_messages<Tarn##message_##Record, TarnBuild##message_##Msg, bench::encode_##message_,      \
                  bench::decode_##message_>
const struct Operation {
    const char *name;
    void (*run)(unsigned turns);
    unsigned turns; // of a timed run
} operations[] = {
    {"pair", pass_pairs, 2000000},
    {"SecurityModeReject", ROAD(SecurityModeReject), 100000},
    {"UlDirectTransfer", ROAD(UlDirectTransfer), 100000},
    {"RabAssignmentRequest", ROAD(RabAssignmentRequest), 3000},
    {"12000 blocks", pass_many, 30},
};

const Operation &operation(const char *name) {
    for (const Operation &each : operations)
        if (std::strcmp(each.name, name) == 0)
            return each;
    std::exit(2);
}

// Of all threads; what else the machine does is not counted.
double processor_nanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e9 + double(now.tv_nsec);
}

void time(const Operation &operation, unsigned count) {
    std::vector<std::thread> threads;
    const double start = processor_nanoseconds();
    for (unsigned i = 0; i < count; ++i)
        threads.emplace_back(operation.run, operation.turns);
    for (std::thread &thread : threads)
        thread.join();
    std::printf("%.0f\n", (processor_nanoseconds() - start) / operation.turns / count);
}

long resident_megabytes() {
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * sysconf(_SC_PAGESIZE) / 1048576;
}

// A gigabyte of small blocks, then one of larger ones.
void bursts() {
    constexpr std::size_t gigabyte = std::size_t{1} << 30;
    static void *blocks[gigabyte / 24];
    std::memset(static_cast<void *>(blocks), 1, sizeof blocks);
    const long before = resident_megabytes();
    for (const unsigned size : {24U, 300U}) {
        for (std::size_t i = 0; i < gigabyte / size; ++i)
            std::memset(blocks[i] = take(size), 1, size);
        std::printf("%ld ", resident_megabytes() - before);
        for (std::size_t i = 0; i < gigabyte / size; ++i)
            put(blocks[i]);
        std::printf("%ld ", resident_megabytes() - before);
    }
}

void threads() {
    const long before = resident_megabytes();
    for (int i = 0; i < 5000; ++i)
        std::thread([] {
            std::vector<void *> blocks;
            for (unsigned size = 8; size < 4200; size += 8)
                for (int number = 0; number < 8; ++number)
                    blocks.push_back(take(size));
            for (void *block : blocks)
                put(block);
        }).join();
    std::printf("%ld\n", resident_megabytes() - before);
}

} // namespace

int main(int argc, char **argv) {
    const std::string verb = argc > 1 ? argv[1] : "";
    if (verb == "count" && argc == 4)
        operation(argv[2]).run(unsigned(std::atoi(argv[3])));
    else if (verb == "time" && argc == 4)
        time(operation(argv[2]), unsigned(std::atoi(argv[3])));
    else if (verb == "bursts")
        bursts();
    else if (verb == "threads")
        threads();
    else
        return 2;
    return 0;
}
