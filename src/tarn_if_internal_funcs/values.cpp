#include "tarn_if_internal_funcs/values.h"

#include "tarn_if_internal_funcs/constants.h"

namespace tarn {

namespace {

// ---- Access to what a value record holds -------------------------------------------------------

void set_stored_count(void *value, uint32_t count) {
    *static_cast<uint32_t *>(value) = count;
}

const uint8_t *bytes_of(const void *value) {
    return static_cast<const uint8_t *>(value) + sizeof(uint32_t);
}

const void *at_offset(const void *value, uint32_t offset) {
    return static_cast<const uint8_t *>(value) + offset;
}

void *at_offset(void *value, uint32_t offset) {
    return static_cast<uint8_t *>(value) + offset;
}

const void *item_of(const Type &list, const void *value, uint32_t index) {
    return at_offset(value, list.array.offset + index * list.array.stride);
}

void *item_of(const Type &list, void *value, uint32_t index) {
    return at_offset(value, list.array.offset + index * list.array.stride);
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

// A member of a record whose fields are constants.
template <unsigned index>
struct FixedMember {
    static constexpr Constant<catalogue.members[index].type> type{};
    static constexpr uint16_t offset = catalogue.members[index].offset;
};

template <unsigned first, size_t... index, class Visit>
TARN_INLINE bool visit_fixed_members(std::index_sequence<index...>, Visit visit) {
    return (visit(FixedMember<first + index>()) && ...);
}

// Calls `visit` with each member of the record as long as it returns true.
template <class Id, class Visit>
TARN_INLINE bool each_member(Id record, Visit visit) {
    if constexpr (isConstant<Id>) {
        constexpr SlotTable table = type_of(Id::value).slots;
        return visit_fixed_members<table.first>(std::make_index_sequence<table.count>(), visit);
    } else {
        const SlotTable &table = type_of(record).slots;
        for (unsigned i = 0; i < table.count; ++i)
            if (!visit(catalogue.members[table.first + i]))
                return false;
        return true;
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

bool read_number(const Type &type, void *value, uint32_t length, Input in, uint32_t *consumed) {
    const uint32_t width = type.fixedSize;
    if (length != width || width > in.left)
        return false;
    store_number(type.kind, value, load_wire(in.at, width));
    *consumed = width;
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

// Any length that the array holds is taken: whether it is in range is the validator's affair, so
// that a caller can look at what a peer sent. Only the bytes that came are copied.
bool read_bytes(const Type &type, void *value, uint32_t length, Input in, uint32_t *consumed) {
    if (length > type.capacity || length > in.left)
        return false;
    set_stored_count(value, length);
    memcpy(at_offset(value, sizeof(uint32_t)), in.at, length);
    *consumed = length;
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

template <class Id>
TARN_INLINE bool read_nested(Id id, void *value, Input *in) {
    const Kind kind = type_of(id).kind;
    if constexpr (builtForSpeed) {
        uint32_t number = 0;
        const uint32_t size = is_number(kind) ? read_number_ie(kind, id, *in, &number) : 0;
        in->skip(size);
        if (size != 0) [[likely]] {
            store_number(kind, value, number);
            return true;
        }
    }
    uint32_t consumed = 0;
    const bool ok = read_known_tlv(id, value, *in, &consumed);
    in->skip(consumed);
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

// A member is bounded by the buffer and not by the record's length, and a record counts as used up
// once the bytes read reach or pass that length. Bytes after the last member are not looked at.
template <class Id>
TARN_INLINE bool read_record(Id id, void *value, uint32_t length, Input in, uint32_t *consumed) {
    Input rest = in;
    const bool ok =
        length <= in.left && each_member(id, [&](const auto &member) TARN_INLINE_LAMBDA {
            return in.left - rest.left < length &&
                   read_nested(member.type, at_offset(value, member.offset), &rest);
        });
    *consumed = in.left - rest.left;
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

// Items are bounded by the buffer; the list ends when its length is used up, that is reached or
// passed. More items than the array holds fail with the value as it was.
template <class Id>
TARN_INLINE bool read_list(Id id, void *value, uint32_t length, Input in, uint32_t *consumed) {
    *consumed = 0;
    if (length > in.left)
        return false;
    const Type &type = type_of(id);
    alignas(4) uint8_t former[listValueLimit];
    memcpy(former, value, type.valueSize);
    Input rest = in;
    uint32_t items = 0;
    bool ok = true;
    while (ok && in.left - rest.left < length) {
        if (items == type.capacity) {
            memcpy(value, former, type.valueSize);
            *consumed = in.left - rest.left;
            return false;
        }
        ok = read_nested(element_of(id), item_of(type, value, items), &rest);
        items += ok ? 1 : 0;
    }
    set_stored_count(value, items);
    *consumed = in.left - rest.left;
    return ok;
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

template <class Id>
TARN_INLINE bool read_by_shape(Id id, void *value, uint32_t length, Input in, uint32_t *consumed) {
    return by_shape(
        id,
        [&](auto record)
            TARN_INLINE_LAMBDA { return read_record(record, value, length, in, consumed); },
        [&](auto list) TARN_INLINE_LAMBDA { return read_list(list, value, length, in, consumed); },
        [&](auto other) TARN_INLINE_LAMBDA {
            const Type &type = type_of(other);
            return type.kind == Kind::bytes ? read_bytes(type, value, length, in, consumed)
                                            : read_number(type, value, length, in, consumed);
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

template <class Id>
bool read_known_tlv(Id id, void *value, Input in, uint32_t *consumed) {
    *consumed = 0;
    if (!in.has_tag(id))
        return false;
    *consumed = tagSize;
    if (in.left < headerSize)
        return false;
    *consumed = headerSize;
    const uint32_t length = load32(in.at + tagSize);
    in.skip(headerSize);
    uint32_t count = 0;
    if (!read_by_shape(id, value, length, in, &count))
        return false;
    *consumed = headerSize + count;
    return true;
}

uint32_t value_size(TypeId id, const void *value) {
    return with_type(id, [&](auto known) { return size_of(known, value); });
}

bool write_value(TypeId id, const void *value, Output out, uint32_t *written) {
    return with_type(id, [&](auto known) { return write_by_shape(known, value, out, written); });
}

bool read_value(TypeId id, void *value, uint32_t length, Input in, uint32_t *consumed) {
    return with_type(id, [&](auto known) TARN_INLINE_LAMBDA {
        return read_by_shape(known, value, length, in, consumed);
    });
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

bool read_any_tlv(TypeId id, void *value, Input in, uint32_t *consumed) {
    return with_type(id, [&](auto known) TARN_INLINE_LAMBDA {
        return read_known_tlv(known, value, in, consumed);
    });
}

#ifdef TARN_BUILT_FOR_SPEED
#define OWN_CODEC(name_, ...)                                                                      \
    template bool known_is_valid(Constant<type##name_>, const void *);                             \
    template bool write_known_tlv(Constant<type##name_>, const void *, Output, uint32_t *);        \
    template bool read_known_tlv(Constant<type##name_>, void *, Input, uint32_t *);
#define RECORD OWN_CODEC
#define LIST   OWN_CODEC
#include "catalogue/primitive_ies.def"
#undef OWN_CODEC
#endif

} // namespace tarn
