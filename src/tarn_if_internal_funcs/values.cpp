#include "tarn_if_internal_funcs/values.h"

#include "tarn_if_internal_funcs/slots.h"

namespace tarn {

namespace {

// ---- Access to what a value record holds -------------------------------------------------------

const void *bytes_of(const void *value) {
    return at_offset(value, sizeof(uint32_t));
}

// ---- Records and lists by type -----------------------------------------------------------------

// Calls `use` with the type, built for speed as a constant if it is a record or a list.
template <class Use>
TARN_INLINE auto with_type(TypeId id, Use use) {
    if constexpr (builtForSpeed) {
        switch (id) {
#define RECORD      TARN_TYPE_CASE
#define ITEM_RECORD TARN_TYPE_CASE
#define FREE_RECORD TARN_TYPE_CASE
#define LIST        TARN_TYPE_CASE
#include "catalogue/primitive_ies.def"
        default:
            break;
        }
    }
    return use(id);
}

// Calls the one that fits the type's kind. What is no constant in an engine built for speed is
// neither a record nor a list.
template <class Id, class UseRecord, class UseList, class UseOther>
TARN_INLINE auto by_shape(Id id, UseRecord record, UseList list, UseOther other) {
    if constexpr (isConstant<Id>) {
        constexpr Kind kind = type_of(Id::value).kind;
        if constexpr (kind == Kind::record)
            return record(id);
        else if constexpr (kind == Kind::list)
            return list(id);
        else
            return other(id);
    } else {
        if constexpr (!builtForSpeed) {
            if (type_of(id).kind == Kind::record)
                return record(id);
            if (type_of(id).kind == Kind::list)
                return list(id);
        }
        return other(id);
    }
}

// ---- Numbers -----------------------------------------------------------------------------------

bool write_number(const Type &type, const void *value, Output out, uint32_t *written) {
    const uint32_t width = type.fixedSize;
    if (width > out.left)
        return false;
    store_wire(out.at, width, load_number(type.kind, value));
    *written = width;
    return true;
}

// ---- Byte strings ------------------------------------------------------------------------------

bool write_bytes(const Type &type, const void *value, Output out, uint32_t *written) {
    const uint32_t length = stored_count(value);
    if (length > type.capacity || length > out.left)
        return false;
    memcpy(out.at, bytes_of(value), length);
    *written = length;
    return true;
}

// ---- Nested TLVs -------------------------------------------------------------------------------

// A number that is whole goes the short way; what fails is done again the long way, which tells how
// far it came.
template <class Id>
TARN_INLINE bool write_nested(Id id, const void *value, Output *out) {
    const Kind kind = type_of(id).kind;
    if constexpr (builtForSpeed) {
        const uint32_t size =
            is_number(kind) ? write_number_ie(kind, id, load_number(kind, value), *out) : 0;
        out->skip(size);
        if (size != 0) [[likely]]
            return true;
    }
    uint32_t written = 0;
    const bool ok = write_known_tlv(id, value, *out, &written);
    out->skip(written);
    return ok;
}

// ---- Records -----------------------------------------------------------------------------------

template <class Id>
uint32_t record_size(Id id, const void *value) {
    uint32_t size = 0;
    each_member(id, [&](const auto &member) TARN_INLINE_LAMBDA {
        size = add_sizes(size, headerSize);
        size = add_sizes(size, value_size(member.type, at_offset(value, member.offset)));
        return true;
    });
    return size;
}

template <class Id>
TARN_INLINE bool write_record(Id id, const void *value, Output out, uint32_t *written) {
    Output rest = out;
    const bool ok = each_member(id, [&](const auto &member) TARN_INLINE_LAMBDA {
        return write_nested(member.type, at_offset(value, member.offset), &rest);
    });
    *written = out.left - rest.left;
    return ok;
}

template <class Id>
bool record_is_valid(Id id, const void *value) {
    return each_member(id, [&](const auto &member) TARN_INLINE_LAMBDA {
        return known_is_valid(member.type, at_offset(value, member.offset));
    });
}

// ---- Lists -------------------------------------------------------------------------------------

template <class Id>
uint32_t list_size(Id id, const void *value) {
    const Type &type = type_of(id);
    const uint32_t stored = stored_count(value);
    const uint32_t count = stored < type.capacity ? stored : type.capacity;
    const uint32_t fixed = type_of(type.array.item).fixedSize;
    if (fixed != 0)
        return count * (headerSize + fixed);
    uint32_t size = 0;
    for (uint32_t i = 0; i < count; ++i)
        size = add_sizes(size, headerSize + value_size(type.array.item, item_of(type, value, i)));
    return size;
}

// An item that cannot be written does not keep the ones after it from being attempted; the list
// fails all the same.
template <class Id>
TARN_INLINE bool write_list(Id id, const void *value, Output out, uint32_t *written) {
    const Type &type = type_of(id);
    const uint32_t items = stored_count(value);
    *written = 0;
    if (items > type.capacity)
        return false;
    Output rest = out;
    bool all = true;
    for (uint32_t i = 0; i < items; ++i)
        all &= write_nested(element_of(id), item_of(type, value, i), &rest);
    *written = out.left - rest.left;
    return all;
}

template <class Id>
bool list_is_valid(Id id, const void *value) {
    const Type &type = type_of(id);
    const uint32_t items = stored_count(value);
    if (!in_range(type, items))
        return false;
    if (type_of(type.array.item).acceptsAll != 0)
        return true;
    for (uint32_t i = 0; i < items; ++i)
        if (!known_is_valid(element_of(id), item_of(type, value, i)))
            return false;
    return true;
}

// ---- One choice per verb -----------------------------------------------------------------------

template <class Id>
TARN_INLINE uint32_t size_of(Id id, const void *value) {
    if (type_of(id).fixedSize != 0)
        return type_of(id).fixedSize;
    return by_shape(
        id, [&](auto record) { return record_size(record, value); },
        [&](auto list) { return list_size(list, value); },
        [&](auto) { return stored_count(value); });
}

template <class Id>
TARN_INLINE bool write_by_shape(Id id, const void *value, Output out, uint32_t *written) {
    return by_shape(
        id,
        [&](auto record) TARN_INLINE_LAMBDA { return write_record(record, value, out, written); },
        [&](auto list) TARN_INLINE_LAMBDA { return write_list(list, value, out, written); },
        [&](auto other) TARN_INLINE_LAMBDA {
            const Type &type = type_of(other);
            return type.kind == Kind::bytes ? write_bytes(type, value, out, written)
                                            : write_number(type, value, out, written);
        });
}

} // namespace

template <class Id>
bool known_is_valid(Id id, const void *value) {
    if (type_of(id).acceptsAll != 0)
        return true;
    return by_shape(
        id, [&](auto record) TARN_INLINE_LAMBDA { return record_is_valid(record, value); },
        [&](auto list) TARN_INLINE_LAMBDA { return list_is_valid(list, value); },
        [&](auto other) TARN_INLINE_LAMBDA {
            const Type &type = type_of(other);
            return in_range(type, type.kind == Kind::bytes ? stored_count(value)
                                                           : load_number(type.kind, value));
        });
}

template <class Id>
bool write_known_tlv(Id id, const void *value, Output out, uint32_t *written) {
    *written = 0;
    if (out.left < headerSize)
        return false;
    store_header(out.at, id, size_of(id, value));
    *written = headerSize;
    out.skip(headerSize);
    uint32_t count = 0;
    if (!write_by_shape(id, value, out, &count))
        return false;
    *written = headerSize + count;
    return true;
}

uint32_t value_size(TypeId id, const void *value) {
    return with_type(id, [&](auto known) { return size_of(known, value); });
}

bool write_value(TypeId id, const void *value, Output out, uint32_t *written) {
    return with_type(id, [&](auto known) { return write_by_shape(known, value, out, written); });
}

bool any_is_valid(TypeId id, const void *value) {
    return with_type(id,
                     [&](auto known) TARN_INLINE_LAMBDA { return known_is_valid(known, value); });
}

bool write_any_tlv(TypeId id, const void *value, Output out, uint32_t *written) {
    return with_type(id, [&](auto known) TARN_INLINE_LAMBDA {
        return write_known_tlv(known, value, out, written);
    });
}

#ifdef TARN_BUILT_FOR_SPEED
#define OWN_CODEC(name_, ...)                                                                      \
    template bool known_is_valid(Constant<type##name_>, const void *);                             \
    template bool write_known_tlv(Constant<type##name_>, const void *, Output, uint32_t *);
#define RECORD OWN_CODEC
#define LIST   OWN_CODEC
#include "catalogue/primitive_ies.def"
#undef OWN_CODEC
#endif

} // namespace tarn
