// The facts that tarn_info.h hands out, and what this library needs of them itself.
#ifndef TARN_INFO_FACTS_H
#define TARN_INFO_FACTS_H

#include <cstddef>
#include <cstdint>

#include "catalogue/catalogue.h"
#include "tarn_info.h"

namespace info {

constexpr std::uint32_t tagSize = 2;
constexpr std::uint32_t headerSize = 6;

// Types stand by tag, those without one behind the last tag; messages by id. What is not used has
// no name.
struct Facts {
    TarnInfoType types[tarn::typeCount];
    TarnInfoMessage messages[tarn::messageCount];
    TarnInfoSlot slots[tarn::slotCapacity];
    TarnInfoSlot members[tarn::memberCapacity];
    TarnInfoSlot elements[tarn::typeCount]; // of the composite lists
    TarnInfoCondition conditions[tarn::always];
};

extern const Facts facts;

inline const TarnInfoType *type_of_tag(std::uint32_t tag) {
    return tag <= tarn::lastTag && facts.types[tag].name != nullptr ? &facts.types[tag] : nullptr;
}
inline const TarnInfoMessage *message_of_id(std::uint32_t id) {
    return id < tarn::messageCount && facts.messages[id].name != nullptr ? &facts.messages[id]
                                                                         : nullptr;
}

inline bool is_composite(const TarnInfoType &type) {
    return type.shape >= TarnInfoSequence;
}
inline bool is_list(const TarnInfoType &type) {
    return type.shape == TarnInfoList || type.shape == TarnInfoCompositeList;
}

// Slots as a range.
struct Slots {
    const TarnInfoSlot *first;
    std::uint32_t count;

    const TarnInfoSlot *begin() const { return first; }
    const TarnInfoSlot *end() const { return first + count; }
};
inline Slots slots_of(const TarnInfoType &type) {
    return {type.slots, type.slotCount};
}
inline Slots slots_of(const TarnInfoMessage &message) {
    return {message.slots, message.slotCount};
}

// Whether the condition holds where the IE that it looks for has this value.
inline bool condition_holds(const TarnInfoCondition &condition, std::uint32_t number) {
    const std::uint32_t isInside = number < 32 ? condition.values >> number & 1 : 0;
    return isInside == condition.isInside;
}

// The exported operations, with the types erased.
struct MessageOperations {
    TarnMsg *(*create)();
    std::uint32_t (*isValid)(const TarnMsg *msg);
    std::uint32_t (*pack)(const TarnMsg *msg, std::uint8_t *buffer, std::uint32_t size);
    TarnMsg *(*unpack)(const std::uint8_t *buffer, std::uint32_t length);
    std::uint32_t (*build)(std::uint8_t *buffer, std::uint32_t size, const void *record);
    std::uint32_t (*get)(const std::uint8_t *buffer, std::uint32_t length, void *record);
};
// All null for an id that no message has.
const MessageOperations &operations_of(std::uint32_t id);

using IsValueValid = std::uint32_t (*)(const void *value);
using IsIeValid = std::uint32_t (*)(const TarnIe *ie);
IsValueValid value_validator(const TarnInfoType &type); // of a primitive type
IsIeValid ie_validator(const TarnInfoType &type);       // of a type that has an IE

} // namespace info

#endif
