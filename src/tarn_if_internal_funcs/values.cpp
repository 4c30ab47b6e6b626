#include "tarn_if_internal_funcs/values.h"

namespace tarn {

// ---- Sizes -------------------------------------------------------------------------------------

namespace {

uint32_t record_size(const Type &type, const void *value) {
    uint32_t size = 0;
    for (const Member &member : members_of(type))
        size = add_sizes(
            size, add_sizes(headerSize, value_size(member.type, at_offset(value, member.offset))));
    return size;
}

uint32_t list_size(const Type &type, const void *value) {
    const uint32_t stored = stored_count(value);
    const uint32_t count = stored < type.capacity ? stored : type.capacity;
    uint32_t size = 0;
    for (uint32_t i = 0; i < count; ++i)
        size = add_sizes(size, headerSize + value_size(type.array.item, item_of(type, value, i)));
    return size;
}

} // namespace

uint32_t value_size(TypeId id, const void *value) {
    const Type &type = type_of(id);
    if (type.fixedSize != 0)
        return type.fixedSize;
    if (type.kind == Kind::bytes)
        return stored_count(value);
    return type.kind == Kind::record ? record_size(type, value) : list_size(type, value);
}

// ---- Validity ----------------------------------------------------------------------------------

bool is_valid(TypeId id, const void *value) {
    const Type &type = type_of(id);
    if (type.acceptsAll != 0)
        return true;
    if (is_number(type.kind))
        return in_range(type, load_number(type.kind, value));
    if (type.kind == Kind::record) {
        for (const Member &member : members_of(type))
            if (!is_valid(member.type, at_offset(value, member.offset)))
                return false;
        return true;
    }
    const uint32_t count = stored_count(value);
    if (!in_range(type, count))
        return false;
    for (uint32_t i = 0; is_list(type.kind) && i < count; ++i)
        if (!is_valid(type.array.item, item_of(type, value, i)))
            return false;
    return true;
}

#ifndef TARN_BUILT_FOR_SPEED
uint32_t measure_any(TypeId id, const void *value) {
    return is_valid(id, value) ? headerSize + value_size(id, value) : 0;
}
#endif

// ---- Writing -----------------------------------------------------------------------------------

namespace {

bool write_number(const Type &type, const void *value, Output *out) {
    if (type.fixedSize > out->left)
        return false;
    store_wire(out->at, type.fixedSize, load_number(type.kind, value));
    out->skip(type.fixedSize);
    return true;
}

bool write_bytes(const Type &type, const void *value, Output *out) {
    const uint32_t length = stored_count(value);
    if (length > type.capacity || length > out->left)
        return false;
    memcpy(out->at, at_offset(value, sizeof(uint32_t)), length);
    out->skip(length);
    return true;
}

bool write_record(const Type &type, const void *value, Output *out) {
    for (const Member &member : members_of(type))
        if (!write_ie(member.type, at_offset(value, member.offset), out))
            return false;
    return true;
}

// An item that cannot be written does not keep the ones after it from being attempted; the list
// fails all the same.
bool write_list(const Type &type, const void *value, Output *out) {
    const uint32_t count = stored_count(value);
    bool all = count <= type.capacity;
    for (uint32_t i = 0; count <= type.capacity && i < count; ++i)
        all &= write_ie(type.array.item, item_of(type, value, i), out);
    return all;
}

} // namespace

bool write_value(TypeId id, const void *value, Output *out) {
    const Type &type = type_of(id);
    if (is_number(type.kind))
        return write_number(type, value, out);
    if (type.kind == Kind::bytes)
        return write_bytes(type, value, out);
    return type.kind == Kind::record ? write_record(type, value, out)
                                     : write_list(type, value, out);
}

bool write_ie(TypeId id, const void *value, Output *out) {
    if (out->left < headerSize)
        return false;
    store_header(out->at, id, value_size(id, value));
    out->skip(headerSize);
    Output rest = *out;
    if (!write_value(id, value, &rest))
        return false;
    *out = rest;
    return true;
}

#ifndef TARN_BUILT_FOR_SPEED
uint8_t *put_any(TypeId id, const void *value, uint8_t *at) {
    Output out{at, UINT32_MAX};
    write_ie(id, value, &out);
    return out.at;
}
#endif

} // namespace tarn
