// What libtarn_info says of bytes, objects and records is what the codec makes of them.
#include <algorithm>
#include <cstring>
#include <memory>

#include "support/library_test.h"
#include "support/mutations.h"
#include "support/sample_files.h"
#include "support/samples.h"
#include "tarn_info.h"

using samples::Exact;

namespace {

struct Free {
    void operator()(const TarnInfoExplanation *it) const { tarnInfoFreeExplanation(it); }
};
using Explained = std::unique_ptr<const TarnInfoExplanation, Free>;

constexpr Amount amounts[] = {Amount::least, Amount::slim, Amount::random};

// A verdict and its findings agree with each other.
void expect_whole(const TarnInfoExplanation &why) {
    ASSERT_EQ(why.verdict == TarnInfoValid, why.faultCount == 0);
    for (std::uint32_t i = 0; i < why.faultCount; ++i) {
        ASSERT_LT(why.faults[i].reason, TarnInfoReasonCount);
        ASSERT_EQ(std::strpbrk(why.faults[i].sentence, "{}"), nullptr) << why.faults[i].sentence;
    }
}

class Agreement : public LibraryTest {
protected:
    static void expect_bytes(const Bytes &given);
    static void expect_object(const TarnMsg *msg);
    static void expect_record(const Message &message, const samples::Record &record,
                              std::uint32_t room);
};

// Get takes what Unpack takes, and reports the token that the explanation names.
void expect_get(const TarnInfoExplanation &why, const Exact &bytes) {
    samples::Record record(*protocol::message_by_id(why.message->id));
    const std::size_t before = test_host::debug_tokens().size();
    const std::uint32_t got =
        tarnInfoGetMsg(why.message->id, bytes.data(), bytes.size(), record.data());
    const auto &tokens = test_host::debug_tokens();
    ASSERT_EQ(got != 0, why.verdict != TarnInfoRefused);
    ASSERT_EQ(tokens.size() == before ? 0 : tokens.back().token, why.token);
}

void Agreement::expect_bytes(const Bytes &given) {
    const Exact bytes(given);
    TarnMsg *unpacked = nullptr;
    TarnUnpackNewMsg(bytes.data(), bytes.size(), &unpacked);
    const MsgPtr msg(unpacked);
    const Explained why(tarnInfoExplainBytes(bytes.data(), bytes.size()));
    const TarnInfoJudgement judged = tarnInfoJudge(bytes.data(), bytes.size());
    ASSERT_NO_FATAL_FAILURE(expect_whole(*why));
    ASSERT_EQ(judged.verdict, why->verdict);
    ASSERT_EQ(judged.consumed, why->consumed);
    ASSERT_EQ(judged.message, why->message);
    ASSERT_LE(why->consumed, bytes.size());
    ASSERT_EQ(why->verdict == TarnInfoRefused, msg == nullptr);
    if (why->message != nullptr) {
        ASSERT_NO_FATAL_FAILURE(expect_get(*why, bytes));
    }
    if (!msg) {
        ASSERT_GE(why->faults[0].offset, why->consumed);
        ASSERT_LE(why->faults[0].offset, bytes.size());
        ASSERT_FALSE(judged.isPlain);
        return;
    }
    ASSERT_EQ(why->verdict == TarnInfoValid, tarnInfoIsMsgValid(msg.get()) != 0);
    ASSERT_EQ(why->consumed, std::uint32_t(TarnSizeOfMsg(msg.get())));
    Bytes packed(why->consumed);
    ASSERT_EQ(tarnInfoPackMsg(msg.get(), packed.data(), why->consumed), why->consumed);
    ASSERT_EQ(judged.isPlain != 0, why->verdict == TarnInfoValid && packed == given);
    ASSERT_EQ(judged.isPlain != 0, why->verdict == TarnInfoValid && why->noteCount == 0);
    expect_object(msg.get());
}

void Agreement::expect_object(const TarnMsg *msg) {
    const Explained why(tarnInfoExplainMsg(msg));
    ASSERT_NO_FATAL_FAILURE(expect_whole(*why));
    ASSERT_EQ(why->verdict == TarnInfoValid, tarnInfoIsMsgValid(msg) != 0);
}

void Agreement::expect_record(const Message &message, const samples::Record &record,
                              std::uint32_t room) {
    Bytes buffer(room);
    const std::size_t before = test_host::debug_tokens().size();
    const std::uint32_t written = tarnInfoBuildMsg(message.id, buffer.data(), room, record.data());
    const auto &tokens = test_host::debug_tokens();
    const Explained why(tarnInfoExplainRecord(message.id, record.data(), room));
    ASSERT_NO_FATAL_FAILURE(expect_whole(*why));
    ASSERT_EQ(why->token, tokens.size() == before ? 0 : tokens.back().token);
    ASSERT_EQ(why->verdict == TarnInfoValid, written != 0);
    ASSERT_EQ(why->consumed, written);
}

TEST_F(Agreement, OnBytesOfEveryMessageAndWhatBecomesOfThem) {
    Random random(13);
    for (const Message *message : protocol::messages())
        for (int round = 0; round < 60; ++round) {
            SCOPED_TRACE(message->name);
            const Nodes nodes = samples::make_message(*message, amounts[round % 3], random);
            ASSERT_NO_FATAL_FAILURE(expect_bytes(samples::encode(nodes)));
            ASSERT_NO_FATAL_FAILURE(expect_bytes(samples::mutate(nodes, random)));
        }
}

TEST_F(Agreement, OnTheSampleFiles) {
    for (const char *folder : {"", "lenient", "refused"})
        for (const samples::Sample &sample : samples::read(folder)) {
            SCOPED_TRACE(testing::PrintToString(sample));
            ASSERT_NO_FATAL_FAILURE(expect_bytes(sample.bytes));
        }
}

// IEs that are right in themselves at the wrong place, which changed bytes seldom make.
TEST_F(Agreement, OnMessagesJoinedFromParts) {
    Random random(14);
    const auto any = [&random] {
        const auto &all = protocol::messages();
        const Message &message = *all[random.between(0, std::uint32_t(all.size()) - 1)];
        return samples::encode(samples::make_message(message, Amount::slim, random));
    };
    for (int round = 0; round < 1000; ++round) {
        Bytes bytes = any();
        const Bytes other = any();
        const std::uint32_t from = random.between(0, std::uint32_t(other.size()));
        const std::uint32_t cut = random.between(0, std::uint32_t(bytes.size()));
        bytes.insert(bytes.begin() + cut, other.begin() + from, other.end());
        bytes.resize(random.between(cut, std::uint32_t(bytes.size())));
        if (!bytes.empty()) {
            ASSERT_NO_FATAL_FAILURE(expect_bytes(bytes)) << round;
        }
    }
}

// A length field that is spoilt is found at its place, wherever that is.
TEST_F(Agreement, OnTheOffsetAndPathOfASpoiltLength) {
    Random random(15);
    for (const Message *message : protocol::messages()) {
        const Bytes good = samples::encode(samples::make_message(*message, Amount::least, random));
        std::vector<TarnInfoPart> parts;
        const auto collect = [](void *context, const TarnInfoPart *part) -> std::uint32_t {
            static_cast<std::vector<TarnInfoPart> *>(context)->push_back(*part);
            return 1;
        };
        ASSERT_EQ(
            tarnInfoReadBytes(good.data(), std::uint32_t(good.size()), nullptr, collect, &parts),
            1U);
        for (const TarnInfoPart &part : parts) {
            if (part.type->shape != TarnInfoNumber)
                continue;
            Bytes bad = good;
            ++bad[part.offset + 5];
            const Explained why(tarnInfoExplainBytes(bad.data(), std::uint32_t(bad.size())));
            SCOPED_TRACE(std::string(message->name) + " " + part.name);
            ASSERT_EQ(why->verdict, TarnInfoRefused);
            EXPECT_EQ(why->faults[0].reason, TarnInfoWrongWidth);
            EXPECT_EQ(why->faults[0].offset, part.offset + 2);
            EXPECT_NE(std::string(why->faults[0].path).rfind(part.name), std::string::npos);
        }
    }
}

// Objects that Append and Unpack would never make.
TEST_F(Agreement, OnObjectsOutOfOrder) {
    Random random(16);
    for (const Message *message : protocol::messages())
        for (int round = 0; round < 60; ++round) {
            Nodes nodes = samples::make_message(*message, amounts[round % 3], random);
            const auto pick = [&] {
                return nodes.begin() + random.between(0, std::uint32_t(nodes.size()) - 1);
            };
            if (const auto invalid = samples::make_invalid(*pick()->type, random))
                *std::find_if(nodes.begin(), nodes.end(),
                              [&](Node &n) { return n.type == invalid->type; }) = *invalid;
            if (random.coin())
                std::iter_swap(pick(), pick());
            if (random.coin())
                nodes.push_back(*pick());
            if (random.coin())
                nodes.erase(pick());
            SCOPED_TRACE(message->name);
            ASSERT_NO_FATAL_FAILURE(expect_object(samples::make_msg(*message, nodes).get()));
        }
}

TEST_F(Agreement, OnRecordsWithAnyByteChanged) {
    Random random(17);
    for (const Message *message : protocol::messages())
        for (int round = 0; round < 60; ++round) {
            const Nodes nodes = samples::make_message(*message, amounts[round % 3], random);
            samples::Record record(*message);
            samples::fill_record(*message, nodes, &record);
            const auto last = std::uint32_t(message->recordSize) - 1;
            for (std::uint32_t i = random.between(0, 3); i != 0; --i)
                *record.at(random.coin() ? random.between(0, last)
                                         : random.between(0, std::min(last, 40U))) ^=
                    std::uint8_t(1U << random.between(0, 7));
            SCOPED_TRACE(message->name);
            const bool isTight = round % 4 == 0;
            ASSERT_NO_FATAL_FAILURE(
                expect_record(*message, record, isTight ? random.between(1, 60) : 70820));
            test_host::reset(); // too small a buffer is reported as fatal
        }
}

} // namespace
