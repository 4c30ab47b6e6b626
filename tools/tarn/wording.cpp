#include "tarn/wording.h"

namespace tool {

namespace {

constexpr char hexDigits[] = "0123456789abcdef";

// What a count counts.
const char *unit_of(const Type &type) {
    if (type.shape == Shape::bytes)
        return "byte";
    return type.shape == Shape::list ? "item" : "element";
}

std::string scalar_words(const Type &type) {
    std::string words = counted(type.width, "byte");
    const std::uint32_t greatest = greatest_number(type);
    const std::uint32_t widest = 0xFFFFFFFFU >> (8 * (4 - type.width));
    if (type.least == 0 && greatest == widest)
        return words + ", any value";
    return words + ", " + between(type.least, greatest);
}

} // namespace

std::string label(const Type &type) {
    return type.name + (" [" + std::to_string(type.tag) + "]");
}

std::string label_of_tag(std::uint32_t tag) {
    const Type *type = protocol::type_by_tag(tag);
    return type != nullptr ? label(*type) : "unknown tag " + std::to_string(tag);
}

std::string hex_number(std::uint32_t number, unsigned width) {
    std::string text = "0x";
    for (unsigned shift = width * 8; shift != 0; shift -= 4)
        text += hexDigits[number >> (shift - 4) & 15];
    return text;
}

std::string hex_bytes(const std::uint8_t *bytes, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        if (i != 0)
            text += ' ';
        text += hexDigits[bytes[i] >> 4];
        text += hexDigits[bytes[i] & 15];
    }
    return text;
}

std::string compact_hex(const std::uint8_t *bytes, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += hexDigits[bytes[i] >> 4];
        text += hexDigits[bytes[i] & 15];
    }
    return text;
}

std::string byte_words(std::uint32_t offset) {
    const unsigned width = offset <= 0xFF ? 1 : offset <= 0xFFFF ? 2 : 4;
    return "byte " + std::to_string(offset) + " (" + hex_number(offset, width) + ")";
}

std::string counted(std::uint64_t count, std::string_view thing) {
    return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

std::string between(std::uint32_t least, std::uint32_t greatest) {
    if (least == greatest)
        return "exactly " + std::to_string(least);
    return std::to_string(least) + " to " + std::to_string(greatest);
}

std::string value_words(const Type &type) {
    const std::string range = between(type.least, type.greatest);
    switch (type.shape) {
    case Shape::scalar:
        return scalar_words(type);
    case Shape::bytes:
        return range + " bytes";
    case Shape::record:
        return counted(type.members.size(), "member");
    case Shape::sequence:
        return counted(type.slots.size(), "slot");
    default:
        return range + " " + unit_of(type) + "s of " + label(*type.item);
    }
}

std::string number_fault(const Type &type, std::int64_t number) {
    if (number < std::int64_t(type.least))
        return std::to_string(number) + " is below " + std::to_string(type.least);
    if (number > std::int64_t(greatest_number(type)))
        return std::to_string(number) + " is above " + std::to_string(greatest_number(type));
    return {};
}

std::string count_fault(const Type &type, std::uint64_t count) {
    if (count >= type.least && count <= type.greatest)
        return {};
    return counted(count, unit_of(type)) + ", where " + between(type.least, type.greatest) +
           " are allowed";
}

std::string needed_words(const Slot &slot) {
    return std::string("missing: it is required where ") + slot.condition;
}

std::string uncalled_words(const Slot &slot) {
    return std::string("not allowed here: it stands only where ") + slot.condition;
}

} // namespace tool
