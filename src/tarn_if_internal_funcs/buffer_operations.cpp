// The exported operations on tags and lengths in a buffer.
#include "platform_calls.h"
#include "tarn_if.h"
#include "wire.h"

using namespace tarn;

uint32_t TarnExtractTagFromBuffer(uint16_t *tag, const uint8_t *buffer, uint32_t available) {
    if (any_null(TARN_CALLER(moduleInternal), tag, buffer) || available < tagSize)
        return 0;
    *tag = uint16_t(load16(buffer));
    return tagSize;
}

uint32_t TarnExtractLengthFromBuffer(uint32_t *length, const uint8_t *buffer, uint32_t available) {
    if (any_null(TARN_CALLER(moduleInternal), length, buffer) || available < lengthSize)
        return 0;
    *length = load32(buffer);
    return lengthSize;
}

uint32_t TarnPackTagIntoBuffer(uint32_t tag, uint8_t *buffer, uint32_t available) {
    if (any_null(TARN_CALLER(moduleInternal), buffer) || available < tagSize)
        return 0;
    store16(buffer, tag);
    return tagSize;
}

uint32_t TarnPackLengthIntoBuffer(uint32_t length, uint8_t *buffer, uint32_t available) {
    if (any_null(TARN_CALLER(moduleInternal), buffer) || available < lengthSize)
        return 0;
    store32(buffer, length);
    return lengthSize;
}
