// The predicates that decide conditional presence.
#ifndef TARN_CONDITIONS_H
#define TARN_CONDITIONS_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Whether the condition holds among the IEs of the list. An IE that is not there answers false:
// the validators ask before they have seen whether the list is complete.
bool condition_holds(ConditionId id, const VelDllHead *list);

// The answers for one owner, each asked of the platform once at the most and only when needed. The
// IEs that conditions look at are mandatory ones, which stand before every conditional slot, so an
// answer does not change during a walk.
class Conditions {
public:
    explicit Conditions(const VelDllHead *list) : list_(list) {}

    bool hold(ConditionId id);

private:
    const VelDllHead *list_;
    uint8_t known_ = 0;
    uint8_t true_ = 0;
};

// The operations of the public interface.
uint32_t condition_for_msg(const TarnMsg *msg, ConditionId id);
uint32_t condition_for_ie(const TarnIe *ie, ConditionId id);

} // namespace tarn

#endif
