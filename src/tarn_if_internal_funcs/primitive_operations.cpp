#include "tarn_if_internal_funcs/primitive_operations.h"

#include "platform_calls.h"
#include "tarn_if_internal_funcs/judging.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

uint32_t value_size_checked(const void *value, TypeId id) {
    return any_null(TARN_CALLER(moduleInternal), value) ? 0 : value_size(id, value);
}

namespace {

// A scalar or byte string leaves the caller's count alone when it fails; a record or list tells how
// far it came.
bool has_parts(TypeId id) {
    return type_of(id).kind == Kind::record || type_of(id).kind == Kind::list;
}

} // namespace

// Nothing is written unless all of it fits.
uint32_t pack_value(const void *value, uint8_t *buffer, uint32_t available, uint32_t *written,
                    TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), value, buffer, written))
        return 0;
    Output out{buffer, available};
    const bool ok = value_size(id, value) <= available && write_value(id, value, &out);
    if (ok || has_parts(id))
        *written = available - out.left;
    return ok;
}

uint32_t unpack_value(void *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                      uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), value, buffer, consumed))
        return 0;
    Input in{buffer, available};
    const bool ok = decodes(judge_value(id, value, length, &in));
    if (ok || has_parts(id))
        *consumed = available - in.left;
    return ok;
}

} // namespace tarn
