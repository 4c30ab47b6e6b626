// The module that each call of the host names: a host counts memory and finds faults by it.
#include <map>

#include "support/library_test.h"
#include "support/samples.h"

namespace {

using Calls = std::map<std::string, unsigned>; // "service module", and how often

Calls heard;

class ModulesTest : public LibraryTest {
protected:
    void SetUp() override {
        LibraryTest::SetUp();
        test_host::set_watch([](const char *service, const char *module) {
            ++heard[std::string(service) + ' ' + module];
        });
    }
    void TearDown() override {
        test_host::set_watch(nullptr);
        LibraryTest::TearDown();
    }

    // What is heard while the operation runs.
    template <class Operation>
    static Calls during(Operation operation) {
        heard.clear();
        operation();
        return heard;
    }
};

using namespace modules;

std::string allocs(const char *module) {
    return std::string("velAllocMemoryWithIds ") + module;
}

std::string lists(const char *call, const char *module) {
    return std::string("xVelDll") + call + ' ' + module;
}

// A message of five IEs, the last a list of one element with two children: what an operation does
// on the message's own list is the interface's, what it does below is the codecs'.
TEST_F(ModulesTest, OfAMessageAndOfWhatHangsBelowIt) {
    TarnMsg *msg = nullptr;
    EXPECT_EQ(during([&] { msg = TarnNewUeContextReleaseMsg(); }),
              (Calls{{allocs(api), 1},
                     {lists("InitHead", api), 1}, // and its MessageId
                     {allocs(internal), 1},
                     {lists("InitNode", internal), 1},
                     {lists("AddToTail", internal), 1}}));
    const std::uint32_t number = 1;
    EXPECT_EQ(during([&] { TarnAppendSrntiToUeContextReleaseMsg(msg, &number); }),
              (Calls{{allocs(api), 1}, {lists("InitNode", api), 1}, {lists("AddToTail", api), 1}}));
    TarnAppendAcUeIdToUeContextReleaseMsg(msg, &number);
    TarnAppendReleaseCauseToUeContextReleaseMsg(msg, &number);
    TarnRabDataInfoListIe *list = nullptr;
    EXPECT_EQ(during([&] { list = TarnNewRabDataInfoListIe(); }),
              (Calls{{allocs(api), 1}, {lists("InitNode", api), 1}, {lists("InitHead", api), 1}}));
    TarnRabDataInfoIe *info = TarnNewRabDataInfoIe();
    const TarnRabId rab = 5;
    TarnAppendRabIdToRabDataInfoIe(info, &rab);
    TarnAppendSuccTransferAtPsiwToRabDataInfoIe(info, &number);
    TarnAppendRabDataInfoIeToRabDataInfoListIe(list, info);
    EXPECT_EQ(during([&] { TarnAppendRabDataInfoListIeToUeContextReleaseMsg(msg, list); }),
              (Calls{{lists("AddToTail", api), 1}}));

    const Calls own = {{lists("GetHead", api), 1}, {lists("GetNext", api), 5}};
    const Calls below = {{lists("GetHead", internal), 2}, {lists("GetNext", internal), 3}};
    Calls all = own;
    all.insert(below.begin(), below.end());
    std::uint8_t bytes[100];
    std::uint32_t size = 0;
    EXPECT_EQ(during([&] { size = std::uint32_t(TarnSizeOfMsg(msg)); }), all);
    EXPECT_EQ(during([&] { TarnSizeOfIe(&list->ie); }), below);
    EXPECT_EQ(during([&] { TarnIsUeContextReleaseMsgValid(msg); }), own);
    EXPECT_EQ(during([&] { TarnIsRabDataInfoListIeValid(msg, list); }), below);
    // One walk that measures and writes, or one for each.
    for (const auto &[call, count] :
         during([&] { TarnPackUeContextReleaseMsg(msg, bytes, size); })) {
        EXPECT_TRUE(count == all[call] || count == 2 * all[call]) << call << ' ' << count;
    }
    TarnSrnti read = 0;
    EXPECT_EQ(during([&] { TarnExtractSrntiFromUeContextReleaseMsg(msg, &read); }),
              (Calls{{lists("GetHead", api), 1}, {lists("GetNext", api), 1}}));
    EXPECT_EQ(during([&] { TarnResetMsgExtractHistory(msg); }),
              (Calls{{lists("GetHead", api), 3}, {lists("GetNext", api), 8}}));
    EXPECT_EQ(during([&] { TarnDeleteMsg(msg); }),
              (Calls{{std::string("velFreeMemoryWithIds ") + api, 9},
                     {lists("GetHead", api), 11},
                     {lists("RemoveNode", api), 8}}));
    EXPECT_EQ(during([&] { TarnUnpackNewMsg(bytes, size, &msg); }),
              (Calls{{allocs(internal), 9},
                     {lists("InitHead", internal), 3},
                     {lists("InitNode", internal), 8},
                     {lists("AddToTail", internal), 8}}));
    TarnDeleteMsg(msg);
}

TEST_F(ModulesTest, OfThePredicates) {
    Random random(1);
    const Message &message = samples::message("RelocationRequired");
    const MsgPtr msg =
        samples::make_msg(message, samples::make_message(message, Amount::slim, random, 0));
    EXPECT_EQ(during([&] { TarnIsInterRatRelocForMsg(msg.get()); }),
              (Calls{{lists("FindNode", conditional), 1}}));
    const Calls judged = during([&] { message.isValid(msg.get()); });
    EXPECT_EQ(judged.at(lists("FindNode", conditional)), 2U); // once for each predicate
    EXPECT_EQ(judged.size(), 3U); // with GetHead and GetNext of the message's own list
    EXPECT_EQ(judged.count(lists("GetHead", api)) + judged.count(lists("GetNext", api)), 2U);
}

} // namespace
