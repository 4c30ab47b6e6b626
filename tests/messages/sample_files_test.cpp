// The sample messages of examples/messages, whose bytes were worked out by hand, by both roads.
#include "support/sample_files.h"

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

using Types = std::vector<const Type *>;

Types types_of(const Nodes &nodes) {
    Types types;
    for (const Node &node : nodes)
        types.push_back(node.type);
    return types;
}

using Seen = std::map<std::string, std::set<Types>>;

void note(const char *owner, const Nodes &nodes, Seen *seen) {
    (*seen)[owner].insert(types_of(nodes));
    for (const Node &node : nodes)
        note(node.type->name, node.children, seen);
}

// Each owner stands in a sample with all that it may hold, once for each set of conditional IEs. So
// which IEs there are, and in which order, is held by bytes that were not made from the rows.
TEST_F(SampleFiles, HoldEverySlotInItsPlace) {
    Seen seen;
    for (const samples::Sample &sample : samples::read(""))
        note(type_of(sample.bytes).name, decode(sample.bytes), &seen);
    Random random(1);
    const auto check = [&](const char *owner, const std::vector<Slot> &slots) {
        for (std::uint32_t deciding = 0; deciding < 4; ++deciding) {
            const Nodes all = samples::make_nodes(slots, Amount::slim, random, deciding);
            EXPECT_EQ(seen[owner].count(types_of(all)), 1U)
                << owner << ": no sample has " << testing::PrintToString(all);
        }
    };
    for (const Message *message : protocol::messages())
        check(message->name, message->slots);
    for (const Type *type : samples::sequences())
        check(type->name, type->slots);
}

} // namespace
