// The platform's services as the engine calls them: each call names its caller through TARN_CALLER,
// and list members come back as the IE objects that they are.
#ifndef TARN_PLATFORM_CALLS_H
#define TARN_PLATFORM_CALLS_H

#include <stdint.h>

#include "build_goal.h"
#include "tarn_if.h"
#include "vel_platform.h"

namespace [[gnu::visibility("hidden")]] tarn {

// The names of the source modules. Built for speed, each call of the platform fetches one anew
// (volatile): kept in a register, it would have every function save and restore that register.
#ifdef TARN_BUILT_FOR_SPEED
#define TARN_MODULE [[gnu::section(".data.rel.ro")]] inline const char *const volatile
using Module = const char *const volatile &;
#else
#define TARN_MODULE inline const char *const
using Module = const char *;
#endif
TARN_MODULE moduleApi = "tarn_if_api";
TARN_MODULE moduleInternal = "tarn_if_internal_funcs";
TARN_MODULE moduleConditional = "tarn_if_conditional_funcs";

// Who is calling the platform: one of the modules, and a line.
struct Caller {
    Module module;
    uint32_t line;
};

#define TARN_CALLER(module_) (::tarn::Caller{::tarn::module_, __LINE__})

// Reports every null pointer among those given, in their order.
[[gnu::cold]] void report_nulls(Caller caller, const void *first, const void *second = "",
                                const void *third = "");

// True when an argument is missing; each missing one has then been reported. The host's report is
// not expected to return, and where it does the operation fails instead of using the null.
template <class... Pointers>
TARN_INLINE bool any_null(Caller caller, const Pointers *...pointers) {
    if ((... && (pointers != nullptr))) [[likely]]
        return false;
    report_nulls(caller, pointers...);
    return true;
}

// The variable is null when the host gets it. It is cleared through a pointer that the compiler
// does not see through: where it is cleared and read at the same offset from the stack pointer,
// some processors take it to hold the null still, and have to begin anew behind the call.
TARN_INLINE void *allocate(uint32_t size, Caller caller) {
    void *block;
    void **variable = &block;
    asm volatile("" : "+r"(variable));
    *variable = nullptr;
    velAllocMemoryWithIds(size, variable, caller.module, caller.line);
    return block; // NOLINT(clang-analyzer-core.uninitialized.UndefReturn)
}

// The head of any IE object, or null for a null one: every type of IE object begins with it.
template <class Object>
inline TarnIe *head_of(Object *ie) {
    return reinterpret_cast<TarnIe *>(ie);
}
template <class Object>
inline const TarnIe *head_of(const Object *ie) {
    return reinterpret_cast<const TarnIe *>(ie);
}

// A node is the first field of its IE object, so the addresses are the same.
TARN_INLINE TarnIe *first_ie(const VelDllHead *list, Caller caller) {
    return reinterpret_cast<TarnIe *>(xVelDllGetHead(list, caller.module, caller.line));
}

TARN_INLINE TarnIe *next_ie(const VelDllHead *list, const TarnIe *ie, Caller caller) {
    return reinterpret_cast<TarnIe *>(xVelDllGetNext(list, &ie->node, caller.module, caller.line));
}

TARN_INLINE void link_ie(VelDllHead *list, TarnIe *ie, Caller caller) {
    xVelDllAddToTail(list, &ie->node, caller.module, caller.line);
}

} // namespace tarn

#endif
