// Append and extract: putting IEs into a message or a composite, and taking them out in order.
//
// An extract takes the first IE of its tag whose history is still 0 and sets it to 1, so repeated
// calls walk repeated IEs; only direct members are looked at, never their children.
#ifndef TARN_MEMBERS_H
#define TARN_MEMBERS_H

#include "objects.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"

namespace [[gnu::visibility("hidden")]] tarn {

inline VelDllHead *list_of(TarnMsg *owner) {
    return &owner->ies;
}
inline VelDllHead *list_of(TarnIe *owner) {
    return children_of(owner);
}

// ---- Append ------------------------------------------------------------------------------------

// Links a new primitive IE holding a copy of the value, and returns 1; or returns 0 for a value out
// of range, with the list as it was. Position and duplicates are the validators' affair. Built for
// speed, there is one for each type.
template <class Id>
uint32_t append_value(VelDllHead *list, Id id, const void *value);

template <class Owner, class Id>
TARN_INLINE uint32_t append(Owner *owner, const void *value, Id id) {
    if (any_null(TARN_CALLER(moduleApi), owner, value))
        return 0;
    return append_value(list_of(owner), id, value);
}

// A composite is linked unseen: neither its tag nor its validity matters until the owner is
// validated or packed.
template <class Owner>
uint32_t link(Owner *owner, TarnIe *child);

// ---- Extract -----------------------------------------------------------------------------------

template <class Owner, class Number>
uint32_t extract_number(Owner *owner, Number *value, uint32_t tag);
template <class Owner, class Id>
uint32_t extract_value(Owner *owner, void *value, Id id);

// Built for speed, numbers share a function for each width and all else has one for each type.
template <class Owner, class Value, class Id>
TARN_INLINE uint32_t extract(Owner *owner, Value *value, Id id) {
    if constexpr (builtForSpeed && std::is_integral_v<Value>)
        return extract_number(owner, value, id);
    else
        return extract_value(owner, value, id);
}

template <class Owner>
uint32_t borrow(Owner *owner, TarnIe **child, uint32_t tag);

} // namespace tarn

#endif
