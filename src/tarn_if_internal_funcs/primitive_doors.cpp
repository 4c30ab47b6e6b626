// The exported operations of the primitive IEs: each is one call of the engine with its type.
#include "tarn_if.h"
#include "tarn_if_internal_funcs/packing.h"
#include "tarn_if_internal_funcs/primitive_operations.h"
#include "tarn_if_internal_funcs/unpacking.h"
#include "tarn_if_internal_funcs/validity.h"

using namespace tarn;

#define VALUE_DOORS(name_)                                                                         \
    uint32_t TarnSizeOf##name_(const Tarn##name_ *value) {                                         \
        return value_size_checked(value, type##name_);                                             \
    }                                                                                              \
    uint32_t TarnPack##name_(const Tarn##name_ *value, uint8_t *buffer, uint32_t available,        \
                             uint32_t *written) {                                                  \
        return pack_value(value, buffer, available, written, type##name_);                         \
    }                                                                                              \
    uint32_t TarnUnpack##name_(Tarn##name_ *value, uint32_t length, const uint8_t *buffer,         \
                               uint32_t available, uint32_t *consumed) {                           \
        return unpack_value(value, length, buffer, available, consumed, type##name_);              \
    }                                                                                              \
    uint32_t TarnIs##name_##Valid(const Tarn##name_ *value) {                                      \
        return is_valid_checked(value, type##name_);                                               \
    }

#define IE_DOORS(name_)                                                                            \
    VALUE_DOORS(name_)                                                                             \
    uint32_t TarnPack##name_##Ie(const Tarn##name_##Ie *ie, uint8_t *buffer, uint32_t available,   \
                                 uint32_t *written) {                                              \
        return pack_primitive_ie(head_of(ie), buffer, available, written, type##name_);            \
    }                                                                                              \
    uint32_t TarnUnpack##name_##Ie(const void *, Tarn##name_##Ie *ie, const uint8_t *buffer,       \
                                   uint32_t available, uint32_t *consumed) {                       \
        return unpack_primitive_ie(head_of(ie), buffer, available, consumed, type##name_);         \
    }                                                                                              \
    uint32_t TarnIs##name_##IeValid(const void *, const Tarn##name_##Ie *ie) {                     \
        return is_valid_checked(head_of(ie), type##name_);                                         \
    }

#define SCALAR(name_, ...)      IE_DOORS(name_)
#define BYTES(name_, ...)       IE_DOORS(name_)
#define RECORD(name_, ...)      IE_DOORS(name_)
#define LIST(name_, ...)        IE_DOORS(name_)
#define ITEM_SCALAR(name_, ...) VALUE_DOORS(name_)
#define ITEM_RECORD(name_, ...) VALUE_DOORS(name_)
#define FREE_SCALAR(name_, ...) VALUE_DOORS(name_)
#define FREE_RECORD(name_, ...) VALUE_DOORS(name_)
#include "catalogue/primitive_ies.def"
