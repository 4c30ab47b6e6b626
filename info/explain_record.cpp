// What Build makes of a record.
#include <algorithm>
#include <utility>

#include "values.h"

namespace info {

namespace {

// The mask stands behind the id in a message's record, and first in a composite's.
constexpr std::uint32_t messageMask = 1;
constexpr std::uint32_t compositeMask = 0;

// From good to bad.
enum class Built { valid, invalid, refused };

class RecordWalk {
public:
    explicit RecordWalk(const void *record) : record_(record) {}

    Built slots(const Slots &slots, std::uint32_t at, std::uint32_t mask, const std::string &path);

    // The first value that no append takes; the first fault that makes the finished message
    // invalid; and a list with too few elements, which refuses the record even where the rules
    // overlook it.
    Finding refused;
    Finding invalid;
    Finding tooShort;
    std::vector<Finding> overlooked;
    std::uint32_t size = 0; // of all on the wire

private:
    Built child(const TarnInfoType &type, std::uint32_t at, const std::string &path);
    Built elements(const TarnInfoType &type, std::uint32_t at, const std::string &path);

    const void *at(std::uint32_t offset) const { return at_offset(record_, offset); }
    bool is_called_for(const TarnInfoSlot &slot, const Slots &slots, std::uint32_t at) const;

    const void *record_;
};

Built RecordWalk::elements(const TarnInfoType &type, std::uint32_t offset,
                           const std::string &path) {
    const std::uint32_t count = *static_cast<const std::uint16_t *>(at(offset));
    Finding fault = find_count_fault(type, count, path, offset);
    if (fault && count > type.capacity) {
        refused = std::move(fault);
        return Built::refused;
    }
    Built verdict = fault ? Built::invalid : Built::valid;
    if (fault && !tooShort)
        tooShort = fault;
    if (fault && !invalid)
        invalid = std::move(fault);
    for (std::uint32_t i = 0; i < count; ++i)
        verdict = std::max(
            verdict, child(*type.item, offset + type.itemsOffset + i * type.stride, join(path, i)));
    return verdict;
}

Built RecordWalk::child(const TarnInfoType &type, std::uint32_t offset, const std::string &path) {
    if (refused)
        return Built::refused;
    size += headerSize;
    if (type.shape == TarnInfoSequence)
        return slots(slots_of(type), offset, compositeMask, path);
    if (type.shape == TarnInfoCompositeList)
        return elements(type, offset, path);
    size += size_of_value(type, at(offset));
    refused = find_invalid(type, at(offset), path, offset, Offsets::inMemory);
    return refused ? Built::refused : Built::valid;
}

// The IE that a condition looks at is a mandatory one of the same owner.
bool RecordWalk::is_called_for(const TarnInfoSlot &slot, const Slots &slots,
                               std::uint32_t offset) const {
    for (const TarnInfoSlot &each : slots)
        if (each.type->tag == slot.condition->tag)
            return condition_holds(*slot.condition,
                                   number_of(*each.type, at(offset + each.offset)));
    return false;
}

Built RecordWalk::slots(const Slots &slots, std::uint32_t offset, std::uint32_t mask,
                        const std::string &path) {
    const std::uint32_t given = *static_cast<const std::uint8_t *>(at(offset + mask));
    std::uint32_t present = 0;
    Built verdict = Built::valid;
    for (const TarnInfoSlot &slot : slots) {
        const bool isId = path.empty() && &slot == slots.begin(); // Build sets it itself
        if (isId)
            size += slot.type->largest;
        const bool isMandatory = slot.presence == TarnInfoMandatory;
        if (isId || (!isMandatory && (given & slot.presenceBit) == 0))
            continue;
        Finding before = std::move(invalid);
        invalid = {};
        const Built built = child(*slot.type, offset + slot.offset, join(path, slot.name));
        if (built == Built::refused)
            return built;
        if (built == Built::valid)
            present |= slot.presenceBit;
        else if (isMandatory)
            verdict = built;
        else
            overlooked.push_back(std::exchange(invalid, {}));
        if (before)
            invalid = std::move(before);
    }
    for (const TarnInfoSlot &slot : slots) {
        const bool isThere = (present & slot.presenceBit) != 0;
        if (slot.condition == nullptr || isThere == is_called_for(slot, slots, offset))
            continue;
        TarnInfoWords words{};
        words.slot = &slot;
        if (!invalid)
            invalid =
                make_finding(offset + slot.offset, isThere ? TarnInfoNotCalledFor : TarnInfoNeeded,
                             join(path, slot.name), words);
        return Built::invalid;
    }
    return verdict;
}

void explain_record(const TarnInfoMessage *message, const void *record, std::uint32_t room,
                    Explanation *out) {
    out->verdict = TarnInfoRefused;
    out->message = message;
    if (message == nullptr || record == nullptr) {
        out->foundFaults.push_back(make_finding(0, TarnInfoNoMessage, "", {}));
        return;
    }
    RecordWalk walk(record);
    const Built built = walk.slots(slots_of(*message), 0, messageMask, "");
    out->foundNotes = std::move(walk.overlooked);
    const auto refuse = [out](std::uint32_t token, Finding fault) {
        out->token = token;
        out->foundFaults.push_back(std::move(fault));
    };
    if (built == Built::refused)
        return refuse(message->appendToken, std::move(walk.refused));
    if (built == Built::invalid)
        return refuse(message->validityToken, std::move(walk.invalid));
    if (walk.tooShort)
        return refuse(message->validityToken, std::move(walk.tooShort));
    if (walk.size > room) {
        TarnInfoWords words{};
        words.number = walk.size;
        words.other = room;
        return refuse(message->packToken, make_finding(0, TarnInfoBufferTooSmall, "", words));
    }
    out->verdict = TarnInfoValid;
    out->consumed = walk.size;
}

} // namespace

} // namespace info

using namespace info;

const TarnInfoExplanation *tarnInfoExplainRecord(uint32_t id, const void *record, uint32_t room) {
    return explain([=](Explanation *explanation) {
        explain_record(message_of_id(id), record, room, explanation);
    });
}
