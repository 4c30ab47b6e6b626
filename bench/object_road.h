// The four messages encoded and decoded by the library, object by object, as a program does it that
// needs every IE. The arguments are those of Build and Get; the results are 1 for success.
#ifndef TARN_BENCH_OBJECT_ROAD_H
#define TARN_BENCH_OBJECT_ROAD_H

#include "tarn_if.h"

namespace bench {

#define TARN_OBJECT_ROAD(message_)                                                                 \
    uint32_t encode_##message_(uint8_t *buffer, uint32_t size,                                     \
                               const Tarn##message_##Record *record);                              \
    uint32_t decode_##message_(const uint8_t *buffer, uint32_t length,                             \
                               Tarn##message_##Record *record);
TARN_OBJECT_ROAD(SecurityModeReject)
TARN_OBJECT_ROAD(AccessControlRequest)
TARN_OBJECT_ROAD(UlDirectTransfer)
TARN_OBJECT_ROAD(RabAssignmentRequest)
#undef TARN_OBJECT_ROAD

} // namespace bench

#endif
