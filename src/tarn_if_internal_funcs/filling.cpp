#include "tarn_if_internal_funcs/filling.h"

namespace tarn {

const uint8_t *fill_any(TypeId id, void *to, const uint8_t *at) {
    return fill_known(id, to, at);
}

} // namespace tarn
