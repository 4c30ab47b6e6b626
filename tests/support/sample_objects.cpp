// The samples as objects of the library and as records.
#include <algorithm>
#include <cstring>

#include "support/samples.h"

namespace samples {

// ---- Objects made and read without the library -------------------------------------------------

VelDllHead *children_of(TarnIe *ie) {
    return static_cast<VelDllHead *>(protocol::value_of(static_cast<void *>(ie)));
}

IePtr make_empty_ie(const Type &type) {
    void *block = nullptr;
    velAllocMemoryWithIds(std::uint32_t(type.ieSize), &block, "samples", __LINE__);
    auto *ie = static_cast<TarnIe *>(block);
    xVelDllInitNode(&ie->node, "samples", __LINE__);
    ie->tag = std::uint16_t(type.tag);
    ie->extractHistory = 0;
    if (type.is_composite())
        xVelDllInitHead(children_of(ie), 0, "samples", __LINE__);
    return IePtr(ie);
}

void link(VelDllHead *list, IePtr ie) {
    xVelDllAddToTail(list, &ie.release()->node, "samples", __LINE__);
}

IePtr make_ie(const Node &node) {
    IePtr ie = make_empty_ie(*node.type);
    if (!node.type->is_composite())
        std::memcpy(protocol::value_of(ie.get()), node.value.data(), node.value.size());
    for (const Node &child : node.children)
        link(children_of(ie.get()), make_ie(child));
    return ie;
}

MsgPtr make_msg(const Message &message, const Nodes &nodes) {
    void *block = nullptr;
    velAllocMemoryWithIds(sizeof(TarnMsg), &block, "samples", __LINE__);
    MsgPtr msg(static_cast<TarnMsg *>(block));
    xVelDllInitHead(&msg->ies, 0, "samples", __LINE__);
    msg->messageId = std::uint16_t(message.id);
    for (const Node &node : nodes)
        link(&msg->ies, make_ie(node));
    return msg;
}

Node node_of(const TarnIe *ie) {
    Node node{protocol::type_by_tag(ie->tag), {}, {}};
    const auto *value = static_cast<const std::uint8_t *>(protocol::value_of(ie));
    if (node.type->is_composite())
        node.children = nodes_of(*protocol::children_of(ie));
    else
        node.value.assign(value, value + node.type->valueSize);
    return node;
}

Nodes nodes_of(const VelDllHead &list) {
    Nodes nodes;
    for (const VelDllNode *node = list.first; node != nullptr; node = node->next)
        nodes.push_back(node_of(reinterpret_cast<const TarnIe *>(node)));
    return nodes;
}

// ---- Objects made and read with the library ----------------------------------------------------

IePtr create_ie(const Node &node) {
    IePtr ie(static_cast<TarnIe *>(node.type->create()));
    if (!append_all(ie.get(), node.type->slots, node.children))
        return nullptr;
    return ie;
}

MsgPtr create_msg(const Message &message, const Nodes &nodes) {
    MsgPtr msg(message.create());
    if (!append_all(msg.get(), message.slots, Nodes(nodes.begin() + 1, nodes.end())))
        return nullptr;
    return msg;
}

bool append_all(void *owner, const std::vector<Slot> &slots, const Nodes &nodes) {
    for (const Node &node : nodes) {
        const Slot *slot = nullptr;
        for (const Slot &candidate : slots)
            if (slot == nullptr && candidate.type == node.type)
                slot = &candidate;
        if (slot == nullptr)
            return false;
        if (!node.type->is_composite()) {
            if (slot->append(owner, node.value.data()) != 1)
                return false;
            continue;
        }
        IePtr child = create_ie(node);
        if (child == nullptr || slot->append(owner, child.release()) != 1)
            return false;
    }
    return true;
}

namespace {

std::optional<Node> extract_one(void *owner, const Slot &slot) {
    Node node{slot.type, {}, {}};
    if (!slot.type->is_composite()) {
        node.value.resize(slot.type->valueSize);
        if (slot.extract(owner, node.value.data()) == 0)
            return {};
        return node;
    }
    void *child = nullptr;
    if (slot.extract(owner, &child) == 0)
        return {};
    node.children = extract_all(child, slot.type->slots);
    return node;
}

} // namespace

Nodes extract_all(void *owner, const std::vector<Slot> &slots) {
    Nodes nodes;
    for (const Slot &slot : slots) {
        // A type's second slot shares the extract of its first.
        const auto first = std::find_if(slots.begin(), slots.end(), [&slot](const Slot &candidate) {
            return candidate.type == slot.type;
        });
        while (auto node = extract_one(owner, *first)) {
            nodes.push_back(*std::move(node));
            if (slot.presence != Presence::repeated)
                break;
        }
    }
    return nodes;
}

Nodes extract_all(TarnMsg *msg, const Message &message) {
    return extract_all(static_cast<void *>(msg), message.slots);
}

// ---- Records -----------------------------------------------------------------------------------

Record::Record(const Message &message, int filler) : words_((message.recordSize + 3) / 4) {
    std::memset(words_.data(), filler, words_.size() * 4);
}

namespace {

void fill_slots(const std::vector<Slot> &slots, const Nodes &nodes, std::uint8_t *record,
                std::size_t maskOffset);

void fill_member(const Node &node, std::uint8_t *member) {
    const Type &type = *node.type;
    if (type.shape == Shape::sequence) {
        fill_slots(type.slots, node.children, member, 0);
    } else if (type.shape == Shape::compositeList) {
        const auto count = std::uint16_t(node.children.size());
        std::memcpy(member, &count, sizeof count);
        for (std::size_t i = 0; i < std::min<std::size_t>(count, type.capacity); ++i)
            fill_member(node.children[i], member + type.itemsOffset + i * type.stride);
    } else {
        std::memcpy(member, node.value.data(), node.value.size());
    }
}

void fill_slots(const std::vector<Slot> &slots, const Nodes &nodes, std::uint8_t *record,
                std::size_t maskOffset) {
    auto node = nodes.begin();
    record[maskOffset] = 0;
    for (const Slot &slot : slots) {
        if (node == nodes.end() || node->type != slot.type)
            continue;
        record[maskOffset] |= slot.presenceBit;
        fill_member(*node++, record + slot.recordOffset);
    }
}

Nodes read_slots(const std::vector<Slot> &slots, const std::uint8_t *record,
                 std::size_t maskOffset);

Node read_member(const Type &type, const std::uint8_t *member) {
    Node node{&type, {}, {}};
    if (type.shape == Shape::sequence) {
        node.children = read_slots(type.slots, member, 0);
    } else if (type.shape == Shape::compositeList) {
        std::uint16_t count = 0;
        std::memcpy(&count, member, sizeof count);
        for (std::size_t i = 0; i < count; ++i)
            node.children.push_back(
                read_member(*type.item, member + type.itemsOffset + i * type.stride));
    } else {
        node.value.assign(member, member + type.valueSize);
    }
    return node;
}

Nodes read_slots(const std::vector<Slot> &slots, const std::uint8_t *record,
                 std::size_t maskOffset) {
    Nodes nodes;
    for (const Slot &slot : slots)
        if (slot.presenceBit == 0 || (record[maskOffset] & slot.presenceBit) != 0)
            nodes.push_back(read_member(*slot.type, record + slot.recordOffset));
    return nodes;
}

} // namespace

void fill_record(const Message &message, const Nodes &nodes, Record *record) {
    fill_slots(message.slots, nodes, record->at(0), 1);
}

Nodes read_record(const Message &message, Record *record) {
    return read_slots(message.slots, record->at(0), 1);
}

} // namespace samples
