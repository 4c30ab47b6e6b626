#include "tarn_if_conditional_funcs/conditions.h"

#include "objects.h"

namespace tarn {

namespace {

uint32_t has_tag(const VelDllNode *member, const void *key) {
    return reinterpret_cast<const TarnIe *>(member)->tag == *static_cast<const uint16_t *>(key);
}

} // namespace

bool NumbersInList::find(TypeId id, uint32_t *number) const {
    const uint16_t tag = id;
    const VelDllNode *found = xVelDllFindNode(list, has_tag, &tag, moduleConditional, __LINE__);
    if (found == nullptr)
        return false;
    *number = *static_cast<const uint32_t *>(value_of(reinterpret_cast<const TarnIe *>(found)));
    return true;
}

bool Conditions::hold(ConditionId id) {
    const auto bit = uint8_t(1U << id);
    if ((known_ & bit) == 0) {
        known_ |= bit;
        if (condition_holds(id, numbers_))
            true_ |= bit;
    }
    return (true_ & bit) != 0;
}

uint32_t condition_for_msg(const TarnMsg *msg, ConditionId id) {
    if (any_null(TARN_CALLER(moduleConditional), msg))
        return 0;
    return condition_holds(id, NumbersInList{&msg->ies});
}

uint32_t condition_for_ie(const TarnIe *ie, ConditionId id) {
    if (any_null(TARN_CALLER(moduleConditional), ie))
        return 0;
    return condition_holds(id, NumbersInList{children_of(ie)});
}

} // namespace tarn
