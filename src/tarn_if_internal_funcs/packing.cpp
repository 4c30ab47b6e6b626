#include "tarn_if_internal_funcs/packing.h"

#include "tarn_if_api/objects.h"
#include "tarn_if_internal_funcs/sizes.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

bool write_children(TypeId id, const VelDllHead *children, Output *out);

// Sizes are not asked again on the way down: a composite's length is filled in once its children
// are written, so packing stays linear in the IEs however deep they nest.
uint32_t write_composite(const TarnIe *ie, TypeId id, Output out) {
    if (out.left < headerSize)
        return 0;
    Output rest = out;
    rest.skip(headerSize);
    if (!write_children(id, children_of(ie), &rest))
        return 0;
    const uint32_t size = out.left - rest.left;
    store16(out.at, id);
    store32(out.at + tagSize, size - headerSize);
    return size;
}

// Writes an IE of any kind but a number and returns its size, or returns 0 on failure.
uint32_t write_larger_ie(const TarnIe *ie, TypeId id, Output out) {
    const Kind kind = type_of(id).kind;
    if (is_composite(kind))
        return write_composite(ie, id, out);
    if (builtForSpeed && kind == Kind::bytes)
        return write_bytes_ie(id, value_of(ie), out);
    uint32_t size = 0;
    return write_tlv(id, value_of(ie), out, &size) ? size : 0;
}

bool write_elements(TypeId element, const VelDllHead *list, Output *out) {
    for (const TarnIe *ie = first_ie(list, TARN_CALLER(moduleInternal)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleInternal))) {
        const uint32_t size = ie->tag == element ? write_composite(ie, element, *out) : 0;
        if (size == 0)
            return false;
        out->skip(size);
    }
    return true;
}

bool write_children(TypeId id, const VelDllHead *children, Output *out) {
    const Type &type = type_of(id);
    if (type.kind == Kind::compositeList)
        return write_elements(type.array.item, children, out);
    return write_slots(type.slots, children, out);
}

} // namespace

bool write_slots(const SlotTable &table, const VelDllHead *list, Output *out) {
    SlotFinder slots(table);
    Output rest = *out;
    const TarnIe *ie = first_ie(list, TARN_CALLER(moduleInternal));
    for (; ie != nullptr; ie = next_ie(list, ie, TARN_CALLER(moduleInternal))) {
        const Slot *slot = slots.find(ie->tag);
        if (slot == nullptr)
            break;
        const uint32_t size = is_number(slot->kind)
                                  ? write_number_ie(slot->kind, slot->type,
                                                    load_number(slot->kind, value_of(ie)), rest)
                                  : write_larger_ie(ie, slot->type, rest);
        if (size == 0)
            break;
        rest.skip(size);
    }
    *out = rest;
    return ie == nullptr;
}

// The room is compared with the size by the object's own tag, while the tag written is that of the
// operation. An object with another tag may thus pass the first check and fail at its value, with
// the header written and counted.
uint32_t pack_primitive_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, written))
        return 0;
    *written = 0;
    if (ie_size(ie) > available)
        return 0;
    const uint32_t size = value_size(id, value_of(ie));
    if (size <= available - headerSize)
        return write_tlv(id, value_of(ie), Output{buffer, available}, written);
    store16(buffer, id);
    store32(buffer + tagSize, size);
    *written = headerSize;
    return 0;
}

// The length written here is the one by the object's own tag as well, and it is there even when a
// child fails: the bytes before that child are reported as written.
uint32_t pack_composite_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, written))
        return 0;
    *written = 0;
    const uint32_t size = ie_size(ie);
    if (size > available)
        return 0;
    store16(buffer, id);
    store32(buffer + tagSize, size - headerSize);
    Output rest{buffer, available};
    rest.skip(headerSize);
    const bool ok = write_children(id, children_of(ie), &rest);
    *written = available - rest.left;
    return ok;
}

} // namespace tarn
