#include "tarn_if_internal_funcs/primitive_operations.h"

#include "platform_calls.h"
#include "tarn_if_internal_funcs/judging.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

uint32_t size_of_value(const void *value, TypeId id) {
    return any_null(TARN_CALLER(moduleInternal), value) ? 0 : value_size(id, value);
}

// Nothing is written unless all of it fits. A record or list then reports 0 bytes; a scalar or byte
// string leaves the count alone, as on each of its failures.
uint32_t pack_value(const void *value, uint8_t *buffer, uint32_t available, uint32_t *written,
                    TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), value, buffer, written))
        return 0;
    if (value_size(id, value) <= available)
        return write_value(id, value, Output{buffer, available}, written);
    const Kind kind = type_of(id).kind;
    if (kind == Kind::record || kind == Kind::list)
        *written = 0;
    return 0;
}

uint32_t unpack_value(void *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                      uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), value, buffer, consumed))
        return 0;
    Input in{buffer, available};
    const bool ok = decodes(judge_value(id, value, length, &in));
    const Kind kind = type_of(id).kind;
    // A scalar or byte string leaves the count alone when it fails.
    if (ok || kind == Kind::record || kind == Kind::list)
        *consumed = available - in.left;
    return ok;
}

uint32_t is_value_valid(const void *value, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), value))
        return 0;
    return value_is_valid(id, value);
}

} // namespace tarn
