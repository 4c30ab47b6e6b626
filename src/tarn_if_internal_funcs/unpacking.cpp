#include "tarn_if_internal_funcs/unpacking.h"

#include <string.h>

#include "tarn_if_api/objects.h"
#include "tarn_if_conditional_funcs/conditions.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

// Why a child was not taken.
enum class Fate : uint8_t {
    absent,   // another tag, or bytes that do not decode
    invalid,  // decoded, out of its range or rules
    uncalled, // valid, but its condition does not call for it
};

bool read_children(const Type &type, VelDllHead *children, Input *in, uint32_t length, bool *valid);

// Fills an IE object from bytes that carry its tag, and returns its size on the wire, or returns 0.
inline uint32_t read_ie(TarnIe *ie, TypeId id, Input in, bool *valid) {
    const Type &type = type_of(id);
    uint32_t size = 0;
    if (!is_composite(type.kind)) {
        if (!read_tlv(id, value_of(ie), in, &size))
            return 0;
        *valid = value_is_valid(id, value_of(ie));
        return size;
    }
    xVelDllInitHead(children_of(ie), 0, moduleInternal, __LINE__);
    if (in.left < headerSize)
        return 0;
    Input rest = in;
    rest.skip(headerSize);
    const bool ok = read_children(type, children_of(ie), &rest, load32(in.at + tagSize), valid);
    return ok ? in.left - rest.left : 0;
}

// Makes a child from bytes that carry its tag, links it if it is valid and called for, and returns
// its size on the wire; or returns 0, with nothing left of it.
uint32_t take_child(TypeId id, VelDllHead *list, Input in, bool calledFor, Fate *fate) {
    TarnIe *ie = create_head(id, TARN_CALLER(moduleInternal));
    bool valid = false;
    const uint32_t size = read_ie(ie, id, in, &valid);
    if (size != 0 && valid && calledFor) [[likely]] {
        link_ie(list, ie, TARN_CALLER(moduleInternal));
        return size;
    }
    delete_ie(ie);
    *fate = size == 0 ? Fate::absent : !valid ? Fate::invalid : Fate::uncalled;
    return 0;
}

// An element is bounded by the buffer, not by the budget. One that takes more than the budget makes
// it wrap: the walk then goes on until the buffer is used up, and fails.
bool read_elements(const Type &list, VelDllHead *children, Input *in, uint32_t budget,
                   bool *valid) {
    uint32_t count = 0;
    Fate fate{};
    while (in->left != 0 && budget != 0) {
        const uint32_t size = in->has_tag(list.array.item)
                                  ? take_child(list.array.item, children, *in, true, &fate)
                                  : 0;
        if (size == 0)
            return false;
        in->skip(size);
        budget -= size;
        ++count;
    }
    *valid = count >= list.least && count <= list.greatest;
    return budget == 0;
}

// A sequence's length is read and not used: its children are those that its slots find in the rest
// of the buffer. A list's length is the budget of its elements.
bool read_children(const Type &type, VelDllHead *children, Input *in, uint32_t length,
                   bool *valid) {
    if (type.kind == Kind::sequence)
        return read_slots(type.slots, children, in, valid);
    return read_elements(type, children, in, length, valid);
}

// ---- Slots of a sequence composite or a message ------------------------------------------------

// What a slot took of the bytes: an IE's size, nothing, or this when the owner is refused.
constexpr uint32_t refused = UINT32_MAX;

uint32_t leave_out(const Slot &slot, Fate fate, bool calledFor) {
    if (slot.presence == Presence::mandatory)
        return refused;
    if (!is_conditional(slot))
        return 0;
    const bool refuses = fate == Fate::absent ? calledFor : slot.rule == UnpackRule::refuseUncalled;
    return refuses ? refused : 0;
}

uint32_t read_any_slot(const Slot &slot, VelDllHead *list, Input in, Conditions *conditions) {
    const bool calledFor = !is_conditional(slot) || conditions->hold(slot.condition);
    Fate fate = Fate::absent;
    // No object is made for a child whose tag is not there.
    const uint32_t size =
        in.has_tag(slot.type) ? take_child(slot.type, list, in, calledFor, &fate) : 0;
    return size != 0 ? size : leave_out(slot, fate, calledFor);
}

// Most slots hold a number that is mandatory. It is decoded before its object is made, so that a
// failure leaves nothing to be released.
inline uint32_t read_number_slot(const Slot &slot, VelDllHead *list, Input in) {
    uint32_t number = 0;
    const uint32_t size = in.has_tag(slot.type) ? read_number_ie(slot.kind, in, &number) : 0;
    if (size == 0 || !in_range(type_of(slot.type), number))
        return leave_out(slot, Fate::absent, false);
    TarnIe *ie = create_head(slot.type, TARN_CALLER(moduleInternal));
    store_number(slot.kind, value_of(ie), number);
    link_ie(list, ie, TARN_CALLER(moduleInternal));
    return size;
}

