// The least that the objects cost: each of four messages encoded and decoded by straight-line code
// written for that message alone.
//
// It makes the platform calls that a design of listed IE objects cannot do without, and no others:
// a block for the message and for each IE, the linking of each, one walk of each list to pack it,
// a walk from the head for each extract, and the emptying of each list. Tags, lengths and positions
// are constants; nothing is checked, dispatched or looked up. The values are copied as the public
// header's types, and the objects are of the public header's sizes.
//
// And the least that a record and its bytes cost, without any object: the Wire functions load and
// store exactly the content of the benchmarks' samples (see wire.cpp).
#ifndef TARN_FLOOR_H
#define TARN_FLOOR_H

#include "tarn_if.h"

#pragma GCC visibility push(default)

#define TARN_FLOOR(message_)                                                                       \
    extern "C" uint32_t FloorEncode##message_(uint8_t *buffer, uint32_t size,                      \
                                              const Tarn##message_##Record *record);               \
    extern "C" uint32_t FloorDecode##message_(const uint8_t *buffer, uint32_t length,              \
                                              Tarn##message_##Record *record);                     \
    extern "C" uint32_t WireEncode##message_(uint8_t *buffer, uint32_t size,                       \
                                             const Tarn##message_##Record *record);                \
    extern "C" uint32_t WireDecode##message_(const uint8_t *buffer, uint32_t length,               \
                                             Tarn##message_##Record *record);
TARN_FLOOR(SecurityModeReject)
TARN_FLOOR(AccessControlRequest)
TARN_FLOOR(UlDirectTransfer)
TARN_FLOOR(RabAssignmentRequest)
#undef TARN_FLOOR

#pragma GCC visibility pop

#endif
