#include "tarn_if_internal_funcs/packing.h"

#include "objects.h"
#include "tarn_if_internal_funcs/sizes.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/writing.h"

namespace tarn {

namespace {

template <class Id>
TARN_INLINE bool write_children(Id id, const VelDllHead *children, Output *out);

// Sizes are not asked again on the way down: a composite's length is filled in once its children
// are written, so packing stays linear in the IEs however deep they nest.
template <class Id>
uint32_t write_composite(Id id, const TarnIe *ie, Output out) {
    if (out.left < headerSize)
        return 0;
    Output rest = out;
    rest.skip(headerSize);
    if (!write_children(id, children_of(ie), &rest))
        return 0;
    const uint32_t size = out.left - rest.left;
    store_header(out.at, id, size - headerSize);
    return size;
}

template <class Id>
TARN_INLINE uint32_t write_any_composite(Id id, const TarnIe *ie, Output out) {
    return with_composite(id, [&](auto known)
                                  TARN_INLINE_LAMBDA { return write_composite(known, ie, out); });
}

// Built for speed, a value that is valid goes the short way. One that is not packs as well, as long
// as it does not go beyond an array.
template <class Id>
TARN_INLINE uint32_t write_primitive(Id id, const void *value, Output out) {
    if constexpr (isConstant<Id>) {
        const uint32_t size = measure_ie(id, value);
        if (size != 0 && size <= out.left) [[likely]] {
            put_ie(id, value, out.at);
            return size;
        }
    }
    Output rest = out;
    return write_ie(id, value, &rest) ? out.left - rest.left : 0;
}

template <class AnySlot>
TARN_INLINE bool write_child(const AnySlot &slot, const TarnIe *ie, Output *out) {
    const uint32_t size = by_kind<is_primitive>(
        slot.type,
        [&](auto primitive)
            TARN_INLINE_LAMBDA { return write_primitive(primitive, value_of(ie), *out); },
        [&](auto composite)
            TARN_INLINE_LAMBDA { return write_any_composite(composite, ie, *out); });
    out->skip(size);
    return size != 0;
}

const Slot *slot_of(const SlotTable &table, uint32_t tag) {
    for (const Slot *slot = slots_begin(table); slot != slots_end(table); ++slot)
        if (slot->type == tag)
            return slot;
    return nullptr;
}

bool write_in_any_order(const SlotTable &table, const VelDllHead *list, const TarnIe *ie,
                        Caller caller, Output *out) {
    for (; ie != nullptr; ie = next_ie(list, ie, caller)) {
        const Slot *slot = slot_of(table, ie->tag);
        if (slot == nullptr || !write_child(*slot, ie, out))
            return false;
    }
    return true;
}

// Writes the IEs from *ie on for as long as they follow the order of the owner's slots, and leaves
// *ie at the first that does not. None of them has to be looked up.
template <class Owner>
TARN_INLINE bool write_in_order(const Owner &owner, const VelDllHead *list, const TarnIe **ie,
                                Caller caller, Output *out) {
    return each_slot(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        if (*ie == nullptr || (*ie)->tag != slot.type) [[unlikely]]
            return true;
        if (!write_child(slot, *ie, out))
            return false;
        *ie = next_ie(list, *ie, caller);
        return true;
    });
}

// Writes the IEs of a list in list order, each of which must have a slot, and moves `out` behind
// what was written; false at the first that has none or cannot be written.
template <class Owner>
TARN_SHARED bool write_slots(const Owner &owner, const VelDllHead *list, Caller caller,
                             Output *out) {
    const TarnIe *ie = first_ie(list, caller);
    if constexpr (isConstant<Owner>) {
        Output rest = *out; // whose address nobody else knows
        const bool ok = write_in_order(owner, list, &ie, caller, &rest);
        *out = rest;
        if (!ok || ie == nullptr)
            return ok;
    }
    return write_in_any_order(slots_of(owner), list, ie, caller, out);
}

template <class Id>
TARN_INLINE bool write_elements(Id list_id, const VelDllHead *list, Output *out) {
    const auto element = element_of(list_id);
    for (const TarnIe *ie = first_ie(list, TARN_CALLER(moduleInternal)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleInternal))) {
        const uint32_t size = ie->tag == element ? write_any_composite(element, ie, *out) : 0;
        if (size == 0)
            return false;
        out->skip(size);
    }
    return true;
}

