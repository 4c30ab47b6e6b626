#include "tarn_if_api/members.h"

#include "tarn_if_internal_funcs/writing.h"

namespace tarn {

namespace {

TARN_INLINE TarnIe *take_next(VelDllHead *list, uint32_t tag) {
    for (TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleApi))) {
        if (ie->tag == tag && ie->extractHistory == 0) {
            ie->extractHistory = 1;
            return ie;
        }
    }
    return nullptr;
}

template <class Owner, class Copy>
TARN_INLINE uint32_t extract_by(Owner *owner, const void *value, uint32_t tag, Copy copy) {
    if (any_null(TARN_CALLER(moduleApi), owner, value))
        return 0;
    const TarnIe *ie = take_next(list_of(owner), tag);
    if (ie == nullptr)
        return 0;
    copy(ie);
    return 1;
}

} // namespace

template <class Id>
uint32_t append_value(VelDllHead *list, Id id, const void *value) {
    if (measure_ie(id, value) == 0)
        return 0;
    TarnIe *ie = create_head(id, TARN_CALLER(moduleApi));
    copy_value(type_of(id), value_of(ie), value);
    link_ie(list, ie, TARN_CALLER(moduleApi));
    return 1;
}

template <class Owner>
uint32_t link(Owner *owner, TarnIe *child) {
    if (any_null(TARN_CALLER(moduleApi), owner, child))
        return 0;
    link_ie(list_of(owner), child, TARN_CALLER(moduleApi));
    return 1;
}

template <class Owner, class Number>
uint32_t extract_number(Owner *owner, Number *value, uint32_t tag) {
    return extract_by(owner, value, tag, [value](const TarnIe *ie) {
        *value = *static_cast<const Number *>(value_of(ie));
    });
}

template <class Owner, class Id>
uint32_t extract_value(Owner *owner, void *value, Id id) {
    return extract_by(owner, value, id, [value, id](const TarnIe *ie) {
        copy_value(type_of(id), value, value_of(ie));
    });
}

template <class Owner>
uint32_t borrow(Owner *owner, TarnIe **child, uint32_t tag) {
    if (any_null(TARN_CALLER(moduleApi), owner, child))
        return 0;
    *child = take_next(list_of(owner), tag);
    return *child != nullptr;
}

// ---- What the operations call ------------------------------------------------------------------

template uint32_t link(TarnMsg *, TarnIe *);
template uint32_t link(TarnIe *, TarnIe *);
template uint32_t borrow(TarnMsg *, TarnIe **, uint32_t);
template uint32_t borrow(TarnIe *, TarnIe **, uint32_t);

#ifdef TARN_BUILT_FOR_SPEED
template uint32_t extract_number(TarnMsg *, uint8_t *, uint32_t);
template uint32_t extract_number(TarnMsg *, uint16_t *, uint32_t);
template uint32_t extract_number(TarnMsg *, uint32_t *, uint32_t);
template uint32_t extract_number(TarnIe *, uint8_t *, uint32_t);
template uint32_t extract_number(TarnIe *, uint16_t *, uint32_t);
template uint32_t extract_number(TarnIe *, uint32_t *, uint32_t);
#define SCALAR(name_, ...)                                                                         \
    template uint32_t append_value(VelDllHead *, Constant<type##name_>, const void *);
#define LARGER_VALUE(name_, ...)                                                                   \
    SCALAR(name_)                                                                                  \
    template uint32_t extract_value(TarnMsg *, void *, Constant<type##name_>);                     \
    template uint32_t extract_value(TarnIe *, void *, Constant<type##name_>);
#define BYTES  LARGER_VALUE
#define RECORD LARGER_VALUE
#define LIST   LARGER_VALUE
#include "catalogue/primitive_ies.def"
#undef LARGER_VALUE
#else
template uint32_t append_value(VelDllHead *, TypeId, const void *);
template uint32_t extract_value(TarnMsg *, void *, TypeId);
template uint32_t extract_value(TarnIe *, void *, TypeId);
#endif

} // namespace tarn
