// Append and extract: putting IEs into a message or a composite, and taking them out in order.
//
// All of it is static: the messages' doors and the composites' doors each have functions of their
// own, with the kind of owner fixed and, built for speed, the type as well.
#ifndef TARN_MEMBERS_H
#define TARN_MEMBERS_H

#include "objects.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/writing.h"

namespace [[gnu::visibility("hidden")]] tarn {

TARN_INLINE VelDllHead *list_of(TarnMsg *owner) {
    return &owner->ies;
}
TARN_INLINE VelDllHead *list_of(TarnIe *owner) {
    return children_of(owner);
}

// ---- Append ------------------------------------------------------------------------------------

// Links a new primitive IE holding a copy of the value, and returns 1; or returns 0 for a value out
// of range, with the list as it was. Position and duplicates are the validators' affair.
template <class Owner, class Id>
[[gnu::noinline]] static uint32_t append(Owner *owner, const void *value, Id id) {
    if (any_null(TARN_CALLER(moduleApi), owner, value) || measure_ie(id, value) == 0)
        return 0;
    TarnIe *ie = create_head(id, TARN_CALLER(moduleApi));
    copy_value(type_of(id), value_of(ie), value);
    link_ie(list_of(owner), ie, TARN_CALLER(moduleApi));
    return 1;
}

// A composite is linked unseen: neither its tag nor its validity matters until the owner is
// validated or packed.
template <class Owner>
[[gnu::noinline]] static uint32_t link(Owner *owner, TarnIe *child) {
    if (any_null(TARN_CALLER(moduleApi), owner, child))
        return 0;
    link_ie(list_of(owner), child, TARN_CALLER(moduleApi));
    return 1;
}

// ---- Extract -----------------------------------------------------------------------------------

// Takes the first IE of the tag whose history is still 0 and sets it to 1, so repeated calls walk
// repeated IEs. Only direct members are looked at, never their children. What is needed behind a
// call of the platform stays in memory (volatile): registers would have to be saved as well.
TARN_INLINE TarnIe *take_next(VelDllHead *members, uint16_t tag, Caller caller) {
    VelDllHead *volatile list = members;
    for (TarnIe *ie = first_ie(members, caller); ie != nullptr; ie = next_ie(list, ie, caller)) {
        // The history is 0 or 1: half of it tells, and is compared without fetching it first. Told
        // to be this sure, the compiler leaves the IE in the register in which the platform returns
        // it, which [[likely]] does not achieve.
        if (__builtin_expect_with_probability(ie->tag == tag && uint16_t(ie->extractHistory) == 0,
                                              1, 0.999)) {
            ie->extractHistory = 1;
            return ie;
        }
    }
    return nullptr;
}

// The line is that of the row that the operation belongs to.
template <class Owner, class Id>
TARN_SHARED static uint32_t extract(Owner *owner, void *value, Id id, uint32_t line) {
    const Caller caller{moduleApi, line};
    if (any_null(caller, owner, value))
        return 0;
    void *volatile to = value;
    const TarnIe *ie = take_next(list_of(owner), id, caller);
    if (ie == nullptr)
        return 0;
    copy_value(type_of(id), to, value_of(ie));
    return 1;
}

template <class Owner, class Id>
TARN_SHARED static uint32_t borrow(Owner *owner, TarnIe **child, Id id, uint32_t line) {
    const Caller caller{moduleApi, line};
    if (any_null(caller, owner, child))
        return 0;
    TarnIe **volatile to = child;
    TarnIe *const ie = take_next(list_of(owner), id, caller);
    *to = ie;
    return ie != nullptr;
}

} // namespace tarn

#endif
