// IE objects and message objects: creating, releasing and resetting them.
#ifndef TARN_OBJECTS_H
#define TARN_OBJECTS_H

#include "catalogue/descriptors.h"
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

// Returns a new IE object: unlinked, not yet extracted, with its value or children still to be set.
inline TarnIe *create_head(TypeId id, Caller caller) {
    auto *ie =
        static_cast<TarnIe *>(allocate(uint32_t(sizeof(TarnIe)) + type_of(id).valueSize, caller));
    xVelDllInitNode(&ie->node, caller.module, caller.line);
    ie->tag = id;
    ie->extractHistory = 0;
    return ie;
}

// Returns a new composite IE object without children.
TarnIe *create_composite(TypeId id, Caller caller);

// Returns a new message object without any IE.
TarnMsg *create_msg(MessageNumber id, Caller caller);

// Releases the IE object and all below it. It must not be linked any more.
void delete_ie(TarnIe *ie);

// Releases the message object and all its IEs.
void delete_msg(TarnMsg *msg);

// The operations of the same names in the public interface.
void delete_ie_checked(TarnIe *ie);
void delete_msg_checked(TarnMsg *msg);
uint32_t ie_tag_checked(const TarnIe *ie);
void reset_ie_history(TarnIe *ie);
void reset_msg_history(TarnMsg *msg);

} // namespace tarn

#endif
