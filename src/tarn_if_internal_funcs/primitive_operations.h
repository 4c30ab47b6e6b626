// The value-level operations of the public interface, by type.
#ifndef TARN_PRIMITIVE_OPERATIONS_H
#define TARN_PRIMITIVE_OPERATIONS_H

#include "catalogue/descriptors.h"

namespace [[gnu::visibility("hidden")]] tarn {

uint32_t value_size_checked(const void *value, TypeId id);
uint32_t pack_value(const void *value, uint8_t *buffer, uint32_t available, uint32_t *written,
                    TypeId id);
uint32_t unpack_value(void *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                      uint32_t *consumed, TypeId id);

} // namespace tarn

#endif
