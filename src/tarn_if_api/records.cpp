#include "tarn_if_api/records.h"

#include <string.h>

#include "tarn_if_api/members.h"
#include "tarn_if_api/messages.h"
#include "tarn_if_internal_funcs/packing.h"
#include "tarn_if_internal_funcs/sizes.h"
#include "tarn_if_internal_funcs/slots.h"

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

// What became of a record's IEs.
struct Building {
    // A list composite counts fewer elements than its least. The validators overlook that in an
    // optional child; a record that says so is refused all the same.
    bool shortList = false;
};

bool build_slots(const SlotTable &table, const void *record, unsigned maskOffset, unsigned next,
                 VelDllHead *list, Building *building);

bool build_composite(TypeId id, const void *record, VelDllHead *list, Building *building);

bool build_elements(const Type &type, const void *record, VelDllHead *list, Building *building) {
    const uint32_t count = *static_cast<const uint16_t *>(record);
    if (count > type.capacity)
        return false;
    building->shortList |= count < type.least;
    for (uint32_t i = 0; i < count; ++i)
        if (!build_composite(type.item, at_offset(record, type.itemsOffset + i * type.stride), list,
                             building))
            return false;
    return true;
}

// The composite is linked before it is filled, so that a failure leaves it to its owner's release.
bool build_composite(TypeId id, const void *record, VelDllHead *list, Building *building) {
    const Type &type = type_of(id);
    TarnIe *ie = create_ie(id, TARN_CALLER(moduleApi));
    link_ie(list, ie, TARN_CALLER(moduleApi));
    if (type.kind == Kind::compositeList)
        return build_elements(type, record, children_of(ie), building);
    return build_slots(type.slots, record, sequenceMaskOffset, 0, children_of(ie), building);
}

bool build_slots(const SlotTable &table, const void *record, unsigned maskOffset, unsigned next,
                 VelDllHead *list, Building *building) {
    const unsigned mask = *at_offset(record, maskOffset);
    for (; next < table.count; ++next) {
        const Slot &slot = slot_at(table, next);
        if (slot.presenceBit != 0 && (mask & slot.presenceBit) == 0)
            continue;
        const void *member = at_offset(record, slot.recordOffset);
        const bool ok = is_composite(type_of(slot.type))
                            ? build_composite(slot.type, member, list, building)
                            : append_copy(list, slot.type, member, TARN_CALLER(moduleApi));
        if (!ok)
            return false;
    }
    return true;
}

// Releases the message before reporting, since a host may leave by a jump from its report.
uint32_t fail_build(TarnMsg *msg, uint32_t token) {
    delete_msg(msg);
    velSwTokenDebug(token, 0);
    return 0;
}

// ---- Objects to record -------------------------------------------------------------------------

void get_slots(const SlotTable &table, const VelDllHead *list, void *record, unsigned maskOffset);

void get_elements(const Type &type, const VelDllHead *list, void *record) {
    uint16_t count = 0;
    for (const TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi));
         ie != nullptr && count < type.capacity; ie = next_ie(list, ie, TARN_CALLER(moduleApi)))
        get_slots(type_of(type.item).slots, children_of(ie),
                  at_offset(record, type.itemsOffset + count++ * type.stride), sequenceMaskOffset);
    *static_cast<uint16_t *>(record) = count;
}

void get_member(const TarnIe *ie, TypeId id, void *member) {
    const Type &type = type_of(id);
    if (type.kind == Kind::sequence)
        get_slots(type.slots, children_of(ie), member, sequenceMaskOffset);
    else if (type.kind == Kind::compositeList)
        get_elements(type, children_of(ie), member);
    else
        memcpy(member, value_of(ie), type.valueSize);
}

// Presence bits are set and never cleared, and the members of absent IEs are left alone: a caller
// may gather several messages into one record.
void get_slots(const SlotTable &table, const VelDllHead *list, void *record, unsigned maskOffset) {
    unsigned position = 0;
    for (const TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleApi))) {
        const Slot *slot = next_slot(table, ie->tag, &position);
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
    Building building;
    // The first slot is the MessageId IE, which is there already: the record's own id is not read.
    if (!build_slots(message.slots, record, msgMaskOffset, 1, &msg->ies, &building))
        return fail_build(msg, message.appendToken);
    if (building.shortList || !msg_is_valid(msg, id))
        return fail_build(msg, message.validityToken);
    const uint32_t needed = ies_size(&msg->ies);
    if (needed > size) {
        delete_msg(msg);
        velSwFatalError("", moduleApi, __LINE__);
        velSwTokenDebug(message.packToken, 0);
        return 0;
    }
    Output out{buffer, size};
    if (!write_slots(message.slots, &msg->ies, &out))
        return fail_build(msg, message.packToken);
    delete_msg(msg);
    return needed;
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
