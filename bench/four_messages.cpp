// A program for bare metal that makes and reads the four messages of the benchmarks, on the road
// of objects, by one call each, or both ways, as ROADS says. It is linked to be measured: nothing
// runs it, and its host is left out.
#include "object_road.h"

namespace {

uint8_t buffer[8192];

template <class Record>
Record record;

#define TARN_BY_OBJECTS 1
#define TARN_BY_ONE_CALL 2

#define TARN_USE(name_)                                                                            \
    if (ROADS & TARN_BY_OBJECTS) {                                                                 \
        bench::encode_##name_(buffer, sizeof buffer, &record<Tarn##name_##Record>);                \
        bench::decode_##name_(buffer, sizeof buffer, &record<Tarn##name_##Record>);                \
    }                                                                                              \
    if (ROADS & TARN_BY_ONE_CALL) {                                                                \
        TarnBuild##name_##Msg(buffer, sizeof buffer, &record<Tarn##name_##Record>);                \
        TarnGet##name_##Msg(buffer, sizeof buffer, &record<Tarn##name_##Record>);                  \
    }

} // namespace

int main() {
    TARN_USE(SecurityModeReject)
    TARN_USE(AccessControlRequest)
    TARN_USE(UlDirectTransfer)
    TARN_USE(RabAssignmentRequest)
    return 0;
}
