// Names, tokens, children, copies and comparisons.
#include <algorithm>
#include <string>
#include <vector>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_info.h"

namespace {

class Info : public LibraryTest {};

TEST_F(Info, SaysOfTypesWhatTheRowsAndTheCompilerSay) {
    std::uint32_t count = 0;
    tarnInfoTypes(&count);
    ASSERT_EQ(count, protocol::types().size());
    for (const protocol::Type *row : protocol::types()) {
        const TarnInfoType *type = tarnInfoTypeByName(row->name);
        ASSERT_NE(type, nullptr) << row->name;
        EXPECT_EQ(type->tag, row->tag) << row->name;
        EXPECT_EQ(type->valueSize, row->valueSize) << row->name;
        EXPECT_EQ(type->ieSize, row->ieSize) << row->name;
        EXPECT_EQ(type->recordSize, row->recordSize) << row->name;
        EXPECT_EQ(type->stride, row->stride) << row->name;
        EXPECT_EQ(type->slotCount, row->slots.size() + row->members.size()) << row->name;
    }
    std::uint32_t greatest = 0;
    for (const protocol::Message *row : protocol::messages()) {
        const TarnInfoMessage *message = tarnInfoMessageById(row->id);
        ASSERT_EQ(message, tarnInfoMessageByName(row->name));
        EXPECT_EQ(message->recordSize, row->recordSize);
        for (std::size_t i = 0; i < row->slots.size(); ++i) {
            EXPECT_STREQ(message->slots[i].name, row->slots[i].name);
            EXPECT_EQ(message->slots[i].offset, row->slots[i].recordOffset);
            EXPECT_EQ(message->slots[i].presenceBit, row->slots[i].presenceBit);
        }
        // The largest is just what fits, but for IEs that exclude each other.
        Random random(1);
        const Bytes most = samples::encode(samples::make_message(*row, Amount::most, random));
        EXPECT_GE(message->largest, most.size()) << row->name;
        EXPECT_LE(message->largest, most.size() + 80) << row->name;
        greatest = std::max(greatest, message->largest);
    }
    EXPECT_EQ(greatest, 70820U); // which docs/security.md tells callers to hold input against
}

TEST_F(Info, KnowsTokensAndModules) {
    const TarnInfoMessage *message = nullptr;
    EXPECT_EQ(tarnInfoToken(0x17F6DF7F, &message), TarnInfoAppendStep);
    EXPECT_STREQ(message->name, "RelocationCommand");
    EXPECT_EQ(tarnInfoToken(0xF82D7E10, nullptr), TarnInfoValidityStep);
    EXPECT_EQ(tarnInfoToken(0xCC2F29B3, nullptr), TarnInfoPackStep);
    EXPECT_EQ(tarnInfoToken(samples::getToken, &message), TarnInfoGetStep);
    EXPECT_EQ(message, nullptr);
    EXPECT_STRNE(tarnInfoModuleWords("tarn_if_api"), "unknown");
}

TEST_F(Info, AnswersNullsAndUnknownsPlainly) {
    const TarnInfoMessage *message = nullptr;
    EXPECT_EQ(tarnInfoToken(1, &message), TarnInfoNoStep);
    EXPECT_EQ(tarnInfoTypeByTag(69), nullptr);
    EXPECT_EQ(tarnInfoTypeByTag(0xFFFFFFFF), nullptr);
    EXPECT_EQ(tarnInfoTypeByName(nullptr), nullptr);
    EXPECT_EQ(tarnInfoMessageById(34), nullptr);
    EXPECT_EQ(tarnInfoNewMsg(34), nullptr);
    EXPECT_EQ(tarnInfoNewIe(1), nullptr);
    EXPECT_EQ(tarnInfoIsMsgValid(nullptr), 0U);
    EXPECT_EQ(tarnInfoPackMsg(nullptr, nullptr, 0), 0U);
    EXPECT_EQ(tarnInfoUnpackMsg(1, nullptr, 0), nullptr);
    EXPECT_EQ(tarnInfoBuildMsg(40, nullptr, 0, nullptr), 0U);
    EXPECT_EQ(tarnInfoGetMsg(1, nullptr, 0, nullptr), 0U);
    EXPECT_EQ(tarnInfoCopyMsg(nullptr), nullptr);
    EXPECT_EQ(tarnInfoCompareMsgs(nullptr, nullptr, nullptr, nullptr), UINT32_MAX);
    EXPECT_EQ(tarnInfoAppendToMsg(nullptr, 1, nullptr), 0U);
    EXPECT_EQ(tarnInfoAppendToIe(nullptr, 1, nullptr), 0U);
    EXPECT_EQ(tarnInfoSentence(TarnInfoReasonCount, nullptr, nullptr, 0), 7U); // "unknown"
    EXPECT_EQ(tarnInfoPrintMsg(nullptr, TarnInfoTree, 0, nullptr, nullptr), 0U);
    EXPECT_EQ(tarnInfoPrintBytes(nullptr, 9, nullptr, TarnInfoTree, 0, nullptr, nullptr), 0U);
    TarnInfoWalk walk = tarnInfoWalkMsg(nullptr);
    EXPECT_EQ(tarnInfoNextChild(&walk, nullptr), 0U);
    for (const TarnInfoExplanation *why :
         {tarnInfoExplainBytes(nullptr, 9), tarnInfoExplainMsg(nullptr),
          tarnInfoExplainRecord(34, nullptr, 0)}) {
        EXPECT_EQ(why->message, nullptr);
        EXPECT_EQ(why->faultCount, 1U);
        tarnInfoFreeExplanation(why);
    }
}

// Walking, copying and appending by tag give the same message again, and mark nothing.
TEST_F(Info, RebuildsEveryMessageFromItsChildren) {
    Random random(2);
    for (const protocol::Message *row : protocol::messages()) {
        SCOPED_TRACE(row->name);
        const MsgPtr msg =
            samples::make_msg(*row, samples::make_message(*row, Amount::slim, random));
        const MsgPtr rebuilt(tarnInfoNewMsg(row->id));
        TarnInfoWalk walk = tarnInfoWalkMsg(msg.get());
        TarnInfoChild child;
        for (std::uint32_t i = 0; tarnInfoNextChild(&walk, &child) != 0; ++i) {
            EXPECT_EQ(child.ie->extractHistory, 0U);
            EXPECT_EQ(child.slot->type->tag, child.tag);
            TarnIe *copy = tarnInfoCopyIe(child.ie);
            void *added = child.value != nullptr ? static_cast<void *>(copy + 1) : copy;
            if (i != 0) { // the MessageId is there
                EXPECT_EQ(tarnInfoAppendToMsg(rebuilt.get(), child.tag, added), 1U);
            }
            if (child.value != nullptr)
                TarnDeleteIe(copy);
        }
        EXPECT_EQ(tarnInfoCompareMsgs(msg.get(), rebuilt.get(), nullptr, nullptr), 0U);
        EXPECT_EQ(samples::nodes_of(msg->ies), samples::nodes_of(rebuilt->ies));
        const MsgPtr copy(tarnInfoCopyMsg(msg.get()));
        EXPECT_EQ(samples::nodes_of(msg->ies), samples::nodes_of(copy->ies));
    }
}

TEST_F(Info, TellsDifferencesByPath) {
    Random random(3);
    const auto &type = samples::message("UeContextRelease");
    samples::Nodes nodes = samples::make_message(type, Amount::slim, random);
    const MsgPtr a = samples::make_msg(type, nodes);
    samples::set_number(nodes[1], samples::number_of(nodes[1]) + 1);
    samples::Nodes &list = nodes.back().children;
    list.push_back(list.front());
    const MsgPtr b = samples::make_msg(type, nodes);
    std::vector<std::string> paths;
    const auto tell = [](void *context, const TarnInfoDifference *difference) {
        static_cast<std::vector<std::string> *>(context)->push_back(
            std::string(difference->left != nullptr ? "" : "+") + difference->path);
    };
    const std::uint32_t count = tarnInfoCompareMsgs(a.get(), b.get(), tell, &paths);
    EXPECT_EQ(count, paths.size());
    const std::string added = "+RabDataInfoList[" + std::to_string(list.size() - 1) + "].";
    EXPECT_EQ(paths,
              (std::vector<std::string>{"Srnti", added + "RabId", added + "SuccTransferAtPsiw",
                                        added + "UnSuccTransferAtRlc"}));
}

} // namespace
