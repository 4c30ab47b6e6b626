// The diagnosis walks the bytes on its own: it must come to the same end as libtarn on any of them.
#include <algorithm>
#include <random>

#include "samples.h"
#include "support/library_test.h"
#include "tarn/diagnosis.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes pack(const TarnMsg &msg) {
    Bytes bytes(std::size_t(TarnSizeOfMsg(&msg)));
    EXPECT_EQ(protocol::message_by_id(msg.messageId)
                  ->pack(&msg, bytes.data(), std::uint32_t(bytes.size())),
              1U);
    return bytes;
}

std::uint32_t is_valid(const TarnMsg &msg) {
    return protocol::message_by_id(msg.messageId)->isValid(&msg);
}

// Copies the bytes to a block of their own size, so that the sanitizers see a read beyond.
void expect_agreement(const Bytes &given) {
    const std::unique_ptr<std::uint8_t[]> bytes(new std::uint8_t[given.size() + 1]);
    std::copy(given.begin(), given.end(), bytes.get());
    const auto length = std::uint32_t(given.size());
    TarnMsg *unpacked = nullptr;
    TarnUnpackNewMsg(bytes.get(), length, &unpacked);
    const tool::MsgPtr msg(unpacked);
    const tool::Diagnosis diagnosis = tool::diagnose(bytes.get(), length);
    ASSERT_EQ(diagnosis.isDecodable, msg != nullptr) << testing::PrintToString(given);
    if (!msg) {
        ASSERT_FALSE(diagnosis.faults.empty());
        ASSERT_LE(diagnosis.faults.front().at, length);
        return;
    }
    ASSERT_EQ(pack(*diagnosis.decoded), pack(*msg)) << testing::PrintToString(given);
    ASSERT_EQ(diagnosis.consumed, std::uint32_t(TarnSizeOfMsg(msg.get())));
    ASSERT_EQ(diagnosis.faults.empty(), is_valid(*msg) != 0);
    if (diagnosis.consumed != length) {
        ASSERT_FALSE(diagnosis.notes.empty()) << "bytes were ignored in silence";
    }
}

std::vector<samples::Sample> all_samples() {
    std::vector<samples::Sample> all = samples::read("");
    for (const char *directory : {"refused", "lenient"})
        for (samples::Sample &sample : samples::read(directory))
            all.push_back(std::move(sample));
    return all;
}

class Diagnosis : public LibraryTest {};

TEST_F(Diagnosis, AgreesOnPrefixes) {
    for (const samples::Sample &sample : all_samples())
        for (std::size_t length = 0; length <= sample.bytes.size(); ++length)
            ASSERT_NO_FATAL_FAILURE(
                expect_agreement({sample.bytes.begin(), sample.bytes.begin() + long(length)}))
                << sample.file;
}

TEST_F(Diagnosis, AgreesOnEachByteChanged) {
    for (const samples::Sample &sample : all_samples())
        for (std::size_t i = 0; i < sample.bytes.size(); ++i)
            for (const int change : {1, -1, 2, 0x10, 0x80, 0xFF}) {
                Bytes bytes = sample.bytes;
                bytes[i] = std::uint8_t(bytes[i] + change);
                ASSERT_NO_FATAL_FAILURE(expect_agreement(bytes)) << sample.file << " byte " << i;
            }
}

// IEs of one sample put into others make what changed bytes seldom do: IEs that are right in
// themselves at the wrong place.
TEST_F(Diagnosis, AgreesOnMessagesJoinedFromParts) {
    const std::vector<samples::Sample> all = all_samples();
    std::mt19937 random(39);
    const auto pick = [&random](std::size_t below) { return std::size_t(random() % below); };
    for (int round = 0; round < 20000; ++round) {
        Bytes bytes = all[pick(all.size())].bytes;
        const Bytes &other = all[pick(all.size())].bytes;
        const auto from = other.begin() + long(pick(other.size()));
        const auto to = from + long(pick(std::size_t(other.end() - from) + 1));
        const auto cut = bytes.begin() + long(pick(bytes.size()));
        const auto rest = round % 2 == 0 ? cut : cut + long(pick(std::size_t(bytes.end() - cut)));
        bytes.insert(bytes.erase(cut, rest), from, to);
        ASSERT_NO_FATAL_FAILURE(expect_agreement(bytes)) << round;
    }
}

// The last element of the one SduFormatInfoParamList among the samples is empty. Puts many more
// behind it.
Bytes with_long_list(std::size_t elements) {
    const Bytes list = {0, 40, 0, 0, 0, 0x2C};
    const Bytes element = {0, 41, 0, 0, 0, 0};
    for (const samples::Sample &sample : samples::read("")) {
        Bytes bytes = sample.bytes;
        const auto found = std::search(bytes.begin(), bytes.end(), list.begin(), list.end());
        if (found == bytes.end())
            continue;
        found[3] = 0xFF; // of the length: more than all that follows
        const auto last = std::search(found, bytes.end(), element.begin(), element.end());
        Bytes longer(bytes.begin(), last);
        for (std::size_t i = 0; i < elements; ++i)
            longer.insert(longer.end(), element.begin(), element.end());
        return longer;
    }
    return {};
}

TEST_F(Diagnosis, TakesALongListOnce) {
    constexpr std::size_t elements = 20000;
    const Bytes bytes = with_long_list(elements);
    ASSERT_GT(bytes.size(), elements * 6);
    expect_agreement(bytes);
    EXPECT_GT(test_host::list_calls(), elements) << "the list was not walked";
    EXPECT_LT(test_host::list_calls(), elements * 20);
}

} // namespace
