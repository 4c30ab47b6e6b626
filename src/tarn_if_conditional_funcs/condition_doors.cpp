// The exported predicates.
#include "tarn_if.h"
#include "tarn_if_conditional_funcs/conditions.h"

using namespace tarn;

namespace {

// Whose children a predicate is asked about, as its prototype says.
template <class Ie>
Ie owner_in(uint32_t (*)(const TarnMsg *, const Ie *));

} // namespace

#define CONDITION_FOR_MSG(name_, predicate_, ...)                                                  \
    uint32_t predicate_(const TarnMsg *msg) {                                                      \
        return condition_for_msg(msg, name_);                                                      \
    }
#define CONDITION_FOR_IE(name_, predicate_, ...)                                                   \
    uint32_t predicate_(const TarnMsg *, const decltype(owner_in(predicate_)) *ie) {               \
        return condition_for_ie(head_of(ie), name_);                                               \
    }
#include "catalogue/conditions.def"
