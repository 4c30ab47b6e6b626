#include "walks.h"

#include "support/samples.h"

namespace fuzz {

namespace {

constexpr std::size_t tagSize = 2;
constexpr std::size_t headerSize = 6;

std::uint32_t load(const std::uint8_t *bytes, std::size_t width) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < width; ++i)
        number = number << 8 | bytes[i];
    return number;
}

bool is_same_run(const std::uint8_t *packed, const std::uint8_t *bytes, std::size_t size);

// One TLV and how many bytes it takes; 0 when it is not the same.
std::size_t same_tlv(const std::uint8_t *packed, const std::uint8_t *bytes, std::size_t size) {
    if (size < headerSize || std::memcmp(packed, bytes, tagSize) != 0)
        return 0;
    const Type *type = protocol::type_by_tag(load(packed, tagSize));
    const std::size_t length = load(packed + tagSize, 4);
    if (type == nullptr || length > size - headerSize)
        return 0;
    const bool lengthEnds = type->shape == Shape::scalar || type->shape == Shape::bytes ||
                            type->shape == Shape::compositeList;
    if (lengthEnds && load(bytes + tagSize, 4) != length)
        return 0;
    const bool isLeaf = type->shape == Shape::scalar || type->shape == Shape::bytes;
    const bool same =
        isLeaf ? std::equal(packed + headerSize, packed + headerSize + length, bytes + headerSize)
               : is_same_run(packed + headerSize, bytes + headerSize, length);
    return same ? headerSize + length : 0;
}

bool is_same_run(const std::uint8_t *packed, const std::uint8_t *bytes, std::size_t size) {
    while (size != 0) {
        const std::size_t taken = same_tlv(packed, bytes, size);
        if (taken == 0)
            return false;
        packed += taken;
        bytes += taken;
        size -= taken;
    }
    return true;
}

} // namespace

std::vector<TarnIe *> members_of(const VelDllHead *list) {
    std::vector<TarnIe *> all;
    for (VelDllNode *node = list->first; node != nullptr; node = node->next)
        all.push_back(reinterpret_cast<TarnIe *>(node));
    return all;
}

Block pack(const Message &type, const TarnMsg *msg) {
    Block packed(std::size_t(TarnSizeOfMsg(msg)));
    HOLDS(type.pack(msg, packed.data(), packed.size()) == 1);
    return packed;
}

Block pack(const Type &type, const void *ie) {
    Block packed(TarnSizeOfIe(static_cast<const TarnIe *>(ie)));
    std::uint32_t written = 0;
    HOLDS(type.packIe(ie, packed.data(), packed.size(), &written) == 1);
    HOLDS(written == packed.size());
    return packed;
}

bool all_are_valid(const VelDllHead *list) {
    for (const TarnIe *ie : members_of(list)) {
        const Type *type = protocol::type_by_tag(ie->tag);
        if (type == nullptr || type->isIeValid == nullptr || type->isIeValid(ie) == 0)
            return false;
        if (type->is_composite() && !all_are_valid(protocol::children_of(ie)))
            return false;
    }
    return true;
}

bool is_canonical_form(const Block &packed, const std::uint8_t *bytes, std::size_t size) {
    return packed.size() <= size && is_same_run(packed.data(), bytes, packed.size());
}

} // namespace fuzz
