// What asks nothing of the host but to hear a report: Build, Get, and whatever refuses its bytes.
#include "support/library_test.h"
#include "support/mutations.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

std::size_t calls = 0;

class PlatformCalls : public LibraryTest {
protected:
    void SetUp() override {
        LibraryTest::SetUp();
        test_host::set_watch([](const char *, const char *) { ++calls; });
    }
    void TearDown() override {
        test_host::set_watch(nullptr);
        LibraryTest::TearDown();
    }

    // Get and, of what it refuses, both ways of unpacking. Returns whether it was refused.
    static bool expect_none(const Message &message, const Bytes &bytes) {
        const samples::Exact exact(bytes);
        Record record(message);
        calls = 0;
        const bool refused = message.get(exact.data(), exact.size(), record.data()) == 0;
        EXPECT_EQ(calls, 0U);
        if (!refused)
            return false;
        TarnMsg *msg = nullptr;
        EXPECT_EQ(TarnUnpackNewMsg(exact.data(), exact.size(), &msg), 0U);
        if (TarnGetMessageId(exact.data(), exact.size()) == message.id) {
            EXPECT_EQ(message.unpack(exact.data(), exact.size()), nullptr);
        }
        EXPECT_EQ(calls, 0U);
        return true;
    }
};

TEST_F(PlatformCalls, NoneInBuild) {
    Random random(1);
    for (const Message *message : protocol::messages())
        for (const Amount amount : {Amount::least, Amount::slim, Amount::most}) {
            Record record(*message);
            const auto nodes = samples::make_message(*message, amount, random);
            samples::fill_record(*message, nodes, &record);
            const std::size_t size = samples::encode(nodes).size();
            for (const std::size_t room : {size, size - 1}) {
                Bytes buffer(room);
                calls = 0;
                EXPECT_EQ(message->build(buffer.data(), std::uint32_t(room), record.data()) != 0,
                          room == size);
                EXPECT_EQ(calls, 0U) << message->name;
            }
        }
    expect_fatals(3 * protocol::messages().size(), "tarn_if_api");
}

TEST_F(PlatformCalls, NoneInGetNorForWhatIsRefused) {
    Random random(2);
    std::size_t refused = 0;
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        const auto nodes = samples::make_message(*message, Amount::slim, random);
        const Bytes bytes = samples::encode(nodes);
        for (std::size_t length = 0; length < bytes.size(); ++length)
            refused += expect_none(*message, Bytes(bytes.begin(), bytes.begin() + long(length)));
        for (int i = 0; i < 300; ++i)
            refused += expect_none(*message, samples::mutate(nodes, random));
    }
    EXPECT_GT(refused, 1000U);
}

} // namespace
