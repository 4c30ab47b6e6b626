// What the benchmarks carry: one record of values for each of the four messages.
#ifndef TARN_BENCH_SAMPLES_H
#define TARN_BENCH_SAMPLES_H

#include "tarn_if.h"

namespace bench {

inline constexpr unsigned rabCount = 3;
inline constexpr unsigned subflowCount = 3;
inline constexpr unsigned formatCount = 3;

void fill(TarnSecurityModeRejectRecord *record);
void fill(TarnAccessControlRequestRecord *record);

// The NAS message is 120 bytes long.
void fill(TarnUlDirectTransferRecord *record);

// Three RABs with the RAB parameters of a real-time traffic class in full.
void fill(TarnRabAssignmentRequestRecord *record);

// One such RAB, for records that hold any number of them.
void fill(TarnRabToSetUpInfoRecord *record, unsigned number);

} // namespace bench

#endif
