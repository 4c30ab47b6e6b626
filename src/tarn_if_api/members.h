// Append and extract: putting IEs into a message or a composite, and taking them out in order.
//
// An extract takes the first IE of its tag whose history is still 0 and sets it to 1, so repeated
// calls walk repeated IEs; only direct members are looked at, never their children.
#ifndef TARN_MEMBERS_H
#define TARN_MEMBERS_H

#include "tarn_if_api/objects.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Links a new primitive IE holding a copy of the value, and returns true; or returns false for a
// value out of range, with the list as it was. Position and duplicates are the validators' affair.
bool append_copy(VelDllHead *list, TypeId id, const void *value, Caller caller);

// The operations of the public interface, by kind of owner and of child.
uint32_t append_to_msg(TarnMsg *msg, const void *value, TypeId id);
uint32_t append_message_id(TarnMsg *msg, const TarnMessageId *value);
uint32_t append_to_composite(TarnIe *owner, const void *value, TypeId id);
uint32_t link_to_msg(TarnMsg *msg, TarnIe *ie);
uint32_t link_to_composite(TarnIe *owner, TarnIe *ie);
uint32_t extract_from_msg(TarnMsg *msg, void *value, TypeId id);
uint32_t extract_from_composite(TarnIe *owner, void *value, TypeId id);
uint32_t borrow_from_msg(TarnMsg *msg, TarnIe **ie, TypeId id);
uint32_t borrow_from_composite(TarnIe *owner, TarnIe **ie, TypeId id);

} // namespace gnu::visibility("hidden")]]tarn

#endif
