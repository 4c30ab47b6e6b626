// Makes and reads the four messages of the benchmarks, on the road of objects, by one call each, or
// both ways, as ROADS says. On bare metal it is linked to be measured and its host left out.
#include "object_road.h"
#include "samples.h"

namespace {

uint8_t buffer[8192];

template <class Record>
Record sample;
template <class Record>
Record received;

#define TARN_BY_OBJECTS  1
#define TARN_BY_ONE_CALL 2

#define TARN_USE(name_)                                                                            \
    {                                                                                              \
        auto *sent = &sample<Tarn##name_##Record>;                                                 \
        auto *taken = &received<Tarn##name_##Record>;                                              \
        bench::fill(sent);                                                                         \
        if (ROADS & TARN_BY_OBJECTS)                                                               \
            ok &= bench::encode_##name_(buffer, sizeof buffer, sent) != 0 &&                       \
                  bench::decode_##name_(buffer, sizeof buffer, taken) != 0;                        \
        if (ROADS & TARN_BY_ONE_CALL)                                                              \
            ok &= TarnBuild##name_##Msg(buffer, sizeof buffer, sent) != 0 &&                       \
                  TarnGet##name_##Msg(buffer, sizeof buffer, taken) != 0;                          \
    }

} // namespace

int main() {
    bool ok = true;
    // The first round pays for what is done once.
    for (int round = 0; round < 20; ++round) {
        TARN_USE(SecurityModeReject)
        TARN_USE(AccessControlRequest)
        TARN_USE(UlDirectTransfer)
        TARN_USE(RabAssignmentRequest)
    }
    return ok ? 0 : 1;
}
