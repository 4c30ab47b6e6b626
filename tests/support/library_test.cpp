#include "support/library_test.h"

void LibraryTest::SetUp() {
    test_host::reset();
}

void LibraryTest::TearDown() {
    EXPECT_EQ(test_host::live_blocks(), 0U) << "blocks were left";
    EXPECT_EQ(test_host::fatal_reports().size(), expectedFatals_) << "fatal errors reported";
    test_host::reset();
}

void LibraryTest::expect_fatals(std::size_t count, const char *module) {
    const auto &reports = test_host::fatal_reports();
    ASSERT_EQ(reports.size(), expectedFatals_ + count);
    for (; expectedFatals_ < reports.size(); ++expectedFatals_) {
        EXPECT_EQ(reports[expectedFatals_].module, module);
        EXPECT_EQ(reports[expectedFatals_].text, "");
        EXPECT_NE(reports[expectedFatals_].line, 0U);
    }
}
