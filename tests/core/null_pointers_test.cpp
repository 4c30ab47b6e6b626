// Every operation that needs a pointer, without it: each missing one is reported, the operation
// fails, and nothing is touched; also when the report leaves by an exception.
#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <string>

#include "protocol/protocol.h"
#include "support/library_test.h"

namespace {

using namespace modules;

// What any pointer points to. Followed as if it were an object, it leads nowhere.
struct Target {
    alignas(16) unsigned char bytes[256];
};

using Pointers = void *const *;

struct Operation {
    std::string name;
    const char *module;
    unsigned pointers;
    std::function<std::uint64_t(Pointers)> call; // 0 for a null or void result
};

template <class Object>
Object *as(void *pointer) {
    return static_cast<Object *>(pointer);
}

std::uint64_t flag(const void *result) {
    return result != nullptr;
}

using Byte = std::uint8_t;
constexpr std::uint32_t some = 64; // bytes available

std::vector<Operation> buffer_operations() {
    return {
        {"TarnExtractTagFromBuffer", internal, 2,
         [](Pointers p) {
             return TarnExtractTagFromBuffer(as<std::uint16_t>(p[0]), as<Byte>(p[1]), some);
         }},
        {"TarnExtractLengthFromBuffer", internal, 2,
         [](Pointers p) {
             return TarnExtractLengthFromBuffer(as<std::uint32_t>(p[0]), as<Byte>(p[1]), some);
         }},
        {"TarnPackTagIntoBuffer", internal, 1,
         [](Pointers p) { return TarnPackTagIntoBuffer(1, as<Byte>(p[0]), some); }},
        {"TarnPackLengthIntoBuffer", internal, 1,
         [](Pointers p) { return TarnPackLengthIntoBuffer(1, as<Byte>(p[0]), some); }},
        {"TarnPackTagIntoBuffer without room", internal, 1,
         [](Pointers p) { return TarnPackTagIntoBuffer(1, as<Byte>(p[0]), 0); }},
        {"TarnGetMessageId", internal, 1,
         [](Pointers p) { return TarnGetMessageId(as<Byte>(p[0]), some); }},
        {"TarnGetMessageId of nothing", internal, 1,
         [](Pointers p) { return TarnGetMessageId(as<Byte>(p[0]), 0); }},
        {"TarnUnpackNewMsg", api, 2,
         [](Pointers p) {
             const std::uint32_t result =
                 TarnUnpackNewMsg(as<Byte>(p[1]), some, as<TarnMsg *>(p[0]));
             // Where no message comes back its pointer is null, and only that is written.
             if (p[0] != nullptr) {
                 EXPECT_EQ(*as<TarnMsg *>(p[0]), nullptr);
                 std::memset(p[0], 0x5A, sizeof(TarnMsg *));
             }
             return result;
         }},
    };
}

template <class Object>
Operation object_operation(const char *name, const char *module, void (*operation)(Object *)) {
    return {name, module, 1, [operation](Pointers p) {
                operation(as<Object>(p[0]));
                return std::uint64_t(0);
            }};
}

std::vector<Operation> object_operations() {
    std::vector<Operation> all = {
        object_operation("TarnDeleteIe", api, TarnDeleteIe),
        object_operation("TarnDeleteMsg", api, TarnDeleteMsg),
        object_operation("TarnResetIeExtractHistory", api, TarnResetIeExtractHistory),
        object_operation("TarnResetMsgExtractHistory", api, TarnResetMsgExtractHistory),
        {"TarnGetIeTag", api, 1, [](Pointers p) { return TarnGetIeTag(as<TarnIe>(p[0])); }},
        {"TarnSizeOfIe", internal, 1, [](Pointers p) { return TarnSizeOfIe(as<TarnIe>(p[0])); }},
        {"TarnSizeOfMsg", api, 1,
         [](Pointers p) { return std::uint64_t(TarnSizeOfMsg(as<TarnMsg>(p[0]))); }},
    };
    for (const protocol::Condition &condition : protocol::conditions()) {
        const bool takesIe = std::string(condition.predicate).ends_with("ForIe");
        all.push_back({condition.predicate, conditional, 1, [&condition, takesIe](Pointers p) {
                           return takesIe ? condition.holds(nullptr, p[0])
                                          : condition.holds(as<TarnMsg>(p[0]), nullptr);
                       }});
    }
    return all;
}

void add_value_operations(const Type &type, std::vector<Operation> *all) {
    const std::string name = type.name;
    all->push_back(
        {"TarnSizeOf" + name, internal, 1, [&type](Pointers p) { return type.sizeOf(p[0]); }});
    all->push_back({"TarnPack" + name, internal, 3, [&type](Pointers p) {
                        return type.pack(p[0], as<Byte>(p[1]), some, as<std::uint32_t>(p[2]));
                    }});
    all->push_back({"TarnUnpack" + name, internal, 3, [&type](Pointers p) {
                        return type.unpack(p[0], 4, as<Byte>(p[1]), some, as<std::uint32_t>(p[2]));
                    }});
    all->push_back({"TarnIs" + name + "Valid", internal, 1,
                    [&type](Pointers p) { return type.isValid(p[0]); }});
}

void add_ie_operations(const Type &type, std::vector<Operation> *all) {
    const std::string name = type.name;
    for (std::uint32_t available : {some, 0U}) {
        all->push_back({"TarnPack" + name + "Ie", internal, 3, [&type, available](Pointers p) {
                            return type.packIe(p[0], as<Byte>(p[1]), available,
                                               as<std::uint32_t>(p[2]));
                        }});
        // A composite that is handed no bytes succeeds, but not without its pointers.
        all->push_back({"TarnUnpack" + name + "Ie", internal, 3, [&type, available](Pointers p) {
                            return type.unpackIe(p[0], as<Byte>(p[1]), available,
                                                 as<std::uint32_t>(p[2]));
                        }});
    }
    if (!type.is_composite())
        all->push_back({"TarnIs" + name + "IeValid", internal, 1,
                        [&type](Pointers p) { return type.isIeValid(p[0]); }});
}

void add_slot_operations(const char *owner, const std::vector<Slot> &slots,
                         std::vector<Operation> *all) {
    for (const Slot &slot : slots) {
        if (slot.append == nullptr)
            continue;
        const std::string name = std::string(slot.name) + " and " + owner;
        // The MessageId of a message is appended by value, by the codecs' module.
        if (slot.type->tag == 72)
            all->push_back({"append " + name, internal, 1,
                            [&slot](Pointers p) { return slot.append(p[0], &slot.type->tag); }});
        else
            all->push_back({"append " + name, api, 2,
                            [&slot](Pointers p) { return slot.append(p[0], p[1]); }});
        all->push_back(
            {"extract " + name, api, 2, [&slot](Pointers p) { return slot.extract(p[0], p[1]); }});
    }
}

std::vector<Operation> ie_operations() {
    std::vector<Operation> all;
    for (const Type *type : protocol::types()) {
        if (!type->is_composite())
            add_value_operations(*type, &all);
        if (type->hasIe)
            add_ie_operations(*type, &all);
        add_slot_operations(type->name, type->slots, &all);
    }
    return all;
}

std::vector<Operation> message_operations() {
    std::vector<Operation> all;
    for (const Message *message : protocol::messages()) {
        const std::string name = message->name;
        all.push_back({"TarnPack" + name + "Msg", api, 2, [message](Pointers p) {
                           return message->pack(as<TarnMsg>(p[0]), as<Byte>(p[1]), some);
                       }});
        all.push_back({"TarnUnpack" + name + "Msg", internal, 1, [message](Pointers p) {
                           return flag(message->unpack(as<Byte>(p[0]), some));
                       }});
        all.push_back({"TarnUnpack" + name + "Msg of nothing", internal, 1,
                       [message](Pointers p) { return flag(message->unpack(as<Byte>(p[0]), 0)); }});
        all.push_back({"TarnBuild" + name + "Msg", api, 2, [message](Pointers p) {
                           return message->build(as<Byte>(p[0]), some, p[1]);
                       }});
        all.push_back({"TarnGet" + name + "Msg", api, 2,
                       [message](Pointers p) { return message->get(as<Byte>(p[0]), some, p[1]); }});
        add_slot_operations(message->name, message->slots, &all);
    }
    return all;
}

class NullPointersTest : public LibraryTest {
protected:
    // Calls the operation with each combination of missing pointers.
    template <class Check>
    static void with_each_lack(const Operation &operation, const Check &check) {
        for (unsigned missing = 1; missing < 1U << operation.pointers; ++missing) {
            SCOPED_TRACE(operation.name + ", missing pointers " + std::to_string(missing));
            Target targets[3];
            std::memset(targets, 0x5A, sizeof targets);
            void *pointers[3];
            for (unsigned i = 0; i < 3; ++i)
                pointers[i] = (missing >> i & 1) != 0 ? nullptr : targets[i].bytes;
            check(pointers, unsigned(std::popcount(missing)));
            const auto *bytes = reinterpret_cast<const unsigned char *>(targets);
            EXPECT_TRUE(std::all_of(bytes, bytes + sizeof targets, [](unsigned char byte) {
                return byte == 0x5A;
            })) << "something was written";
            EXPECT_EQ(test_host::allocations(), 0U);
            EXPECT_EQ(test_host::list_calls(), 0U);
            EXPECT_TRUE(test_host::debug_tokens().empty());
        }
    }

