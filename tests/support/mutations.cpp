#include "support/mutations.h"

#include <utility>

namespace samples {

namespace {

std::uint32_t index_in(std::size_t size, Random &random) {
    return random.between(0, std::uint32_t(size - 1));
}

// A list of IEs somewhere in the tree.
Nodes &any_list(Nodes &nodes, Random &random) {
    Nodes *list = &nodes;
    while (random.coin() || random.coin()) {
        Node &node = (*list)[index_in(list->size(), random)];
        if (node.children.empty())
            break;
        list = &node.children;
    }
    return *list;
}

void mutate_structure(Nodes &nodes, Random &random) {
    Nodes &list = any_list(nodes, random);
    const std::uint32_t at = index_in(list.size(), random);
    switch (random.between(0, 3)) {
    case 0:
        list.insert(list.begin() + at, Node(list[at]));
        break;
    case 1:
        if (list.size() > 1)
            list.erase(list.begin() + at);
        break;
    case 2:
        std::swap(list[at], list[index_in(list.size(), random)]);
        break;
    default:
        if (auto invalid = make_invalid(*list[at].type, random))
            list[at] = *std::move(invalid);
        else
            list.insert(list.begin() + at, number_node("LacMatch", 1));
    }
}

void mutate_bytes(Bytes &bytes, Random &random) {
    const std::uint32_t at = index_in(bytes.size(), random);
    switch (random.between(0, 3)) {
    case 0:
        bytes[at] = std::uint8_t(random.next());
        break;
    case 1:
        bytes[at] ^= std::uint8_t(1U << random.between(0, 7));
        break;
    case 2:
        bytes[at] = std::uint8_t(bytes[at] + (random.coin() ? 1 : -1));
        break;
    default:
        bytes.resize(at + 1);
    }
}

} // namespace

Bytes mutate(Nodes nodes, Random &random) {
    for (std::uint32_t times = random.between(0, 2); times != 0; --times)
        mutate_structure(nodes, random);
    Bytes bytes = encode(nodes);
    for (std::uint32_t times = random.between(0, 2); times != 0; --times)
        mutate_bytes(bytes, random);
    return bytes;
}

} // namespace samples
