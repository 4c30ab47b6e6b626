#include "support/model.h"

#include <algorithm>
#include <cstring>

namespace model {

namespace {

// ---- Values ------------------------------------------------------------------------------------

std::uint32_t number_at(Input bytes, std::size_t at, unsigned width) {
    std::uint32_t number = 0;
    for (unsigned i = 0; i < width; ++i)
        number = number << 8 | bytes[at + i];
    return number;
}

bool has_tag(Input bytes, std::uint32_t tag) {
    return bytes.size() >= 2 && number_at(bytes, 0, 2) == tag;
}

void store(void *value, std::uint32_t number, std::size_t size) {
    if (size == 1)
        *static_cast<std::uint8_t *>(value) = std::uint8_t(number);
    else if (size == 2)
        *static_cast<std::uint16_t *>(value) = std::uint16_t(number);
    else
        *static_cast<std::uint32_t *>(value) = number;
}

std::uint32_t load(const void *value, std::size_t size) {
    if (size == 1)
        return *static_cast<const std::uint8_t *>(value);
    if (size == 2)
        return *static_cast<const std::uint16_t *>(value);
    return *static_cast<const std::uint32_t *>(value);
}

std::optional<std::size_t> read_value(const Type &type, std::uint8_t *value, std::uint32_t length,
                                      Input bytes);

// Bytes of a whole primitive IE.
std::optional<std::size_t> read_primitive(const Type &type, std::uint8_t *value, Input bytes) {
    if (!has_tag(bytes, type.tag) || bytes.size() < 6)
        return {};
    const auto used = read_value(type, value, number_at(bytes, 2, 4), bytes.subspan(6));
    if (!used)
        return {};
    return *used + 6;
}

std::optional<std::size_t> read_list(const Type &type, std::uint8_t *value, std::uint32_t length,
                                     Input bytes) {
    std::size_t used = 0;
    std::uint32_t count = 0;
    for (; used < length; ++count) {
        if (count == type.capacity)
            return {};
        const auto one = read_primitive(*type.item, value + type.itemsOffset + count * type.stride,
                                        bytes.subspan(used));
        if (!one)
            return {};
        used += *one;
    }
    store(value, count, 4);
    return used;
}

std::optional<std::size_t> read_value(const Type &type, std::uint8_t *value, std::uint32_t length,
                                      Input bytes) {
    if (length > bytes.size())
        return {};
    if (type.shape == Shape::list)
        return read_list(type, value, length, bytes);
    if (type.shape == Shape::record) {
        std::size_t used = 0;
        for (const protocol::Member &member : type.members) {
            if (used >= length)
                return {};
            const auto one =
                read_primitive(*member.type, value + member.offset, bytes.subspan(used));
            if (!one)
                return {};
            used += *one;
        }
        return used;
    }
    if (type.shape == Shape::scalar ? length != type.width : length > type.capacity)
        return {};
    if (type.shape == Shape::scalar) {
        store(value, number_at(bytes, 0, type.width), type.valueSize);
    } else {
        store(value, length, 4);
        std::copy_n(bytes.begin(), length, value + 4);
    }
    return length;
}

bool value_is_valid(const Type &type, const std::uint8_t *value) {
    const std::uint32_t number = load(value, std::min<std::size_t>(type.valueSize, 4));
    const bool inRange = number >= type.least && number <= type.greatest;
    if (type.shape == Shape::record)
        return std::all_of(type.members.begin(), type.members.end(),
                           [value](const protocol::Member &member) {
                               return value_is_valid(*member.type, value + member.offset);
                           });
    if (type.shape == Shape::list && inRange)
        for (std::uint32_t i = 0; i < number; ++i)
            if (!value_is_valid(*type.item, value + type.itemsOffset + i * type.stride))
                return false;
    return inRange;
}

using protocol::UnpackRule;
using samples::is_conditional;

// ---- Validity ----------------------------------------------------------------------------------

// The flags that the rules speak of, gathered first and judged at the end.
struct Flags {
    std::vector<bool> seenValid; // by slot
    bool unexpected = false;
};

void note(const std::vector<Slot> &slots, std::size_t position, const Node &node, Flags *flags) {
    if (position < slots.size() && slots[position].presence == Presence::mandatory) {
        if (node.type != slots[position].type)
            flags->unexpected = true;
        else if (is_valid(node))
            flags->seenValid[position] = true;
        return;
    }
    const bool repeats = slots.back().presence == Presence::repeated;
    if (position >= slots.size() && !repeats)
        return;
    bool known = false;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (slots[i].presence == Presence::mandatory || slots[i].type != node.type)
            continue;
        known = true;
        if (is_valid(node))
            flags->seenValid[i] = true;
    }
    if (!known && position < slots.size())
        flags->unexpected = true;
}

bool slots_are_valid(const std::vector<Slot> &slots, const Nodes &nodes) {
    Flags flags{std::vector<bool>(slots.size()), false};
    for (std::size_t position = 0; position < nodes.size(); ++position)
        note(slots, position, nodes[position], &flags);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (slots[i].presence == Presence::mandatory && !flags.seenValid[i])
            return false;
        if (is_conditional(slots[i]) && flags.seenValid[i] != samples::called_for(slots[i], nodes))
            return false;
    }
    return !flags.unexpected;
}