    void check_all(const std::vector<Operation> &operations) {
        for (const Operation &operation : operations) {
            test_host::set_on_fatal(test_host::OnFatal::returns);
            with_each_lack(operation, [&](Pointers pointers, unsigned missing) {
                EXPECT_EQ(operation.call(pointers), 0U);
                expect_fatals(missing, operation.module);
            });
            test_host::set_on_fatal(test_host::OnFatal::throws);
            with_each_lack(operation, [&](Pointers pointers, unsigned) {
                EXPECT_THROW(operation.call(pointers), test_host::FatalReport);
                expect_fatals(1, operation.module);
            });
            if (HasFailure())
                return; // the next thousand would say the same
        }
    }
};

TEST_F(NullPointersTest, BufferOperations) {
    check_all(buffer_operations());
}

TEST_F(NullPointersTest, ObjectOperationsAndPredicates) {
    check_all(object_operations());
}

TEST_F(NullPointersTest, IeOperations) {
    check_all(ie_operations());
}

TEST_F(NullPointersTest, MessageOperations) {
    check_all(message_operations());
}

// So that the result of an extract can be passed on as it is.
TEST_F(NullPointersTest, ValidatorsOfWhatIsExtractedAnswerWithoutAReport) {
    for (const Message *message : protocol::messages())
        EXPECT_EQ(message->isValid(nullptr), 0U) << message->name;
    for (const Type *type : protocol::types())
        if (type->is_composite()) {
            EXPECT_EQ(type->isIeValid(nullptr), 0U) << type->name;
        }
}

} // namespace
