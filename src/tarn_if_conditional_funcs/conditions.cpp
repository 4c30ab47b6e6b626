#include "tarn_if_conditional_funcs/conditions.h"

#include "tarn_if_api/objects.h"

namespace tarn {

namespace {

uint32_t has_tag(const VelDllNode *member, const void *key) {
    return reinterpret_cast<const TarnIe *>(member)->tag == *static_cast<const uint16_t *>(key);
}

} // namespace

// The IEs looked for are code words, held in 32 bits; numbers beyond the set's bits are outside.
bool condition_holds(ConditionId id, const VelDllHead *list) {
    const Condition &condition = catalogue.conditions[id];
    const uint16_t tag = condition.type;
    const VelDllNode *found = xVelDllFindNode(list, has_tag, &tag, moduleConditional, __LINE__);
    if (found == nullptr)
        return false;
    const auto *ie = reinterpret_cast<const TarnIe *>(found);
    const uint32_t value = *static_cast<const uint32_t *>(value_of(ie));
    const bool isInside = value < 8 && (condition.values >> value & 1) != 0;
    return isInside == condition.counts;
}

bool Conditions::hold(ConditionId id) {
    const auto bit = uint8_t(1U << id);
    if ((known_ & bit) == 0) {
        known_ |= bit;
        if (condition_holds(id, list_))
            true_ |= bit;
    }
    return (true_ & bit) != 0;
}

uint32_t condition_for_msg(const TarnMsg *msg, ConditionId id) {
    if (any_null(TARN_CALLER(moduleConditional), msg))
        return 0;
    return condition_holds(id, &msg->ies);
}

uint32_t condition_for_ie(const TarnIe *ie, ConditionId id) {
    if (any_null(TARN_CALLER(moduleConditional), ie))
        return 0;
    return condition_holds(id, children_of(ie));
}

} // namespace tarn