// Likewise, since only a valid length is taken here.
uint32_t read_bytes_slot(const Slot &slot, VelDllHead *list, Input in) {
    if (!in.has_tag(slot.type) || in.left < headerSize)
        return leave_out(slot, Fate::absent, false);
    const uint32_t length = load32(in.at + tagSize);
    if (length > in.left - headerSize || !in_range(type_of(slot.type), length))
        return leave_out(slot, Fate::absent, false);
    TarnIe *ie = create_head(slot.type, TARN_CALLER(moduleInternal));
    auto *value = static_cast<uint32_t *>(value_of(ie));
    *value = length;
    memcpy(value + 1, in.at + headerSize, length);
    link_ie(list, ie, TARN_CALLER(moduleInternal));
    return headerSize + length;
}

[[gnu::always_inline]] inline uint32_t read_slot(const Slot &slot, VelDllHead *list, Input in,
                                                 Conditions *conditions) {
    if (builtForSpeed && !is_conditional(slot)) {
        if (is_number(slot.kind))
            return read_number_slot(slot, list, in);
        if (slot.kind == Kind::bytes)
            return read_bytes_slot(slot, list, in);
    }
    return read_any_slot(slot, list, in, conditions);
}

// The bytes have ended before this slot. RelocationRequired refuses to end before a child that is
// called for; RabParams ends, and its validator then finds it incomplete; IapReset just ends.
bool may_end(const Slot *slot, const Slot *end, Conditions *conditions, bool *valid) {
    if (slot->presence == Presence::mandatory)
        return false;
    for (; slot != end; ++slot) {
        if (!is_conditional(*slot) || slot->rule == UnpackRule::dropUncalled ||
            !conditions->hold(slot->condition))
            continue;
        if (slot->rule == UnpackRule::dropUncalledRequireAtEnd)
            return false;
        *valid = false;
    }
    return true;
}

} // namespace

bool read_slots(const SlotTable &table, VelDllHead *list, Input *in, bool *valid) {
    Conditions conditions(list);
    Input rest = *in;
    bool ok = true;
    *valid = true;
    const Slot *const end = slots_end(table);
    for (const Slot *slot = slots_begin(table); slot != end && ok; ++slot) {
        if (rest.left == 0) {
            ok = may_end(slot, end, &conditions, valid);
            break;
        }
        const uint32_t size = read_slot(*slot, list, rest, &conditions);
        ok = size != refused;
        if (ok)
            rest.skip(size);
    }
    *in = rest;
    return ok;
}

uint32_t unpack_primitive_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, consumed))
        return 0;
    return read_tlv(id, value_of(ie), Input{buffer, available}, consumed);
}

// No bytes at all is a success that consumes nothing: a composite may be missing at the end of a
// buffer, and whether it had to be there is for its owner to say.
uint32_t unpack_composite_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, consumed))
        return 0;
    Input in{buffer, available};
    *consumed = 0;
    if (available == 0)
        return 1;
    if (!in.has_tag(id))
        return 0;
    *consumed = tagSize;
    if (available < headerSize)
        return 0;
    in.skip(headerSize);
    bool valid = false;
    const bool ok =
        read_children(type_of(id), children_of(ie), &in, load32(buffer + tagSize), &valid);
    *consumed = available - in.left;
    return ok;
}

TarnMsg *unpack_msg(const uint8_t *buffer, uint32_t length, MessageNumber id) {
    if (length == 0)
        return nullptr;
    TarnMsg *msg = create_msg(id, TARN_CALLER(moduleInternal));
    Input in{buffer, length};
    bool valid = false;
    if (read_slots(catalogue.messages[id].slots, &msg->ies, &in, &valid))
        return msg;
    delete_msg(msg);
    return nullptr;
}

TarnMsg *unpack_msg_checked(const uint8_t *buffer, uint32_t length, MessageNumber id) {
    if (any_null(TARN_CALLER(moduleInternal), buffer))
        return nullptr;
    return unpack_msg(buffer, length, id);
}

uint32_t peek_message_id(const uint8_t *buffer, uint32_t length) {
    const Input in{buffer, length};
    uint32_t id = 0;
    if (in.has_tag(typeMessageId))
        read_number_ie(Kind::number8, in, &id);
    return id;
}

uint32_t peek_message_id_checked(const uint8_t *buffer, uint32_t length) {
    if (any_null(TARN_CALLER(moduleInternal), buffer))
        return 0;
    return peek_message_id(buffer, length);
}

} // namespace tarn