// ---- Unpacking ---------------------------------------------------------------------------------

struct Child {
    bool decoded = false;
    bool valid = false;
    std::size_t consumed = 0;
    Node node;
};

Child read_child(const Type &type, Input bytes) {
    Child child;
    child.node.type = &type;
    if (type.is_composite()) {
        Unpacked unpacked = unpack_composite(type, bytes);
        child.decoded = unpacked.ok;
        child.consumed = unpacked.consumed;
        child.node.children = std::move(unpacked.children);
    } else {
        child.node.value.resize(type.valueSize);
        const auto used = read_primitive(type, child.node.value.data(), bytes);
        child.decoded = used.has_value();
        child.consumed = used.value_or(0);
    }
    child.valid = child.decoded && is_valid(child.node);
    return child;
}

enum class Verdict { taken, skipped, refused };

// What RabParams, IapReset and RelocationRequired do with a conditional child.
Verdict judge_conditional(const Child &child, bool called, bool strict) {
    if (child.decoded && child.valid && called)
        return Verdict::taken;
    if (child.decoded)
        return strict ? Verdict::refused : Verdict::skipped;
    return called ? Verdict::refused : Verdict::skipped;
}

// Whether bytes that end before slot `next` are acceptable.
bool may_end(const std::vector<Slot> &slots, std::size_t next, const Nodes &taken,
             bool requiresConditional) {
    for (; next < slots.size(); ++next)
        if (slots[next].presence == Presence::mandatory ||
            (requiresConditional && is_conditional(slots[next]) &&
             samples::called_for(slots[next], taken)))
            return false;
    return true;
}

bool read_slots(const std::vector<Slot> &slots, UnpackRule rule, Input bytes, Nodes *taken,
                std::size_t *consumed) {
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const Input rest = bytes.subspan(*consumed);
        if (rest.empty())
            return may_end(slots, i, *taken, rule == UnpackRule::dropUncalledRequireAtEnd);
        Child child = read_child(*slots[i].type, rest);
        Verdict verdict = child.decoded && child.valid               ? Verdict::taken
                          : slots[i].presence == Presence::mandatory ? Verdict::refused
                                                                     : Verdict::skipped;
        if (is_conditional(slots[i]))
            verdict = judge_conditional(child, samples::called_for(slots[i], *taken),
                                        rule == UnpackRule::refuseUncalled);
        if (verdict == Verdict::refused)
            return false;
        if (verdict == Verdict::skipped)
            continue;
        taken->push_back(std::move(child.node));
        *consumed += child.consumed;
    }
    return true;
}

bool read_elements(const Type &element, std::uint32_t budget, Input bytes, Nodes *taken,
                   std::size_t *consumed) {
    while (budget != 0) {
        const Input rest = bytes.subspan(*consumed);
        Child child = rest.empty() ? Child{} : read_child(element, rest);
        if (!child.decoded || !child.valid)
            return false;
        taken->push_back(std::move(child.node));
        *consumed += child.consumed;
        budget -= std::uint32_t(child.consumed); // and wraps, as a peer's does
    }
    return true;
}

} // namespace

bool is_valid(const Node &node) {
    const Type &type = *node.type;
    if (type.shape == Shape::sequence)
        return slots_are_valid(type.slots, node.children);
    if (type.shape != Shape::compositeList)
        return value_is_valid(type, node.value.data());
    return node.children.size() >= type.least && node.children.size() <= type.greatest &&
           std::all_of(node.children.begin(), node.children.end(), [&type](const Node &child) {
               return child.type == type.item && is_valid(child);
           });
}

bool is_valid(const Message &message, const Nodes &nodes) {
    return slots_are_valid(message.slots, nodes);
}

Unpacked unpack_composite(const Type &type, Input bytes) {
    Unpacked result;
    if (bytes.empty()) {
        result.ok = true;
        return result;
    }
    if (!has_tag(bytes, type.tag))
        return result;
    result.consumed = 2;
    if (bytes.size() < 6)
        return result;
    std::size_t used = 0;
    const Input rest = bytes.subspan(6);
    result.ok =
        type.shape == Shape::sequence
            ? read_slots(type.slots, type.rule, rest, &result.children, &used)
            : read_elements(*type.item, number_at(bytes, 2, 4), rest, &result.children, &used);
    result.consumed = std::uint32_t(6 + used);
    return result;
}

std::optional<Nodes> unpack_msg(const Message &message, Input bytes) {
    Nodes nodes;
    std::size_t used = 0;
    if (bytes.empty() || !read_slots(message.slots, message.rule, bytes, &nodes, &used))
        return {};
    return nodes;
}

} // namespace model
