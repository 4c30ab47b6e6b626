#include "values.h"

#include <algorithm>

namespace info {

std::uint32_t number_of(const TarnInfoType &type, const void *value) {
    if (type.valueSize == 4)
        return *static_cast<const std::uint32_t *>(value);
    if (type.valueSize == 2)
        return *static_cast<const std::uint16_t *>(value);
    return *static_cast<const std::uint8_t *>(value);
}

namespace {

// Byte strings and lists begin with it.
std::uint32_t count_of(const void *value) {
    return *static_cast<const std::uint32_t *>(value);
}

const void *item_at(const TarnInfoType &list, const void *value, std::uint32_t index) {
    return at_offset(value, list.itemsOffset + std::size_t{index} * list.stride);
}

// A code word is cut off on the wire, so none is above.
bool is_above(const TarnInfoType &type, std::uint32_t number) {
    const bool isCode = type.width == 2 && type.valueSize == 4;
    return !isCode && number > type.greatest;
}

Finding find_bad_number(const TarnInfoType &type, std::uint32_t number, const std::string &path,
                        std::uint32_t at) {
    TarnInfoWords words{};
    words.type = &type;
    words.number = number;
    if (number < type.least)
        return make_finding(at, TarnInfoBelowLeast, path, words);
    return is_above(type, number) ? make_finding(at, TarnInfoAboveGreatest, path, words)
                                  : Finding{};
}

} // namespace

std::uint32_t size_of_value(const TarnInfoType &type, const void *value) {
    std::uint32_t size = 0;
    switch (type.shape) {
    case TarnInfoNumber:
        return type.width;
    case TarnInfoBytes:
        return std::min(count_of(value), type.capacity);
    case TarnInfoRecord:
        for (const TarnInfoSlot &member : slots_of(type))
            size += headerSize + size_of_value(*member.type, at_offset(value, member.offset));
        return size;
    default:
        for (std::uint32_t i = 0; i < count_of(value) && i < type.capacity; ++i)
            size += headerSize + size_of_value(*type.item, item_at(type, value, i));
        return size;
    }
}

Finding find_count_fault(const TarnInfoType &type, std::uint32_t count, const std::string &path,
                         std::uint32_t at) {
    if (count >= type.least && count <= type.greatest)
        return {};
    TarnInfoWords words{};
    words.type = &type;
    words.number = count;
    return make_finding(at, TarnInfoCountOutOfRange, path, words);
}

Finding find_invalid(const TarnInfoType &type, const void *value, const std::string &path,
                     std::uint32_t at, Offsets offsets) {
    const bool isWire = offsets == Offsets::onTheWire;
    std::uint32_t part = isWire ? at + headerSize : at; // where the next part stands
    if (type.shape == TarnInfoNumber)
        return find_bad_number(type, number_of(type, value), path, part);
    if (type.shape == TarnInfoBytes)
        return find_count_fault(type, count_of(value), path, part);
    if (type.shape == TarnInfoList) {
        if (Finding fault = find_count_fault(type, count_of(value), path, part))
            return fault;
        for (std::uint32_t i = 0; i < count_of(value); ++i) {
            const void *item = item_at(type, value, i);
            if (!isWire)
                part = at + type.itemsOffset + i * type.stride;
            if (Finding fault = find_invalid(*type.item, item, join(path, i), part, offsets))
                return fault;
            part += headerSize + size_of_value(*type.item, item);
        }
        return {};
    }
    for (const TarnInfoSlot &member : slots_of(type)) {
        const void *held = at_offset(value, member.offset);
        if (!isWire)
            part = at + member.offset;
        if (Finding fault =
                find_invalid(*member.type, held, join(path, member.name), part, offsets))
            return fault;
        part += headerSize + size_of_value(*member.type, held);
    }
    return {};
}

} // namespace info
