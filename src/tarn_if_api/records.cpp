#include "tarn_if_api/records.h"

#include "tarn_if_api/members.h"
#include "tarn_if_api/messages.h"
#include "tarn_if_internal_funcs/packing.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/validity.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

// Every Get reports this one token.
constexpr uint32_t getToken = 0xB4D9287C;

// A message record begins with the message id and the presence mask, a sequence composite's with
// the mask, a list composite's with the count.
constexpr unsigned msgMaskOffset = 1;
constexpr unsigned sequenceMaskOffset = 0;

const uint8_t *at_offset(const void *record, uint32_t offset) {
    return static_cast<const uint8_t *>(record) + offset;
}

uint8_t *at_offset(void *record, uint32_t offset) {
    return static_cast<uint8_t *>(record) + offset;
}

// ---- Record to objects -------------------------------------------------------------------------

// What became of a record. Its IEs are built in the order of their slots and none with a value out
// of range, so conditions and the lists' least counts are all that is left to judge, and the
// message need not be walked again by its validator.
enum class Built : uint8_t { failed, invalid, valid };

struct Builder {
    // A list composite counts fewer elements than its least. The validators overlook that in an
    // optional child; a record that says so is refused all the same.
    bool shortList = false;

    Built slots(const SlotTable &table, const void *record, unsigned maskOffset, unsigned next,
                VelDllHead *list);
    Built composite(TypeId id, const void *record, VelDllHead *list);
    Built elements(const Type &type, const void *record, VelDllHead *list);
};

Built Builder::elements(const Type &type, const void *record, VelDllHead *list) {
    const uint32_t count = *static_cast<const uint16_t *>(record);
    if (count > type.capacity)
        return Built::failed;
    Built verdict = Built::valid;
    if (count < type.least) {
        shortList = true;
        verdict = Built::invalid;
    }
    for (uint32_t i = 0; i < count; ++i) {
        const Built element = composite(
            type.array.item, at_offset(record, type.array.offset + i * type.array.stride), list);
        if (element == Built::failed)
            return element;
        if (element == Built::invalid)
            verdict = element;
    }
    return verdict;
}

// The composite is linked before it is filled, so that a failure leaves it to its owner's release.
Built Builder::composite(TypeId id, const void *record, VelDllHead *list) {
    const Type &type = type_of(id);
    TarnIe *ie = create_composite(id, TARN_CALLER(moduleApi));
    link_ie(list, ie, TARN_CALLER(moduleApi));
    if (type.kind == Kind::compositeList)
        return elements(type, record, children_of(ie));
    return slots(type.slots, record, sequenceMaskOffset, 0, children_of(ie));
}

// As for the validators, the verdict on an optional child does not count, and a conditional child
// counts as present only when it is valid.
Built Builder::slots(const SlotTable &table, const void *record, unsigned maskOffset, unsigned next,
                     VelDllHead *list) {
    const unsigned mask = *at_offset(record, maskOffset);
    unsigned present = 0;
    Built verdict = Built::valid;
    const Slot *const end = slots_end(table);
    for (const Slot *slot = slots_begin(table) + next; slot != end; ++slot) {
        if (slot->presenceBit != 0 && (mask & slot->presenceBit) == 0)
            continue;
        const void *member = at_offset(record, slot->recordOffset);
        Built child = Built::valid;
        if (is_composite(slot->kind))
            child = composite(slot->type, member, list);
        else if (!append_copy(list, slot->type, member, TARN_CALLER(moduleApi)))
            child = Built::failed;
        if (child == Built::failed)
            return child;
        if (child == Built::valid)
            present |= slot->presenceBit;
        else if (slot->presence == Presence::mandatory)
            verdict = child;
    }
    return conditions_are_met(table, list, present) ? verdict : Built::invalid;
}

// Releases the message before reporting, since a host may leave by a jump from its report.
uint32_t fail_build(TarnMsg *msg, uint32_t token) {
    delete_msg(msg);
    velSwTokenDebug(token, 0);
    return 0;
}

// ---- Objects to record -------------------------------------------------------------------------

void get_slots(const SlotTable &table, const VelDllHead *list, void *record, unsigned maskOffset);

// A decoded list holds no more elements than its record, since its unpacker counts them. They are
// counted all the same: what is written here should not hang on a check made elsewhere.
void get_elements(const Type &type, const VelDllHead *list, void *record) {
    uint16_t count = 0;
    for (const TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi));
         ie != nullptr && count < type.capacity; // GCOVR_EXCL_BR_LINE
         ie = next_ie(list, ie, TARN_CALLER(moduleApi)))
        get_slots(type_of(type.array.item).slots, children_of(ie),
                  at_offset(record, type.array.offset + count++ * type.array.stride),
                  sequenceMaskOffset);
    *static_cast<uint16_t *>(record) = count;
}

void get_member(const TarnIe *ie, TypeId id, void *member) {
    const Type &type = type_of(id);
    if (type.kind == Kind::sequence)
        get_slots(type.slots, children_of(ie), member, sequenceMaskOffset);
    else if (type.kind == Kind::compositeList)
        get_elements(type, children_of(ie), member);
    else
        copy_value(type, member, value_of(ie));
}

// Presence bits are set and never cleared, and the members of absent IEs are left alone: a caller
// may gather several messages into one record.
void get_slots(const SlotTable &table, const VelDllHead *list, void *record, unsigned maskOffset) {
    SlotFinder slots(table);
    for (const TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleApi))) {
        const Slot *slot = slots.find(ie->tag);
        if (slot == nullptr)
            continue;
        *at_offset(record, maskOffset) |= slot->presenceBit;
        get_member(ie, slot->type, at_offset(record, slot->recordOffset));
    }
}

} // namespace

uint32_t build_msg(uint8_t *buffer, uint32_t size, const void *record, MessageNumber id) {
    if (any_null(TARN_CALLER(moduleApi), buffer, record))
        return 0;
    const Message &message = catalogue.messages[id];
    TarnMsg *msg = new_msg(id);
    Builder builder;
    // The first slot is the MessageId IE, which is there already: the record's own id is not read.
    const Built built = builder.slots(message.slots, record, msgMaskOffset, 1, &msg->ies);
    if (built == Built::failed)
        return fail_build(msg, message.appendToken);
    if (built == Built::invalid || builder.shortList)
        return fail_build(msg, message.validityToken);
    Output out{buffer, size};
    const bool packed = write_slots(message.slots, &msg->ies, &out);
    delete_msg(msg);
    if (packed)
        return size - out.left;
    // Every IE has a slot and a valid value, so it can only be room that is missing.
    velSwFatalError("", moduleApi, __LINE__);
    velSwTokenDebug(message.packToken, 0);
    return 0;
}

uint32_t get_msg(const uint8_t *buffer, uint32_t length, void *record, MessageNumber id) {
    if (any_null(TARN_CALLER(moduleApi), buffer, record))
        return 0;
    TarnMsg *msg = nullptr;
    if (unpack_new_msg(buffer, length, &msg) == 0) {
        velSwTokenDebug(getToken, 0);
        return 0;
    }
    get_slots(catalogue.messages[id].slots, &msg->ies, record, msgMaskOffset);
    delete_msg(msg);
    return 1;
}

} // namespace tarn
