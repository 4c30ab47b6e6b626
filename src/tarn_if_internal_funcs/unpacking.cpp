#include "tarn_if_internal_funcs/unpacking.h"

#include "objects.h"
#include "tarn_if_internal_funcs/filling.h"
#include "tarn_if_internal_funcs/plain.h"

namespace tarn {

namespace {

// ---- IE objects from bytes that were judged good -----------------------------------------------

// Composites of up to this many levels are made where they stand, and others by functions of their
// own, whose calls cost more than a small composite does.
constexpr unsigned levelsInPlace = 4;

[[maybe_unused]] constexpr unsigned levels_of(TypeId id) {
    const Type &type = type_of(id);
    if (is_primitive(type.kind))
        return 0;
    if (!is_sequence(type.kind))
        return 1 + levels_of(element_of(id));
    unsigned below = 0;
    for (unsigned i = 0; i < type.slots.count; ++i) {
        const unsigned levels = levels_of(catalogue.slots[type.slots.first + i].type);
        below = levels > below ? levels : below;
    }
    return 1 + below;
}

// Each makes an object of the IE that stands here, links it and returns where the next IE begins.
template <class Id>
TARN_INLINE const uint8_t *make_composite(Id id, VelDllHead *list, const uint8_t *at,
                                          const uint8_t *end);

template <class Id>
TARN_INLINE const uint8_t *make_primitive(Id id, VelDllHead *list, const uint8_t *at) {
    TarnIe *ie = create_head(id, TARN_CALLER(moduleInternal));
    at = fill_value(id, value_of(ie), at);
    link_ie(list, ie, TARN_CALLER(moduleInternal));
    return at;
}

template <class Id>
TARN_INLINE const uint8_t *make_ie(Id id, VelDllHead *list, const uint8_t *at, const uint8_t *end) {
    return by_kind<is_primitive>(
        id, [&](auto primitive) TARN_INLINE_LAMBDA { return make_primitive(primitive, list, at); },
        [&](auto composite)
            TARN_INLINE_LAMBDA { return make_composite(composite, list, at, end); });
}

// The children of a composite or the IEs of a message. A constant owner's are complete. Any other
// owner may be a composite that was refused, whose children can end anywhere.
template <class Owner>
TARN_SHARED const uint8_t *make_slots(const Owner &owner, VelDllHead *list, const uint8_t *at,
                                      const uint8_t *end) {
    each_slot(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        const bool isSure = isConstant<Owner> && slot.presence == Presence::mandatory;
        if (!isSure && at == end) [[unlikely]]
            return false;
        if (slot.presence == Presence::mandatory || load16(at) == slot.type) [[likely]]
            at = make_ie(slot.type, list, at, end);
        return true;
    });
    return at;
}

// What stands behind a composite's header. Only a list's length is known to be within the bytes.
template <class Id>
TARN_SHARED const uint8_t *make_children(Id id, VelDllHead *list, const uint8_t *at,
                                         uint32_t length, const uint8_t *end) {
    return by_kind<is_sequence>(
        id,
        [&](auto sequence)
            TARN_INLINE_LAMBDA { return make_slots(owner_of(sequence), list, at, end); },
        [&](auto elements) TARN_INLINE_LAMBDA {
            const uint8_t *const stop = at + length;
            while (at != stop)
                at = make_composite(element_of(elements), list, at, end);
            return at;
        });
}

template <class Id>
TARN_INLINE const uint8_t *make_in_place(Id id, VelDllHead *list, const uint8_t *at,
                                         const uint8_t *end) {
    TarnIe *ie = create_composite(id, TARN_CALLER(moduleInternal));
    at = make_children(id, children_of(ie), at + headerSize, load32(at + tagSize), end);
    link_ie(list, ie, TARN_CALLER(moduleInternal));
    return at;
}

template <class Id>
[[gnu::noinline]] const uint8_t *make_apart(Id id, VelDllHead *list, const uint8_t *at,
                                            const uint8_t *end) {
    return make_in_place(id, list, at, end);
}

template <class Id>
TARN_INLINE const uint8_t *make_composite(Id id, VelDllHead *list, const uint8_t *at,
                                          const uint8_t *end) {
    if constexpr (isConstant<Id>) {
        if constexpr (levels_of(Id::value) <= levelsInPlace)
            return make_in_place(id, list, at, end);
    }
    return make_apart(id, list, at, end);
}

template <class Id>
[[gnu::noinline]] uint32_t unpack_ies(Id id, const uint8_t *buffer, uint32_t length,
                                      TarnMsg **unpacked) {
    const uint8_t *const end = end_of_msg(owner_of(id), buffer, length);
    if (end == nullptr)
        return 0;
    TarnMsg *msg = create_msg(id, TARN_CALLER(moduleInternal));
    make_slots(owner_of(id), &msg->ies, buffer, end);
    *unpacked = msg;
    return 1;
}

} // namespace

// ---- The operations ----------------------------------------------------------------------------

uint32_t unpack_primitive_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, consumed))
        return 0;
    Input in{buffer, available};
    const bool ok = decodes(judge_ie(id, value_of(ie), &in));
    *consumed = available - in.left;
    return ok;
}

// No bytes at all is a success that consumes nothing: a composite may be missing at the end of a
// buffer, and whether it had to be there is for its owner to say. Of one that is refused, the
// children before the point of failure are made all the same.
uint32_t unpack_composite_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, consumed))
        return 0;
    Input in{buffer, available};
    const bool ok = decodes(judge_ie(id, nullptr, &in));
    *consumed = available - in.left;
    const auto make = [&](auto known) TARN_INLINE_LAMBDA {
        make_children(known, children_of(ie), buffer + headerSize, *consumed - headerSize, in.at);
    };
    if (ok)
        with_composite(id, make);
    else if (*consumed > headerSize)
        make(id);
    return ok || available == 0;
}

TarnMsg *unpack_msg(const uint8_t *buffer, uint32_t length, MessageNumber id) {
    if (any_null(TARN_CALLER(moduleInternal), buffer))
        return nullptr;
    TarnMsg *msg = nullptr;
    with_message(id, [&](auto known)
                         TARN_INLINE_LAMBDA { return unpack_ies(known, buffer, length, &msg); });
    return msg;
}

uint32_t peek_message_id(const uint8_t *buffer, uint32_t length) {
    const bool isThere = length > headerSize && load16(buffer) == typeMessageId &&
                         load32(buffer + tagSize) == sizeof(TarnMessageId);
    return isThere ? buffer[headerSize] : 0;
}

} // namespace tarn

using namespace tarn;

// *msg is the message that the bytes hold, or null. The header in front of the id is judged with
// the message.
uint32_t TarnUnpackNewMsg(const uint8_t *buffer, uint32_t length, TarnMsg **msg) {
    const bool missing = any_null(TARN_CALLER(moduleApi), msg, buffer);
    if (msg != nullptr)
        *msg = nullptr;
    const uint32_t id = !missing && length > headerSize ? buffer[headerSize] : 0;
    if (id >= messageCount)
        return 0;
    return with_message(MessageNumber(id), [&](auto known) TARN_INLINE_LAMBDA {
        return unpack_ies(known, buffer, length, msg);
    });
}
