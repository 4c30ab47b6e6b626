// Bytes made to hurt: the deepest nesting cut anywhere, lengths that lie, and work that would grow
// faster than the bytes.
#include <algorithm>

#include "support/library_test.h"
#include "support/model.h"
#include "support/mutations.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class HostileComposite : public LibraryTest {
protected:
    const Type &deepest_ = samples::type("RabToSetupPerCnDomainList");

    struct Outcome {
        bool ok;
        std::uint32_t consumed;
        std::size_t work; // list calls and allocations
    };

    static Outcome unpack(const Type &type, const Bytes &bytes) {
        const IePtr ie = samples::make_empty_ie(type);
        const samples::Exact exact(bytes);
        Outcome outcome{false, 77, 0};
        const std::size_t before = work();
        outcome.ok = type.unpackIe(ie.get(), exact.data(), exact.size(), &outcome.consumed) == 1;
        outcome.work = work() - before;
        return outcome;
    }

    static std::size_t work() { return test_host::list_calls() + test_host::allocations(); }

    static std::size_t count_nodes(const Node &node) {
        std::size_t count = 1;
        for (const Node &child : node.children)
            count += count_nodes(child);
        return count;
    }

    template <class Operation>
    static std::size_t work_of(Operation operation) {
        const std::size_t before = work();
        operation();
        return work() - before;
    }
};

TEST_F(HostileComposite, DeepestNestingCutAtEveryByte) {
    Random random(1);
    Node list = samples::make_node(deepest_, Amount::slim, random);
    list.children.push_back(samples::make_node(*deepest_.item, Amount::slim, random));
    const Bytes whole = samples::encode(list);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const Bytes cut(whole.begin(), whole.begin() + std::ptrdiff_t(size));
        const model::Unpacked expected = model::unpack_composite(deepest_, cut);
        const Outcome outcome = unpack(deepest_, cut);
        ASSERT_EQ(outcome.ok, expected.ok) << size;
        ASSERT_EQ(outcome.consumed, expected.consumed) << size;
    }
}

// Each length of the nesting in turn claims more or less than is there.
TEST_F(HostileComposite, LengthThatLiesAtEachLevel) {
    Random random(2);
    const Node list = samples::make_node(deepest_, Amount::slim, random);
    const Bytes whole = samples::encode(list);
    std::size_t at = 2;
    for (const Node *node = &list; !node->children.empty();) {
        for (const std::uint32_t length :
             {0U, 1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFAU, 0xFFFFFFFFU}) {
            Bytes bytes = whole;
            for (unsigned i = 0; i < 4; ++i)
                bytes[at + i] = std::uint8_t(length >> (24 - 8 * i));
            const model::Unpacked expected = model::unpack_composite(deepest_, bytes);
            const Outcome outcome = unpack(deepest_, bytes);
            EXPECT_EQ(outcome.ok, expected.ok) << node->type->name << ' ' << length;
            EXPECT_EQ(outcome.consumed, expected.consumed) << node->type->name << ' ' << length;
        }
        // Down into the first composite child, else the last primitive one.
        at += 6;
        std::size_t next = 0;
        while (next + 1 < node->children.size() && node->children[next].children.empty())
            at += samples::encode(node->children[next++]).size();
        node = &node->children[next];
    }
}

TEST_F(HostileComposite, ElementsOfAHeaderAlone) {
    Bytes bytes = from_hex("0028 00001770"); // 1000 elements of 6 bytes
    for (int i = 0; i < 1000; ++i) {
        const Bytes one = from_hex("0029 FFFFFFFF");
        bytes.insert(bytes.end(), one.begin(), one.end());
    }
    const Outcome outcome = unpack(samples::type("SduFormatInfoParamList"), bytes);
    EXPECT_TRUE(outcome.ok); // too many of them, which is for the validator to say
    EXPECT_EQ(outcome.consumed, bytes.size());
}

// The same shape, doubled: the work may double and no more.
void expect_linear(std::size_t once, std::size_t twice) {
    EXPECT_LE(twice, 2 * once + 50);
}

TEST_F(HostileComposite, UnpackingIsLinearInTheBytes) {
    Random random(3);
    for (const Type *type : samples::composite_lists()) {
        SCOPED_TRACE(type->name);
        const Node element = samples::make_node(*type->item, Amount::slim, random);
        for (const bool fails : {false, true}) {
            const auto bytes_of = [&](std::size_t count) {
                Bytes bytes = samples::encode(Node{type, {}, Nodes(count, element)});
                if (fails)
                    bytes[2] = 0xFF; // a budget that is never met
                return bytes;
            };
            const std::size_t once = unpack(*type, bytes_of(100)).work;
            expect_linear(once, unpack(*type, bytes_of(200)).work);
        }
    }
}

// A failure at the bottom must not be tried again on each level above it.
TEST_F(HostileComposite, FailureAtTheBottomCostsOneWalk) {
    Random random(4);
    Node list = samples::make_node(deepest_, Amount::most, random);
    Bytes bytes = samples::encode(list);
    const std::size_t whole = unpack(deepest_, bytes).work;
    bytes.resize(bytes.size() - 1);
    EXPECT_LE(unpack(deepest_, bytes).work, 3 * whole);
    for (int i = 0; i < 50; ++i) {
        bytes = samples::encode(list);
        bytes[random.between(0, std::uint32_t(bytes.size() - 1))] ^= 0x40;
        EXPECT_LE(unpack(deepest_, bytes).work, 3 * whole);
    }
}

// Nine levels of nesting: an operation that walked a subtree anew on each level would need many
// times as many calls as there are IEs.
TEST_F(HostileComposite, ObjectOperationsAreLinearInTheIes) {
    Random random(5);
    const Node list = samples::make_node(deepest_, Amount::most, random);
    const std::size_t count = count_nodes(list);
    ASSERT_GT(count, 8000U);
    const IePtr ie = samples::make_ie(list);
    const std::uint32_t size = TarnSizeOfIe(ie.get());
    Bytes buffer(size);
    std::uint32_t written = 0;
    EXPECT_LE(work_of([&] { TarnSizeOfIe(ie.get()); }), 2 * count);
    EXPECT_LE(work_of([&] { deepest_.packIe(ie.get(), buffer.data(), size, &written); }),
              4 * count);
    EXPECT_EQ(written, size);
    EXPECT_LE(work_of([&] { deepest_.isIeValid(ie.get()); }), 3 * count);
    EXPECT_LE(work_of([&] { TarnResetIeExtractHistory(ie.get()); }), 2 * count);
    EXPECT_LE(unpack(deepest_, buffer).work, 3 * count);
}

} // namespace
