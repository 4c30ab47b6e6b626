// The C++ header: every sample through records and through objects, and the traps that it removes.
#include <gtest/gtest.h>

#include "support/sample_files.h"
#include "tarn.hpp"
#include "tarn_host.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

// ---- Layout ------------------------------------------------------------------------------------

// The members of a C++ record lie where those of the C record do.
#define SAME_PLACE(owner_, member_, presence_)                                                     \
    static_assert(offsetof(tarn::owner_, STORED_##presence_(member_)) ==                           \
                  offsetof(Tarn##owner_##Record, member_));
#define STORED_mandatory(member_)                            member_
#define STORED_optional(member_)                             member_##_
#define STORED_conditional(member_)                          member_##_
#define STORED_repeated(member_)                             member_##_
#define SECOND_SLOT(owner_, child_, member_, presence_, ...) SAME_PLACE(owner_, member_, presence_)
#define PRIMITIVE_SLOT(owner_, child_, presence_, ...)       SAME_PLACE(owner_, child_, presence_)
#define COMPOSITE_SLOT                                       PRIMITIVE_SLOT
#include "catalogue/composite_ies.def"
#define SECOND_SLOT(owner_, child_, member_, presence_, ...) SAME_PLACE(owner_, member_, presence_)
#define PRIMITIVE_SLOT(owner_, child_, presence_, ...)       SAME_PLACE(owner_, child_, presence_)
#define COMPOSITE_SLOT                                       PRIMITIVE_SLOT
#include "catalogue/messages.def"
#define MEMBER(owner_, member_)                                                                    \
    static_assert(offsetof(tarn::owner_, member_) == offsetof(Tarn##owner_, member_));
#include "catalogue/primitive_ies.def"

// ---- All samples -------------------------------------------------------------------------------

class Sample : public testing::TestWithParam<samples::Sample> {};

TEST_P(Sample, ReturnsFromARecordAsItWas) {
    const auto error = tarn::visit(GetParam().bytes, [](const auto &record) {
        const auto built = tarn::build(record);
        ASSERT_TRUE(built) << built.error().what();
        EXPECT_EQ(*built, GetParam().bytes);
    });
    EXPECT_EQ(error.status(), tarn::Status::ok) << error.what();
}

TEST_P(Sample, ReturnsFromAnObjectAsItWas) {
    {
        const auto msg = tarn::unpack(GetParam().bytes);
        ASSERT_TRUE(msg);
        EXPECT_TRUE(msg->is_valid());
        EXPECT_EQ(*msg->pack(), GetParam().bytes);
    }
    EXPECT_EQ(tarnHostLiveBlocks(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Samples, Sample, testing::ValuesIn(samples::read("")));

// ---- Traps -------------------------------------------------------------------------------------

tarn::UeContextRelease release_of(std::uint32_t ue) {
    return {.Srnti = 1, .AcUeId = ue, .ReleaseCause = 2};
}

TEST(Cpp, GetTakesNoOtherMessage) {
    const auto bytes = tarn::build(release_of(7));
    EXPECT_EQ(tarn::get<tarn::UeContextAccept>(*bytes).error().status(),
              tarn::Status::otherMessage);
    EXPECT_EQ(tarn::get<tarn::UeContextAccept>(Bytes{0, 72, 0, 0, 0, 1, 34}).error().status(),
              tarn::Status::unknownMessage);
    EXPECT_EQ(
        tarn::get<tarn::UeContextRelease>(Bytes(bytes->begin(), bytes->end() - 1)).error().status(),
        tarn::Status::refused);
}

TEST(Cpp, NoBytesAreAnErrorAndNotFatal) {
    const Bytes none;
    EXPECT_EQ(tarn::get<tarn::Reset>(none).error().status(), tarn::Status::empty);
    EXPECT_EQ(tarn::unpack(none).error().status(), tarn::Status::empty);
    EXPECT_EQ(tarn::visit(none, [](const tarn::Reset &) {}).status(), tarn::Status::empty);
}

TEST(Cpp, TooLittleRoomIsAnErrorAndNotFatal) {
    std::uint8_t room[35];
    const auto record = release_of(7);
    EXPECT_EQ(*tarn::build(record, room), 35U);
    EXPECT_EQ(tarn::build(record, tarn::Room(room, 34)).error().status(), tarn::Status::noRoom);
    EXPECT_EQ(tarn::build(record, {}).error().status(), tarn::Status::noRoom);
    const auto msg = tarn::unpack(room);
    EXPECT_EQ(*msg->pack(room), 35U);
    EXPECT_EQ(msg->pack(tarn::Room(room, 34)).error().status(), tarn::Status::noRoom);
}

TEST(Cpp, OptionalMembersMindTheirPresence) {
    tarn::UeContextRelease record = release_of(7);
    EXPECT_FALSE(record.RabDataInfoList());
    EXPECT_EQ(record.RabDataInfoList().get(), nullptr);
    tarn::RabDataInfo *info = record.RabDataInfoList().emplace().emplace_back();
    info->RabId = 5;
    EXPECT_EQ(info->UnSuccTransferAtRlc().value_or(9), 9U);
    info->UnSuccTransferAtRlc() = 3;
    const auto back = tarn::get<tarn::UeContextRelease>(*tarn::build(record));
    ASSERT_TRUE(back && back->RabDataInfoList());
    EXPECT_EQ(*(*back->RabDataInfoList())[0].UnSuccTransferAtRlc(), 3U);
    record.RabDataInfoList() = std::nullopt;
    EXPECT_EQ(tarn::build(record)->size(), 35U);
}

TEST(Cpp, ListsAndStringsKeepToTheirRoom) {
    tarn::RabIdList list;
    for (std::uint8_t id = 1; id <= 3; ++id)
        EXPECT_TRUE(list.push_back(id));
    EXPECT_FALSE(list.push_back(4));
    EXPECT_EQ(list.size(), 3U);
    list.count = 1000; // whoever writes the count by hand gets no further than the array
    EXPECT_EQ(list.end() - list.begin(), 3);
    tarn::LAC lac;
    EXPECT_TRUE(lac.assign(Bytes{1, 2}));
    EXPECT_FALSE(lac.assign(Bytes{1, 2, 3}));
    EXPECT_EQ(lac.size(), 2U);
    EXPECT_TRUE(lac.assign(Bytes()));
    EXPECT_EQ(lac.size(), 0U);
}

TEST(Cpp, EveryObjectIsDeletedOnce) {
    {
        auto msg = tarn::RabAssignmentRequestMsg::create();
        auto list = tarn::RabListIe::create();
        EXPECT_TRUE(list.append_RabToSetUpInfo(tarn::RabToSetUpInfoIe::create()));
        EXPECT_TRUE(msg.append_RabList(std::move(list)));
        EXPECT_FALSE(list) << "it belongs to the message now";
        EXPECT_FALSE(msg.append_RabList(std::move(list)));
        EXPECT_FALSE(list.append_RabToSetUpInfo(tarn::RabToSetUpInfoIe::create()));
        auto moved = std::move(msg);
        EXPECT_FALSE(msg.append_Srnti(1));
        moved = tarn::RabAssignmentRequestMsg::create();
        EXPECT_TRUE(moved.append_Srnti(1));
        const tarn::RabListIe never_appended = tarn::RabListIe::create();
    }
    EXPECT_EQ(tarnHostLiveBlocks(), 0U);
}

TEST(Cpp, RepeatedChildrenAreWalkedInOrder) {
    tarn::UeContextRelease record = release_of(7);
    record.RabDataInfoList().emplace();
    for (std::uint8_t id = 5; id < 8; ++id)
        record.RabDataInfoList()->emplace_back()->RabId = id;
    const auto msg = tarn::unpack(*tarn::build(record));
    const auto release = msg->as<tarn::UeContextReleaseMsgRef>();
    ASSERT_TRUE(release);
    EXPECT_FALSE(msg->as<tarn::ResetMsgRef>());
    const auto list = release->extract_RabDataInfoList();
    ASSERT_TRUE(list);
    std::vector<unsigned> ids;
    for (const auto &info : list->each_RabDataInfo())
        ids.push_back(*info.extract_RabId());
    EXPECT_EQ(ids, (std::vector<unsigned>{5, 6, 7}));
    EXPECT_EQ(*release->extract_AcUeId(), 7U);
    EXPECT_FALSE(release->extract_AcUeId());
    release->reset_extraction();
    EXPECT_TRUE(release->extract_AcUeId());
}

TEST(Cpp, ErrorsSayWhereAndWhy) {
    auto bytes = *tarn::build(release_of(7));
    bytes.pop_back();
    const auto cut = tarn::get<tarn::UeContextRelease>(bytes);
    EXPECT_EQ(cut.error().offset(), 29U);
    EXPECT_EQ(std::string_view(cut.error().what()).substr(0, 14), "ReleaseCause: ");
    tarn::IapReset record; // without the reference that this reset calls for
    const auto built = tarn::build(record);
    ASSERT_FALSE(built);
    EXPECT_EQ(std::string_view(built.error().what()),
              "UeContextRef: missing: it is required where Reset3GAP is anything but 1");
}

TEST(Cpp, AVisitorMayLeaveTheRestToOther) {
    const auto bytes = tarn::build(release_of(7));
    std::string seen;
    const auto visitor = tarn::overloaded{
        [&](const tarn::Reset &) { seen = "Reset"; },
        [&](const tarn::Other &other) { seen = other.name; },
    };
    EXPECT_EQ(tarn::visit(*bytes, visitor).status(), tarn::Status::ok);
    EXPECT_EQ(seen, "UeContextRelease");
    EXPECT_EQ(tarn::visit(*bytes, [](const tarn::Reset &) {}).status(), tarn::Status::unhandled);
}

} // namespace
