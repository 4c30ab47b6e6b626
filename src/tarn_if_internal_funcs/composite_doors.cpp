// The exported codecs and validators of the composite IEs: each is one call of the engine.
#include "tarn_if.h"
#include "tarn_if_internal_funcs/packing.h"
#include "tarn_if_internal_funcs/unpacking.h"
#include "tarn_if_internal_funcs/validity.h"

using namespace tarn;

#define CODEC_DOORS(name_)                                                                         \
    uint32_t TarnPack##name_##Ie(const Tarn##name_##Ie *ie, uint8_t *buffer, uint32_t available,   \
                                 uint32_t *written) {                                              \
        return pack_composite_ie(head_of(ie), buffer, available, written, type##name_);            \
    }                                                                                              \
    uint32_t TarnUnpack##name_##Ie(const TarnMsg *, Tarn##name_##Ie *ie, const uint8_t *buffer,    \
                                   uint32_t available, uint32_t *consumed) {                       \
        return unpack_composite_ie(head_of(ie), buffer, available, consumed, type##name_);         \
    }                                                                                              \
    uint32_t TarnIs##name_##IeValid(const TarnMsg *, const Tarn##name_##Ie *ie) {                  \
        return is_valid_checked(head_of(ie), type##name_);                                         \
    }

#define SEQUENCE(name_, ...)       CODEC_DOORS(name_)
#define COMPOSITE_LIST(name_, ...) CODEC_DOORS(name_)
#include "catalogue/composite_ies.def"
