#include "tarn_if_internal_funcs/unpacking.h"

#include "tarn_if_api/objects.h"
#include "tarn_if_conditional_funcs/conditions.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

bool read_composite(TypeId id, VelDllHead *children, Input in, uint32_t *consumed, bool *valid);

// What became of a child at the current position.
enum class Child : uint8_t {
    absent,  // another tag, or bytes that do not decode
    invalid, // decoded, out of its range or rules
    valid,
};

bool read_ie(TarnIe *ie, TypeId id, Input in, uint32_t *consumed, bool *valid) {
    if (is_composite(type_of(id)))
        return read_composite(id, children_of(ie), in, consumed, valid);
    if (!read_tlv(id, value_of(ie), in, consumed))
        return false;
    *valid = value_is_valid(id, value_of(ie));
    return true;
}

// Makes a child of this type from the bytes. On `valid`, *ie is the object and *consumed its bytes;
// else nothing is left. No object is made for a child whose tag is not there.
Child read_child(TypeId id, Input in, TarnIe **ie, uint32_t *consumed) {
    if (!in.has_tag(id))
        return Child::absent;
    *ie = create_ie(id, TARN_CALLER(moduleInternal));
    bool valid = false;
    const bool decoded = read_ie(*ie, id, in, consumed, &valid);
    if (decoded && valid)
        return Child::valid;
    delete_ie(*ie);
    return decoded ? Child::invalid : Child::absent;
}

bool is_conditional(const Slot &slot) {
    return slot.presence == Presence::conditional || slot.presence == Presence::repeated;
}

// Whether a child that was not taken refuses its owner.
bool is_refused(const Slot &slot, UnpackRule rule, Child child, bool calledFor) {
    if (slot.presence == Presence::mandatory)
        return true;
    if (!is_conditional(slot))
        return false;
    if (child == Child::absent)
        return calledFor;
    return rule == UnpackRule::refuseUncalled;
}

// Whether a condition calls for a child in one of the slots from `next` on.
bool more_is_called_for(const SlotTable &table, unsigned next, Conditions *conditions) {
    for (; next < table.count; ++next)
        if (is_conditional(slot_at(table, next)) &&
            conditions->hold(slot_at(table, next).condition))
            return true;
    return false;
}

// The bytes have ended before slot `next`. RelocationRequired refuses to end before a child that is
// called for; RabParams ends, and its validator then finds it incomplete; IapReset just ends.
bool may_end(const SlotTable &table, unsigned next, Conditions *conditions, bool *valid) {
    if (next < table.mandatory)
        return false;
    switch (table.rule) {
    case UnpackRule::dropUncalledRequireAtEnd:
        return !more_is_called_for(table, next, conditions);
    case UnpackRule::refuseUncalled:
        *valid = !more_is_called_for(table, next, conditions);
        return true;
    default:
        return true;
    }
}

bool read_elements(const Type &list, VelDllHead *children, Input *in, uint32_t budget,
                   bool *valid) {
    uint32_t count = 0;
    // An element is bounded by the buffer, not by the budget. One that takes more than the budget
    // makes it wrap: the walk then goes on until the buffer is used up, and fails.
    while (in->left != 0 && budget != 0) {
        TarnIe *ie = nullptr;
        uint32_t consumed = 0;
        if (read_child(list.item, *in, &ie, &consumed) != Child::valid)
            return false;
        link_ie(children, ie, TARN_CALLER(moduleInternal));
        in->skip(consumed);
        budget -= consumed;
        ++count;
    }
    *valid = count >= list.least && count <= list.greatest;
    return budget == 0;
}

bool read_composite(TypeId id, VelDllHead *children, Input in, uint32_t *consumed, bool *valid) {
    *consumed = 0;
    if (!in.has_tag(id))
        return false;
    *consumed = tagSize;
    if (in.left < headerSize)
        return false;
    const uint32_t length = load32(in.at + tagSize);
    const uint32_t available = in.left;
    in.skip(headerSize);
    const Type &type = type_of(id);
    // A sequence's length is read and not used: its children are those that its slots find in the
    // rest of the buffer. A list's length is the budget of its elements.
    const bool ok = type.kind == Kind::sequence ? read_slots(type.slots, children, &in, valid)
                                                : read_elements(type, children, &in, length, valid);
    *consumed = available - in.left;
    return ok;
}

} // namespace

bool read_slots(const SlotTable &table, VelDllHead *list, Input *in, bool *valid) {
    Conditions conditions(list);
    *valid = true;
    for (unsigned i = 0; i < table.count; ++i) {
        if (in->left == 0)
            return may_end(table, i, &conditions, valid);
        const Slot &slot = slot_at(table, i);
        TarnIe *ie = nullptr;
        uint32_t consumed = 0;
        Child child = read_child(slot.type, *in, &ie, &consumed);
        const bool calledFor = !is_conditional(slot) || conditions.hold(slot.condition);
        if (child == Child::valid && calledFor) {
            link_ie(list, ie, TARN_CALLER(moduleInternal));
            in->skip(consumed);
            continue;
        }
        if (child == Child::valid)
            delete_ie(ie);
        if (is_refused(slot, table.rule, child, calledFor))
            return false;
    }
    return true;
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
    *consumed = 0;
    if (available == 0)
        return 1;
    bool valid = false;
    return read_composite(id, children_of(ie), Input{buffer, available}, consumed, &valid);
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
    TarnMessageId id = 0;
    uint32_t consumed = 0;
    return read_tlv(typeMessageId, &id, Input{buffer, length}, &consumed) ? id : 0;
}

uint32_t peek_message_id_checked(const uint8_t *buffer, uint32_t length) {
    if (any_null(TARN_CALLER(moduleInternal), buffer))
        return 0;
    return peek_message_id(buffer, length);
}

} // namespace tarn
