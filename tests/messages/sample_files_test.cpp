// The sample messages of examples/messages, whose bytes were worked out by hand, by both roads.
#include "support/sample_files.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

const Message &type_of(const Bytes &bytes) {
    return *protocol::message_by_id(TarnGetMessageId(bytes.data(), std::uint32_t(bytes.size())));
}

Nodes decode(const Bytes &bytes) {
    const samples::Exact exact(bytes);
    TarnMsg *msg = nullptr;
    EXPECT_EQ(TarnUnpackNewMsg(exact.data(), exact.size(), &msg), 1U);
    const MsgPtr owner(msg);
    return samples::extract_all(msg, type_of(bytes));
}

class SampleFiles : public LibraryTest {};

TEST_F(SampleFiles, ComeAndGoByObjects) {
    for (const samples::Sample &sample : samples::read("")) {
        SCOPED_TRACE(testing::PrintToString(sample));
        const Message &type = type_of(sample.bytes);
        const MsgPtr msg = samples::create_msg(type, decode(sample.bytes));
        ASSERT_NE(msg, nullptr);
        EXPECT_EQ(type.isValid(msg.get()), 1U);
        ASSERT_EQ(TarnSizeOfMsg(msg.get()), std::int32_t(sample.bytes.size()));
        Bytes packed(sample.bytes.size());
        EXPECT_EQ(type.pack(msg.get(), packed.data(), std::uint32_t(packed.size())), 1U);
        EXPECT_EQ(packed, sample.bytes);
    }
}

TEST_F(SampleFiles, ComeAndGoByRecords) {
    for (const samples::Sample &sample : samples::read("")) {
        SCOPED_TRACE(testing::PrintToString(sample));
        const Message &type = type_of(sample.bytes);
        const samples::Exact exact(sample.bytes);
        Record record(type);
        EXPECT_EQ(type.get(exact.data(), exact.size(), record.data()), 1U);
        Bytes built(sample.bytes.size());
        EXPECT_EQ(type.build(built.data(), std::uint32_t(built.size()), record.data()),
                  built.size());
        EXPECT_EQ(built, sample.bytes);
    }
}

// Which IEs stand behind each other.
using Neighbours = std::set<std::pair<const Type *, const Type *>>;

Neighbours neighbours_among(const Nodes &nodes) {
    Neighbours found;
    for (std::size_t i = 1; i < nodes.size(); ++i)
        found.emplace(nodes[i - 1].type, nodes[i].type);
    return found;
}

template <class Of>
std::size_t count_of(const Type &type, const std::vector<Of> &list) {
    return std::size_t(std::count_if(list.begin(), list.end(),
                                     [&type](const Of &one) { return one.type == &type; }));
}

// The IEs of every message and composite in the samples, by owner.
using Seen = std::map<std::string, std::vector<Nodes>>;

void note(const char *owner, const Nodes &nodes, Seen *seen) {
    (*seen)[owner].push_back(nodes);
    for (const Node &node : nodes)
        note(node.type->name, node.children, seen);
}

// All IEs that can stand behind each other do so in a sample, and whatever may be left out is left
// out in one. So which IEs there are, in which order, and which must be there, is held by bytes
// that were not made from the rows.
TEST_F(SampleFiles, HoldEverySlotInItsPlace) {
    Seen seen;
    for (const samples::Sample &sample : samples::read(""))
        note(type_of(sample.bytes).name, decode(sample.bytes), &seen);
    Random random(1);
    const auto check = [&](const char *owner, const std::vector<Slot> &slots) {
        Neighbours held;
        for (const Nodes &nodes : seen[owner])
            held.merge(neighbours_among(nodes));
        for (std::uint32_t deciding = 0; deciding < 4; ++deciding)
            for (const auto &[first, second] :
                 neighbours_among(samples::make_nodes(slots, Amount::slim, random, deciding)))
                EXPECT_EQ(held.count({first, second}), 1U)
                    << owner << ": no sample has " << first->name << " and " << second->name;
        std::vector<Slot> mandatory;
        std::copy_if(slots.begin(), slots.end(), std::back_inserter(mandatory),
                     [](const Slot &slot) { return slot.presence == Presence::mandatory; });
        for (const Slot &slot : slots) {
            std::size_t least = SIZE_MAX;
            for (const Nodes &nodes : seen[owner])
                least = std::min(least, count_of(*slot.type, nodes));
            EXPECT_EQ(least, count_of(*slot.type, mandatory))
                << owner << ": all samples have " << slot.name << ", which may be left out";
        }
    };
    for (const Message *message : protocol::messages())
        check(message->name, message->slots);
    for (const Type *type : samples::sequences())
        check(type->name, type->slots);
}

} // namespace
