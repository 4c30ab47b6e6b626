#include "tarn_if_api/members.h"

#include <type_traits>

#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

VelDllHead *list_of(TarnMsg *owner) {
    return &owner->ies;
}

VelDllHead *list_of(TarnIe *owner) {
    return children_of(owner);
}

// ---- Values in and out -------------------------------------------------------------------------

template <class Number>
bool is_in_range(const Type &type, TypeId, const Number *value) {
    return in_range(type, *value);
}

bool is_in_range(const Type &type, TypeId id, const void *value) {
    if (type.kind == Kind::bytes)
        return in_range(type, stored_count(value));
    return value_is_valid(id, value);
}

template <class Number>
void copy_in(const Type &, TarnIe *ie, const Number *value) {
    *static_cast<Number *>(value_of(ie)) = *value;
}

void copy_in(const Type &type, TarnIe *ie, const void *value) {
    copy_value(type, value_of(ie), value);
}

template <class Number>
void copy_out(TypeId, const TarnIe *ie, Number *value) {
    *value = *static_cast<const Number *>(value_of(ie));
}

void copy_out(TypeId id, const TarnIe *ie, void *value) {
    copy_value(type_of(id), value, value_of(ie));
}

// Which of the above a number goes through.
template <class Number>
auto shortest(Number *value) {
    if constexpr (builtForSpeed)
        return value;
    else if constexpr (std::is_const_v<Number>)
        return static_cast<const void *>(value);
    else
        return static_cast<void *>(value);
}

// ---- Append ------------------------------------------------------------------------------------

// Taken in by each operation: appending values is what a sender does most.
template <class Value>
[[gnu::always_inline]] inline bool append_value(VelDllHead *list, TypeId id, const Value *value,
                                                Caller caller) {
    const Type &type = type_of(id);
    // No 8- or 16-bit number that a message takes has a bound, so some copies of this never refuse.
    if (!is_in_range(type, id, value)) // GCOVR_EXCL_BR_LINE
        return false;
    TarnIe *ie = create_head(id, caller);
    copy_in(type, ie, value);
    link_ie(list, ie, caller);
    return true;
}

template <class Owner, class Value>
uint32_t append_to(Owner *owner, const Value *value, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), owner, value))
        return 0;
    return append_value(list_of(owner), id, value, TARN_CALLER(moduleApi));
}

template <class Owner>
uint32_t link_to(Owner *owner, TarnIe *child) {
    if (any_null(TARN_CALLER(moduleApi), owner, child))
        return 0;
    link_ie(list_of(owner), child, TARN_CALLER(moduleApi));
    return 1;
}

// ---- Extract -----------------------------------------------------------------------------------

inline TarnIe *take_next(VelDllHead *list, TypeId id) {
    for (TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleApi))) {
        if (ie->tag == id && ie->extractHistory == 0) {
            ie->extractHistory = 1;
            return ie;
        }
    }
    return nullptr;
}

template <class Owner, class Value>
uint32_t extract_from(Owner *owner, Value *value, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), owner, value))
        return 0;
    const TarnIe *ie = take_next(list_of(owner), id);
    if (ie == nullptr)
        return 0;
    copy_out(id, ie, value);
    return 1;
}

template <class Owner>
uint32_t borrow_from(Owner *owner, TarnIe **child, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), owner, child))
        return 0;
    *child = take_next(list_of(owner), id);
    return *child != nullptr;
}

} // namespace

bool append_copy(VelDllHead *list, TypeId id, const void *value, Caller caller) {
    return append_value(list, id, value, caller);
}

uint32_t append_message_id(TarnMsg *msg, const TarnMessageId *value) {
    if (any_null(TARN_CALLER(moduleInternal), msg, value))
        return 0;
    return append_value(&msg->ies, typeMessageId, value, TARN_CALLER(moduleInternal));
}

uint32_t append(TarnMsg *o, const uint8_t *value, TypeId id) {
    return append_to(o, shortest(value), id);
}
uint32_t append(TarnMsg *o, const uint16_t *value, TypeId id) {
    return append_to(o, shortest(value), id);
}
uint32_t append(TarnMsg *o, const uint32_t *value, TypeId id) {
    return append_to(o, shortest(value), id);
}
uint32_t append(TarnMsg *o, const void *value, TypeId id) {
    return append_to(o, value, id);
}
uint32_t append(TarnIe *o, const uint8_t *value, TypeId id) {
    return append_to(o, shortest(value), id);
}
uint32_t append(TarnIe *o, const uint16_t *value, TypeId id) {
    return append_to(o, shortest(value), id);
}
uint32_t append(TarnIe *o, const uint32_t *value, TypeId id) {
    return append_to(o, shortest(value), id);
}
uint32_t append(TarnIe *o, const void *value, TypeId id) {
    return append_to(o, value, id);
}

uint32_t extract(TarnMsg *o, uint8_t *value, TypeId id) {
    return extract_from(o, shortest(value), id);
}
uint32_t extract(TarnMsg *o, uint16_t *value, TypeId id) {
    return extract_from(o, shortest(value), id);
}
uint32_t extract(TarnMsg *o, uint32_t *value, TypeId id) {
    return extract_from(o, shortest(value), id);
}
uint32_t extract(TarnMsg *o, void *value, TypeId id) {
    return extract_from(o, value, id);
}
uint32_t extract(TarnIe *o, uint8_t *value, TypeId id) {
    return extract_from(o, shortest(value), id);
}
uint32_t extract(TarnIe *o, uint16_t *value, TypeId id) {
    return extract_from(o, shortest(value), id);
}
uint32_t extract(TarnIe *o, uint32_t *value, TypeId id) {
    return extract_from(o, shortest(value), id);
}
uint32_t extract(TarnIe *o, void *value, TypeId id) {
    return extract_from(o, value, id);
}

uint32_t link(TarnMsg *owner, TarnIe *child) {
    return link_to(owner, child);
}
uint32_t link(TarnIe *owner, TarnIe *child) {
    return link_to(owner, child);
}

uint32_t borrow(TarnMsg *owner, TarnIe **child, TypeId id) {
    return borrow_from(owner, child, id);
}
uint32_t borrow(TarnIe *owner, TarnIe **child, TypeId id) {
    return borrow_from(owner, child, id);
}

} // namespace tarn
