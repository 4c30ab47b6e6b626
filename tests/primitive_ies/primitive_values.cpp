#include "primitive_ies/primitive_values.h"

#include <algorithm>
#include <cstring>

namespace samples {

namespace {

std::uint8_t *at(void *value, std::size_t offset) {
    return static_cast<std::uint8_t *>(value) + offset;
}

const std::uint8_t *at(const void *value, std::size_t offset) {
    return static_cast<const std::uint8_t *>(value) + offset;
}

void set_count(void *value, std::uint32_t count) {
    std::memcpy(value, &count, sizeof count);
}

void add_number_spoilers(const Type &type, std::vector<Spoiler> *all) {
    const std::uint32_t greatestHeld = type.valueSize == 1   ? 0xFF
                                       : type.valueSize == 2 ? 0xFFFF
                                                             : 0xFFFFFFFF;
    const auto add = [&](std::uint32_t number) {
        all->push_back({std::string(type.name) + "=" + std::to_string(number),
                        [&type, number](void *value) { store_number(type, value, number); }});
    };
    if (type.least > 0)
        for (std::uint32_t number : {type.least - 1, 0U})
            add(number);
    if (type.greatest < greatestHeld)
        for (std::uint32_t number : {type.greatest + 1, greatestHeld})
            add(number);
}

void add_count_spoilers(const Type &type, std::vector<Spoiler> *all) {
    std::vector<std::uint32_t> counts = {type.greatest + 1, type.capacity + 1, 0x80000000,
                                         0xFFFFFFFF};
    if (type.least > 0)
        counts.insert(counts.end(), {type.least - 1, 0});
    for (std::uint32_t count : counts)
        all->push_back({std::string(type.name) + "[" + std::to_string(count) + "]",
                        [count](void *value) { set_count(value, count); }});
}

void add_inner_spoilers(const Type &outer, const Type &inner, std::size_t offset,
                        std::vector<Spoiler> *all) {
    for (const Spoiler &spoiler : spoilers(inner))
        all->push_back({std::string(outer.name) + "." + spoiler.what,
                        [spoiler, offset](void *value) { spoiler.spoil(at(value, offset)); }});
}

} // namespace

std::vector<const Type *> primitives() {
    return types_where([](const Type &type) { return !type.is_composite(); });
}

std::vector<const Type *> primitive_ies() {
    return types_where([](const Type &type) { return !type.is_composite() && type.hasIe; });
}

Bytes make_value(const Type &type, Amount amount) {
    Random random(1);
    return make_node(type, amount, random).value;
}

Bytes make_ie(const Type &type, const Bytes &value) {
    Bytes ie(sizeof(TarnIe) + value.size(), 0xCD);
    reinterpret_cast<TarnIe *>(ie.data())->tag = std::uint16_t(type.tag);
    std::copy(value.begin(), value.end(), ie.begin() + sizeof(TarnIe));
    return ie;
}

std::vector<Spoiler> spoilers(const Type &type) {
    std::vector<Spoiler> all;
    if (type.shape == Shape::scalar)
        add_number_spoilers(type, &all);
    if (type.shape == Shape::bytes || type.shape == Shape::list)
        add_count_spoilers(type, &all);
    for (const protocol::Member &member : type.members)
        add_inner_spoilers(type, *member.type, member.offset, &all);
    if (type.shape == Shape::list)
        for (std::uint32_t i = 0; i < type.greatest; ++i)
            add_inner_spoilers(type, *type.item, type.itemsOffset + i * type.stride, &all);
    return all;
}

bool fits_its_arrays(const Type &type, const void *value) {
    if (type.shape == Shape::scalar)
        return true;
    for (const protocol::Member &member : type.members)
        if (!fits_its_arrays(*member.type, at(value, member.offset)))
            return false;
    if (type.shape == Shape::record)
        return true;
    if (count_of(value) > type.capacity)
        return false;
    for (std::uint32_t i = 0; type.shape == Shape::list && i < count_of(value); ++i)
        if (!fits_its_arrays(*type.item, at(value, type.itemsOffset + i * type.stride)))
            return false;
    return true;
}

std::string show(const Type &type, const void *value) {
    std::string text = type.name;
    if (type.shape == Shape::scalar)
        return text + "=" + std::to_string(load_number(type, value));
    if (type.shape == Shape::record) {
        for (const protocol::Member &member : type.members)
            text += "." + show(*member.type, at(value, member.offset));
        return text;
    }
    const std::uint32_t count = count_of(value);
    text += "[" + std::to_string(count) + "]";
    for (std::uint32_t i = 0; i < std::min(count, type.capacity); ++i)
        text += type.shape == Shape::bytes
                    ? " " + std::to_string(*at(value, 4 + i))
                    : " " + show(*type.item, at(value, type.itemsOffset + i * type.stride));
    return text;
}

void put_header(Bytes *bytes, std::uint32_t tag, std::uint32_t length) {
    for (unsigned shift : {8U, 0U})
        bytes->push_back(std::uint8_t(tag >> shift));
    for (unsigned shift : {24U, 16U, 8U, 0U})
        bytes->push_back(std::uint8_t(length >> shift));
}

Bytes ie_wire(const Type &type, const void *value) {
    return encode(Node{&type, Bytes(at(value, 0), at(value, type.valueSize)), {}});
}

std::vector<std::uint32_t> boundaries(const Bytes &wire) {
    std::vector<std::uint32_t> found = {0};
    while (found.back() < wire.size()) {
        const std::uint32_t start = found.back();
        std::uint32_t length = 0;
        for (unsigned i = 2; i < 6; ++i)
            length = length << 8 | wire[start + i];
        found.push_back(start + 6 + length);
    }
    return found;
}

bool Room::is_untouched_behind(std::size_t count) const {
    return block_.front() == filler &&
           std::all_of(block_.begin() + 1 + std::ptrdiff_t(count), block_.end(),
                       [](std::uint8_t byte) { return byte == filler; });
}

} // namespace samples