template <class Id>
TARN_INLINE bool write_children(Id id, const VelDllHead *children, Output *out) {
    return by_kind<is_sequence>(
        id,
        [&](auto sequence) TARN_INLINE_LAMBDA {
            return write_slots(owner_of(sequence), children, TARN_CALLER(moduleInternal), out);
        },
        [&](auto list) TARN_INLINE_LAMBDA { return write_elements(list, children, out); });
}

// Packs what the short cut could not: IEs in another order, too many bytes for its buffer, no room,
// or an IE that cannot be packed.
[[gnu::noinline]] uint32_t pack_measured(const TarnMsg *msg, uint8_t *buffer, uint32_t size,
                                         const SlotTable &table) {
    if (ies_size(&msg->ies, TARN_CALLER(moduleApi)) > size) {
        velSwFatalError("", moduleApi, __LINE__);
        return 0;
    }
    Output out{buffer, size};
    return write_slots(table, &msg->ies, TARN_CALLER(moduleApi), &out);
}

} // namespace

template <class Id>
uint32_t pack_msg(const TarnMsg *msg, uint8_t *buffer, uint32_t size, Id id) {
    if (any_null(TARN_CALLER(moduleApi), msg, buffer))
        return 0;
#ifdef TARN_BUILT_FOR_SPEED
    uint8_t aside[4096];
    Output out{aside, sizeof aside};
    const TarnIe *ie = first_ie(&msg->ies, TARN_CALLER(moduleApi));
    if (write_in_order(id, &msg->ies, &ie, TARN_CALLER(moduleApi), &out) && ie == nullptr)
        [[likely]] {
        const uint32_t needed = uint32_t(out.at - aside);
        if (needed <= size) [[likely]] {
            memcpy(buffer, aside, needed);
            return 1;
        }
    }
#endif
    return pack_measured(msg, buffer, size, slots_of(id));
}

#ifdef TARN_BUILT_FOR_SPEED
#define MESSAGE(name_, ...)                                                                        \
    template uint32_t pack_msg(const TarnMsg *, uint8_t *, uint32_t, Constant<message##name_>);
#include "catalogue/messages.def"
#else
template uint32_t pack_msg(const TarnMsg *, uint8_t *, uint32_t, MessageNumber);
#endif

// The room is compared with the size by the object's own tag, while the tag written is that of the
// operation. An object with another tag may thus pass the first check and fail at its value, with
// the header written and counted.
uint32_t pack_primitive_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, written))
        return 0;
    *written = 0;
    if (ie_size(ie) > available)
        return 0;
    const uint32_t size = value_size(id, value_of(ie));
    Output out{buffer, available};
    bool ok = false;
    if (size <= available - headerSize) {
        ok = write_ie(id, value_of(ie), &out);
    } else {
        store_header(buffer, id, size);
        out.skip(headerSize);
    }
    *written = available - out.left;
    return ok;
}

// The length written here is the one by the object's own tag as well, and it is there even when a
// child fails: the bytes before that child are reported as written.
uint32_t pack_composite_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, written))
        return 0;
    *written = 0;
    const uint32_t size = ie_size(ie);
    if (size > available)
        return 0;
    store_header(buffer, id, size - headerSize);
    Output rest{buffer, available};
    rest.skip(headerSize);
    const bool ok = write_children(id, children_of(ie), &rest);
    *written = available - rest.left;
    return ok;
}

} // namespace tarn
