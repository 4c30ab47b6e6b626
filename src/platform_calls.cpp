#include "platform_calls.h"

#include <initializer_list>

namespace tarn {

void report_nulls(Caller caller, const void *first, const void *second, const void *third) {
    for (const void *pointer : {first, second, third})
        if (pointer == nullptr)
            velSwFatalError("", caller.module, caller.line);
}

} // namespace tarn
