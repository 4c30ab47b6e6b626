#include "tarn_if_api/records.h"

#include "tarn_if_api/members.h"
#include "tarn_if_api/messages.h"
#include "tarn_if_internal_funcs/packing.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/unpacking.h"
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

    template <unsigned skipped, class Owner>
    TARN_INLINE Built slots(Owner owner, const void *record, unsigned maskOffset, VelDllHead *list);
    template <class Id>
    Built composite(Id id, const void *record, VelDllHead *list);
    template <class Id>
    Built elements(Id list_id, const void *record, VelDllHead *list);
    template <class Id>
    Built child(Id id, const void *member, VelDllHead *list);
};

template <class Id>
Built Builder::elements(Id list_id, const void *record, VelDllHead *list) {
    const Type &type = type_of(list_id);
    const uint32_t count = *static_cast<const uint16_t *>(record);
    if (count > type.capacity)
        return Built::failed;
    Built verdict = Built::valid;
    if (count < type.least) {
        shortList = true;
        verdict = Built::invalid;
    }
    for (uint32_t i = 0; i < count; ++i) {
        const Built element =
            composite(element_of(list_id),
                      at_offset(record, type.array.offset + i * type.array.stride), list);
        if (element == Built::failed)
            return element;
        if (element == Built::invalid)
            verdict = element;
    }
    return verdict;
}

// The composite is linked before it is filled, so that a failure leaves it to its owner's release.
template <class Id>
Built Builder::composite(Id id, const void *record, VelDllHead *list) {
    TarnIe *ie = create_composite(id, TARN_CALLER(moduleApi));
    link_ie(list, ie, TARN_CALLER(moduleApi));
    return by_kind<is_sequence>(
        id,
        [&](auto sequence) TARN_INLINE_LAMBDA {
            return slots<0>(sequence, record, sequenceMaskOffset, children_of(ie));
        },
        [&](auto elements_of)
            TARN_INLINE_LAMBDA { return elements(elements_of, record, children_of(ie)); });
}

template <class Id>
TARN_INLINE Built Builder::child(Id id, const void *member, VelDllHead *list) {
    return by_kind<is_primitive>(
        id,
        [&](auto primitive) TARN_INLINE_LAMBDA {
            return append_value(list, primitive, member) != 0 ? Built::valid : Built::failed;
        },
        [&](auto nested) TARN_INLINE_LAMBDA { return composite(nested, member, list); });
}

// As for the validators, the verdict on an optional child does not count, and a conditional child
// counts as present only when it is valid.
template <unsigned skipped, class Owner>
TARN_INLINE Built Builder::slots(Owner owner, const void *record, unsigned maskOffset,
                                 VelDllHead *list) {
    const unsigned mask = *at_offset(record, maskOffset);
    unsigned present = 0;
    Built verdict = Built::valid;
    const bool all = each_slot_behind<skipped>(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        if (slot.presence != Presence::mandatory && (mask & slot.presenceBit) == 0)
            return true;
        const Built built = child(slot.type, at_offset(record, slot.recordOffset), list);
        if (built == Built::failed)
            return false;
        if (built == Built::valid)
            present |= slot.presenceBit;
        else if (slot.presence == Presence::mandatory)
            verdict = built;
        return true;
    });
    if (!all)
        return Built::failed;
    return conditions_are_met(slots_of(owner), list, present) ? verdict : Built::invalid;
}

// Releases the message before reporting, since a host may leave by a jump from its report.
uint32_t fail_build(TarnMsg *msg, uint32_t token) {
    delete_msg(msg);
    velSwTokenDebug(token, 0);
    return 0;
}

// ---- Objects to record -------------------------------------------------------------------------

template <class Id>
void get_member(Id id, const TarnIe *ie, void *member);

// Presence bits are set and never cleared, and the members of absent IEs are left alone: a caller
// may gather several messages into one record.
struct RecordFiller {
    void *record;
    unsigned maskOffset;

    template <class AnySlot>
    TARN_INLINE bool visit(const AnySlot &slot, const TarnIe *ie) {
        if (slot.presence != Presence::mandatory)
            *at_offset(record, maskOffset) |= slot.presenceBit;
        get_member(slot.type, ie, at_offset(record, slot.recordOffset));
        return true;
    }
};

