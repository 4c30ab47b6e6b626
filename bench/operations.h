// Everything that is measured, as one table: each of the four messages, encoded and decoded, on
// each road and by each yardstick.
#ifndef TARN_BENCH_OPERATIONS_H
#define TARN_BENCH_OPERATIONS_H

#include <string>
#include <vector>

namespace bench {

struct Operation {
    std::string name; // message/direction/road
    void (*run)();
};

// Roads: "objects" and "one call" are the library's, "floor" and "wire" are their floors (see
// floor/floor.h), and the peers' names stand for the same content in their format.
const std::vector<Operation> &operations();

// Runs each operation once and compares what it made with what the library's one call makes. Prints
// each difference; true when there is none.
bool all_agree();

} // namespace bench

#endif
