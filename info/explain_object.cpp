// What the validators make of a message object.
#include <algorithm>

#include "objects.h"
#include "values.h"

namespace info {

namespace {

// One message or composite: the IEs of a list against the slots of its type, as the validators go:
// by position for the mandatory ones, by tag for those behind them.
class ObjectWalk {
public:
    // Returns what makes the IE invalid that stands at this offset, or nothing.
    Finding ie(const TarnIe *ie, const TarnInfoType &type, const std::string &path,
               std::uint32_t at);
    Finding slots(const VelDllHead *list, const Slots &slots, const std::string &path,
                  std::uint32_t at);

    // What is wrong with children that the rules overlook.
    std::vector<Finding> overlooked;

private:
    Finding elements(const VelDllHead *list, const TarnInfoType &type, const std::string &path,
                     std::uint32_t at);
};

Finding wrong_ie(const TarnInfoType &expected, std::uint32_t found, const std::string &path,
                 std::uint32_t at, TarnInfoReason reason) {
    TarnInfoWords words{};
    words.type = &expected;
    words.found = found;
    return make_finding(at, reason, path, words);
}

Finding slot_fault(const TarnInfoSlot &slot, const std::string &path, std::uint32_t at,
                   TarnInfoReason reason) {
    TarnInfoWords words{};
    words.type = slot.type;
    words.slot = &slot;
    return make_finding(at, reason, join(path, slot.name), words);
}

Finding ObjectWalk::ie(const TarnIe *ie, const TarnInfoType &type, const std::string &path,
                       std::uint32_t at) {
    if (ie->tag != type.tag)
        return wrong_ie(type, ie->tag, path, at, TarnInfoWrongTag);
    if (type.shape == TarnInfoSequence)
        return slots(children_of(ie), slots_of(type), path, at + headerSize);
    if (type.shape == TarnInfoCompositeList)
        return elements(children_of(ie), type, path, at);
    return find_invalid(type, value_of(ie), path, at, Offsets::onTheWire);
}

Finding ObjectWalk::elements(const VelDllHead *list, const TarnInfoType &type,
                             const std::string &path, std::uint32_t at) {
    std::uint32_t count = 0;
    std::uint32_t next = at + headerSize;
    for (const TarnIe *element = first_ie(list); element != nullptr;
         element = next_ie(list, element)) {
        if (Finding fault = ie(element, *type.item, join(path, count), next))
            return fault;
        next += TarnSizeOfIe(element);
        ++count;
    }
    return find_count_fault(type, count, path, at);
}

Finding ObjectWalk::slots(const VelDllHead *list, const Slots &slots, const std::string &path,
                          std::uint32_t at) {
    const TarnInfoSlot *next = slots.begin(); // mandatory ones
    std::uint32_t position = 0;
    std::uint32_t present = 0; // presence bits of conditional slots
    const bool repeats = (slots.end() - 1)->presence == TarnInfoRepeated;
    for (const TarnIe *child = first_ie(list); child != nullptr; child = next_ie(list, child)) {
        if (position++ >= slots.count && !repeats)
            break;
        const TarnInfoSlot *slot = next;
        if (slot == slots.end() || slot->presence != TarnInfoMandatory)
            slot = std::find_if(next, slots.end(),
                                [&](auto &each) { return each.type->tag == child->tag; });
        if (slot == slots.end()) {
            if (position <= slots.count)
                return wrong_ie(*slots.begin()->type, child->tag, path, at, TarnInfoForeign);
        } else {
            Finding fault = ie(child, *slot->type, join(path, slot->name), at);
            if (fault && slot->presence == TarnInfoMandatory)
                return fault;
            if (fault)
                overlooked.push_back(std::move(fault));
            else if (slot->condition != nullptr)
                present |= slot->presenceBit;
            next += slot->presence == TarnInfoMandatory ? 1 : 0;
        }
        at += TarnSizeOfIe(child);
    }
    for (const TarnInfoSlot &slot : Slots{next, std::uint32_t(slots.end() - next)}) {
        if (slot.presence == TarnInfoMandatory)
            return slot_fault(slot, path, at, TarnInfoMissing);
        const bool isThere = (present & slot.presenceBit) != 0;
        if (slot.condition != nullptr && isThere != is_called_for(slot, list))
            return slot_fault(slot, path, at, isThere ? TarnInfoNotCalledFor : TarnInfoNeeded);
    }
    return {};
}

void explain_msg(const TarnMsg *msg, Explanation *out) {
    out->verdict = TarnInfoInvalid;
    out->message = msg != nullptr ? message_of_id(msg->messageId) : nullptr;
    if (out->message == nullptr) {
        out->foundFaults.push_back(make_finding(0, TarnInfoNoMessage, "", {}));
        return;
    }
    out->consumed = std::uint32_t(TarnSizeOfMsg(msg));
    ObjectWalk walk;
    Finding fault = walk.slots(&msg->ies, slots_of(*out->message), "", 0);
    if (fault)
        out->foundFaults.push_back(std::move(fault));
    else
        out->verdict = TarnInfoValid;
    out->foundNotes = std::move(walk.overlooked);
}

} // namespace

} // namespace info

using namespace info;

const TarnInfoExplanation *tarnInfoExplainMsg(const TarnMsg *msg) {
    return explain([msg](Explanation *explanation) { explain_msg(msg, explanation); });
}
