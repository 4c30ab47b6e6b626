// IE objects and message objects: their parts, and creating them.
#ifndef TARN_OBJECTS_H
#define TARN_OBJECTS_H

#include <string.h>

#include "catalogue/catalogue.h"
#include "platform_calls.h"

namespace [[gnu::visibility("hidden")]] tarn {

// What follows the head of an IE object: a primitive's value, or a composite's list of children.
inline void *value_of(TarnIe *ie) {
    return ie + 1;
}
inline const void *value_of(const TarnIe *ie) {
    return ie + 1;
}
inline VelDllHead *children_of(TarnIe *ie) {
    return static_cast<VelDllHead *>(value_of(ie));
}
inline const VelDllHead *children_of(const TarnIe *ie) {
    return static_cast<const VelDllHead *>(value_of(ie));
}

// What follows the linkage in the head of an IE object. Its gap is filled to set all of it by one
// store, and means nothing: hosts and callers may make objects of their own.
struct Mark {
    uint16_t tag;
    uint16_t gap = 0;
    uint32_t extractHistory = 0;
};
inline constexpr size_t markOffset = offsetof(TarnIe, tag);
static_assert(markOffset + sizeof(Mark) == sizeof(TarnIe) && sizeof(void *) <= sizeof(Mark));

// Returns a new IE object: unlinked, not yet extracted, with its value or children still to be set.
TARN_INLINE TarnIe *create_head(TypeId id, Caller caller) {
    auto *ie =
        static_cast<TarnIe *>(allocate(uint32_t(sizeof(TarnIe)) + type_of(id).valueSize, caller));
    xVelDllInitNode(&ie->node, caller.module, caller.line);
    const Mark mark{id};
    memcpy(at_offset(ie, markOffset), &mark, sizeof mark);
    return ie;
}

// Returns a new composite IE object without children.
TARN_INLINE TarnIe *create_composite(TypeId id, Caller caller) {
    TarnIe *ie = create_head(id, caller);
    xVelDllInitHead(children_of(ie), 0, caller.module, caller.line);
    return ie;
}

// Returns a new message object without any IE.
TARN_INLINE TarnMsg *create_msg(MessageNumber id, Caller caller) {
    auto *msg = static_cast<TarnMsg *>(allocate(sizeof(TarnMsg), caller));
    xVelDllInitHead(&msg->ies, 0, caller.module, caller.line);
    msg->messageId = id;
    return msg;
}

// Links a new MessageId IE and returns 1.
TARN_INLINE uint32_t link_message_id(TarnMsg *msg, TarnMessageId id) {
    const Caller caller = TARN_CALLER(moduleInternal);
    TarnIe *ie = create_head(typeMessageId, caller);
    *static_cast<TarnMessageId *>(value_of(ie)) = id;
    link_ie(&msg->ies, ie, caller);
    return 1;
}

} // namespace tarn

#endif
