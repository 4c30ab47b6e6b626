#include "support/samples.h"

#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>

namespace samples {

std::uint32_t Random::next() { // splitmix64
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    return std::uint32_t((mixed ^ (mixed >> 31)) >> 32);
}

std::uint32_t Random::between(std::uint32_t least, std::uint32_t greatest) {
    return std::uint32_t(least + next() % (std::uint64_t{greatest} - least + 1));
}

std::vector<const Type *> composites() {
    return types_where([](const Type &candidate) { return candidate.is_composite(); });
}

std::vector<const Type *> sequences() {
    return types_where([](const Type &candidate) { return candidate.shape == Shape::sequence; });
}

std::vector<const Type *> composite_lists() {
    return types_where(
        [](const Type &candidate) { return candidate.shape == Shape::compositeList; });
}

const Type &type(std::string_view name) {
    return *protocol::type_by_name(name);
}

const Message &message(std::string_view name) {
    return *protocol::message_by_name(name);
}

std::vector<std::uint16_t> tags_without_ie() {
    std::vector<std::uint16_t> tags;
    for (std::uint32_t tag = 0; tag <= 0xFFFF; ++tag)
        if (const Type *found = protocol::type_by_tag(tag); found == nullptr || !found->hasIe)
            tags.push_back(std::uint16_t(tag));
    return tags;
}

std::vector<std::uint32_t> unknown_ids() {
    std::vector<std::uint32_t> found;
    for (std::uint32_t id = 0; id < 256; ++id)
        if (protocol::message_by_id(id) == nullptr)
            found.push_back(id);
    return found;
}

bool is_conditional(const Slot &slot) {
    return slot.presence == Presence::conditional || slot.presence == Presence::repeated;
}

bool has_conditional(const std::vector<Slot> &slots) {
    return std::any_of(slots.begin(), slots.end(),
                       [](const Slot &slot) { return slot.condition != nullptr; });
}

bool is_deciding(const Type &type) {
    const auto &all = protocol::conditions();
    return std::any_of(all.begin(), all.end(),
                       [&type](const auto &condition) { return condition.tag == type.tag; });
}

bool operator==(const Node &a, const Node &b) {
    return a.type == b.type && encode(a) == encode(b);
}

std::ostream &operator<<(std::ostream &out, const Node &node) {
    out << node.type->name;
    if (!node.type->is_composite()) {
        out << '=' << std::hex;
        for (const std::uint8_t byte : encode_value(*node.type, node.value.data()))
            out << unsigned(byte) << '.';
        return out << std::dec;
    }
    out << '{';
    for (const Node &child : node.children)
        out << ' ' << child;
    return out << " }";
}

std::uint32_t load_number(const Type &type, const void *value) {
    if (type.valueSize == 1)
        return *static_cast<const std::uint8_t *>(value);
    if (type.valueSize == 2)
        return *static_cast<const std::uint16_t *>(value);
    return *static_cast<const std::uint32_t *>(value);
}

void store_number(const Type &type, void *value, std::uint32_t number) {
    if (type.valueSize == 1)
        *static_cast<std::uint8_t *>(value) = std::uint8_t(number);
    else if (type.valueSize == 2)
        *static_cast<std::uint16_t *>(value) = std::uint16_t(number);
    else
        *static_cast<std::uint32_t *>(value) = number;
}

std::uint32_t count_of(const void *value) {
    return *static_cast<const std::uint32_t *>(value);
}

namespace {

std::uint32_t pick(const Type &type, Amount amount, Random &random) {
    switch (amount) {
    case Amount::least:
        return type.least;
    case Amount::slim:
        return std::min(std::max(type.least, 1U), type.greatest);
    case Amount::random:
        return random.between(type.least, type.greatest);
    default:
        return type.greatest;
    }
}

std::uint32_t pick_number(const Type &type, Amount amount, Random &random) {
    const std::uint32_t sent = type.width == 4 ? 0xFFFFFFFF : (1U << (8 * type.width)) - 1;
    switch (amount) {
    case Amount::least:
        return type.least;
    case Amount::most:
        return std::min(type.greatest, sent);
    case Amount::full:
        return random.between(type.least, std::min(type.greatest, sent));
    default:
        return random.between(type.least, type.greatest);
    }
}

void make_value(const Type &type, void *value, Amount amount, Random &random) {
    auto *bytes = static_cast<std::uint8_t *>(value);
    if (type.shape == Shape::scalar) {
        store_number(type, value, pick_number(type, amount, random));
    } else if (type.shape == Shape::bytes) {
        const std::uint32_t length = pick(type, amount, random);
        std::memcpy(value, &length, sizeof length);
        for (unsigned i = 0; i < type.capacity; ++i)
            bytes[sizeof length + i] = std::uint8_t(random.next());
    } else if (type.shape == Shape::record) {
        for (const protocol::Member &member : type.members)
            make_value(*member.type, bytes + member.offset, amount, random);
    } else {
        const std::uint32_t count = pick(type, amount, random);
        std::memcpy(value, &count, sizeof count);
        for (unsigned i = 0; i < type.capacity; ++i)
            make_value(*type.item, bytes + type.itemsOffset + i * type.stride, amount, random);
    }
}

// A number for the IE with this tag that calls for no IE, or for those that take most.
std::uint32_t deciding_number(std::uint32_t tag, const std::vector<Slot> &slots, Amount amount,
                              Random &random) {
    const auto called = [&](std::uint32_t number) {
        std::size_t taken = 0;
        for (const Slot &slot : slots)
            if (slot.condition != nullptr && slot.condition->tag == tag &&
                slot.condition->counts(number))
                taken += slot.type->recordSize + slot.type->ieSize;
        return taken;
    };
    const auto fewer = [&](std::uint32_t a, std::uint32_t b) { return called(a) < called(b); };
    static constexpr std::uint32_t numbers[] = {0, 1, 2, 3, 4};
    if (amount == Amount::random)
        return random.between(0, 4);
    return amount == Amount::least
               ? *std::min_element(std::begin(numbers), std::end(numbers), fewer)
               : *std::max_element(std::begin(numbers), std::end(numbers), fewer);
}

} // namespace

bool called_for(const Slot &slot, const Nodes &before) {
    for (const Node &node : before)
        if (node.type->tag == slot.condition->tag)
            return slot.condition->counts(number_of(node));
    return false;
}

Node make_node(const Type &type, Amount amount, Random &random) {
    Node node{&type, {}, {}};
    if (type.shape == Shape::sequence) {
        node.children = make_nodes(type.slots, amount, random);
    } else if (type.shape == Shape::compositeList) {
        for (std::uint32_t count = pick(type, amount, random); count != 0; --count)
            node.children.push_back(make_node(*type.item, amount, random));
    } else {
        node.value.resize(type.valueSize);
        make_value(type, node.value.data(), amount, random);
    }
    return node;
}

Nodes make_nodes(const std::vector<Slot> &slots, Amount amount, Random &random,
                 std::optional<std::uint32_t> deciding) {
    Nodes nodes;
    for (const Slot &slot : slots) {
        const bool wanted =
            slot.presence == Presence::mandatory ||
            (slot.presence == Presence::optional
                 ? amount != Amount::least && (amount != Amount::random || random.coin())
                 : called_for(slot, nodes));
        if (!wanted)
            continue;
        nodes.push_back(make_node(*slot.type, amount, random));
        if (has_conditional(slots) && is_deciding(*slot.type))
            set_number(nodes.back(),
                       deciding.value_or(deciding_number(slot.type->tag, slots, amount, random)));
    }
    return nodes;
}

Nodes make_message(const Message &message, Amount amount, Random &random,
                   std::optional<std::uint32_t> deciding) {
    Nodes nodes = make_nodes(message.slots, amount, random, deciding);
    set_number(nodes.front(), message.id);
    return nodes;
}

namespace {

bool make_value_invalid(const Type &type, void *value, Random &random) {
    auto *bytes = static_cast<std::uint8_t *>(value);
    if (type.shape == Shape::record) {
        for (const protocol::Member &member : type.members)
            if (make_value_invalid(*member.type, bytes + member.offset, random))
                return true;
        return false;
    }
    if (type.shape == Shape::list && count_of(value) != 0 &&
        make_value_invalid(*type.item, bytes + type.itemsOffset, random))
        return true;
    const std::uint32_t limit = type.shape == Shape::scalar
                                    ? std::uint32_t((std::uint64_t{1} << (8 * type.width)) - 1)
                                    : type.capacity;
    std::uint32_t number = 0;
    if (type.greatest < limit)
        number = random.between(type.greatest + 1, limit);
    else if (type.least > 0)
        number = random.between(0, type.least - 1);
    else
        return false;
    if (type.shape == Shape::scalar)
        store_number(type, value, number);
    else
        std::memcpy(value, &number, sizeof number); // the count
    return true;
}

} // namespace

std::optional<Node> make_invalid(const Type &type, Random &random) {
    if (type.is_composite())
        return {};
    Node node = make_node(type, Amount::random, random);
    if (!make_value_invalid(type, node.value.data(), random))
        return {};
    return node;
}

Node number_node(std::string_view type, std::uint32_t number) {
    Node node{protocol::type_by_name(type), {}, {}};
    node.value.resize(node.type->valueSize);
    set_number(node, number);
    return node;
}

std::uint32_t number_of(const Node &node) {
    return load_number(*node.type, node.value.data());
}

void set_number(Node &node, std::uint32_t number) {
    store_number(*node.type, node.value.data(), number);
}

// ---- Bytes -------------------------------------------------------------------------------------

namespace {

void put_number(Bytes &out, std::uint32_t number, unsigned width) {
    while (width-- != 0)
        out.push_back(std::uint8_t(number >> (8 * width)));
}

void put_tlv(Bytes &out, std::uint32_t tag, const Bytes &value) {
    put_number(out, tag, 2);
    put_number(out, std::uint32_t(value.size()), 4);
    out.insert(out.end(), value.begin(), value.end());
}

} // namespace

Bytes encode_value(const Type &type, const void *value) {
    const auto *bytes = static_cast<const std::uint8_t *>(value);
    Bytes out;
    if (type.shape == Shape::scalar) {
        put_number(out, load_number(type, value), type.width);
    } else if (type.shape == Shape::bytes) {
        const std::uint32_t length = std::min(count_of(value), type.capacity);
        out.assign(bytes + 4, bytes + 4 + length);
    } else if (type.shape == Shape::record) {
        for (const protocol::Member &member : type.members)
            put_tlv(out, member.type->tag, encode_value(*member.type, bytes + member.offset));
    } else {
        for (unsigned i = 0; i < std::min(count_of(value), type.capacity); ++i)
            put_tlv(out, type.item->tag,
                    encode_value(*type.item, bytes + type.itemsOffset + i * type.stride));
    }
    return out;
}

Bytes encode(const Node &node) {
    Bytes out;
    put_tlv(out, node.type->tag,
            node.type->is_composite() ? encode(node.children)
                                      : encode_value(*node.type, node.value.data()));
    return out;
}

Bytes encode(const Nodes &nodes) {
    Bytes out;
    for (const Node &node : nodes) {
        const Bytes one = encode(node);
        out.insert(out.end(), one.begin(), one.end());
    }
    return out;
}

Bytes from_hex(std::string_view digits) {
    const auto worth = [](char c) { return unsigned(c <= '9' ? c - '0' : c - 'A' + 10); };
    Bytes out;
    std::string packed(digits);
    std::erase(packed, ' ');
    for (std::size_t i = 0; i + 1 < packed.size(); i += 2)
        out.push_back(std::uint8_t(worth(packed[i]) << 4 | worth(packed[i + 1])));
    return out;
}

Exact::Exact(const Bytes &bytes, std::size_t count)
    : block_(new std::uint8_t[count]), size_(std::uint32_t(count)) {
    std::copy_n(bytes.begin(), count, block_.get());
}

} // namespace samples
