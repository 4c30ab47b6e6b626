// The exported predicates.
#include "tarn_if.h"
#include "tarn_if_conditional_funcs/conditions.h"

using namespace tarn;

#define CONDITION_FOR_MSG(name_, predicate_, ...)                                                  \
    uint32_t predicate_(const TarnMsg *msg) {                                                      \
        return condition_for_msg(msg, name_);                                                      \
    }
#define CONDITION_FOR_IE(name_, predicate_, ...)                                                   \
    uint32_t predicate_(const TarnMsg *, const TarnRabParamsIe *ie) {                              \
        return condition_for_ie(head_of(ie), name_);                                               \
    }
#include "catalogue/conditions.def"
