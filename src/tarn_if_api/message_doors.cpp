// The exported operations of the messages: each is one call of the engine with its message or type.
#include "tarn_if.h"
#include "tarn_if_api/members.h"
#include "tarn_if_api/records.h"
#include "tarn_if_internal_funcs/packing.h"
#include "tarn_if_internal_funcs/validity.h"

using namespace tarn;

namespace {

// Returns a new message that holds its MessageId IE.
template <class Id>
TARN_SHARED TarnMsg *new_msg(Id id) {
    TarnMsg *msg = create_msg(id, TARN_CALLER(moduleApi));
    link_message_id(msg, id);
    return msg;
}

} // namespace

#define PRIMITIVE_EXTRACT_DOOR(owner_, child_)                                                     \
    uint32_t TarnExtract##child_##From##owner_##Msg(TarnMsg *msg, Tarn##child_ *value) {           \
        return extract(msg, value, asBuilt<type##child_>, __LINE__);                               \
    }

#define MESSAGE(name_, ...)                                                                        \
    TarnMsg *TarnNew##name_##Msg(void) {                                                           \
        return new_msg(asBuilt<message##name_>);                                                   \
    }                                                                                              \
    uint32_t TarnIs##name_##MsgValid(const TarnMsg *msg) {                                         \
        return is_valid_checked(msg, message##name_);                                              \
    }                                                                                              \
    uint32_t TarnPack##name_##Msg(const TarnMsg *msg, uint8_t *buffer, uint32_t size) {            \
        return pack_msg(msg, buffer, size, asBuilt<message##name_>);                               \
    }                                                                                              \
    uint32_t TarnBuild##name_##Msg(uint8_t *buffer, uint32_t size,                                 \
                                   const Tarn##name_##Record *record) {                            \
        return build_msg(buffer, size, record, asBuilt<message##name_>);                           \
    }                                                                                              \
    uint32_t TarnGet##name_##Msg(const uint8_t *buffer, uint32_t length,                           \
                                 Tarn##name_##Record *record) {                                    \
        return get_msg(buffer, length, record, asBuilt<message##name_>);                           \
    }                                                                                              \
    PRIMITIVE_EXTRACT_DOOR(name_, MessageId)

#define PRIMITIVE_SLOT(owner_, child_, ...)                                                        \
    uint32_t TarnAppend##child_##To##owner_##Msg(TarnMsg *msg, const Tarn##child_ *value) {        \
        return append(msg, value, asBuilt<type##child_>);                                          \
    }                                                                                              \
    PRIMITIVE_EXTRACT_DOOR(owner_, child_)

#define COMPOSITE_SLOT(owner_, child_, ...)                                                        \
    uint32_t TarnAppend##child_##IeTo##owner_##Msg(TarnMsg *msg, Tarn##child_##Ie *ie) {           \
        return link(msg, head_of(ie));                                                             \
    }                                                                                              \
    uint32_t TarnExtract##child_##IeFrom##owner_##Msg(TarnMsg *msg, Tarn##child_##Ie **ie) {       \
        return borrow(msg, reinterpret_cast<TarnIe **>(ie), asBuilt<type##child_>, __LINE__);      \
    }
#include "catalogue/messages.def"
