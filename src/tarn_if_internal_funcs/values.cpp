#include "tarn_if_internal_funcs/values.h"

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

const Member &member_of(const Type &record, unsigned index) {
    return catalogue.members[record.slots.first + index];
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
inline bool write_nested(Kind kind, TypeId id, const void *value, Output out, uint32_t *written) {
    if (builtForSpeed && is_number(kind)) {
        *written = write_number_ie(kind, id, load_number(kind, value), out);
        if (*written != 0)
            return true;
    }
    return write_tlv(id, value, out, written);
}

inline bool read_nested(Kind kind, TypeId id, void *value, Input in, uint32_t *consumed) {
    uint32_t number = 0;
    if (builtForSpeed && is_number(kind) && in.has_tag(id)) {
        *consumed = read_number_ie(kind, in, &number);
        if (*consumed != 0) {
            store_number(kind, value, number);
            return true;
        }
    }
    return read_tlv(id, value, in, consumed);
}

// ---- Records -----------------------------------------------------------------------------------

uint32_t record_size(const Type &type, const void *value) {
    uint32_t size = 0;
    for (unsigned i = 0; i < type.slots.count; ++i) {
        const Member &member = member_of(type, i);
        size = add_sizes(size, headerSize);
        size = add_sizes(size, value_size(member.type, at_offset(value, member.offset)));
    }
    return size;
}

bool write_record(const Type &type, const void *value, Output out, uint32_t *written) {
    *written = 0;
    for (unsigned i = 0; i < type.slots.count; ++i) {
        const Member &member = member_of(type, i);
        uint32_t count = 0;
        const bool ok =
            write_nested(member.kind, member.type, at_offset(value, member.offset), out, &count);
        *written += count;
        if (!ok)
            return false;
        out.skip(count);
    }
    return true;
}

// A member is bounded by the buffer and not by the record's length, and a record counts as used up
// once the bytes read reach or pass that length. Bytes after the last member are not looked at.
bool read_record(const Type &type, void *value, uint32_t length, Input in, uint32_t *consumed) {
    *consumed = 0;
    if (length > in.left)
        return false;
    for (unsigned i = 0; i < type.slots.count; ++i) {
        if (*consumed >= length)
            return false;
        const Member &member = member_of(type, i);
        uint32_t count = 0;
        const bool ok =
            read_nested(member.kind, member.type, at_offset(value, member.offset), in, &count);
        *consumed += count;
        if (!ok)
            return false;
        in.skip(count);
    }
    return true;
}

bool record_is_valid(const Type &type, const void *value) {
    for (unsigned i = 0; i < type.slots.count; ++i) {
        const Member &member = member_of(type, i);
        if (!value_is_valid(member.type, at_offset(value, member.offset)))
            return false;
    }
    return true;
}

// ---- Lists -------------------------------------------------------------------------------------

uint32_t list_size(const Type &type, const void *value) {
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
bool write_list(const Type &type, const void *value, Output out, uint32_t *written) {
    const uint32_t items = stored_count(value);
    *written = 0;
    if (items > type.capacity)
        return false;
    bool all = true;
    const Kind kind = type_of(type.array.item).kind;
    for (uint32_t i = 0; i < items; ++i) {
        uint32_t count = 0;
        all &= write_nested(kind, type.array.item, item_of(type, value, i), out, &count);
        *written += count;
        out.skip(count);
    }
    return all;
}

// Items are bounded by the buffer; the list ends when its length is used up, that is reached or
// passed. More items than the array holds fail with the value as it was.
bool read_list(const Type &type, void *value, uint32_t length, Input in, uint32_t *consumed) {
    *consumed = 0;
    if (length > in.left)
        return false;
    alignas(4) uint8_t former[listValueLimit];
    memcpy(former, value, type.valueSize);
    const Kind kind = type_of(type.array.item).kind;
    uint32_t items = 0;
    set_stored_count(value, 0);
    while (*consumed < length) {
        if (items == type.capacity) {
            memcpy(value, former, type.valueSize);
            return false;
        }
        uint32_t count = 0;
        const bool ok = read_nested(kind, type.array.item, item_of(type, value, items), in, &count);
        *consumed += count;
        if (!ok)
            return false;
        in.skip(count);
        set_stored_count(value, ++items);
    }
    return true;
}

bool list_is_valid(const Type &type, const void *value) {
    const uint32_t items = stored_count(value);
    if (!in_range(type, items))
        return false;
    if (type_of(type.array.item).acceptsAll != 0)
        return true;
    for (uint32_t i = 0; i < items; ++i)
        if (!value_is_valid(type.array.item, item_of(type, value, i)))
            return false;
    return true;
}

// ---- One switch per verb -----------------------------------------------------------------------

inline uint32_t size_by_kind(const Type &type, const void *value) {
    if (type.fixedSize != 0)
        return type.fixedSize;
    if (type.kind == Kind::bytes)
        return stored_count(value);
    return type.kind == Kind::record ? record_size(type, value) : list_size(type, value);
}

inline bool write_by_kind(const Type &type, const void *value, Output out, uint32_t *written) {
    switch (type.kind) {
    case Kind::bytes:
        return write_bytes(type, value, out, written);
    case Kind::record:
        return write_record(type, value, out, written);
    case Kind::list:
        return write_list(type, value, out, written);
    default:
        return write_number(type, value, out, written);
    }
}

inline bool read_by_kind(const Type &type, void *value, uint32_t length, Input in,
                         uint32_t *consumed) {
    switch (type.kind) {
    case Kind::bytes:
        return read_bytes(type, value, length, in, consumed);
    case Kind::record:
        return read_record(type, value, length, in, consumed);
    case Kind::list:
        return read_list(type, value, length, in, consumed);
    default:
        return read_number(type, value, length, in, consumed);
    }
}

} // namespace

uint32_t value_size(TypeId id, const void *value) {
    return size_by_kind(type_of(id), value);
}

bool write_value(TypeId id, const void *value, Output out, uint32_t *written) {
    return write_by_kind(type_of(id), value, out, written);
}

bool read_value(TypeId id, void *value, uint32_t length, Input in, uint32_t *consumed) {
    return read_by_kind(type_of(id), value, length, in, consumed);
}

bool value_is_valid(TypeId id, const void *value) {
    const Type &type = type_of(id);
    if (type.acceptsAll != 0)
        return true;
    switch (type.kind) {
    case Kind::bytes:
        return in_range(type, stored_count(value));
    case Kind::record:
        return record_is_valid(type, value);
    case Kind::list:
        return list_is_valid(type, value);
    default:
        return in_range(type, load_number(type.kind, value));
    }
}

bool write_tlv(TypeId id, const void *value, Output out, uint32_t *written) {
    *written = 0;
    if (out.left < headerSize)
        return false;
    const Type &type = type_of(id);
    store16(out.at, id);
    store32(out.at + tagSize, size_by_kind(type, value));
    *written = headerSize;
    out.skip(headerSize);
    uint32_t count = 0;
    if (!write_by_kind(type, value, out, &count))
        return false;
    *written = headerSize + count;
    return true;
}

bool read_tlv(TypeId id, void *value, Input in, uint32_t *consumed) {
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
    if (!read_by_kind(type_of(id), value, length, in, &count))
        return false;
    *consumed = headerSize + count;
    return true;
}

} // namespace tarn
