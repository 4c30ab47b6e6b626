// A host whose reports do not return but throw: the exception passes through the library, and
// nothing is lost on the way.
#include <algorithm>
#include <vector>

#include "protocol/protocol.h"
#include "support/library_test.h"
#include "tarn_if.h"

namespace {

class LeavingTest : public LibraryTest {
protected:
    void SetUp() override {
        LibraryTest::SetUp();
        test_host::set_on_fatal(test_host::OnFatal::throws);
    }
};

TEST_F(LeavingTest, PackingIntoTooLittleRoomLeavesTheMessageWithItsOwner) {
    TarnMsg *msg = TarnNewHandoverDetectMsg();
    const TarnSrnti number = 1;
    TarnAppendSrntiToHandoverDetectMsg(msg, &number);
    TarnAppendAcUeIdToHandoverDetectMsg(msg, &number);
    std::vector<std::uint8_t> buffer(27, 0xEE); // one more is needed than the 26 given
    EXPECT_EQ(TarnSizeOfMsg(msg), 27);
    EXPECT_THROW(TarnPackHandoverDetectMsg(msg, buffer.data(), 26), test_host::FatalReport);
    expect_fatals(1, "tarn_if_api");
    EXPECT_EQ(buffer[26], 0xEE);
    EXPECT_EQ(TarnPackHandoverDetectMsg(msg, buffer.data(), 27), 1U);
    TarnDeleteMsg(msg);
}

TEST_F(LeavingTest, BuildingIntoTooLittleRoomReleasesItsOwnMessage) {
    TarnUeContextReleaseRecord record{};
    record.presence = TarnUeContextReleaseHasRabDataInfoList;
    record.RabDataInfoList.count = 3;
    std::vector<std::uint8_t> buffer(1000, 0xEE);
    const std::uint32_t size = TarnBuildUeContextReleaseMsg(buffer.data(), 1000, &record);
    // 7 + 10 + 10 + 8, and a list (6) of three elements of 6 + 7 + 10.
    EXPECT_EQ(size, 110U);
    for (std::uint32_t room : {0U, 1U, size - 1}) {
        buffer.assign(1000, 0xEE);
        EXPECT_THROW(TarnBuildUeContextReleaseMsg(buffer.data(), room, &record),
                     test_host::FatalReport);
        expect_fatals(1, "tarn_if_api");
        EXPECT_EQ(test_host::live_blocks(), 0U) << room;
        EXPECT_EQ(std::count(buffer.begin() + room, buffer.end(), 0xEE), 1000 - int(room));
    }
}

// What has a destructor in the frames above the library runs it.
TEST_F(LeavingTest, TheCallersFramesUnwind) {
    bool unwound = false;
    struct Guard {
        bool *flag;
        ~Guard() { *flag = true; }
    };
    const auto call = [&unwound] {
        const Guard guard{&unwound};
        TarnDeleteMsg(nullptr);
    };
    EXPECT_THROW(call(), test_host::FatalReport);
    EXPECT_TRUE(unwound);
    expect_fatals(1, "tarn_if_api");
}

// Records of zeros are wrong in values or in what has to be there, and no message is a byte long.
TEST_F(LeavingTest, FailuresOfBuildAndGetThatThrowTheirTokenLeaveNothing) {
    test_host::throw_tokens();
    int values = 0;
    int presence = 0;
    for (const protocol::Message *type : protocol::messages()) {
        std::vector<std::uint32_t> record(type->recordSize / 4 + 1);
        std::vector<std::uint8_t> buffer(100000);
        try {
            type->build(buffer.data(), 100000, record.data());
        } catch (const test_host::DebugToken &thrown) {
            values += thrown.token == type->appendToken ? 1 : 0;
            presence += thrown.token == type->validityToken ? 1 : 0;
        }
        EXPECT_EQ(test_host::live_blocks(), 0U) << type->name;
        EXPECT_THROW(type->get(buffer.data(), 1, record.data()), test_host::DebugToken);
        EXPECT_EQ(test_host::live_blocks(), 0U) << type->name;
    }
    EXPECT_GT(values, 0);
    EXPECT_GT(presence, 0);
}

} // namespace