template <class Owner>
TARN_INLINE void get_slots(Owner owner, const VelDllHead *list, void *record, unsigned maskOffset) {
    RecordFiller filler{record, maskOffset};
    visit_ies<Stray::isPassedOver>(owner, list, TARN_CALLER(moduleApi), &filler);
}

template <class Id>
[[gnu::noinline]] void get_sequence(Id id, const VelDllHead *list, void *record) {
    get_slots(id, list, record, sequenceMaskOffset);
}

// A decoded list holds no more elements than its record, since its unpacker counts them. They are
// counted all the same: what is written here should not hang on a check made elsewhere.
template <class Id>
[[gnu::noinline]] void get_elements(Id list_id, const VelDllHead *list, void *record) {
    const Type &type = type_of(list_id);
    uint16_t count = 0;
    for (const TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi));
         ie != nullptr && count < type.capacity; // GCOVR_EXCL_BR_LINE
         ie = next_ie(list, ie, TARN_CALLER(moduleApi)))
        get_sequence(element_of(list_id), children_of(ie),
                     at_offset(record, type.array.offset + count++ * type.array.stride));
    *static_cast<uint16_t *>(record) = count;
}

template <class Id>
TARN_INLINE void get_member(Id id, const TarnIe *ie, void *member) {
    by_kind<is_primitive>(
        id,
        [&](auto primitive)
            TARN_INLINE_LAMBDA { copy_value(type_of(primitive), member, value_of(ie)); },
        [&](auto nested) TARN_INLINE_LAMBDA {
            with_composite(nested, [&](auto known) TARN_INLINE_LAMBDA {
                by_kind<is_sequence>(
                    known,
                    [&](auto sequence)
                        TARN_INLINE_LAMBDA { get_sequence(sequence, children_of(ie), member); },
                    [&](auto list)
                        TARN_INLINE_LAMBDA { get_elements(list, children_of(ie), member); });
            });
        });
}

} // namespace

template <class Id>
uint32_t build_msg(uint8_t *buffer, uint32_t size, const void *record, Id id) {
    if (any_null(TARN_CALLER(moduleApi), buffer, record))
        return 0;
    const Message &message = catalogue.messages[id];
    TarnMsg *msg = new_msg(id);
    Builder builder;
    // The first slot is the MessageId IE, which is there already: the record's own id is not read.
    const Built built = builder.slots<1>(id, record, msgMaskOffset, &msg->ies);
    if (built == Built::failed)
        return fail_build(msg, message.appendToken);
    if (built == Built::invalid || builder.shortList)
        return fail_build(msg, message.validityToken);
    const Writing writing = write_msg(id, &msg->ies, Output{buffer, size});
    delete_msg(msg);
    if (writing.ok) [[likely]]
        return writing.size;
    // Every IE has a slot and a valid value, so it can only be room that is missing.
    velSwFatalError("", moduleApi, __LINE__);
    velSwTokenDebug(message.packToken, 0);
    return 0;
}

template <class Id>
uint32_t get_msg(const uint8_t *buffer, uint32_t length, void *record, Id id) {
    if (any_null(TARN_CALLER(moduleApi), buffer, record))
        return 0;
    TarnMsg *msg = unpack_msg_of_any_type(buffer, length);
    if (msg == nullptr) {
        velSwTokenDebug(getToken, 0);
        return 0;
    }
    get_slots(id, &msg->ies, record, msgMaskOffset);
    delete_msg(msg);
    return 1;
}

#ifdef TARN_BUILT_FOR_SPEED
#define MESSAGE(name_, ...)                                                                        \
    template uint32_t build_msg(uint8_t *, uint32_t, const void *, Constant<message##name_>);      \
    template uint32_t get_msg(const uint8_t *, uint32_t, void *, Constant<message##name_>);
#include "catalogue/messages.def"
#else
template uint32_t build_msg(uint8_t *, uint32_t, const void *, MessageNumber);
template uint32_t get_msg(const uint8_t *, uint32_t, void *, MessageNumber);
#endif

} // namespace tarn
