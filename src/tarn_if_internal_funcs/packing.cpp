#include "tarn_if_internal_funcs/packing.h"

#include "objects.h"
#include "tarn_if_internal_funcs/sizes.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

template <class Id>
TARN_INLINE bool write_children(Id id, const VelDllHead *children, Output *out);

// Sizes are not asked again on the way down: a composite's length is filled in once its children
// are written, so packing stays linear in the IEs however deep they nest.
template <class Id>
[[gnu::noinline]] uint32_t write_composite(Id id, const TarnIe *ie, Output out) {
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

template <class Id>
TARN_INLINE uint32_t write_larger_primitive(Id id, const TarnIe *ie, Output out) {
    if (builtForSpeed && type_of(id).kind == Kind::bytes)
        return write_bytes_ie(id, value_of(ie), out);
    uint32_t size = 0;
    return write_tlv(id, value_of(ie), out, &size) ? size : 0;
}

struct SlotWriter {
    Output out;

    template <class AnySlot>
    TARN_INLINE bool visit(const AnySlot &slot, const TarnIe *ie) {
        const uint32_t size = write_ie(slot, ie);
        out.skip(size);
        return size != 0;
    }

private:
    // Returns the size written, or 0 on failure.
    template <class AnySlot>
    TARN_INLINE uint32_t write_ie(const AnySlot &slot, const TarnIe *ie) {
        if (is_number(slot.kind))
            return write_number_ie(slot.kind, slot.type, load_number(slot.kind, value_of(ie)), out);
        return by_kind<is_primitive>(
            slot.type,
            [&](auto primitive)
                TARN_INLINE_LAMBDA { return write_larger_primitive(primitive, ie, out); },
            [&](auto composite)
                TARN_INLINE_LAMBDA { return write_any_composite(composite, ie, out); });
    }
};

// Writes the IEs of a list in list order, each of which must have a slot, and advances `out` by
// what was written; false at the first that has none or cannot be written.
template <class Owner>
TARN_SHARED bool write_slots(const Owner &owner, const VelDllHead *list, Caller caller,
                             Output *out) {
    SlotWriter writer{*out};
    const TarnIe *stray = visit_ies(owner, list, caller, &writer);
    *out = writer.out;
    return stray == nullptr;
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

} // namespace

template <class Id>
Writing write_msg(Id id, const VelDllHead *list, Output out) {
    const uint32_t room = out.left;
    const bool ok = write_slots(owner_of(id), list, TARN_CALLER(moduleApi), &out);
    return {room - out.left, ok};
}

#ifdef TARN_BUILT_FOR_SPEED
#define MESSAGE(name_, ...)                                                                        \
    template Writing write_msg(Constant<message##name_>, const VelDllHead *, Output);
#include "catalogue/messages.def"
#else
template Writing write_msg(MessageNumber, const VelDllHead *, Output);
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
    if (size <= available - headerSize)
        return write_tlv(id, value_of(ie), Output{buffer, available}, written);
    store_header(buffer, id, size);
    *written = headerSize;
    return 0;
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
