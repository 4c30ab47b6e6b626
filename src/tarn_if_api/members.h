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

// The operations of the public interface, by owner and by value. Numbers have overloads of their
// own because nearly everything in a message is one: the door's pointer type picks the short way,
// and no kind needs to be asked for.
uint32_t append(TarnMsg *owner, const uint8_t *value, TypeId id);
uint32_t append(TarnMsg *owner, const uint16_t *value, TypeId id);
uint32_t append(TarnMsg *owner, const uint32_t *value, TypeId id);
uint32_t append(TarnMsg *owner, const void *value, TypeId id);
uint32_t append(TarnIe *owner, const uint8_t *value, TypeId id);
uint32_t append(TarnIe *owner, const uint16_t *value, TypeId id);
uint32_t append(TarnIe *owner, const uint32_t *value, TypeId id);
uint32_t append(TarnIe *owner, const void *value, TypeId id);

uint32_t extract(TarnMsg *owner, uint8_t *value, TypeId id);
uint32_t extract(TarnMsg *owner, uint16_t *value, TypeId id);
uint32_t extract(TarnMsg *owner, uint32_t *value, TypeId id);
uint32_t extract(TarnMsg *owner, void *value, TypeId id);
uint32_t extract(TarnIe *owner, uint8_t *value, TypeId id);
uint32_t extract(TarnIe *owner, uint16_t *value, TypeId id);
uint32_t extract(TarnIe *owner, uint32_t *value, TypeId id);
uint32_t extract(TarnIe *owner, void *value, TypeId id);

// A composite is linked unseen: neither its tag nor its validity matters until the owner is
// validated or packed.
uint32_t link(TarnMsg *owner, TarnIe *child);
uint32_t link(TarnIe *owner, TarnIe *child);

uint32_t borrow(TarnMsg *owner, TarnIe **child, TypeId id);
uint32_t borrow(TarnIe *owner, TarnIe **child, TypeId id);

uint32_t append_message_id(TarnMsg *msg, const TarnMessageId *value);

} // namespace tarn

#endif
