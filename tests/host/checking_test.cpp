// The checking mode: each kind of misuse is told, with the block and the places that it names.

#include "blocks.h"
#include "tarn_host.h"
#include "tarn_if.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

// Made wrong, and put right again, so that nothing stays.
void write_after_release() {
    unsigned char *const block = allocate(32);
    release(block);
    block[31] = 1;
    tarnHostTrim();
}

void release_twice(uint32_t size) {
    unsigned char *const block = allocate(size);
    release(block);
    release(block);
}

void release_after_reuse() {
    unsigned char *const block = allocate(40);
    release(block);
    unsigned char *const next = allocate(40);
    release(block);
    release(next);
}

void release_what_is_not_a_block() {
    unsigned char *const block = allocate(16);
    release(block + 8);
    release(block);
}

void write_at(std::ptrdiff_t offset) {
    unsigned char *const block = allocate(24);
    const unsigned char former = block[offset];
    block[offset] ^= 1;
    release(block);
    block[offset] = former;
    release(block);
}

void link_twice() {
    TarnMsg *const msg = TarnNewRabAssignmentRequestMsg();
    auto *const list = TarnNewRabListIe();
    TarnAppendRabListIeToRabAssignmentRequestMsg(msg, list);
    TarnAppendRabListIeToRabAssignmentRequestMsg(msg, list);
    EXPECT_EQ(TarnSizeOfMsg(msg), 13);
    TarnDeleteMsg(msg);
}

void delete_while_linked() {
    TarnMsg *const msg = TarnNewRabAssignmentRequestMsg();
    auto *const list = TarnNewRabListIe();
    TarnAppendRabListIeToRabAssignmentRequestMsg(msg, list);
    TarnDeleteIe(reinterpret_cast<TarnIe *>(list));
    TarnDeleteMsg(msg);
}

void link_after_deletion() {
    TarnMsg *const msg = TarnNewRabAssignmentRequestMsg();
    auto *const list = TarnNewRabListIe();
    TarnDeleteIe(reinterpret_cast<TarnIe *>(list));
    TarnAppendRabListIeToRabAssignmentRequestMsg(msg, list);
    TarnDeleteMsg(msg);
}

struct Case {
    const char *name;
    void (*misuse)();
    const char *expected; // what is told, but for the address
};

const Case cases[] = {
    {"WriteAfterRelease", write_after_release,
     "tarn_host: a block was written after its release: block @ of 32 bytes, allocated in "
     "maker:11, "
     "freed in user:22"},
    {"ReleaseTwice", [] { release_twice(32); },
     "user: the block to free was freed before: block @ of 32 bytes, allocated in maker:11, freed "
     "in "
     "user:22"},
    {"ReleaseALargeBlockTwice", [] { release_twice(1000000); },
     "user: the block to free was freed before: block @ of 1000000 bytes, allocated in maker:11, "
     "freed in user:22"},
    {"ReleaseAfterReuse", release_after_reuse,
     "user: the block to free was freed before: block @ of 40 bytes, allocated in maker:11, freed "
     "in "
     "user:22"},
    {"ReleaseWhatIsNotABlock", release_what_is_not_a_block,
     "user: the block to free is not one of the host's: @"},
    {"WriteBehind", [] { write_at(24); },
     "user: bytes behind a block were written: block @ of 24 bytes, allocated in maker:11"},
    {"WriteBefore", [] { write_at(-1); },
     "user: bytes before a block were written: block @ of 24 bytes, allocated in maker:11"},
    {"LinkTwice", link_twice,
     "tarn_if_api: an object is linked twice: block @ of # bytes, allocated in tarn_if_api:#"},
    {"DeleteWhileLinked", delete_while_linked,
     "tarn_if_api: an object is deleted while it is linked: block @ of # bytes, allocated in "
     "tarn_if_api:#"},
    {"LinkAfterDeletion", link_after_deletion,
     "tarn_if_api: an object is linked after its deletion: block @ of # bytes, allocated in "
     "tarn_if_api:#, freed in tarn_if_api:#"},
};

class Checking : public testing::TestWithParam<Case> {};

TEST_P(Checking, NamesTheBlockAndItsPlaces) {
    if (!isChecked) {
        GTEST_SKIP() << "only in the checking mode";
    }
    std::string told;
    const auto tell = [](void *context, const char *text, const char *module, uint32_t) {
        *static_cast<std::string *>(context) += std::string(module) + ": " + text + "\n";
    };
    const auto former = tarnHostSetFatalErrorHandler(tell, &told);
    GetParam().misuse();
    tarnHostSetFatalErrorHandler(former.handler, former.context);
    std::string pattern;
    for (const char *at = GetParam().expected; *at != '\0'; ++at) {
        pattern += *at == '@' ? "0x[0-9a-f]+" : *at == '#' ? "[0-9]+" : std::string(1, *at);
    }
    const testing::Matcher<std::string> matches = testing::MatchesRegex(pattern + "\n");
    EXPECT_TRUE(matches.Matches(told)) << told;
    EXPECT_EQ(tarnHostLiveBlocks(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Misuses, Checking, testing::ValuesIn(cases),
                         [](const auto &each) { return std::string(each.param.name); });

TEST(CheckingDeathTest, LooksBlocksOverAtTheEnd) {
    if (!isChecked) {
        GTEST_SKIP() << "only in the checking mode";
    }
    const auto end = [] {
        unsigned char *const block = allocate(32);
        release(block);
        block[0] = 1;
        std::exit(0);
    };
    EXPECT_EXIT(end(), testing::KilledBySignal(SIGABRT),
                "^tarn: fatal error in tarn_host:0: a block was written after its release: block ");
}

} // namespace
